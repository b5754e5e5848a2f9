// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace kor {

//! Where the user is in a sheet.
struct ParamPlace {
    int row = 0;
    int rows = 0; //!< titles included
    int page = 1; //!< how many rows are seen whole
};

//! The row that a key pressed in an open editor leads to, which is the same one where there is no further; nothing for
//! a key that does not move. Titles are never entered. Shift is the sum of 1 Shift, 2 Ctrl and 4 Alt.
[[nodiscard]] std::optional<int> rowAfterKey(int keyCode, int shift, ParamPlace place);

//! Whether the key ends the editing: with what was typed, or as if nothing had been.
enum class ParamEnd { None, Take, GiveUp };
[[nodiscard]] ParamEnd endOfKey(int keyCode, int shift);

//! Whether the key empties a field that the user cannot type into.
[[nodiscard]] bool clearsChoice(int keyCode);

} // namespace kor
