// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <vector>

namespace kor {

//! A set of checked keys, written as one text: every key with the separator behind it, the last one too ("1;5;7;").
//!
//! A key is in the set when it stands there between two separators, one being thought before the first key. So a last
//! key without a separator behind it is not in the set, order and repetition don't matter, and a key that has the
//! separator inside itself is found too, though "1;2;" may then stand for one key or for two.
class CheckedSet
{
public:
    CheckedSet(const QString &keys, const QString &separator);

    [[nodiscard]] bool contains(QStringView key) const;
    //! Whether it is plain without a look at any key that none is in it.
    [[nodiscard]] bool isEmpty() const { return m_isTakenApart ? m_pieces.empty() : m_text.isEmpty(); }
    //! The set with the separator before the first key.
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    //! What stands between two separators that follow each other.
    struct Piece {
        qsizetype start;
        qsizetype length;
        std::size_t hash;
        int next; //!< the piece before it of the same bucket, -1 for none
    };

    void takeApart();
    //! Whether there is such a piece, wanted also for the text from its beginning on.
    template <class IsWanted>
    [[nodiscard]] bool hasPiece(QStringView wanted, IsWanted isWanted) const;
    [[nodiscard]] int &bucketOf(std::size_t hash) { return m_buckets[hash & (m_buckets.size() - 1)]; }
    [[nodiscard]] int bucketOf(std::size_t hash) const { return m_buckets[hash & (m_buckets.size() - 1)]; }

    QString m_separator;
    QString m_text;
    std::vector<Piece> m_pieces; //!< none where the separator does not divide the text in one way only
    std::vector<int> m_buckets;  //!< the last piece of each, by the hash of its text
    bool m_isTakenApart;
};

} // namespace kor
