// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/characters.h"

#include <QtCore/QTextBoundaryFinder>

#include <algorithm>

namespace kor {

QString characterAt(const QString &text, qsizetype at)
{
    const bool isPair = text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return text.mid(at, isPair ? 2 : 1);
}

QString wholeCharacters(const QString &text, qsizetype length)
{
    if (length >= text.size())
        return text;
    constexpr qsizetype nextCharacter = 2; // what decides whether a place is a border; the rest may be long
    const QString head = text.left(std::max<qsizetype>(0, length) + nextCharacter);
    QTextBoundaryFinder borders(QTextBoundaryFinder::Grapheme, head);
    borders.setPosition(std::max<qsizetype>(0, length));
    const qsizetype border = borders.isAtBoundary() ? borders.position() : borders.toPreviousBoundary();
    return head.left(std::max<qsizetype>(0, border));
}

qsizetype placeOfCharacter(const QString &text, qsizetype place)
{
    const bool isInside =
        place > 0 && place < text.size() && text.at(place).isLowSurrogate() && text.at(place - 1).isHighSurrogate();
    return isInside ? place - 1 : place;
}

} // namespace kor
