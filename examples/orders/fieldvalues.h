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

} // namespace orders
