// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/textorder.h"

#include <QtCore/QString>

namespace kor {

namespace {

bool isMinor(QChar c) { return c == u'-' || c == u'\''; }

//! Punctuation before digits before letters; marks make a letter a neighbour of the bare one.
struct Weight {
    int group;
    char16_t base;
    char16_t exact;
    auto operator<=>(const Weight &) const = default;
};

char16_t baseOf(QChar folded)
{
    // These have no decomposition although the alphabet puts them beside their bare letter.
    if (folded == u'ł')
        return u'l';
    if (folded == u'ø')
        return u'o';
    if (folded == u'đ')
        return u'd';
    const QString parts = folded.decomposition();
    return parts.isEmpty() || folded.decompositionTag() != QChar::Canonical ? folded.unicode()
                                                                            : parts.front().unicode();
}

Weight weightOf(QChar c)
{
    const QChar folded = c.toCaseFolded();
    const int group = folded.isLetter() ? 2 : folded.isDigit() ? 1 : 0;
    return {group, group == 2 ? baseOf(folded) : folded.unicode(), folded.unicode()};
}

} // namespace

int compareByDictionary(QStringView left, QStringView right)
{
    qsizetype l = 0;
    qsizetype r = 0;
    int minor = 0;
    for (;;) {
        const qsizetype leftStart = l;
        const qsizetype rightStart = r;
        while (l < left.size() && isMinor(left[l]))
            ++l;
        while (r < right.size() && isMinor(right[r]))
            ++r;
        if (minor == 0)
            minor = left.sliced(leftStart, l - leftStart).compare(right.sliced(rightStart, r - rightStart));
        if (l == left.size() || r == right.size())
            break;
        const auto order = weightOf(left[l++]) <=> weightOf(right[r++]);
        if (order != 0)
            return order < 0 ? -1 : 1;
    }
    const bool leftRest = l < left.size();
    const bool rightRest = r < right.size();
    return leftRest != rightRest ? (leftRest ? 1 : -1) : minor;
}

} // namespace kor
