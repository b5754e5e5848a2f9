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
    row("the first of both holds",            QStringLiteral("aB"),     u"<>@@",         u"ab");
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
    row("a date is no number",                    u"06.01.1998",     u"0",              u"06.01.1998");
    row("a text through literals stays",          u"abc",            u"\"x\"",          u"abc");
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
