// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QWidget>

namespace kor {

class FlexGrid;

//! What a sheet shows in its first row while its form is designed, since parameters come when the program runs. It is
//! painted over the row only: the cells stay empty.
class ParamExample final : public QWidget
{
public:
    explicit ParamExample(FlexGrid *grid);
    //! Lies over the first row, if that is empty.
    void place(bool isWanted);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    FlexGrid *m_grid;
};

} // namespace kor
