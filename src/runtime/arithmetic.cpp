// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/serial.h"

#include <KorDaoUC/arithmetic.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <cmath>
#include <limits>
#include <utility>

namespace kor {

namespace {

bool isWhole(VariantType type)
{
    return type == VariantType::Empty || type == VariantType::Boolean || type == VariantType::Byte ||
           type == VariantType::Integer || type == VariantType::Long || type == VariantType::LongLong;
}

//! How wide the whole numbers of a type are; a truth value and Empty count as Integer.
int rank(VariantType type)
{
    switch (type) {
    case VariantType::Byte: return 0;
    case VariantType::Long:
    case VariantType::LongLong: return 2;
    default: return 1;
    }
}

qint64 wholeOf(const QVariant &value, const Locale &locale)
{
    return variantType(value) == VariantType::LongLong ? value.toLongLong() : CLng(value, locale);
}

QVariant wholeSum(const QVariant &left, const QVariant &right, const Locale &locale)
{
    qint64 sum = 0;
    if (qAddOverflow(wholeOf(left, locale), wholeOf(right, locale), &sum))
        return CDbl(left, locale) + CDbl(right, locale);
    const int width = qMax(rank(variantType(left)), rank(variantType(right)));
    if (width == 0 && std::in_range<uchar>(sum))
        return QVariant::fromValue(static_cast<uchar>(sum));
    if (width <= 1 && std::in_range<short>(sum))
        return QVariant::fromValue(static_cast<short>(sum));
    return normalized(QVariant::fromValue(sum));
}

QVariant doubleSum(double left, double right)
{
    const double sum = left + right;
    if (!std::isfinite(sum))
        throw RunTimeError(ErrorNumber::Overflow);
    return sum;
}

//! A date as long as the sum lies in the calendar.
QVariant dateSum(double left, double right)
{
    const auto moment = momentOfSerial(left + right);
    return moment ? dateVariant(*moment) : doubleSum(left, right);
}

//! Single as long as the other operand has no more digits than a Single and the sum fits.
QVariant singleSum(double left, double right)
{
    const double sum = left + right;
    if (std::fabs(sum) > static_cast<double>(std::numeric_limits<float>::max()))
        return sum;
    return static_cast<float>(sum);
}

} // namespace

QVariant add(const QVariant &leftValue, const QVariant &rightValue, const Locale &locale)
{
    const QVariant left = normalized(leftValue);
    const QVariant right = normalized(rightValue);
    const VariantType leftType = variantType(left);
    const VariantType rightType = variantType(right);
    const auto either = [&](VariantType type) { return leftType == type || rightType == type; };
    if (either(VariantType::Missing))
        throw RunTimeError(ErrorNumber::TypeMismatch);
    if (either(VariantType::Null))
        return null();
    if (leftType == VariantType::Empty && rightType != VariantType::Empty)
        return right;
    if (rightType == VariantType::Empty && leftType != VariantType::Empty)
        return left;
    if (leftType == VariantType::String && rightType == VariantType::String)
        return QString(left.toString() + right.toString());
    if (isWhole(leftType) && isWhole(rightType))
        return wholeSum(left, right, locale);
    if (either(VariantType::Date))
        return dateSum(CDbl(left, locale), CDbl(right, locale));
    if (either(VariantType::Currency))
        return QVariant::fromValue(CCur(left, locale) + CCur(right, locale));
    const auto fitsSingle = [](VariantType type) {
        return type == VariantType::Single || (isWhole(type) && rank(type) < 2);
    };
    if (fitsSingle(leftType) && fitsSingle(rightType))
        return singleSum(CDbl(left, locale), CDbl(right, locale));
    return doubleSum(CDbl(left, locale), CDbl(right, locale));
}

} // namespace kor
