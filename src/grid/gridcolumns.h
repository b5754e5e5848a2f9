// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grid/gridcolumn.h"

#include <optional>
#include <vector>

namespace kor {

//! The columns that a program has described, by their number. Column 0 is the fixed one and has no description.
class GridColumns
{
public:
    //! The number that the next description is for. The first one takes the empty column that a fresh grid has; later
    //! ones, and the first one where the program has written a title itself, stand behind the last column. Error 6
    //! where that column, or the count of columns with it, is beyond an Integer.
    [[nodiscard]] static int nextNumber(const QString &titleOfFirst, int columnCount);

    void store(int number, GridColumn column);
    //! The description of a column, none for a column that never had one.
    [[nodiscard]] const GridColumn *find(int number) const;
    //! Whether the user is kept from the column. A column without description is free.
    [[nodiscard]] bool isLocked(int number) const;

private:
    std::vector<std::optional<GridColumn>> m_columns;
};

} // namespace kor
