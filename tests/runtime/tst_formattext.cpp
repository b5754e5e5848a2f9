// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Format>
#include <KorDaoUC/Variant>

#include <QtTest/QTest>

using kor::Locale;

class tst_FormatText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void textMasks_data();
    void textMasks();
    void textsThroughOtherMasks_data();
    void textsThroughOtherMasks();
    void nothingToWrite_data();
    void nothingToWrite();
};

void tst_FormatText::textMasks_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QVariant &value, const char16_t *mask, const char16_t *expected) {
        QTest::newRow(name) << value << QString::fromUtf16(mask) << QString::fromUtf16(expected);
    };
    const QString code = QStringLiteral("ab1");
    // clang-format off
    row("as many places as characters",       code,                     u"@@@",          u"ab1");
    row("@ pads with blanks on the left",     code,                     u"@@@@@",        u"  ab1");
    row("& pads with nothing",                code,                     u"&&&&&",        u"ab1");
    row("! pads on the right",                code,                     u"!@@@@@",       u"ab1  ");
    row("text between the places",            code,                     u"@-@-@",        u"a-b-1");
    row("surplus characters follow at the end", code,                   u"@-",           u"a-b1");
    row("with ! the surplus is cut off in front", code,                 u"!@@",          u"b1");
    row("> raises letters",                   QStringLiteral("żółw"),   u">",            u"ŻÓŁW");
    row("< lowers letters",                   QStringLiteral("ABC"),    u"<@@@@",        u" abc");
    row("< lowers letters of every alphabet", QStringLiteral("Łódź ŻÓŁW ΣΑΣ ЖУК"), u"<", u"łódź żółw σασ жук");
    row("< lowers letters in their places",   QStringLiteral("ŁÓDŹ"),   u"<@@@@@@",      u"  łódź");
    row("> raises letters of every alphabet", QStringLiteral("łódź жук"), u">@",         u"ŁÓDŹ ЖУК");
    row("> makes no two letters of one",      QStringLiteral("groß ŉ ﬁ"), u">@@@@@@@@@", u" GROß ŉ ﬁ");
    row("< makes no two letters of one",      QStringLiteral("İZMİR"),  u"<@@@@@",       u"izmir");
    row("> raises letters beyond 16 bits",    QStringLiteral("\U00010428a"), u">@",      u"\U00010400A");
    row("both signs leave the letters",       QStringLiteral("aB Łódź"), u"<>@@",        u"aB Łódź");
    row("both signs in the other order",      QStringLiteral("aB"),     u">@<@",         u"aB");
    row("signs of one section only",          QStringLiteral("aB"),     u"<@@;>@@",      u"ab");
    row("a quoted sign is written and counts", QStringLiteral("aB"),    u"\"<\"@@",      u"<ab");
    row("the first of two quoted signs counts", QStringLiteral("aB"),   u"\"<\"@@\">\"", u"<ab>");
    row("a quoted sign and its counterpart",  QStringLiteral("aB"),     u"\"<\">@@",     u"<aB");
    row("an escaped sign only prints",        QStringLiteral("aB"),     u"\\<@@",        u"<aB");
    row("an empty text fills no places",      QString(),                u"@@@@",         u"");
    row("an empty text keeps the literals",   QString(),                u"(@@@) @@@",    u"() ");
    row("an empty text from the left",        QString(),                u"!@@@",         u"");
    row("Empty fills no places",              QVariant(),               u"@@@@",         u"");
    row("a second section fills none either", QString(),                u"@;brak @@@",   u"brak ");
    row("Null fills none in its section",     kor::null(),              u"@;brak @@@",   u"brak ");
    row("an empty first section",             code,                     u";@@@",         u"ab1");
    row("an empty first section for no text", QString(),                u";x@@@",        u"x");
    row("literals keep their case",           code,                     u">\\x@@@",      u"xAB1");
    row("quoted text",                        code,                     u"\"nr \"@@@",   u"nr ab1");
    row("number",                             QVariant(-1.5),           u"@@@@@",        u" -1,5");
    row("date",                               QVariant(QDate(1998, 1, 6)), u"@",         u"06.01.1998");
    row("empty text takes the second section",QString(),                u"@@;brak",      u"brak");
    row("text does not",                      code,                     u"@@@;brak",     u"ab1");
    row("Empty is an empty text",             QVariant(),               u"@@;brak",      u"brak");
    row("Null takes the second section",      kor::null(),              u"@@;brak",      u"brak");
    row("Null without one",                   kor::null(),              u"@@",           u"");
    // clang-format on
}

void tst_FormatText::textMasks()
{
    QFETCH(QVariant, value);
    QFETCH(QString, mask);
    QFETCH(QString, expected);
    QCOMPARE(kor::Format(value, mask, Locale::polish()), expected);
}

void tst_FormatText::textsThroughOtherMasks_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char16_t *value, const char16_t *mask, const char16_t *expected) {
        QTest::newRow(name) << QString::fromUtf16(value) << QString::fromUtf16(mask) << QString::fromUtf16(expected);
    };
    // clang-format off
    row("number in the locale's form",            u"1234,5",         u"#,##0.00",       u"1\u00a0234,50");
    row("number with a grouping blank",           u"1 234,5",        u"0.00",           u"1234,50");
    row("number with the currency",               u"12 zł",          u"0.00",           u"12,00");
    row("number with a foreign point stays",      u"1234.5",         u"0.00",           u"1234.5");
    row("no number stays",                        u"abc",            u"0.00",           u"abc");
    row("empty text stays",                       u"",               u"0.00",           u"");
    row("a truth value is a number to a picture", u"True",           u"0",              u"-1");
    row("hexadecimal",                            u"&HFF",           u"0",              u"255");
    row("too large a number stays",               u"1e999",          u"0",              u"1e999");
    row("a date is its serial number",            u"06.01.1998",     u"0",              u"35801");
    row("a date in another notation",             u"1998-01-06",     u"#,##0.00",       u"35\u00a0801,00");
    row("a date with a month's name",             u"6 stycznia 1998", u"0",             u"35801");
    row("a time is its part of a day",            u"18:00",          u"0.00",           u"0,75");
    row("a date with its time",                   u"06.01.1998 12:00", u"0.0",          u"35801,5");
    row("a date before day zero",                 u"29.12.1899",     u"0;(0)",          u"(1)");
    row("a date through a named format",          u"06.01.1998",     u"Standard",       u"35\u00a0801,00");
    row("a date in general form",                 u"06.01.1998",     u"General Number", u"35801");
    row("a date as an amount",                    u"06.01.1998",     u"Currency",       u"35\u00a0801,00 zł");
    row("a date is a yes",                        u"06.01.1998",     u"Yes/No",         u"Tak");
    row("a date that does not exist stays",       u"31.02.1998",     u"0",              u"31.02.1998");
    row("a number with a foreign point is no day and month", u"12.5", u"0.00",          u"12.5");
    row("a text through literals stays",          u"abc",            u"\"x\"",          u"abc");
    row("a number through literals is the literal", u"5",            u"\"x\"",          u"x");
    row("a negative number has its sign",         u"-5",             u"\"x\"",          u"-x");
    row("a number chooses its section of literals", u"-5",           u"\"x\";\"y\"",    u"y");
    row("zero chooses its own",                   u"0",              u"\"x\";\"y\";\"z\"", u"z");
    row("a truth value through literals",         u"True",           u"\"x\";\"y\"",    u"y");
    row("a date through literals is the literal", u"06.01.1998",     u"\"x\"",          u"x");
    row("a foreign number through literals stays", u"39697.11",      u"\"x\"",          u"39697.11");
    row("nothing through literals stays",         u"",               u"\"x\"",          u"");
    row("a number through a date mask is a day number", u"35801",    u"yyyy-mm-dd",     u"1998-01-06");
    row("with decimals also the time",            u"35801,75",       u"yyyy-mm-dd hh:nn", u"1998-01-06 18:00");
    row("a number is tried before a date",        u"1 234",          u"yyyy-mm-dd",     u"1903-05-18");
    row("brackets make a number",                 u"(1)",            u"yyyy-mm-dd",     u"1899-12-29");
    row("a date through a date mask",             u"06.01.1998",     u"d mmmm yyyy",    u"6 styczeń 1998");
    row("a time through a date mask",             u"18:05",          u"h.nn",           u"18.05");
    row("a truth value is no date",               u"True",           u"yyyy",           u"True");
    row("a word is no date",                      u"abc",            u"yyyy",           u"abc");
    row("nothing is no date",                     u"",               u"yyyy",           u"");
    row("a number that no Double holds is no date", u"1e400",        u"yyyy",           u"1e400");
    row("a number as a named date",               u"35801",          u"Short Date",     u"06.01.1998");
    row("a text without a mask",                  u"abc",            u"",               u"abc");
    row("a number in general form",               u"1e3",            u"General Number", u"1000");
    row("yes for a number",                       u"5",              u"Yes/No",         u"Tak");
    row("a word is neither yes nor no",           u"abc",            u"Yes/No",         u"abc");
    // clang-format on
}

void tst_FormatText::textsThroughOtherMasks()
{
    QFETCH(QString, value);
    QFETCH(QString, mask);
    QFETCH(QString, expected);
    QCOMPARE(kor::Format(value, mask, Locale::polish()), expected);
}

void tst_FormatText::nothingToWrite_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("expected");
    QTest::newRow("Null through a number mask") << kor::null() << QStringLiteral("0.00") << QString();
    QTest::newRow("Null has the fourth section") << kor::null() << QStringLiteral("0;;;brak") << QStringLiteral("brak");
    QTest::newRow("Null through a named format") << kor::null() << QStringLiteral("Currency") << QString();
    QTest::newRow("Null without a mask") << kor::null() << QString() << QString();
    QTest::newRow("a missing argument is Null")
        << kor::missing() << QStringLiteral("0;;;brak") << QStringLiteral("brak");
    QTest::newRow("a database's NULL is Null")
        << QVariant(QMetaType(QMetaType::Double)) << QStringLiteral("0.00") << QString();
    QTest::newRow("Empty through a number mask") << QVariant() << QStringLiteral("0.00") << QString();
    QTest::newRow("Empty without a mask") << QVariant() << QString() << QString();
}

void tst_FormatText::nothingToWrite()
{
    QFETCH(QVariant, value);
    QFETCH(QString, mask);
    QFETCH(QString, expected);
    QCOMPARE(kor::Format(value, mask, Locale::polish()), expected);
}

QTEST_GUILESS_MAIN(tst_FormatText)
#include "tst_formattext.moc"
