// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/linescroll.h"

#include "constituents/flexgrid/linesizes.h"

#include <algorithm>

namespace kor {

namespace {

//! The first line from which on all up to the end fit, but at most the last of them.
int firstUpTo(const LineSizes &lines, int end, int room)
{
    const std::int64_t place = lines.offset(end) - room;
    if (end <= 1 || place <= lines.offset(1))
        return 1;
    const int line = lines.lineAt(place);
    return std::min(lines.offset(line) < place ? line + 1 : line, end - 1);
}

} // namespace

int shownEnd(const LineSizes &lines, int first, int room)
{
    return room <= 0 ? first : std::min(lines.lineAt(lines.offset(first) + room - 1) + 1, lines.count());
}

int wholeLines(const LineSizes &lines, int first, int room)
{
    return std::max(1, lines.lineAt(lines.offset(first) + room) - first);
}

int lastFirst(const LineSizes &lines, int room) { return firstUpTo(lines, lines.count(), room); }

int firstToShow(const LineSizes &lines, int first, int line, int room)
{
    return line < first ? line : std::max(first, firstUpTo(lines, line + 1, room));
}

} // namespace kor
