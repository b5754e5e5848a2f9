// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/accessibletable.h"

namespace kor {

class FlexGrid;

//! The cells of a grid. One is made the current one as by a click on it, which asks an open editor first.
class AccessibleGrid final : public AccessibleTable
{
public:
    explicit AccessibleGrid(FlexGrid *grid);

    [[nodiscard]] bool hasTitles() const override { return true; }
    [[nodiscard]] QAccessible::State cellState(int row, int column) const override;
    [[nodiscard]] QRect cellRect(int row, int column) const override;
    void actOnCell(int row, int column, const QString &action) override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;

private:
    FlexGrid *m_grid;
};

} // namespace kor
