// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridvalues.h"

#include "date/daterules.h"
#include "lists/keytext.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/date.h>
#include <KorDaoUC/format.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

namespace kor {

namespace {

const QString shortDate = QStringLiteral("Short Date");

QVariant dateIn(const QString &text, const ValueRules &rules)
{
    if (const DateCheck check = checkDate(text, {shortDate, rules.signs.locale, rules.today}); check.date)
        return *check.date;
    return IsDate(text, rules.signs.locale) ? CDate(text, rules.signs.locale) : null();
}

CellTexts textsOfNumber(const QString &format, const QVariant &value, const NumberSigns &signs)
{
    const auto number = numberGiven(value, signs);
    if (!number)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    const QString plain = CStr(*number, signs.locale);
    return {formatForDisplay(plain, format, signs), plain};
}

CellTexts textsOfDate(const QVariant &value, const ValueRules &rules)
{
    QVariant date = variantType(value) == VariantType::String ? dateIn(CStr(value, rules.signs.locale), rules) : value;
    if (isNull(date))
        throw RunTimeError(ErrorNumber::TypeMismatch);
    date = CDate(date, rules.signs.locale);
    return {Format(date, shortDate, rules.signs.locale), CStr(date, rules.signs.locale)};
}

} // namespace

QVariant valueOfCell(ColumnType type, const CellTexts &texts, const ValueRules &rules)
{
    const QString &text = texts.raw ? *texts.raw : texts.shown;
    // The raw text of a cell that was emptied is what stood there before.
    if (texts.shown.isEmpty() || text.isEmpty())
        return null();
    switch (type) {
    case ColumnType::Number: {
        const auto number = numberGiven(text, rules.signs);
        return number ? QVariant(*number) : null();
    }
    case ColumnType::Date: return dateIn(text, rules);
    case ColumnType::Text: return texts.shown;
    case ColumnType::Click:
    case ColumnType::Combo: break;
    }
    return text;
}

CellTexts textsOfValue(ColumnType type, const QString &format, const QVariant &given, const ValueRules &rules)
{
    const QVariant value = normalized(given);
    if (isNoNumber(value))
        return {QString(), QString()};
    switch (type) {
    case ColumnType::Number: return textsOfNumber(format, value, rules.signs);
    case ColumnType::Date: return textsOfDate(value, rules);
    case ColumnType::Text:
    case ColumnType::Click:
    case ColumnType::Combo: break;
    }
    const QString text = rawTextOf(type, value, rules.signs.locale);
    return {text, text};
}

QString rawTextOf(ColumnType type, const QVariant &value, const Locale &locale)
{
    const bool isKey = type == ColumnType::Combo || type == ColumnType::Click;
    return isKey ? textOfKey(value, locale) : CStr(value, locale);
}

} // namespace kor
