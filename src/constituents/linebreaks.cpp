// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/linebreaks.h"

#include "constituents/characters.h"

#include <algorithm>

namespace kor {

namespace {

//! The length of the line break at a place of a text, 0 when there is none.
qsizetype breakAt(QStringView text, qsizetype at)
{
    switch (text.at(at).unicode()) {
    case u'\r': return at + 1 < text.size() && text.at(at + 1) == u'\n' ? 2 : 1;
    case u'\n':
    case QChar::ParagraphSeparator:
    case u'\uFDD0': // no characters of any text, this one and the next, but the toolkit's editor breaks lines at them
    case u'\uFDD1': return 1;
    default: return 0;
    }
}

qsizetype unitAt(QStringView text, qsizetype at) { return std::max<qsizetype>(1, breakAt(text, at)); }

//! The place in the text after so many characters of the editor.
qsizetype advance(QStringView text, qsizetype characters)
{
    qsizetype at = 0;
    for (; characters > 0 && at < text.size(); --characters)
        at += unitAt(text, at);
    return at;
}

//! Two texts in a row, with as many line breaks as both have: a lone carriage return must not join a line feed.
QString joined(const QString &left, const QString &right)
{
    const bool wouldMerge = left.endsWith(u'\r') && right.startsWith(u'\n');
    return wouldMerge ? left + u'\n' + right : left + right;
}

} // namespace

QString toEditorText(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); at += unitAt(text, at))
        plain += breakAt(text, at) > 0 ? QChar(u'\n') : text.at(at);
    return plain;
}

QString lineBreakOf(const QString &text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (const qsizetype length = breakAt(text, at))
            return text.mid(at, length);
    }
    return QStringLiteral("\n");
}

QString fromEditorText(const QString &edited, const QString &original)
{
    const QString before = toEditorText(original);
    const qsizetype shorter = std::min(edited.size(), before.size());
    const qsizetype head =
        std::mismatch(edited.cbegin(), edited.cbegin() + shorter, before.cbegin()).first - edited.cbegin();
    qsizetype tail = 0;
    while (tail < shorter - head && edited.at(edited.size() - 1 - tail) == before.at(before.size() - 1 - tail))
        ++tail;
    QString middle = edited.mid(head, edited.size() - head - tail);
    middle.replace(u'\n', lineBreakOf(original));
    return joined(joined(original.left(advance(original, head)), middle),
                  original.mid(advance(original, before.size() - tail)));
}

QString fittingText(const QString &edited, const QString &lineBreak, qsizetype room)
{
    qsizetype at = 0;
    for (qsizetype taken = 0; at < edited.size(); ++at) {
        taken += edited.at(at) == u'\n' ? lineBreak.size() : 1;
        if (taken > room)
            break;
    }
    return wholeCharacters(edited, at);
}

int toEditorPosition(const QString &text, int position)
{
    int characters = 0;
    for (qsizetype at = 0; at < text.size() && at + unitAt(text, at) <= position; at += unitAt(text, at))
        ++characters;
    return characters;
}

int fromEditorPosition(const QString &text, int position) { return static_cast<int>(advance(text, position)); }

} // namespace kor
