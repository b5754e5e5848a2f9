// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/runtimeerrors.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtTest/QTest>

#include <limits>

using kor::Locale;

class tst_Convert : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void numericTexts_data();
    void numericTexts();
    void numericValues_data();
    void numericValues();
    void texts_data();
    void texts();
    void wholeNumbers_data();
    void wholeNumbers();
    void singles();
    void truthValues();
    void amounts();
    void errors_data();
    void errors();
};

void tst_Convert::numericTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("english"); // invalid: not numeric
    QTest::addColumn<QVariant>("polish");
    const auto row = [](const char *name, const char16_t *text, const QVariant &english, const QVariant &polish) {
        QTest::newRow(name) << QString::fromUtf16(text) << english << polish;
    };
    const QVariant no;
    // clang-format off
    row("whole number",                       u"42",           42.0,     42.0);
    row("decimal point",                      u"1.5",          1.5,      no);
    row("decimal comma",                      u"1,5",          15.0,     1.5);
    row("point first",                        u".5",           0.5,      no);
    row("comma first",                        u",5",           no,       0.5);
    row("point last",                         u"5.",           5.0,      no);
    row("comma last",                         u"5,",           5.0,      5.0);
    row("grouped by commas",                  u"1,234.5",      1234.5,   no);
    row("commas anywhere",                    u"1,2,3",        123.0,    no);
    row("grouped by a blank",                 u"1 234,5",      no,       1234.5);
    row("grouped by a no-break blank",        u"1\u00a0234",   no,       1234.0);
    row("grouping behind the decimals",       u"1.5,0",        no,       no);
    row("two decimal separators",             u"1,5,0",        150.0,    no);
    row("blanks around",                      u"  42  ",       42.0,     42.0);
    row("line break behind",                  u"42\n",         42.0,     42.0);
    row("plus",                               u"+5",           5.0,      5.0);
    row("minus",                              u"-5",           -5.0,     -5.0);
    row("minus behind",                       u"5-",           -5.0,     -5.0);
    row("blank behind the minus",             u"- 5",          -5.0,     -5.0);
    row("two signs",                          u"--5",          no,       no);
    row("sign on both sides",                 u"-5-",          no,       no);
    row("brackets",                           u"(5)",          -5.0,     -5.0);
    row("brackets without a number",          u"()",           no,       no);
    row("bracket left open",                  u"(5",           no,       no);
    row("bracket only closed",                u"5)",           no,       no);
    row("brackets and a sign",                u"(-5)",         no,       no);
    row("dollar",                             u"$5",           5.0,      no);
    row("dollar behind the sign",             u"-$5",          -5.0,     no);
    row("dollar in brackets",                 u"($5)",         -5.0,     no);
    row("zloty behind",                       u"5 zł",         no,       5.0);
    row("zloty before",                       u"zł5",          no,       5.0);
    row("zloty twice",                        u"zł5zł",        no,       no);
    row("formatted amount",                   u"1\u00a0234,50 zł", no,   1234.5);
    row("per cent",                           u"5%",           no,       no);
    row("exponent",                           u"1e3",          1000.0,   1000.0);
    row("signed exponent",                    u"1E-2",         0.01,     0.01);
    row("exponent of a Double",               u"1d3",          1000.0,   1000.0);
    row("exponent without digits",            u"1e",           no,       no);
    row("exponent with decimals",             u"1e3.5",        no,       no);
    row("blank before the exponent",          u"1 e3",         no,       no);
    row("exponent alone",                     u"e3",           no,       no);
    row("too large",                          u"1e400",        no,       no);
    row("tiny",                               u"1e-400",       0.0,      0.0);
    row("hexadecimal",                        u"&HFF",         255.0,    255.0);
    row("hexadecimal is not negative here",   u"&HFFFF",       65535.0,  65535.0);
    row("octal",                              u"&o17",         15.0,     15.0);
    row("hexadecimal without digits",         u"&H",           no,       no);
    row("hexadecimal with a foreign letter",  u"&HG",          no,       no);
    row("65 bits",                            u"&H1FFFFFFFFFFFFFFFF", no, no);
    row("empty",                              u"",             no,       no);
    row("blanks",                             u"   ",          no,       no);
    row("minus alone",                        u"-",            no,       no);
    row("separator alone",                    u",",            no,       no);
    row("word",                               u"abc",          no,       no);
    row("number and a word",                  u"5 szt.",       no,       no);
    row("a run of hashes",                    u"####",         no,       no);
    row("true",                               u"True",         no,       no);
    row("not a number",                       u"NaN",          no,       no);
    row("infinity",                           u"Infinity",     no,       no);
    row("C's hexadecimal",                    u"0x10",         no,       no);
    row("foreign digit",                      u"\u0661",       no,       no);
    row("date",                               u"1999-01-01",   no,       no);
    row("more digits than a Double has",      u"12345678901234567890123", 12345678901234567890123.0, 12345678901234567890123.0);
    // clang-format on
}

void tst_Convert::numericTexts()
{
    QFETCH(QString, text);
    QFETCH(QVariant, english);
    QFETCH(QVariant, polish);
    const auto check = [&](const Locale &locale, const QVariant &expected) {
        QCOMPARE(kor::IsNumeric(text, locale), expected.isValid());
        if (expected.isValid())
            QCOMPARE(kor::CDbl(text, locale), expected.toDouble());
        else
            QVERIFY(errorOf([&] { return kor::CDbl(text, locale); }) != 0);
    };
    check(Locale::english(), english);
    check(Locale::polish(), polish);
}

void tst_Convert::numericValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("numeric");
    QTest::newRow("Null") << kor::null() << false;
    QTest::newRow("Empty") << QVariant() << true;
    QTest::newRow("missing") << kor::missing() << false;
    QTest::newRow("Boolean") << QVariant(true) << true;
    QTest::newRow("Double") << QVariant(1.5) << true;
    QTest::newRow("Currency") << QVariant::fromValue(kor::Currency()) << true;
    QTest::newRow("64 bits") << QVariant(qulonglong(5)) << true;
    QTest::newRow("64 bits beyond a Double") << QVariant(qlonglong(9'007'199'254'740'993)) << true;
    QTest::newRow("date") << QVariant(QDate(2000, 1, 1)) << false;
    QTest::newRow("bytes of a number") << QVariant(QByteArray("12")) << true;
}

void tst_Convert::numericValues()
{
    QFETCH(QVariant, value);
    QFETCH(bool, numeric);
    QCOMPARE(kor::IsNumeric(value, Locale::polish()), numeric);
}

void tst_Convert::texts_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QVariant &value, const char16_t *expected) {
        QTest::newRow(name) << value << QString::fromUtf16(expected);
    };
    // clang-format off
    row("zero",                          0.0,                u"0");
    row("negative zero",                 -0.0,               u"0");
    row("decimals",                      -1.5,               u"-1,5");
    row("no zero is left out",           0.5,                u"0,5");
    row("fifteen digits",                1.0 / 3,            u"0,333333333333333");
    row("a rest of binary is not seen",  0.1 + 0.2,          u"0,3");
    row("fifteen whole digits",          123456789012345.0,  u"123456789012345");
    row("sixteen go scientific",         1e15,               u"1E+15");
    row("three digits of exponent",      1e100,              u"1E+100");
    row("small number in fixed form",    0.00001,            u"0,00001");
    row("smallest power in fixed form",  1e-14,              u"0,00000000000001");
    row("small goes scientific",         1e-15,              u"1E-15");
    row("too many decimals for fixed",   0.0123456789012345, u"1,23456789012345E-02");
    row("smallest",                      5e-324,             u"4,94065645841247E-324");
    row("largest",                       1.7976931348623157e308, u"1,79769313486232E+308");
    row("Single",                        0.1F,               u"0,1");
    row("Single has seven digits",       1.0F / 3,           u"0,3333333");
    row("Single, half up",               654322.25F,         u"654322,3");
    row("Single goes scientific",        1e-7F,              u"1E-07");
    row("seven whole digits",            9999999.0F,         u"9999999");
    row("eight go scientific",           12345678.0F,        u"1,234568E+07");
    row("Currency",                      QVariant::fromValue(kor::Currency::fromTenThousandths(12345)), u"1,2345");
    row("whole Currency",                QVariant::fromValue(kor::Currency::fromTenThousandths(50000)), u"5");
    row("lowest Currency",               QVariant::fromValue(kor::Currency::fromTenThousandths(std::numeric_limits<qint64>::min())), u"-922337203685477,5808");
    row("Long",                          -2147483647 - 1,    u"-2147483648");
    row("64 bits beyond a Double",       qlonglong(9'007'199'254'740'993), u"9007199254740993");
    row("lowest 64 bits",                std::numeric_limits<qlonglong>::min(), u"-9223372036854775808");
    row("64 bits that a Double holds",   qlonglong(9'007'199'254'740'992), u"9,00719925474099E+15");
    row("Byte",                          QVariant::fromValue(uchar(255)), u"255");
    row("True",                          true,               u"True");
    row("False",                         false,              u"False");
    row("Empty",                         QVariant(),         u"");
    row("date",                          QDate(1998, 1, 6),  u"06.01.1998");
    row("date and time",                 QDateTime(QDate(1998, 1, 6), QTime(17, 8, 6), Qt::UTC), u"06.01.1998 17:08:06");
    row("time",                          QTime(17, 8, 6),    u"17:08:06");
    row("text",                          QStringLiteral("  x "), u"  x ");
    row("bytes",                         QByteArray("x"),    u"x");
    // clang-format on
}

void tst_Convert::texts()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    QCOMPARE(kor::CStr(value, Locale::polish()), expected);
}

void tst_Convert::wholeNumbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("expected");
    // clang-format off
    QTest::newRow("half to even, down")        << QVariant(2.5)                        << 2;
    QTest::newRow("half to even, up")          << QVariant(3.5)                        << 4;
    QTest::newRow("negative half")             << QVariant(-2.5)                       << -2;
    QTest::newRow("below a half")              << QVariant(0.49999999)                 << 0;
    QTest::newRow("text with decimals")        << QVariant(QStringLiteral("513,7"))    << 514;
    QTest::newRow("Currency half to even")     << QVariant::fromValue(kor::Currency::fromTenThousandths(25000)) << 2;
    QTest::newRow("Currency above a half")     << QVariant::fromValue(kor::Currency::fromTenThousandths(25001)) << 3;
    QTest::newRow("negative Currency half")    << QVariant::fromValue(kor::Currency::fromTenThousandths(-35000)) << -4;
    QTest::newRow("True")                      << QVariant(true)                       << -1;
    QTest::newRow("Empty")                     << QVariant()                           << 0;
    QTest::newRow("day number")                << QVariant(QDate(1989, 9, 16))         << 32767;
    QTest::newRow("hexadecimal")               << QVariant(QStringLiteral("&H754"))    << 1876;
    QTest::newRow("lowest Integer")            << QVariant(-32768.5)                   << -32768;
    // clang-format on
}

void tst_Convert::wholeNumbers()
{
    QFETCH(QVariant, value);
    QFETCH(int, expected);
    QCOMPARE(kor::CLng(value, Locale::polish()), expected);
    QCOMPARE(int(kor::CInt(value, Locale::polish())), expected);
}

void tst_Convert::singles()
{
    const Locale polish = Locale::polish();
    QCOMPARE(kor::CSng(0.1, polish), 0.1F);
    QCOMPARE(kor::CSng(QStringLiteral("1000,5"), polish), 1000.5F);
    QCOMPARE(kor::CSng(double(std::numeric_limits<float>::max()), polish), std::numeric_limits<float>::max());
    QCOMPARE(kor::CSng(1e-60, polish), 0.0F);
}

void tst_Convert::truthValues()
{
    const Locale polish = Locale::polish();
    QVERIFY(kor::CBool(QStringLiteral("true"), polish));
    QVERIFY(kor::CBool(QStringLiteral("Prawda"), polish));
    QVERIFY(!kor::CBool(QStringLiteral("FALSE"), polish));
    QVERIFY(!kor::CBool(QStringLiteral("fałsz"), polish));
    QVERIFY(kor::CBool(QStringLiteral("0,1"), polish));
    QVERIFY(!kor::CBool(QStringLiteral("0"), polish));
    QVERIFY(kor::CBool(-5, polish));
    QVERIFY(!kor::CBool(QVariant(), polish));
}

void tst_Convert::amounts()
{
    const Locale polish = Locale::polish();
    const auto units = [&](const QVariant &value) { return kor::CCur(value, polish).tenThousandths(); };
    QCOMPARE(units(QStringLiteral("922337203685477,5807")), std::numeric_limits<qint64>::max());
    QCOMPARE(units(QStringLiteral("-922337203685477,5808")), std::numeric_limits<qint64>::min());
    QCOMPARE(units(1.00005), qint64(10001));
    QCOMPARE(units(-1.00005), qint64(-10001));
    QCOMPARE(units(1.00004999), qint64(10000));
    QCOMPARE(units(0.1F), qint64(1000));
    // A Single is rounded as it is shown, with seven digits, and halves go to the even neighbour.
    QCOMPARE(units(1.00005F), qint64(10000));
    QCOMPARE(units(1.00015F), qint64(10002));
    QCOMPARE(units(-1.00005F), qint64(-10000));
    QCOMPARE(units(-1.00015F), qint64(-10002));
    QCOMPARE(units(1.00025F), qint64(10002));
    QCOMPARE(units(1.000051F), qint64(10001));
    QCOMPARE(units(0.00005F), qint64(0));
    QCOMPARE(units(0.00015F), qint64(2));
    QCOMPARE(units(0.000051F), qint64(1));
    QCOMPARE(units(9.99995F), qint64(100000));
    QCOMPARE(units(1234567.0F), qint64(12345670000));
    QCOMPARE(units(true), qint64(-10000));
}

void tst_Convert::errors_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("number");
    const auto row = [](const char *name, const QVariant &value, const char *function, int number) {
        QTest::newRow(name) << value << QString::fromLatin1(function) << number;
    };
    // clang-format off
    row("Integer above",            32767.5,                               "CInt", 6);
    row("Integer below",            -32768.6,                              "CInt", 6);
    row("Integer of 17 bits",       QStringLiteral("&H10000"),             "CInt", 6);
    row("Integer of 16 bits wraps", QStringLiteral("&HFFFF"),              "CInt", 0);
    row("Integer of a late date",   QDate(1989, 9, 17),                    "CInt", 6);
    row("Long above",               2147483647.5,                          "CLng", 6);
    row("Long at the upper border", 2147483647.4,                          "CLng", 0);
    row("Long of 33 bits",          QStringLiteral("&H1FFFFFFFF"),         "CLng", 6);
    row("Long of a huge text",      QStringLiteral("1e400"),               "CLng", 6);
    row("Single above",             3.5e38,                                "CSng", 6);
    row("Single of a tiny text",    QStringLiteral("1e-60"),               "CSng", 6);
    row("Single of a word",         QStringLiteral("abc"),                 "CSng", 13);
    row("Double above",             QStringLiteral("1e400"),               "CDbl", 6);
    row("Double of a word",         QStringLiteral("abc"),                 "CDbl", 13);
    row("Double of nothing",        QString(),                             "CDbl", 13);
    row("Double of true",           QStringLiteral("True"),                "CDbl", 13);
    row("Boolean of a quoted word", QStringLiteral("#False#"),             "CBool", 13);
    row("Boolean of a quoted true", QStringLiteral("#TRUE#"),              "CBool", 13);
    row("Boolean of a date",        QStringLiteral("06.01.1998"),          "CBool", 13);
    row("Boolean of nothing",       QString(),                             "CBool", 13);
    row("Boolean of a huge text",   QStringLiteral("1e400"),               "CBool", 6);
    row("Boolean of a word",        QStringLiteral("tak"),                 "CBool", 13);
    row("Currency above",           922337203685478.0,                     "CCur", 6);
    row("Currency of a word",       QStringLiteral("abc"),                 "CCur", 13);
    row("Long of 64 bits",          qlonglong(9'007'199'254'740'993),      "CLng", 6);
    row("Integer of 64 bits",       qlonglong(-9'007'199'254'740'993),     "CInt", 6);
    row("Currency of 64 bits",      qlonglong(9'007'199'254'740'993),      "CCur", 6);
    row("Double of 64 bits",        qlonglong(9'007'199'254'740'993),      "CDbl", 0);
    row("Single of 64 bits",        qlonglong(9'007'199'254'740'993),      "CSng", 0);
    row("Boolean of 64 bits",       qlonglong(9'007'199'254'740'993),      "CBool", 0);
    row("text of Null",             kor::null(),                           "CStr", 94);
    row("Double of Null",           kor::null(),                           "CDbl", 94);
    row("Single of Null",           kor::null(),                           "CSng", 94);
    row("Integer of Null",          kor::null(),                           "CInt", 94);
    row("Boolean of Null",          kor::null(),                           "CBool", 94);
    row("Currency of Null",         kor::null(),                           "CCur", 94);
    row("Double of a missing one",  kor::missing(),                        "CDbl", 13);
    row("Double of a list",         QVariantList{1, 2},                    "CDbl", 13);
    row("Long of a list",           QVariantList{1},                       "CLng", 13);
    // clang-format on
}

void tst_Convert::errors()
{
    QFETCH(QVariant, value);
    QFETCH(QString, function);
    QFETCH(int, number);
    const Locale polish = Locale::polish();
    const int got = errorOf([&]() -> double {
        if (function == QStringLiteral("CStr"))
            return double(kor::CStr(value, polish).size());
        if (function == QStringLiteral("CBool"))
            return kor::CBool(value, polish);
        if (function == QStringLiteral("CInt"))
            return kor::CInt(value, polish);
        if (function == QStringLiteral("CLng"))
            return kor::CLng(value, polish);
        if (function == QStringLiteral("CSng"))
            return double(kor::CSng(value, polish));
        if (function == QStringLiteral("CCur"))
            return kor::CCur(value, polish).toDouble();
        return kor::CDbl(value, polish);
    });
    QCOMPARE(got, number);
}

QTEST_GUILESS_MAIN(tst_Convert)
#include "tst_convert.moc"
