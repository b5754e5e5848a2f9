// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formtext.h"

#include "forms/formnumber.h"
#include "forms/savedfont.h"

#include <KorDaoUC/variant.h>

#include <QtCore/QDateTime>

#include <algorithm>

namespace kor {

namespace {

constexpr QLatin1String hexDigits("0123456789ABCDEF");

bool isNameCharacter(QChar character) { return character.isLetterOrNumber() || character == u'_' || character == u'.'; }

bool isBlank(QChar character) { return character == u' ' || character == u'\t'; }

//! What would break the line, hide from the eye, or stand for no character at all.
bool needsEscape(QStringView text, qsizetype at)
{
    const QChar character = text.at(at);
    if (character.isHighSurrogate())
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    if (character.isLowSurrogate())
        return at == 0 || !text.at(at - 1).isHighSurrogate();
    if (character.unicode() >= 0xfffe)
        return true;
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    default: return character == u'\\';
    }
}

QString escaped(QChar character)
{
    switch (character.unicode()) {
    case u'\\': return QStringLiteral("\\\\");
    case u'\n': return QStringLiteral("\\n");
    case u'\r': return QStringLiteral("\\r");
    case u'\t': return QStringLiteral("\\t");
    default: break;
    }
    QString result = QStringLiteral("\\u");
    for (int shift = 12; shift >= 0; shift -= 4)
        result += hexDigits[(character.unicode() >> shift) & 0xf];
    return result;
}

//! A date that carries midnight is a date alone, as everywhere in the run-time.
QString writeDate(const QVariant &value)
{
    const QTime midnight(0, 0);
    const QDate date = value.toDate();
    const QTime time = value.typeId() == QMetaType::QDateTime ? value.toTime() : midnight;
    if (!date.isValid() || date.year() < 1 || date.year() > 9999)
        return QStringLiteral("Null");
    QString text = date.toString(Qt::ISODate);
    if (time != midnight) {
        text += u' ' + time.toString(time.msec() == 0 ? QStringLiteral("HH:mm:ss") : QStringLiteral("HH:mm:ss.zzz"));
    }
    return u'#' + text + u'#';
}

//! Whether the text has digits where the picture has 0, and the picture's own characters elsewhere.
bool isPicture(QStringView text, QLatin1String picture)
{
    return std::equal(text.begin(), text.end(), picture.begin(), picture.end(), [](QChar character, char place) {
        return place == '0' ? character >= u'0' && character <= u'9' : character == QLatin1Char(place);
    });
}

//! A QDate, a QDateTime, or nothing when the text is neither.
QVariant dateFromText(QStringView text)
{
    const bool hasMilliseconds = isPicture(text, QLatin1String("0000-00-00 00:00:00.000"));
    const bool hasTime = hasMilliseconds || isPicture(text, QLatin1String("0000-00-00 00:00:00"));
    if (!hasTime && !isPicture(text, QLatin1String("0000-00-00")))
        return {};
    const auto part = [text](qsizetype at, qsizetype length) { return text.sliced(at, length).toInt(); };
    const QDate date(part(0, 4), part(5, 2), part(8, 2));
    if (!date.isValid() || !hasTime)
        return date.isValid() ? QVariant(date) : QVariant();
    const QTime time(part(11, 2), part(14, 2), part(17, 2), hasMilliseconds ? part(20, 3) : 0);
    if (time == QTime(0, 0))
        return date;
    return time.isValid() ? QVariant(QDateTime(date, time, Qt::UTC)) : QVariant();
}

QString writeFont(const FontWords &font)
{
    QString text = QStringLiteral("Font(") + writeText(font.family);
    for (const QString &word : font.words)
        text += QStringLiteral(", ") + word;
    return text + u')';
}

} // namespace

QString writeName(const QString &name)
{
    const bool plain = !name.isEmpty() && std::all_of(name.cbegin(), name.cend(), isNameCharacter);
    return plain ? name : writeText(name);
}

QString writeText(QStringView text)
{
    QString result;
    result.reserve(text.size() + 2);
    result += u'"';
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (needsEscape(text, at))
            result += escaped(text.at(at));
        else if (text.at(at) == u'"')
            result += QStringLiteral("\"\"");
        else
            result += text.at(at);
    }
    return result += u'"';
}

QString writeValue(const QVariant &value)
{
    if (const std::optional<FontWords> font = fontWords(value))
        return writeFont(*font);
    // Before the Variant is asked for: a file may hold a date that is too early for one, and keeps it.
    if (value.typeId() == QMetaType::QDate || value.typeId() == QMetaType::QDateTime)
        return writeDate(value);
    const QVariant variant = normalized(value);
    switch (variantType(variant)) {
    case VariantType::Null: return QStringLiteral("Null");
    case VariantType::Missing: return QStringLiteral("Missing");
    case VariantType::Boolean: return variant.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case VariantType::Byte:
    case VariantType::Integer:
    case VariantType::Long:
    case VariantType::LongLong:
    case VariantType::Single:
    case VariantType::Double:
    case VariantType::Currency: return writeNumber(variant);
    case VariantType::String: return writeText(variant.toString());
    case VariantType::Date: return writeDate(variant); // a time of day
    case VariantType::Empty:
    case VariantType::Other: break;
    }
    return QStringLiteral("Empty");
}

std::nullopt_t LineReader::fail(const QString &reason)
{
    m_reason = reason;
    return std::nullopt;
}

bool LineReader::atEnd()
{
    while (m_at < m_line.size() && isBlank(m_line.at(m_at)))
        ++m_at;
    return m_at == m_line.size() || m_line.at(m_at) == u'\'';
}

bool LineReader::take(QChar character)
{
    if (atEnd() || m_line.at(m_at) != character)
        return false;
    ++m_at;
    return true;
}

QStringView LineReader::readToken()
{
    const qsizetype start = m_at;
    while (m_at < m_line.size() && !isBlank(m_line.at(m_at)) && !QStringView(u"\"'=(),").contains(m_line.at(m_at)))
        ++m_at;
    return m_line.sliced(start, m_at - start);
}

std::optional<LineReader::Word> LineReader::readName()
{
    if (atEnd())
        return fail(QStringLiteral("a name is missing"));
    if (m_line.at(m_at) == u'"') {
        const std::optional<QString> text = readText();
        return text ? std::optional(Word{*text, true}) : std::nullopt;
    }
    const qsizetype start = m_at;
    while (m_at < m_line.size() && isNameCharacter(m_line.at(m_at)))
        ++m_at;
    if (m_at == start)
        return fail(
            QStringLiteral("'%1' can't begin a name; other names than letters, digits, '_' and '.' stand in quotes")
                .arg(m_line.at(m_at)));
    return Word{m_line.sliced(start, m_at - start).toString(), false};
}

std::optional<QVariant> LineReader::readValue()
{
    if (atEnd())
        return fail(QStringLiteral("the value is missing"));
    if (m_line.at(m_at) == u'"')
        return readText();
    if (m_line.at(m_at) == u'#')
        return readDate();
    const QStringView token = readToken();
    if (token == u"True" || token == u"False")
        return QVariant(token == u"True");
    if (token == u"Null")
        return null();
    if (token == u"Empty")
        return QVariant();
    if (token == u"Missing")
        return missing();
    if (token == u"Font")
        return readFont();
    return readNumber(token);
}

std::optional<QVariant> LineReader::readNumber(QStringView token)
{
    NumberResult number = kor::readNumber(token);
    if (!number.reason.isEmpty())
        return fail(number.reason);
    return number.value;
}

std::optional<QString> LineReader::readText()
{
    QString text;
    while (++m_at < m_line.size()) {
        QChar character = m_line.at(m_at);
        if (character == u'"') {
            ++m_at;
            if (m_at == m_line.size() || m_line.at(m_at) != u'"')
                return text;
        } else if (character == u'\\') {
            const std::optional<QChar> meant = readEscape();
            if (!meant)
                return std::nullopt;
            character = *meant;
        }
        text += character;
    }
    return fail(QStringLiteral("the text has no closing quote"));
}

std::optional<QChar> LineReader::readEscape()
{
    ++m_at;
    const QChar letter = m_at < m_line.size() ? m_line.at(m_at) : QChar();
    switch (letter.unicode()) {
    case u'\\': return letter;
    case u'n': return u'\n';
    case u'r': return u'\r';
    case u't': return u'\t';
    case u'u': break;
    default:
        return fail(QStringLiteral("a backslash must be followed by \\, n, r, t or u and four hexadecimal digits"));
    }
    ushort code = 0;
    for (int digit = 0; digit < 4; ++digit) {
        ++m_at;
        const qsizetype place = m_at < m_line.size() ? hexDigits.indexOf(m_line.at(m_at).toUpper()) : -1;
        if (place < 0)
            return fail(QStringLiteral("\\u must be followed by four hexadecimal digits"));
        code = static_cast<ushort>(code << 4 | place);
    }
    return QChar(code);
}

std::optional<QVariant> LineReader::readDate()
{
    const qsizetype end = m_line.indexOf(u'#', m_at + 1);
    if (end < 0)
        return fail(QStringLiteral("the date has no closing '#'"));
    const QStringView text = m_line.sliced(m_at + 1, end - m_at - 1);
    m_at = end + 1;
    if (const QVariant date = dateFromText(text); date.isValid())
        return date;
    return fail(QStringLiteral("#%1# is no date; dates are written #2026-11-21# or #2026-11-21 12:30:00#").arg(text));
}

std::optional<QVariant> LineReader::readFont()
{
    const QString shape =
        QStringLiteral("a font is written Font(\"family\", size, Bold, Italic, Underline, Strikeout)");
    if (!take(u'(') || atEnd() || m_line.at(m_at) != u'"')
        return fail(shape);
    const std::optional<QString> family = readText();
    if (!family)
        return std::nullopt;
    FontWords words{*family, {}};
    while (take(u',')) {
        (void)atEnd();
        words.words << readToken().toString();
    }
    if (!take(u')'))
        return fail(shape);
    std::optional<QVariant> font = fontFromWords(words);
    return font ? font : fail(shape);
}

} // namespace kor
