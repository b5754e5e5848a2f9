// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/datemask.h"

#include "runtime/compiledmask.h"

namespace kor {

namespace {

char16_t lowered(QChar c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c.unicode() + 32) : c.unicode(); }

//! How many times the character at `at` stands there in a row, in either case, up to a limit.
int runLength(QStringView text, qsizetype at, int limit)
{
    const char16_t letter = lowered(text[at]);
    int length = 1;
    while (length < limit && at + length < text.size() && lowered(text[at + length]) == letter)
        ++length;
    return length;
}

void writeTwoDigits(int value, MaskOutput &out)
{
    out.append(static_cast<char16_t>(u'0' + value / 10 % 10));
    out.append(static_cast<char16_t>(u'0' + value % 10));
}

//! Of a year at most: four digits.
void writeNumber(int value, MaskOutput &out)
{
    if (value >= 1000)
        writeTwoDigits(value / 100, out);
    else if (value >= 100)
        out.append(static_cast<char16_t>(u'0' + value / 100));
    if (value >= 10)
        writeTwoDigits(value % 100, out);
    else
        out.append(static_cast<char16_t>(u'0' + value));
}

int sundayBased(QDate date) { return date.dayOfWeek() % 7; }

//! The week of the year, where the week of 1 January is the first.
int weekOf(QDate date, Qt::DayOfWeek firstDay)
{
    const QDate newYear(date.year(), 1, 1);
    const int offset = (newYear.dayOfWeek() - static_cast<int>(firstDay) + 7) % 7;
    return (date.dayOfYear() - 1 + offset) / 7 + 1;
}

} // namespace

qsizetype halfOfDayLength(QStringView text)
{
    for (const QStringView form : {QStringView(u"AM/PM"), QStringView(u"A/P"), QStringView(u"AMPM")}) {
        if (text.startsWith(form, Qt::CaseInsensitive))
            return form.size();
    }
    return 0;
}

bool isDateMaskLetter(QStringView rest)
{
    switch (lowered(rest.front())) {
    case u'd':
    case u'w':
    case u'm':
    case u'q':
    case u'y':
    case u'h':
    case u'n':
    case u's':
    case u'c':
    case u'/':
    case u':': return true;
    case u't': return runLength(rest, 0, 5) == 5;
    case u'a': return halfOfDayLength(rest) > 0;
    default: return false;
    }
}

void DateMask::append(DatePart part, char16_t literal) { m_items.push_back({part, literal}); }

void DateMask::appendHalfOfDay(DatePart part)
{
    m_twelveHours = true;
    append(part);
}

DateMask DateMask::fromPicture(QStringView picture)
{
    using enum DatePart;
    static constexpr DatePart days[] = {Day, TwoDigitDay, ShortDayName, DayName, ShortDate, LongDate};
    static constexpr DatePart months[] = {Month, TwoDigitMonth, ShortMonthName, MonthName};
    static constexpr DatePart years[] = {DayOfYear, TwoDigitYear, TwoDigitYear, Year};
    DateMask mask;
    mask.m_items.reserve(static_cast<std::size_t>(picture.size()));
    bool afterHour = false; // an m that follows the hour means minutes
    for (qsizetype at = 0; at < picture.size();) {
        const QStringView rest = picture.sliced(at);
        const char16_t letter = lowered(rest.front());
        qsizetype length = 1;
        const auto take = [&](int limit) {
            length = runLength(picture, at, limit);
            return static_cast<std::size_t>(length - 1);
        };
        bool isField = true;
        switch (letter) {
        case u'd': mask.append(days[take(6)]); break;
        case u'w': mask.append(take(2) == 0 ? WeekDay : Week); break;
        case u'm': {
            const std::size_t run = take(afterHour ? 2 : 4);
            mask.append(!afterHour ? months[run] : run == 0 ? Minute : TwoDigitMinute);
            break;
        }
        case u'q': mask.append(Quarter); break;
        case u'y': {
            const std::size_t run = take(4);
            length = run == 2 ? 2 : length; // three of them are a short year and a day of the year
            mask.append(years[run]);
            break;
        }
        case u'h': mask.append(take(2) == 0 ? Hour : TwoDigitHour); break;
        case u'n': mask.append(take(2) == 0 ? Minute : TwoDigitMinute); break;
        case u's': mask.append(take(2) == 0 ? Second : TwoDigitSecond); break;
        case u'c': mask.append(GeneralDate); return mask; // Kept: nothing behind the whole date is written
        case u'/':
            mask.append(DateSeparator);
            isField = false;
            break;
        case u':':
            mask.append(TimeSeparator);
            isField = false;
            break;
        case u't':
            isField = take(5) == 4;
            mask.append(isField ? LongTime : Literal, letter);
            length = isField ? 5 : 1;
            break;
        case u'a':
            length = halfOfDayLength(rest);
            if (length == 5)
                mask.appendHalfOfDay(rest.front() == u'A' ? UpperAmPm : LowerAmPm);
            else if (length == 3)
                mask.appendHalfOfDay(rest.front() == u'A' ? UpperLetter : LowerLetter);
            else if (length == 4)
                mask.appendHalfOfDay(LocaleAmPm);
            isField = length > 0;
            if (!isField) {
                mask.append(Literal, rest.front().unicode());
                length = 1;
            }
            break;
        case u'"': {
            const qsizetype end = picture.indexOf(u'"', at + 1);
            const QStringView text = picture.sliced(at + 1, (end < 0 ? picture.size() : end) - at - 1);
            for (const QChar c : text)
                mask.append(Literal, c.unicode());
            length = end < 0 ? picture.size() - at : end - at + 1;
            isField = false;
            break;
        }
        case u'\\':
            if (rest.size() > 1)
                mask.append(Literal, rest[1].unicode());
            length = qMin<qsizetype>(2, rest.size());
            isField = false;
            break;
        case u';': return mask;
        default:
            mask.append(Literal, rest.front().unicode());
            isField = false;
            break;
        }
        if (isField)
            afterHour = letter == u'h';
        at += length;
    }
    return mask;
}

DateMask DateMask::fromSystemPattern(QStringView pattern)
{
    using enum DatePart;
    DateMask mask;
    bool hasDayNumber = false;
    bool quoted = false;
    for (qsizetype at = 0; at < pattern.size();) {
        const char16_t c = pattern[at].unicode();
        if (c == u'\'') {
            // Two in a row are the character itself.
            if (at + 1 < pattern.size() && pattern[at + 1] == u'\'')
                mask.append(Literal, pattern[++at].unicode());
            else
                quoted = !quoted;
            ++at;
            continue;
        }
        qsizetype length = 1;
        while (at + length < pattern.size() && pattern[at + length] == c && length < 4)
            ++length;
        const bool many = length > 1;
        if (quoted) {
            length = 1;
            mask.append(Literal, c);
        } else if (c == u'd') {
            hasDayNumber = hasDayNumber || length < 3;
            mask.append(length == 1 ? Day : length == 2 ? TwoDigitDay : length == 3 ? ShortDayName : DayName);
        } else if (c == u'M') {
            mask.append(length == 1 ? Month : length == 2 ? TwoDigitMonth : length == 3 ? ShortMonthName : MonthName);
        } else if (c == u'y') {
            mask.append(length == 2 ? TwoDigitYear : Year);
        } else if (c == u'H') {
            mask.append(many ? TwoDigitHour : Hour);
        } else if (c == u'h') {
            mask.m_twelveHours = true;
            mask.append(many ? TwoDigitHour : Hour);
        } else if (c == u'm') {
            mask.append(many ? TwoDigitMinute : Minute);
        } else if (c == u's') {
            mask.append(many ? TwoDigitSecond : Second);
        } else if (c == u't') {
            mask.append(LocaleAmPm);
        } else {
            length = 1;
            mask.append(Literal, c);
        }
        at += length;
    }
    if (hasDayNumber) {
        for (Item &item : mask.m_items)
            item.part = item.part == MonthName ? MonthNameBesideDay : item.part;
    }
    return mask;
}

struct DateMask::Fields {
    const Moment &moment;
    int year = 0;
    int month = 0;
    int day = 0;
};

void DateMask::write(const Moment &moment, const Locale &locale, MaskOutput &out) const
{
    Fields fields{moment};
    moment.date.getDate(&fields.year, &fields.month, &fields.day);
    for (const Item item : m_items)
        writePart(item, fields, locale, out);
}

void DateMask::writePart(Item item, const Fields &fields, const Locale &locale, MaskOutput &out) const
{
    const Moment &moment = fields.moment;
    switch (item.part) {
    case DatePart::Literal: out.append(item.literal); break;
    case DatePart::DateSeparator: out.append(locale.dateSeparator.unicode()); break;
    case DatePart::TimeSeparator: out.append(locale.timeSeparator.unicode()); break;
    case DatePart::GeneralDate: writeGeneralDate(moment, locale, out); break;
    case DatePart::ShortDate: systemPattern(locale.shortDatePattern).write(moment, locale, out); break;
    case DatePart::LongDate: systemPattern(locale.longDatePattern).write(moment, locale, out); break;
    case DatePart::LongTime: systemPattern(locale.timePattern).write(moment, locale, out); break;
    default:
        if (item.part < DatePart::Hour)
            writeDatePart(item.part, fields, locale, out);
        else
            writeTimePart(item.part, moment.time, locale, out);
    }
}

void DateMask::writeDatePart(DatePart part, const Fields &fields, const Locale &locale, MaskOutput &out) const
{
    const QDate date = fields.moment.date;
    const int month = fields.month;
    switch (part) {
    case DatePart::Day: writeNumber(fields.day, out); break;
    case DatePart::TwoDigitDay: writeTwoDigits(fields.day, out); break;
    case DatePart::ShortDayName: appendText(locale.shortDayNames.value(sundayBased(date)), out); break;
    case DatePart::DayName: appendText(locale.dayNames.value(sundayBased(date)), out); break;
    case DatePart::WeekDay: writeNumber(sundayBased(date) + 1, out); break;
    case DatePart::Week: writeNumber(weekOf(date, locale.firstDayOfWeek), out); break;
    case DatePart::Month: writeNumber(month, out); break;
    case DatePart::TwoDigitMonth: writeTwoDigits(month, out); break;
    case DatePart::ShortMonthName: appendText(locale.shortMonthNames.value(month - 1), out); break;
    case DatePart::MonthName: appendText(locale.monthNames.value(month - 1), out); break;
    case DatePart::MonthNameBesideDay: appendText(locale.monthNamesGenitive.value(month - 1), out); break;
    case DatePart::Quarter: writeNumber((month + 2) / 3, out); break;
    case DatePart::DayOfYear: writeNumber(date.dayOfYear(), out); break;
    case DatePart::TwoDigitYear: writeTwoDigits(fields.year % 100, out); break;
    case DatePart::Year: writeNumber(fields.year, out); break;
    default: break;
    }
}

void DateMask::writeTimePart(DatePart part, QTime time, const Locale &locale, MaskOutput &out) const
{
    const bool afternoon = time.hour() >= 12;
    const int hour = m_twelveHours ? (time.hour() + 11) % 12 + 1 : time.hour();
    switch (part) {
    case DatePart::Hour: writeNumber(hour, out); break;
    case DatePart::TwoDigitHour: writeTwoDigits(hour, out); break;
    case DatePart::Minute: writeNumber(time.minute(), out); break;
    case DatePart::TwoDigitMinute: writeTwoDigits(time.minute(), out); break;
    case DatePart::Second: writeNumber(time.second(), out); break;
    case DatePart::TwoDigitSecond: writeTwoDigits(time.second(), out); break;
    case DatePart::UpperAmPm: appendText(afternoon ? u"PM" : u"AM", out); break;
    case DatePart::LowerAmPm: appendText(afternoon ? u"pm" : u"am", out); break;
    case DatePart::UpperLetter: out.append(afternoon ? u'P' : u'A'); break;
    case DatePart::LowerLetter: out.append(afternoon ? u'p' : u'a'); break;
    case DatePart::LocaleAmPm: appendText(afternoon ? locale.pmText : locale.amText, out); break;
    default: break;
    }
}

void writeGeneralDate(const Moment &moment, const Locale &locale, MaskOutput &out)
{
    const bool timeOnly = moment.date == dayZero();
    if (!timeOnly)
        systemPattern(locale.shortDatePattern).write(moment, locale, out);
    if (timeOnly || !moment.isMidnight()) {
        if (!timeOnly)
            out.append(u' ');
        systemPattern(locale.timePattern).write(moment, locale, out);
    }
}

} // namespace kor
