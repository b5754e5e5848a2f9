// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QWidget>

#include <functional>
#include <utility>

namespace kor::test {

//! An active window to put controls on, with one plain button at its end for the focus to go to.
class Stage : public QWidget
{
public:
    Stage();
    //! Shows the window and waits until it has the keyboard.
    [[nodiscard]] bool open();
    //! Places a control of so many pixels below the last one.
    template <class Control>
    Control *place(Control *control, int width = 160, int height = 26)
    {
        control->setParent(this);
        control->setGeometry(10, m_next, width, height);
        m_next += height + 8;
        m_button->move(10, m_next);
        setTabOrder(control, m_button);
        return control;
    }
    [[nodiscard]] QPushButton *button() const { return m_button; }

private:
    QPushButton *m_button;
    int m_next = 10;
};

//! Answers every message box with the Enter key, and remembers what it said.
class Messages : public QObject
{
public:
    Messages();
    //! "title: text" of each message since the last call.
    [[nodiscard]] QStringList take();
    //! What the program does under the next message, before it is answered.
    void beneath(std::function<void()> deed) { m_beneath = std::move(deed); }

private:
    QTimer m_timer;
    QStringList m_seen;
    std::function<void()> m_beneath;
};

//! Counts the beeps while it lives.
class Beeps
{
public:
    Beeps();
    ~Beeps();
    [[nodiscard]] int take();
};

//! From now on in this test function, any warning of the toolkit is a failure. The offscreen platform's own complaints
//! about what it has no windows for say nothing about us.
void failOnWarnings();

//! An entered grid has the keyboard in the editor of its current cell, whose keys are its own. This closes it, so that
//! the keys are the grid's; other controls are left alone.
void closeCellEditor(const QWidget *control);

//! Lets everything that waits happen: queued focus changes, posted events, the keyboard's way back from a message.
void settle();

//! A text field as a text: "1[23]4" is 1234 with 23 selected, "12|34" the caret in the middle.
void setField(QLineEdit *box, const QString &state);
[[nodiscard]] QString field(const QLineEdit *box);

} // namespace kor::test
