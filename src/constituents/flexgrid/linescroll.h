// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

namespace kor {

class LineSizes;

// Scrolling by whole lines: the first line behind the titles that is shown stands at the edge, in a room of so many
// pixels.

//! The line behind the last one that is shown, if only in part.
[[nodiscard]] int shownEnd(const LineSizes &lines, int first, int room);
//! How many of the lines are shown whole, at least one.
[[nodiscard]] int wholeLines(const LineSizes &lines, int first, int room);
//! The line that is to be the first for the room to end with the last one.
[[nodiscard]] int lastFirst(const LineSizes &lines, int room);
//! The line that is to be the first for a line to be shown whole, as near as possible to what is the first now.
[[nodiscard]] int firstToShow(const LineSizes &lines, int first, int line, int room);

} // namespace kor
