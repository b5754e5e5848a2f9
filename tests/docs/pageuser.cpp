// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <QtCore/QTimer>
#include <QtGui/QKeySequence>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace {

void press(const QString &key)
{
    // As the window system hands them over: to the window, which may have a shortcut for it
    const QWidget *popup = QApplication::activePopupWidget();
    QWindow *window = popup ? popup->windowHandle() : QApplication::focusWindow();
    if (key.size() == 1) {
        QTest::keyClick(window, key.front().toLatin1());
        return;
    }
    const QKeyCombination combination = QKeySequence(key)[0];
    QTest::keyClick(window, combination.key(), combination.keyboardModifiers());
}

bool isButtonDown()
{
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget *widget) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        return button && button->isDown();
    });
}

//! The user of a program of the documentation: waits for its window, presses the keys that the page names, takes a
//! picture of the window if one is wanted, and closes it.
void useProgram()
{
    auto *watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, watch, [watch] {
        if (!QApplication::focusWidget())
            return;
        watch->stop();
        QWidget *window = QApplication::focusWidget()->window();
        for (const QString &key : qEnvironmentVariable("KOR_PAGE_KEYS").split(u' ', Qt::SkipEmptyParts)) {
            press(key);
            QCoreApplication::processEvents(); // what the control does behind a key
            while (isButtonDown())             // pressed by its letter, it comes up by itself, and is clicked then
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        const QString picture = qEnvironmentVariable("KOR_PAGE_PICTURE");
        if (!picture.isEmpty() && !window->grab().save(picture))
            qFatal("The picture was not saved");
        QApplication::closeAllWindows();
    });
    watch->start(10);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(useProgram)
