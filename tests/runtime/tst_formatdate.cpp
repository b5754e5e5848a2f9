// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Clock>
#include <KorDaoUC/Format>
#include <KorDaoUC/RunTimeError>

#include <QtCore/QDateTime>
#include <QtCore/QScopeGuard>
#include <QtTest/QTest>

using kor::Locale;

namespace {

QDateTime moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

//! Polish with the other short pattern that systems have.
Locale polishIso()
{
    Locale locale = Locale::polish();
    locale.shortDatePattern = QStringLiteral("yyyy-MM-dd");
    locale.dateSeparator = u'-';
    return locale;
}

} // namespace

class tst_FormatDate : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pictures_data();
    void pictures();
    void namedFormats_data();
    void namedFormats();
    void otherValues_data();
    void otherValues();
    void dayNumbersBeyondTheCalendarOverflow();
    void localTimeIsNotConverted();
    void aClockMayFormatOnItsOwn();
};

void tst_FormatDate::pictures_data()
{
    QTest::addColumn<QDateTime>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("polish");
    const QDateTime morning = moment(1998, 1, 6, 9, 8, 7);     // a Tuesday
    const QDateTime evening = moment(2003, 9, 28, 21, 30, 45); // a Sunday
    const auto row = [](const char *name, const QDateTime &value, const char16_t *mask, const char16_t *english,
                        const char16_t *polish) {
        QTest::newRow(name) << value << QString::fromUtf16(mask) << QString::fromUtf16(english)
                            << QString::fromUtf16(polish);
    };
    // clang-format off
    row("day",                            morning, u"d",              u"6",                  u"6");
    row("two-digit day",                  morning, u"dd",             u"06",                 u"06");
    row("short name of the day",          morning, u"ddd",            u"Tue",                u"wt.");
    row("name of the day",                morning, u"dddd",           u"Tuesday",            u"wtorek");
    row("short date",                     morning, u"ddddd",          u"1/6/1998",           u"06.01.1998");
    row("long date",                      morning, u"dddddd",         u"Tuesday, January 06, 1998", u"6 stycznia 1998");
    row("weekday from Sunday",            morning, u"w",              u"3",                  u"3");
    row("Sunday is 1 everywhere",         evening, u"w",              u"1",                  u"1");
    row("week goes by the locale's first day", evening, u"ww",        u"40",                 u"39");
    row("month",                          morning, u"m",              u"1",                  u"1");
    row("two-digit month",                morning, u"mm",             u"01",                 u"01");
    row("short month",                    morning, u"mmm",            u"Jan",                u"sty");
    row("month alone stands in the nominative", morning, u"mmmm",     u"January",            u"styczeń");
    row("quarter",                        evening, u"q",              u"3",                  u"3");
    row("day of the year",                evening, u"y",              u"271",                u"271");
    row("two-digit year",                 evening, u"yy",             u"03",                 u"03");
    row("year",                           evening, u"yyyy",           u"2003",               u"2003");
    row("year of three digits",           moment(100, 1, 1), u"yyyy", u"100",                u"100");
    row("hour",                           morning, u"h",              u"9",                  u"9");
    row("two-digit hour",                 morning, u"hh",             u"09",                 u"09");
    row("hours run to 24",                evening, u"h",              u"21",                 u"21");
    row("minute",                         morning, u"n",              u"8",                  u"8");
    row("two-digit minute",               morning, u"nn",             u"08",                 u"08");
    row("m behind the hour is minutes",   evening, u"h:m",            u"21:30",              u"21:30");
    row("mm behind the hour is minutes",  evening, u"hh:mm:ss",       u"21:30:45",           u"21:30:45");
    row("a blank between makes no difference", evening, u"hh mm",     u"21 30",              u"21 30");
    row("mm before seconds is the month", evening, u"mm:ss",          u"09:45",              u"09:45");
    row("mm behind minutes is the month", evening, u"h:mm mm",        u"21:30 09",           u"21:30 09");
    row("second",                         morning, u"s",              u"7",                  u"7");
    row("long time",                      evening, u"ttttt",          u"9:30:45 PM",         u"21:30:45");
    row("text behind the long time",      evening, u"ttttt \"x\"",    u"9:30:45 PM x",       u"21:30:45 x");
    row("fewer than five are letters",    evening, u"ttt x d",        u"ttt x 28",           u"ttt x 28");
    row("fewer than five alone are letters", evening, u"ttt x",       u"ttt x",              u"ttt x");
    row("more than five",                 evening, u"tttttt",         u"9:30:45 PMt",        u"21:30:45t");
    row("AM/PM",                          evening, u"h:nn AM/PM",     u"9:30 PM",            u"9:30 PM");
    row("am/pm",                          evening, u"h:nn am/pm",     u"9:30 pm",            u"9:30 pm");
    row("A/P",                            evening, u"h:nn A/P",       u"9:30 P",             u"9:30 P");
    row("a/p",                            evening, u"h:nn a/p",       u"9:30 p",             u"9:30 p");
    row("AMPM",                           evening, u"h:nn AMPM",      u"9:30 PM",            u"9:30 PM");
    row("midnight is twelve",             moment(2000, 1, 1), u"h AM/PM", u"12 AM",          u"12 AM");
    row("noon is twelve",                 moment(2000, 1, 1, 12), u"h AM/PM", u"12 PM",      u"12 PM");
    row("slash is the locale's separator",morning, u"dd/mm/yyyy",     u"06/01/1998",         u"06.01.1998");
    row("escaped slash is a slash",       morning, u"dd\\/mm\\/yyyy", u"06/01/1998",         u"06/01/1998");
    row("point is a point",               morning, u"dd.mm.yyyy",     u"06.01.1998",         u"06.01.1998");
    row("tokens in capitals",             morning, u"DD-MM-YYYY",     u"06-01-1998",         u"06-01-1998");
    row("quoted text",                    morning, u"\"dnia \"d",     u"dnia 6",             u"dnia 6");
    row("escaped letter",                 morning, u"yyyy-mm-dd\\Thh:nn", u"1998-01-06T09:08", u"1998-01-06T09:08");
    row("letters that are no tokens",     morning, u"d 'x' k",        u"6 'x' k",            u"6 'x' k");
    row("date and time",                  morning, u"c",              u"1/6/1998 9:08:07 AM", u"06.01.1998 09:08:07");
    row("nothing is written behind c",    morning, u"c \"x\"",        u"1/6/1998 9:08:07 AM", u"06.01.1998 09:08:07");
    row("seconds in one piece",           morning, u"yyyymmddhhnnss", u"19980106090807",     u"19980106090807");
    // clang-format on
}

void tst_FormatDate::pictures()
{
    QFETCH(QDateTime, value);
    QFETCH(QString, mask);
    QFETCH(QString, english);
    QFETCH(QString, polish);
    QCOMPARE(kor::Format(value, mask, Locale::english()), english);
    QCOMPARE(kor::Format(value, mask, Locale::polish()), polish);
}

void tst_FormatDate::namedFormats_data()
{
    QTest::addColumn<QDateTime>("value");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("polish");
    QTest::addColumn<QString>("polishIso");
    const QDateTime noonish = moment(2000, 2, 29, 12, 34, 56);
    const auto row = [](const char *name, const QDateTime &value, const char *format, const char16_t *english,
                        const char16_t *polish, const char16_t *iso) {
        QTest::newRow(name) << value << QString::fromLatin1(format) << QString::fromUtf16(english)
                            << QString::fromUtf16(polish) << QString::fromUtf16(iso);
    };
    // clang-format off
    row("general date",                noonish,             "General Date", u"2/29/2000 12:34:56 PM", u"29.02.2000 12:34:56", u"2000-02-29 12:34:56");
    row("general date at midnight",    moment(2000, 2, 29), "General Date", u"2/29/2000",             u"29.02.2000",          u"2000-02-29");
    row("general date of a time",      moment(1899, 12, 30, 6, 5, 9), "General Date", u"6:05:09 AM",  u"06:05:09",            u"06:05:09");
    row("general date of day zero",    moment(1899, 12, 30), "General Date", u"12:00:00 AM",          u"00:00:00",            u"00:00:00");
    row("long date",                   noonish,             "Long Date",    u"Tuesday, February 29, 2000", u"29 lutego 2000", u"29 lutego 2000");
    row("medium date, first centuries", moment(100, 1, 1),  "Medium Date",  u"01-Jan-00",             u"01-sty-00",           u"01-sty-00");
    row("medium date of three digits", moment(967, 6, 15),  "Medium Date",  u"15-Jun-67",             u"15-cze-67",           u"15-cze-67");
    row("medium date",                 noonish,             "Medium Date",  u"29-Feb-00",             u"29-lut-00",           u"29-lut-00");
    row("short date",                  noonish,             "Short Date",   u"2/29/2000",             u"29.02.2000",          u"2000-02-29");
    row("long time",                   noonish,             "Long Time",    u"12:34:56 PM",           u"12:34:56",            u"12:34:56");
    row("medium time",                 noonish,             "Medium Time",  u"12:34 PM",              u"12:34 PM",            u"12:34 PM");
    row("short time",                  noonish,             "Short Time",   u"12:34",                 u"12:34",               u"12:34");
    row("slash takes the pattern's",   noonish,             "dd/mm/yyyy",   u"29/02/2000",            u"29.02.2000",          u"29-02-2000");
    row("no mask",                     noonish,             "",             u"2/29/2000 12:34:56 PM", u"29.02.2000 12:34:56", u"2000-02-29 12:34:56");
    // clang-format on
}

void tst_FormatDate::namedFormats()
{
    QFETCH(QDateTime, value);
    QFETCH(QString, name);
    QFETCH(QString, english);
    QFETCH(QString, polish);
    QFETCH(QString, polishIso);
    QCOMPARE(kor::Format(value, name, Locale::english()), english);
    QCOMPARE(kor::Format(value, name, Locale::polish()), polish);
    QCOMPARE(kor::Format(value, name, ::polishIso()), polishIso);
}

void tst_FormatDate::otherValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("expected");
    // clang-format off
    QTest::newRow("QDate")                     << QVariant(QDate(1998, 1, 6))     << QStringLiteral("dd.mm.yyyy hh:nn") << QStringLiteral("06.01.1998 00:00");
    QTest::newRow("QTime is a time of day zero") << QVariant(QTime(6, 5, 9))      << QStringLiteral("General Date") << QStringLiteral("06:05:09");
    QTest::newRow("day number")                << QVariant(36526.5)               << QStringLiteral("General Date") << QStringLiteral("01.01.2000 12:00:00");
    QTest::newRow("negative day number")       << QVariant(-1.25)                 << QStringLiteral("General Date") << QStringLiteral("29.12.1899 06:00:00");
    QTest::newRow("to the nearest second")     << QVariant(0.9999999)             << QStringLiteral("Short Date")   << QStringLiteral("31.12.1899");
    QTest::newRow("text that is a date")       << QVariant(QStringLiteral("6 sty 1998")) << QStringLiteral("Short Date") << QStringLiteral("06.01.1998");
    QTest::newRow("text that is a number")     << QVariant(QStringLiteral("36526")) << QStringLiteral("Short Date") << QStringLiteral("01.01.2000");
    QTest::newRow("text that is neither")      << QVariant(QStringLiteral("jutro")) << QStringLiteral("Short Date") << QStringLiteral("jutro");
    QTest::newRow("Null")                      << QVariant::fromValue(nullptr)    << QStringLiteral("Short Date")   << QString();
    QTest::newRow("Empty")                     << QVariant()                      << QStringLiteral("Short Date")   << QString();
    QTest::newRow("invalid date is Null")      << QVariant(QDate())               << QStringLiteral("Short Date")   << QString();
    // clang-format on
}

void tst_FormatDate::otherValues()
{
    QFETCH(QVariant, value);
    QFETCH(QString, mask);
    QFETCH(QString, expected);
    QCOMPARE(kor::Format(value, mask, Locale::polish()), expected);
}

void tst_FormatDate::dayNumbersBeyondTheCalendarOverflow()
{
    for (const double number : {2'958'466.0, -657'435.0, 1e300}) {
        try {
            (void)kor::Format(number, u"Short Date", Locale::polish());
            QFAIL("no error was raised");
        } catch (const kor::RunTimeError &error) {
            QCOMPARE(error.number(), 6);
        }
    }
}

void tst_FormatDate::localTimeIsNotConverted()
{
    const QDateTime local(QDate(2003, 7, 1), QTime(10, 20, 30));
    QCOMPARE(kor::Format(local, u"yyyy-mm-dd hh:nn:ss", Locale::polish()), QStringLiteral("2003-07-01 10:20:30"));
}

//! A date without its year asks the host's clock in the middle of being formatted.
void tst_FormatDate::aClockMayFormatOnItsOwn()
{
    const auto restore = qScopeGuard([] { kor::Clock::setSource({}); });
    kor::Clock::setSource([] {
        for (int digits = 1; digits <= 100; ++digits)
            (void)kor::Format(1, QString(digits, u'0'));
        return QDate(2003, 9, 28);
    });
    QCOMPARE(kor::Format(QStringLiteral("6 stycznia"), u"yyyy-mm-dd", Locale::polish()), QStringLiteral("2003-01-06"));
}

QTEST_GUILESS_MAIN(tst_FormatDate)
#include "tst_formatdate.moc"
