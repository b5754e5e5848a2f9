// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cells/placement.h"
#include "grid/gridcolumns.h"
#include "grid/gridlists.h"
#include "grid/gridmoves.h"
#include "grid/gridsums.h"
#include "grid/gridvalues.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>

namespace kor {

class FlexGrid;

//! What the cells of a grid hold: texts, and the values that these stand for by the type of the column. A column may
//! keep its raw values in another one, its value column.
class GridCells
{
public:
    explicit GridCells(FlexGrid *grid);

    [[nodiscard]] const GridColumns &columns() const { return m_columns; }
    [[nodiscard]] GridLists &lists() { return m_lists; }
    //! Describes a column, which changes what the cells of all of them may mean.
    void describe(int column, GridColumn description);

    [[nodiscard]] GridExtent extent() const;
    [[nodiscard]] ColumnType typeOf(int column) const;
    //! 0 for none.
    [[nodiscard]] int valueColumnOf(int column) const;

    //! The raw text only where there is a value column.
    [[nodiscard]] CellTexts textsAt(CellAddress cell) const;
    void write(CellAddress cell, const CellTexts &texts);
    //! Whether writing them would change nothing.
    [[nodiscard]] bool holds(CellAddress cell, const CellTexts &texts) const;

    [[nodiscard]] QVariant valueAt(CellAddress cell) const;
    //! How a value is written into a column. Error 13 for what is no number or no date in a column of those.
    [[nodiscard]] CellTexts textsOf(int column, const QVariant &value) const;
    //! What a program's text looks like in a column with a value column. What is no value there stays as it is.
    [[nodiscard]] CellTexts textsTyped(int column, const QString &text) const;

    //! The number or date that a text stands for in a column of those; Null for what is none.
    [[nodiscard]] QVariant valueTyped(int column, const QString &text) const;

    [[nodiscard]] float sum(int column) const;
    [[nodiscard]] float greatest(int column) const;
    //! As a program or an editor writes it.
    [[nodiscard]] QString numberText(float number) const;

private:
    [[nodiscard]] ValueRules rules() const;
    //! Null where reading the list of the row before has ended the grid, or cut the row off.
    [[nodiscard]] QVariant valueStillAt(const QPointer<FlexGrid> &grid, CellAddress cell) const;

    FlexGrid *m_grid;
    GridColumns m_columns;
    mutable GridLists m_lists;
    mutable GreatestInColumn m_greatest;
    NumberSigns m_signs = NumberSigns::of(Locale::systemDefault());
};

} // namespace kor
