// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPalette>

#include <algorithm>
#include <cmath>

namespace kor::test {

//! How well two colours are told apart: 1 for the same, 21 for black and white; signs need 3, texts 4.5.
[[nodiscard]] inline double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto channel = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
    };
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

//! The highest contrast that a part of a picture has to its ground.
[[nodiscard]] inline double contrastIn(const QImage &picture, const QRect &part, const QColor &ground)
{
    double highest = 1;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            highest = std::max(highest, contrast(picture.pixelColor(x, y), ground));
    }
    return highest;
}

//! A theme of dark grounds and light texts, as desktops hand it to their programs.
[[nodiscard]] inline QPalette darkTheme()
{
    QPalette theme(QColor(53, 53, 56), QColor(45, 45, 48));
    const QColor text(235, 235, 235);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        theme.setColor(role, text);
    theme.setColor(QPalette::Base, QColor(30, 30, 32));
    return theme;
}

} // namespace kor::test
