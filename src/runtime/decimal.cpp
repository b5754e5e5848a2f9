// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/decimal.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace kor {

namespace {

//! Reads what to_chars wrote in scientific form, d.dddde+xx, and cuts it to so many digits.
Decimal fromScientific(const char *begin, const char *end, int digits)
{
    Decimal result;
    const char *at = begin;
    for (; at != end && *at != 'e'; ++at) {
        if (*at != '.' && result.count < digits)
            result.digits[static_cast<std::size_t>(result.count++)] = *at;
    }
    int power = 0;
    if (at != end) {
        ++at;
        const bool down = *at == '-';
        std::from_chars(at + 1, end, power);
        power = down ? -power : power;
    }
    result.exponent = power + 1;
    result.trim();
    return result;
}

Decimal fromUnsigned(quint64 value)
{
    Decimal result;
    char *const begin = result.digits.data();
    const char *end = std::to_chars(begin, begin + result.digits.size(), value).ptr;
    result.count = static_cast<int>(end - begin);
    result.exponent = result.count;
    result.trim();
    return result;
}

} // namespace

void Decimal::keepDigits(int kept)
{
    if (kept >= count)
        return;
    if (kept < 0) {
        count = 0;
        return;
    }
    const bool up = digits[static_cast<std::size_t>(kept)] >= '5';
    count = kept;
    if (up) {
        while (count > 0 && digits[static_cast<std::size_t>(count - 1)] == '9')
            --count;
        if (count > 0) {
            ++digits[static_cast<std::size_t>(count - 1)];
        } else {
            digits[0] = '1';
            count = 1;
            ++exponent;
        }
    }
    trim();
}

Decimal Decimal::fromDouble(double value)
{
    const double magnitude = std::fabs(value);
    if (!(magnitude > 0) || std::isinf(magnitude))
        return {};
    Decimal result;
    // Amounts have few decimals. When so many ten-thousandths give the number back, they are its digits: no other
    // number of fifteen digits is that close.
    const double tenThousandths = magnitude < 1e11 ? std::nearbyint(magnitude * 10000) : 0;
    if (magnitude < 1e15 && magnitude == std::floor(magnitude)) {
        result = fromUnsigned(static_cast<quint64>(magnitude));
    } else if (tenThousandths / 10000 == magnitude) {
        result = fromUnsigned(static_cast<quint64>(tenThousandths));
        result.exponent -= 4;
    } else {
        std::array<char, 48> text;
        char *const last = text.data() + text.size();
        // The shortest digits are the 15 wanted ones whenever there are no more than 15 of them; below the normal
        // range a Double no longer holds 15 digits and the shortest form is no guide.
        const char *end = std::to_chars(text.data(), last, magnitude, std::chars_format::scientific).ptr;
        result = fromScientific(text.data(), end, 17);
        if (result.count > doubleDigits || magnitude < std::numeric_limits<double>::min()) {
            // to_chars rounds halves to even, people round them up: cut behind the sixteenth of many digits.
            end = std::to_chars(text.data(), last, magnitude, std::chars_format::scientific, 29).ptr;
            result = fromScientific(text.data(), end, doubleDigits + 1);
            result.keepDigits(doubleDigits);
        }
    }
    result.negative = value < 0;
    return result;
}

Decimal Decimal::fromSingle(float value)
{
    // Through the decimal digits, so that a half (654322.25) is rounded up as people expect.
    Decimal result = fromDouble(static_cast<double>(value));
    result.keepDigits(singleDigits);
    return result;
}

Decimal Decimal::fromInteger(qint64 value)
{
    Decimal result = fromUnsigned(value < 0 ? 0 - static_cast<quint64>(value) : static_cast<quint64>(value));
    if (value == 0)
        result.count = result.exponent = 0;
    result.negative = value < 0;
    return result;
}

Decimal Decimal::fromCurrency(Currency value)
{
    Decimal result = fromInteger(value.tenThousandths());
    result.scaleByPowerOfTen(-4);
    return result;
}

std::optional<Currency> Decimal::toCurrency(Halves halves) const
{
    Decimal rounded = *this;
    const int kept = exponent + 4;
    const bool isHalf = kept >= 0 && count == kept + 1 && digits[static_cast<std::size_t>(kept)] == '5';
    if (halves == Halves::ToEven && isHalf && (digitAt(-4) - '0') % 2 == 0)
        rounded.count = kept; // the half is dropped
    rounded.keepPlaces(4);
    if (rounded.isZero())
        return Currency();
    if (rounded.exponent > 15)
        return std::nullopt;
    quint64 units = 0;
    for (int power = rounded.exponent - 1; power >= -4; --power)
        units = units * 10 + static_cast<quint64>(rounded.digitAt(power) - '0');
    const quint64 limit = quint64(std::numeric_limits<qint64>::max()) + (negative ? 1 : 0);
    if (units > limit)
        return std::nullopt;
    return Currency::fromTenThousandths(static_cast<qint64>(negative ? 0 - units : units));
}

} // namespace kor
