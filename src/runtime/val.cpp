// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/numberreading.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>

#include <cmath>

namespace kor {

namespace {

//! Walks over a text as if it held no blanks.
class BlankSkipper
{
public:
    explicit BlankSkipper(QStringView text) : m_text(text) { skip(); }
    [[nodiscard]] char16_t current() const { return m_at < m_text.size() ? m_text[m_at].unicode() : u'\0'; }
    //! To the next character, be it a blank.
    void next() { ++m_at; }
    void advance()
    {
        ++m_at;
        skip();
    }
    [[nodiscard]] QStringView text() const { return m_text; }
    qsizetype &position() { return m_at; }

private:
    void skip()
    {
        while (m_at < m_text.size() && isBlank(m_text[m_at].unicode()))
            ++m_at;
    }

    QStringView m_text;
    qsizetype m_at = 0;
};

std::optional<double> radixValue(BlankSkipper &at)
{
    at.advance();
    const char16_t letter = at.current();
    const int base = letter == u'h' || letter == u'H' ? 16 : letter == u'o' || letter == u'O' ? 8 : 0;
    if (base == 0)
        return 0;
    at.advance();
    quint64 bits = 0;
    for (int digit = radixDigit(at.current(), base); digit >= 0; digit = radixDigit(at.current(), base)) {
        bits = bits * static_cast<quint64>(base) + static_cast<quint64>(digit);
        if (bits > 0xffffffffULL)
            return std::nullopt;
        at.advance();
    }
    // Kept: literals of 16 and of 32 bits carry their sign in the top bit (&HFFFF is -1), unless & asks for a Long.
    if (bits <= 0xffff && at.current() != u'&')
        return static_cast<qint16>(bits);
    return static_cast<qint32>(bits);
}

} // namespace

std::optional<double> leadingNumber(QStringView text)
{
    BlankSkipper at(text);
    if (at.current() == u'&')
        return radixValue(at);
    const bool negative = at.current() == u'-';
    if (negative || at.current() == u'+')
        at.advance();
    DigitReader digits;
    for (;; at.next()) {
        const char16_t c = at.current();
        if (isDigit(c))
            digits.takeDigit(c);
        else if (c == u'.' && !digits.isInFraction())
            digits.takeDecimalPoint();
        else if (!isBlank(c))
            break;
    }
    if (!digits.hasDigits())
        return 0;
    const char16_t letter = at.current();
    if (letter == u'e' || letter == u'E' || letter == u'd' || letter == u'D') {
        at.advance();
        int exponent = 0;
        if (readExponent(at.text(), at.position(), exponent, true))
            digits.takeExponent(exponent);
    }
    const double value = digits.toDouble();
    if (std::isinf(value))
        return std::nullopt;
    return negative && value != 0 ? -value : value;
}

double Val(QStringView text)
{
    const auto number = leadingNumber(text);
    if (!number)
        throw RunTimeError(ErrorNumber::Overflow);
    return *number;
}

} // namespace kor
