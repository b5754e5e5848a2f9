// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/decimal.h"
#include "runtime/exactnumber.h"

#include <KorDaoUC/locale.h>

#include <QtCore/QStringView>

#include <limits>
#include <optional>

namespace kor {

//! Decimal digits as they are read: mantissa x 10^scale. Digits beyond the nineteenth only count for the scale.
class DigitReader
{
public:
    void takeDigit(char16_t digit)
    {
        if (m_mantissa < 1'000'000'000'000'000'000ULL)
            m_mantissa = m_mantissa * 10 + (digit - u'0');
        else {
            ++m_scale;
            m_isCut = m_isCut || digit != u'0';
        }
        m_scale -= m_inFraction ? 1 : 0;
        m_hasDigits = true;
    }
    void takeDecimalPoint() { m_inFraction = true; }
    void takeExponent(int exponent) { m_scale += exponent; }

    [[nodiscard]] bool isInFraction() const { return m_inFraction; }
    [[nodiscard]] bool hasDigits() const { return m_hasDigits; }
    //! Infinity when the number is too large.
    [[nodiscard]] double toDouble() const;
    [[nodiscard]] bool isFinite() const { return m_scale < 280 || toDouble() <= std::numeric_limits<double>::max(); }
    [[nodiscard]] Decimal toDecimal() const;
    //! The magnitude when it is an integer of less than 2^63 with no digit lost.
    [[nodiscard]] std::optional<qint64> toWhole() const;

private:
    quint64 m_mantissa = 0;
    int m_scale = 0;
    bool m_inFraction = false;
    bool m_hasDigits = false;
    bool m_isCut = false; //!< a digit other than 0 was beyond the nineteenth
};

//! Reads an exponent's sign and digits at `at`. Nothing is consumed and false returned when there is no digit.
//! With `skipBlanks`, blanks may stand between.
[[nodiscard]] bool readExponent(QStringView text, qsizetype &at, int &exponent, bool skipBlanks);

//! What a text says as a number, by the rules of the conversions.
struct NumberReading {
    enum class Kind { NotANumber, Decimal, Radix };
    Kind kind = Kind::NotANumber;
    bool negative = false;
    DigitReader digits;
    quint64 bits = 0; //!< of &H... and &O...

    [[nodiscard]] bool isNumber() const { return kind != Kind::NotANumber; }
    [[nodiscard]] double toDouble() const; //!< infinity when it does not fit
    [[nodiscard]] ExactNumber toExact() const;
    [[nodiscard]] bool isFinite() const { return kind == Kind::Radix || digits.isFinite(); }
};

[[nodiscard]] NumberReading readNumber(QStringView text, const Locale &locale);

//! True or False, in English or in the locale's words, in any case. Nothing for another text.
[[nodiscard]] std::optional<bool> readBoolean(QStringView text, const Locale &locale);

[[nodiscard]] constexpr bool isBlank(char16_t c) { return c == u' ' || (c >= u'\t' && c <= u'\r'); }
[[nodiscard]] constexpr bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
//! The value of a digit in base 8 or 16, -1 for another character.
[[nodiscard]] int radixDigit(char16_t c, int base);

} // namespace kor
