// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/typeahead.h"

#include <QtCore/QString>

namespace kor {

namespace {

//! The base letter of letters that are one piece to the character tables: a stroke is no accent there.
char16_t withoutStroke(char16_t character)
{
    switch (character) {
    case u'ł': return u'l';
    case u'đ': return u'd';
    case u'ø': return u'o';
    case u'ħ': return u'h';
    case u'ŧ': return u't';
    default: return character;
    }
}

char16_t folded(QChar character)
{
    if (character.unicode() < 0x80)
        return character.toLower().unicode();
    QChar base = character;
    while (base.decompositionTag() == QChar::Canonical) {
        const QString parts = base.decomposition();
        if (parts.isEmpty())
            break;
        base = parts.front();
    }
    return withoutStroke(base.toCaseFolded().unicode());
}

//! Walks the letters of a text; accents that stand behind their letter as characters of their own are passed over.
class Letters
{
public:
    explicit Letters(QStringView text) : m_text(text) {}

    //! The next letter, 0 behind the last.
    char16_t next()
    {
        while (m_at < m_text.size()) {
            const QChar character = m_text[m_at++];
            if (character.category() != QChar::Mark_NonSpacing)
                return folded(character);
        }
        return 0;
    }

private:
    QStringView m_text;
    qsizetype m_at = 0;
};

} // namespace

bool beginsAsTyped(QStringView name, QStringView typed)
{
    Letters have(name);
    Letters wanted(typed);
    while (const char16_t letter = wanted.next()) {
        if (have.next() != letter)
            return false;
    }
    return true;
}

} // namespace kor
