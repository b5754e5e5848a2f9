// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/popupplace.h"

#include <QtTest/QtTest>

#include <random>

using namespace kor;

//! No pop-up leaves the screen.
class tst_PopupPlace : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void popupIsMovedOntoTheScreen_data();
    void popupIsMovedOntoTheScreen();
    void popupIsOnTheScreenWhereverItWouldBe();
};

void tst_PopupPlace::popupIsMovedOntoTheScreen_data()
{
    QTest::addColumn<QRect>("popup");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRect>("place");
    const QRect one(0, 0, 1000, 800);
    const QRect right(1000, -200, 1000, 800); // a second screen, to the right and higher
    // clang-format off
    QTest::newRow("in the middle, as it is")        << QRect(300, 300, 200, 125)     << one   << QRect(300, 300, 200, 125);
    QTest::newRow("in the corner, as it is")        << QRect(800, 675, 200, 125)     << one   << QRect(800, 675, 200, 125);
    QTest::newRow("as large as the screen")         << one                           << one   << one;
    QTest::newRow("over the top")                   << QRect(300, -1, 200, 125)      << one   << QRect(300, 0, 200, 125);
    QTest::newRow("over the bottom")                << QRect(300, 676, 200, 125)     << one   << QRect(300, 675, 200, 125);
    QTest::newRow("over the left edge")             << QRect(-50, 300, 200, 125)     << one   << QRect(0, 300, 200, 125);
    QTest::newRow("over the right edge")            << QRect(801, 300, 200, 125)     << one   << QRect(800, 300, 200, 125);
    QTest::newRow("far beyond a corner")            << QRect(9000, -9000, 200, 125)  << one   << QRect(800, 0, 200, 125);
    QTest::newRow("higher than the screen")         << QRect(300, -785900, 200, 786200) << one << QRect(300, 0, 200, 800);
    QTest::newRow("wider than the screen")          << QRect(300, 300, 1001, 125)    << one   << QRect(0, 300, 1000, 125);
    QTest::newRow("no height, below the screen")    << QRect(300, 900, 200, 0)       << one   << QRect(300, 800, 200, 0);
    QTest::newRow("second screen, over its top")    << QRect(1300, -300, 200, 125)   << right << QRect(1300, -200, 200, 125);
    QTest::newRow("second screen, over its left")   << QRect(990, 0, 200, 125)       << right << QRect(1000, 0, 200, 125);
    QTest::newRow("second screen, over its bottom") << QRect(1300, 590, 200, 125)    << right << QRect(1300, 475, 200, 125);
    // clang-format on
}

void tst_PopupPlace::popupIsMovedOntoTheScreen()
{
    QFETCH(QRect, popup);
    QFETCH(QRect, screen);
    QTEST(ontoScreen(popup, screen), "place");
}

void tst_PopupPlace::popupIsOnTheScreenWhereverItWouldBe()
{
    std::mt19937 random(4);
    const auto from = [&random](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    for (int round = 0; round < 20000; ++round) {
        const QRect screen(from(-3000, 3000), from(-3000, 3000), from(200, 4000), from(200, 3000));
        const QRect popup(from(-9000, 9000), from(-9000, 9000), from(1, 9000), from(1, 900000));
        const QRect placed = ontoScreen(popup, screen);
        QVERIFY(screen.contains(placed));
        QCOMPARE(placed.size(), popup.size().boundedTo(screen.size()));
        QCOMPARE(placed == popup, screen.contains(popup));
    }
}

QTEST_APPLESS_MAIN(tst_PopupPlace)
#include "tst_popupplace.moc"
