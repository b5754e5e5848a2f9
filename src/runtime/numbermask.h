// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/decimal.h"
#include "runtime/maskoutput.h"

#include <KorDaoUC/locale.h>

#include <QtCore/QStringView>
#include <QtCore/QVarLengthArray>

#include <vector>

namespace kor {

//! One section of a number mask, compiled.
class NumberSection
{
public:
    explicit NumberSection(QStringView picture);

    //! Whether the section has no characters at all, so that another one stands in for it.
    [[nodiscard]] bool isEmpty() const { return m_empty; }
    //! Writes the number's digits. The sign is written first when asked for and when any digit but 0 is left.
    void write(Decimal number, bool withSign, const Locale &locale, MaskOutput &out) const;

private:
    enum class Part : quint8 { Literal, IntegerDigit, FractionDigit, DecimalPoint, Exponent };
    struct Item {
        Part part;
        char16_t literal;
    };
    class Compiler;

    [[nodiscard]] int roundForExponent(Decimal &number) const;
    void writeIntegerDigit(const Decimal &number, int place, const Locale &locale, MaskOutput &out) const;
    void writeAllInteger(const Decimal &number, int downTo, const Locale &locale, MaskOutput &out) const;
    void writeExponent(int exponent, MaskOutput &out) const;

    QVarLengthArray<Item, 16> m_items; // as many as most pictures have
    int m_integerPlaces = 0;
    int m_integerZeros = 0; //!< digits written in any case
    int m_fractionPlaces = 0;
    int m_fractionZeros = 0;
    int m_powerOfTen = 0; //!< from per cent and from scaling commas
    int m_exponentZeros = 0;
    char16_t m_exponentLetter = 0;
    bool m_empty = false;
    bool m_exponentPlus = false;
    bool m_grouping = false;
};

//! A mask of up to four sections: positive, negative, zero, Null.
class NumberMask
{
public:
    [[nodiscard]] static NumberMask fromPicture(QStringView picture);

    void write(const Decimal &number, const Locale &locale, MaskOutput &out) const;
    [[nodiscard]] bool hasNullSection() const { return m_sections.size() > 3; }
    void writeNull(const Locale &locale, MaskOutput &out) const;

private:
    std::vector<NumberSection> m_sections;
};

//! The sections of a mask: cut at semicolons that are neither quoted nor escaped.
[[nodiscard]] QVarLengthArray<QStringView, 4> maskSections(QStringView mask);

} // namespace kor
