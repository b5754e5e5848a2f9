// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QHeaderView>

namespace kor {

class CellView;

//! The title row of a grid, whose borders the user drags.
class ColumnTitles final : public QHeaderView
{
    Q_OBJECT

public:
    explicit ColumnTitles(CellView *grid);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int section) const override;
    [[nodiscard]] QSize sectionSizeFromContents(int section) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    //! Lets the toolkit act on a press, and tells whether it fell on a border.
    template <class Act>
    bool isOnBorder(Act &&act);

    CellView *m_grid;
    bool m_isTitlePressed = false;
    bool m_isDragging = false;
};

//! The fixed column of a grid. The toolkit's own would add up the heights of all rows again and again; this one takes
//! the places from the grid.
class RowTitles final : public QHeaderView
{
    Q_OBJECT

public:
    explicit RowTitles(CellView *grid);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    CellView *m_grid;
};

//! The cell where the title row meets the fixed column.
class TitleCorner final : public QWidget
{
    Q_OBJECT

public:
    explicit TitleCorner(CellView *grid);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    CellView *m_grid;
};

} // namespace kor
