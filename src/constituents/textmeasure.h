// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/twips.h"

#include <QtGui/QFontMetrics>
#include <QtWidgets/QWidget>

namespace kor {

//! Whether a text fits a width of so many pixels in the widget's own font, with room for the frame and the caret: the
//! measure in twips, widened by the margin, must stay below the width in twips.
[[nodiscard]] inline bool fitsWidth(const QWidget &widget, const QString &text, int widthInPixels)
{
    constexpr double margin = 1.22;
    const Twips needed = toTwipsX(&widget, widget.fontMetrics().horizontalAdvance(text)) * margin;
    return needed < Twips(toTwipsX(&widget, widthInPixels).rounded());
}

} // namespace kor
