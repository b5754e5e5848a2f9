// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/source.h"

#include <QtTest/QtTest>

class tst_Source : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void tellsNamesFromStatements_data();
    void tellsNamesFromStatements();
    void findsTheTable_data();
    void findsTheTable();
    void excerptIsOneShortLine_data();
    void excerptIsOneShortLine();
};

void tst_Source::tellsNamesFromStatements_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("isName");
    // clang-format off
    QTest::newRow("one word is a name")                       << "Towary"                               << true;
    QTest::newRow("national letters are a name")              << "Zamówienia"                           << true;
    QTest::newRow("blanks inside belong to the name")         << "Order Details"                        << true;
    QTest::newRow("blanks around do not matter")              << "  Towary \n"                          << true;
    QTest::newRow("schema and table are a name")              << "sprzedaz.towary"                      << true;
    QTest::newRow("a name may begin like a keyword")          << "SelectedItems"                        << true;
    QTest::newRow("underscore continues the word")            << "select_1 dane"                        << true;
    QTest::newRow("a keyword alone is a name")                << "Table"                                << true;
    QTest::newRow("a quoted name stays a name")               << "\"Order Details\""                    << true;
    QTest::newRow("SELECT is a statement")                    << "SELECT * FROM Towary"                 << false;
    QTest::newRow("keywords ignore case")                     << "sElEcT 1"                             << false;
    QTest::newRow("a line break ends the keyword")            << "SELECT\nid FROM Towary"               << false;
    QTest::newRow("a star may follow at once")                << "SELECT*FROM Towary"                   << false;
    QTest::newRow("a quote may follow at once")               << "select\"id\"from t"                   << false;
    QTest::newRow("leading blanks before a statement")        << "   SELECT 1"                          << false;
    QTest::newRow("WITH is a statement")                      << "WITH x AS (SELECT 1) SELECT * FROM x" << false;
    QTest::newRow("VALUES is a statement")                    << "VALUES (1, 'a')"                      << false;
    QTest::newRow("VALUES with its bracket at once")          << "VALUES(1, 'a')"                       << false;
    QTest::newRow("a call is a statement")                    << "EXEC lista_towarow 1"                 << false;
    QTest::newRow("an update is a statement")                 << "UPDATE Towary SET cena = 0"           << false;
    QTest::newRow("brackets begin a statement")               << "(SELECT 1) UNION (SELECT 2)"          << false;
    QTest::newRow("a comment begins a statement")             << "-- lista\nSELECT 1"                   << false;
    QTest::newRow("a block comment begins a statement")       << "/* lista */ SELECT 1"                 << false;
    QTest::newRow("nothing is left to the database")          << ""                                     << false;
    // clang-format on
}

void tst_Source::tellsNamesFromStatements()
{
    QFETCH(QString, source);
    QTEST(kor::isTableName(source), "isName");
}

void tst_Source::findsTheTable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("table"); // null: none
    // clang-format off
    QTest::newRow("exact name")                        << "Towary"      << "Towary";
    QTest::newRow("exact name wins over another case") << "towary"      << "towary";
    QTest::newRow("otherwise the case does not count") << "KLIENCI"     << "klienci";
    QTest::newRow("national letters in another case")  << "zamówienia"  << "ZAMÓWIENIA";
    QTest::newRow("blanks around do not matter")       << " klienci\t"  << "klienci";
    QTest::newRow("a part is not the name")            << "klien"       << QString();
    QTest::newRow("unknown")                           << "faktury"     << QString();
    // clang-format on
}

void tst_Source::findsTheTable()
{
    QFETCH(QString, name);
    QFETCH(QString, table);
    const QStringList tables = {QStringLiteral("Towary"), QStringLiteral("towary"), QStringLiteral("klienci"),
                                QStringLiteral("ZAMÓWIENIA")};
    const std::optional<QString> found = kor::findTable(name, tables);
    QCOMPARE(found.has_value(), !table.isNull());
    QCOMPARE(found.value_or(QString()), table);
}

void tst_Source::excerptIsOneShortLine_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("excerpt");
    const QString eighty(80, u'x');
    // clang-format off
    QTest::newRow("a short one stays")          << "SELECT 1"                      << "SELECT 1";
    QTest::newRow("line breaks become a blank") << "SELECT id,\n       n\n  FROM t" << "SELECT id, n FROM t";
    QTest::newRow("eighty characters stay")     << eighty                          << eighty;
    QTest::newRow("more are cut and marked")    << eighty + QStringLiteral("x")    << QString(79, u'x') + QChar(u'…');
    QTest::newRow("nothing")                    << ""                              << "";
    // clang-format on
}

void tst_Source::excerptIsOneShortLine()
{
    QFETCH(QString, statement);
    QTEST(kor::statementExcerpt(statement), "excerpt");
}

QTEST_GUILESS_MAIN(tst_Source)
#include "tst_source.moc"
