// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

namespace kor {

//! The range and the step of spin buttons. Max may be the smaller bound; the upper arrow then counts downwards.
struct SpinRange {
    int min = 0;
    int max = 10;
    int increment = 1;

    [[nodiscard]] bool contains(int value) const;
    //! The value, or the bound next to it.
    [[nodiscard]] int nearest(int value) const;
    //! So many steps from a value towards Max, or towards Min when negative; never past the end.
    [[nodiscard]] int stepped(int value, int steps) const;
};

} // namespace kor
