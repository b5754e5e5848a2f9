// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/daterules.h"
#include "date/isodates.h"

#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

using namespace kor;
using kor::test::polishIso;

namespace {

const QDate today(2024, 3, 5);

Locale hungarian()
{
    Locale locale = Locale::english();
    locale.shortDatePattern = QStringLiteral("yyyy. MM. dd.");
    locale.dateSeparator = u'.';
    return locale;
}

} // namespace

//! What a date field lets through, steps to, asks for and opens its calendar on.
class tst_DateRules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void placesOfAMask_data();
    void placesOfAMask();
    void charactersThatMayBeTyped_data();
    void charactersThatMayBeTyped();
    void keysAreAnswered_data();
    void keysAreAnswered();
    void everyOtherKeyIsPassedOn();
    void stepping_data();
    void stepping();
    void steppingWhatIsNoDate();
    void valuesThatAreNoDate_data();
    void valuesThatAreNoDate();
    void patternInTheMessage_data();
    void patternInTheMessage();
    void dayOnWhichTheCalendarOpens_data();
    void dayOnWhichTheCalendarOpens();
};

void tst_DateRules::placesOfAMask_data()
{
    QTest::addColumn<Locale>("locale");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("places"); // of day, month and year
    const auto row = [](const char *name, const Locale &locale, const char *mask, const char *places) {
        QTest::newRow(name) << locale << QString::fromUtf8(mask) << QString::fromLatin1(places);
    };
    const Locale pl = Locale::polish();
    const Locale en = Locale::english();
    // clang-format off
    row("day first",                           pl, "dd.MM.yyyy",              "0 1 2");
    row("year first",                          pl, "yyyy-MM-dd",              "2 1 0");
    row("month first",                         pl, "MM/dd/yyyy",              "1 0 2");
    row("short fields",                        pl, "d/M/yy",                  "0 1 2");
    row("day in the middle",                   pl, "yyyy/dd/MM",              "1 2 0");
    row("months in small letters",             pl, "dd.mm.yyyy",              "0 1 2");
    row("everything in capitals",              pl, "DD.MM.YYYY",              "0 1 2");
    row("two separators between fields",       pl, "dd. MM. yyyy",            "0 2 4");
    row("a separator in front",                pl, "-dd.MM.yyyy",             "1 2 3");
    row("quoted letters are no fields",        pl, "\"dym\" dd.MM.yyyy",      "4 5 6");
    row("quoted digits are not counted",       pl, "dd.MM.\"20\"yy",          "0 1 2");
    row("an escaped letter is no field",       pl, "\\d dd.MM.yyyy",          "2 3 4");
    row("no day",                              pl, "MM/yyyy",                 "- 0 1");
    row("only the year",                       pl, "yyyy",                    "- - 0");
    row("Polish short date",                   pl, "Short Date",              "0 1 2");
    row("Polish short date by ISO",            polishIso(), "Short Date",     "2 1 0");
    row("American short date",                 en, "Short Date",              "1 0 2");
    row("German short date",                   Locale::german(), "Short Date","0 1 2");
    row("short date with two separators each", hungarian(), "Short Date",     "4 2 0");
    row("name in small letters",               en, "short date",              "1 0 2");
    row("General Date is the short one",       en, "General Date",            "1 0 2");
    row("c is the general date",               en, "c",                       "1 0 2");
    row("ddddd is the short date",             en, "ddddd",                   "1 0 2");
    row("no mask is the general date",         en, "",                        "1 0 2");
    row("Polish long date",                    pl, "Long Date",               "0 1 2");
    row("dddddd is the long date",             pl, "dddddd",                  "0 1 2");
    row("medium date",                         en, "Medium Date",             "0 1 2");
    // clang-format on
}

void tst_DateRules::placesOfAMask()
{
    QFETCH(Locale, locale);
    QFETCH(QString, mask);
    const DatePlaces places = placesOf(mask, locale);
    const auto shown = [](std::optional<int> place) { return place ? QString::number(*place) : QStringLiteral("-"); };
    QTEST(QStringLiteral("%1 %2 %3").arg(shown(places.day), shown(places.month), shown(places.year)), "places");
}

void tst_DateRules::charactersThatMayBeTyped_data()
{
    QTest::addColumn<Locale>("locale");
    QTest::addColumn<QString>("allowed");
    Locale blank = Locale::english();
    blank.dateSeparator = u' ';
    QTest::newRow("Polish") << Locale::polish() << QStringLiteral("0123456789.,/");
    QTest::newRow("Polish by ISO types the hyphen too") << polishIso() << QStringLiteral("0123456789.,/-");
    QTest::newRow("English") << Locale::english() << QStringLiteral("0123456789.,/");
    QTest::newRow("a separator of its own") << blank << QStringLiteral("0123456789.,/ ");
}

void tst_DateRules::charactersThatMayBeTyped()
{
    QFETCH(Locale, locale);
    QFETCH(QString, allowed);
    for (int code = 1; code < 0x2100; ++code)
        QCOMPARE(isDateCharacter(code, locale), allowed.contains(QChar(static_cast<char16_t>(code))));
}

namespace {

//! One sign for each answer; a step is the number of its days.
QByteArray signOf(const DateKey &key)
{
    switch (key.answer) {
    case DateKey::Answer::PassOn: return ".";
    case DateKey::Answer::ReportAndSwallow: return "r";
    case DateKey::Answer::Step: return QByteArray::number(key.days);
    case DateKey::Answer::InsertToday: return "t";
    case DateKey::Answer::OpenCalendar: return "o";
    }
    return "?";
}

} // namespace

void tst_DateRules::keysAreAnswered_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("blockUpDown");
    QTest::addColumn<bool>("canOpen");
    QTest::addColumn<QByteArray>("answers"); // for shift states 0 to 7: none, S, C, SC, A, SA, CA, SCA
    // clang-format off
    QTest::newRow("Up is tomorrow")                          << 38  << false << true  << QByteArray("1 1 1 1 1 1 1 1");
    QTest::newRow("Down is yesterday")                       << 40  << false << true  << QByteArray("-1 -1 -1 -1 -1 -1 -1 -1");
    QTest::newRow("Page Up is a week on")                    << 33  << false << true  << QByteArray("7 7 7 7 7 7 7 7");
    QTest::newRow("Page Down is a week back")                << 34  << false << true  << QByteArray("-7 -7 -7 -7 -7 -7 -7 -7");
    QTest::newRow("Up goes to the host when blocked")        << 38  << true  << true  << QByteArray("r 1 r 1 1 1 1 1");
    QTest::newRow("Down goes to the host when blocked")      << 40  << true  << true  << QByteArray("r -1 r -1 -1 -1 -1 -1");
    QTest::newRow("Page Up steps also when Up is blocked")   << 33  << true  << true  << QByteArray("7 7 7 7 7 7 7 7");
    QTest::newRow("Page Down steps when Down is blocked")    << 34  << true  << true  << QByteArray("-7 -7 -7 -7 -7 -7 -7 -7");
    QTest::newRow("Insert is today, but not the clipboard's")<< 45  << false << true  << QByteArray("t . . t t t t t");
    QTest::newRow("Insert, blocked and closed")              << 45  << true  << false << QByteArray("t . . t t t t t");
    QTest::newRow("F4 opens, Alt+F4 is the window's")        << 115 << false << true  << QByteArray("o o o o . . . .");
    QTest::newRow("F4 opens also when arrows are blocked")   << 115 << true  << true  << QByteArray("o o o o . . . .");
    QTest::newRow("F4 is the host's with the button off")    << 115 << false << false << QByteArray(". . . . . . . .");
    // clang-format on
}

void tst_DateRules::keysAreAnswered()
{
    QFETCH(int, key);
    QFETCH(bool, blockUpDown);
    QFETCH(bool, canOpen);
    QByteArrayList answers;
    for (int shift = 0; shift < 8; ++shift)
        answers += signOf(judgeDateKey(key, shift, {blockUpDown, canOpen}));
    QTEST(answers.join(' '), "answers");
}

void tst_DateRules::everyOtherKeyIsPassedOn()
{
    const QList<int> answered{33, 34, 38, 40, 45, 115};
    for (int key = 0; key < 256; ++key) {
        if (answered.contains(key))
            continue;
        for (int shift = 0; shift < 8; ++shift) {
            for (const bool set : {false, true})
                QCOMPARE(judgeDateKey(key, shift, {set, set}), DateKey());
        }
    }
}

void tst_DateRules::stepping_data()
{
    QTest::addColumn<QVariant>("from");
    QTest::addColumn<int>("days");
    QTest::addColumn<QVariant>("to");
    const QDate day(2003, 2, 28);
    // clang-format off
    QTest::newRow("over the end of February")   << QVariant(day)                 << 1  << QVariant(QDate(2003, 3, 1));
    QTest::newRow("onto a leap day")            << QVariant(QDate(2004, 2, 28))  << 1  << QVariant(QDate(2004, 2, 29));
    QTest::newRow("over the end of the year")   << QVariant(QDate(2003, 12, 31)) << 1  << QVariant(QDate(2004, 1, 1));
    QTest::newRow("back over New Year")         << QVariant(QDate(2004, 1, 1))   << -1 << QVariant(QDate(2003, 12, 31));
    QTest::newRow("a week")                     << QVariant(day)                 << 7  << QVariant(QDate(2003, 3, 7));
    QTest::newRow("a week back")                << QVariant(QDate(2003, 3, 7))   << -7 << QVariant(day);
    QTest::newRow("over day zero")              << QVariant(QDate(1899, 12, 29)) << 1  << QVariant(QDate(1899, 12, 30));
    QTest::newRow("back over day zero")         << QVariant(QDate(1899, 12, 31)) << -7 << QVariant(QDate(1899, 12, 24));
    QTest::newRow("keeps the time of day")      << QVariant(QDateTime(day, QTime(8, 15), Qt::UTC)) << 1
                                                << QVariant(QDateTime(QDate(2003, 3, 1), QTime(8, 15), Qt::UTC));
    QTest::newRow("a day number")               << QVariant(37680)               << 1  << QVariant(day.addDays(1));
    QTest::newRow("a text that is a date")      << QVariant(QStringLiteral("28.02.2003")) << 1 << QVariant(QDate(2003, 3, 1));
    QTest::newRow("the last day stays")         << QVariant(QDate(9999, 12, 31)) << 1  << QVariant(QDate(9999, 12, 31));
    QTest::newRow("near the last day stays")    << QVariant(QDate(9999, 12, 28)) << 7  << QVariant(QDate(9999, 12, 28));
    QTest::newRow("the first day stays")        << QVariant(QDate(100, 1, 1))    << -1 << QVariant(QDate(100, 1, 1));
    // clang-format on
}

void tst_DateRules::stepping()
{
    QFETCH(QVariant, from);
    QFETCH(int, days);
    QTEST(stepped(from, days, Locale::polish()), "to");
}

void tst_DateRules::steppingWhatIsNoDate()
{
    QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)stepped(QStringLiteral("abc"), 1, Locale::polish()));
}

void tst_DateRules::valuesThatAreNoDate_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isNone");
    // clang-format off
    QTest::newRow("Null")              << null()                             << true;
    QTest::newRow("missing argument")  << missing()                          << true;
    QTest::newRow("Empty")             << QVariant()                         << true;
    QTest::newRow("empty text")        << QVariant(QString())                << true;
    QTest::newRow("text 0")            << QVariant(QStringLiteral("0"))      << true;
    QTest::newRow("Integer 0")         << QVariant::fromValue<short>(0)      << true;
    QTest::newRow("Long 0")            << QVariant(0)                        << true;
    QTest::newRow("Double 0")          << QVariant(0.0)                      << true;
    QTest::newRow("Date of number 0")  << QVariant(QDate(1899, 12, 30))      << true;
    QTest::newRow("Date")              << QVariant(today)                    << false;
    QTest::newRow("number 1")          << QVariant(1)                        << false;
    QTest::newRow("text 1")            << QVariant(QStringLiteral("1"))      << false;
    QTest::newRow("text 00")           << QVariant(QStringLiteral("00"))     << false;
    QTest::newRow("letters")           << QVariant(QStringLiteral("abc"))    << false;
    QTest::newRow("blank")             << QVariant(QStringLiteral(" "))      << false;
    // clang-format on
}

void tst_DateRules::valuesThatAreNoDate()
{
    QFETCH(QVariant, value);
    QTEST(isNoDate(value), "isNone");
}

void tst_DateRules::patternInTheMessage_data()
{
    QTest::addColumn<Locale>("locale");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("pattern");
    const auto row = [](const char *name, const Locale &locale, const char *mask, const char *pattern) {
        QTest::newRow(name) << locale << QString::fromLatin1(mask) << QString::fromLatin1(pattern);
    };
    // clang-format off
    row("Polish short date",          Locale::polish(),  "Short Date",  "dd.MM.rrrr");
    row("Polish short date by ISO",   polishIso(),       "Short Date",  "rrrr-MM-dd");
    row("American short date",        Locale::english(), "Short Date",  "M/d/rrrr");
    row("a mask",                     Locale::polish(),  "d/M/yy",      "d/M/rr");
    row("another named mask by name", Locale::polish(),  "Long Date",   "Long Date");
    row("medium date by name",        Locale::polish(),  "Medium Date", "Medium Date");
    row("capital Y stays",            Locale::polish(),  "DD.MM.YYYY",  "DD.MM.YYYY");
    row("no mask",                    Locale::polish(),  "",            "");
    // clang-format on
}

void tst_DateRules::patternInTheMessage()
{
    QFETCH(Locale, locale);
    QFETCH(QString, mask);
    QTEST(patternForMessage(mask, locale), "pattern");
}

void tst_DateRules::dayOnWhichTheCalendarOpens_data()
{
    QTest::addColumn<Locale>("locale");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("day");
    const auto row = [](const char *name, const Locale &locale, const char *mask, const QString &text, QDate day) {
        QTest::newRow(name) << locale << QString::fromLatin1(mask) << text << day;
    };
    const Locale pl = Locale::polish();
    // clang-format off
    row("empty text: today",                 pl, "dd.MM.yyyy", QString(),                    today);
    row("a date as it is written",           pl, "dd.MM.yyyy", QStringLiteral("15.03.1999"), {1999, 3, 15});
    row("a date as it is typed",             pl, "dd.MM.yyyy", QStringLiteral("150399"),     {1999, 3, 15});
    row("the mask's order, not the locale's",Locale::english(), "dd.MM.yyyy", QStringLiteral("01.02.2003"), {2003, 2, 1});
    row("the pivot of the check",            pl, "dd.MM.yyyy", QStringLiteral("1-2-49"),     {2049, 2, 1});
    row("a date in another form",            pl, "dd.MM.yyyy", QStringLiteral("1999-03-15"), {1999, 3, 15});
    row("a date in words",                   pl, "dd.MM.yyyy", QStringLiteral("15 marca 1999"), {1999, 3, 15});
    row("no date: today",                    pl, "dd.MM.yyyy", QStringLiteral("31.02.2001"), today);
    row("half a date: what it says",         pl, "dd.MM.yyyy", QStringLiteral("3.1999"),     {1999, 3, 1});
    row("letters: today",                    pl, "dd.MM.yyyy", QStringLiteral("abc"),        today);
    row("separators: today",                 pl, "dd.MM.yyyy", QStringLiteral(".."),         today);
    // clang-format on
}

void tst_DateRules::dayOnWhichTheCalendarOpens()
{
    QFETCH(Locale, locale);
    QFETCH(QString, mask);
    QFETCH(QString, text);
    QTEST(calendarStart(text, {mask, locale, today}), "day");
}

QTEST_APPLESS_MAIN(tst_DateRules)
#include "tst_daterules.moc"
