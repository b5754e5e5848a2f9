// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/datemask.h"

namespace kor {

namespace {

char16_t lowered(QChar c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c.unicode() + 32) : c.unicode(); }

//! How many times the character at `at` stands there in a row, in either case, up to a limit.
int runLength(QStringView text, qsizetype at, int limit)
{
    const char16_t letter = lowered(text[at]);
    int length = 1;
    while (length < limit && at + length < text.size() && lowered(text[at + length]) == letter)
        ++length;
    return length;
}

} // namespace

qsizetype halfOfDayLength(QStringView text)
{
    for (const QStringView form : {QStringView(u"AM/PM"), QStringView(u"A/P"), QStringView(u"AMPM")}) {
        if (text.startsWith(form, Qt::CaseInsensitive))
            return form.size();
    }
    return 0;
}

bool isDateMaskLetter(QStringView rest)
{
    switch (lowered(rest.front())) {
    case u'd':
    case u'w':
    case u'm':
    case u'q':
    case u'y':
    case u'h':
    case u'n':
    case u's':
    case u'c':
    case u'/':
    case u':': return true;
    case u't': return runLength(rest, 0, 5) == 5;
    case u'a': return halfOfDayLength(rest) > 0;
    default: return false;
    }
}

void DateMask::append(DatePart part, char16_t literal) { m_items.push_back({part, literal}); }

void DateMask::appendHalfOfDay(DatePart part)
{
    m_twelveHours = true;
    append(part);
}

//! Reads a user's picture from left to right.
class DateMask::PictureCompiler
{
public:
    explicit PictureCompiler(QStringView picture) : m_picture(picture)
    {
        m_mask.m_items.reserve(static_cast<std::size_t>(picture.size()));
    }

    DateMask compile()
    {
        while (m_at < m_picture.size() && !m_complete) {
            const char16_t letter = lowered(m_picture[m_at]);
            // An m that follows the hour means minutes, whatever else stands between.
            if (takeField(letter))
                m_afterHour = letter == u'h';
            else
                takeCharacter();
        }
        return std::move(m_mask);
    }

private:
    void literal(QChar c) { m_mask.append(DatePart::Literal, c.unicode()); }

    //! Moves behind a run of one letter and tells its length less one, the place in a table of its forms.
    std::size_t takeRun(int limit)
    {
        const int length = runLength(m_picture, m_at, limit);
        m_at += length;
        return static_cast<std::size_t>(length - 1);
    }

    bool takeField(char16_t letter)
    {
        using enum DatePart;
        static constexpr DatePart days[] = {Day, TwoDigitDay, ShortDayName, DayName, ShortDate, LongDate};
        switch (letter) {
        case u'd': m_mask.append(days[takeRun(6)]); return true;
        case u'w': m_mask.append(takeRun(2) == 0 ? WeekDay : Week); return true;
        case u'm': takeMonthOrMinute(); return true;
        case u'q':
            takeRun(1);
            m_mask.append(Quarter);
            return true;
        case u'y': takeYear(); return true;
        case u'h': m_mask.append(takeRun(2) == 0 ? Hour : TwoDigitHour); return true;
        case u'n': m_mask.append(takeRun(2) == 0 ? Minute : TwoDigitMinute); return true;
        case u's': m_mask.append(takeRun(2) == 0 ? Second : TwoDigitSecond); return true;
        case u't': return takeLongTime();
        case u'a': return takeHalfOfDay();
        case u'c':
            m_mask.append(GeneralDate);
            m_complete = true; // Kept: nothing behind the whole date is written
            return true;
        default: return false;
        }
    }

    void takeMonthOrMinute()
    {
        using enum DatePart;
        static constexpr DatePart months[] = {Month, TwoDigitMonth, ShortMonthName, MonthName};
        if (m_afterHour)
            m_mask.append(takeRun(2) == 0 ? Minute : TwoDigitMinute);
        else
            m_mask.append(months[takeRun(4)]);
    }

    void takeYear()
    {
        const int length = runLength(m_picture, m_at, 4);
        // Three of them are a two-digit year and a day of the year.
        m_at += length == 3 ? 2 : length;
        m_mask.append(length == 1 ? DatePart::DayOfYear : length == 4 ? DatePart::Year : DatePart::TwoDigitYear);
    }

    bool takeLongTime()
    {
        if (runLength(m_picture, m_at, 5) < 5)
            return false;
        m_at += 5;
        m_mask.append(DatePart::LongTime);
        return true;
    }

    bool takeHalfOfDay()
    {
        const bool capital = m_picture[m_at] == u'A';
        const qsizetype length = halfOfDayLength(m_picture.sliced(m_at));
        switch (length) {
        case 5: m_mask.appendHalfOfDay(capital ? DatePart::UpperAmPm : DatePart::LowerAmPm); break;
        case 4: m_mask.appendHalfOfDay(DatePart::LocaleAmPm); break;
        case 3: m_mask.appendHalfOfDay(capital ? DatePart::UpperLetter : DatePart::LowerLetter); break;
        default: return false;
        }
        m_at += length;
        return true;
    }

    void takeCharacter()
    {
        const QChar c = m_picture[m_at++];
        switch (c.unicode()) {
        case u'/': m_mask.append(DatePart::DateSeparator); break;
        case u':': m_mask.append(DatePart::TimeSeparator); break;
        case u';': m_complete = true; break;
        case u'"':
            for (; m_at < m_picture.size() && m_picture[m_at] != u'"'; ++m_at)
                literal(m_picture[m_at]);
            ++m_at;
            break;
        case u'\\':
            if (m_at < m_picture.size())
                literal(m_picture[m_at++]);
            break;
        default: literal(c);
        }
    }

    QStringView m_picture;
    qsizetype m_at = 0;
    DateMask m_mask;
    bool m_afterHour = false;
    bool m_complete = false;
};

DateMask DateMask::fromPicture(QStringView picture) { return PictureCompiler(picture).compile(); }

namespace {

//! What a run of one letter means in a system's pattern.
DatePart systemPart(char16_t letter, qsizetype length)
{
    using enum DatePart;
    switch (letter) {
    case u'd': return length == 1 ? Day : length == 2 ? TwoDigitDay : length == 3 ? ShortDayName : DayName;
    case u'M': return length == 1 ? Month : length == 2 ? TwoDigitMonth : length == 3 ? ShortMonthName : MonthName;
    case u'y': return length == 2 ? TwoDigitYear : Year;
    case u'h':
    case u'H': return length == 1 ? Hour : TwoDigitHour;
    case u'm': return length == 1 ? Minute : TwoDigitMinute;
    case u's': return length == 1 ? Second : TwoDigitSecond;
    case u't': return LocaleAmPm;
    default: return Literal;
    }
}

} // namespace

DateMask DateMask::fromSystemPattern(QStringView pattern)
{
    DateMask mask;
    bool hasDayNumber = false;
    bool quoted = false;
    for (qsizetype at = 0; at < pattern.size();) {
        const char16_t c = pattern[at].unicode();
        if (c == u'\'' && !(at + 1 < pattern.size() && pattern[at + 1] == u'\'')) {
            quoted = !quoted;
            ++at;
            continue;
        }
        // Two apostrophes in a row are one to be written.
        at += c == u'\'' ? 1 : 0;
        qsizetype length = 1;
        while (!quoted && length < 4 && at + length < pattern.size() && pattern[at + length] == c)
            ++length;
        const DatePart part = quoted ? DatePart::Literal : systemPart(c, length);
        mask.append(part, c);
        hasDayNumber = hasDayNumber || part == DatePart::Day || part == DatePart::TwoDigitDay;
        mask.m_twelveHours = mask.m_twelveHours || (c == u'h' && part != DatePart::Literal);
        at += part == DatePart::Literal ? 1 : length;
    }
    for (Item &item : mask.m_items) {
        if (hasDayNumber && item.part == DatePart::MonthName)
            item.part = DatePart::MonthNameBesideDay;
    }
    return mask;
}

} // namespace kor
