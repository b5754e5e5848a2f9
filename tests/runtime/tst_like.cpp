// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Like>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QTest>

using kor::TextComparison;

class tst_Like : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void matches_data();
    void matches();
    void textModeIgnoresCase_data();
    void textModeIgnoresCase();
    void refusesMalformedPatterns_data();
    void refusesMalformedPatterns();
    void textModeRefusesRangesThatDescendInTheAlphabet();
    void manyStarsAreNotTriedInAllWays();
};

void tst_Like::matches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("expected");
    const auto row = [](const char *name, const char16_t *text, const char16_t *pattern, bool expected) {
        QTest::newRow(name) << QString::fromUtf16(text) << QString::fromUtf16(pattern) << expected;
    };
    // clang-format off
    row("empty matches empty",                        u"",        u"",            true);
    row("empty does not match a character",           u"a",       u"",            false);
    row("star matches nothing",                       u"",        u"*",           true);
    row("star matches anything",                      u"żółw",    u"*",           true);
    row("question mark needs a character",            u"",        u"?",           false);
    row("question mark takes one",                    u"ab",      u"?",           false);
    row("hash takes a digit",                         u"7",       u"#",           true);
    row("hash takes no letter",                       u"a",       u"#",           false);
    row("hash takes no foreign digit",                u"\u0661",  u"#",           false);
    row("separators that a number field accepts",     u",",       u"[.,]",        true);
    row("letters are matched exactly",                u"Abc",     u"abc",         false);
    row("range",                                      u"m",       u"[a-z]",       true);
    row("range ends are inside",                      u"z",       u"[a-z]",       true);
    row("range is by code unit",                      u"M",       u"[a-z]",       false);
    row("several ranges",                             u"M",       u"[a-zA-Z]",    true);
    row("excluded character",                         u"5",       u"[!0-9]",      false);
    row("not excluded character",                     u"x",       u"[!0-9]",      true);
    row("exclusion still needs a character",          u"",        u"[!0-9]",      false);
    row("hyphen first is a hyphen",                   u"-",       u"[-0-9]",      true);
    row("hyphen last is a hyphen",                    u"-",       u"[0-9-]",      true);
    row("hyphen behind a range is a hyphen",          u"-",       u"[a-c-e]",     true);
    row("hyphen behind a range makes no range",       u"d",       u"[a-c-e]",     false);
    row("range from a hyphen",                        u"0",       u"[--D]",       true);
    row("range up to a hyphen",                       u"+",       u"[*--D]",      true);
    row("excluded hyphen",                            u"-",       u"[!-0-9]",     false);
    row("star in a list is a star",                   u"a*b",     u"a[*]b",       true);
    row("question mark in a list",                    u"?",       u"[?]",         true);
    row("hash in a list",                             u"#",       u"[#]",         true);
    row("opening bracket in a list",                  u"[",       u"[[]",         true);
    row("closing bracket stands for itself",          u"a]b",     u"a]b",         true);
    row("empty list is no character",                 u"7",       u"[]#",         true);
    row("empty list then bracket",                    u"]",       u"[]]",         true);
    row("lone exclamation mark in a list",            u"!",       u"[!]",         true);
    row("exclamation mark inside a list",             u"!",       u"[a!]",        true);
    row("excluded exclamation mark",                  u"!",       u"[!!]",        false);
    row("exclamation mark outside a list",            u"!",       u"!",           true);
    row("star gives back",                            u"aab",     u"*ab",         true);
    row("two stars give back",                        u"xaxbxc",  u"*a*b*c",      true);
    row("stars in order only",                        u"cba",     u"*a*b*c",      false);
    row("star at both ends",                          u"xaby",    u"*ab*",        true);
    row("letters with marks",                         u"łódź",    u"[ł]ó?ź",      true);
    row("line break is a character",                  u"a\nb",    u"a?b",         true);
    // clang-format on
}

void tst_Like::matches()
{
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    QFETCH(bool, expected);
    QCOMPARE(kor::Like(text, pattern), expected);
}

void tst_Like::textModeIgnoresCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("expected");
    QTest::newRow("letters") << QStringLiteral("ABC") << QStringLiteral("abc") << true;
    QTest::newRow("letters with marks") << QStringLiteral("ŻÓŁW") << QStringLiteral("żółw") << true;
    QTest::newRow("capital in a small range") << QStringLiteral("M") << QStringLiteral("[a-z]") << true;
    QTest::newRow("small in a capital range") << QStringLiteral("m") << QStringLiteral("[A-Z]") << true;
    QTest::newRow("excluded in the other case") << QStringLiteral("M") << QStringLiteral("[!a-z]") << false;
    QTest::newRow("range from a small letter to a capital") << QStringLiteral("m") << QStringLiteral("[a-Z]") << true;
    QTest::newRow("what lies between Z and a in code units") << QStringLiteral("_") << QStringLiteral("[A-z]") << false;
    QTest::newRow("digits are no letters") << QStringLiteral("5") << QStringLiteral("[a-z]") << false;
}

void tst_Like::textModeIgnoresCase()
{
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    QFETCH(bool, expected);
    QCOMPARE(kor::Like(text, pattern, TextComparison::Text), expected);
}

void tst_Like::refusesMalformedPatterns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("list without an end") << QStringLiteral("a") << QStringLiteral("[abc");
    QTest::newRow("list without an end, reached by no character") << QString() << QStringLiteral("x[");
    QTest::newRow("range that descends") << QStringLiteral("m") << QStringLiteral("[z-a]");
    QTest::newRow("range that descends by code unit") << QStringLiteral("m") << QStringLiteral("[a-Z]");
    QTest::newRow("excluded range that descends") << QStringLiteral("m") << QStringLiteral("[!9-0]");
}

void tst_Like::refusesMalformedPatterns()
{
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    try {
        (void)kor::Like(text, pattern);
        QFAIL("no error was raised");
    } catch (const kor::RunTimeError &error) {
        QCOMPARE(error.number(), 93);
    }
}

void tst_Like::textModeRefusesRangesThatDescendInTheAlphabet()
{
    try {
        (void)kor::Like(u"m", u"[Z-a]", TextComparison::Text);
        QFAIL("no error was raised");
    } catch (const kor::RunTimeError &error) {
        QCOMPARE(error.number(), 93);
    }
    QVERIFY(kor::Like(u"_", u"[Z-a]"));
}

void tst_Like::manyStarsAreNotTriedInAllWays()
{
    const QString text(2000, u'a');
    const QString pattern = QStringLiteral("*a").repeated(500) + QStringLiteral("*b");
    QVERIFY(!kor::Like(text, pattern));
}

QTEST_GUILESS_MAIN(tst_Like)
#include "tst_like.moc"
