// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "examples/orderfiles.h"
#include "orders/orderwindow.h"
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/UserControl>

#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>

#include <functional>
#include <memory>

namespace orders::test {

//! Answers the dialogs that come up by keys, one entry each, and remembers what they said.
class Clerk : public QObject
{
public:
    Clerk()
    {
        connect(&m_timer, &QTimer::timeout, this, &Clerk::look);
        m_timer.start(5);
    }
    void willPress(std::initializer_list<int> keys) { m_answers.insert(m_answers.end(), keys); }
    [[nodiscard]] QString heard() const { return m_heard.join(u'|'); }
    //! What stood below that.
    [[nodiscard]] QString explained() const { return m_explained.join(u'|'); }

private:
    void look()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box == m_answered || !box->isActiveWindow())
            return;
        m_answered = box;
        m_heard << box->text();
        m_explained << box->informativeText();
        const int key = m_answers.empty() ? int(Qt::Key_Escape) : m_answers.front();
        if (!m_answers.empty())
            m_answers.erase(m_answers.begin());
        // A letter is that of a button, with Alt as on the form.
        const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
        QTest::keyClick(box, static_cast<Qt::Key>(key), isLetter ? Qt::AltModifier : Qt::NoModifier);
    }

    QTimer m_timer;
    std::vector<int> m_answers;
    QPointer<QMessageBox> m_answered;
    QStringList m_heard;
    QStringList m_explained;
};

//! Does something in the dialog that opens next, once that has the keyboard.
inline void inNextDialog(const std::function<void(QWidget &dialog)> &work)
{
    auto *look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, look, [look, work] {
        QWidget *dialog = QApplication::activeModalWidget();
        const QWidget *focused = QApplication::focusWidget();
        if (!dialog || !dialog->isActiveWindow() || !focused || !dialog->isAncestorOf(focused))
            return;
        look->stop();
        look->deleteLater();
        work(*dialog);
    });
    look->start(5);
}

//! The control around the widget with the focus, or that widget itself.
inline QString focusName()
{
    const QWidget *focused = QApplication::focusWidget();
    for (const QWidget *widget = focused; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (qobject_cast<const kor::UserControl *>(widget))
            return widget->objectName();
    }
    return focused ? focused->objectName() : QString();
}

//! Shows a window and gives it the keyboard.
inline void bringUp(QWidget &window)
{
    window.show();
    if (!window.isActiveWindow())
        window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTRY_VERIFY(QApplication::focusWidget() && window.isAncestorOf(QApplication::focusWidget()));
    kor::test::settle();
}

inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    kor::test::settle();
}

inline void type(const QString &text)
{
    for (const QChar character : text) // Polish letters too, which keyClicks() does not know
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key(character.toUpper().unicode()),
                            QString(character), Qt::NoModifier);
    kor::test::settle();
}

//! Who claims which letter with Alt in a window.
inline QHash<QChar, QStringList> lettersOf(const QWidget &window)
{
    QHash<QChar, QStringList> users;
    const auto note = [&users](const QString &text) {
        const qsizetype at = text.indexOf(u'&');
        if (at >= 0)
            users[text.at(at + 1).toUpper()] << text;
    };
    for (const auto *label : window.findChildren<QLabel *>())
        note(label->text());
    for (const auto *button : window.findChildren<QAbstractButton *>())
        note(button->text());
    for (const auto *frame : window.findChildren<QGroupBox *>())
        note(frame->title());
    for (const auto *menu : window.findChildren<QMenuBar *>()) {
        for (const auto *action : menu->actions())
            note(action->text());
    }
    return users;
}

//! A number as the Polish locale groups it.
inline QString grouped(const char *number) { return QString::fromLatin1(number).replace(u' ', u'\u00A0'); }

//! An order desk over a file of its own with the sample data, at work.
class OrderDesk : public QObject
{
protected:
    void open()
    {
        kor::Locale::setSystemDefault(kor::Locale::polish());
        kor::Clock::setSource([] { return QDate(2026, 11, 21); });
        m_folder = std::make_unique<QTemporaryDir>();
        makeFile(file());
        m_clerk = std::make_unique<Clerk>();
        start();
    }
    void close()
    {
        m_window.reset();
        m_store.reset();
        m_clerk.reset();
    }
    void start()
    {
        m_store = std::make_unique<OrderStore>(file());
        m_window = std::make_unique<OrderWindow>(*m_store);
        bringUp(*m_window);
    }
    void restart()
    {
        m_window.reset();
        m_store.reset();
        start();
    }

    [[nodiscard]] QString file() const { return m_folder->filePath(QStringLiteral("zamówienia.sqlite")); }
    template <class Widget>
    Widget *part(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }
    [[nodiscard]] KorNumber *number(const char *name) const { return part<KorNumber>(name); }
    [[nodiscard]] KorDate *date(const char *name) const { return part<KorDate>(name); }
    [[nodiscard]] QString position() const { return part<QLabel>("lblPosition")->text(); }
    void focus(const char *name)
    {
        part<QWidget>(name)->setFocus(Qt::TabFocusReason);
        kor::test::settle();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<OrderStore> m_store;
    std::unique_ptr<OrderWindow> m_window;
    std::unique_ptr<Clerk> m_clerk;
};

} // namespace orders::test
