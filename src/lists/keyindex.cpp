// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/keyindex.h"

#include <KorDaoUC/compare.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <algorithm>

namespace kor {

bool areSameKey(const QVariant &left, const QVariant &right, KeyEquality equality, const Locale &locale)
{
    return equality == KeyEquality::Loose ? looselyEqual(left, right, locale) : strictlyEqual(left, right);
}

template <class Hashed>
void KeyIndex::Buckets<Hashed>::clear()
{
    chains.clear();
    next.clear();
}

template <class Hashed>
void KeyIndex::Buckets<Hashed>::append(const Hashed &value, int place)
{
    next.resize(static_cast<std::size_t>(place) + 1, -1);
    const auto chain = chains.find(value);
    if (chain == chains.end()) {
        chains.insert(value, {place, place});
    } else {
        next[static_cast<std::size_t>(chain->last)] = place;
        chain->last = place;
    }
}

template <class Hashed>
int KeyIndex::Buckets<Hashed>::first(const Hashed &value, const std::function<bool(int)> &isSame) const
{
    const auto chain = chains.constFind(value);
    int place = chain == chains.cend() ? -1 : chain->first;
    while (place >= 0 && !isSame(place))
        place = next[static_cast<std::size_t>(place)];
    return place;
}

void KeyIndex::clear()
{
    m_count = 0;
    m_numbers.clear();
    m_rounded.clear();
    m_wholes.clear();
    m_roundedWholes.clear();
    m_texts.clear();
}

namespace {

//! The only 64-bit integer that is equal to a number; nothing where there is none.
std::optional<qint64> wholeOf(double number)
{
    constexpr double limit = 0x1p63;
    return number >= -limit && number < limit ? std::optional(static_cast<qint64>(number)) : std::nullopt;
}

} // namespace

//! The number as which a key may be found; nothing for one that is equal to no number.
std::optional<double> KeyIndex::numberOf(const QVariant &key) const
{
    switch (variantType(key)) {
    case VariantType::Null:
    case VariantType::Missing: return std::nullopt;
    case VariantType::String:
        if (m_equality == KeyEquality::Strict || !IsNumeric(key, m_locale))
            return std::nullopt;
        return CDbl(key, m_locale);
    default: return CDbl(key, m_locale);
    }
}

void KeyIndex::append(const QVariant &given)
{
    const QVariant key = normalized(given);
    const VariantType type = variantType(key);
    if (type == VariantType::LongLong) {
        m_wholes.append(key.value<qint64>(), m_count);
        if (m_equality == KeyEquality::Loose)
            m_roundedWholes.append(CDbl(key, m_locale), m_count);
    } else if (const auto number = numberOf(key)) {
        m_numbers.append(*number, m_count);
        if (type == VariantType::Double || type == VariantType::String)
            m_rounded.append(static_cast<float>(*number), m_count);
    }
    if (type == VariantType::String || type == VariantType::Empty)
        m_texts.append(CStr(key, m_locale), m_count);
    ++m_count;
}

int KeyIndex::firstPlace(const QVariant &given, const std::function<bool(int)> &isSame) const
{
    const QVariant wanted = normalized(given);
    const VariantType type = variantType(wanted);
    int first = -1;
    const auto consider = [&first](int place) {
        if (place >= 0 && (first < 0 || place < first))
            first = place;
    };
    if (type == VariantType::String || type == VariantType::Empty)
        consider(m_texts.first(CStr(wanted, m_locale), isSame));
    if (const auto number = numberOf(wanted)) {
        consider(m_numbers.first(*number, isSame));
        if (type == VariantType::LongLong)
            consider(m_wholes.first(wanted.value<qint64>(), isSame));
        else if (const auto whole = wholeOf(*number))
            consider(m_wholes.first(*whole, isSame));
        if (type == VariantType::String)
            consider(m_roundedWholes.first(*number, isSame));
        if (type == VariantType::Single)
            consider(m_rounded.first(static_cast<float>(*number), isSame));
        else
            consider(m_numbers.first(static_cast<double>(static_cast<float>(*number)), isSame));
    }
    return first;
}

} // namespace kor
