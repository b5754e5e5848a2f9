// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/flexgrid/cellcursor.h"
#include "grid/gridcells.h"

#include <KorDaoUC/korgrid.h>

#include <variant>

namespace kor {

//! Blocks of cells on their way to the clipboard and back: which cells they are, and what becomes of each text.
class GridPaste
{
public:
    struct Cell {
        CellAddress place;
        CellTexts texts;
    };
    struct Judged {
        QList<Cell> accepted;
        QList<RefusedCell> refused;
        int rows = 0; //!< that the grid needs
    };

    GridPaste(const FlexGrid *grid, const GridCells &cells) : m_grid(grid), m_cells(cells) {}

    //! The shown cells of a range. Rows at its end in which nothing stands are left out.
    [[nodiscard]] QString textOf(const CellRange &range) const;
    //! What becomes of each cell of a block that begins at a place.
    [[nodiscard]] Judged judged(CellAddress first, const QString &block) const;

private:
    using Reason = RefusedCell::Reason;
    [[nodiscard]] bool isIdle(CellAddress cell, const QString &text) const;
    [[nodiscard]] QList<int> shownColumns(int first, int last) const;
    [[nodiscard]] std::variant<CellTexts, Reason> judge(int column, const QString &text) const;
    [[nodiscard]] std::variant<CellTexts, Reason> judgeValue(int column, const QString &text, Reason otherwise) const;

    const FlexGrid *m_grid;
    const GridCells &m_cells;
};

} // namespace kor
