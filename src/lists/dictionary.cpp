// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/dictionary.h"

#include <KorDaoUC/variant.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace kor {

namespace {

constexpr int worthAnIndex = 64; // keys

//! The keys of nearly every dictionary are Longs. The one that is equal to a value, where no more need be asked.
std::optional<int> equalLong(const QVariant &wanted)
{
    switch (variantType(wanted)) {
    case VariantType::Empty: return 0;
    case VariantType::Long: return wanted.value<int>();
    default: return std::nullopt;
    }
}

bool isLong(const QVariant &key) { return key.typeId() == QMetaType::Int && !key.isNull(); }

} // namespace

Dictionary::Dictionary(KeyEquality equality, const Locale &locale)
    : m_equality(equality), m_locale(locale), m_index(equality, locale)
{
}

void Dictionary::clear()
{
    m_keys.clear();
    m_index.clear();
    m_search = Search::Fresh;
}

void Dictionary::append(const QVariant &key)
{
    m_keys.append(key);
    if (m_search == Search::Indexed)
        m_index.append(key);
}

void Dictionary::append(QList<QVariant> keys)
{
    if (m_search == Search::Indexed)
        std::for_each(keys.cbegin(), keys.cend(), [this](const QVariant &key) { m_index.append(key); });
    if (m_keys.isEmpty())
        m_keys.swap(keys);
    else
        m_keys.append(std::move(keys));
}

const QVariant &Dictionary::key(int place) const
{
    static const QVariant none = null();
    return place >= 0 && place < count() ? m_keys[place] : none;
}

int Dictionary::indexOf(const QVariant &wanted) const
{
    const QVariant known = normalized(wanted);
    if (m_search == Search::Walked && count() >= worthAnIndex) {
        std::for_each(m_keys.cbegin(), m_keys.cend(), [this](const QVariant &key) { m_index.append(key); });
        m_search = Search::Indexed;
    }
    if (m_search == Search::Indexed)
        return m_index.firstPlace(known, [&](int place) { return isSame(m_keys[place], known); });
    m_search = Search::Walked;
    const std::optional<int> wantedLong = equalLong(known);
    const auto found = std::find_if(m_keys.cbegin(), m_keys.cend(), [&](const QVariant &key) {
        return wantedLong && isLong(key) ? key.value<int>() == *wantedLong : isSame(key, known);
    });
    return found != m_keys.cend() ? static_cast<int>(found - m_keys.cbegin()) : -1;
}

bool Dictionary::isDifferent(const QVariant &left, const QVariant &right) const
{
    const auto isNothing = [](const QVariant &value) { return isNull(normalized(value)) || isMissing(value); };
    return !isNothing(left) && !isNothing(right) && !isSame(left, right);
}

} // namespace kor
