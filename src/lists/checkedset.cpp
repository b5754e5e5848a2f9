// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/checkedset.h"

#include <QtCore/QHashFunctions>

#include <bit>
#include <utility>

namespace kor {

namespace {

//! Whether a separator can overlap itself, as "--" does in "---". Such a text can't be cut into pieces in one way only.
bool overlapsItself(QStringView separator)
{
    for (qsizetype shared = 1; shared < separator.size(); ++shared) {
        if (separator.endsWith(separator.first(shared)))
            return true;
    }
    return false;
}

} // namespace

CheckedSet::CheckedSet(const QString &keys, const QString &separator)
    : m_separator(separator),
      m_text(separator + keys),
      m_isTakenApart(!separator.isEmpty() && !overlapsItself(separator))
{
    if (m_isTakenApart)
        takeApart();
}

// A table of its own: it is built anew for each set, and the toolkit's takes several times as long for that.
void CheckedSet::takeApart()
{
    const QStringView text = m_text;
    m_pieces.reserve(static_cast<std::size_t>(text.count(m_separator)));
    qsizetype start = m_separator.size();
    for (qsizetype end = 0; (end = text.indexOf(m_separator, start)) >= 0; start = end + m_separator.size())
        m_pieces.push_back({start, end - start, qHash(text.sliced(start, end - start)), -1});

    m_buckets.assign(std::bit_ceil(2 * m_pieces.size() + 1), -1);
    for (std::size_t i = 0; i < m_pieces.size(); ++i)
        m_pieces[i].next = std::exchange(bucketOf(m_pieces[i].hash), static_cast<int>(i));
}

bool CheckedSet::contains(QStringView key) const
{
    if (!m_isTakenApart) {
        // Without a separator a key is in the set wherever it stands; nothing is in an empty text.
        return !m_text.isEmpty() && m_text.contains(m_separator + key.toString() + m_separator);
    }
    if (hasPiece(key, [](QStringView) { return true; }))
        return true;
    // A key with separators inside has to go on as the text does.
    const qsizetype headEnd = key.indexOf(m_separator);
    return headEnd >= 0 && hasPiece(key.first(headEnd), [&](QStringView rest) {
               return rest.startsWith(key) && rest.sliced(key.size()).startsWith(m_separator);
           });
}

template <class IsWanted>
bool CheckedSet::hasPiece(QStringView wanted, IsWanted isWanted) const
{
    const std::size_t hash = qHash(wanted);
    for (int i = bucketOf(hash); i >= 0; i = m_pieces[static_cast<std::size_t>(i)].next) {
        const Piece &piece = m_pieces[static_cast<std::size_t>(i)];
        const QStringView rest = QStringView(m_text).sliced(piece.start);
        if (piece.hash == hash && rest.first(piece.length) == wanted && isWanted(rest))
            return true;
    }
    return false;
}

} // namespace kor
