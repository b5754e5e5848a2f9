// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/numberreading.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace kor {

namespace {

constexpr int exponentLimit = 100'000; // beyond any Double, and small enough to add up without overflow

constexpr std::array<double, 23> powersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

bool isSpaceLike(QChar c) { return c == u'\u00a0' || c == u'\u202f' || c == u' '; }

} // namespace

double DigitReader::toDouble() const
{
    constexpr quint64 exact = quint64(1) << 53;
    const int scale = qBound(-2 * exponentLimit, m_scale, 2 * exponentLimit);
    // Both factors are exact in a Double here, so one operation rounds correctly.
    if (m_mantissa <= exact && scale >= -22 && scale <= 22) {
        const auto value = static_cast<double>(m_mantissa);
        return scale < 0 ? value / powersOfTen[static_cast<std::size_t>(-scale)]
                         : value * powersOfTen[static_cast<std::size_t>(scale)];
    }
    if (m_mantissa == 0)
        return 0;
    constexpr int mantissaDigits = std::numeric_limits<quint64>::digits10 + 1;
    std::array<char, 40> text;
    char *end = std::to_chars(text.data(), text.data() + mantissaDigits, m_mantissa).ptr;
    *end++ = 'e';
    end = std::to_chars(end, text.data() + text.size(), scale).ptr;
    double value = 0;
    if (std::from_chars(text.data(), end, value).ec == std::errc::result_out_of_range)
        return scale > 0 ? std::numeric_limits<double>::infinity() : 0;
    return value;
}

Decimal DigitReader::toDecimal() const
{
    Decimal result;
    if (m_mantissa == 0)
        return result;
    char *const begin = result.digits.data();
    result.count = static_cast<int>(std::to_chars(begin, begin + result.digits.size(), m_mantissa).ptr - begin);
    result.exponent = result.count + qBound(-2 * exponentLimit, m_scale, 2 * exponentLimit);
    result.trim();
    return result;
}

std::optional<qint64> DigitReader::toWhole() const
{
    const Decimal decimal = toDecimal();
    constexpr int mostDigits = std::numeric_limits<qint64>::digits10 + 1;
    if (m_isCut || decimal.count > decimal.exponent || decimal.exponent > mostDigits)
        return std::nullopt;
    quint64 magnitude = 0;
    for (int power = decimal.exponent - 1; power >= 0; --power)
        magnitude = magnitude * 10 + static_cast<quint64>(decimal.digitAt(power) - '0');
    if (magnitude > static_cast<quint64>(std::numeric_limits<qint64>::max()))
        return std::nullopt;
    return static_cast<qint64>(magnitude);
}

bool readExponent(QStringView text, qsizetype &at, int &exponent, bool skipBlanks)
{
    qsizetype here = at;
    const auto skip = [&] {
        while (skipBlanks && here < text.size() && isBlank(text[here].unicode()))
            ++here;
    };
    skip();
    bool down = false;
    if (here < text.size() && (text[here] == u'+' || text[here] == u'-')) {
        down = text[here] == u'-';
        ++here;
        skip();
    }
    if (here >= text.size() || !isDigit(text[here].unicode()))
        return false;
    int value = 0;
    while (here < text.size() && isDigit(text[here].unicode())) {
        value = qMin(exponentLimit, value * 10 + (text[here].unicode() - u'0'));
        ++here;
        skip();
    }
    exponent = down ? -value : value;
    at = here;
    return true;
}

int radixDigit(char16_t c, int base)
{
    int value = -1;
    if (isDigit(c))
        value = c - u'0';
    else if (c >= u'a' && c <= u'f')
        value = c - u'a' + 10;
    else if (c >= u'A' && c <= u'F')
        value = c - u'A' + 10;
    return value < base ? value : -1;
}

double NumberReading::toDouble() const
{
    const double value = kind == Kind::Radix ? static_cast<double>(bits) : digits.toDouble();
    return negative ? -value : value;
}

ExactNumber NumberReading::toExact() const
{
    constexpr double exactInDouble = 0x1p53;
    const double rounded = toDouble();
    if (kind == Kind::Radix || !(std::fabs(rounded) >= exactInDouble))
        return exactly(rounded);
    if (const auto magnitude = digits.toWhole())
        return exactly(negative ? -*magnitude : *magnitude);
    return exactly(rounded);
}

namespace {

//! One pass over a text; every step consumes what it knows and leaves the rest to the next.
class NumberScanner
{
public:
    NumberScanner(QStringView text, const Locale &locale) : m_text(text), m_locale(locale) {}

    NumberReading read()
    {
        while (!isDigit(current()) && (takeBlank() || takeSign() || takeOpeningBracket() || takeCurrencySymbol())) {
        }
        if (current() == u'&' && !m_hasSign && !m_hasOpening && !m_hasCurrency)
            return readRadix();
        readDigits();
        if (!m_reading.digits.hasDigits())
            return {};
        readExponentPart();
        while (m_at < m_text.size() && (takeBlank() || takeSign() || takeClosingBracket() || takeCurrencySymbol())) {
        }
        if (m_at != m_text.size() || m_hasOpening != m_hasClosing)
            return {};
        m_reading.kind = NumberReading::Kind::Decimal;
        return m_reading;
    }

private:
    [[nodiscard]] char16_t current() const { return peek(0); }
    [[nodiscard]] char16_t peek(qsizetype ahead) const
    {
        return m_at + ahead < m_text.size() ? m_text[m_at + ahead].unicode() : u'\0';
    }

    bool takeBlank()
    {
        if (m_at >= m_text.size())
            return false;
        const QChar c = m_text[m_at];
        const bool blank = isBlank(c.unicode()) || (isSpaceLike(m_locale.groupSeparator) && isSpaceLike(c));
        m_at += blank ? 1 : 0;
        return blank;
    }

    bool takeSign()
    {
        const char16_t c = current();
        if ((c != u'+' && c != u'-') || m_hasSign || m_hasOpening)
            return false;
        m_hasSign = true;
        m_reading.negative = c == u'-';
        ++m_at;
        return true;
    }

    bool takeOpeningBracket()
    {
        if (current() != u'(' || m_hasOpening || m_hasSign)
            return false;
        m_hasOpening = m_reading.negative = true;
        ++m_at;
        return true;
    }

    bool takeClosingBracket()
    {
        if (current() != u')' || !m_hasOpening || m_hasClosing)
            return false;
        m_hasClosing = true;
        ++m_at;
        return true;
    }

    bool takeCurrencySymbol()
    {
        const QString &symbol = m_locale.currencySymbol;
        if (m_hasCurrency || symbol.isEmpty() || !m_text.sliced(m_at).startsWith(symbol))
            return false;
        m_hasCurrency = true;
        m_at += symbol.size();
        return true;
    }

    bool takeGroupSeparator()
    {
        const QChar group = m_locale.groupSeparator;
        if (m_at >= m_text.size() || group.isNull() || !m_reading.digits.hasDigits() || m_reading.digits.isInFraction())
            return false;
        const QChar c = m_text[m_at];
        // People type a plain blank where the locale groups with a no-break one; a blank behind the last digit is
        // no grouping.
        if (isSpaceLike(group) ? !(isSpaceLike(c) && isDigit(peek(1))) : c != group)
            return false;
        ++m_at;
        return true;
    }

    void readDigits()
    {
        const char16_t *const text = m_text.utf16();
        const qsizetype size = m_text.size();
        const char16_t point = m_locale.decimalSeparator.unicode();
        while (m_at < size) {
            const char16_t c = text[m_at];
            if (isDigit(c)) {
                m_reading.digits.takeDigit(c);
                ++m_at;
            } else if (c == point && !m_reading.digits.isInFraction()) {
                m_reading.digits.takeDecimalPoint();
                ++m_at;
            } else if (!takeGroupSeparator()) {
                return;
            }
        }
    }

    //! A letter without an exponent behind it is left: a currency may begin with it ("5DA").
    void readExponentPart()
    {
        const char16_t c = current();
        if (c != u'e' && c != u'E' && c != u'd' && c != u'D')
            return;
        int exponent = 0;
        qsizetype at = m_at + 1;
        if (!readExponent(m_text, at, exponent, false))
            return;
        m_reading.digits.takeExponent(exponent);
        m_at = at;
    }

    NumberReading readRadix()
    {
        const char16_t letter = peek(1);
        const int base = letter == u'h' || letter == u'H' ? 16 : letter == u'o' || letter == u'O' ? 8 : 0;
        if (base == 0)
            return {};
        m_at += 2;
        const qsizetype first = m_at;
        constexpr quint64 roomForOneMore = std::numeric_limits<quint64>::max() / 16;
        while (m_at < m_text.size()) {
            const int digit = radixDigit(m_text[m_at].unicode(), base);
            if (digit < 0)
                break;
            if (m_reading.bits > roomForOneMore)
                return {};
            m_reading.bits = m_reading.bits * static_cast<quint64>(base) + static_cast<quint64>(digit);
            ++m_at;
        }
        if (m_at == first)
            return {};
        while (takeBlank()) {
        }
        if (m_at != m_text.size())
            return {};
        m_reading.kind = NumberReading::Kind::Radix;
        return m_reading;
    }

    QStringView m_text;
    const Locale &m_locale;
    qsizetype m_at = 0;
    NumberReading m_reading;
    bool m_hasSign = false;
    bool m_hasOpening = false;
    bool m_hasClosing = false;
    bool m_hasCurrency = false;
};

} // namespace

NumberReading readNumber(QStringView text, const Locale &locale) { return NumberScanner(text, locale).read(); }

std::optional<bool> readBoolean(QStringView text, const Locale &locale)
{
    const QStringView word = text.trimmed();
    const auto is = [&](QStringView other) { return word.compare(other, Qt::CaseInsensitive) == 0; };
    if (is(u"True") || is(locale.trueText))
        return true;
    if (is(u"False") || is(locale.falseText))
        return false;
    return std::nullopt;
}

} // namespace kor
