// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/localewords.h"

namespace kor {

namespace {

QStringList words(const char16_t *text) { return QString::fromUtf16(text).split(u' '); }

void setEnglishNames(Locale &locale)
{
    locale.monthNames = words(u"January February March April May June July August September October November December");
    locale.monthNamesGenitive = locale.monthNames;
    locale.shortMonthNames = words(u"Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec");
    locale.dayNames = words(u"Sunday Monday Tuesday Wednesday Thursday Friday Saturday");
    locale.shortDayNames = words(u"Sun Mon Tue Wed Thu Fri Sat");
}

void setPolishNames(Locale &locale)
{
    locale.monthNames =
        words(u"styczeń luty marzec kwiecień maj czerwiec lipiec sierpień wrzesień październik listopad "
              u"grudzień");
    locale.monthNamesGenitive = words(u"stycznia lutego marca kwietnia maja czerwca lipca sierpnia września "
                                      u"października listopada grudnia");
    locale.shortMonthNames = words(u"sty lut mar kwi maj cze lip sie wrz paź lis gru");
    locale.dayNames = words(u"niedziela poniedziałek wtorek środa czwartek piątek sobota");
    locale.shortDayNames = words(u"niedz. pon. wt. śr. czw. pt. sob.");
}

void setGermanNames(Locale &locale)
{
    locale.monthNames = words(u"Januar Februar März April Mai Juni Juli August September Oktober November Dezember");
    locale.monthNamesGenitive = locale.monthNames;
    locale.shortMonthNames = words(u"Jan Feb Mrz Apr Mai Jun Jul Aug Sep Okt Nov Dez");
    locale.dayNames = words(u"Sonntag Montag Dienstag Mittwoch Donnerstag Freitag Samstag");
    locale.shortDayNames = words(u"So Mo Di Mi Do Fr Sa");
}

} // namespace

void setPolishWords(Locale &locale)
{
    locale.trueText = QStringLiteral("Prawda");
    locale.falseText = QStringLiteral("Fałsz");
    locale.yesText = QStringLiteral("Tak");
    locale.noText = QStringLiteral("Nie");
    locale.onText = QStringLiteral("Włączone");
    locale.offText = QStringLiteral("Wyłączone");
}

void setGermanWords(Locale &locale)
{
    locale.trueText = QStringLiteral("Wahr");
    locale.falseText = QStringLiteral("Falsch");
    locale.yesText = QStringLiteral("Ja");
    locale.noText = QStringLiteral("Nein");
    locale.onText = QStringLiteral("Ein");
    locale.offText = QStringLiteral("Aus");
}

Locale Locale::english()
{
    static const Locale locale = [] {
        Locale made;
        setEnglishNames(made);
        return made;
    }();
    return locale;
}

Locale Locale::polish()
{
    static const Locale locale = [] {
        Locale made;
        made.decimalSeparator = u',';
        made.groupSeparator = u'\u00a0';
        made.dateSeparator = u'.';
        made.currencySymbol = QStringLiteral("zł");
        made.currencyPositive = QStringLiteral("n zł");
        made.currencyNegative = QStringLiteral("-n zł");
        made.shortDatePattern = QStringLiteral("dd.MM.yyyy");
        made.longDatePattern = QStringLiteral("d MMMM yyyy");
        made.timePattern = QStringLiteral("HH:mm:ss");
        made.firstDayOfWeek = Qt::Monday;
        setPolishNames(made);
        setPolishWords(made);
        return made;
    }();
    return locale;
}

Locale Locale::german()
{
    static const Locale locale = [] {
        Locale made;
        made.decimalSeparator = u',';
        made.groupSeparator = u'.';
        made.dateSeparator = u'.';
        made.currencySymbol = QStringLiteral("€");
        made.currencyPositive = QStringLiteral("n €");
        made.currencyNegative = QStringLiteral("-n €");
        made.shortDatePattern = QStringLiteral("dd.MM.yyyy");
        made.longDatePattern = QStringLiteral("dddd, d. MMMM yyyy");
        made.timePattern = QStringLiteral("HH:mm:ss");
        made.firstDayOfWeek = Qt::Monday;
        setGermanNames(made);
        setGermanWords(made);
        return made;
    }();
    return locale;
}

} // namespace kor
