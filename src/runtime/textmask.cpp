// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/textmask.h"

#include "runtime/numbermask.h"

namespace kor {

TextMask::Section TextMask::Section::fromPicture(QStringView picture)
{
    Section section;
    const auto place = [&](Part part) {
        section.items.push_back({part, 0});
        ++section.places;
    };
    const auto literal = [&](QChar c) { section.items.push_back({Part::Literal, c.unicode()}); };
    // The first of < and > holds for the whole section.
    const auto letterCase = [&](LetterCase wanted) {
        section.letterCase = section.letterCase == LetterCase::Kept ? wanted : section.letterCase;
    };
    bool quoted = false;
    for (qsizetype at = 0; at < picture.size(); ++at) {
        const QChar c = picture[at];
        // Kept: a quoted < or > is written and sets the case all the same.
        if (c == u'<' || c == u'>')
            letterCase(c == u'<' ? LetterCase::Lower : LetterCase::Upper);
        if (c == u'"')
            quoted = !quoted;
        else if (quoted)
            literal(c);
        else if (c == u'@')
            place(Part::CharacterOrBlank);
        else if (c == u'&')
            place(Part::CharacterOrNothing);
        else if (c == u'<' || c == u'>')
            continue;
        else if (c == u'!')
            section.fromLeft = true;
        else if (c != u'\\')
            literal(c);
        else if (at + 1 < picture.size())
            literal(picture[++at]);
    }
    return section;
}

void TextMask::Section::write(QStringView text, MaskOutput &out) const
{
    QString cased;
    if (letterCase == LetterCase::Upper) {
        cased = text.toString().toUpper();
        text = cased;
    } else if (letterCase == LetterCase::Lower) {
        // Kept: only the letters A to Z are lowered, while > raises every letter.
        cased = text.toString();
        for (QChar &c : cased)
            c = c >= u'A' && c <= u'Z' ? QChar(c.unicode() + 32) : c;
        text = cased;
    }
    // From the left, what has no place is cut off at the front; from the right it is appended at the end.
    if (fromLeft && places > 0 && text.size() > places)
        text = text.last(places);
    qsizetype blanks = fromLeft ? 0 : qMax<qsizetype>(0, places - text.size());
    qsizetype next = 0;
    for (const Item item : items) {
        if (item.part == Part::Literal) {
            out.append(item.literal);
        } else if (blanks == 0 && next < text.size()) {
            out.append(text[next++].unicode());
        } else {
            blanks -= blanks > 0 ? 1 : 0;
            if (item.part == Part::CharacterOrBlank)
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
