// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/runtimeerrors.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Date>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtTest/QTest>

using kor::Locale;

namespace {

Locale polishIso()
{
    Locale locale = Locale::polish();
    locale.shortDatePattern = QStringLiteral("yyyy-MM-dd");
    locale.dateSeparator = u'-';
    return locale;
}

//! What CDate makes of a text that is a date, in ISO form; "-" for one that is none.
QString read(const QString &text, const Locale &locale)
{
    if (!kor::IsDate(text, locale))
        return QStringLiteral("-");
    const QVariant value = kor::CDate(text, locale);
    return value.typeId() == QMetaType::QDate ? value.toDate().toString(Qt::ISODate)
                                              : value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace

class tst_Date : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void texts_data();
    void texts();
    void textsOfLocalesThatWriteSomethingBehindTheDate_data();
    void textsOfLocalesThatWriteSomethingBehindTheDate();
    void textsWithTheNamesOfOtherLocales_data();
    void textsWithTheNamesOfOtherLocales();
    void serials_data();
    void serials();
    void dateValue();
    void dateSerial_data();
    void dateSerial();
    void otherValues();
};

void tst_Date::init()
{
    kor::Clock::setSource([] { return QDate(2003, 9, 28); });
}

void tst_Date::cleanup() { kor::Clock::setSource({}); }

void tst_Date::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("polish");
    QTest::addColumn<QString>("polishIso");
    const auto row = [](const char *name, const char16_t *text, const char *english, const char *polish,
                        const char *iso) {
        QTest::newRow(name) << QString::fromUtf16(text) << QString::fromLatin1(english) << QString::fromLatin1(polish)
                            << QString::fromLatin1(iso);
    };
    // clang-format off
    row("locale's order",                    u"1/2/1999",         "1999-01-02", "1999-02-01", "1999-01-02");
    row("year first is always understood",   u"1999-01-02",       "1999-01-02", "1999-01-02", "1999-01-02");
    row("points",                            u"31.12.1999",       "-",          "1999-12-31", "-");
    row("the other order when that fits only", u"12/31/1999",     "1999-12-31", "1999-12-31", "1999-12-31");
    row("day first when that fits only",     u"31/12/1999",       "1999-12-31", "1999-12-31", "1999-12-31");
    row("no order fits",                     u"20/20/2020",       "-",          "-",          "-");
    row("two-digit years to 2029",           u"29-12-31",         "2029-12-31", "1931-12-29", "2029-12-31");
    row("two-digit years from 1930",         u"1/1/30",           "1930-01-01", "1930-01-01", "2001-01-30");
    row("year 0 is 2000",                    u"1/1/00",           "2000-01-01", "2000-01-01", "2000-01-01");
    row("year of three digits",              u"1/1/100",          "0100-01-01", "0100-01-01", "0100-01-01");
    row("last day",                          u"9999-12-31",       "9999-12-31", "9999-12-31", "9999-12-31");
    row("leap day",                          u"2000-02-29",       "2000-02-29", "2000-02-29", "2000-02-29");
    row("no leap day",                       u"1999-02-29",       "-",          "-",          "-");
    row("no such day",                       u"31/4/1999",        "-",          "-",          "-");
    row("blanks part as well",               u"1 2 1999",         "1999-01-02", "1999-02-01", "1999-01-02");
    row("blanks around separators",          u" 1 / 2 / 1999 ",   "1999-01-02", "1999-02-01", "1999-01-02");
    row("two separators",                    u"1//2/1999",        "-",          "-",          "-");
    row("separator first",                   u"/1/2/1999",        "-",          "-",          "-");
    row("separator last",                    u"1/2/1999/",        "-",          "-",          "-");
    row("four numbers",                      u"1/2/3/4",          "-",          "-",          "-");
    row("five digits",                       u"1/2/19999",        "-",          "-",          "-");
    row("commas make a number",              u"1,2,1999",         "-",          "-",          "-");
    row("day and month of this year",        u"3/4",              "2003-03-04", "2003-04-03", "2003-03-04");
    row("day and month, other order",        u"31/3",             "2003-03-31", "2003-03-31", "2003-03-31");
    row("month and year",                    u"2/1998",           "1998-02-01", "1998-02-01", "1998-02-01");
    row("one number",                        u"1998",             "-",          "-",          "-");
    row("bare digits",                       u"980106",           "-",          "-",          "-");
    row("name without blanks around",        u"6sty1998",         "-",          "1998-01-06", "1998-01-06");
    row("Polish short name of the day without its point", u"wt, 6 sty 98", "-",    "-",          "-");
    row("Polish name in capitals",           u"15 PAŹDZIERNIKA 1998", "-",        "1998-10-15", "1998-10-15");
    row("beginning of a Polish name",        u"6 stycz 1998",     "-",          "-",          "-");
    row("English name",                      u"January 6, 1998",  "1998-01-06", "-",          "-");
    row("English short name",                u"6-Jan-98",         "1998-01-06", "-",          "-");
    row("name and year",                     u"Jan 1998",         "1998-01-01", "-",          "-");
    row("name and day",                      u"Jan 6",            "2003-01-06", "-",          "-");
    row("name and what is no day",           u"Jan 35",           "1935-01-01", "-",          "-");
    row("name alone",                        u"January",          "-",          "-",          "-");
    row("name of the day before",            u"Tuesday, January 6, 1998", "1998-01-06", "-",  "-");
    row("Polish name",                       u"6 stycznia 1998",  "-",          "1998-01-06", "1998-01-06");
    row("Polish name in the nominative",     u"6 styczeń 1998",   "-",          "1998-01-06", "1998-01-06");
    row("Polish short name",                 u"6 sty 98",         "-",          "1998-01-06", "1998-01-06");
    row("Polish short name of the day",      u"wt., 6 sty 98",    "-",          "1998-01-06", "1998-01-06");
    row("time",                              u"17:08",            "1899-12-30 17:08:00", "1899-12-30 17:08:00", "1899-12-30 17:08:00");
    row("time with seconds",                 u"17:08:06",         "1899-12-30 17:08:06", "1899-12-30 17:08:06", "1899-12-30 17:08:06");
    row("time in the afternoon",             u"5:08 PM",          "1899-12-30 17:08:00", "1899-12-30 17:08:00", "1899-12-30 17:08:00");
    row("hour alone",                        u"5p",               "1899-12-30 17:00:00", "1899-12-30 17:00:00", "1899-12-30 17:00:00");
    row("twelve at night",                   u"12:01 AM",         "1899-12-30 00:01:00", "1899-12-30 00:01:00", "1899-12-30 00:01:00");
    row("twelve at noon",                    u"12:01 PM",         "1899-12-30 12:01:00", "1899-12-30 12:01:00", "1899-12-30 12:01:00");
    row("hour beyond twelve with AM",        u"13:00 AM",         "1899-12-30 13:00:00", "1899-12-30 13:00:00", "1899-12-30 13:00:00");
    row("24 hours",                          u"24:00",            "-",          "-",          "-");
    row("60 minutes",                        u"12:60",            "-",          "-",          "-");
    row("points part a time where no date",  u"12.30",            "1899-12-30 12:30:00", "2003-12-30", "1899-12-30 12:30:00");
    row("date and time",                     u"1998-01-06 17:08", "1998-01-06 17:08:00", "1998-01-06 17:08:00", "1998-01-06 17:08:00");
    row("time and date",                     u"17:08 1998-01-06", "1998-01-06 17:08:00", "1998-01-06 17:08:00", "1998-01-06 17:08:00");
    row("date and hour",                     u"1998-01-06 5 PM",  "1998-01-06 17:00:00", "1998-01-06 17:00:00", "1998-01-06 17:00:00");
    row("time on both sides",                u"1:00 1998-01-06 2:00", "-",      "-",          "-");
    row("letter between date and time",      u"1998-01-06T17:08", "-",          "-",          "-");
    row("fractions of seconds",              u"17:08:06.123",     "-",          "-",          "-");
    row("word behind",                       u"1998-01-06 x",     "-",          "-",          "-");
    row("nothing",                           u"",                 "-",          "-",          "-");
    row("blanks",                            u"   ",              "-",          "-",          "-");
    // clang-format on
}

void tst_Date::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, english);
    QFETCH(QString, polish);
    QFETCH(QString, polishIso);
    QCOMPARE(read(text, Locale::english()), english);
    QCOMPARE(read(text, Locale::polish()), polish);
    QCOMPARE(read(text, ::polishIso()), polishIso);
}

void tst_Date::textsOfLocalesThatWriteSomethingBehindTheDate_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date");
    const auto row = [](const char *name, const char16_t *pattern, const char16_t *text, const char *date) {
        QTest::newRow(name) << QString::fromUtf16(pattern) << QString::fromUtf16(text) << QString::fromLatin1(date);
    };
    // clang-format off
    row("point behind the year",           u"d.M.yy.",         u"5.3.24.",            "2024-03-05");
    row("point and blanks",                u"yyyy. MM. dd.",   u"2024. 03. 05.",      "2024-03-05");
    row("a time behind the point",         u"yyyy. MM. dd.",   u"2024. 03. 05. 8:15", "2024-03-05 08:15:00");
    row("without the point as well",       u"d.M.yy.",         u"5.3.24",             "2024-03-05");
    row("not two of them",                 u"d.M.yy.",         u"5.3.24..",           "-");
    row("not behind two numbers",          u"d.M.yy.",         u"5.3.",               "-");
    row("not another separator",           u"d.M.yy.",         u"5.3.24/",            "-");
    row("a word behind the year",          u"d.MM.yy '\u0433'.", u"5.03.24 \u0433.",   "2024-03-05");
    row("the word alone",                  u"d.MM.yy '\u0433'.", u"\u0433.",           "-");
    row("nothing behind the date",         u"d.M.yy",          u"5.3.24.",            "-");
    // clang-format on
}

void tst_Date::textsOfLocalesThatWriteSomethingBehindTheDate()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    Locale locale = Locale::polish();
    locale.shortDatePattern = pattern;
    QTEST(read(text, locale), "date");
}

void tst_Date::textsWithTheNamesOfOtherLocales_data()
{
    QTest::addColumn<QString>("timePattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char16_t *timePattern, const char16_t *text, const char *expected) {
        QTest::newRow(name) << QString::fromUtf16(timePattern) << QString::fromUtf16(text)
                            << QString::fromLatin1(expected);
    };
    // clang-format off
    row("half of the day with points and blanks",     u"h:mm:ss tt", u"6.1.1998 5:08 p.\u00a0m.", "1998-01-06 17:08:00");
    row("half of the day in capitals",                u"h:mm:ss tt", u"5:08 P.\u00a0M.",     "1899-12-30 17:08:00");
    row("half of the day and more letters",           u"h:mm:ss tt", u"5:08 p.\u00a0m.x",    "-");
    row("half of the day first",                      u"tt h:mm:ss", u"6.1.1998 p.\u00a0m. 5:08", "1998-01-06 17:08:00");
    row("half of the day first, and the date behind", u"tt h:mm:ss", u"PM 5:08 6.1.1998",    "1998-01-06 17:08:00");
    row("both halves of the day",                     u"tt h:mm:ss", u"PM 5:08 AM",          "-");
    row("half of the day first, elsewhere",           u"h:mm:ss tt", u"PM 5:08",             "-");
    row("name that begins with digits",               u"H:mm:ss",    u"6 1月 1998",           "1998-01-06");
    row("name that holds another",                    u"H:mm:ss",    u"6 11月 1998",          "1998-11-06");
    row("narrow no-break blanks",                     u"H:mm:ss",    u"6.1.1998\u202f17:08", "1998-01-06 17:08:00");
    // clang-format on
}

void tst_Date::textsWithTheNamesOfOtherLocales()
{
    QFETCH(QString, timePattern);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    Locale locale = Locale::polish();
    locale.timePattern = timePattern;
    locale.amText = QStringLiteral("a.\u00a0m.");
    locale.pmText = QStringLiteral("p.\u00a0m.");
    locale.shortMonthNames.clear();
    for (int month = 1; month <= 12; ++month)
        locale.shortMonthNames += QStringLiteral("%1月").arg(month);
    QCOMPARE(read(text, locale), expected);
}

void tst_Date::serials_data()
{
    QTest::addColumn<double>("serial");
    QTest::addColumn<QVariant>("date");
    const auto at = [](int year, int month, int day, int hour, int minute, int second) {
        return QVariant(QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC));
    };
    // clang-format off
    QTest::newRow("day zero")                  << 0.0                << QVariant(QDate(1899, 12, 30));
    QTest::newRow("day one")                   << 1.0                << QVariant(QDate(1899, 12, 31));
    QTest::newRow("half a day")                << 0.5                << at(1899, 12, 30, 12, 0, 0);
    QTest::newRow("a day of this age")         << 36526.75           << at(2000, 1, 1, 18, 0, 0);
    QTest::newRow("first day")                 << -657434.0          << QVariant(QDate(100, 1, 1));
    QTest::newRow("last second")               << 2958465.0 + 86399.0 / 86400 << at(9999, 12, 31, 23, 59, 59);
    QTest::newRow("a time before day zero counts forward") << -1.25 << at(1899, 12, 29, 6, 0, 0);
    // clang-format on
}

void tst_Date::serials()
{
    QFETCH(double, serial);
    QFETCH(QVariant, date);
    QCOMPARE(kor::CDate(serial, Locale::polish()), date);
    QVERIFY(qAbs(kor::CDbl(date, Locale::polish()) - serial) < 1e-9);
}

void tst_Date::dateValue()
{
    const Locale polish = Locale::polish();
    QCOMPARE(kor::DateValue(QStringLiteral("31.12.1999 23:59"), polish), QDate(1999, 12, 31));
    QCOMPARE(kor::DateValue(QStringLiteral("23:59"), polish), QDate(1899, 12, 30));
    QCOMPARE(kor::DateValue(QDateTime(QDate(2003, 1, 2), QTime(7, 0)), polish), QDate(2003, 1, 2));
    QCOMPARE(errorOf([&] { return kor::DateValue(36526, polish); }), 13);
    QCOMPARE(errorOf([&] { return kor::DateValue(QString(), polish); }), 13);
    QCOMPARE(errorOf([&] { return kor::DateValue(kor::null(), polish); }), 94);
    QCOMPARE(errorOf([&] { return kor::CDate(kor::null(), polish); }), 94);
    QCOMPARE(errorOf([&] { return kor::CDate(QStringLiteral("jutro"), polish); }), 13);
    QCOMPARE(errorOf([&] { return kor::CDate(2958466, polish); }), 6);
}

void tst_Date::dateSerial_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::addColumn<QDate>("expected");
    // clang-format off
    QTest::newRow("plain")                   << 2003 << 9   << 28   << QDate(2003, 9, 28);
    QTest::newRow("two-digit year, 2000s")   << 29   << 1   << 1    << QDate(2029, 1, 1);
    QTest::newRow("two-digit year, 1900s")   << 30   << 1   << 1    << QDate(1930, 1, 1);
    QTest::newRow("month 0")                 << 2003 << 0   << 1    << QDate(2002, 12, 1);
    QTest::newRow("month 13")                << 2003 << 13  << 1    << QDate(2004, 1, 1);
    QTest::newRow("month -100")              << 1997 << -100 << 1   << QDate(1988, 8, 1);
    QTest::newRow("day 0")                   << 2000 << 3   << 0    << QDate(2000, 2, 29);
    QTest::newRow("day 366")                 << 2000 << 1   << 366  << QDate(2000, 12, 31);
    QTest::newRow("30 February")             << 1999 << 2   << 30   << QDate(1999, 3, 2);
    QTest::newRow("first")                   << 100  << 1   << 1    << QDate(100, 1, 1);
    QTest::newRow("last")                    << 9999 << 12  << 31   << QDate(9999, 12, 31);
    QTest::newRow("a day too late")          << 9999 << 12  << 32   << QDate();
    QTest::newRow("a day too early")         << 100  << 1   << 0    << QDate();
    QTest::newRow("year too late")           << 10000 << 1  << 1    << QDate();
    QTest::newRow("negative year")           << -1   << 1   << 1    << QDate();
    QTest::newRow("far too late")            << 2147483647 << 2147483647 << 2147483647 << QDate();
    QTest::newRow("far too early")           << 100  << -2147483647 << -2147483647 << QDate();
    // clang-format on
}

void tst_Date::dateSerial()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, day);
    QFETCH(QDate, expected);
    QDate got;
    const int error = errorOf([&] { return got = kor::DateSerial(year, month, day); });
    QCOMPARE(got, expected);
    QCOMPARE(error, expected.isValid() ? 0 : 5);
}

void tst_Date::otherValues()
{
    const Locale polish = Locale::polish();
    QVERIFY(kor::IsDate(QDate(2000, 1, 1), polish));
    QVERIFY(kor::IsDate(QTime(12, 0), polish));
    QVERIFY(!kor::IsDate(QDate(), polish));
    QVERIFY(!kor::IsDate(QDate(50, 1, 1), polish));
    QVERIFY(!kor::IsDate(36526, polish));
    QVERIFY(!kor::IsDate(kor::null(), polish));
    QVERIFY(!kor::IsDate(QVariant(), polish));
}

QTEST_GUILESS_MAIN(tst_Date)
#include "tst_date.moc"
