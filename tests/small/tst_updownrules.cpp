// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/updownrules.h"

#include <KorDaoUC/Locale>

#include <QtTest/QtTest>

#include <limits>

using namespace kor;

//! The numbers of a spin field: reading the text, clamping on leaving, stepping.
class tst_UpDownRules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void textIsReadAsAWholeNumber_data();
    void textIsReadAsAWholeNumber();
    void leavingClampsTheText_data();
    void leavingClampsTheText();
    void leavingNeverLeavesANumberOutside();
    void stepsStopAtTheEnds_data();
    void stepsStopAtTheEnds();
    void valuesBelowOneAreZero();
};

void tst_UpDownRules::textIsReadAsAWholeNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fits");
    QTest::addColumn<int>("number");
    // clang-format off
    QTest::newRow("digits")                         << QStringLiteral("25")           << true  << 25;
    QTest::newRow("nothing")                        << QString()                      << true  << 0;
    QTest::newRow("letters")                        << QStringLiteral("abc")          << true  << 0;
    QTest::newRow("digits before letters")          << QStringLiteral("12 szt.")      << true  << 12;
    QTest::newRow("letters before digits")          << QStringLiteral("Text1")        << true  << 0;
    QTest::newRow("blanks between digits")          << QStringLiteral("1 234")        << true  << 1234;
    QTest::newRow("minus")                          << QStringLiteral("-7")           << true  << -7;
    QTest::newRow("half down to even")              << QStringLiteral("2.5")          << true  << 2;
    QTest::newRow("half up to even")                << QStringLiteral("3.5")          << true  << 4;
    QTest::newRow("half of a minus to even")        << QStringLiteral("-2.5")         << true  << -2;
    QTest::newRow("more than half")                 << QStringLiteral("2.51")         << true  << 3;
    QTest::newRow("a comma ends the number")        << QStringLiteral("2,9")          << true  << 2;
    QTest::newRow("exponent")                       << QStringLiteral("1e2")          << true  << 100;
    QTest::newRow("hexadecimal")                    << QStringLiteral("&H10")         << true  << 16;
    QTest::newRow("largest")                        << QStringLiteral("2147483647")   << true  << std::numeric_limits<int>::max();
    QTest::newRow("smallest")                       << QStringLiteral("-2147483648")  << true  << std::numeric_limits<int>::min();
    QTest::newRow("rounds up to the largest")       << QStringLiteral("2147483646.6") << true  << std::numeric_limits<int>::max();
    QTest::newRow("one too large")                  << QStringLiteral("2147483648")   << false << 0;
    QTest::newRow("one too small")                  << QStringLiteral("-2147483649")  << false << 0;
    QTest::newRow("far too large")                  << QStringLiteral("1e30")         << false << 0;
    QTest::newRow("too large for any number")       << QStringLiteral("1e400")        << false << 0;
    QTest::newRow("too small for any number")       << QStringLiteral("-1e400")       << false << 0;
    QTest::newRow("hexadecimal too large")          << QStringLiteral("&H123456789")  << false << 0;
    QTest::newRow("hexadecimal minus one")          << QStringLiteral("&HFFFF")       << true  << -1;
    // clang-format on
}

void tst_UpDownRules::textIsReadAsAWholeNumber()
{
    QFETCH(QString, text);
    QFETCH(bool, fits);
    QFETCH(int, number);
    const auto read = wholeNumberIn(text);
    QCOMPARE(read.has_value(), fits);
    QCOMPARE(read.value_or(0), number);
}

void tst_UpDownRules::leavingClampsTheText_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    // clang-format off
    QTest::newRow("inside stays as typed")            << 0   << 100 << QStringLiteral("050")     << QStringLiteral("050");
    QTest::newRow("above is the maximum")             << 0   << 100 << QStringLiteral("250")     << QStringLiteral("100");
    QTest::newRow("below is the minimum")             << 10  << 100 << QStringLiteral("9")       << QStringLiteral("10");
    QTest::newRow("the maximum itself")               << 0   << 100 << QStringLiteral("100")     << QStringLiteral("100");
    QTest::newRow("the minimum itself")               << 1   << 100 << QStringLiteral("1")       << QStringLiteral("1");
    QTest::newRow("letters, zero allowed")            << 0   << 100 << QStringLiteral("abc")     << QStringLiteral("abc");
    QTest::newRow("letters, from one")                << 1   << 100 << QStringLiteral("abc")     << QStringLiteral("1");
    QTest::newRow("nothing, from one")                << 1   << 100 << QString()                 << QStringLiteral("1");
    QTest::newRow("nothing, zero allowed")            << 0   << 100 << QString()                 << QString();
    QTest::newRow("half rounds down into the range")  << 0   << 10  << QStringLiteral("10.5")    << QStringLiteral("10.5");
    QTest::newRow("more than half is above")          << 0   << 10  << QStringLiteral("10.51")   << QStringLiteral("10");
    QTest::newRow("half rounds up into the range")    << 2   << 10  << QStringLiteral("1.5")     << QStringLiteral("1.5");
    QTest::newRow("half rounds down out of it")       << 1   << 10  << QStringLiteral("0.5")     << QStringLiteral("1");
    QTest::newRow("far too large")                    << 0   << 10  << QStringLiteral("1e30")    << QStringLiteral("10");
    QTest::newRow("far too small")                    << -5  << 10  << QStringLiteral("-1e30")   << QStringLiteral("-5");
    QTest::newRow("too large for any number")         << 0   << 10  << QStringLiteral("1e400")   << QStringLiteral("10");
    QTest::newRow("too small for any number")         << -5  << 10  << QStringLiteral(" -1e400") << QStringLiteral("-5");
    QTest::newRow("hexadecimal too large")            << 0   << 10  << QStringLiteral("&H123456789") << QStringLiteral("10");
    QTest::newRow("negative range")                   << -20 << -10 << QStringLiteral("3")       << QStringLiteral("-10");
    QTest::newRow("one number only")                  << 7   << 7   << QStringLiteral("8")       << QStringLiteral("7");
    QTest::newRow("bounds the wrong way round")       << 10  << 0   << QStringLiteral("5")       << QStringLiteral("0");
    // clang-format on
}

void tst_UpDownRules::leavingClampsTheText()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(QString, typed);
    QTEST(textOnLeaving(typed, {min, max, 1}), "left");
}

void tst_UpDownRules::leavingNeverLeavesANumberOutside()
{
    const SpinRange range{-30, 45, 1};
    for (int tenths = -1000; tenths <= 1000; ++tenths) {
        const QString typed = QStringLiteral("%1%2.%3")
                                  .arg(tenths < 0 ? QStringLiteral("-") : QString())
                                  .arg(qAbs(tenths) / 10)
                                  .arg(qAbs(tenths) % 10);
        const QString left = textOnLeaving(typed, range);
        QVERIFY2(range.contains(*wholeNumberIn(left)), qPrintable(typed));
        if (range.contains(*wholeNumberIn(typed)))
            QCOMPARE(left, typed);
    }
}

void tst_UpDownRules::stepsStopAtTheEnds_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("increment");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("stepped");
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    // clang-format off
    QTest::newRow("up")                      << 0        << 10      << 1       << 3           << 1  << 4;
    QTest::newRow("down")                    << 0        << 10      << 1       << 3           << -1 << 2;
    QTest::newRow("by five")                 << 0        << 100     << 5       << 3           << 1  << 8;
    QTest::newRow("three steps")             << 0        << 100     << 5       << 3           << 3  << 18;
    QTest::newRow("at the upper end")        << 0        << 10      << 1       << 10          << 1  << 10;
    QTest::newRow("at the lower end")        << 0        << 10      << 1       << 0           << -1 << 0;
    QTest::newRow("short of the upper end")  << 0        << 10      << 4       << 9           << 1  << 10;
    QTest::newRow("short of the lower end")  << 0        << 10      << 4       << 2           << -1 << 0;
    QTest::newRow("bounds swapped, up")      << 10       << 0       << 1       << 3           << 1  << 2;
    QTest::newRow("bounds swapped, down")    << 10       << 0       << 1       << 3           << -1 << 4;
    QTest::newRow("largest numbers")         << smallest << largest << largest << largest - 1 << 1  << largest;
    QTest::newRow("smallest numbers")        << smallest << largest << largest << smallest    << -1 << smallest;
    // clang-format on
}

void tst_UpDownRules::stepsStopAtTheEnds()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, increment);
    QFETCH(int, value);
    QFETCH(int, steps);
    QTEST((SpinRange{min, max, increment}.stepped(value, steps)), "stepped");
}

void tst_UpDownRules::valuesBelowOneAreZero()
{
    QCOMPARE(flooredValue(std::numeric_limits<int>::min()), 0);
    QCOMPARE(flooredValue(-5), 0);
    QCOMPARE(flooredValue(0), 0);
    QCOMPARE(flooredValue(1), 1);
    QCOMPARE(flooredValue(17), 17);
}

QTEST_APPLESS_MAIN(tst_UpDownRules)
#include "tst_updownrules.moc"
