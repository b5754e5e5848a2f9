// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/cellcursor.h"

#include "constituents/flexgrid/linesizes.h"
#include "constituents/keycodes.h"

#include <algorithm>
#include <cstdlib>

namespace kor {

namespace {

//! So many shown lines on from one, or as far as there are any; the line itself when there are none.
int stepped(const LineSizes &lines, int from, int steps)
{
    const int direction = steps < 0 ? -1 : 1;
    int reached = from;
    int left = std::abs(steps);
    for (int line = from + direction; left > 0 && line >= 1 && line < lines.count(); line += direction) {
        if (lines.size(line) > 0) {
            reached = line;
            --left;
        }
    }
    return reached;
}

int firstLine(const LineSizes &lines, int fallback)
{
    const int line = stepped(lines, 0, 1);
    return line > 0 ? line : fallback;
}

int lastLine(const LineSizes &lines, int fallback)
{
    const int line = stepped(lines, lines.count(), -1);
    return line < lines.count() ? line : fallback;
}

} // namespace

CellRange selectedCells(const CellCursor &cursor, SelectionModeType mode, int rows, int columns)
{
    CellRange range{std::min(cursor.row, cursor.rowSel), std::min(cursor.column, cursor.columnSel),
                    std::max(cursor.row, cursor.rowSel), std::max(cursor.column, cursor.columnSel)};
    if (mode == SelectionModeType::ByRow && columns > 1) {
        range.left = 1;
        range.right = columns - 1;
    } else if (mode == SelectionModeType::ByColumn && rows > 1) {
        range.top = 1;
        range.bottom = rows - 1;
    }
    return range;
}

CellCursor fitted(const CellCursor &cursor, int rows, int columns)
{
    return {std::min(cursor.row, rows - 1), std::min(cursor.column, columns - 1), std::min(cursor.rowSel, rows - 1),
            std::min(cursor.columnSel, columns - 1)};
}

std::optional<CellMove> cellMove(int keyCode, int shiftState, bool isMirrored)
{
    if (shiftState & ShiftState::Alt)
        return std::nullopt;
    const bool isFar = shiftState & ShiftState::Ctrl;
    const CellMove towardsFirst = isFar ? CellMove::FirstColumn : CellMove::Left;
    const CellMove towardsLast = isFar ? CellMove::LastColumn : CellMove::Right;
    switch (keyCode) {
    case Key::Up: return isFar ? CellMove::FirstRow : CellMove::Up;
    case Key::Down: return isFar ? CellMove::LastRow : CellMove::Down;
    case Key::Left: return isMirrored ? towardsLast : towardsFirst;
    case Key::Right: return isMirrored ? towardsFirst : towardsLast;
    case Key::PageUp: return isFar ? CellMove::FirstRow : CellMove::PageUp;
    case Key::PageDown: return isFar ? CellMove::LastRow : CellMove::PageDown;
    case Key::Home: return isFar ? CellMove::FirstCell : CellMove::FirstColumn;
    case Key::End: return isFar ? CellMove::LastCell : CellMove::LastColumn;
    default: return std::nullopt;
    }
}

CellCursor moved(const CellCursor &cursor, CellMove move, bool extends, const MoveRoom &room)
{
    int row = extends ? cursor.rowSel : cursor.row;
    int column = extends ? cursor.columnSel : cursor.column;
    switch (move) {
    case CellMove::Up: row = stepped(room.rows, row, -1); break;
    case CellMove::Down: row = stepped(room.rows, row, 1); break;
    case CellMove::Left: column = stepped(room.columns, column, -1); break;
    case CellMove::Right: column = stepped(room.columns, column, 1); break;
    case CellMove::PageUp: row = stepped(room.rows, row, -room.page); break;
    case CellMove::PageDown: row = stepped(room.rows, row, room.page); break;
    case CellMove::FirstRow: row = firstLine(room.rows, row); break;
    case CellMove::LastRow: row = lastLine(room.rows, row); break;
    case CellMove::FirstColumn: column = firstLine(room.columns, column); break;
    case CellMove::LastColumn: column = lastLine(room.columns, column); break;
    case CellMove::FirstCell:
        row = firstLine(room.rows, row);
        column = firstLine(room.columns, column);
        break;
    case CellMove::LastCell:
        row = lastLine(room.rows, row);
        column = lastLine(room.columns, column);
        break;
    }
    // The program may have put the cursor among the titles.
    row = row > 0 ? row : firstLine(room.rows, row);
    column = column > 0 ? column : firstLine(room.columns, column);
    return extends ? CellCursor{cursor.row, cursor.column, row, column} : CellCursor::at(row, column);
}

} // namespace kor
