// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/colorlist.h"

#include <QtTest/QtTest>

using namespace kor;

//! The eighteen colours by name.
class tst_ColorList : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void entriesHaveTheirNamesAndColors_data();
    void entriesHaveTheirNamesAndColors();
    void theFirstEntryOfAColorIsFound_data();
    void theFirstEntryOfAColorIsFound();
};

void tst_ColorList::entriesHaveTheirNamesAndColors_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("color");
    // clang-format off
    QTest::newRow("(domyślny)")     << 0  << 1;
    QTest::newRow("Czarny")         << 1  << 0;
    QTest::newRow("Niebieski")      << 2  << 8388608;
    QTest::newRow("Zielony")        << 3  << 32768;
    QTest::newRow("Błękitny")       << 4  << 8421376;
    QTest::newRow("Czerwony")       << 5  << 128;
    QTest::newRow("Fioletowy")      << 6  << 8388736;
    QTest::newRow("Brązowy")        << 7  << 32896;
    QTest::newRow("Szary")          << 8  << 12632256;
    QTest::newRow("Ciemnoszary")    << 9  << 8421504;
    QTest::newRow("Jasnoniebieski") << 10 << 16711680;
    QTest::newRow("Jasnozielony")   << 11 << 65280;
    QTest::newRow("Turkusowy")      << 12 << 16776960;
    QTest::newRow("Jasnoczerwony")  << 13 << 255;
    QTest::newRow("Różowy")         << 14 << 16711935;
    QTest::newRow("Żółty")          << 15 << 65535;
    QTest::newRow("Biały")          << 16 << 16777215;
    QTest::newRow("Inny kolor...")  << 17 << 0;
    // clang-format on
}

void tst_ColorList::entriesHaveTheirNamesAndColors()
{
    QFETCH(int, entry);
    QCOMPARE(ColorList::names().at(entry), QString::fromUtf8(QTest::currentDataTag()));
    QTEST(ColorList().color(entry), "color");
    QCOMPARE(ColorList::names().size(), int(ColorList::count));
}

void tst_ColorList::theFirstEntryOfAColorIsFound_data()
{
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("color");
    QTest::addColumn<int>("entry");
    // clang-format off
    QTest::newRow("black is not the dialog's colour")    << 0        << 0           << 1;
    QTest::newRow("one is the default")                  << 0        << 1           << 0;
    QTest::newRow("bright red")                          << 0        << 255         << 13;
    QTest::newRow("in no entry")                         << 0        << 0x123456    << -1;
    QTest::newRow("the dialog's last")                   << 0x123456 << 0x123456    << 17;
    QTest::newRow("the dialog's last, also in the list") << 255      << 255         << 13;
    QTest::newRow("system colours are colours of their own") << 0    << -0x7FFFFFFB << -1;
    QTest::newRow("the dialog's last is a system colour") << -5      << -5          << 17;
    // clang-format on
}

void tst_ColorList::theFirstEntryOfAColorIsFound()
{
    QFETCH(int, other);
    QFETCH(int, color);
    ColorList colors;
    colors.setOther(other);
    QTEST(colors.entryOf(color).value_or(-1), "entry");
}

QTEST_APPLESS_MAIN(tst_ColorList)
#include "tst_colorlist.moc"
