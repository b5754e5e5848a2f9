// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Locale>

#include <QtCore/QPointer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTableView>

#include <memory>

namespace kor::test {

//! What the suites of a control with cells begin each test with: the control on a stage, the keyboard on the button
//! beside it, Polish signs, a certain day.
template <class Control>
class CellsSuite : public QObject
{
protected:
    //! Its editors are known by their names.
    explicit CellsSuite(std::initializer_list<const char *> editors) : m_editors(editors) {}

    void setUp(int width, int height)
    {
        failOnWarnings();
        Locale::setSystemDefault(Locale::polish());
        Clock::setSource([] { return QDate(2026, 11, 21); });
        stage = std::make_unique<Stage>();
        control = stage->place(new Control, width, height);
        stage->resize(width + 20, height + 80);
        messages = std::make_unique<Messages>();
        QVERIFY(stage->open());
        stage->button()->setFocus();
        settle();
        log = std::make_unique<EventLog>(control.data());
    }
    void tearDown()
    {
        log.reset();
        messages.reset();
        stage.reset();
        Clock::setSource({});
    }

    [[nodiscard]] QTableView *view() const { return control->template findChild<QTableView *>(QStringLiteral("grid")); }
    [[nodiscard]] QRect cellRect(int row, int column) const
    {
        return view()->visualRect(view()->model()->index(row - 1, column - 1));
    }
    [[nodiscard]] QPoint inWindow(int row, int column) const
    {
        return view()->viewport()->mapTo(stage.get(), cellRect(row, column).center());
    }
    //! Through the window, so that a handler may delete the control between press and release.
    void click(int row, int column)
    {
        QTest::mouseClick(stage->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow(row, column));
        settle();
    }
    template <class Editor = QWidget>
    [[nodiscard]] Editor *editor(const char *name) const
    {
        return control->template findChild<Editor *>(QString::fromLatin1(name));
    }
    //! The names of the editors that are shown, in no doubt "" or one of them.
    [[nodiscard]] QString openEditor() const
    {
        QStringList shown;
        for (const char *name : m_editors) {
            if (const auto *made = editor(name); made && made->isVisible())
                shown << QString::fromLatin1(name);
        }
        return shown.join(u' ');
    }
    [[nodiscard]] bool hasKeyboard(const char *name) const
    {
        const QWidget *focused = QApplication::focusWidget();
        return focused && (focused == editor(name) || editor(name)->isAncestorOf(focused));
    }
    void type(const QString &text)
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }

    std::unique_ptr<Stage> stage;
    std::unique_ptr<Messages> messages;
    std::unique_ptr<EventLog> log;
    QPointer<Control> control;

private:
    const QList<const char *> m_editors;
};

} // namespace kor::test
