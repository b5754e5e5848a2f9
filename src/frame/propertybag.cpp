// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/propertybag.h>
#include <KorDaoUC/runtimeerror.h>

#include <algorithm>
#include <cmath>

namespace kor {

namespace {

bool isNaN(const QVariant &value)
{
    return (value.typeId() == QMetaType::Double && std::isnan(value.value<double>())) ||
           (value.typeId() == QMetaType::Float && std::isnan(value.value<float>()));
}

} // namespace

bool isSameSetting(const QVariant &left, const QVariant &right)
{
    if (left.metaType() != right.metaType())
        return false;
    // Two Nulls are one setting, though they are no equal values; and so are two that are no numbers.
    return left.typeId() == QMetaType::Nullptr || left == right || (isNaN(left) && isNaN(right));
}

void PropertyBag::WriteProperty(const QString &key, const QVariant &value, const QVariant &defaultValue)
{
    if (!defaultValue.isValid() || !isSameSetting(value, defaultValue))
        append(key, value);
}

QVariant PropertyBag::ReadProperty(const QString &key, const QVariant &defaultValue) const
{
    const auto found =
        std::find_if(m_entries.crbegin(), m_entries.crend(), [&key](const Entry &entry) { return entry.first == key; });
    return found != m_entries.crend() ? found->second : defaultValue;
}

void PropertyBag::append(const QString &key, const QVariant &value) { m_entries.emplaceBack(key, value); }

const PropertyBag::Entry &PropertyBag::entryAt(int index) const
{
    if (index < 0 || index >= count())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return m_entries.at(index);
}

bool PropertyBag::contains(const QString &key) const
{
    return std::any_of(m_entries.cbegin(), m_entries.cend(), [&key](const Entry &entry) { return entry.first == key; });
}

bool PropertyBag::operator==(const PropertyBag &other) const
{
    return std::equal(m_entries.cbegin(), m_entries.cend(), other.m_entries.cbegin(), other.m_entries.cend(),
                      [](const Entry &left, const Entry &right) {
                          return left.first == right.first && isSameSetting(left.second, right.second);
                      });
}

} // namespace kor
