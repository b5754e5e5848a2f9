// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace kor {

class LineSizes;

//! The current cell of a grid, and the other corner of its selection.
struct CellCursor {
    int row = 1;
    int column = 1;
    int rowSel = 1;
    int columnSel = 1;

    [[nodiscard]] static CellCursor at(int row, int column) { return {row, column, row, column}; }
    [[nodiscard]] bool isAtCellOf(const CellCursor &other) const { return row == other.row && column == other.column; }
    bool operator==(const CellCursor &) const = default;
};

enum class SelectionModeType : int { Free = 0, ByRow = 1, ByColumn = 2 };

//! Cells from one corner to the other, both included.
struct CellRange {
    int top;
    int left;
    int bottom;
    int right;

    [[nodiscard]] bool contains(int row, int column) const
    {
        return row >= top && row <= bottom && column >= left && column <= right;
    }
    [[nodiscard]] bool isOneCell() const { return top == bottom && left == right; }
    bool operator==(const CellRange &) const = default;
};

//! The cells that are selected: those between the corners, in whole rows or columns where the mode says so.
[[nodiscard]] CellRange selectedCells(const CellCursor &cursor, SelectionModeType mode, int rows, int columns);
//! The cursor in a grid of so many rows and columns: what lay in lines that are gone is in the last ones.
[[nodiscard]] CellCursor fitted(const CellCursor &cursor, int rows, int columns);

enum class CellMove {
    Up,
    Down,
    Left, //!< towards the first column
    Right,
    PageUp,
    PageDown,
    FirstRow,
    LastRow,
    FirstColumn,
    LastColumn,
    FirstCell,
    LastCell,
};

//! What a key means to a grid, if anything; Shift does not matter. In a mirrored grid, columns run from the right.
[[nodiscard]] std::optional<CellMove> cellMove(int keyCode, int shiftState, bool isMirrored);

struct MoveRoom {
    const LineSizes &rows;
    const LineSizes &columns;
    int page; //!< how many rows PageUp and PageDown go
};

//! Where a move leads. Titles and lines without a size are never entered; without anywhere to go the cursor stays.
//! A move that extends takes the selection's other corner along and leaves the current cell.
[[nodiscard]] CellCursor moved(const CellCursor &cursor, CellMove move, bool extends, const MoveRoom &room);

} // namespace kor
