// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/Beep>

#include <QtCore/QPointer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <algorithm>
#include <utility>

namespace kor::test {

namespace {

int beepCount = 0;

//! The windows that have had the keyboard and are still there.
QList<QPointer<QWidget>> &enteredWindows()
{
    static QList<QPointer<QWidget>> windows;
    windows.removeIf([](const QPointer<QWidget> &window) { return !window; });
    return windows;
}

//! A screen gives the keyboard back in its own time, when a message or another window is gone. The offscreen platform
//! does not. A window that never had it does not wait for it.
void awaitKeyboard()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    QList<QPointer<QWidget>> &entered = enteredWindows();
    if (QWidget *active = QApplication::activeWindow()) {
        if (!entered.contains(active))
            entered.append(active);
        return;
    }
    const bool isWindowLeft = std::any_of(entered.cbegin(), entered.cend(), [](const QWidget *window) {
        return window->isVisible() && !window->isMinimized();
    });
    if (isWindowLeft)
        (void)QTest::qWaitFor([] { return QApplication::activeWindow(); });
}

} // namespace

Stage::Stage() : m_button(new QPushButton(QStringLiteral("Dalej"), this)) { resize(320, 240); }

bool Stage::open()
{
    show();
    activateWindow();
    const bool isActive = QTest::qWaitForWindowActive(this);
    awaitKeyboard();
    return isActive;
}

Messages::Messages()
{
    connect(&m_timer, &QTimer::timeout, this, [this] {
        const QPointer box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        m_seen << QStringLiteral("%1: %2").arg(box->windowTitle(), box->text());
        if (const auto deed = std::exchange(m_beneath, {}))
            deed();
        if (box)
            QTest::keyClick(box.data(), Qt::Key_Return);
    });
    m_timer.start(20);
}

QStringList Messages::take() { return std::exchange(m_seen, {}); }

Beeps::Beeps()
{
    beepCount = 0;
    setBeepHandler([] { ++beepCount; });
}

Beeps::~Beeps() { setBeepHandler({}); }

int Beeps::take() { return std::exchange(beepCount, 0); }

void failOnWarnings()
{
    // What the toolkit's platforms say of themselves: what they can't do, and that a pop-up which was closed and opened
    // at once is still on the screen.
    QTest::failOnWarning(
        QRegularExpression(QStringLiteral("^(?!This plugin does not support (propagateSizeHints|raise|grabbing)|"
                                          "internal error: *void QXcbWindow::setNetWmStateOnUnmappedWindow)")));
}

void closeCellEditor(const QWidget *control)
{
    QWidget *focused = QApplication::focusWidget();
    if (!focused || !control->inherits("KorGrid") || focused == control->focusProxy())
        return;
    QTest::keyClick(focused, Qt::Key_F2);
    settle();
}

void settle()
{
    const auto goRound = [] {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    };
    goRound();
    awaitKeyboard();
    goRound();
    goRound();
}

void setField(QLineEdit *box, const QString &state)
{
    QString text = state;
    text.remove(QLatin1Char('[')).remove(QLatin1Char(']')).remove(QLatin1Char('|'));
    if (box->text() != text)
        box->setText(text);
    const auto open = state.indexOf(QLatin1Char('['));
    if (open >= 0)
        box->setSelection(static_cast<int>(open), static_cast<int>(state.indexOf(QLatin1Char(']')) - open - 1));
    else
        box->setCursorPosition(static_cast<int>(state.indexOf(QLatin1Char('|'))));
}

QString field(const QLineEdit *box)
{
    QString text = box->text();
    if (!box->hasSelectedText())
        return text.insert(box->cursorPosition(), QLatin1Char('|'));
    text.insert(box->selectionEnd(), QLatin1Char(']'));
    return text.insert(box->selectionStart(), QLatin1Char('['));
}

} // namespace kor::test
