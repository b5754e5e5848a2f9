// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/numbermask.h"

#include <array>
#include <charconv>

namespace kor {

QVarLengthArray<QStringView, 4> maskSections(QStringView mask)
{
    QVarLengthArray<QStringView, 4> sections;
    qsizetype start = 0;
    bool quoted = false;
    for (qsizetype at = 0; at < mask.size(); ++at) {
        const QChar c = mask[at];
        if (c == u'"')
            quoted = !quoted;
        else if (c == u'\\' && !quoted)
            ++at;
        else if (c == u';' && !quoted) {
            sections.append(mask.sliced(start, at - start));
            start = at + 1;
        }
    }
    sections.append(mask.sliced(start));
    return sections;
}

//! Reads a section from left to right.
class NumberSection::Compiler
{
public:
    Compiler(QStringView picture, NumberSection &section) : m_picture(picture), m_section(section) {}

    void compile()
    {
        while (m_at < m_picture.size())
            step();
        m_section.m_powerOfTen -= 3 * m_pendingCommas;
    }

private:
    void step()
    {
        const char16_t c = m_picture[m_at++].unicode();
        switch (c) {
        case u'0':
        case u'#': takePlace(c == u'0'); break;
        case u'.': takePoint(); break;
        case u',': m_pendingCommas += 1; break;
        case u'%':
            // Kept: a second per-cent sign is written but does not multiply again.
            if (!m_percent)
                m_section.m_powerOfTen += 2;
            m_percent = true;
            literal(c);
            break;
        case u'E':
        case u'e':
            if (!takeExponent(c))
                literal(c);
            break;
        case u'"': takeQuoted(); break;
        case u'\\':
            if (m_at < m_picture.size())
                literal(m_picture[m_at++].unicode());
            break;
        default: literal(c); break;
        }
    }

    void add(Part part, char16_t literal = 0) { m_section.m_items.push_back({part, literal}); }
    void literal(char16_t c) { add(Part::Literal, c); }

    void takePlace(bool zero)
    {
        if (m_section.m_exponentLetter != 0) {
            // Apart from the exponent there is nothing left for a place to write.
            if (zero)
                literal(u'0');
            return;
        }
        if (m_inFraction) {
            add(Part::FractionDigit);
            ++m_section.m_fractionPlaces;
            if (zero)
                m_section.m_fractionZeros = m_section.m_fractionPlaces;
            return;
        }
        // A comma between two places groups; commas behind the last place scale.
        m_section.m_grouping = m_section.m_grouping || m_pendingCommas > 0;
        m_pendingCommas = 0;
        add(Part::IntegerDigit);
        ++m_section.m_integerPlaces;
        if (zero || m_section.m_integerZeros > 0)
            ++m_section.m_integerZeros;
    }

    void takePoint()
    {
        if (m_inFraction) {
            literal(u'.');
            return;
        }
        m_inFraction = true;
        add(Part::DecimalPoint);
    }

    //! E+0, E-00, e+###, E+ alone: false when no sign follows.
    bool takeExponent(char16_t letter)
    {
        const auto at = [&](qsizetype i) { return i < m_picture.size() ? m_picture[i].unicode() : u'\0'; };
        const char16_t sign = at(m_at);
        if ((sign != u'+' && sign != u'-') || m_section.m_exponentLetter != 0)
            return false;
        m_section.m_exponentLetter = letter;
        m_section.m_exponentPlus = sign == u'+';
        ++m_at;
        while (at(m_at) == u'0' || at(m_at) == u'#') {
            m_section.m_exponentZeros += at(m_at) == u'0' || m_section.m_exponentZeros > 0 ? 1 : 0;
            ++m_at;
        }
        add(Part::Exponent);
        return true;
    }

    void takeQuoted()
    {
        while (m_at < m_picture.size() && m_picture[m_at] != u'"')
            literal(m_picture[m_at++].unicode());
        ++m_at;
    }

    QStringView m_picture;
    qsizetype m_at = 0;
    NumberSection &m_section;
    int m_pendingCommas = 0;
    bool m_inFraction = false;
    bool m_percent = false;
};

//! A section of "" is one that writes nothing.
NumberSection::NumberSection(QStringView picture) : m_empty(picture.isEmpty()) { Compiler(picture, *this).compile(); }

//! Brings the number to as many digits before the point as the mask has places, and tells the exponent for that.
int NumberSection::roundForExponent(Decimal &number) const
{
    if (number.isZero())
        return 0;
    number.keepDigits(m_integerPlaces + m_fractionPlaces);
    // With no place at all nothing but a rounded-up 1 may be left.
    const int exponent = number.exponent - m_integerPlaces;
    number.exponent = m_integerPlaces;
    return exponent;
}

void NumberSection::writeAllInteger(const Decimal &number, int downTo, const Locale &locale, MaskOutput &out) const
{
    for (int power = qMax(number.exponent, m_integerZeros) - 1; power >= downTo; --power) {
        out.append(static_cast<char16_t>(number.digitAt(power)));
        if (m_grouping && power > 0 && power % 3 == 0)
            out.append(locale.groupSeparator.unicode());
    }
}

//! Place counts from the left. The first one takes all digits that have no place of their own.
void NumberSection::writeIntegerDigit(const Decimal &number, int place, const Locale &locale, MaskOutput &out) const
{
    const int power = m_integerPlaces - 1 - place;
    if (place == 0) {
        writeAllInteger(number, power, locale, out);
    } else if (power < qMax(number.isZero() ? 0 : number.exponent, m_integerZeros)) {
        out.append(static_cast<char16_t>(number.digitAt(power)));
        if (m_grouping && power > 0 && power % 3 == 0)
            out.append(locale.groupSeparator.unicode());
    }
}

void NumberSection::writeExponent(int exponent, MaskOutput &out) const
{
    out.append(m_exponentLetter);
    if (exponent < 0)
        out.append(u'-');
    else if (m_exponentPlus)
        out.append(u'+');
    if (exponent == 0 && m_exponentZeros == 0)
        return;
    std::array<char, 12> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), qAbs(exponent)).ptr;
    for (auto length = end - text.data(); length < m_exponentZeros; ++length)
        out.append(u'0');
    for (const char *at = text.data(); at != end; ++at)
        out.append(static_cast<char16_t>(*at));
}

void NumberSection::write(Decimal number, bool withSign, const Locale &locale, MaskOutput &out) const
{
    number.scaleByPowerOfTen(m_powerOfTen);
    int exponent = 0;
    if (m_exponentLetter != 0)
        exponent = roundForExponent(number);
    else if (m_integerPlaces + m_fractionPlaces > 0)
        number.keepPlaces(m_fractionPlaces);
    if (withSign && !number.isZero())
        out.append(u'-');
    if (number.isZero())
        number.exponent = 0;
    int integerPlace = 0;
    int fractionPlace = 0;
    for (const Item item : m_items) {
        switch (item.part) {
        case Part::Literal: out.append(item.literal); break;
        case Part::IntegerDigit: writeIntegerDigit(number, integerPlace++, locale, out); break;
        case Part::DecimalPoint:
            if (m_integerPlaces == 0)
                writeAllInteger(number, 0, locale, out);
            out.append(locale.decimalSeparator.unicode());
            break;
        case Part::FractionDigit:
            ++fractionPlace;
            if (fractionPlace <= m_fractionZeros || fractionPlace <= number.count - number.exponent)
                out.append(static_cast<char16_t>(number.digitAt(-fractionPlace)));
            break;
        case Part::Exponent: writeExponent(exponent, out); break;
        }
    }
}

NumberMask NumberMask::fromPicture(QStringView picture)
{
    NumberMask mask;
    const auto sections = maskSections(picture);
    mask.m_sections.reserve(static_cast<std::size_t>(sections.size()));
    for (const QStringView section : sections)
        mask.m_sections.emplace_back(section);
    return mask;
}

void NumberMask::write(const Decimal &number, const Locale &locale, MaskOutput &out) const
{
    std::size_t section = 0;
    if (number.negative && m_sections.size() > 1 && !m_sections[1].isEmpty())
        section = 1;
    else if (number.isZero() && m_sections.size() > 2 && !m_sections[2].isEmpty())
        section = 2;
    if (!m_sections[section].isEmpty())
        m_sections[section].write(number, number.negative && section == 0, locale, out);
}

void NumberMask::writeNull(const Locale &locale, MaskOutput &out) const
{
    if (hasNullSection())
        m_sections[3].write(Decimal(), false, locale, out);
}

} // namespace kor
