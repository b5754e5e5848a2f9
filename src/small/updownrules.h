// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/spinrange.h"

#include <QtCore/QString>

#include <optional>

namespace kor {

//! The whole number that a text begins with, halves to even; 0 for a text that begins with none, nothing for a number
//! that no Long can hold.
[[nodiscard]] std::optional<int> wholeNumberIn(const QString &text);

//! What a text outside the range becomes when the box is left: first not less than Min, then not more than Max. A text
//! inside the range stays as it was typed.
[[nodiscard]] QString textOnLeaving(const QString &text, const SpinRange &range);

//! The value that a program's value stands for: there is none below zero.
[[nodiscard]] inline int flooredValue(int value) { return value < 1 ? 0 : value; }

} // namespace kor
