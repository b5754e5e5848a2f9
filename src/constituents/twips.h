// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace kor {

//! Twips (1440 per inch) to pixels of the screen's logical resolution and back: the one place that knows.
[[nodiscard]] double twipsPerPixelX(const QWidget *widget);
[[nodiscard]] double twipsPerPixelY(const QWidget *widget);
[[nodiscard]] int toPixelsX(const QWidget *widget, double twips);
[[nodiscard]] int toPixelsY(const QWidget *widget, double twips);

} // namespace kor
