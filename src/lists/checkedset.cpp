// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/checkedset.h"

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

void CheckedSet::takeApart()
{
    const QStringView text = m_text;
    qsizetype start = m_separator.size();
    for (qsizetype end = 0; (end = text.indexOf(m_separator, start)) >= 0; start = end + m_separator.size()) {
        const QStringView piece = text.sliced(start, end - start);
        m_pieces.push_back({start, m_places.value(piece, -1)});
        m_places.insert(piece, static_cast<qsizetype>(m_pieces.size()) - 1);
    }
}

bool CheckedSet::contains(QStringView key) const
{
    if (!m_isTakenApart) {
        // Without a separator a key is in the set wherever it stands; nothing is in an empty text.
        return !m_text.isEmpty() && m_text.contains(m_separator + key.toString() + m_separator);
    }
    const qsizetype headEnd = key.indexOf(m_separator);
    const auto found = m_places.constFind(headEnd < 0 ? key : key.first(headEnd));
    if (found == m_places.cend() || headEnd < 0)
        return found != m_places.cend();
    // A key with separators inside: it has to go on as the text does.
    for (qsizetype piece = *found; piece >= 0; piece = m_pieces[static_cast<std::size_t>(piece)].before) {
        const QStringView rest = QStringView(m_text).sliced(m_pieces[static_cast<std::size_t>(piece)].start);
        if (rest.startsWith(key) && rest.sliced(key.size()).startsWith(m_separator))
            return true;
    }
    return false;
}

} // namespace kor
