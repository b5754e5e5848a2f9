// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/localewords.h"

#include <QtCore/QLocale>

namespace kor {

namespace {

QChar firstCharacter(const QString &text, QChar otherwise) { return text.isEmpty() ? otherwise : text.front(); }

//! Marks of writing direction mean nothing in a pattern, and nobody can type them.
QString withoutMarks(QString pattern) { return pattern.remove(u'\u200e').remove(u'\u200f').remove(u'\u061c'); }

//! The separator of a short date pattern: what follows its first field.
QChar separatorOf(const QString &pattern)
{
    bool inField = false;
    for (const QChar c : pattern) {
        if (c.isLetter())
            inField = true;
        else if (inField && c != u'\'')
            return c;
    }
    return u'/';
}

//! A short time pattern of the toolkit, taken apart: where the hours and the half of the day stand, what parts the
//! minutes. Words and zones that some locales add are left out.
struct TimeHabits {
    QString hours = QStringLiteral("HH");
    QChar separator = u':';
    enum class HalfOfDay { None, Before, Behind } half = HalfOfDay::None;

    explicit TimeHabits(const QString &pattern)
    {
        bool quoted = false;
        qsizetype hoursEnd = -1;
        for (qsizetype i = 0; i < pattern.size(); ++i) {
            const QChar c = pattern[i];
            if (c == u'\'') {
                quoted = !quoted;
            } else if (quoted) {
                continue;
            } else if ((c == u'h' || c == u'H') && hoursEnd < 0) {
                hoursEnd = i + 1 + (i + 1 < pattern.size() && pattern[i + 1] == c ? 1 : 0);
                hours = pattern.sliced(i, hoursEnd - i);
            } else if (c == u'a' || c == u'A' || c == u'b' || c == u'B') {
                half = hoursEnd < 0 ? HalfOfDay::Before : HalfOfDay::Behind;
            } else if (c == u'm' && i == hoursEnd + 1 && pattern[hoursEnd].isPunct()) {
                separator = pattern[hoursEnd];
            }
        }
    }

    [[nodiscard]] QString pattern() const
    {
        const QString time = hours + separator + QStringLiteral("mm") + separator + QStringLiteral("ss");
        switch (half) {
        case HalfOfDay::Before: return QStringLiteral("tt ") + time;
        case HalfOfDay::Behind: return time + QStringLiteral(" tt");
        case HalfOfDay::None: break;
        }
        return time;
    }
};

//! A short date as people type it: the fields with one separator between them, without words, blanks and a point at the
//! end, and the year with its century. From two digits, a date of 1925 would be read back as one of 2025.
QString typedDatePattern(const QString &pattern, QChar separator)
{
    QString result;
    bool quoted = false;
    for (const QChar c : pattern) {
        quoted = quoted != (c == u'\'');
        if (quoted || (c != u'd' && c != u'M' && c != u'y'))
            continue;
        if (!result.isEmpty() && result.back() != c)
            result += separator;
        result += c;
    }
    return result.contains(QStringLiteral("yyyy")) ? result
                                                   : result.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
}

//! Text that is set beside a number: no-break blanks mean nothing there, and the minus is the one of the keyboard,
//! which is the only one that numbers are read with.
QString besideNumber(QString text)
{
    return withoutMarks(text.replace(u'\u00a0', u' ').replace(u'\u202f', u' ').replace(u'\u2212', u'-'));
}

//! The place of the digits in an amount that the toolkit wrote, as the letter n; without such digits, `otherwise`.
QString currencyPattern(const QString &amount, const QString &otherwise)
{
    qsizetype first = 0;
    while (first < amount.size() && !amount[first].isDigit())
        ++first;
    qsizetype last = amount.size() - 1;
    while (last > first && !amount[last].isDigit())
        --last;
    if (first >= amount.size())
        return otherwise;
    return besideNumber(amount.first(first) + u'n' + amount.sliced(last + 1));
}

//! The symbol as it stands in amounts. The toolkit has none for some currencies, whose amounts carry a code.
QString symbolOf(const QString &amountPattern, const QString &symbol)
{
    return symbol.isEmpty() ? QString(amountPattern).remove(u'n').trimmed() : besideNumber(symbol);
}

//! Every habit as the toolkit's locale tells it.
Locale told(const QLocale &locale)
{
    Locale result;
    result.decimalSeparator = firstCharacter(locale.decimalPoint(), u'.');
    result.groupSeparator = firstCharacter(locale.groupSeparator(), u',');
    const QString shortDate = withoutMarks(locale.dateFormat(QLocale::ShortFormat));
    result.dateSeparator = separatorOf(shortDate);
    result.shortDatePattern = typedDatePattern(shortDate, result.dateSeparator);
    result.longDatePattern = withoutMarks(locale.dateFormat(QLocale::LongFormat));
    TimeHabits time(locale.timeFormat(QLocale::ShortFormat));
    // "5.08.06" would be read back as a date where points part dates, too.
    if (time.separator == result.dateSeparator)
        time.separator = u':';
    result.timeSeparator = time.separator;
    result.timePattern = time.pattern();
    result.currencyPositive = currencyPattern(locale.toCurrencyString(1.25), QStringLiteral("n"));
    result.currencyNegative = currencyPattern(locale.toCurrencyString(-1.25), QStringLiteral("-n"));
    result.currencySymbol = symbolOf(result.currencyPositive, locale.currencySymbol());
    result.amText = locale.amText();
    result.pmText = locale.pmText();
    for (int month = 1; month <= 12; ++month) {
        result.monthNames += locale.standaloneMonthName(month);
        result.monthNamesGenitive += locale.monthName(month);
        result.shortMonthNames += locale.standaloneMonthName(month, QLocale::ShortFormat);
    }
    for (const int day : {7, 1, 2, 3, 4, 5, 6}) {
        result.dayNames += locale.standaloneDayName(day);
        result.shortDayNames += locale.standaloneDayName(day, QLocale::ShortFormat);
    }
    result.firstDayOfWeek = locale.firstDayOfWeek();
    return result;
}

//! Where the system says nothing of its own, the classic value; where it does, what it says.
Locale corrected(const Locale &system, const Locale &stock, const Locale &classic)
{
    Locale result = classic;
    const auto take = [&](auto member) {
        if (system.*member != stock.*member)
            result.*member = system.*member;
    };
    take(&Locale::decimalSeparator);
    take(&Locale::groupSeparator);
    take(&Locale::currencySymbol);
    take(&Locale::currencyPositive);
    take(&Locale::currencyNegative);
    // LC_TIME=C says nothing about dates: the toolkit's neutral ones ("6 Jan 1998") are nobody's, and can't be typed.
    static const QString neutral = told(QLocale::c()).shortDatePattern;
    if (system.shortDatePattern == neutral)
        return result;
    take(&Locale::dateSeparator);
    take(&Locale::timeSeparator);
    take(&Locale::shortDatePattern);
    take(&Locale::longDatePattern);
    take(&Locale::timePattern);
    take(&Locale::amText);
    take(&Locale::pmText);
    take(&Locale::monthNames);
    take(&Locale::monthNamesGenitive);
    take(&Locale::shortMonthNames);
    take(&Locale::dayNames);
    take(&Locale::shortDayNames);
    take(&Locale::firstDayOfWeek);
    return result;
}

} // namespace

Locale Locale::fromQLocale(const QLocale &locale)
{
    // An environment without a locale (LC_ALL=C) says nothing about habits; English is what programs expect there.
    if (locale.language() == QLocale::C)
        return english();
    const auto is = [&](QLocale::Language language, QLocale::Territory territory) {
        return locale.language() == language && locale.territory() == territory;
    };
    // The toolkit's data differ from the classic ones in these three: days of one digit, words, signs of amounts.
    const Locale stock = told(QLocale(locale.language(), locale.script(), locale.territory()));
    Locale classic = stock;
    if (is(QLocale::Polish, QLocale::Poland))
        classic = polish();
    else if (is(QLocale::English, QLocale::UnitedStates))
        classic = english();
    else if (is(QLocale::German, QLocale::Germany))
        classic = german();
    else if (locale.language() == QLocale::Polish)
        setPolishWords(classic);
    else if (locale.language() == QLocale::German)
        setGermanWords(classic);
    return corrected(told(locale), stock, classic);
}

} // namespace kor
