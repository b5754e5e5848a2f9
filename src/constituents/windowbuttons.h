// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace kor {

//! Gives Enter to the default button of the window around a box, and Escape to its cancel button. Enter asks the box
//! first, as if it were left, and presses nothing where the user is sent back; Escape asks nobody.
//!
//! False for other keys, and where the window has no such button: the key is the box's own then. The box may be gone
//! afterwards.
bool pressWindowButton(QWidget *box, int keyCode, int shift);

} // namespace kor
