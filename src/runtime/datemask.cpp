// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/datemask.h"

#include "runtime/compiledmask.h"

namespace kor {

namespace {

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
