// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/gridtitles.h"

#include "constituents/flexgrid/celltext.h"
#include "constituents/flexgrid/cellview.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionHeader>

namespace kor {

namespace {

constexpr int narrowestByDragging = 8; // pixels, so that no column is lost

// Whatever the mouse does to titles is told by the grid, in its own coordinates.
QMouseEvent inGrid(const QWidget *surface, const CellView *grid, const QMouseEvent &event)
{
    const QPointF place = surface->mapTo(grid, event.position());
    return {event.type(),   place,           event.scenePosition(), event.globalPosition(),
            event.button(), event.buttons(), event.modifiers(),     event.pointingDevice()};
}

void pass(QWidget *surface, CellView *grid, QMouseEvent *event)
{
    const QMouseEvent there = inGrid(surface, grid, *event);
    event->accept();
    auto *area = qobject_cast<QAbstractScrollArea *>(surface);
    grid->handleMouse(area ? area->viewport() : surface, there); // after which the grid may be gone
}

} // namespace

// --- title row

ColumnTitles::ColumnTitles(CellView *grid) : QHeaderView(Qt::Horizontal, grid), m_grid(grid)
{
    setSectionsClickable(true); // or a press on a title could not be told from one on a border
    setHighlightSections(false);
    setMinimumSectionSize(narrowestByDragging);
    setTextElideMode(Qt::ElideRight);
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(grid);
    connect(this, &QHeaderView::sectionPressed, this, [this] { m_isTitlePressed = true; });
    connect(this, &QHeaderView::sectionDoubleClicked, this, [this] { m_isTitlePressed = true; });
}

void ColumnTitles::initStyleOptionForIndex(QStyleOptionHeader *option, int section) const
{
    QHeaderView::initStyleOptionForIndex(option, section);
    const CellLook look = m_grid->look(0, section + 1);
    option->textAlignment = textPlace(look.content.alignment, look.content.text);
    if (look.content.wraps)
        option->textAlignment |= static_cast<Qt::Alignment>(static_cast<int>(Qt::TextWordWrap));
    if (look.hasOwnColor)
        option->palette.setColor(QPalette::ButtonText, look.color);
}

// What a title needs for itself: the user fits a column to what is in it.
QSize ColumnTitles::sectionSizeFromContents(int section) const
{
    const int width = neededWidth(fontMetrics(), m_grid->TextMatrix(0, section + 1));
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    return {width + 2 * margin, height()};
}

template <class Act>
bool ColumnTitles::isOnBorder(Act &&act)
{
    m_isTitlePressed = false;
    act();
    return !m_isTitlePressed;
}

void ColumnTitles::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && isOnBorder([&] { QHeaderView::mousePressEvent(event); })) {
        m_isDragging = true;
        return;
    }
    pass(this, m_grid, event);
}

void ColumnTitles::mouseMoveEvent(QMouseEvent *event)
{
    QHeaderView::mouseMoveEvent(event);
    if (!m_isDragging)
        pass(this, m_grid, event);
}

void ColumnTitles::mouseReleaseEvent(QMouseEvent *event)
{
    QHeaderView::mouseReleaseEvent(event);
    if (m_isDragging && event->button() == Qt::LeftButton) {
        m_isDragging = false;
        m_grid->endDragging();
        return;
    }
    pass(this, m_grid, event);
}

void ColumnTitles::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && isOnBorder([&] { QHeaderView::mouseDoubleClickEvent(event); })) {
        m_isDragging = true; // of the second press, until it is released
        return;
    }
    pass(this, m_grid, event);
}

// --- fixed column

RowTitles::RowTitles(CellView *grid) : QHeaderView(Qt::Vertical, grid), m_grid(grid)
{
    setHighlightSections(false);
    setMinimumSectionSize(0);
    setSectionResizeMode(QHeaderView::Fixed);
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(grid);
}

void RowTitles::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const int behind = m_grid->shownRowsEnd();
    int bottom = 0;
    for (int row = m_grid->TopRow(); row < behind; ++row) {
        QRect title = m_grid->cellRect(row, 0);
        title.moveLeft(0);
        bottom = title.bottom() + 1;
        if (title.isEmpty() || !event->rect().intersects(title))
            continue;
        painter.save();
        paintSection(&painter, title, row - 1);
        painter.restore();
    }
    if (bottom < height()) {
        QStyleOption option;
        option.initFrom(this);
        option.state |= QStyle::State_Horizontal;
        option.rect = QRect(0, bottom, width(), height() - bottom);
        style()->drawControl(QStyle::CE_HeaderEmptyArea, &option, &painter, this);
    }
}

// The toolkit's hover effect would look for the row in its own way.
bool RowTitles::viewportEvent(QEvent *event)
{
    const bool isHover = event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove ||
                         event->type() == QEvent::HoverLeave;
    return isHover || QHeaderView::viewportEvent(event);
}

void RowTitles::mousePressEvent(QMouseEvent *event) { pass(this, m_grid, event); }
void RowTitles::mouseMoveEvent(QMouseEvent *event) { pass(this, m_grid, event); }
void RowTitles::mouseReleaseEvent(QMouseEvent *event) { pass(this, m_grid, event); }
void RowTitles::mouseDoubleClickEvent(QMouseEvent *event) { pass(this, m_grid, event); }

// --- corner

TitleCorner::TitleCorner(CellView *grid) : QWidget(grid), m_grid(grid)
{
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(grid);
    setMouseTracking(true);
}

void TitleCorner::paintEvent(QPaintEvent *)
{
    const CellLook look = m_grid->look(0, 0);
    QStyleOptionHeader option;
    option.initFrom(this);
    option.state |= QStyle::State_Raised | QStyle::State_Horizontal;
    option.orientation = Qt::Horizontal;
    option.position = QStyleOptionHeader::OnlyOneSection;
    option.text = look.content.text;
    option.textAlignment = textPlace(look.content.alignment, look.content.text);
    QPainter painter(this);
    style()->drawControl(QStyle::CE_Header, &option, &painter, this);
}

void TitleCorner::mousePressEvent(QMouseEvent *event) { pass(this, m_grid, event); }
void TitleCorner::mouseMoveEvent(QMouseEvent *event) { pass(this, m_grid, event); }
void TitleCorner::mouseReleaseEvent(QMouseEvent *event) { pass(this, m_grid, event); }
void TitleCorner::mouseDoubleClickEvent(QMouseEvent *event) { pass(this, m_grid, event); }

} // namespace kor
