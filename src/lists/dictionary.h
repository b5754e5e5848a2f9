// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "lists/keyindex.h"

#include <KorDaoUC/locale.h>

#include <QtCore/QList>
#include <QtCore/QVariant>

namespace kor {

//! The keys of a list's entries, in the types in which they came; key i belongs to the entry that the list shows at i.
//!
//! The first search among many keys walks them, as most lists are searched once after they were filled; the second
//! one makes an index, which grows with the keys from then on.
class Dictionary
{
public:
    explicit Dictionary(KeyEquality equality, const Locale &locale = Locale::systemDefault());

    void clear();
    void append(const QVariant &key);
    void append(QList<QVariant> keys);

    [[nodiscard]] bool isEmpty() const { return m_keys.isEmpty(); }
    [[nodiscard]] int count() const { return static_cast<int>(m_keys.size()); }
    //! The key at a place, Null where there is none. Good until the keys change.
    [[nodiscard]] const QVariant &key(int place) const;

    //! The first place of a key, -1 when there is none. Null and a missing argument are found nowhere.
    [[nodiscard]] int indexOf(const QVariant &wanted) const;
    [[nodiscard]] bool contains(const QVariant &wanted) const { return indexOf(wanted) >= 0; }
    //! Whether two values are different keys. One of them Null makes them not different.
    [[nodiscard]] bool isDifferent(const QVariant &left, const QVariant &right) const;

private:
    [[nodiscard]] bool isSame(const QVariant &left, const QVariant &right) const
    {
        return areSameKey(left, right, m_equality, m_locale);
    }

    KeyEquality m_equality;
    Locale m_locale;
    QList<QVariant> m_keys;
    enum class Search { Fresh, Walked, Indexed };
    mutable Search m_search = Search::Fresh;
    mutable KeyIndex m_index;
};

} // namespace kor
