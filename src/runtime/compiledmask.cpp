// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/compiledmask.h"

#include <QtCore/QVarLengthArray>

#include <array>

namespace kor {

namespace {

enum class Kind { Literal, Number, Date, Text };

//! What a picture is for: the first character that belongs to one kind only decides.
Kind kindOf(QStringView picture)
{
    bool number = false;
    for (qsizetype at = 0; at < picture.size(); ++at) {
        switch (picture[at].unicode()) {
        case u'"': {
            const qsizetype end = picture.indexOf(u'"', at + 1);
            at = end < 0 ? picture.size() : end;
            break;
        }
        case u'\\': ++at; break;
        case u'0':
        case u'#': return Kind::Number;
        case u'@':
        case u'&':
        case u'<':
        case u'>':
        case u'!': return Kind::Text;
        case u'.':
        case u'%': number = true; break;
        default:
            if (isDateMaskLetter(picture.sliced(at)))
                return Kind::Date;
        }
    }
    return number ? Kind::Number : Kind::Literal;
}

DateMask oneDatePart(DatePart part)
{
    DateMask mask;
    mask.append(part);
    return mask;
}

bool isName(QStringView mask, QLatin1String name)
{
    return mask.size() == name.size() && mask.compare(name, Qt::CaseInsensitive) == 0;
}

CompiledMask compileNamed(QStringView mask)
{
    constexpr qsizetype shortestName = 5;
    if (mask.size() < shortestName || !mask.front().isLetter())
        return std::monostate();
    static constexpr std::pair<QLatin1String, NamedFormat> named[] = {
        {QLatin1String("General Number"), NamedFormat::GeneralNumber},
        {QLatin1String("Currency"), NamedFormat::Currency},
        {QLatin1String("Yes/No"), NamedFormat::YesNo},
        {QLatin1String("True/False"), NamedFormat::TrueFalse},
        {QLatin1String("On/Off"), NamedFormat::OnOff},
    };
    static constexpr std::pair<QLatin1String, const char16_t *> numbers[] = {
        {QLatin1String("Standard"), u"#,##0.00"},
        {QLatin1String("Fixed"), u"0.00"},
        {QLatin1String("Percent"), u"0.00%"},
        {QLatin1String("Scientific"), u"0.00E+00"}};
    static constexpr std::pair<QLatin1String, const char16_t *> pictures[] = {
        {QLatin1String("Medium Date"), u"dd-mmm-yy"},
        {QLatin1String("Medium Time"), u"hh:nn AM/PM"},
        {QLatin1String("Short Time"), u"hh:nn"}};
    static constexpr std::pair<QLatin1String, DatePart> dates[] = {
        {QLatin1String("General Date"), DatePart::GeneralDate},
        {QLatin1String("Short Date"), DatePart::ShortDate},
        {QLatin1String("Long Date"), DatePart::LongDate},
        {QLatin1String("Long Time"), DatePart::LongTime}};
    for (const auto &[name, format] : named) {
        if (isName(mask, name))
            return format;
    }
    for (const auto &[name, picture] : numbers) {
        if (isName(mask, name))
            return NumberMask::fromPicture(picture);
    }
    for (const auto &[name, picture] : pictures) {
        if (isName(mask, name))
            return DateMask::fromPicture(picture);
    }
    for (const auto &[name, part] : dates) {
        if (isName(mask, name))
            return oneDatePart(part);
    }
    return std::monostate();
}

CompiledMask compile(QStringView mask)
{
    CompiledMask named = compileNamed(mask);
    if (mask.isEmpty() || !std::holds_alternative<std::monostate>(named))
        return named;
    switch (kindOf(mask)) {
    case Kind::Number: return NumberMask::fromPicture(mask);
    case Kind::Date: return DateMask::fromPicture(mask);
    case Kind::Text: return TextMask::fromPicture(mask);
    case Kind::Literal: break;
    }
    return LiteralMask{NumberMask::fromPicture(mask)};
}

//! A small direct-mapped cache: a form uses few masks, and a collision only costs a compilation. Its places are reused
//! as they are.
template <typename Compiled, Compiled (*compileText)(QStringView)>
class MaskCache
{
public:
    const Compiled &get(QStringView text)
    {
        Entry &entry = m_entries[slotOf(text)];
        if (QStringView(entry.text.data(), entry.text.size()) != text) {
            entry.compiled = compileText(text);
            entry.text.clear();
            entry.text.append(text.data(), text.size());
        }
        return entry.compiled;
    }

private:
    //! At first the empty text, whose mask is the default one.
    struct Entry {
        QVarLengthArray<QChar, 24> text;
        Compiled compiled;
    };
    static constexpr std::size_t slotCount = 64;

    static std::size_t slotOf(QStringView text)
    {
        if (text.isEmpty())
            return 0;
        std::size_t hash = static_cast<std::size_t>(text.size());
        hash = hash * 31 + text.front().unicode();
        hash = hash * 31 + text[text.size() / 2].unicode();
        hash = hash * 31 + text.back().unicode();
        return hash % slotCount;
    }

    std::array<Entry, slotCount> m_entries;
};

using PictureCache = MaskCache<CompiledMask, compile>;
using PatternCache = MaskCache<DateMask, DateMask::fromSystemPattern>;

PictureCache &pictures()
{
    thread_local PictureCache cache;
    return cache;
}

PatternCache &patterns()
{
    thread_local PatternCache cache;
    return cache;
}

} // namespace

const CompiledMask &compiledMask(QStringView mask) { return pictures().get(mask); }

const DateMask &systemPattern(QStringView pattern) { return patterns().get(pattern); }

} // namespace kor
