// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/accessiblegrid.h"

#include "constituents/flexgrid/flexgrid.h"

namespace kor {

AccessibleGrid::AccessibleGrid(FlexGrid *grid) : AccessibleTable(grid, QAccessible::Table), m_grid(grid) {}

QAccessible::State AccessibleGrid::cellState(int row, int column) const
{
    QAccessible::State state = AccessibleTable::cellState(row, column);
    if (row < 0 || column < 0)
        return state;
    state.readOnly = m_grid->ColReadOnly(column + 1);
    state.editable = !state.readOnly;
    return state;
}

QRect AccessibleGrid::cellRect(int row, int column) const
{
    if (row >= 0 && column >= 0)
        return AccessibleTable::cellRect(row, column);
    const QRect place = m_grid->cellRect(row + 1, column + 1);
    return {m_grid->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

void AccessibleGrid::actOnCell(int row, int column, const QString &)
{
    (void)m_grid->moveAsUser(CellCursor::at(row + 1, column + 1));
}

bool AccessibleGrid::selectRow(int row)
{
    return hasCell(row, 0) && m_grid->moveAsUser({row + 1, 1, row + 1, m_grid->Cols() - 1});
}

bool AccessibleGrid::selectColumn(int column)
{
    return hasCell(0, column) && m_grid->moveAsUser({1, column + 1, m_grid->Rows() - 1, column + 1});
}

} // namespace kor
