// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Convert>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QTest>

class tst_Val : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void reads_data();
    void reads();
    void overflows_data();
    void overflows();
    void readsFormattedNumbersUpToTheirFirstSeparator();
};

void tst_Val::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");
    const auto row = [](const char *name, const char16_t *text, double expected) {
        QTest::newRow(name) << QString::fromUtf16(text) << expected;
    };
    // clang-format off
    row("nothing",                          u"",                0);
    row("blanks only",                      u"   ",             0);
    row("no number",                        u"abc",             0);
    row("whole number",                     u"42",              42);
    row("number before a word",             u"12 sztuk",        12);
    row("decimal point",                    u"1.5",             1.5);
    row("comma ends the number",            u"1,5",             1);
    row("no digit before the point",        u".5",              0.5);
    row("no digit behind the point",        u"5.",              5);
    row("point alone",                      u".",               0);
    row("second point ends the number",     u"1.2.3",           1.2);
    row("minus",                            u"-3",              -3);
    row("plus",                             u"+3",              3);
    row("minus alone",                      u"-",               0);
    row("second sign ends it",              u"--3",             0);
    row("minus between digits",             u"1-2",             1);
    row("blanks are skipped everywhere",    u" 1 615 1.5",      16151.5);
    row("tab and line feed are blanks",     u"1\t2\n3",         123);
    row("no-break blank is none",           u"1\u00a0234",      1);
    row("blank after the sign",             u"- 5",             -5);
    row("exponent",                         u"1e3",             1000);
    row("capital exponent",                 u"1E3",             1000);
    row("exponent of a Double",             u"1d3",             1000);
    row("negative exponent",                u"25e-2",           0.25);
    row("blanks around the exponent",       u"1 e + 3",         1000);
    row("exponent without digits",          u"7e",              7);
    row("exponent with a sign only",        u"7e+",             7);
    row("exponent before any digit",        u"e3",              0);
    row("hexadecimal",                      u"&HFF",            255);
    row("hexadecimal in small letters",     u"&hff",            255);
    row("octal",                            u"&O17",            15);
    row("16 bits carry a sign",             u"&HFFFF",          -1);
    row("lowest of 16 bits",                u"&H8000",          -32768);
    row("& makes it a Long",                u"&HFFFF&",         65535);
    row("17 bits",                          u"&H10000",         65536);
    row("32 bits carry a sign",             u"&HFFFFFFFF",      -1);
    row("octal of 32 bits",                 u"&O37777777777",   -1);
    row("ends at a foreign digit",          u"&O18",            1);
    row("& alone",                          u"&",               0);
    row("& and a number",                   u"&5",              0);
    row("bracket",                          u"(5)",             0);
    row("currency sign",                    u"$5",              0);
    row("percent sign behind",              u"5%",              5);
    row("many digits",                      u"123456789012345678901234567890", 123456789012345678901234567890.0);
    row("many decimals",                    u"0.1234567890123456789012345",    0.1234567890123456789012345);
    row("tiny is zero",                     u"1e-400",          0);
    row("largest",                          u"1.7976931348623157e308", 1.7976931348623157e308);
    row("a run of hashes is no number",     u"#####",           0);
    // clang-format on
}

void tst_Val::reads()
{
    QFETCH(QString, text);
    QFETCH(double, expected);
    const double got = kor::Val(text);
    QVERIFY2(got == expected, qPrintable(QString::number(got, 'g', 17)));
    QVERIFY(!std::signbit(got) || expected < 0);
}

void tst_Val::overflows_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("exponent too large") << QStringLiteral("1e400");
    QTest::newRow("exponent of ten digits") << QStringLiteral("1e9999999999");
    QTest::newRow("too many digits") << QString(400, u'9');
    QTest::newRow("33 bits") << QStringLiteral("&H1FFFFFFFF");
}

void tst_Val::overflows()
{
    QFETCH(QString, text);
    try {
        (void)kor::Val(text);
        QFAIL("no error was raised");
    } catch (const kor::RunTimeError &error) {
        QCOMPARE(error.number(), 6);
    }
}

void tst_Val::readsFormattedNumbersUpToTheirFirstSeparator()
{
    QCOMPARE(kor::Val(QStringLiteral("1\u00a0234,00")), 1.0);
    QCOMPARE(kor::Val(QStringLiteral("0,70")), 0.0);
}

QTEST_GUILESS_MAIN(tst_Val)
#include "tst_val.moc"
