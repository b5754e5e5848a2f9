// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/held.h"
#include "runtime/numberreading.h"
#include "runtime/textorder.h"

#include <KorDaoUC/compare.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/date.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <cmath>

namespace kor {

namespace {

std::partial_ordering fromInt(int order) { return order <=> 0; }

std::partial_ordering compareTexts(const QString &left, const QString &right, TextComparison mode)
{
    return fromInt(mode == TextComparison::Binary ? left.compare(right) : compareByDictionary(left, right));
}

bool isNothing(VariantType type) { return type == VariantType::Null || type == VariantType::Missing; }

//! Of a number, truth value, date or Empty, to which the locale is of no importance.
ExactNumber exactNumberOf(const QVariant &value)
{
    static const Locale locale = Locale::english();
    return variantType(value) == VariantType::LongLong ? exactly(held<qint64>(value)) : exactly(CDbl(value, locale));
}

//! Both are numbers, truth values, dates or Empty.
std::partial_ordering compareNumbers(const QVariant &left, const QVariant &right)
{
    const VariantType leftType = variantType(left);
    const VariantType rightType = variantType(right);
    if (leftType == VariantType::Currency && rightType == VariantType::Currency)
        return held<Currency>(left) <=> held<Currency>(right);
    const ExactNumber leftNumber = exactNumberOf(left);
    const ExactNumber rightNumber = exactNumberOf(right);
    // A Double beside a Single has no more digits than the Single: 0.7 lies inside a range that ends at 0.7.
    const bool single = (leftType == VariantType::Single && rightType == VariantType::Double) ||
                        (leftType == VariantType::Double && rightType == VariantType::Single);
    if (single)
        return static_cast<float>(leftNumber.number) <=> static_cast<float>(rightNumber.number);
    return compareExactly(leftNumber, rightNumber);
}

//! The equality of two values of one kind; texts are compared exactly.
bool sameKindEqual(const QVariant &left, const QVariant &right)
{
    const auto order = compare(left, right, TextComparison::Binary);
    return order && std::is_eq(*order);
}

} // namespace

std::optional<std::partial_ordering> compare(const QVariant &left, const QVariant &right, TextComparison mode)
{
    const VariantType leftType = variantType(left);
    const VariantType rightType = variantType(right);
    if (leftType == VariantType::Other || rightType == VariantType::Other)
        return compare(normalized(left), normalized(right), mode);
    if (isNothing(leftType) || isNothing(rightType))
        return std::nullopt;
    const bool leftText = leftType == VariantType::String;
    const bool rightText = rightType == VariantType::String;
    if (leftText && rightText)
        return compareTexts(held<QString>(left), held<QString>(right), mode);
    if (leftText)
        return rightType == VariantType::Empty ? compareTexts(held<QString>(left), {}, mode)
                                               : std::partial_ordering::greater;
    if (rightText)
        return leftType == VariantType::Empty ? compareTexts({}, held<QString>(right), mode)
                                              : std::partial_ordering::less;
    return compareNumbers(left, right);
}

bool strictlyEqual(const QVariant &left, const QVariant &right) { return sameKindEqual(left, right); }

bool looselyEqual(const QVariant &left, const QVariant &right, const Locale &locale)
{
    const VariantType leftType = variantType(left);
    const VariantType rightType = variantType(right);
    if (leftType == VariantType::Other || rightType == VariantType::Other)
        return looselyEqual(normalized(left), normalized(right), locale);
    const bool leftText = leftType == VariantType::String;
    const bool rightText = rightType == VariantType::String;
    const auto isNumber = [](VariantType type) { return !isNothing(type) && type != VariantType::Empty; };
    if (leftText == rightText || !isNumber(leftType) || !isNumber(rightType))
        return sameKindEqual(left, right);
    const NumberReading reading = readNumber(held<QString>(leftText ? left : right), locale);
    if (!reading.isNumber())
        return false;
    const QVariant &number = leftText ? right : left;
    const ExactNumber exact = reading.toExact();
    const ExactNumber beside = exactNumberOf(number);
    // A Double beyond 2^53 stands for all that is rounded to it, also for its own text of fifteen digits.
    constexpr double exactInDouble = 0x1p53;
    if (exact.isWhole && (beside.isWhole || std::fabs(beside.number) <= exactInDouble))
        return std::is_eq(compareExactly(exact, beside));
    return std::is_eq(compareNumbers(exact.number, number));
}

namespace {

//! A value as the number that its neighbour's type calls for: beside a date a text is read as a date.
ExactNumber numberBeside(const QVariant &value, const QVariant &neighbour, const Locale &locale)
{
    if (variantType(value) == VariantType::LongLong)
        return exactly(held<qint64>(value));
    if (variantType(value) != VariantType::String)
        return exactly(CDbl(value, locale));
    switch (variantType(neighbour)) {
    case VariantType::Date: return exactly(CDbl(CDate(value, locale), locale));
    case VariantType::Boolean: return exactly(CBool(value, locale) ? -1.0 : 0.0);
    case VariantType::LongLong:
        if (const NumberReading reading = readNumber(held<QString>(value), locale); reading.isNumber())
            return reading.toExact();
        [[fallthrough]];
    default: return exactly(CDbl(value, locale));
    }
}

//! One side is a declared variable, the other a Variant or declared as well, and exactly one of them is a text.
std::partial_ordering compareTextWithNumber(const QVariant &left, const QVariant &right, bool asText, bool byCodeUnit,
                                            const Locale &locale)
{
    if (asText) {
        const QString leftText = CStr(left, locale);
        const QString rightText = CStr(right, locale);
        return fromInt(byCodeUnit ? leftText.compare(rightText) : compareByDictionary(leftText, rightText));
    }
    return compareExactly(numberBeside(left, right, locale), numberBeside(right, left, locale));
}

} // namespace

std::optional<std::partial_ordering> compareDeclared(const QVariant &left, const QVariant &right, Declared declared,
                                                     TextComparison mode, const Locale &locale)
{
    if (variantType(left) == VariantType::Other || variantType(right) == VariantType::Other)
        return compareDeclared(normalized(left), normalized(right), declared, mode, locale);
    const VariantType leftType = variantType(left);
    const VariantType rightType = variantType(right);
    const bool leftText = leftType == VariantType::String;
    const bool rightText = rightType == VariantType::String;
    const auto isNumber = [](VariantType type) { return !isNothing(type) && type != VariantType::Empty; };
    if (leftText == rightText || !isNumber(leftType) || !isNumber(rightType))
        return compare(left, right, mode);
    switch (declared) {
    // Kept: against a Variant the declared type rules, and texts are then in dictionary order; between two declared
    // variables the text rules, by code unit.
    case Declared::Left: return compareTextWithNumber(left, right, leftText, false, locale);
    case Declared::Right: return compareTextWithNumber(left, right, rightText, false, locale);
    case Declared::Both: break;
    }
    return compareTextWithNumber(left, right, true, mode == TextComparison::Binary, locale);
}

} // namespace kor
