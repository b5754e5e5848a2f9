// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/cellview.h"

#include "constituents/errorguard.h"
#include "constituents/flexgrid/gridmodel.h"
#include "constituents/flexgrid/gridtitles.h"
#include "constituents/flexgrid/linescroll.h"
#include "constituents/twips.h"

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QEvent>
#include <QtCore/QItemSelectionModel>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace kor {

namespace {

constexpr int usualColumnWidth = 960;
constexpr int unsetSize = -1;
constexpr int spaceAroundLine = 4; // pixels that a row is higher than its font

void checkSize(int twips)
{
    if (twips < unsetSize)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
}

void checkFirst(int line, int count)
{
    if (line < 1 || (line >= count && line > 1))
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
}

CellAlignmentType checked(CellAlignmentType alignment)
{
    if (alignment < CellAlignmentType::LeftTop || alignment > CellAlignmentType::General)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    return alignment;
}

} // namespace

CellView::CellView(QWidget *parent)
    : QTableView(parent),
      m_model(new GridModel(2, 2, this)),
      m_rows(2, usualRowHeight),
      m_columns(2, usualColumnWidth),
      m_looks(2),
      m_columnTitles(new ColumnTitles(this)),
      m_rowTitles(new RowTitles(this)),
      m_corner(new TitleCorner(this))
{
    // The toolkit's titles go when all that waits for them has been delivered. To take that back from each of their
    // parts now is to look through all that waits, which is ever more while a form of many grids is made.
    for (QHeaderView *toolkitsTitles : std::initializer_list<QHeaderView *>{horizontalHeader(), verticalHeader()}) {
        toolkitsTitles->hide();
        toolkitsTitles->setParent(m_corner);
        toolkitsTitles->deleteLater();
    }
    setHorizontalHeader(m_columnTitles);
    setVerticalHeader(m_rowTitles);
    setModel(m_model);
    adoptTitles();
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAutoScroll(false); // a program moves the current cell without scrolling
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    setBorderStyle(BorderStyleType::FixedSingle);
    takeScreenSizes();
    showSelection();
}

// What the toolkit's view does when its headers change, it would do with places that it has from them.
void CellView::adoptTitles()
{
    m_columnTitles->disconnect(this);
    m_rowTitles->disconnect(this);
    disconnect(m_model, &QAbstractItemModel::headerDataChanged, m_rowTitles, nullptr);
    for (QAbstractItemView *view : std::initializer_list<QAbstractItemView *>{this, m_columnTitles, m_rowTitles})
        disconnect(m_model, &QAbstractItemModel::dataChanged, view, nullptr);
    connect(m_model, &QAbstractItemModel::headerDataChanged, this, [this] {
        m_rowTitles->viewport()->update();
        m_corner->update();
    });
    connect(m_columnTitles, &QHeaderView::sectionResized, this, &CellView::followDragging);
    connect(m_columnTitles, &QHeaderView::sectionHandleDoubleClicked, this, &CellView::resizeColumnToContents);
    const auto buttons = findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAbstractButton *toolkitsCorner : buttons)
        toolkitsCorner->hide();
}

// --- cells

int CellView::Rows() const { return m_model->rows(); }
int CellView::Cols() const { return m_model->columns(); }

void CellView::checkCell(int row, int column) const
{
    if (row < 0 || row >= Rows() || column < 0 || column >= Cols())
        throw RunTimeError(ErrorNumber::InvalidPropertyArrayIndex);
}

QString CellView::TextMatrix(int row, int column) const
{
    checkCell(row, column);
    return m_model->cells().text(row, column);
}

void CellView::setTextMatrix(int row, int column, const QString &text)
{
    checkCell(row, column);
    if (!m_model->setText(row, column, text))
        return;
    if (m_isAnyWrapped && wraps(column) && m_rows.origin(row) == SizeOrigin::Measured) {
        m_rows.resetSize(row);
        scheduleLayout();
    }
    showChange(row, column);
}

void CellView::setNameColumn(int column) { m_model->setNameColumn(column); }

void CellView::Clear()
{
    m_model->clear();
    forgetHeights();
}

CellAlignmentType CellView::CellAlignment(int row, int column) const
{
    checkCell(row, column);
    return m_model->cells().format(row, column).alignment.value_or(this->column(column).alignment);
}

void CellView::setCellAlignment(int row, int column, CellAlignmentType alignment)
{
    checkCell(row, column);
    CellFormat format = m_model->cells().format(row, column);
    format.alignment = checked(alignment);
    m_model->setFormat(row, column, format);
    showChange(row, column);
}

OLE_COLOR CellView::CellForeColor(int row, int column) const
{
    checkCell(row, column);
    const OLE_COLOR own = m_model->cells().format(row, column).foreColor;
    return own != 0 || row == 0 ? own : this->column(column).foreColor;
}

void CellView::setCellForeColor(int row, int column, OLE_COLOR color)
{
    checkCell(row, column);
    CellFormat format = m_model->cells().format(row, column);
    format.foreColor = color;
    m_model->setFormat(row, column, format);
    showChange(row, column);
}

void CellView::addRows(int first, int number)
{
    const bool isAtEnd = first == Rows();
    m_rows.insert(first, number);
    {
        const QScopedValueRollback placing(m_isPlacingCursor, true);
        m_model->addRows(first, number);
    }
    if (!isAtEnd || SelectionMode() == SelectionModeType::ByColumn)
        showSelection();
    scheduleLayout();
}

void CellView::dropRows(int first, int number)
{
    {
        const QScopedValueRollback placing(m_isPlacingCursor, true);
        m_model->dropRows(first, number);
    }
    m_rows.remove(first, number);
    placeCursor(fitted(m_cursor, Rows(), Cols()));
    scheduleLayout();
}

void CellView::changeColumns(int columns)
{
    const int before = Cols();
    {
        const QScopedValueRollback placing(m_isPlacingCursor, true);
        const QScopedValueRollback passing(m_isPassingWidth, true);
        m_model->setColumns(columns);
    }
    if (columns > before)
        m_columns.insert(before, columns - before);
    else
        m_columns.remove(columns, before - columns);
    m_looks.resize(static_cast<std::size_t>(columns));
    placeCursor(fitted(m_cursor, Rows(), Cols()));
    forgetHeights();
}

// --- columns

const CellView::Column &CellView::column(int column) const
{
    checkCell(0, column);
    return m_looks[static_cast<std::size_t>(column)];
}

CellView::Column &CellView::column(int column) { return const_cast<Column &>(std::as_const(*this).column(column)); }

int CellView::ColData(int column) const { return this->column(column).data; }
void CellView::setColData(int column, int value) { this->column(column).data = value; }

CellAlignmentType CellView::ColAlignment(int column) const { return this->column(column).alignment; }

void CellView::setColAlignment(int column, CellAlignmentType alignment)
{
    this->column(column).alignment = checked(alignment);
    scheduleLayout();
}

OLE_COLOR CellView::ColForeColor(int column) const { return this->column(column).foreColor; }

void CellView::setColForeColor(int column, OLE_COLOR color)
{
    this->column(column).foreColor = color;
    scheduleLayout();
}

bool CellView::ColWordWrap(int column) const { return this->column(column).wraps; }

void CellView::setColWordWrap(int column, bool wraps)
{
    this->column(column).wraps = wraps;
    forgetHeights();
}

bool CellView::ColFillsNarrow(int column) const { return this->column(column).fillsNarrow; }

void CellView::setColFillsNarrow(int column, bool fills)
{
    this->column(column).fillsNarrow = fills;
    scheduleLayout();
}

bool CellView::ColReadOnly(int column) const { return this->column(column).isReadOnly; }
void CellView::setColReadOnly(int column, bool isReadOnly) { this->column(column).isReadOnly = isReadOnly; }

void CellView::setWordWrap(bool wraps)
{
    m_wordWrap = wraps;
    forgetHeights();
}

// --- sizes

void CellView::takeScreenSizes()
{
    const int ofFont = toTwipsY(this, fontMetrics().height() + spaceAroundLine).rounded();
    const int rowHeight = m_rowHeightMin > 0 ? m_rowHeightMin : ofFont;
    const double perPixel = toTwipsY(this, 1).count();
    if (rowHeight != m_rows.defaultSize() || perPixel != m_rows.twipsPerPixel()) {
        m_rows.setDefaultSize(rowHeight);
        m_rows.setTwipsPerPixel(perPixel);
        m_rows.forgetMeasured();
    }
    m_columns.setTwipsPerPixel(toTwipsX(this, 1).count());
    if (m_rowTitles->defaultSectionSize() != m_rows.defaultPixels()) {
        m_rowTitles->setDefaultSectionSize(m_rows.defaultPixels());
        for (int row = 1; row < Rows(); ++row)
            passRowHeight(row);
    }
    if (m_columnTitles->defaultSectionSize() != m_columns.defaultPixels()) {
        const QScopedValueRollback passing(m_isPassingWidth, true);
        m_columnTitles->setDefaultSectionSize(m_columns.defaultPixels());
        for (int column = 1; column < Cols(); ++column)
            passColumnWidth(column);
    }
}

int CellView::ColWidth(int column) const
{
    checkCell(0, column);
    return m_columns.size(column);
}

void CellView::setColWidth(int column, int twips)
{
    checkCell(0, column);
    checkSize(twips);
    if (twips == unsetSize)
        m_columns.resetSize(column);
    else
        m_columns.setSize(column, twips);
    passColumnWidth(column);
    forgetHeights();
}

int CellView::RowHeight(int row) const
{
    checkCell(row, 0);
    measure(row);
    return m_rows.size(row);
}

void CellView::setRowHeight(int row, int twips)
{
    checkCell(row, 0);
    checkSize(twips);
    if (twips == unsetSize)
        m_rows.resetSize(row);
    else
        m_rows.setSize(row, twips == 0 ? 0 : std::max(twips, m_rowHeightMin));
    passRowHeight(row);
    scheduleLayout();
}

void CellView::setRowHeightMin(int twips)
{
    if (twips < 0)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    m_rowHeightMin = twips;
    takeScreenSizes();
    scheduleLayout();
}

void CellView::forgetHeights()
{
    m_isAnyWrapped =
        m_wordWrap || std::any_of(m_looks.cbegin(), m_looks.cend(), [](const Column &look) { return look.wraps; });
    m_rows.forgetMeasured();
    scheduleLayout();
}

// Only rows that are to be seen, or that somebody asks for, are worth measuring.
void CellView::measure(int row) const
{
    if (!m_isAnyWrapped || row == 0 || m_rows.origin(row) != SizeOrigin::Default)
        return;
    int height = 0;
    for (int column = 1; column < Cols(); ++column) {
        const int width = wraps(column) ? m_columns.pixels(column) : 0;
        if (const QString text = width > 0 ? TextMatrix(row, column) : QString(); !text.isEmpty())
            height = std::max(height, neededHeight(fontMetrics(), text, width));
    }
    const int twips = static_cast<int>(std::ceil(std::min(height, LineSizes::mostPixels) * m_rows.twipsPerPixel()));
    m_rows.setSize(row, std::max(twips, m_rows.defaultSize()), SizeOrigin::Measured);
    passRowHeight(row);
}

void CellView::measureRows()
{
    if (!m_isAnyWrapped)
        return;
    const int room = viewport()->height();
    int taken = 0;
    for (int row = TopRow(); row < Rows() && taken < room; ++row) {
        measure(row);
        taken += m_rows.pixels(row);
    }
    measureUpwards(Rows() - 1);
}

void CellView::measureUpwards(int row) const
{
    const int room = m_isAnyWrapped ? viewport()->height() : 0;
    int taken = 0;
    for (int above = row; above > 0 && taken < room; --above) {
        measure(above);
        taken += m_rows.pixels(above);
    }
}

// With its updates on, the header would add up the heights of all rows each time.
void CellView::passRowHeight(int row) const
{
    if (row == 0 || m_rowTitles->sectionSize(row - 1) == m_rows.pixels(row))
        return;
    m_rowTitles->setUpdatesEnabled(false);
    m_rowTitles->resizeSection(row - 1, m_rows.pixels(row));
    m_rowTitles->setUpdatesEnabled(true);
}

void CellView::passColumnWidth(int column)
{
    if (column == 0)
        return;
    const QScopedValueRollback passing(m_isPassingWidth, true);
    const int pixels = m_columns.pixels(column);
    m_columnTitles->setSectionHidden(column - 1, pixels == 0); // no border to drag it out by
    if (pixels > 0)
        m_columnTitles->resizeSection(column - 1, pixels);
}

void CellView::followDragging(int section)
{
    if (m_isPassingWidth)
        return;
    m_draggedColumn = section + 1;
    const double twips = m_columnTitles->sectionSize(section) * m_columns.twipsPerPixel();
    m_columns.setSize(m_draggedColumn, static_cast<int>(std::lround(twips)));
    forgetHeights();
}

void CellView::endDragging()
{
    if (const int column = std::exchange(m_draggedColumn, 0))
        guarded(this, [&] { Q_EMIT ColumnResized(column); });
}

int CellView::sizeHintForColumn(int column) const
{
    int width = 0;
    for (int row = TopRow(); row < shownRowsEnd(); ++row)
        width = std::max(width, neededWidth(fontMetrics(), TextMatrix(row, column + 1)));
    return std::min(width, viewport()->width());
}

// --- scrolling

// The scroll bars hear of lines that went away when the layout is next settled.
int CellView::TopRow() const { return std::clamp(verticalScrollBar()->value() + 1, 1, std::max(1, Rows() - 1)); }
int CellView::LeftCol() const { return std::clamp(horizontalScrollBar()->value() + 1, 1, std::max(1, Cols() - 1)); }

void CellView::setTopRow(int row)
{
    checkFirst(row, Rows());
    setFirst(verticalScrollBar(), row);
}

void CellView::setLeftCol(int column)
{
    checkFirst(column, Cols());
    setFirst(horizontalScrollBar(), column);
}

// The scroll bars end where the last line stands at the edge; a program may go on from there.
void CellView::setFirst(QScrollBar *bar, int line)
{
    settleLayout();
    bar->setMaximum(std::max(bar->maximum(), line - 1));
    bar->setValue(line - 1);
    updateScrollBars();
}

// Each bar takes room that the other's lines may need: where all cells are seen without them, neither bar is there for
// the other's sake, or they would show and hide each other without an end.
void CellView::updateScrollBars()
{
    const QSize whole = maximumViewportSize();
    const bool isAllSeen = TopRow() == 1 && LeftCol() == 1 && lastFirst(m_rows, whole.height()) == 1 &&
                           lastFirst(m_columns, whole.width()) == 1;
    const QSize room = isAllSeen ? whole : viewport()->size();
    const auto update = [](QScrollBar *bar, const LineSizes &lines, int length) {
        const int last = std::max(0, lines.count() - 2);
        bar->setRange(0, std::max(lastFirst(lines, length) - 1, std::min(bar->value(), last)));
        bar->setPageStep(wholeLines(lines, bar->value() + 1, length));
    };
    update(verticalScrollBar(), m_rows, room.height());
    update(horizontalScrollBar(), m_columns, room.width());
}

void CellView::scrollContentsBy(int, int)
{
    measureRows();
    const int top = std::min(std::exchange(m_shownTop, TopRow()), Rows() - 1);
    const int left = std::min(std::exchange(m_shownLeft, LeftCol()), Cols() - 1);
    const int dx = m_columns.distance(LeftCol(), left);
    viewport()->scroll(isRightToLeft() ? -dx : dx, m_rows.distance(TopRow(), top));
    scrollTitles();
    updateScrollBars();
    Q_EMIT cellsMoved();
    tellScrolled();
}

// Not at once: the scroll bar does not survive a handler that deletes the grid.
void CellView::tellScrolled()
{
    if (std::exchange(m_isScrollDue, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isScrollDue = false;
            guarded(this, [this] { Q_EMIT Scroll(); });
        },
        Qt::QueuedConnection);
}

void CellView::makeVisible(int row, int column)
{
    settleLayout();
    if (row > 0) {
        measureUpwards(row);
        setFirst(verticalScrollBar(), firstToShow(m_rows, TopRow(), row, viewport()->height()));
    }
    if (column > 0)
        setFirst(horizontalScrollBar(), firstToShow(m_columns, LeftCol(), column, viewport()->width()));
}

void CellView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    makeVisible(index.row() + 1, index.column() + 1);
    if (hint == PositionAtTop)
        setTopRow(index.row() + 1);
}

int CellView::horizontalOffset() const { return m_columns.distance(1, LeftCol()); }
int CellView::verticalOffset() const { return m_rows.distance(1, TopRow()); }

// --- layout

void CellView::rowsInserted(const QModelIndex &, int, int) { scheduleLayout(); }

// The toolkit starts its timer anew each time.
void CellView::scheduleLayout()
{
    if (!std::exchange(m_isLayoutDue, true))
        scheduleDelayedItemsLayout();
}

void CellView::settleLayout() const
{
    if (m_isLayoutDue)
        const_cast<CellView *>(this)->doItemsLayout();
}

void CellView::doItemsLayout()
{
    m_isLayoutDue = false;
    QAbstractItemView::doItemsLayout();
    m_rowTitles->viewport()->update();
    m_columnTitles->viewport()->update();
    m_corner->update();
}

void CellView::updateGeometries()
{
    if (m_isPlacingTitles)
        return;
    m_isLayoutDue = false;
    takeScreenSizes();
    placeTitles();
    measureRows();
    updateScrollBars();
    scrollTitles();
    QAbstractItemView::updateGeometries();
    Q_EMIT cellsMoved();
}

void CellView::placeTitles()
{
    const QScopedValueRollback placing(m_isPlacingTitles, true);
    const int height = m_rows.pixels(0);
    const int width = m_columns.pixels(0);
    setViewportMargins(isRightToLeft() ? 0 : width, height, isRightToLeft() ? width : 0, 0);
    const QRect cells = viewport()->geometry();
    const int left = isRightToLeft() ? cells.right() + 1 : cells.left() - width;
    m_columnTitles->setGeometry(cells.left(), cells.top() - height, cells.width(), height);
    m_rowTitles->setGeometry(left, cells.top(), width, cells.height());
    m_corner->setGeometry(left, cells.top() - height, width, height);
}

void CellView::scrollTitles()
{
    m_rowTitles->setOffset(verticalOffset());
    m_rowTitles->viewport()->update();
    m_columnTitles->setOffset(horizontalOffset());
}

void CellView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange: forgetHeights(); break;
    case QEvent::PaletteChange:
        viewport()->setAttribute(Qt::WA_OpaquePaintEvent, palette().color(QPalette::Base).alpha() == 255);
        scheduleLayout();
        break;
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange: scheduleLayout(); break;
    default: break;
    }
}

} // namespace kor
