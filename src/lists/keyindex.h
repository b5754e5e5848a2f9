// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace kor {

//! By which equality a list finds its keys.
enum class KeyEquality {
    Loose,  //!< the drop-down list's: the text "1" is the number 1
    Strict, //!< the lists': a text is never a number
};

//! Whether two keys are the same. Null is the same as nothing, not even Null; Empty is 0 and "".
[[nodiscard]] bool areSameKey(const QVariant &left, const QVariant &right, KeyEquality equality, const Locale &locale);

//! Finds the places at which an equal key can stand, in a time that does not grow with the number of keys.
//!
//! It only proposes: hashes can't follow an equality in which a Double beside a Single counts as rounded, so the
//! caller has to compare. No place of an equal key is missed.
class KeyIndex
{
public:
    KeyIndex(KeyEquality equality, Locale locale) : m_equality(equality), m_locale(std::move(locale)) {}

    void clear();
    //! Takes up the key of the next place.
    void append(const QVariant &key);
    [[nodiscard]] int count() const { return m_count; }

    //! The first place, counted from 0, that the test accepts; -1 when it accepts none of those proposed.
    [[nodiscard]] int firstPlace(const QVariant &wanted, const std::function<bool(int place)> &isSame) const;

private:
    //! The places of keys that fell together, in rising order, chained through `next`.
    struct Chain {
        int first;
        int last;
    };
    template <class Hashed>
    struct Buckets {
        QHash<Hashed, Chain> chains;
        std::vector<int> next; //!< of each place; -1 at the end of its chain

        void clear();
        void append(const Hashed &value, int place);
        [[nodiscard]] int first(const Hashed &value, const std::function<bool(int)> &isSame) const;
    };

    [[nodiscard]] std::optional<double> numberOf(const QVariant &key) const;

    KeyEquality m_equality;
    Locale m_locale;
    int m_count = 0;
    Buckets<double> m_numbers;
    Buckets<float> m_rounded;        //!< Doubles once more, for a search with a Single
    Buckets<qint64> m_wholes;        //!< 64-bit integers, each by itself
    Buckets<double> m_roundedWholes; //!< the same once more, for a search with a text that says one
    Buckets<QString> m_texts;
};

} // namespace kor
