// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/datemask.h"
#include "runtime/held.h"
#include "runtime/numberreading.h"
#include "runtime/numbertext.h"
#include "runtime/serial.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <cmath>
#include <limits>

namespace kor {

namespace {

[[noreturn]] void mismatch() { throw RunTimeError(ErrorNumber::TypeMismatch); }
[[noreturn]] void overflow() { throw RunTimeError(ErrorNumber::Overflow); }
[[noreturn]] void nullMisused() { throw RunTimeError(ErrorNumber::InvalidUseOfNull); }

NumberReading readOrRefuse(const QVariant &text, const Locale &locale)
{
    const NumberReading reading = readNumber(held<QString>(text), locale);
    if (!reading.isNumber())
        mismatch();
    return reading;
}

template <typename Integer>
Integer rounded(double value)
{
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
        overflow();
    return static_cast<Integer>(whole);
}

//! Halves go to the even neighbour, as in binary, but without a detour through it.
qint64 roundedWhole(Currency value)
{
    const qint64 units = value.tenThousandths();
    const qint64 whole = units / 10000;
    const qint64 rest = qAbs(units % 10000);
    const bool away = rest > 5000 || (rest == 5000 && whole % 2 != 0);
    return whole + (away ? (units < 0 ? -1 : 1) : 0);
}

//! Integer and Long: `Bits` is the type as unsigned, for literals that fill it up to the sign.
template <typename Integer, typename Bits>
Integer toInteger(const QVariant &value, const Locale &locale)
{
    if (variantType(value) == VariantType::String) {
        const NumberReading reading = readOrRefuse(value, locale);
        if (reading.kind == NumberReading::Kind::Radix) {
            if (reading.bits > std::numeric_limits<Bits>::max())
                overflow();
            return static_cast<Integer>(static_cast<Bits>(reading.bits));
        }
        return rounded<Integer>(reading.toDouble());
    }
    if (variantType(value) == VariantType::Currency)
        return rounded<Integer>(static_cast<double>(roundedWhole(held<Currency>(value))));
    return rounded<Integer>(CDbl(value, locale));
}

} // namespace

bool IsNumeric(const QVariant &value, const Locale &locale)
{
    // Asked at every key press, mostly of a text. (A Null text is an empty one here, and not numeric either way.)
    if (value.typeId() == QMetaType::QString) {
        const NumberReading reading = readNumber(held<QString>(value), locale);
        return reading.isNumber() && reading.isFinite();
    }
    switch (variantType(value)) {
    case VariantType::Null:
    case VariantType::Missing:
    case VariantType::Date: return false;
    case VariantType::Other: {
        const QVariant known = normalized(value);
        return variantType(known) != VariantType::Empty && IsNumeric(known, locale);
    }
    default: return true;
    }
}

QString CStr(const QVariant &value, const Locale &locale)
{
    switch (variantType(value)) {
    case VariantType::Empty: return {};
    case VariantType::Null: nullMisused();
    case VariantType::Missing: mismatch();
    case VariantType::Boolean: return held<bool>(value) ? QStringLiteral("True") : QStringLiteral("False");
    case VariantType::Byte: return QString::number(held<uchar>(value));
    case VariantType::Integer: return QString::number(held<short>(value));
    case VariantType::Long: return QString::number(held<int>(value));
    case VariantType::LongLong: return QString::number(held<qint64>(value));
    case VariantType::Single:
        return numberText(Decimal::fromSingle(held<float>(value)), Decimal::singleDigits, locale.decimalSeparator);
    case VariantType::Double:
        return numberText(Decimal::fromDouble(held<double>(value)), Decimal::doubleDigits, locale.decimalSeparator);
    case VariantType::Currency:
        return numberText(Decimal::fromCurrency(held<Currency>(value)), 19, locale.decimalSeparator);
    case VariantType::Date: {
        MaskOutput out;
        writeGeneralDate(momentOf(value), locale, out);
        return textOf(out);
    }
    case VariantType::String: return held<QString>(value);
    case VariantType::Other: break;
    }
    return CStr(normalized(value), locale);
}

double CDbl(const QVariant &value, const Locale &locale)
{
    switch (variantType(value)) {
    case VariantType::Empty: return 0;
    case VariantType::Null: nullMisused();
    case VariantType::Missing: mismatch();
    case VariantType::Boolean: return held<bool>(value) ? -1 : 0;
    case VariantType::Byte: return held<uchar>(value);
    case VariantType::Integer: return held<short>(value);
    case VariantType::Long: return held<int>(value);
    case VariantType::LongLong: return static_cast<double>(held<qint64>(value));
    case VariantType::Single: return static_cast<double>(held<float>(value));
    case VariantType::Double: return held<double>(value);
    case VariantType::Currency: return held<Currency>(value).toDouble();
    case VariantType::Date: return serialOf(momentOf(value));
    case VariantType::String: {
        const double number = readOrRefuse(value, locale).toDouble();
        if (std::isinf(number))
            overflow();
        return number;
    }
    case VariantType::Other: break;
    }
    const QVariant known = normalized(value);
    if (isEmpty(known))
        mismatch(); // an object or a list is no number, not zero
    return CDbl(known, locale);
}

float CSng(const QVariant &value, const Locale &locale)
{
    if (variantType(value) == VariantType::Single)
        return held<float>(value);
    const double number = CDbl(value, locale);
    // Half a unit above the largest Single still rounds down to it.
    constexpr double firstTooLarge = 0x1.ffffffp127;
    if (std::fabs(number) >= firstTooLarge)
        overflow();
    const auto single = static_cast<float>(number);
    // Kept: a text too small for a Single is refused, while a Double that small becomes zero.
    if (single == 0 && number != 0 && variantType(value) == VariantType::String)
        overflow();
    return single;
}

short CInt(const QVariant &value, const Locale &locale) { return toInteger<short, quint16>(value, locale); }

int CLng(const QVariant &value, const Locale &locale) { return toInteger<int, quint32>(value, locale); }

bool CBool(const QVariant &value, const Locale &locale)
{
    if (variantType(value) == VariantType::String) {
        if (const auto truth = readBoolean(held<QString>(value), locale))
            return *truth;
    }
    return CDbl(value, locale) != 0;
}

Currency CCur(const QVariant &value, const Locale &locale)
{
    std::optional<Currency> result;
    switch (variantType(value)) {
    case VariantType::Currency: return held<Currency>(value);
    case VariantType::Single:
        result = Decimal::fromSingle(held<float>(value)).toCurrency(Decimal::Halves::ToEven);
        break;
    case VariantType::String: {
        const NumberReading reading = readOrRefuse(value, locale);
        if (reading.kind == NumberReading::Kind::Decimal) {
            Decimal exact = reading.digits.toDecimal();
            exact.negative = reading.negative;
            result = exact.toCurrency();
            break;
        }
        [[fallthrough]];
    }
    default: return Currency::fromDouble(CDbl(value, locale));
    }
    if (!result)
        overflow();
    return *result;
}

} // namespace kor
