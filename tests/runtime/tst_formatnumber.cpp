// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Currency>
#include <KorDaoUC/Format>
#include <KorDaoUC/Variant>

#include <QtTest/QTest>

#include <limits>

using kor::Locale;

class tst_FormatNumber : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pictures_data();
    void pictures();
    void namedFormats_data();
    void namedFormats();
    void typesKeepTheirDigits_data();
    void typesKeepTheirDigits();
    void longMasksAreReadOnce();
};

void tst_FormatNumber::pictures_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("polish");
    const auto row = [](const char *name, double value, const char16_t *mask, const char16_t *english,
                        const char16_t *polish) {
        QTest::newRow(name) << value << QString::fromUtf16(mask) << QString::fromUtf16(english)
                            << QString::fromUtf16(polish);
    };
    // clang-format off
    row("the number field's mask",                    1234.567,  u"#,##0.00",         u"1,234.57",        u"1\u00a0234,57");
    row("four digits are grouped too",                1000,      u"#,##0",            u"1,000",           u"1\u00a0000");
    row("millions",                                   1234567.5, u"#,##0.0",          u"1,234,567.5",     u"1\u00a0234\u00a0567,5");
    row("zero through the mask",                      0,         u"#,##0.00",         u"0.00",            u"0,00");
    row("negative",                                   -1234.5,   u"#,##0.00",         u"-1,234.50",       u"-1\u00a0234,50");
    row("halves go away from zero",                   0.125,     u"0.00",             u"0.13",            u"0,13");
    row("negative halves too",                        -0.125,    u"0.00",             u"-0.13",           u"-0,13");
    row("halves as people write them",                1.005,     u"0.00",             u"1.01",            u"1,01");
    row("rounding carries over",                      999.995,   u"#,##0.00",         u"1,000.00",        u"1\u00a0000,00");
    row("rounding carries into no digit",             0.96,      u"#.#",              u"1.",              u"1,");
    row("nothing but zeros has no sign",              -0.001,    u"0.00",             u"0.00",            u"0,00");
    row("hash writes no zero",                        0,         u"#",                u"",                u"");
    row("hash keeps the point",                       0,         u"#.##",             u".",               u",");
    row("hash behind the point",                      1.5,       u"0.##",             u"1.5",             u"1,5");
    row("a zero holds the hashes before it",          1.2,       u"0.#0",             u"1.20",            u"1,20");
    row("zeros pad to the left",                      42,        u"0000",             u"0042",            u"0042");
    row("a hash behind a zero pads as well",          5,         u"0#",               u"05",              u"05");
    row("more digits than places",                    12345,     u"0",                u"12345",           u"12345");
    row("no places before the point",                 12.5,      u".00",              u"12.50",           u"12,50");
    row("padded zeros are grouped",                   7,         u"0,000",            u"0,007",           u"0\u00a0007");
    row("comma anywhere among the places",            1234567,   u"#,#",              u"1,234,567",       u"1\u00a0234\u00a0567");
    row("comma at the end scales",                    1234567,   u"#,##0,",           u"1,235",           u"1\u00a0235");
    row("two commas scale by a million",              1234567,   u"0,,",              u"1",               u"1");
    row("comma before the point scales",              1234567,   u"#,##0,.00",        u"1,234.57",        u"1\u00a0234,57");
    row("comma behind the decimals scales",           1234.5,    u"0.00,",            u"1.23",            u"1,23");
    row("per cent",                                   0.075,     u"0.0%",             u"7.5%",            u"7,5%");
    row("per cent before the places",                 0.5,       u"%0",               u"%50",             u"%50");
    row("escaped per cent only prints",               5,         u"0\\%",             u"5%",              u"5%");
    row("quoted per cent only prints",                5,         u"0\"%\"",           u"5%",              u"5%");
    row("text behind",                                5,         u"0\" szt.\"",       u"5 szt.",          u"5 szt.");
    row("letters that no date has need no quotes",    5,         u"0 kg",             u"5 kg",            u"5 kg");
    row("letters behind a place need none",           5,         u"0 dm",             u"5 dm",            u"5 dm");
    row("text between the digits",                    123456789, u"000-000-000",      u"123-456-789",     u"123-456-789");
    row("surplus digits go before the text",          1234567,   u"00-00",            u"12345-67",        u"12345-67");
    row("bracketed negative",                         -5,        u"0;(0)",            u"(5)",             u"(5)");
    row("bracketed negative, positive value",         5,         u"0;(0)",            u"5",               u"5");
    row("zero has its own section",                   0,         u"0;-0;brak",        u"brak",            u"brak");
    row("zero without one goes to the first",         0,         u"0.0;(0.0)",        u"0.0",             u"0,0");
    row("empty negative section",                     -5,        u"0;;\"-\"",         u"-5",              u"-5");
    row("empty zero section",                         0,         u"0;-0;",            u"0",               u"0");
    row("negative that rounds to zero in its section",-0.2,      u"0;(0)",            u"(0)",             u"(0)");
    row("small number is not the zero section's",     0.2,       u"0;-0;zero",        u"0",               u"0");
    row("empty first section",                        5,         u";-0",              u"",                u"");
    row("empty first section, negative",              -5,        u";(0)",             u"(5)",             u"(5)");
    row("empty first section, zero",                  0,         u";(0);0.0",         u"0.0",             u"0,0");
    row("two empty sections, zero",                   0,         u";;\"brak\"",       u"brak",            u"brak");
    row("two empty sections, negative",               -5,        u";;\"brak\"",       u"",                u"");
    row("quoted nothing is a section",                -5,        u"0;\"\";\"-\"",     u"",                u"");
    row("quoted nothing for zero",                    0,         u"0;-0;\"\"",        u"",                u"");
    row("semicolon in quotes",                        5,         u"0\";\"0",          u"0;5",             u"0;5");
    row("escaped semicolon",                          5,         u"0\\;0",            u"0;5",             u"0;5");
    row("sign before a prefix",                       -5,        u"$0",               u"-$5",             u"-$5");
    row("literals only",                              5,         u"\"tak\";\"nie\"",  u"tak",             u"tak");
    row("literals only, negative",                    -5,        u"\"tak\";\"nie\"",  u"nie",             u"nie");
    row("quote without an end",                       5,         u"0\"abc",           u"5abc",            u"5abc");
    row("backslash at the end",                       5,         u"0\\",              u"5",               u"5");
    row("scientific",                                 12345,     u"0.00E+00",         u"1.23E+04",        u"1,23E+04");
    row("scientific, small letter",                   12345,     u"0.0e+0",           u"1.2e+4",          u"1,2e+4");
    row("scientific without a plus",                  12345,     u"0.0E-00",          u"1.2E04",          u"1,2E04");
    row("scientific, negative exponent",              0.00012,   u"0.0E-00",          u"1.2E-04",         u"1,2E-04");
    row("scientific, three places before the point",  12345,     u"000.0E+0",         u"123.5E+2",        u"123,5E+2");
    row("scientific, rounding carries",               9.99,      u"0.0E+0",           u"1.0E+1",          u"1,0E+1");
    row("scientific zero",                            0,         u"0.00E+00",         u"0.00E+00",        u"0,00E+00");
    row("exponent without places",                    12345,     u"0.0E+",            u"1.2E+4",          u"1,2E+4");
    row("exponent without places, negative",          0.012,     u"0.0e-",            u"1.2e-2",          u"1,2e-2");
    row("no exponent to write without places",        5,         u"0E+",              u"5E+",             u"5E+");
    row("hash in the exponent",                       12345,     u"0.0E+##",          u"1.2E+4",          u"1,2E+4");
    row("hash writes no exponent of zero",            5,         u"0E+##",            u"5E+",             u"5E+");
    row("hash and zero in the exponent",              5,         u"0E+#0",            u"5E+0",            u"5E+0");
    row("hash behind a zero pads the exponent as well", 12345,   u"0E+0#",            u"1E+04",           u"1E+04");
    row("other digits of the exponent are literals",  12345,     u"0E+05",            u"1E+45",           u"1E+45");
    row("a digit in the exponent's place",            12345,     u"0E-7",             u"1E47",            u"1E47");
    row("zeros apart from the exponent are literals", 12345,     u"0E+0 00",          u"1E+4 00",         u"1E+4 00");
    row("hashes apart from it have nothing to write", 12345,     u"0E+0 ##",          u"1E+4 ",           u"1E+4 ");
    row("a second exponent is letters",               12345,     u"0E+0E+0",          u"1E+4E+0",         u"1E+4E+0");
    row("E without a sign is a letter",               5,         u"0E0",              u"0E5",             u"0E5");
    row("second point is a character",                1.5,       u"0.0.0",            u"1.5.0",           u"1,5.0");
    row("very large",                                 1e22,      u"#,##0",            u"10,000,000,000,000,000,000,000",
        u"10\u00a0000\u00a0000\u00a0000\u00a0000\u00a0000\u00a0000\u00a0000");
    row("fifteen digits count",                       0.1 + 0.2, u"0.00000000000000000", u"0.30000000000000000", u"0,30000000000000000");
    // clang-format on
}

void tst_FormatNumber::pictures()
{
    QFETCH(double, value);
    QFETCH(QString, mask);
    QFETCH(QString, english);
    QFETCH(QString, polish);
    QCOMPARE(kor::Format(value, mask, Locale::english()), english);
    QCOMPARE(kor::Format(value, mask, Locale::polish()), polish);
}

void tst_FormatNumber::namedFormats_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("polish");
    const auto row = [](const char *name, double value, const char *format, const char16_t *english,
                        const char16_t *polish) {
        QTest::newRow(name) << value << QString::fromLatin1(format) << QString::fromUtf16(english)
                            << QString::fromUtf16(polish);
    };
    // clang-format off
    row("general number",              1234.5,  "General Number", u"1234.5",      u"1234,5");
    row("general number, tiny",        1e-15,   "General Number", u"1E-15",       u"1E-15");
    row("currency",                    1234.5,  "Currency",       u"$1,234.50",   u"1\u00a0234,50 zł");
    row("negative currency",           -1234.5, "Currency",       u"($1,234.50)", u"-1\u00a0234,50 zł");
    row("currency that rounds to 0",   -0.001,  "Currency",       u"$0.00",       u"0,00 zł");
    row("one in currency",             1,       "Currency",       u"$1.00",       u"1,00 zł");
    row("fixed",                       1234.5,  "Fixed",          u"1234.50",     u"1234,50");
    row("standard",                    1234.5,  "Standard",       u"1,234.50",    u"1\u00a0234,50");
    row("percent",                     1,       "Percent",        u"100.00%",     u"100,00%");
    row("scientific",                  1234.5,  "Scientific",     u"1.23E+03",    u"1,23E+03");
    row("yes",                         0.1,     "Yes/No",         u"Yes",         u"Tak");
    row("no",                          0,       "Yes/No",         u"No",          u"Nie");
    row("true",                        -1,      "True/False",     u"True",        u"Prawda");
    row("false",                       0,       "True/False",     u"False",       u"Fałsz");
    row("on",                          5,       "On/Off",         u"On",          u"Włączone");
    row("off",                         0,       "On/Off",         u"Off",         u"Wyłączone");
    row("names in any case",           1,       "sTANDARD",       u"1.00",        u"1,00");
    row("no mask",                     0.5,     "",               u"0.5",         u"0,5");
    // clang-format on
}

void tst_FormatNumber::namedFormats()
{
    QFETCH(double, value);
    QFETCH(QString, name);
    QFETCH(QString, english);
    QFETCH(QString, polish);
    QCOMPARE(kor::Format(value, name, Locale::english()), english);
    QCOMPARE(kor::Format(value, name, Locale::polish()), polish);
}

void tst_FormatNumber::typesKeepTheirDigits_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("expected");
    const auto amount = kor::Currency::fromTenThousandths(9'223'372'036'854'775'807);
    // clang-format off
    QTest::newRow("Single has seven digits")    << QVariant(0.1F)                  << QStringLiteral("0.0000000000") << QStringLiteral("0.1000000000");
    QTest::newRow("Single rounds its half up")  << QVariant(654322.25F)            << QStringLiteral("0.00")         << QStringLiteral("654322.30");
    QTest::newRow("Currency is exact")          << QVariant::fromValue(amount)     << QStringLiteral("#,##0.0000")   << QStringLiteral("922,337,203,685,477.5807");
    QTest::newRow("Currency in general")        << QVariant::fromValue(amount)     << QStringLiteral("General Number") << QStringLiteral("922337203685477.5807");
    QTest::newRow("lowest Long")                << QVariant(int(-2147483647 - 1))  << QStringLiteral("#,##0")        << QStringLiteral("-2,147,483,648");
    QTest::newRow("64 bits")                    << QVariant(qlonglong(5'000'000'000)) << QStringLiteral("#,##0")     << QStringLiteral("5,000,000,000");
    QTest::newRow("64 bits beyond a Double")    << QVariant(qlonglong(9'007'199'254'740'993)) << QStringLiteral("#,##0.00") << QStringLiteral("9,007,199,254,740,993.00");
    QTest::newRow("64 bits in general")         << QVariant(qlonglong(-9'007'199'254'740'993)) << QStringLiteral("General Number") << QStringLiteral("-9007199254740993");
    QTest::newRow("64 bits without a mask")     << QVariant(qlonglong(9'007'199'254'740'993)) << QString() << QStringLiteral("9007199254740993");
    QTest::newRow("lowest 64 bits")             << QVariant(std::numeric_limits<qlonglong>::min()) << QStringLiteral("0;(0)") << QStringLiteral("(9223372036854775808)");
    QTest::newRow("64 bits through places of text") << QVariant(qlonglong(9'007'199'254'740'993)) << QStringLiteral("@@@@@@@@@@@@@@@@@@") << QStringLiteral("  9007199254740993");
    QTest::newRow("Byte")                       << QVariant::fromValue(uchar(200)) << QStringLiteral("0.0")          << QStringLiteral("200.0");
    QTest::newRow("True is -1")                 << QVariant(true)                  << QStringLiteral("0;(0)")        << QStringLiteral("(1)");
    QTest::newRow("date is a day number")       << QVariant(QDate(2000, 1, 1))     << QStringLiteral("0.0")          << QStringLiteral("36526.0");
    // clang-format on
}

void tst_FormatNumber::typesKeepTheirDigits()
{
    QFETCH(QVariant, value);
    QFETCH(QString, mask);
    QFETCH(QString, expected);
    QCOMPARE(kor::Format(value, mask, Locale::english()), expected);
}

void tst_FormatNumber::longMasksAreReadOnce()
{
    const auto lengthOf = [](const QString &part) {
        return kor::Format(1234.5, part.repeated(100'000), Locale::english()).size();
    };
    QCOMPARE(lengthOf(QStringLiteral("#,")), 1);
    QCOMPARE(lengthOf(QStringLiteral("\"x\";")), 1);
    QCOMPARE(lengthOf(QStringLiteral("0\\")), 100'003); // each escapes the 0 of the next
    QCOMPARE(lengthOf(QStringLiteral("a")), 100'000);
    QCOMPARE(lengthOf(QStringLiteral("t")), 20'000 * qsizetype(qstrlen("12:00:00 PM")));
    QCOMPARE(lengthOf(QStringLiteral("\"")), 0);
}

QTEST_GUILESS_MAIN(tst_FormatNumber)
#include "tst_formatnumber.moc"
