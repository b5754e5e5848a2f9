// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "export/csv.h"

#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

using namespace kor;

class tst_Csv : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void separatorOfTheCountry();
    void cellsAreQuoted_data();
    void cellsAreQuoted();
    void formulasAreGuarded_data();
    void formulasAreGuarded();
    void valuesAreWritten_data();
    void valuesAreWritten();
    void aWholeFile();
    void progressStopsIt();
};

void tst_Csv::separatorOfTheCountry()
{
    QCOMPARE(listSeparator(Locale::polish()), QChar(u';'));
    QCOMPARE(listSeparator(Locale::german()), QChar(u';'));
    QCOMPARE(listSeparator(Locale::english()), QChar(u','));
}

void tst_Csv::cellsAreQuoted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cell");
    // clang-format off
    QTest::newRow("plain text stays")            << "Żółta gaśnica"  << "Żółta gaśnica";
    QTest::newRow("nothing stays nothing")       << ""               << "";
    QTest::newRow("separator")                   << "a;b"            << "\"a;b\"";
    QTest::newRow("another country's separator") << "a,b"            << "a,b";
    QTest::newRow("quotes are doubled")          << "rura 3\" cala"  << "\"rura 3\"\" cala\"";
    QTest::newRow("line break is kept")          << "a\nb"           << "\"a\nb\"";
    QTest::newRow("both kinds of line break")    << "a\r\nb"         << "\"a\r\nb\"";
    QTest::newRow("tab")                         << "a\tb"           << "\"a\tb\"";
    QTest::newRow("blank in front")              << " a"             << "\" a\"";
    QTest::newRow("blank behind")                << "a "             << "\"a \"";
    QTest::newRow("leading zeros stay")          << "00123"          << "00123";
    // clang-format on
}

void tst_Csv::cellsAreQuoted()
{
    QFETCH(const QString, text);
    QTEST(csvCell(text, u';'), "cell");
}

void tst_Csv::formulasAreGuarded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("guarded");
    // clang-format off
    QTest::newRow("equals sign")           << "=1+1"         << "'=1+1";
    QTest::newRow("at sign")               << "@SUM(A1)"     << "'@SUM(A1)";
    QTest::newRow("plus")                  << "+48 (22) 12"  << "'+48 (22) 12";
    QTest::newRow("dash before a word")    << "- rabat"      << "'- rabat";
    QTest::newRow("blank before the sign") << " =1"          << "' =1";
    QTest::newRow("tab before the sign")   << "\t=1"         << "'\t=1";
    QTest::newRow("break before the sign") << "\n=1"         << "'\n=1";
    QTest::newRow("hard blank before it")  << "\u00a0=1"     << "'\u00a0=1";
    QTest::newRow("negative number")       << "-5,50"        << "-5,50";
    QTest::newRow("sign inside")           << "a=b"          << "a=b";
    QTest::newRow("apostrophe stays one")  << "'=1"          << "'=1";
    QTest::newRow("nothing")               << ""             << "";
    // clang-format on
}

void tst_Csv::formulasAreGuarded()
{
    QFETCH(const QString, text);
    QTEST(csvText(text, CsvFormulas::Guard, Locale::polish()), "guarded");
    QCOMPARE(csvText(text, CsvFormulas::Keep, Locale::polish()), text);
}

void tst_Csv::valuesAreWritten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("number without grouping") << QVariant(1234.5)             << "1234,5";
    QTest::newRow("negative number is one")  << QVariant(-0.25)              << "-0,25";
    QTest::newRow("whole number")            << QVariant(7)                  << "7";
    QTest::newRow("date")                    << QVariant(QDate(2026, 2, 1))  << "01.02.2026";
    QTest::newRow("Null")                    << null()                       << "";
    QTest::newRow("never given")             << QVariant()                   << "";
    // clang-format on
}

void tst_Csv::valuesAreWritten()
{
    QFETCH(const QVariant, value);
    QTEST(csvText(value, CsvFormulas::Guard, Locale::polish()), "text");
}

void tst_Csv::aWholeFile()
{
    ExportTable table;
    table.columns = {{QStringLiteral("Nr")}, {QStringLiteral("Wartość [zł]"), ExportColumn::Kind::Number}};
    table.rows = {{QStringLiteral("007"), 12.5}, {QStringLiteral("=a;b"), null()}};
    table.totals = {QStringLiteral("Razem"), 12.5};
    ExportSettings settings;
    settings.locale = Locale::polish();
    QCOMPARE(csvOf(table, settings), QByteArray("\xef\xbb\xbfNr;Wartość [zł]\r\n007;12,5\r\n\"'=a;b\";\r\n"
                                                "Razem;12,5\r\n"));
}

void tst_Csv::progressStopsIt()
{
    ExportTable table;
    constexpr int width = 100; // much to write, whatever the machine, and little to keep
    table.columns.fill({QStringLiteral("Nr")}, width);
    table.rows.fill(QList<QVariant>(width, QStringLiteral("x")), 100000);
    int asked = 0;
    ExportSettings settings;
    settings.mayGoOn = [&](qint64 done, qint64 all) {
        ++asked;
        return done > all; // never
    };
    QVERIFY(!csvOf(table, settings));
    QCOMPARE(asked, 1);
}

QTEST_MAIN(tst_Csv)
#include "tst_csv.moc"
