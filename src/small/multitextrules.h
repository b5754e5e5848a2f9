// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>

namespace kor {

//! Where a pop-up of this size goes, of a control and a screen that are given in the same units: below the control, or
//! above it where the screen ends before the pop-up does; at its left edge, or moved left by the difference of the two
//! widths where the pop-up would reach over the screen's right edge.
[[nodiscard]] QPoint placeTextPopup(const QRect &control, const QSize &popup, const QRect &screen);

//! What a key does in the pop-up editor.
enum class PopupKeyAnswer {
    Edit,     //!< it edits the text
    Close,    //!< the editor is closed
    HandBack, //!< the control is given the text at once, then the editor is closed
};

//! Judges a key pressed in the pop-up editor. Shift is the sum of 1 Shift, 2 Ctrl and 4 Alt.
[[nodiscard]] PopupKeyAnswer judgePopupKey(int keyCode, int shift);

} // namespace kor
