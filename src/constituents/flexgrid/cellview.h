// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/flexgrid/cellcursor.h"
#include "constituents/flexgrid/celltext.h"
#include "constituents/flexgrid/linesizes.h"

#include <KorDaoUC/color.h>
#include <KorDaoUC/enumerations.h>

#include <QtGui/QColor>
#include <QtWidgets/QTableView>

#include <vector>

namespace kor {

class ColumnTitles;
class GridModel;
class RowTitles;
class TitleCorner;

//! What a cell shows.
struct CellLook {
    CellText content;
    QColor color;
    bool hasOwnColor = false;
};

//! The cells of a grid, how they look and where they are: the part of FlexGrid that needs no user.
//!
//! The toolkit's table view does not ask its headers for places of rows, which they would have to add up anew whenever
//! one row changes; it asks here. The headers know all sizes as well, for a host that asks them.
class CellView : public QTableView
{
    Q_OBJECT

public:
    // --- cells

    [[nodiscard]] int Rows() const;
    [[nodiscard]] int Cols() const;
    [[nodiscard]] QString TextMatrix(int row, int column) const;
    void setTextMatrix(int row, int column, const QString &text);
    //! The column whose texts are the names of their rows, 0 for none: a screen reader hears them with the other cells.
    void setNameColumn(int column);
    //! Takes the texts, alignments and colours of all cells away, titles included.
    void Clear();
    //! What the cell has of its own, otherwise its column's.
    [[nodiscard]] CellAlignmentType CellAlignment(int row, int column) const;
    void setCellAlignment(int row, int column, CellAlignmentType alignment);
    //! 0 stands for no colour of its own: the column's, which titles do not take, or else the grid's.
    [[nodiscard]] OLE_COLOR CellForeColor(int row, int column) const;
    void setCellForeColor(int row, int column, OLE_COLOR color);

    [[nodiscard]] int ColData(int column) const;
    void setColData(int column, int value);
    [[nodiscard]] CellAlignmentType ColAlignment(int column) const;
    void setColAlignment(int column, CellAlignmentType alignment);
    [[nodiscard]] OLE_COLOR ColForeColor(int column) const;
    void setColForeColor(int column, OLE_COLOR color);
    //! Texts wrap in the columns that say so, in all with WordWrap. Rows grow as high as such texts need, unless they
    //! were given a height.
    [[nodiscard]] bool ColWordWrap(int column) const;
    void setColWordWrap(int column, bool wraps);
    //! Numbers that their cells are too narrow for show as a run of "#", as half a number is another one.
    [[nodiscard]] bool ColFillsNarrow(int column) const;
    void setColFillsNarrow(int column, bool fills);
    //! Whether a screen reader is told that the user cannot change the cells of a column.
    [[nodiscard]] bool ColReadOnly(int column) const;
    void setColReadOnly(int column, bool isReadOnly);
    [[nodiscard]] bool WordWrap() const { return m_wordWrap; }
    void setWordWrap(bool wraps);

    // --- sizes and places

    //! 0 hides; -1 gives the size back that columns and rows have by themselves.
    [[nodiscard]] int ColWidth(int column) const;
    void setColWidth(int column, int twips);
    [[nodiscard]] int RowHeight(int row) const;
    void setRowHeight(int row, int twips);
    //! The height of rows that were given none and whose texts do not wrap. 0 is the font's own.
    [[nodiscard]] int RowHeightMin() const { return m_rowHeightMin; }
    void setRowHeightMin(int twips);
    //! The row below the titles, any of them; the last rows may leave blank space.
    [[nodiscard]] int TopRow() const;
    void setTopRow(int row);
    [[nodiscard]] int LeftCol() const;
    void setLeftCol(int column);
    //! Whether something of a row or column is to be seen.
    [[nodiscard]] bool RowIsVisible(int row) const;
    [[nodiscard]] bool ColIsVisible(int column) const;
    //! The row behind the last one that is shown, if only in part.
    [[nodiscard]] int shownRowsEnd() const;
    //! How many rows are shown whole, at least one.
    [[nodiscard]] int wholeRows() const;
    //! The place of a cell on the viewport, which titles lie beside.
    [[nodiscard]] QRect cellRect(int row, int column) const;
    //! The row or column at a place of the viewport: 0 for the titles, -1 behind the last one.
    [[nodiscard]] int rowAtPlace(int y) const;
    [[nodiscard]] int columnAtPlace(int x) const;
    [[nodiscard]] QRect visualRect(const QModelIndex &index) const override;
    [[nodiscard]] QModelIndex indexAt(const QPoint &place) const override;
    void makeVisible(int row, int column);
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

    // --- look

    //! The toolkit's selection behaviour, by which a host that knows the view alone may choose it as well.
    [[nodiscard]] SelectionModeType SelectionMode() const
    {
        return static_cast<SelectionModeType>(selectionBehavior());
    }
    void setSelectionMode(SelectionModeType mode);
    [[nodiscard]] CellRange selectedRange() const;
    //! Behind the cells.
    [[nodiscard]] OLE_COLOR BackColorBkg() const { return m_backColorBkg; }
    void setBackColorBkg(OLE_COLOR color);
    [[nodiscard]] BorderStyleType BorderStyle() const;
    void setBorderStyle(BorderStyleType style);
    //! While it is off, nothing is painted and changed cells are told to nobody; then all is, in one go.
    [[nodiscard]] bool Redraw() const;
    void setRedraw(bool redraw);
    [[nodiscard]] CellLook look(int row, int column) const;

    // --- for the titles

    //! A mouse event anywhere on the grid, in its coordinates.
    virtual void handleMouse(QWidget *surface, const QMouseEvent &event) = 0;
    //! The mouse has let go of a border that it may have dragged.
    void endDragging();

Q_SIGNALS:
    void Scroll();
    //! The user has made a column wider or narrower.
    void ColumnResized(int column);
    //! Cells have other places than before.
    void cellsMoved();

protected:
    explicit CellView(QWidget *parent);

    void checkCell(int row, int column) const;
    void addRows(int first, int number);
    void dropRows(int first, int number);
    void changeColumns(int columns);
    [[nodiscard]] const LineSizes &rowSizes() const { return m_rows; }
    [[nodiscard]] const LineSizes &columnSizes() const { return m_columns; }
    [[nodiscard]] const CellCursor &cursorCell() const { return m_cursor; }
    //! Shows another cell as the current one. Tells nobody but the toolkit.
    void placeCursor(const CellCursor &cursor);
    [[nodiscard]] bool isPlacingCursor() const { return m_isPlacingCursor; }
    void updateCursor();

    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void doItemsLayout() override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] int sizeHintForColumn(int column) const override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    struct Column {
        int data = 0;
        CellAlignmentType alignment = CellAlignmentType::General;
        OLE_COLOR foreColor = 0;
        bool wraps = false;
        bool fillsNarrow = false;
        bool isReadOnly = false;
    };

    [[nodiscard]] const Column &column(int column) const;
    [[nodiscard]] Column &column(int column);
    [[nodiscard]] bool wraps(int column) const { return m_wordWrap || m_looks[static_cast<std::size_t>(column)].wraps; }
    void takeScreenSizes();
    void adoptTitles();
    void scheduleLayout();
    void settleLayout() const;
    void forgetHeights();
    void measure(int row) const;
    void measureRows();
    void measureUpwards(int row) const;
    void passRowHeight(int row) const;
    void passColumnWidth(int column);
    void followDragging(int section);
    void placeTitles();
    void scrollTitles();
    void updateScrollBars();
    void setFirst(QScrollBar *bar, int line);
    void tellScrolled();
    void showSelection();
    void showChange(int row, int column);
    void showWholeText(const QPoint &place, const QPoint &onScreen);
    [[nodiscard]] int leftOf(int column) const;
    [[nodiscard]] QRect coveredPlace() const;
    void paintRow(QPainter &painter, int row, const QRect &exposed) const;
    void paintBehind(QPainter &painter, const QRect &exposed) const;

    static constexpr int usualRowHeight = 285;

    GridModel *m_model;
    mutable LineSizes m_rows; //!< measured when they are asked for
    LineSizes m_columns;
    std::vector<Column> m_looks;
    ColumnTitles *m_columnTitles;
    RowTitles *m_rowTitles;
    TitleCorner *m_corner;
    CellCursor m_cursor;
    OLE_COLOR m_backColorBkg = WindowBackground;
    int m_rowHeightMin = usualRowHeight;
    int m_shownTop = 1; //!< that the screen shows
    int m_shownLeft = 1;
    int m_draggedColumn = 0; //!< by the user, and not yet told
    bool m_wordWrap = false;
    bool m_isAnyWrapped = false;
    bool m_isLayoutDue = false;
    bool m_isPlacingTitles = false;
    bool m_isPlacingCursor = false;
    bool m_isPassingWidth = false;
    bool m_isScrollDue = false;
};

} // namespace kor
