// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/currency.h>

#include <QtCore/QtGlobal>

#include <array>
#include <optional>

namespace kor {

//! A number as the decimal digits people see: 0.d1d2d3... x 10^exponent, without leading or trailing zeros.
//!
//! Everything that writes a number rounds here and not in binary, so that 1.005 becomes 1.01.
struct Decimal {
    std::array<char, 20> digits; //!< '0' to '9'; the first `count` of them hold
    int count = 0;               //!< 0 for the number zero
    int exponent = 0;
    bool negative = false;

    [[nodiscard]] bool isZero() const { return count == 0; }
    //! The digit of weight 10^power, '0' where there is none.
    [[nodiscard]] char digitAt(int power) const
    {
        const int index = exponent - 1 - power;
        return index >= 0 && index < count ? digits[static_cast<std::size_t>(index)] : '0';
    }

    //! Drops the zeros at the end.
    void trim()
    {
        while (count > 0 && digits[static_cast<std::size_t>(count - 1)] == '0')
            --count;
    }
    //! Keeps so many digits (none or fewer may be asked for), halves away from zero.
    void keepDigits(int kept);
    //! Keeps so many places behind the decimal point.
    void keepPlaces(int places) { keepDigits(exponent + places); }
    void scaleByPowerOfTen(int power)
    {
        if (count > 0)
            exponent += power;
    }

    static constexpr int doubleDigits = 15;
    static constexpr int singleDigits = 7;

    [[nodiscard]] static Decimal fromDouble(double value); //!< 15 digits; infinities and NaN count as zero
    [[nodiscard]] static Decimal fromSingle(float value);  //!< 7 digits
    [[nodiscard]] static Decimal fromInteger(qint64 value);
    [[nodiscard]] static Decimal fromCurrency(Currency value);

    enum class Halves { AwayFromZero, ToEven };
    //! Rounded to four places. Nothing when the number is out of the Currency's range.
    [[nodiscard]] std::optional<Currency> toCurrency(Halves halves = Halves::AwayFromZero) const;
};

} // namespace kor
