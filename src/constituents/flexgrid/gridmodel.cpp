// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/gridmodel.h"

#include <algorithm>
#include <utility>

namespace kor {

GridModel::GridModel(int rows, int columns, QObject *parent) : QAbstractTableModel(parent), m_cells(rows, columns) {}

void GridModel::setRows(int rows)
{
    if (rows > this->rows())
        addRows(this->rows(), rows - this->rows());
    else if (rows < this->rows())
        dropRows(rows, this->rows() - rows);
}

void GridModel::setColumns(int columns)
{
    const int before = this->columns();
    if (columns > before) {
        beginInsertColumns({}, before - 1, columns - 2);
        m_cells.setColumns(columns);
        endInsertColumns();
    } else if (columns < before) {
        beginRemoveColumns({}, columns - 1, before - 2);
        m_cells.setColumns(columns);
        endRemoveColumns();
    }
}

void GridModel::addRows(int first, int number)
{
    beginInsertRows({}, first - 1, first + number - 2);
    m_cells.insertRows(first, number);
    endInsertRows();
}

void GridModel::dropRows(int first, int number)
{
    beginRemoveRows({}, first - 1, first + number - 2);
    m_cells.removeRows(first, number);
    endRemoveRows();
}

bool GridModel::setText(int row, int column, const QString &text)
{
    const bool isOther = m_cells.setText(row, column, text);
    if (isOther)
        cellChanged(row, column);
    return isOther;
}

void GridModel::setFormat(int row, int column, const CellFormat &format)
{
    m_cells.setFormat(row, column, format);
    cellChanged(row, column);
}

void GridModel::clear()
{
    m_cells.clear();
    cellsChanged(0, 0, rows() - 1, columns() - 1);
}

void GridModel::setQuiet(bool quiet)
{
    m_isQuiet = quiet;
    if (!quiet && std::exchange(m_isChanged, false))
        cellsChanged(0, 0, rows() - 1, columns() - 1);
}

void GridModel::cellChanged(int row, int column) { cellsChanged(row, column, row, column); }

void GridModel::cellsChanged(int top, int left, int bottom, int right)
{
    if (m_isQuiet) {
        m_isChanged = true;
        return;
    }
    if (top == 0 && right > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, std::max(left, 1) - 1, right - 1);
    if (left == 0 && bottom > 0)
        Q_EMIT headerDataChanged(Qt::Vertical, std::max(top, 1) - 1, bottom - 1);
    if (bottom > 0 && right > 0)
        Q_EMIT dataChanged(createIndex(std::max(top, 1) - 1, std::max(left, 1) - 1),
                           createIndex(bottom - 1, right - 1));
}

int GridModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : rows() - 1; }

int GridModel::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : columns() - 1; }

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    const int row = index.row() + 1;
    const int column = index.column() + 1;
    const bool isNamed = role == Qt::AccessibleTextRole && m_nameColumn > 0 && column > m_nameColumn;
    return isNamed ? m_cells.text(row, m_nameColumn) + QLatin1String(": ") + m_cells.text(row, column)
                   : m_cells.text(row, column);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const int line = section + 1;
    if (role != Qt::DisplayRole || section < 0 || line >= (orientation == Qt::Horizontal ? columns() : rows()))
        return {};
    return orientation == Qt::Horizontal ? m_cells.text(0, line) : m_cells.text(line, 0);
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

} // namespace kor
