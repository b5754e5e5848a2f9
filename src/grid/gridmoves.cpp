// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridmoves.h"

#include <algorithm>

namespace kor {

std::optional<int> nextEditableInRow(CellAddress from, GridExtent extent, Direction direction,
                                     const EditableColumn &isEditable)
{
    const int step = direction == Direction::Forward ? 1 : -1;
    for (int column = from.column + step; column >= 1 && column < extent.columns; column += step) {
        if (isEditable(column))
            return column;
    }
    return std::nullopt;
}

std::optional<CellAddress> nextEditable(CellAddress from, GridExtent extent, Direction direction,
                                        const EditableColumn &isEditable)
{
    if (const auto column = nextEditableInRow(from, extent, direction, isEditable))
        return CellAddress{from.row, *column};
    const bool isForward = direction == Direction::Forward;
    const int row = from.row + (isForward ? 1 : -1);
    if (row < 1 || row >= extent.rows)
        return std::nullopt;
    const int outside = isForward ? 0 : extent.columns;
    if (const auto column = nextEditableInRow({row, outside}, extent, direction, isEditable))
        return CellAddress{row, *column};
    return std::nullopt; // what can be edited is the same in every row
}

std::optional<int> columnOfFocusRequest(CellAddress wanted, int columnCount)
{
    // Kept: the row is held against the count of columns; programs that ask for a row below stay in their column
    if (wanted.column > 0 && wanted.row < columnCount - 1)
        return wanted.column;
    return std::nullopt;
}

std::optional<RowRange> rowsToDelete(int start, int end, int rowCount)
{
    if (start < 1 || start >= rowCount)
        return std::nullopt;
    return RowRange{start, std::clamp(end, start, rowCount - 1)};
}

} // namespace kor
