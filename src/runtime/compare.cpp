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

//! A value and its type, which is asked for once.
struct Operand {
    explicit Operand(const QVariant &given) : value(given), type(variantType(given)) {}

    [[nodiscard]] bool isText() const { return type == VariantType::String; }
    [[nodiscard]] bool isNumber() const { return !isNothing(type) && type != VariantType::Empty; }

    const QVariant &value;
    VariantType type;
};

bool areBoth(VariantType type, const Operand &left, const Operand &right)
{
    return left.type == type && right.type == type;
}

//! Of a number, truth value, date or Empty, to which the locale is of no importance.
ExactNumber exactNumberOf(const Operand &operand)
{
    static const Locale locale = Locale::english();
    return operand.type == VariantType::LongLong ? exactly(held<qint64>(operand.value))
                                                 : exactly(CDbl(operand.value, locale));
}

//! Both are numbers, truth values, dates or Empty.
std::partial_ordering compareNumbers(const Operand &left, const Operand &right)
{
    if (areBoth(VariantType::Long, left, right)) // as the keys of nearly every dictionary are
        return held<int>(left.value) <=> held<int>(right.value);
    if (areBoth(VariantType::Currency, left, right))
        return held<Currency>(left.value) <=> held<Currency>(right.value);
    const ExactNumber leftNumber = exactNumberOf(left);
    const ExactNumber rightNumber = exactNumberOf(right);
    // A Double beside a Single has no more digits than the Single: 0.7 lies inside a range that ends at 0.7.
    const bool single = (left.type == VariantType::Single && right.type == VariantType::Double) ||
                        (left.type == VariantType::Double && right.type == VariantType::Single);
    if (single)
        return static_cast<float>(leftNumber.number) <=> static_cast<float>(rightNumber.number);
    return compareExactly(leftNumber, rightNumber);
}

//! Neither is of a type outside the mapping of Variants.
std::optional<std::partial_ordering> compareKnown(const Operand &left, const Operand &right, TextComparison mode)
{
    if (isNothing(left.type) || isNothing(right.type))
        return std::nullopt;
    if (left.isText() && right.isText())
        return compareTexts(held<QString>(left.value), held<QString>(right.value), mode);
    if (left.isText())
        return right.type == VariantType::Empty ? compareTexts(held<QString>(left.value), {}, mode)
                                                : std::partial_ordering::greater;
    if (right.isText())
        return left.type == VariantType::Empty ? compareTexts({}, held<QString>(right.value), mode)
                                               : std::partial_ordering::less;
    return compareNumbers(left, right);
}

bool isOther(const Operand &left, const Operand &right)
{
    return left.type == VariantType::Other || right.type == VariantType::Other;
}

bool areEqual(std::optional<std::partial_ordering> order) { return order && std::is_eq(*order); }

} // namespace

std::optional<std::partial_ordering> compare(const QVariant &leftValue, const QVariant &rightValue, TextComparison mode)
{
    const Operand left(leftValue);
    const Operand right(rightValue);
    if (isOther(left, right))
        return compare(normalized(leftValue), normalized(rightValue), mode);
    return compareKnown(left, right, mode);
}

bool strictlyEqual(const QVariant &left, const QVariant &right)
{
    return areEqual(compare(left, right, TextComparison::Binary));
}

bool looselyEqual(const QVariant &leftValue, const QVariant &rightValue, const Locale &locale)
{
    const Operand left(leftValue);
    const Operand right(rightValue);
    if (isOther(left, right))
        return looselyEqual(normalized(leftValue), normalized(rightValue), locale);
    if (left.isText() == right.isText() || !left.isNumber() || !right.isNumber())
        return areEqual(compareKnown(left, right, TextComparison::Binary));
    const NumberReading reading = readNumber(held<QString>((left.isText() ? left : right).value), locale);
    if (!reading.isNumber())
        return false;
    const Operand &number = left.isText() ? right : left;
    const ExactNumber exact = reading.toExact();
    const ExactNumber beside = exactNumberOf(number);
    // A Double beyond 2^53 stands for all that is rounded to it, also for its own text of fifteen digits.
    constexpr double exactInDouble = 0x1p53;
    if (exact.isWhole && (beside.isWhole || std::fabs(beside.number) <= exactInDouble))
        return std::is_eq(compareExactly(exact, beside));
    const QVariant rounded(exact.number);
    return std::is_eq(compareNumbers(Operand(rounded), number));
}

namespace {

//! A value as the number that its neighbour's type calls for: beside a date a text is read as a date.
ExactNumber numberBeside(const Operand &operand, const Operand &neighbour, const Locale &locale)
{
    const QVariant &value = operand.value;
    if (operand.type == VariantType::LongLong)
        return exactly(held<qint64>(value));
    if (!operand.isText())
        return exactly(CDbl(value, locale));
    switch (neighbour.type) {
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
std::partial_ordering compareTextWithNumber(const Operand &left, const Operand &right, bool asText, bool byCodeUnit,
                                            const Locale &locale)
{
    if (asText) {
        const QString leftText = CStr(left.value, locale);
        const QString rightText = CStr(right.value, locale);
        return fromInt(byCodeUnit ? leftText.compare(rightText) : compareByDictionary(leftText, rightText));
    }
    return compareExactly(numberBeside(left, right, locale), numberBeside(right, left, locale));
}

} // namespace

std::optional<std::partial_ordering> compareDeclared(const QVariant &leftValue, const QVariant &rightValue,
                                                     Declared declared, TextComparison mode, const Locale &locale)
{
    const Operand left(leftValue);
    const Operand right(rightValue);
    if (isOther(left, right))
        return compareDeclared(normalized(leftValue), normalized(rightValue), declared, mode, locale);
    if (left.isText() == right.isText() || !left.isNumber() || !right.isNumber())
        return compareKnown(left, right, mode);
    switch (declared) {
    // Kept: against a Variant the declared type rules, and texts are then in dictionary order; between two declared
    // variables the text rules, by code unit.
    case Declared::Left: return compareTextWithNumber(left, right, left.isText(), false, locale);
    case Declared::Right: return compareTextWithNumber(left, right, right.isText(), false, locale);
    case Declared::Both: break;
    }
    return compareTextWithNumber(left, right, true, mode == TextComparison::Binary, locale);
}

} // namespace kor
