// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/textmask.h"

#include "runtime/numbermask.h"

namespace kor {

namespace {

constexpr char32_t dottedI = 0x130; // the one letter whose small form the toolkit writes as two

//! Letter by letter, since each has a place of the mask: none becomes two of them, as the last of "groß" might.
QString inCase(QStringView text, bool isUpper)
{
    QString cased;
    cased.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const char32_t letter = isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : text[at].unicode();
        at += isPair ? 1 : 0;
        if (isUpper)
            cased += QChar::fromUcs4(QChar::toUpper(letter));
        else
            cased += QChar::fromUcs4(letter == dottedI ? U'i' : QChar::toLower(letter));
    }
    return cased;
}

} // namespace

TextMask::Section TextMask::Section::fromPicture(QStringView picture)
{
    Section section;
    const auto place = [&](Part part) {
        section.items.push_back({part, 0});
        ++section.places;
    };
    const auto literal = [&](QChar c) { section.items.push_back({Part::Literal, c.unicode()}); };
    bool lower = false;
    bool upper = false;
    LetterCase quotedCase = LetterCase::Kept;
    bool quoted = false;
    for (qsizetype at = 0; at < picture.size(); ++at) {
        const QChar c = picture[at];
        // Kept: a quoted < or > is written and sets the case all the same, the first of several.
        if (quoted && quotedCase == LetterCase::Kept)
            quotedCase = c == u'<' ? LetterCase::Lower : c == u'>' ? LetterCase::Upper : LetterCase::Kept;
        if (c == u'"')
            quoted = !quoted;
        else if (quoted)
            literal(c);
        else if (c == u'@')
            place(Part::CharacterOrBlank);
        else if (c == u'&')
            place(Part::CharacterOrNothing);
        else if (c == u'<')
            lower = true;
        else if (c == u'>')
            upper = true;
        else if (c == u'!')
            section.fromLeft = true;
        else if (c != u'\\')
            literal(c);
        else if (at + 1 < picture.size())
            literal(picture[++at]);
    }
    lower = lower || quotedCase == LetterCase::Lower;
    upper = upper || quotedCase == LetterCase::Upper;
    if (lower != upper)
        section.letterCase = lower ? LetterCase::Lower : LetterCase::Upper;
    return section;
}

void TextMask::Section::write(QStringView text, MaskOutput &out) const
{
    QString cased;
    if (letterCase != LetterCase::Kept) {
        cased = inCase(text, letterCase == LetterCase::Upper);
        text = cased;
    }
    // From the left, what has no place is cut off at the front; from the right it is appended at the end.
    if (fromLeft && places > 0 && text.size() > places)
        text = text.last(places);
    qsizetype blanks = fromLeft ? 0 : qMax<qsizetype>(0, places - text.size());
    const bool pads = !text.isEmpty(); // nothing is not filled up
    qsizetype next = 0;
    for (const Item item : items) {
        if (item.part == Part::Literal) {
            out.append(item.literal);
        } else if (blanks == 0 && next < text.size()) {
            out.append(text[next++].unicode());
        } else {
            blanks -= blanks > 0 ? 1 : 0;
            if (pads && item.part == Part::CharacterOrBlank)
                out.append(u' ');
        }
    }
    for (const QChar c : text.sliced(next))
        out.append(c.unicode());
}

TextMask TextMask::fromPicture(QStringView picture)
{
    TextMask mask;
    for (const QStringView section : maskSections(picture))
        mask.m_sections.push_back(Section::fromPicture(section));
    return mask;
}

void TextMask::write(QStringView text, MaskOutput &out) const
{
    m_sections[text.isEmpty() && m_sections.size() > 1 ? 1 : 0].write(text, out);
}

void TextMask::writeNull(MaskOutput &out) const
{
    if (m_sections.size() > 1)
        m_sections[1].write({}, out);
}

} // namespace kor
