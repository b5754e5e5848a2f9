// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/datereading.h"
#include "runtime/numberreading.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/date.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <cmath>

namespace kor {

bool IsDate(const QVariant &value, const Locale &locale)
{
    switch (variantType(value)) {
    case VariantType::Date: return momentOf(value).date.isValid();
    case VariantType::String: return readDate(value.toString(), locale).has_value();
    case VariantType::Other: return IsDate(normalized(value), locale);
    default: return false;
    }
}

QDate DateValue(const QVariant &value, const Locale &locale)
{
    const QVariant known = normalized(value);
    if (variantType(known) == VariantType::Date)
        return momentOf(known).date;
    // Everything else goes by its text, so that a bare number is refused and not taken for a day number.
    const auto moment = readDate(CStr(known, locale), locale);
    if (!moment)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    return moment->date;
}

QDate DateSerial(int year, int month, int day)
{
    const qint64 months = qint64(fullYear(year)) * 12 + month - 1;
    const qint64 monthsOfYear = ((months % 12) + 12) % 12;
    const qint64 wholeYear = (months - monthsOfYear) / 12;
    if (year < 0 || wholeYear < 1 || wholeYear > 10'000)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    const QDate first(static_cast<int>(wholeYear), static_cast<int>(monthsOfYear) + 1, 1);
    const QDate date = first.addDays(qint64(day) - 1);
    if (!isInCalendar(date))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return date;
}

QVariant CDate(const QVariant &value, const Locale &locale)
{
    const QVariant known = normalized(value);
    if (variantType(known) == VariantType::Date)
        return known;
    if (variantType(known) == VariantType::String) {
        if (const auto moment = readDate(known.toString(), locale))
            return dateVariant(*moment);
    }
    const auto moment = momentOfSerial(CDbl(known, locale));
    if (!moment)
        throw RunTimeError(ErrorNumber::Overflow);
    return dateVariant(*moment);
}

} // namespace kor
