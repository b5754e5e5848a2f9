// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "export/sheetformat.h"

#include <QtTest/QtTest>

using namespace kor;

class tst_SheetFormat : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void masksOfNumbers_data();
    void masksOfNumbers();
    void dates();
    void namesOfSheets_data();
    void namesOfSheets();
};

void tst_SheetFormat::masksOfNumbers_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("format");
    // clang-format off
    QTest::newRow("picture")                    << "#,##0.00"           << "#,##0.00";
    QTest::newRow("per cent")                   << "0.0%"               << "0.0%";
    QTest::newRow("exponent")                   << "0.00E+00"           << "0.00E+00";
    QTest::newRow("letters are quoted")         << "0.00 zł"            << "0.00\\ \\z\\ł";
    QTest::newRow("quoted text stays quoted")   << "0 \"szt.\""         << "0\\ \"szt.\"";
    QTest::newRow("escaped character")          << "0\\#"               << "0\\#";
    QTest::newRow("sections")                   << "0;(0);\"brak\""     << "0;\\(0\\);\"brak\"";
    QTest::newRow("section for Null is left")   << "0;-0;0;\"-\""       << "0;\\-0;0";
    QTest::newRow("empty sections are filled")  << "0.0;;"              << "0.0;-0.0;0.0";
    QTest::newRow("Standard")                   << "Standard"           << "#,##0.00";
    QTest::newRow("Percent")                    << "percent"            << "0.00%";
    QTest::newRow("Currency")                   << "Currency"           << "#,##0.00\" zł\";\"-\"#,##0.00\" zł\"";
    QTest::newRow("Yes/No")                     << "Yes/No"             << "\"Tak\";\"Tak\";\"Nie\"";
    QTest::newRow("no mask")                    << ""                   << "General";
    QTest::newRow("General Number")             << "General Number"     << "General";
    QTest::newRow("a mask of texts")            << "@@@"                << "General";
    QTest::newRow("a mask of dates")            << "dd.mm.yyyy"         << "General";
    // clang-format on
}

void tst_SheetFormat::masksOfNumbers()
{
    QFETCH(const QString, mask);
    Locale locale = Locale::polish();
    locale.currencyPositive.replace(QChar(0xa0), u' ');
    locale.currencyNegative.replace(QChar(0xa0), u' ');
    QTEST(sheetFormatOfNumbers(mask, locale), "format");
}

void tst_SheetFormat::dates()
{
    QCOMPARE(sheetFormatOfDates(Locale::polish(), false), QStringLiteral("dd\\.mm\\.yyyy"));
    QCOMPARE(sheetFormatOfDates(Locale::english(), true), QStringLiteral("m\\/d\\/yyyy hh:mm:ss"));
}

void tst_SheetFormat::namesOfSheets_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("name");
    // clang-format off
    QTest::newRow("plain")               << "Pozycje"                     << "Pozycje";
    QTest::newRow("forbidden signs")     << "ZAM/2026/1 [a]:*?\\"         << "ZAM 2026 1 a";
    QTest::newRow("too long")            << QString(40, u'a')             << QString(31, u'a');
    QTest::newRow("apostrophes outside") << "'a'b'"                       << "a'b";
    QTest::newRow("nothing is left")     << "//"                          << "";
    // clang-format on
}

void tst_SheetFormat::namesOfSheets()
{
    QFETCH(const QString, wanted);
    QTEST(sheetName(wanted), "name");
}

QTEST_MAIN(tst_SheetFormat)
#include "tst_sheetformat.moc"
