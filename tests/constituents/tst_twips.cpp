// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/twips.h"

#include <QtTest/QtTest>
#include <QtWidgets/QWidget>

#include <type_traits>

using namespace kor;

#ifndef Q_MOC_RUN // which knows no concepts
template <class One, class Other>
concept Addable = requires(One one, Other other)
{
    one + other;
};
#endif

//! Twips, and what becomes of them on a screen.
class tst_Twips : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pixelsAndTwipsAreNotMixed();
    void wholeTwipsAreTheNearest_data();
    void wholeTwipsAreTheNearest();
    void lengthsAreCalculatedWith();
    void aScreenHas1440TwipsAnInch();
    void pixelsComeBack();
};

void tst_Twips::pixelsAndTwipsAreNotMixed()
{
    static_assert(Addable<Twips, Twips>);
    static_assert(!Addable<Twips, int>);
    static_assert(!Addable<int, Twips>);
    static_assert(!std::is_convertible_v<int, Twips>);
    static_assert(!std::is_convertible_v<Twips, int>);
}

void tst_Twips::wholeTwipsAreTheNearest_data()
{
    QTest::addColumn<double>("count");
    QTest::addColumn<int>("whole");
    // clang-format off
    QTest::newRow("nothing")           <<   0.0 <<   0;
    QTest::newRow("below the half")    <<  14.4 <<  14;
    QTest::newRow("half")              <<  14.5 <<  15;
    QTest::newRow("half to the left")  << -14.5 << -15;
    QTest::newRow("whole to the left") << -15.0 << -15;
    // clang-format on
}

void tst_Twips::wholeTwipsAreTheNearest()
{
    QFETCH(double, count);
    QFETCH(int, whole);
    QCOMPARE(Twips(count).rounded(), whole);
}

void tst_Twips::lengthsAreCalculatedWith()
{
    Twips right = Twips(100) + Twips(30) - Twips(10);
    right += Twips(5);
    right -= Twips(1);
    QCOMPARE(right.count(), 124.0);
    QCOMPARE((Twips(3) * 2.5).count(), 7.5);
    QCOMPARE((2 * -Twips(3)).count(), -6.0);
    QVERIFY(Twips(30) < Twips(31));
    QVERIFY(Twips(30) == Twips(30.0));
}

void tst_Twips::aScreenHas1440TwipsAnInch()
{
    const QWidget widget;
    QCOMPARE(toTwipsX(&widget, widget.logicalDpiX()), Twips(1440));
    QCOMPARE(toTwipsY(&widget, widget.logicalDpiY()), Twips(1440));
    QCOMPARE(toPixelsX(&widget, Twips(1440)), widget.logicalDpiX());
    QCOMPARE(toPixelsY(&widget, Twips(-720)), -widget.logicalDpiY() / 2);
}

void tst_Twips::pixelsComeBack()
{
    const QWidget widget;
    for (int pixels = -3; pixels < 2000; ++pixels)
        QCOMPARE(toPixelsX(&widget, Twips(toTwipsX(&widget, pixels).rounded())), pixels);
}

QTEST_MAIN(tst_Twips)
#include "tst_twips.moc"
