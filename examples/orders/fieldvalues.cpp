// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fieldvalues.h"

#include <KorDaoUC/Date>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/Variant>

namespace orders {

std::optional<QDate> dateOf(const KorDate &field)
{
    const QVariant value = field.Value();
    if (!kor::isNull(value))
        return kor::DateValue(value);
    return field.Text().isEmpty() ? std::nullopt : std::optional(QDate());
}

QVariant valueOf(const std::optional<QDate> &date) { return date ? QVariant(*date) : kor::null(); }

std::optional<qint64> keyIn(const QVariant &value)
{
    return kor::isNull(value) ? std::nullopt : std::optional(value.toLongLong());
}

QVariant valueOf(std::optional<qint64> key) { return key ? kor::normalized(*key) : kor::null(); }

} // namespace orders
