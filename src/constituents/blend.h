// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>

#include <cmath>

namespace kor {

//! The colour halfway between two.
[[nodiscard]] inline QColor between(const QColor &one, const QColor &other)
{
    return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2, (one.blue() + other.blue()) / 2);
}

//! How well two colours are told apart: 1 for the same, 21 for black and white.
[[nodiscard]] inline double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
    };
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

//! The colour of a sign on a ground: the wanted one, or the other where that would hardly be seen, as the dark blue of
//! a selection on a dark theme.
[[nodiscard]] inline QColor seenOn(const QColor &ground, const QColor &wanted, const QColor &other)
{
    constexpr double enough = 3;
    return contrast(ground, wanted) >= enough ? wanted : other;
}

} // namespace kor
