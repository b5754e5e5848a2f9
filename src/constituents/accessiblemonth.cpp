// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/accessiblemonth.h"

#include "constituents/errorguard.h"
#include "constituents/monthview.h"

#include <QtWidgets/QTableView>

namespace kor {

AccessibleMonth::AccessibleMonth(MonthView *month, QTableView *days)
    : AccessibleTable(days, QAccessible::Table), m_month(month)
{
}

QAccessible::Role AccessibleMonth::cellRole(int row, int column) const
{
    if (m_month->dayAt(row, column).isValid())
        return QAccessible::Cell;
    return row <= 0 ? QAccessible::ColumnHeader : QAccessible::RowHeader;
}

QAccessible::State AccessibleMonth::cellState(int row, int column) const
{
    QAccessible::State state = AccessibleTable::cellState(row, column);
    if (!m_month->dayAt(row, column).isValid())
        state.focusable = state.selectable = false;
    return state;
}

QString AccessibleMonth::cellText(int row, int column, QAccessible::Text kind) const
{
    const QDate day = m_month->dayAt(row, column);
    return day.isValid() && kind == QAccessible::Name ? m_month->spoken(day)
                                                      : AccessibleTable::cellText(row, column, kind);
}

// The toolkit hides its titles, and writes what stands there into the first row and column.
QString AccessibleMonth::columnDescription(int column) const
{
    return column < 0 ? QString() : index(0, column).data().toString();
}

QString AccessibleMonth::rowDescription(int row) const { return row < 0 ? QString() : index(row, 0).data().toString(); }

void AccessibleMonth::actOnCell(int row, int column, const QString &)
{
    if (const QDate day = m_month->dayAt(row, column); day.isValid())
        guarded(m_month, [&] { m_month->setValue(day); });
}

} // namespace kor
