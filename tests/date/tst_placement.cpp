// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/placement.h"

#include <QtTest/QtTest>

#include <random>

using namespace kor;

//! Where a pop-up opens beside its control.
class tst_Placement : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void popupOpens_data();
    void popupOpens();
    void popupIsOnTheScreenWheneverItFits();
};

void tst_Placement::popupOpens_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRect>("control");
    QTest::addColumn<QSize>("popup");
    QTest::addColumn<QPoint>("corner");
    const QRect screen(0, 0, 1000, 800);
    const QRect withPanel(0, 30, 1000, 770); // a panel at the top takes the first 30 rows
    const QRect second(1000, -200, 1920, 1080);
    const QRect leftOf(-1280, 0, 1280, 1024);
    const QSize size(300, 200);
    const QSize field(120, 20);
    // clang-format off
    QTest::newRow("directly below, left edges aligned") << screen << QRect({100, 100}, field) << size << QPoint(100, 120);
    QTest::newRow("upper left corner")              << screen << QRect({0, 0}, field)         << size << QPoint(0, 20);
    QTest::newRow("upper right corner")             << screen << QRect({880, 0}, field)       << size << QPoint(700, 20);
    QTest::newRow("lower left corner")              << screen << QRect({0, 780}, field)       << size << QPoint(0, 580);
    QTest::newRow("lower right corner")             << screen << QRect({880, 780}, field)     << size << QPoint(700, 580);
    QTest::newRow("right edge, just fitting")       << screen << QRect({700, 100}, field)     << size << QPoint(700, 120);
    QTest::newRow("right edge, one pixel too far")  << screen << QRect({701, 100}, field)     << size << QPoint(700, 120);
    QTest::newRow("bottom, just fitting")           << screen << QRect({100, 580}, field)     << size << QPoint(100, 600);
    QTest::newRow("bottom, one pixel too far")      << screen << QRect({100, 581}, field)     << size << QPoint(100, 381);
    QTest::newRow("half off the left edge")         << screen << QRect({-60, 100}, field)     << size << QPoint(0, 120);
    QTest::newRow("half off the right edge")        << screen << QRect({950, 100}, field)     << size << QPoint(700, 120);
    QTest::newRow("half off the bottom")            << screen << QRect({100, 790}, field)     << size << QPoint(100, 590);
    QTest::newRow("half off the top")               << screen << QRect({100, -10}, field)     << size << QPoint(100, 10);
    QTest::newRow("above the top")                  << screen << QRect({100, -50}, field)     << size << QPoint(100, 0);
    QTest::newRow("below the bottom")               << screen << QRect({100, 1100}, field)    << size << QPoint(100, 600);
    QTest::newRow("pop-up wider than the screen")   << screen << QRect({100, 100}, field)     << QSize(1200, 200) << QPoint(0, 120);
    QTest::newRow("pop-up taller than the screen")  << screen << QRect({100, 100}, field)     << QSize(300, 900) << QPoint(100, 0);
    QTest::newRow("no room below nor above")        << screen << QRect({100, 390}, field)     << QSize(300, 500) << QPoint(100, 300);
    QTest::newRow("as tall as the screen")          << screen << QRect({100, 390}, field)     << QSize(300, 800) << QPoint(100, 0);
    QTest::newRow("a tall control")                 << screen << QRect(100, 300, 120, 490)    << size << QPoint(100, 100);
    QTest::newRow("not over a panel above")         << withPanel << QRect({100, 620}, field)  << QSize(300, 600) << QPoint(100, 200);
    QTest::newRow("above, just under a panel")      << withPanel << QRect({100, 630}, field)  << QSize(300, 600) << QPoint(100, 30);
    QTest::newRow("second screen")                  << second << QRect({1100, -100}, field)   << size << QPoint(1100, -80);
    QTest::newRow("right edge of the second screen")<< second << QRect({2850, 0}, field)      << size << QPoint(2620, 20);
    QTest::newRow("left edge of the second screen") << second << QRect({950, 0}, field)       << size << QPoint(1000, 20);
    QTest::newRow("bottom of the second screen")    << second << QRect({1100, 850}, field)    << size << QPoint(1100, 650);
    QTest::newRow("screen to the left")             << leftOf << QRect({-1280, 10}, field)    << size << QPoint(-1280, 30);
    QTest::newRow("right edge of the left screen")  << leftOf << QRect({-100, 10}, field)     << size << QPoint(-300, 30);
    // clang-format on
}

void tst_Placement::popupOpens()
{
    QFETCH(QRect, screen);
    QFETCH(QRect, control);
    QFETCH(QSize, popup);
    QTEST(placePopup(screen, control, popup), "corner");
}

void tst_Placement::popupIsOnTheScreenWheneverItFits()
{
    std::mt19937 random(4);
    const auto from = [&random](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    for (int round = 0; round < 20000; ++round) {
        const QRect screen(from(-3000, 3000), from(-3000, 3000), from(200, 4000), from(200, 3000));
        const QRect control(screen.x() + from(-500, screen.width() + 500),
                            screen.y() + from(-500, screen.height() + 500), from(1, 400), from(1, 100));
        const QSize popup(from(1, screen.width()), from(1, screen.height()));
        const QRect placed(placePopup(screen, control, popup), popup);
        QVERIFY(screen.contains(placed));
        const bool isBeside = placed.top() == control.bottom() + 1 || placed.bottom() == control.top() - 1;
        const bool hasRoom =
            control.bottom() + popup.height() <= screen.bottom() || control.top() - popup.height() >= screen.top();
        if (screen.contains(control) && hasRoom)
            QVERIFY(isBeside);
    }
}

QTEST_APPLESS_MAIN(tst_Placement)
#include "tst_placement.moc"
