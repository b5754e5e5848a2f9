// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/flexgrid/cellview.h"

#include <QtCore/QBasicTimer>

namespace kor {

//! The grid surface: texts in rows and columns, of which one cell is the current one.
//!
//! Row 0 holds the titles and column 0 is the fixed one; in the toolkit's eyes they are the headers, and the cell of
//! row r and column c is at model()->index(r - 1, c - 1). Lengths are twips. The grid takes no typed text itself.
//!
//! Access to a row or column that does not exist is error 381; Row, Col, TopRow and their like set to one is error 380.
//! When the current cell changes, LeaveCell comes before, EnterCell and RowColChange after that, and SelChange last,
//! which also comes alone when only the selection changes. Handlers may move on, remove rows or delete the grid: what
//! they did holds.
class FlexGrid final : public CellView
{
    Q_OBJECT

public:
    explicit FlexGrid(QWidget *parent);

    //! Titles included; never below one, and not above 16,777,216 rows and 131,072 columns. A current cell that goes
    //! away is left for the last one that stays; in a grid that had no data, the first one that comes is entered.
    void setRows(int rows);
    void setCols(int columns);
    //! Adds a row with the texts between the tabs of one text, before a row or, without an index, at the end.
    void AddItem(const QString &texts, int index = -1);
    //! Removes so many rows from one on; the ones below move up.
    void RemoveItem(int index, int number = 1);

    //! The text of the current cell.
    [[nodiscard]] QString Text() const { return TextMatrix(Row(), Col()); }
    void setText(const QString &text) { setTextMatrix(Row(), Col(), text); }
    //! The place of the current cell, from the upper left corner of the grid.
    [[nodiscard]] int CellLeft() const;
    [[nodiscard]] int CellTop() const;
    [[nodiscard]] int CellWidth() const;
    [[nodiscard]] int CellHeight() const;

    [[nodiscard]] int Row() const { return cursorCell().row; }
    void setRow(int row);
    [[nodiscard]] int Col() const { return cursorCell().column; }
    void setCol(int column);
    [[nodiscard]] int RowSel() const { return cursorCell().rowSel; }
    void setRowSel(int row);
    [[nodiscard]] int ColSel() const { return cursorCell().columnSel; }
    void setColSel(int column);
    //! Makes a cell the current one in one step. False when a handler did otherwise, or deleted the grid.
    bool setCurrentCell(int row, int column);
    //! Moves as the user does with a key, and scrolls to where that leads.
    void moveBy(CellMove move, bool extends = false);
    //! Moves or selects as the user does with the mouse, for a tool that acts in the user's place. False when the user
    //! is kept where they are.
    bool moveAsUser(const CellCursor &cursor);
    //! Whether that leads to another cell.
    [[nodiscard]] bool canMoveBy(CellMove move) const;

    //! The row and column under the mouse at its last event, 0 for the titles, -1 for none.
    [[nodiscard]] int MouseRow() const { return m_mouse.row; }
    [[nodiscard]] int MouseCol() const { return m_mouse.column; }
    void handleMouse(QWidget *surface, const QMouseEvent &event) override;

Q_SIGNALS:
    //! The user is about to leave the current cell, which a handler may refuse.
    void askToLeave(bool &stays);
    void LeaveCell();
    void EnterCell();
    void RowColChange();
    void SelChange();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    //! Of the left button, on titles and blank space as well: MouseRow and MouseCol tell where.
    void Click();
    void DblClick();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override { handleMouseOfCells(event); }
    void mouseMoveEvent(QMouseEvent *event) override { handleMouseOfCells(event); }
    void mouseReleaseEvent(QMouseEvent *event) override { handleMouseOfCells(event); }
    void mouseDoubleClickEvent(QMouseEvent *event) override { handleMouseOfCells(event); }
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    struct Place {
        int row = -1;
        int column = -1;
    };
    //! What the left button, held down, selects.
    enum class Drag { None, Cells, Rows, Columns };

    bool moveTo(const CellCursor &cursor);
    //! Asks about a move of the user's. False as well when that ended the grid.
    [[nodiscard]] bool mayMoveByUser(const CellCursor &cursor);
    //! A move of the user's, who may be refused it.
    bool moveByUser(const CellCursor &cursor);
    [[nodiscard]] CellCursor cursorAfter(CellMove move, bool extends) const;
    //! Changes rows or columns so that the cursor fits into what is left.
    template <class Change>
    void restructure(int rows, int columns, Change &&change);
    bool tellEntered(int move);
    void press(QKeyEvent *event);
    void actAs(QKeyEvent *event, int keyCode, int shiftState);
    void handleMouseOfCells(QMouseEvent *event);
    void handleMouse(const QMouseEvent &event);
    void press(const QMouseEvent &event);
    void doublePress(const QMouseEvent &event);
    void follow(const QMouseEvent &event);
    void release(const QMouseEvent &event);
    void pressAt(const Place &place, bool extends);
    void extendTo(const QPoint &place);
    [[nodiscard]] Place placeAt(const QPoint &inGrid) const;

    Place m_mouse;
    QPoint m_mousePlace;        //!< on the viewport
    QBasicTimer m_following;    //!< scrolls on while the left button is held beyond an edge
    Qt::MouseButtons m_pressed; //!< on this grid, and not yet released
    Drag m_drag = Drag::None;
    int m_moves = 0; //!< how often the cursor was moved
    bool m_isClickDue = false;
};

} // namespace kor
