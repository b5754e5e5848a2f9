// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/flexgrid/cellstore.h"

#include <QtCore/QAbstractTableModel>

namespace kor {

//! The cells of a grid as the toolkit's views and screen readers see them: the title row and the fixed column are the
//! headers, so the cell of row r and column c is at index(r - 1, c - 1).
class GridModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    GridModel(int rows, int columns, QObject *parent = nullptr);

    [[nodiscard]] const CellStore &cells() const { return m_cells; }
    [[nodiscard]] int rows() const { return m_cells.rows(); }
    [[nodiscard]] int columns() const { return m_cells.columns(); }
    //! Rows and columns stay at least one, that of the titles.
    void setRows(int rows);
    void setColumns(int columns);
    void addRows(int first, int number);
    void dropRows(int first, int number);
    //! Whether the text is another one than before.
    bool setText(int row, int column, const QString &text);
    void setFormat(int row, int column, const CellFormat &format);
    void clear();

    //! The column whose texts say what the others of their row are, 0 for none: a screen reader is told both.
    void setNameColumn(int column) { m_nameColumn = column; }

    //! While it is quiet, changed cells are told to nobody; when it ends, all of them at once.
    [[nodiscard]] bool isQuiet() const { return m_isQuiet; }
    void setQuiet(bool quiet);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void cellChanged(int row, int column);
    void cellsChanged(int top, int left, int bottom, int right);

    CellStore m_cells;
    int m_nameColumn = 0;
    bool m_isQuiet = false;
    bool m_isChanged = false; //!< something while it was quiet
};

} // namespace kor
