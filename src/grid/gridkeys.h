// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

namespace kor {

//! What a key that an open editor has no use for does in a grid.
enum class GridKey {
    None,     //!< it is the editor's
    Cancel,   //!< the cell gets its old text back
    Close,    //!< what was typed is taken, and the cell stays
    Next,     //!< to the next cell that can be edited
    Previous, //!< back to the one before
    Move,     //!< as the grid moves by this key
    Break,    //!< begins a new line, in an editor that has several
};

//! Judges a key pressed in an open editor; hasUse tells whether an arrow or a page key still moves inside it. Shift is
//! the sum of 1 Shift, 2 Ctrl and 4 Alt.
[[nodiscard]] GridKey judgeGridKey(int keyCode, int shift, bool hasUse);

} // namespace kor
