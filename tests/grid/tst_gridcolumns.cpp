// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridcolumns.h"
#include "support/runtimeerrors.h"

#include <QtTest/QtTest>

using namespace kor;

//! The descriptions of a grid's columns: types, numbers, growth.
class tst_GridColumns : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void typesAreKnownByTheirExactKeyword_data();
    void typesAreKnownByTheirExactKeyword();
    void theNextColumnHasTheNumber_data();
    void theNextColumnHasTheNumber();
    void tooManyColumnsOverflow_data();
    void tooManyColumnsOverflow();
    void aDescriptionIsKeptWhileOthersAreAdded();
    void columnsWithoutDescriptionHaveNoneAndAreFree();
};

void tst_GridColumns::typesAreKnownByTheirExactKeyword_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<int>("code");
    // clang-format off
    QTest::newRow("text")                  << QStringLiteral("TEXT")     << 0;
    QTest::newRow("number")                << QStringLiteral("NUMBER")   << 1;
    QTest::newRow("click")                 << QStringLiteral("CLICK")    << 2;
    QTest::newRow("combo")                 << QStringLiteral("COMBO")    << 3;
    QTest::newRow("date")                  << QStringLiteral("DATE")     << 4;
    QTest::newRow("small letters: text")   << QStringLiteral("number")   << 0;
    QTest::newRow("mixed letters: text")   << QStringLiteral("Date")     << 0;
    QTest::newRow("blank in front: text")  << QStringLiteral(" COMBO")   << 0;
    QTest::newRow("blank behind: text")    << QStringLiteral("COMBO ")   << 0;
    QTest::newRow("longer word: text")     << QStringLiteral("DATETIME") << 0;
    QTest::newRow("nothing: text")         << QString()                  << 0;
    QTest::newRow("unknown: text")         << QStringLiteral("LIST")     << 0;
    // clang-format on
}

void tst_GridColumns::typesAreKnownByTheirExactKeyword()
{
    QFETCH(QString, keyword);
    QFETCH(int, code);
    QCOMPARE(static_cast<int>(columnType(keyword)), code);
}

void tst_GridColumns::theNextColumnHasTheNumber_data()
{
    QTest::addColumn<QString>("titleOfFirst");
    QTest::addColumn<int>("columnCount");
    QTest::addColumn<int>("number");
    // clang-format off
    QTest::newRow("a fresh grid's column is used")           << QString()                << 2     << 1;
    QTest::newRow("the second stands behind the first")      << QStringLiteral("Nazwa")  << 2     << 2;
    QTest::newRow("the third behind the second")             << QStringLiteral("Nazwa")  << 3     << 3;
    QTest::newRow("a title of the program's own is kept")    << QStringLiteral("Lp.")    << 2     << 2;
    QTest::newRow("a blank is a title")                      << QStringLiteral(" ")      << 2     << 2;
    QTest::newRow("without title the first is taken again")  << QString()                << 7     << 1;
    QTest::newRow("the last one that can be counted")        << QStringLiteral("Nazwa")  << 32766 << 32766;
    // clang-format on
}

void tst_GridColumns::theNextColumnHasTheNumber()
{
    QFETCH(QString, titleOfFirst);
    QFETCH(int, columnCount);
    QTEST(GridColumns::nextNumber(titleOfFirst, columnCount), "number");
}

void tst_GridColumns::tooManyColumnsOverflow_data()
{
    QTest::addColumn<int>("columnCount");
    QTest::newRow("the count would be beyond an Integer") << 32767;
    QTest::newRow("the number would be beyond an Integer") << 32768;
    QTest::newRow("far beyond") << 1'000'000;
}

void tst_GridColumns::tooManyColumnsOverflow()
{
    QFETCH(int, columnCount);
    QCOMPARE(errorOf([&] { return GridColumns::nextNumber(QStringLiteral("Nazwa"), columnCount); }), 6);
}

void tst_GridColumns::aDescriptionIsKeptWhileOthersAreAdded()
{
    GridColumns columns;
    GridColumn price;
    price.isLocked = true;
    price.format = QStringLiteral("0.000");
    price.valueColumn = 5;
    columns.store(1, price);
    columns.store(7, {});
    QVERIFY(columns.find(1));
    QCOMPARE(*columns.find(1), price);
    QVERIFY(columns.isLocked(1));
    QVERIFY(columns.find(7));
    QVERIFY(!columns.isLocked(7));
    QCOMPARE(columns.find(7)->format, QStringLiteral("#,##0.00"));
}

void tst_GridColumns::columnsWithoutDescriptionHaveNoneAndAreFree()
{
    GridColumns columns;
    columns.store(3, {});
    for (const int number : {-1, 0, 1, 2, 4, 100}) {
        QVERIFY(!columns.find(number));
        QVERIFY(!columns.isLocked(number));
    }
}

QTEST_APPLESS_MAIN(tst_GridColumns)
#include "tst_gridcolumns.moc"
