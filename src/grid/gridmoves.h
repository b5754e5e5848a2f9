// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cells/placement.h"

#include <functional>
#include <optional>

namespace kor {

//! Rows and columns of a grid, titles included.
struct GridExtent {
    int rows = 0;
    int columns = 0;

    [[nodiscard]] bool hasDataCell(CellAddress cell) const
    {
        return cell.row >= 1 && cell.row < rows && cell.column >= 1 && cell.column < columns;
    }
};

//! A range of rows, both ends included.
struct RowRange {
    int first = 0;
    int last = 0;

    bool operator==(const RowRange &) const = default;
};

enum class Direction { Forward, Backward };

//! Whether the user may edit the cells of a column.
using EditableColumn = std::function<bool(int column)>;

//! The next cell that can be edited, row by row; none behind the last one or before the first one.
[[nodiscard]] std::optional<CellAddress> nextEditable(CellAddress from, GridExtent extent, Direction direction,
                                                      const EditableColumn &isEditable);
//! The nearest column of the same row that can be edited; none beyond the last one.
[[nodiscard]] std::optional<int> nextEditableInRow(CellAddress from, GridExtent extent, Direction direction,
                                                   const EditableColumn &isEditable);

//! The column that a request for the focus leads to; none where the current one stays.
[[nodiscard]] std::optional<int> columnOfFocusRequest(CellAddress wanted, int columnCount);

//! The rows that a request to delete removes: none for a start outside the data, the start alone for an end before
//! it, nothing beyond the last row.
[[nodiscard]] std::optional<RowRange> rowsToDelete(int start, int end, int rowCount);

} // namespace kor
