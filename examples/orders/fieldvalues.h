// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDate>
#include <QtCore/QVariant>

#include <optional>

class KorDate;

namespace orders {

//! The date of a field; an invalid one for a text that is none, nothing for an empty field.
[[nodiscard]] std::optional<QDate> dateOf(const KorDate &field);
[[nodiscard]] QVariant valueOf(const std::optional<QDate> &date);

//! The key that a list has as its value; nothing when nothing is chosen. Keys have 64 bits, as those of the tables.
[[nodiscard]] std::optional<qint64> keyIn(const QVariant &value);
[[nodiscard]] QVariant valueOf(std::optional<qint64> key);

} // namespace orders
