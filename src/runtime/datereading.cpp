// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/datereading.h"

#include "runtime/numberreading.h"

#include <KorDaoUC/clock.h>

#include <QtCore/QVarLengthArray>

#include <array>

namespace kor {

namespace {

struct Token {
    enum class Kind { Number, MonthName, DayName, HalfOfDay, DateSeparator, TimeSeparator, Comma };
    Kind kind;
    int value = 0; //!< the number, the month, or 1 for the afternoon
};

using Tokens = QVarLengthArray<Token, 16>;

constexpr int longestTokenRow = 24; // "Tuesday, 6. January 1998 17:08:06 PM" has fourteen

//! What a locale writes behind the last field of its short date, as in "2024. 03. 05." or "5.03.24 \u0433.".
QString tailOf(const QString &pattern)
{
    QString tail;
    bool isQuoted = false;
    for (const QChar c : pattern) {
        if (c == u'\'')
            isQuoted = !isQuoted;
        else if (c.isLetter() && !isQuoted)
            tail.clear();
        else
            tail += c;
    }
    return tail.trimmed();
}

//! Cuts a text into numbers, known words and separators.
class Tokenizer
{
public:
    Tokenizer(QStringView text, const Locale &locale)
        : m_text(text), m_locale(locale), m_tail(tailOf(locale.shortDatePattern))
    {
    }

    //! False when the text holds anything that no date has.
    bool run(Tokens &tokens)
    {
        while (m_at < m_text.size()) {
            const char16_t c = m_text[m_at].unicode();
            if (isBlank(c) || c == u'\u00a0' || c == u'\u202f') {
                ++m_at;
                continue;
            }
            if (skipTail())
                continue;
            if (tokens.size() == longestTokenRow || !takeToken(c, tokens))
                return false;
        }
        return true;
    }

private:
    //! Goes on behind the end of a whole date in numbers.
    bool skipTail()
    {
        if (m_tail.isEmpty() || m_numbers != 3 || !m_text.sliced(m_at).startsWith(m_tail))
            return false;
        m_at += m_tail.size();
        m_tail.clear();
        return true;
    }

    bool takeToken(char16_t c, Tokens &tokens)
    {
        if (mayBeName(c) && takeName(tokens))
            return true;
        if (isDigit(c))
            return takeNumber(tokens);
        const auto separator = separatorKind(c);
        if (separator)
            tokens.append({*separator});
        ++m_at;
        return separator.has_value();
    }

    [[nodiscard]] std::optional<Token::Kind> separatorKind(char16_t c) const
    {
        if (c == u',')
            return Token::Kind::Comma;
        if (c == u'/' || c == u'-' || c == m_locale.dateSeparator.unicode())
            return Token::Kind::DateSeparator;
        // Where it is no date separator, a point parts hours from minutes.
        if (c == u':' || c == u'.' || c == m_locale.timeSeparator.unicode())
            return Token::Kind::TimeSeparator;
        return std::nullopt;
    }

    bool takeNumber(Tokens &tokens)
    {
        int value = 0;
        const qsizetype start = m_at;
        for (; m_at < m_text.size() && isDigit(m_text[m_at].unicode()); ++m_at) {
            if (m_at - start == 4)
                return false;
            value = value * 10 + (m_text[m_at].unicode() - u'0');
        }
        tokens.append({Token::Kind::Number, value});
        ++m_numbers;
        return true;
    }

    //! Spares most dates the search for names: names begin with letters, or all months with their numbers ("2月").
    [[nodiscard]] bool mayBeName(char16_t c) const
    {
        if (QChar(c).isLetter() || QChar::isSurrogate(c))
            return true;
        const QString january = m_locale.shortMonthNames.value(0);
        return isDigit(c) && !january.isEmpty() && isDigit(january.front().unicode());
    }

    //! The longest name that stands here as a whole: names may hold points ("wt."), blanks ("a. m.") or digits ("2月").
    bool takeName(Tokens &tokens)
    {
        qsizetype longest = 0;
        Token found = {Token::Kind::DayName};
        const auto look = [&](QStringView name, Token token) {
            if (name.size() > longest && standsHere(name)) {
                longest = name.size();
                found = token;
            }
        };
        for (const QStringList *names :
             {&m_locale.monthNames, &m_locale.monthNamesGenitive, &m_locale.shortMonthNames}) {
            for (int month = 0; month < names->size(); ++month)
                look((*names)[month], {Token::Kind::MonthName, month + 1});
        }
        for (const QStringList *names : {&m_locale.dayNames, &m_locale.shortDayNames}) {
            for (const QString &name : *names)
                look(name, {Token::Kind::DayName});
        }
        for (const QStringView am : {QStringView(m_locale.amText), QStringView(u"AM"), QStringView(u"A")})
            look(am, {Token::Kind::HalfOfDay, 0});
        for (const QStringView pm : {QStringView(m_locale.pmText), QStringView(u"PM"), QStringView(u"P")})
            look(pm, {Token::Kind::HalfOfDay, 1});
        if (longest == 0)
            return false;
        tokens.append(found);
        m_at += longest;
        return true;
    }

    [[nodiscard]] bool standsHere(QStringView name) const
    {
        const QStringView rest = m_text.sliced(m_at);
        const bool ends = rest.size() <= name.size() || !(rest[name.size()].isLetter() || rest[name.size()].isMark());
        return ends && rest.startsWith(name, Qt::CaseInsensitive);
    }

    QStringView m_text;
    const Locale &m_locale;
    QString m_tail;
    qsizetype m_at = 0;
    int m_numbers = 0;
};

enum Field { Day, Month, Year };
using FieldOrder = std::array<Field, 3>;

FieldOrder orderOf(const QString &pattern)
{
    const auto place = [&](char16_t letter) {
        const qsizetype at = pattern.indexOf(QChar(letter));
        return at < 0 ? pattern.size() : at;
    };
    if (place(u'y') < place(u'M') && place(u'y') < place(u'd'))
        return {Year, Month, Day};
    return place(u'M') < place(u'd') ? FieldOrder{Month, Day, Year} : FieldOrder{Day, Month, Year};
}

//! The orders that are tried for three numbers, the locale's own first.
std::array<FieldOrder, 3> ordersFrom(const FieldOrder &own)
{
    constexpr FieldOrder dayFirst = {Day, Month, Year};
    constexpr FieldOrder monthFirst = {Month, Day, Year};
    constexpr FieldOrder yearFirst = {Year, Month, Day};
    if (own == monthFirst)
        return {monthFirst, yearFirst, dayFirst};
    if (own == yearFirst)
        return {yearFirst, monthFirst, dayFirst};
    return {dayFirst, monthFirst, yearFirst};
}

std::optional<QDate> dateFrom(int year, int month, int day)
{
    const QDate date(fullYear(year), month, day);
    return isInCalendar(date) ? std::optional(date) : std::nullopt;
}

//! Finds the meaning of a row of tokens: a date, a time, or one behind the other.
class DateGrammar
{
public:
    DateGrammar(const Tokens &tokens, const Locale &locale) : m_tokens(tokens), m_locale(locale) {}

    std::optional<Moment> read()
    {
        skipDayName();
        Moment result{dayZero()};
        const bool timeFirst = startsTime(m_at);
        if (timeFirst && !readTime(result.time))
            return std::nullopt;
        if (timeFirst && atEnd())
            return result;
        if (!readFields())
            return std::nullopt;
        const auto date = resolve();
        if (!date)
            return std::nullopt;
        result.date = *date;
        if (!atEnd() && (timeFirst || !readTime(result.time)))
            return std::nullopt;
        return atEnd() ? std::optional(result) : std::nullopt;
    }

private:
    [[nodiscard]] bool atEnd() const { return m_at == m_tokens.size(); }
    [[nodiscard]] bool is(qsizetype at, Token::Kind kind) const
    {
        return at < m_tokens.size() && m_tokens[at].kind == kind;
    }
    [[nodiscard]] bool startsTime(qsizetype at) const
    {
        if (leadsTime(at))
            return true;
        return is(at, Token::Kind::Number) &&
               (is(at + 1, Token::Kind::TimeSeparator) || (is(at + 1, Token::Kind::HalfOfDay) && !leadsTime(at + 1)));
    }
    //! Whether the half of the day stands there before its hour, where the locale writes it so.
    [[nodiscard]] bool leadsTime(qsizetype at) const
    {
        return m_locale.timePattern.startsWith(u't') && is(at, Token::Kind::HalfOfDay) &&
               is(at + 1, Token::Kind::Number);
    }

    void skipDayName()
    {
        if (is(m_at, Token::Kind::DayName))
            m_at += is(m_at + 1, Token::Kind::Comma) ? 2 : 1;
    }

    bool readTime(QTime &time)
    {
        std::array<int, 3> parts = {0, 0, 0};
        std::size_t count = 0;
        const Token *half = leadsTime(m_at) ? &m_tokens[m_at++] : nullptr;
        if (!is(m_at, Token::Kind::Number))
            return false;
        parts[count++] = m_tokens[m_at++].value;
        while (count < 3 && is(m_at, Token::Kind::TimeSeparator)) {
            if (!is(++m_at, Token::Kind::Number))
                return false;
            parts[count++] = m_tokens[m_at++].value;
        }
        if (!half && is(m_at, Token::Kind::HalfOfDay))
            half = &m_tokens[m_at++];
        if (half) {
            const bool afternoon = half->value == 1;
            // Hours beyond twelve know their half by themselves.
            if (afternoon && parts[0] < 12)
                parts[0] += 12;
            else if (!afternoon && parts[0] == 12)
                parts[0] = 0;
        } else if (count == 1) {
            return false;
        }
        if (!QTime::isValid(parts[0], parts[1], parts[2]))
            return false;
        time = QTime(parts[0], parts[1], parts[2]);
        return true;
    }

    //! Two or three numbers, or a month's name with one or two, parted by blanks or single separators.
    bool readFields()
    {
        bool separated = false;
        bool comma = false;
        for (; !atEnd() && !startsTime(m_at); ++m_at) {
            const Token &token = m_tokens[m_at];
            if (token.kind == Token::Kind::Number && m_numbers.size() < 3) {
                m_numbers.append(token.value);
                separated = false;
            } else if (token.kind == Token::Kind::MonthName && m_month == 0) {
                m_month = token.value;
                separated = false;
            } else if (token.kind == Token::Kind::DateSeparator && !separated && hasField()) {
                separated = true;
            } else if (token.kind == Token::Kind::Comma && !separated && hasField()) {
                separated = comma = true;
            } else {
                return false;
            }
        }
        // Commas belong to dates with names only: "1,5" is a number to most of those who write it.
        return !separated && (!comma || m_month > 0);
    }

    [[nodiscard]] bool hasField() const { return m_month > 0 || !m_numbers.isEmpty(); }

    [[nodiscard]] std::optional<QDate> resolve() const
    {
        const auto count = m_numbers.size();
        if (m_month > 0)
            return count == 1 ? namedMonthAndOne() : count == 2 ? namedMonthAndTwo() : std::nullopt;
        return count == 2 ? twoNumbers() : count == 3 ? threeNumbers() : std::nullopt;
    }

    [[nodiscard]] std::optional<QDate> namedMonthAndOne() const
    {
        const auto thisYear = dateFrom(Clock::today().year(), m_month, m_numbers[0]);
        return thisYear ? thisYear : dateFrom(m_numbers[0], m_month, 1);
    }

    [[nodiscard]] std::optional<QDate> namedMonthAndTwo() const
    {
        const auto dayFirst = dateFrom(m_numbers[1], m_month, m_numbers[0]);
        return dayFirst ? dayFirst : dateFrom(m_numbers[0], m_month, m_numbers[1]);
    }

    //! Day and month of this year in either order, or else a month and its year.
    [[nodiscard]] std::optional<QDate> twoNumbers() const
    {
        const int first = m_numbers[0];
        const int second = m_numbers[1];
        const int year = Clock::today().year();
        const bool dayFirst = orderOf(m_locale.shortDatePattern) == FieldOrder{Day, Month, Year};
        const auto own = dayFirst ? dateFrom(year, second, first) : dateFrom(year, first, second);
        if (own)
            return own;
        const auto swapped = dayFirst ? dateFrom(year, first, second) : dateFrom(year, second, first);
        if (swapped)
            return swapped;
        const auto yearFirst = dateFrom(first, second, 1);
        return yearFirst ? yearFirst : dateFrom(second, first, 1);
    }

    [[nodiscard]] std::optional<QDate> threeNumbers() const
    {
        for (const FieldOrder &order : ordersFrom(orderOf(m_locale.shortDatePattern))) {
            std::array<int, 3> field = {};
            for (std::size_t i = 0; i < 3; ++i)
                field[order[i]] = m_numbers[static_cast<qsizetype>(i)];
            if (const auto date = dateFrom(field[Year], field[Month], field[Day]))
                return date;
        }
        return std::nullopt;
    }

    const Tokens &m_tokens;
    const Locale &m_locale;
    qsizetype m_at = 0;
    QVarLengthArray<int, 3> m_numbers;
    int m_month = 0;
};

} // namespace

std::optional<Moment> readDate(QStringView text, const Locale &locale)
{
    Tokens tokens;
    if (!Tokenizer(text, locale).run(tokens) || tokens.isEmpty())
        return std::nullopt;
    return DateGrammar(tokens, locale).read();
}

} // namespace kor
