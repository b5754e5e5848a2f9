// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDate>
#include <QtCore/QVariant>
#include <QtSql/QSqlQuery>

#include <optional>

namespace orders {

// What may be NULL in a table is an optional in the program, and a text that may be NULL is never empty in a table.

template <class Value>
[[nodiscard]] QVariant orNull(const std::optional<Value> &value)
{
    return value ? QVariant(*value) : QVariant();
}

[[nodiscard]] inline QVariant orNull(const QString &text) { return text.isEmpty() ? QVariant() : QVariant(text); }

[[nodiscard]] inline QVariant orNull(const std::optional<QDate> &date)
{
    return date ? QVariant(date->toString(Qt::ISODate)) : QVariant();
}

template <class Value>
[[nodiscard]] std::optional<Value> optional(const QSqlQuery &query, int column)
{
    return query.isNull(column) ? std::nullopt : std::optional(query.value(column).value<Value>());
}

[[nodiscard]] inline std::optional<QDate> optionalDate(const QSqlQuery &query, int column)
{
    if (query.isNull(column))
        return std::nullopt;
    return QDate::fromString(query.value(column).toString(), Qt::ISODate);
}

} // namespace orders
