// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/KorColor>

#include <optional>

namespace orders {

// A colour field whose entry "(domyślny)" means none.

inline constexpr int noColor = 1; // the colour of that entry

[[nodiscard]] inline std::optional<int> colorIn(const KorColor &field)
{
    return field.Value() == noColor ? std::nullopt : std::optional<int>(field.Value());
}

} // namespace orders
