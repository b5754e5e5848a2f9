// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/maskoutput.h"
#include "runtime/serial.h"

#include <KorDaoUC/locale.h>

#include <QtCore/QStringView>

#include <vector>

namespace kor {

//! One thing that a date mask writes.
enum class DatePart : quint8 {
    Literal,
    DateSeparator,
    TimeSeparator,
    GeneralDate,
    ShortDate,
    LongDate,
    LongTime,
    Day,
    TwoDigitDay,
    ShortDayName,
    DayName,
    WeekDay,
    Week,
    Month,
    TwoDigitMonth,
    ShortMonthName,
    MonthName,
    MonthNameBesideDay,
    Quarter,
    DayOfYear,
    TwoDigitYear,
    Year,
    Hour,
    TwoDigitHour,
    Minute,
    TwoDigitMinute,
    Second,
    TwoDigitSecond,
    UpperAmPm,
    LowerAmPm,
    UpperLetter,
    LowerLetter,
    LocaleAmPm
};

//! A date mask, compiled: the parts in their order. Hours run to 12 when any part writes the half of the day.
class DateMask
{
public:
    //! From a user's picture: d to dddddd, w, m, q, y, h, n, s, c, ttttt, AM/PM, / and :.
    [[nodiscard]] static DateMask fromPicture(QStringView picture);
    //! From a pattern of the system: d to dddd, M to MMMM, y, H, h, m, s, t. Separators stand as they are.
    [[nodiscard]] static DateMask fromSystemPattern(QStringView pattern);

    void append(DatePart part, char16_t literal = 0);
    void write(const Moment &moment, const Locale &locale, MaskOutput &out) const;

private:
    struct Item {
        DatePart part;
        char16_t literal;
    };

    class PictureCompiler;
    void appendHalfOfDay(DatePart part);
    struct Fields;
    void writePart(Item item, const Fields &fields, const Locale &locale, MaskOutput &out) const;
    void writeDatePart(DatePart part, const Fields &fields, const Locale &locale, MaskOutput &out) const;
    void writeTimePart(DatePart part, QTime time, const Locale &locale, MaskOutput &out) const;

    std::vector<Item> m_items;
    bool m_twelveHours = false;
};

//! Date and time as the locale writes them; midnight is left out, and so is the day of a time alone.
void writeGeneralDate(const Moment &moment, const Locale &locale, MaskOutput &out);

//! Length of AM/PM, A/P or AMPM at the start of the text (any case), 0 when there is none.
[[nodiscard]] qsizetype halfOfDayLength(QStringView text);
//! Whether a date mask gives the character a meaning of its own.
[[nodiscard]] bool isDateMaskLetter(QStringView rest);

} // namespace kor
