// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace {

//! The user of a program of the documentation: waits for its window, presses Up once and closes it.
void useProgram()
{
    auto *watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, watch, [watch] {
        if (!QApplication::focusWidget())
            return;
        watch->stop();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        QApplication::closeAllWindows();
    });
    watch->start(10);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(useProgram)
