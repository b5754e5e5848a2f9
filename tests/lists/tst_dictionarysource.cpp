// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/dictionarysource.h"

#include <QtTest/QtTest>

using namespace kor;

//! What a source is, and what an inline list holds.
class tst_DictionarySource : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void kindIsJudgedByTheFirstLetters_data();
    void kindIsJudgedByTheFirstLetters();
    void inlineListIsParsed_data();
    void inlineListIsParsed();
    void keysAreTextsAlways();
    void everyBlankAroundIsCutAndNothingElse_data();
    void everyBlankAroundIsCutAndNothingElse();
    void longListsAreParsedInOneGo();
};

void tst_DictionarySource::kindIsJudgedByTheFirstLetters_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<SourceKind>("kind");
    // clang-format off
    QTest::newRow("statement")                          << QStringLiteral("SELECT id, nazwa FROM kraje") << SourceKind::Select;
    QTest::newRow("statement in small letters")         << QStringLiteral("select 1, 2")                 << SourceKind::Select;
    QTest::newRow("statement in mixed letters")         << QStringLiteral("SeLeCt 1, 2")                 << SourceKind::Select;
    QTest::newRow("keyword alone")                      << QStringLiteral("SELECT")                      << SourceKind::Select;
    QTest::newRow("longer word that begins like it")    << QStringLiteral("SELECTED")                    << SourceKind::Select;
    QTest::newRow("line break behind the keyword")      << QStringLiteral("SELECT\n1, 2")                << SourceKind::Select;
    QTest::newRow("one letter short")                   << QStringLiteral("SELEC")                       << SourceKind::Other;
    QTest::newRow("blank before the statement")         << QStringLiteral(" SELECT 1, 2")                << SourceKind::Other;
    QTest::newRow("line break before the statement")    << QStringLiteral("\nSELECT 1, 2")               << SourceKind::Other;
    QTest::newRow("bracket before the statement")       << QStringLiteral("(SELECT 1, 2)")               << SourceKind::Other;
    QTest::newRow("long s is no S")                     << QStringLiteral("ſELECT 1, 2")                 << SourceKind::Other;
    QTest::newRow("inline list")                        << QStringLiteral("LIST 1;Tak|0;Nie")            << SourceKind::List;
    QTest::newRow("inline list in small letters")       << QStringLiteral("list a;Alfa|b;Beta")          << SourceKind::List;
    QTest::newRow("inline list in mixed letters")       << QStringLiteral("LiSt a;Alfa")                 << SourceKind::List;
    QTest::newRow("no blank behind LIST")               << QStringLiteral("LIST1;Tak")                   << SourceKind::List;
    QTest::newRow("LIST alone")                         << QStringLiteral("LIST")                        << SourceKind::List;
    QTest::newRow("table whose name begins with LIST")  << QStringLiteral("ListaKrajow")                 << SourceKind::List;
    QTest::newRow("three letters")                      << QStringLiteral("LIS")                         << SourceKind::Other;
    QTest::newRow("blank before the list")              << QStringLiteral(" LIST 1;Tak")                 << SourceKind::Other;
    QTest::newRow("i without its dot is no I")          << QStringLiteral("lıst 1;Tak")                  << SourceKind::Other;
    QTest::newRow("I with a dot is no I")               << QStringLiteral("LİST 1;Tak")                  << SourceKind::Other;
    QTest::newRow("table")                              << QStringLiteral("kraje")                       << SourceKind::Other;
    QTest::newRow("other statement")                    << QStringLiteral("UPDATE kraje SET id = 1")     << SourceKind::Other;
    QTest::newRow("common table expression")            << QStringLiteral("WITH x AS (SELECT 1) SELECT") << SourceKind::Other;
    QTest::newRow("nothing")                            << QString()                                     << SourceKind::Other;
    QTest::newRow("blanks")                             << QStringLiteral("      ")                      << SourceKind::Other;
    // clang-format on
}

void tst_DictionarySource::kindIsJudgedByTheFirstLetters()
{
    QFETCH(QString, source);
    QFETCH(SourceKind, kind);
    QVERIFY(sourceKind(source) == kind);
}

void tst_DictionarySource::inlineListIsParsed_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("entries"); // key=name, one after the other
    // clang-format off
    QTest::newRow("two entries")                        << QStringLiteral("LIST 1;Tak|0;Nie")         << QStringLiteral("1=Tak,0=Nie");
    QTest::newRow("small letters")                      << QStringLiteral("list a;Alfa|b;Beta")       << QStringLiteral("a=Alfa,b=Beta");
    QTest::newRow("bar at the end")                     << QStringLiteral("LIST 1;X|")                << QStringLiteral("1=X");
    QTest::newRow("no bar at the end")                  << QStringLiteral("LIST 1;X")                 << QStringLiteral("1=X");
    QTest::newRow("bar and blanks at the end")          << QStringLiteral("LIST 1;X|  ")              << QStringLiteral("1=X");
    QTest::newRow("two bars at the end")                << QStringLiteral("LIST 1;X||")               << QStringLiteral("1=X");
    QTest::newRow("empty entry ends the list")          << QStringLiteral("LIST 1;X||2;Y")            << QStringLiteral("1=X");
    QTest::newRow("entry without semicolon ends it")    << QStringLiteral("LIST A;Alfa|B|C;Gamma")    << QStringLiteral("A=Alfa");
    QTest::newRow("first entry without semicolon")      << QStringLiteral("LIST A|B;Beta")            << QString();
    QTest::newRow("last entry without semicolon")       << QStringLiteral("LIST A;Alfa|B")            << QStringLiteral("A=Alfa");
    QTest::newRow("bar at the beginning")               << QStringLiteral("LIST |A;Alfa")             << QString();
    QTest::newRow("second semicolon is of the name")    << QStringLiteral("LIST 1;a;b|2;c")           << QStringLiteral("1=a;b,2=c");
    QTest::newRow("empty key")                          << QStringLiteral("LIST ;Nic|1;Tak")          << QStringLiteral("=Nic,1=Tak");
    QTest::newRow("empty name")                         << QStringLiteral("LIST 1;|2;b")              << QStringLiteral("1=,2=b");
    QTest::newRow("both empty")                         << QStringLiteral("LIST ;|2;b")               << QStringLiteral("=,2=b");
    QTest::newRow("nothing behind the keyword")         << QStringLiteral("LIST")                     << QString();
    QTest::newRow("blanks behind the keyword")          << QStringLiteral("LIST    ")                 << QString();
    QTest::newRow("bar alone")                          << QStringLiteral("LIST |")                   << QString();
    QTest::newRow("semicolon alone")                    << QStringLiteral("LIST ;")                   << QStringLiteral("=");
    QTest::newRow("no blank behind the keyword")        << QStringLiteral("LIST1;Tak")                << QStringLiteral("1=Tak");
    QTest::newRow("blanks around everything")           << QStringLiteral("LIST   1 ; Tak  |  0;Nie ") << QStringLiteral("1=Tak,0=Nie");
    QTest::newRow("blanks inside a name stay")          << QStringLiteral("LIST 1;Jan  Kowalski")     << QStringLiteral("1=Jan  Kowalski");
    QTest::newRow("keys are not numbers")               << QStringLiteral("LIST 01;a|1;b|1.0;c")      << QStringLiteral("01=a,1=b,1.0=c");
    QTest::newRow("the same key twice")                 << QStringLiteral("LIST 1;a|1;b")             << QStringLiteral("1=a,1=b");
    QTest::newRow("Polish letters")                     << QStringLiteral("LIST ż;Żółw|ł;Łódź")       << QStringLiteral("ż=Żółw,ł=Łódź");
    QTest::newRow("keyword inside a name")              << QStringLiteral("LIST L;LIST|S;SELECT")     << QStringLiteral("L=LIST,S=SELECT");
    QTest::newRow("line break is no blank")             << QStringLiteral("LIST 1;a\n|2;b")           << QStringLiteral("1=a\n,2=b");
    // clang-format on
}

void tst_DictionarySource::inlineListIsParsed()
{
    QFETCH(QString, source);
    const DictionaryRows rows = parseInlineList(source);
    QCOMPARE(rows.keys.size(), rows.names.size());
    QStringList entries;
    for (qsizetype i = 0; i < rows.names.size(); ++i)
        entries << QStringLiteral("%1=%2").arg(rows.keys[i].value<QString>(), rows.names[i]);
    QTEST(entries.join(QLatin1Char(',')), "entries");
}

void tst_DictionarySource::keysAreTextsAlways()
{
    const DictionaryRows rows = parseInlineList(u"LIST 1;a|2,5;b|2024-01-01;c|True;d|;e");
    QCOMPARE(rows.keys.size(), 5);
    for (const QVariant &key : rows.keys)
        QCOMPARE(key.typeId(), int(QMetaType::QString));
    QVERIFY(rows.keys.back().isValid());
}

void tst_DictionarySource::everyBlankAroundIsCutAndNothingElse_data()
{
    QTest::addColumn<QChar>("character");
    QTest::addColumn<bool>("isCut");
    QTest::newRow("blank") << QChar(u' ') << true;
    QTest::newRow("tab") << QChar(u'\t') << false;
    QTest::newRow("line break") << QChar(u'\n') << false;
    QTest::newRow("no-break space") << QChar(0xA0) << false;
    QTest::newRow("em space") << QChar(0x2003) << false;
}

void tst_DictionarySource::everyBlankAroundIsCutAndNothingElse()
{
    QFETCH(QChar, character);
    QFETCH(bool, isCut);
    const QString around(3, character);
    const DictionaryRows rows = parseInlineList(QStringLiteral("LIST 9;x|%1k%1;%1n%1|8;y").arg(around));
    QCOMPARE(rows.names.size(), 3);
    QCOMPARE(rows.keys[1], QVariant(isCut ? QStringLiteral("k") : around + QLatin1Char('k') + around));
    QCOMPARE(rows.names[1], isCut ? QStringLiteral("n") : around + QLatin1Char('n') + around);
}

void tst_DictionarySource::longListsAreParsedInOneGo()
{
    constexpr int many = 100'000;
    QString source = QStringLiteral("LIST ");
    for (int i = 0; i < many; ++i)
        source += QStringLiteral("%1;n%1|").arg(i);
    const DictionaryRows rows = parseInlineList(source);
    QCOMPARE(rows.names.size(), many);
    QCOMPARE(rows.names.back(), QStringLiteral("n99999"));
}

QTEST_GUILESS_MAIN(tst_DictionarySource)
#include "tst_dictionarysource.moc"
