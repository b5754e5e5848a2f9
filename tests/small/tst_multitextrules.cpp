// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/multitextrules.h"

#include <QtTest/QtTest>

using namespace kor;

//! Where the pop-up editor goes, and what its keys do.
class tst_MultiTextRules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void popupIsPlaced_data();
    void popupIsPlaced();
    void popupIsAboveExactlyWhereTheScreenEnds();
    void popupOfTheControlsWidthIsNeverShifted();
    void keysAreAnswered_data();
    void keysAreAnswered();
};

void tst_MultiTextRules::popupIsPlaced_data()
{
    QTest::addColumn<QRect>("control");
    QTest::addColumn<QSize>("popup");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("place");
    const QRect one(0, 0, 1000, 800);
    const QRect right(1000, -200, 1000, 800); // a second screen, to the right and higher
    // clang-format off
    QTest::newRow("below in the middle")              << QRect(300, 300, 200, 25)  << QSize(200, 125) << one   << QPoint(300, 325);
    QTest::newRow("below at the top edge")            << QRect(300, 0, 200, 25)    << QSize(200, 125) << one   << QPoint(300, 25);
    QTest::newRow("below, just fitting")              << QRect(300, 650, 200, 25)  << QSize(200, 125) << one   << QPoint(300, 675);
    QTest::newRow("above, one too low")               << QRect(300, 651, 200, 25)  << QSize(200, 125) << one   << QPoint(300, 526);
    QTest::newRow("above at the bottom edge")         << QRect(300, 775, 200, 25)  << QSize(200, 125) << one   << QPoint(300, 650);
    QTest::newRow("above, though over the top")       << QRect(300, 400, 200, 25)  << QSize(200, 500) << one   << QPoint(300, -100);
    QTest::newRow("left of the left edge")            << QRect(-50, 300, 200, 25)  << QSize(200, 125) << one   << QPoint(-50, 325);
    QTest::newRow("wider, fitting")                   << QRect(700, 300, 200, 25)  << QSize(300, 125) << one   << QPoint(700, 325);
    QTest::newRow("wider, one too far right")         << QRect(701, 300, 200, 25)  << QSize(300, 125) << one   << QPoint(601, 325);
    QTest::newRow("wider, right edge")                << QRect(800, 300, 200, 25)  << QSize(300, 125) << one   << QPoint(700, 325);
    QTest::newRow("narrower, over the right edge")    << QRect(950, 300, 200, 25)  << QSize(150, 125) << one   << QPoint(900, 325);
    QTest::newRow("same width, over the right edge")  << QRect(900, 300, 200, 25)  << QSize(200, 125) << one   << QPoint(900, 325);
    QTest::newRow("corner at the bottom right")       << QRect(800, 775, 200, 25)  << QSize(300, 125) << one   << QPoint(700, 650);
    QTest::newRow("no height")                        << QRect(300, 775, 200, 25)  << QSize(200, 0)   << one   << QPoint(300, 800);
    QTest::newRow("second screen, below")             << QRect(1300, 100, 200, 25) << QSize(200, 125) << right << QPoint(1300, 125);
    QTest::newRow("second screen, above")             << QRect(1300, 560, 200, 25) << QSize(200, 125) << right << QPoint(1300, 435);
    QTest::newRow("second screen, higher top")        << QRect(1300, -200, 200, 25)<< QSize(200, 125) << right << QPoint(1300, -175);
    QTest::newRow("second screen, right edge")        << QRect(1800, 100, 200, 25) << QSize(300, 125) << right << QPoint(1700, 125);
    // clang-format on
}

void tst_MultiTextRules::popupIsPlaced()
{
    QFETCH(QRect, control);
    QFETCH(QSize, popup);
    QFETCH(QRect, screen);
    QTEST(placeTextPopup(control, popup, screen), "place");
}

void tst_MultiTextRules::popupIsAboveExactlyWhereTheScreenEnds()
{
    const QRect screen(0, 0, 640, 480);
    const QSize popup(100, 120);
    for (int top = -30; top < 520; ++top) {
        const QPoint place = placeTextPopup(QRect(20, top, 100, 22), popup, screen);
        const bool fitsBelow = top + 22 + 120 <= 480;
        QCOMPARE(place.y(), fitsBelow ? top + 22 : top - 120);
    }
}

void tst_MultiTextRules::popupOfTheControlsWidthIsNeverShifted()
{
    const QRect screen(0, 0, 640, 480);
    for (int left = -200; left < 700; ++left)
        QCOMPARE(placeTextPopup(QRect(left, 20, 180, 22), QSize(180, 100), screen).x(), left);
}

void tst_MultiTextRules::keysAreAnswered_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QByteArray>("answers"); // for shift states 0 to 7; e edits, c closes, h hands back
    // clang-format off
    QTest::newRow("Escape")    << 27  << QByteArray("cccccccc");
    QTest::newRow("Tab")       << 9   << QByteArray("hhhhhhhh");
    QTest::newRow("F4")        << 115 << QByteArray("hhhheeee");
    QTest::newRow("Up")        << 38  << QByteArray("eeeeheee");
    QTest::newRow("Down")      << 40  << QByteArray("eeeeheee");
    QTest::newRow("Left")      << 37  << QByteArray("eeeeeeee");
    QTest::newRow("Enter")     << 13  << QByteArray("eeeeeeee");
    QTest::newRow("F2")        << 113 << QByteArray("eeeeeeee");
    QTest::newRow("a letter")  << 65  << QByteArray("eeeeeeee");
    // clang-format on
}

void tst_MultiTextRules::keysAreAnswered()
{
    QFETCH(int, key);
    QByteArray answers;
    for (int shift = 0; shift < 8; ++shift) {
        switch (judgePopupKey(key, shift)) {
        case PopupKeyAnswer::Edit: answers += 'e'; break;
        case PopupKeyAnswer::Close: answers += 'c'; break;
        case PopupKeyAnswer::HandBack: answers += 'h'; break;
        }
    }
    QTEST(answers, "answers");
}

QTEST_APPLESS_MAIN(tst_MultiTextRules)
#include "tst_multitextrules.moc"
