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
           type == VariantType::Integer || type == VariantType::Long;
}

//! How wide the whole numbers of a type are; a truth value and Empty count as Integer.
int rank(VariantType type) { return type == VariantType::Long ? 2 : type == VariantType::Byte ? 0 : 1; }

QVariant wholeSum(const QVariant &left, const QVariant &right, const Locale &locale)
{
    const qint64 sum = qint64(CLng(left, locale)) + CLng(right, locale);
    const int width = qMax(rank(variantType(left)), rank(variantType(right)));
    if (width == 0 && std::in_range<uchar>(sum))
        return QVariant::fromValue(static_cast<uchar>(sum));
    if (width <= 1 && std::in_range<short>(sum))
        return QVariant::fromValue(static_cast<short>(sum));
    if (std::in_range<int>(sum))
        return static_cast<int>(sum);
    return static_cast<double>(sum);
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
        return type == VariantType::Single || (isWhole(type) && type != VariantType::Long);
    };
    if (fitsSingle(leftType) && fitsSingle(rightType))
        return singleSum(CDbl(left, locale), CDbl(right, locale));
    return doubleSum(CDbl(left, locale), CDbl(right, locale));
}

} // namespace kor
