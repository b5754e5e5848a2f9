// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/blend.h"
#include "constituents/errorguard.h"
#include "constituents/flexgrid/cellview.h"
#include "constituents/flexgrid/gridmodel.h"
#include "constituents/flexgrid/linescroll.h"

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QItemSelectionModel>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionViewItem>
#include <QtWidgets/QToolTip>

#include <algorithm>

// Where cells are on the screen, and how they are painted there.

namespace kor {

// --- places

int CellView::shownRowsEnd() const
{
    settleLayout();
    return shownEnd(m_rows, TopRow(), viewport()->height());
}

int CellView::wholeRows() const
{
    settleLayout();
    return wholeLines(m_rows, TopRow(), viewport()->height());
}

bool CellView::RowIsVisible(int row) const
{
    checkCell(row, 0);
    const bool isInside = row == 0 || (row >= TopRow() && row < shownRowsEnd());
    return isInside && m_rows.size(row) > 0;
}

bool CellView::ColIsVisible(int column) const
{
    checkCell(0, column);
    settleLayout();
    const bool isInside =
        column == 0 || (column >= LeftCol() && column < shownEnd(m_columns, LeftCol(), viewport()->width()));
    return isInside && m_columns.size(column) > 0;
}

int CellView::leftOf(int column) const
{
    const int width = m_columns.pixels(column);
    const int left = column == 0 ? -width : m_columns.distance(LeftCol(), column);
    return isRightToLeft() ? viewport()->width() - left - width : left;
}

QRect CellView::cellRect(int row, int column) const
{
    checkCell(row, column);
    settleLayout();
    measure(row);
    const int height = m_rows.pixels(row);
    const int top = row == 0 ? -height : m_rows.distance(TopRow(), row);
    return {leftOf(column), top, m_columns.pixels(column), height};
}

int CellView::rowAtPlace(int y) const
{
    settleLayout();
    if (y < 0)
        return 0;
    const int row = m_rows.lineAt(m_rows.offset(TopRow()) + y);
    return row < Rows() ? row : -1;
}

int CellView::columnAtPlace(int x) const
{
    settleLayout();
    const int distance = isRightToLeft() ? viewport()->width() - 1 - x : x;
    if (distance < 0)
        return 0;
    const int column = m_columns.lineAt(m_columns.offset(LeftCol()) + distance);
    return column < Cols() ? column : -1;
}

QRect CellView::visualRect(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != m_model)
        return {};
    const QRect cell = cellRect(index.row() + 1, index.column() + 1);
    return cell.isEmpty() ? QRect() : cell.adjusted(isRightToLeft() ? 1 : 0, 0, isRightToLeft() ? 0 : -1, -1);
}

QModelIndex CellView::indexAt(const QPoint &place) const
{
    const int row = rowAtPlace(place.y());
    const int column = columnAtPlace(place.x());
    return row > 0 && column > 0 ? m_model->index(row - 1, column - 1) : QModelIndex();
}

// --- current cell and selection

void CellView::setSelectionMode(SelectionModeType mode)
{
    if (mode < SelectionModeType::Free || mode > SelectionModeType::ByColumn)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    setSelectionBehavior(static_cast<SelectionBehavior>(mode));
    showSelection();
}

CellRange CellView::selectedRange() const { return selectedCells(m_cursor, SelectionMode(), Rows(), Cols()); }

void CellView::placeCursor(const CellCursor &cursor)
{
    m_cursor = cursor;
    showSelection();
}

void CellView::showSelection()
{
    if (!Redraw())
        return;
    const QScopedValueRollback placing(m_isPlacingCursor, true);
    const QModelIndex current = m_model->index(m_cursor.row - 1, m_cursor.column - 1);
    if (!current.isValid())
        selectionModel()->clear();
    else if (selectionModel()->currentIndex() != current)
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    const CellRange range = selectedRange();
    const QItemSelection selection(m_model->index(std::max(range.top, 1) - 1, std::max(range.left, 1) - 1),
                                   m_model->index(range.bottom - 1, range.right - 1));
    if (current.isValid() && selectionModel()->selection() != selection)
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void CellView::updateCursor() { viewport()->update(cellRect(m_cursor.row, m_cursor.column)); }

QRegion CellView::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    for (const QItemSelectionRange &range : selection) {
        const QRect cells =
            cellRect(range.top() + 1, range.left() + 1) | cellRect(range.bottom() + 1, range.right() + 1);
        region += cells & viewport()->rect();
    }
    return region;
}

// --- look

void CellView::setBackColorBkg(OLE_COLOR color)
{
    m_backColorBkg = color;
    viewport()->update();
}

BorderStyleType CellView::BorderStyle() const
{
    return frameShape() == QFrame::NoFrame ? BorderStyleType::None : BorderStyleType::FixedSingle;
}

void CellView::setBorderStyle(BorderStyleType style)
{
    switch (style) {
    case BorderStyleType::None: setFrameStyle(QFrame::NoFrame); break;
    case BorderStyleType::FixedSingle: setFrameStyle(QFrame::StyledPanel | QFrame::Sunken); break;
    default: throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    }
}

bool CellView::Redraw() const { return !m_model->isQuiet(); }

void CellView::setRedraw(bool redraw)
{
    if (redraw == Redraw())
        return;
    m_model->setQuiet(!redraw);
    setUpdatesEnabled(redraw);
    if (!redraw)
        return;
    showSelection();
    scheduleLayout();
}

CellLook CellView::look(int row, int column) const
{
    const OLE_COLOR color = CellForeColor(row, column);
    const bool fillsNarrow = row > 0 && this->column(column).fillsNarrow;
    return {{TextMatrix(row, column), CellAlignment(row, column), wraps(column), fillsNarrow},
            color != 0 ? toQColor(color, palette()) : palette().color(QPalette::Text),
            color != 0};
}

// Straight from here rather than by the model's signal: a program fills most cells out of sight.
void CellView::showChange(int row, int column)
{
    if (m_isLayoutDue || !Redraw() || row == 0 || column == 0)
        return;
    if ((row >= TopRow() && row < shownRowsEnd()) || QAccessible::isActive()) {
        const QModelIndex cell = m_model->index(row - 1, column - 1);
        dataChanged(cell, cell);
    }
}

bool CellView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    guarded(this, [&] { showWholeText(help->pos(), help->globalPos()); });
    return true;
}

//! A text that ends in dots is read whole where the mouse rests on it.
void CellView::showWholeText(const QPoint &place, const QPoint &onScreen)
{
    const QModelIndex index = indexAt(place);
    const CellText content = index.isValid() ? look(index.row() + 1, index.column() + 1).content : CellText();
    const QRect cell = visualRect(index);
    const bool isCut = !content.wraps && neededWidth(fontMetrics(), content.text) > cell.width() + 1;
    const QString own = viewport()->toolTip().isEmpty() ? toolTip() : viewport()->toolTip();
    QToolTip::showText(onScreen, isCut ? content.text : own, viewport(), cell);
}

void CellView::paintEvent(QPaintEvent *event)
{
    settleLayout();
    QPainter painter(viewport());
    const QRect exposed = event->rect();
    paintBehind(painter, exposed);
    const int behind = shownRowsEnd();
    for (int row = std::max(rowAtPlace(exposed.top()), TopRow()); row < behind; ++row) {
        if (m_rows.distance(TopRow(), row) > exposed.bottom())
            break;
        if (m_rows.size(row) > 0)
            paintRow(painter, row, exposed);
    }
    const QRect current = cellRect(m_cursor.row, m_cursor.column);
    if (m_cursor.row < 1 || m_cursor.column < 1 || !current.intersects(exposed))
        return;
    const bool isOnSelection = SelectionMode() != SelectionModeType::Free;
    const QColor frame = isOnSelection ? palette().color(QPalette::HighlightedText)
                                       : seenOn(palette().color(QPalette::Base), palette().color(QPalette::Highlight),
                                                palette().color(QPalette::Text));
    painter.setPen({frame, hasFocus() ? 2.0 : 1.0, hasFocus() ? Qt::SolidLine : Qt::DotLine});
    painter.drawRect(current.adjusted(1, 1, -2, -2));
}

//! Where an editor lies, beside which the text of its cell must not show.
QRect CellView::coveredPlace() const
{
    for (const QWidget *part : viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (part->isVisible())
            return part->geometry();
    }
    return {};
}

void CellView::paintRow(QPainter &painter, int row, const QRect &exposed) const
{
    const CellRange selected = selectedRange();
    const QRect covered = coveredPlace();
    const QStyleOptionViewItem option;
    const QColor line = static_cast<QRgb>(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this));
    const int behind = shownEnd(m_columns, LeftCol(), viewport()->width());
    for (int column = LeftCol(); column < behind; ++column) {
        const QRect cell = cellRect(row, column);
        if (cell.isEmpty() || !cell.intersects(exposed))
            continue;
        const bool isCurrent =
            SelectionMode() == SelectionModeType::Free && row == m_cursor.row && column == m_cursor.column;
        const bool isSelected = selected.contains(row, column) && !isCurrent;
        const CellLook look = this->look(row, column);
        painter.fillRect(cell, palette().color(isSelected ? QPalette::Highlight : QPalette::Base));
        painter.setPen(isSelected ? palette().color(QPalette::HighlightedText) : look.color);
        if (!covered.isValid() || !cell.contains(covered.center()))
            drawCellText(painter, cell, look.content);
        painter.fillRect(cell.left(), cell.bottom(), cell.width(), 1, line);
        painter.fillRect(isRightToLeft() ? cell.left() : cell.right(), cell.top(), 1, cell.height(), line);
    }
}

void CellView::paintBehind(QPainter &painter, const QRect &exposed) const
{
    const QPalette theme = parentWidget() ? parentWidget()->palette() : QApplication::palette();
    const QRect room = viewport()->rect();
    const int height = std::min(m_rows.distance(TopRow(), Rows()), room.height());
    const int width = std::min(m_columns.distance(LeftCol(), Cols()), room.width());
    const QRect cells(isRightToLeft() ? room.width() - width : 0, 0, width, Rows() > 1 ? height : 0);
    for (const QRect &part : QRegion(exposed) - cells)
        painter.fillRect(part, toQColor(m_backColorBkg, theme));
}

} // namespace kor
