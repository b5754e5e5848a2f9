// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/daterules.h"
#include "date/isodates.h"

#include <KorDaoUC/Format>

#include <QtTest/QtTest>

#include <random>

using namespace kor;
using kor::test::polishIso;

namespace {

const QDate today(2024, 3, 5);

Locale of(const char *name) { return Locale::fromQLocale(QLocale(QString::fromLatin1(name))); }

//! A field: its locale, its mask, and how a clerk writes dates into it.
struct Field {
    const char *name;
    Locale locale;
    const char *mask;
    const char *order; //!< d, m, y
    char16_t separator;
};

const QList<Field> &fields()
{
    // clang-format off
    static const QList<Field> all{
        {"pl dd.MM.yyyy, stops",   Locale::polish(),  "dd.MM.yyyy", "dmy", u'.'},
        {"pl dd.MM.yyyy, hyphens", Locale::polish(),  "dd.MM.yyyy", "dmy", u'-'},
        {"pl dd.MM.yyyy, slashes", Locale::polish(),  "dd.MM.yyyy", "dmy", u'/'},
        {"pl dd.MM.yyyy, commas",  Locale::polish(),  "dd.MM.yyyy", "dmy", u','},
        {"pl yyyy-MM-dd, hyphens", Locale::polish(),  "yyyy-MM-dd", "ymd", u'-'},
        {"pl yyyy-MM-dd, stops",   Locale::polish(),  "yyyy-MM-dd", "ymd", u'.'},
        {"pl d/M/yy, hyphens",     Locale::polish(),  "d/M/yy",     "dmy", u'-'},
        {"pl MM/dd/yyyy, slashes", Locale::polish(),  "MM/dd/yyyy", "mdy", u'/'},
        {"pl Short Date",          Locale::polish(),  "Short Date", "dmy", u'.'},
        {"pl Short Date by ISO",   polishIso(),       "Short Date", "ymd", u'-'},
        {"pl by ISO, dd.MM.yyyy",  polishIso(),       "dd.MM.yyyy", "dmy", u'.'},
        {"pl by ISO, MM/dd/yyyy",  polishIso(),       "MM/dd/yyyy", "mdy", u'/'},
        {"en Short Date",          Locale::english(), "Short Date", "mdy", u'/'},
        {"en dd.MM.yyyy",          Locale::english(), "dd.MM.yyyy", "dmy", u'.'},
        {"en d/M/yy, hyphens",     Locale::english(), "d/M/yy",     "dmy", u'-'},
        {"en MM/dd/yyyy, hyphens", Locale::english(), "MM/dd/yyyy", "mdy", u'-'},
        {"en yyyy-MM-dd, slashes", Locale::english(), "yyyy-MM-dd", "ymd", u'/'},
        {"de Short Date",          Locale::german(),  "Short Date", "dmy", u'.'},
        {"de yyyy-MM-dd, stops",   Locale::german(),  "yyyy-MM-dd", "ymd", u'.'},
        {"de MM/dd/yyyy, commas",  Locale::german(),  "MM/dd/yyyy", "mdy", u','},
        {"de dd.mm.yyyy",          Locale::german(),  "dd.mm.yyyy", "dmy", u'.'},
        {"sv Short Date",          of("sv_SE"),       "Short Date", "ymd", u'-'},
        {"sv Short Date, stops",   of("sv_SE"),       "Short Date", "ymd", u'.'},
        {"sv dd.MM.yyyy, slashes", of("sv_SE"),       "dd.MM.yyyy", "dmy", u'/'},
        {"ja Short Date",          of("ja_JP"),       "Short Date", "ymd", u'/'},
        {"ja Short Date, hyphens", of("ja_JP"),       "Short Date", "ymd", u'-'},
        {"ja dd.MM.yyyy, stops",   of("ja_JP"),       "dd.MM.yyyy", "dmy", u'.'},
        {"nl Short Date",          of("nl_NL"),       "Short Date", "dmy", u'-'},
        {"zh yyyy/M/d, commas",    of("zh_CN"),       "yyyy/M/d",   "ymd", u','},
    };
    // clang-format on
    return all;
}

struct Typed {
    const char *behaviour;
    const char *day;
    const char *month;
    const char *year;
    QDate date; //!< invalid: refused
};

// clang-format off
const Typed typedDates[] = {
    {"whole date",                         "15", "03", "1999", {1999, 3, 15}},
    {"without leading zeros",              "1",  "2",  "2003", {2003, 2, 1}},
    {"with leading zeros",                 "01", "02", "2003", {2003, 2, 1}},
    {"year 1",                             "1",  "2",  "1",    {2001, 2, 1}},
    {"year 01",                            "1",  "2",  "01",   {2001, 2, 1}},
    {"year 3",                             "1",  "2",  "3",    {2003, 2, 1}},
    {"year 9",                             "1",  "2",  "9",    {2009, 2, 1}},
    {"year 10",                            "1",  "2",  "10",   {2010, 2, 1}},
    {"year 29",                            "1",  "2",  "29",   {2029, 2, 1}},
    {"year 30 is still this century",      "1",  "2",  "30",   {2030, 2, 1}},
    {"year 49 is the last of this century","1",  "2",  "49",   {2049, 2, 1}},
    {"year 50 is the first of the last",   "1",  "2",  "50",   {1950, 2, 1}},
    {"year 51",                            "1",  "2",  "51",   {1951, 2, 1}},
    {"year 99",                            "1",  "2",  "99",   {1999, 2, 1}},
    {"year 049 in three digits",           "1",  "2",  "049",  {2049, 2, 1}},
    {"year 0050 in four digits",           "1",  "2",  "0050", {1950, 2, 1}},
    {"year 100",                           "1",  "2",  "100",  {100, 2, 1}},
    {"year 999",                           "1",  "2",  "999",  {999, 2, 1}},
    {"year 1000",                          "1",  "2",  "1000", {1000, 2, 1}},
    {"year 1582, between the calendars",   "10", "10", "1582", {1582, 10, 10}},
    {"year 1899",                          "30", "12", "1899", {1899, 12, 30}},
    {"year 9999",                          "31", "12", "9999", {9999, 12, 31}},
    {"year 0",                             "1",  "2",  "0",    {}},
    {"year 00",                            "1",  "2",  "00",   {}},
    {"year 0000",                          "1",  "2",  "0000", {}},
    {"year 10000",                         "1",  "2",  "10000",{}},
    {"no year",                            "1",  "2",  "",     {}},
    {"no month",                           "1",  "",   "2003", {}},
    {"no day",                             "",   "2",  "2003", {}},
    {"day 0",                              "0",  "2",  "2003", {}},
    {"day 00",                             "00", "2",  "2003", {}},
    {"month 0",                            "1",  "0",  "2003", {}},
    {"month 12",                           "1",  "12", "2003", {2003, 12, 1}},
    {"month 13",                           "1",  "13", "2003", {}},
    {"day and month of thirteen",          "13", "13", "2003", {}},
    {"day 31 of January",                  "31", "1",  "2001", {2001, 1, 31}},
    {"day 31 of March",                    "31", "3",  "2001", {2001, 3, 31}},
    {"day 30 of April",                    "30", "4",  "2001", {2001, 4, 30}},
    {"day 31 of April",                    "31", "4",  "2001", {}},
    {"day 31 of May",                      "31", "5",  "2001", {2001, 5, 31}},
    {"day 31 of June",                     "31", "6",  "2001", {}},
    {"day 31 of July",                     "31", "7",  "2001", {2001, 7, 31}},
    {"day 31 of August",                   "31", "8",  "2001", {2001, 8, 31}},
    {"day 31 of September",                "31", "9",  "2001", {}},
    {"day 31 of October",                  "31", "10", "2001", {2001, 10, 31}},
    {"day 31 of November",                 "31", "11", "2001", {}},
    {"day 31 of December",                 "31", "12", "2001", {2001, 12, 31}},
    {"day 32",                             "32", "1",  "2001", {}},
    {"day 99",                             "99", "1",  "2001", {}},
    {"28 February",                        "28", "2",  "2001", {2001, 2, 28}},
    {"29 February of a common year",       "29", "2",  "2001", {}},
    {"29 February of a leap year",         "29", "2",  "2004", {2004, 2, 29}},
    {"29 February of a century year",      "29", "2",  "1900", {}},
    {"29 February of 2100",                "29", "2",  "2100", {}},
    {"29 February of 2000",                "29", "2",  "2000", {2000, 2, 29}},
    {"29 February of 2400",                "29", "2",  "2400", {2400, 2, 29}},
    {"29 February of year 4",              "29", "2",  "4",    {2004, 2, 29}},
    {"29 February of year 3",              "29", "2",  "3",    {}},
    {"29 February of year 48",             "29", "2",  "48",   {2048, 2, 29}},
    {"29 February of year 52",             "29", "2",  "52",   {1952, 2, 29}},
    {"29 February of year 50",             "29", "2",  "50",   {}},
    {"30 February",                        "30", "2",  "2004", {}},
    {"31 February",                        "31", "2",  "2001", {}},
    {"letters in place of the day",        "x",  "2",  "2003", {}},
    {"letters in place of the year",       "1",  "2",  "MMIII",{}},
    {"blank in front of the day",          " 1", "2",  "2003", {}},
    {"blank behind the year",              "1",  "2",  "2003 ",{}},
    {"plus sign",                          "+1", "2",  "2003", {}},
    {"five digits of a day",               "00001", "2", "2003", {}},
};
// clang-format on

QString composed(const Field &field, const QString &day, const QString &month, const QString &year)
{
    QStringList parts;
    for (const char *place = field.order; *place; ++place)
        parts << (*place == 'd' ? day : *place == 'm' ? month : year);
    return parts.join(QChar(field.separator));
}

//! What a numeric mask writes, worked out apart from the library.
QString expectedText(const Field &field, QDate date)
{
    QString pattern = QLatin1String(field.mask) == QLatin1String("Short Date") ? field.locale.shortDatePattern
                                                                               : QString::fromLatin1(field.mask);
    pattern.replace(u'/', field.locale.dateSeparator);
    pattern = pattern.toLower();
    const auto padded = [](int number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    pattern.replace(QStringLiteral("yyyy"), QStringLiteral("<4>"));
    pattern.replace(QStringLiteral("yy"), QStringLiteral("<2>"));
    pattern.replace(QStringLiteral("dd"), padded(date.day())).replace(u'd', QString::number(date.day()));
    pattern.replace(QStringLiteral("mm"), padded(date.month())).replace(u'm', QString::number(date.month()));
    pattern.replace(QStringLiteral("<4>"), QString::number(date.year()));
    return pattern.replace(QStringLiteral("<2>"), padded(date.year() % 100));
}

DateCheck check(const Field &field, const QString &text)
{
    const QString mask = QString::fromLatin1(field.mask);
    return checkDate(text, {mask, field.locale, today});
}

//! A text that means a date is written anew by the mask; one that means none (an invalid date) stays as it is.
void compareCheck(const Field &field, const QString &text, QDate date)
{
    const DateCheck result = check(field, text);
    QCOMPARE(result.isValid, date.isValid());
    QCOMPARE(result.date, date.isValid() ? std::optional(date) : std::nullopt);
    QCOMPARE(result.text, date.isValid() ? expectedText(field, date) : text);
}

const Field &fieldNamed(const char *name)
{
    for (const Field &field : fields()) {
        if (qstrcmp(field.name, name) == 0)
            return field;
    }
    qFatal("no field %s", name);
}

} // namespace

Q_DECLARE_METATYPE(const Field *)

//! The check of a typed date, under many masks and locales.
class tst_DateCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void numbersInThePlacesOfTheMask_data();
    void numbersInThePlacesOfTheMask();
    void numbersOfSeparators_data();
    void numbersOfSeparators();
    void bareDigits_data();
    void bareDigits();
    void twoDigitYearsOfAnExactText_data();
    void twoDigitYearsOfAnExactText();
    void namedMasksWithMonthNames_data();
    void namedMasksWithMonthNames();
    void oddTexts_data();
    void oddTexts();
    void writtenAndTypedAgainIsTheSame_data();
    void writtenAndTypedAgainIsTheSame();
    void aCheckedTextStaysAsItIs();
    void everyLocaleAcceptsTheShortDateItShows();
    void anEmptyTextIsValid();
};

void tst_DateCheck::numbersInThePlacesOfTheMask_data()
{
    QTest::addColumn<const Field *>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    for (const Field &field : fields()) {
        for (const Typed &typed : typedDates) {
            QTest::addRow("%s: %s", field.name, typed.behaviour)
                << &field
                << composed(field, QString::fromLatin1(typed.day), QString::fromLatin1(typed.month),
                            QString::fromLatin1(typed.year))
                << typed.date;
        }
    }
}

void tst_DateCheck::numbersInThePlacesOfTheMask()
{
    QFETCH(const Field *, field);
    QFETCH(QString, text);
    QFETCH(QDate, date);
    compareCheck(*field, text, date);
}

void tst_DateCheck::numbersOfSeparators_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    // clang-format off
    QTest::newRow("mixed separators")              << QStringLiteral("1.2-2003")     << QDate(2003, 2, 1);
    QTest::newRow("comma and slash")               << QStringLiteral("1,2/2003")     << QDate(2003, 2, 1);
    QTest::newRow("one separator")                 << QStringLiteral("1.2")          << QDate();
    QTest::newRow("one separator, whole year")     << QStringLiteral("2.2003")       << QDate();
    QTest::newRow("three separators")              << QStringLiteral("1.2.3.2003")   << QDate();
    QTest::newRow("separator at the end")          << QStringLiteral("1.2.2003.")    << QDate();
    QTest::newRow("separator in front")            << QStringLiteral(".1.2.2003")    << QDate();
    QTest::newRow("two separators in a row")       << QStringLiteral("1..2.2003")    << QDate();
    QTest::newRow("two in a row in place of one")  << QStringLiteral("1..2003")      << QDate();
    QTest::newRow("only separators")               << QStringLiteral("..")           << QDate();
    QTest::newRow("one separator alone")           << QStringLiteral(".")            << QDate();
    QTest::newRow("colon")                         << QStringLiteral("1:2:2003")     << QDate();
    QTest::newRow("blanks as separators")          << QStringLiteral("1 2 2003")     << QDate();
    QTest::newRow("backslash")                     << QStringLiteral("1\\2\\2003")   << QDate();
    QTest::newRow("a time behind the date")        << QStringLiteral("1.2.2003 8:15")<< QDate();
    QTest::newRow("month as a word")               << QStringLiteral("1 lutego 2003")<< QDate();
    QTest::newRow("month as a short word")         << QStringLiteral("1.lut.2003")   << QDate();
    QTest::newRow("Roman month")                   << QStringLiteral("1.II.2003")    << QDate();
    QTest::newRow("year first")                    << QStringLiteral("2003-02-01")   << QDate();
    QTest::newRow("month first with a large day")  << QStringLiteral("2/13/2003")    << QDate();
    // clang-format on
}

void tst_DateCheck::numbersOfSeparators()
{
    QFETCH(QString, text);
    QFETCH(QDate, date);
    const DateCheck result = check(fieldNamed("pl dd.MM.yyyy, stops"), text);
    QCOMPARE(result.isValid, date.isValid());
    QCOMPARE(result.text, date.isValid() ? QStringLiteral("01.02.2003") : text);
}

void tst_DateCheck::bareDigits_data()
{
    QTest::addColumn<const Field *>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    struct Row {
        const char *behaviour;
        const char *text;
        QDate dayFirst;
        QDate monthFirst;
        QDate yearFirst; //!< the digits are cut as 2-2-rest whatever the mask, then read by its places
    };
    // clang-format off
    const Row rows[] = {
        {"six digits",                 "010203",    {2003, 2, 1},  {2003, 1, 2}, {2001, 2, 3}},
        {"eight digits",               "01021999",  {1999, 2, 1},  {1999, 1, 2}, {}},
        {"eight digits, short year",   "01020031",  {2031, 2, 1},  {2031, 1, 2}, {}},
        {"six digits, no such day",    "310299",    {},            {},           {}},
        {"six digits, leap day",       "290204",    {2004, 2, 29}, {},           {2029, 2, 4}},
        {"six digits, month thirteen", "011303",    {},            {2003, 1, 13},{}},
        {"six digits, year nought",    "010200",    {},            {},           {}},
        {"six digits of year 49",      "010249",    {2049, 2, 1},  {2049, 1, 2}, {}},
        {"six digits of year 50",      "010250",    {1950, 2, 1},  {1950, 1, 2}, {}},
        {"eight noughts",              "00000000",  {},            {},           {}},
        {"five digits",                "10203",     {},            {},           {}},
        {"seven digits",               "1021999",   {},            {},           {}},
        {"four digits",                "0102",      {},            {},           {}},
        {"two digits",                 "01",        {},            {},           {}},
        {"one digit",                  "1",         {},            {},           {}},
        {"nine digits",                "010219990", {},            {},           {}},
        {"six letters",                "abcdef",    {},            {},           {}},
        {"digits and letters",         "01lut03",   {},            {},           {}},
    };
    // clang-format on
    for (const Field &field : fields()) {
        if (QByteArray(field.mask) == "d/M/yy")
            continue; // an exact text has its own window there, see below
        for (const Row &row : rows) {
            const QDate date = field.order[0] == 'd'   ? row.dayFirst
                               : field.order[0] == 'm' ? row.monthFirst
                                                       : row.yearFirst;
            QTest::addRow("%s: %s", field.name, row.behaviour) << &field << QString::fromLatin1(row.text) << date;
        }
    }
}

void tst_DateCheck::bareDigits()
{
    QFETCH(const Field *, field);
    QFETCH(QString, text);
    QFETCH(QDate, date);
    compareCheck(*field, text, date);
}

void tst_DateCheck::twoDigitYearsOfAnExactText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    // clang-format off
    QTest::newRow("29 as the mask writes it is 2029")    << QStringLiteral("1.2.29")   << QDate(2029, 2, 1);
    QTest::newRow("30 as the mask writes it is 1930")    << QStringLiteral("1.2.30")   << QDate(1930, 2, 1);
    QTest::newRow("49 as the mask writes it is 1949")    << QStringLiteral("1.2.49")   << QDate(1949, 2, 1);
    QTest::newRow("50 as the mask writes it is 1950")    << QStringLiteral("1.2.50")   << QDate(1950, 2, 1);
    QTest::newRow("00 as the mask writes it is 2000")    << QStringLiteral("1.2.00")   << QDate(2000, 2, 1);
    QTest::newRow("30 with a leading zero is 2030")      << QStringLiteral("01.2.30")  << QDate(2030, 2, 1);
    QTest::newRow("49 with another separator is 2049")   << QStringLiteral("1-2-49")   << QDate(2049, 2, 1);
    QTest::newRow("49 in bare digits is 2049")           << QStringLiteral("010249")   << QDate(2049, 2, 1);
    QTest::newRow("exact bare digits take the window")   << QStringLiteral("111149")   << QDate(1949, 11, 11);
    QTest::newRow("00 with another separator is none")   << QStringLiteral("1-2-00")   << QDate();
    QTest::newRow("a whole year")                        << QStringLiteral("1.2.1899") << QDate(1899, 2, 1);
    // clang-format on
}

void tst_DateCheck::twoDigitYearsOfAnExactText()
{
    QFETCH(QString, text);
    QFETCH(QDate, date);
    const DateCheck result = check(fieldNamed("pl d/M/yy, hyphens"), text);
    QCOMPARE(result.isValid, date.isValid());
    QCOMPARE(result.date, date.isValid() ? std::optional(date) : std::nullopt);
}

void tst_DateCheck::namedMasksWithMonthNames_data()
{
    QTest::addColumn<QString>("country");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    const auto row = [](const char *name, const char *country, const char *mask, const QString &text, QDate date) {
        QTest::newRow(name) << QString::fromLatin1(country) << QString::fromLatin1(mask) << text << date;
    };
    const QDate day(2003, 2, 1);
    // clang-format off
    row("Polish long date as written",       "pl", "Long Date",   QStringLiteral("1 lutego 2003"), day);
    row("Polish long date, numbers only",    "pl", "Long Date",   QStringLiteral("01.02.2003"),    {});
    row("Polish long date, nominative",      "pl", "Long Date",   QStringLiteral("1 luty 2003"),   {});
    row("Polish long date, leading zero",    "pl", "Long Date",   QStringLiteral("01 lutego 2003"),{});
    row("Polish medium date as written",     "pl", "Medium Date", QStringLiteral("01-lut-03"),     day);
    row("Polish medium date, numbers only",  "pl", "Medium Date", QStringLiteral("01-02-03"),      {});
    row("Polish medium date, bare digits",   "pl", "Medium Date", QStringLiteral("010203"),        {});
    row("Polish medium date of the window",  "pl", "Medium Date", QStringLiteral("01-lut-49"),     {1949, 2, 1});
    row("English long date as written",      "en", "Long Date",   QStringLiteral("Saturday, February 01, 2003"), {});
    row("English medium date as written",    "en", "Medium Date", QStringLiteral("01-Feb-03"),     day);
    row("English medium date, numbers only", "en", "Medium Date", QStringLiteral("1/2/3"),         {});
    row("German long date as written",       "de", "Long Date",   QStringLiteral("Samstag, 1. Februar 2003"), {});
    row("German medium date as written",     "de", "Medium Date", QStringLiteral("01-Feb-03"),     day);
    row("General date is the short one",     "pl", "General Date",QStringLiteral("1-2-3"),         day);
    row("no mask is the general date",       "pl", "",            QStringLiteral("1-2-3"),         day);
    row("ddddd is the short date",           "pl", "ddddd",       QStringLiteral("010203"),        day);
    row("names in any case",                 "pl", "short date",  QStringLiteral("1-2-3"),         day);
    // clang-format on
}

void tst_DateCheck::namedMasksWithMonthNames()
{
    QFETCH(QString, country);
    QFETCH(QString, mask);
    QFETCH(QString, text);
    QFETCH(QDate, date);
    const Locale locale = country == u"pl" ? Locale::polish() : country == u"en" ? Locale::english() : Locale::german();
    const DateCheck result = checkDate(text, {mask, locale, today});
    QCOMPARE(result.date, date.isValid() ? std::optional(date) : std::nullopt);
}

void tst_DateCheck::oddTexts_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    const auto row = [](const char *name, const char *mask, const QString &text, QDate date) {
        QTest::newRow(name) << QString::fromUtf8(mask) << text << date;
    };
    // clang-format off
    row("a mask with a dot at its end",         "dd.MM.yyyy.",     QStringLiteral("01.02.2003."), {});
    row("a mask that writes a letter, exactly", "dd.MM.yyyy\"r\"", QStringLiteral("01.02.2003r"), {});
    row("a mask without separators",            "ddMMyyyy",        QStringLiteral("01022003"),    {});
    row("a mask without a day, exactly",        "MM/yyyy",         QStringLiteral("02.2003"),     {2003, 2, 1});
    row("a mask without a day, otherwise",      "MM/yyyy",         QStringLiteral("2-2003"),      {});
    row("a mask with a time, midnight exactly", "dd.MM.yyyy hh:nn",QStringLiteral("01.02.2003 00:00"), {2003, 2, 1});
    row("a mask with a time, date only",        "dd.MM.yyyy hh:nn",QStringLiteral("01.02.2003"),  {});
    row("month in the middle, day last",        "yyyy/dd/MM",      QStringLiteral("2003-01-02"),  {2003, 2, 1});
    row("a very long text",                     "dd.MM.yyyy",      QString(1000, u'1'),           {});
    row("a very long year",                     "dd.MM.yyyy",      QStringLiteral("1.2.") + QString(400, u'9'), {});
    row("a time",                               "dd.MM.yyyy",      QStringLiteral("10:30"),       {});
    row("digits of another script",             "dd.MM.yyyy",      QStringLiteral("\u0661.2.2003"), {});
    row("a fraction sign",                      "dd.MM.yyyy",      QStringLiteral("\u00BD.2.2003"), {});
    row("line break at the end",                "dd.MM.yyyy",      QStringLiteral("01.02.2003\n"),{});
    row("half a surrogate",                     "dd.MM.yyyy",      QString(QChar(0xD800)),        {});
    row("nul character",                        "dd.MM.yyyy",      QString(6, QChar(0)),          {});
    row("blank",                                "dd.MM.yyyy",      QStringLiteral(" "),           {});
    row("six blanks",                           "dd.MM.yyyy",      QStringLiteral("      "),      {});
    // clang-format on
}

void tst_DateCheck::oddTexts()
{
    QFETCH(QString, mask);
    QFETCH(QString, text);
    QFETCH(QDate, date);
    const DateCheck result = checkDate(text, {mask, Locale::polish(), today});
    QCOMPARE(result.date, date.isValid() ? std::optional(date) : std::nullopt);
    QCOMPARE(result.isValid, date.isValid());
}

void tst_DateCheck::writtenAndTypedAgainIsTheSame_data()
{
    QTest::addColumn<const Field *>("field");
    for (const Field &field : fields())
        QTest::newRow(field.name) << &field;
}

void tst_DateCheck::writtenAndTypedAgainIsTheSame()
{
    QFETCH(const Field *, field);
    // A mask with two digits of the year says nothing about the century outside the years that both readings share,
    // and 00 is a year only where the locale reads the whole text in the mask's order.
    const bool isShort = QByteArray(field->mask) == "d/M/yy";
    const QDate first = isShort ? QDate(1950, 1, 1) : QDate(100, 1, 1);
    const QDate last = isShort ? QDate(2029, 12, 31) : QDate(9999, 12, 31);
    std::mt19937_64 random(20240305);
    std::uniform_int_distribution<qint64> days(0, first.daysTo(last));
    for (int round = 0; round < 4000; ++round) {
        const QDate date = first.addDays(days(random));
        if (isShort && date.year() == 2000 && field->locale == Locale::english())
            continue;
        const QString text = Format(date, QString::fromLatin1(field->mask), field->locale);
        const DateCheck result = check(*field, text);
        QVERIFY2(result.date == date, qPrintable(QStringLiteral("%1: %2").arg(date.toString(Qt::ISODate), text)));
        QCOMPARE(result.text, text);
    }
}

void tst_DateCheck::aCheckedTextStaysAsItIs()
{
    // Leaving the box and leaving the control check the same text one after the other.
    for (const Field &field : fields()) {
        if (QByteArray(field.mask) == "d/M/yy")
            continue;
        for (const Typed &typed : typedDates) {
            const DateCheck once =
                check(field, composed(field, QString::fromLatin1(typed.day), QString::fromLatin1(typed.month),
                                      QString::fromLatin1(typed.year)));
            if (!once.date)
                continue;
            const DateCheck twice = check(field, once.text);
            QCOMPARE(twice.date, once.date);
            QCOMPARE(twice.text, once.text);
        }
    }
}

void tst_DateCheck::everyLocaleAcceptsTheShortDateItShows()
{
    const QString mask = QStringLiteral("Short Date");
    for (const QLocale &toolkits :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const Locale locale = Locale::fromQLocale(toolkits);
        for (const QDate date : {QDate(2024, 3, 5), QDate(1999, 12, 31), QDate(2011, 11, 11)}) {
            const QString text = Format(date, mask, locale);
            const DateCheck result = checkDate(text, {mask, locale, today});
            QVERIFY2(result.date == date, qPrintable(QStringLiteral("%1: %2").arg(toolkits.name(), text)));
            QCOMPARE(result.text, text);
        }
    }
}

void tst_DateCheck::anEmptyTextIsValid()
{
    for (const Field &field : fields()) {
        const DateCheck result = check(field, QString());
        QVERIFY(result.isValid);
        QVERIFY(!result.date);
        QCOMPARE(result.text, QString());
    }
}

QTEST_APPLESS_MAIN(tst_DateCheck)
#include "tst_datecheck.moc"
