// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/Convert>
#include <KorDaoUC/Variant>

#include <algorithm>
#include <cmath>
#include <optional>

namespace orders {

//! The whole grosze of an amount as the number fields give it, nothing for Null. One too large for any database is
//! still too large, not something else.
[[nodiscard]] inline std::optional<qint64> groszeOf(const QVariant &zlotys)
{
    constexpr double most = 1e15;
    if (kor::isNull(zlotys))
        return std::nullopt;
    return std::llround(std::clamp(kor::CDbl(zlotys) * 100, -most, most));
}

//! The same the other way.
[[nodiscard]] inline QVariant zlotysOf(std::optional<qint64> grosze)
{
    return grosze ? QVariant(static_cast<double>(*grosze) / 100) : kor::null();
}

} // namespace orders
