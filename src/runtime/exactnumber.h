// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

#include <compare>

namespace kor {

//! A number to be compared: a Double, or an integer that no Double holds with all its digits.
struct ExactNumber {
    double number = 0; //!< nearest to the integer when it is one
    qint64 whole = 0;
    bool isWhole = false;
};

[[nodiscard]] inline ExactNumber exactly(double number) { return {number, 0, false}; }
[[nodiscard]] inline ExactNumber exactly(qint64 whole) { return {static_cast<double>(whole), whole, true}; }

//! By value, without rounding the integer. A NaN is unordered.
[[nodiscard]] inline std::partial_ordering compareExactly(const ExactNumber &left, const ExactNumber &right)
{
    if (left.isWhole && right.isWhole)
        return left.whole <=> right.whole;
    if (!left.isWhole && !right.isWhole)
        return left.number <=> right.number;
    // Where the roundings differ, so do the numbers, and in the same direction.
    if (left.number != right.number)
        return left.number <=> right.number;
    constexpr double first = 0x1p63; // the smallest Double above all 64-bit integers
    const double shared = left.number;
    if (shared >= first)
        return left.isWhole ? std::partial_ordering::less : std::partial_ordering::greater;
    const auto asWhole = static_cast<qint64>(shared);
    return (left.isWhole ? left.whole : asWhole) <=> (right.isWhole ? right.whole : asWhole);
}

} // namespace kor
