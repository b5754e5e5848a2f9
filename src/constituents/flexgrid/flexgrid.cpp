// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/flexgrid.h"

#include "constituents/accessibletable.h"
#include "constituents/contextpress.h"
#include "constituents/errorguard.h"
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "constituents/keyoffer.h"
#include "constituents/mouse.h"
#include "constituents/twips.h"

#include <QtCore/QPointer>
#include <QtCore/QStringTokenizer>
#include <QtCore/QTimerEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>

#include <algorithm>
#include <memory>
#include <utility>

namespace kor {

namespace {

constexpr int followingStep = 50; // milliseconds
// What the toolkit keeps of every line, and what one written row takes, must fit into memory.
constexpr int mostRows = 1 << 24;
constexpr int mostColumns = 1 << 17;

void checkLine(int line, int count)
{
    if (line < 0 || line >= count)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
}

} // namespace

FlexGrid::FlexGrid(QWidget *parent) : CellView(parent) { makeConstituentsAccessible(); }

// --- rows and columns

template <class Change>
void FlexGrid::restructure(int rows, int columns, Change &&change)
{
    const QPointer<FlexGrid> self = this;
    const CellCursor before = cursorCell();
    CellCursor after = fitted(before, rows, columns);
    // Out of the titles again, where nothing but the want of data had put it.
    if (Rows() == 1 && rows > 1)
        after.row = after.rowSel = 1;
    if (Cols() == 1 && columns > 1)
        after.column = after.columnSel = 1;
    const int move = ++m_moves;
    if (!after.isAtCellOf(before)) {
        Q_EMIT LeaveCell();
        if (!self)
            return;
    }
    change();
    if (m_moves != move)
        return;
    if (cursorCell() != after)
        placeCursor(fitted(after, Rows(), Cols()));
    if (!after.isAtCellOf(before))
        tellEntered(move);
    else if (after != before)
        Q_EMIT SelChange();
}

void FlexGrid::setRows(int rows)
{
    if (rows < 1 || rows > mostRows)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    restructure(rows, Cols(), [&] {
        if (rows > Rows())
            addRows(Rows(), rows - Rows());
        else if (rows < Rows())
            dropRows(rows, Rows() - rows);
    });
}

void FlexGrid::setCols(int columns)
{
    if (columns < 1 || columns > mostColumns)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    restructure(Rows(), columns, [&] { changeColumns(columns); });
}

void FlexGrid::AddItem(const QString &texts, int index)
{
    const int row = index == -1 ? Rows() : index;
    if (row < 1 || row > Rows())
        throw RunTimeError(ErrorNumber::InvalidPropertyArrayIndex);
    addRows(row, 1);
    int column = 0;
    for (const QStringView text : QStringTokenizer(texts, u'\t')) {
        if (column == Cols())
            break;
        setTextMatrix(row, column++, text.toString());
    }
}

void FlexGrid::RemoveItem(int index, int number)
{
    if (index < 1 || number < 0 || index + number > Rows())
        throw RunTimeError(ErrorNumber::InvalidPropertyArrayIndex);
    restructure(Rows() - number, Cols(), [&] {
        const int left = std::min(number, Rows() - index); // a handler of LeaveCell may have removed some
        if (left > 0)
            dropRows(index, left);
    });
}

// --- current cell

bool FlexGrid::moveTo(const CellCursor &cursor)
{
    if (cursor == cursorCell())
        return true;
    const QPointer<FlexGrid> self = this;
    const bool isOtherCell = !cursor.isAtCellOf(cursorCell());
    const int move = ++m_moves;
    if (isOtherCell) {
        Q_EMIT LeaveCell();
        if (!self || m_moves != move)
            return false;
    }
    placeCursor(fitted(cursor, Rows(), Cols()));
    if (isOtherCell)
        return tellEntered(move);
    Q_EMIT SelChange();
    return self && m_moves == move;
}

bool FlexGrid::tellEntered(int move)
{
    const QPointer<FlexGrid> self = this;
    for (const auto event : {&FlexGrid::EnterCell, &FlexGrid::RowColChange, &FlexGrid::SelChange}) {
        Q_EMIT(this->*event)();
        if (!self || m_moves != move)
            return false;
    }
    return true;
}

bool FlexGrid::mayMoveByUser(const CellCursor &cursor)
{
    if (cursor.isAtCellOf(cursorCell()))
        return true;
    const QPointer<FlexGrid> self = this;
    bool stays = false;
    Q_EMIT askToLeave(stays);
    return self && !stays;
}

bool FlexGrid::moveByUser(const CellCursor &cursor) { return mayMoveByUser(cursor) && moveTo(cursor); }

void FlexGrid::setRow(int row)
{
    checkLine(row, Rows());
    moveTo(CellCursor::at(row, Col()));
}

void FlexGrid::setCol(int column)
{
    checkLine(column, Cols());
    moveTo(CellCursor::at(Row(), column));
}

bool FlexGrid::setCurrentCell(int row, int column)
{
    checkLine(row, Rows());
    checkLine(column, Cols());
    return moveTo(CellCursor::at(row, column));
}

void FlexGrid::setRowSel(int row)
{
    checkLine(row, Rows());
    moveTo({Row(), Col(), row, ColSel()});
}

void FlexGrid::setColSel(int column)
{
    checkLine(column, Cols());
    moveTo({Row(), Col(), RowSel(), column});
}

// Assistive tools make a cell the current one behind our back; the toolkit is still busy with it.
void FlexGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    CellView::currentChanged(current, previous);
    if (isPlacingCursor() || !current.isValid())
        return;
    QMetaObject::invokeMethod(
        this,
        [this, target = QPersistentModelIndex(current)] {
            if (target.isValid())
                guarded(this, [&] { moveByUser(CellCursor::at(target.row() + 1, target.column() + 1)); });
        },
        Qt::QueuedConnection);
}

int FlexGrid::CellLeft() const
{
    const int pixels = viewport()->x() + cellRect(Row(), Col()).left();
    return toTwipsX(this, pixels).rounded();
}

int FlexGrid::CellTop() const
{
    const int pixels = viewport()->y() + cellRect(Row(), Col()).top();
    return toTwipsY(this, pixels).rounded();
}

int FlexGrid::CellWidth() const { return toTwipsX(this, cellRect(Row(), Col()).width()).rounded(); }
int FlexGrid::CellHeight() const { return toTwipsY(this, cellRect(Row(), Col()).height()).rounded(); }

// --- keys

void FlexGrid::keyPressEvent(QKeyEvent *event)
{
    const QPointer<FlexGrid> self = this;
    guarded(this, [&] {
        if (FocusTracker::instance().settle() && self)
            press(event);
        else
            event->accept();
    });
}

void FlexGrid::press(QKeyEvent *event)
{
    const QPointer<FlexGrid> self = this;
    event->accept();
    const KeyOffer key = offerKey(this, *event);
    if (key.answer == KeyOffer::Answer::Swallow)
        return;
    QKeyEvent other(QEvent::KeyPress, toolkitKey(key.code), modifiersOf(key.shift), plainText(key.code, key.shift));
    int ascii = keyAscii(key.answer == KeyOffer::Answer::ActAs ? other : *event);
    if (ascii != 0) {
        Q_EMIT KeyPress(ascii);
        if (!self || ascii == 0)
            return;
    }
    actAs(event, key.code, key.shift);
}

void FlexGrid::actAs(QKeyEvent *event, int keyCode, int shiftState)
{
    const std::optional<CellMove> move = cellMove(keyCode, shiftState, isRightToLeft());
    if (!move) {
        event->ignore(); // the form's: Enter, Escape, a menu's letter
        return;
    }
    moveBy(*move, shiftState & ShiftState::Shift);
}

void FlexGrid::moveBy(CellMove move, bool extends)
{
    const CellCursor wanted = cursorAfter(move, extends);
    if (!mayMoveByUser(wanted))
        return;
    // First: whoever hears of the cell that is entered finds it in sight.
    const CellCursor target = fitted(wanted, Rows(), Cols());
    makeVisible(target.rowSel, target.columnSel);
    moveTo(target);
}

bool FlexGrid::moveAsUser(const CellCursor &cursor)
{
    const QPointer<FlexGrid> self = this;
    bool isDone = false;
    guarded(this, [&] {
        if (!FocusTracker::instance().giveKeyboard(this))
            return;
        isDone = moveByUser(fitted(cursor, Rows(), Cols()));
        if (isDone && self)
            makeVisible(RowSel(), ColSel());
    });
    return isDone && self;
}

bool FlexGrid::canMoveBy(CellMove move) const { return !cursorAfter(move, false).isAtCellOf(cursorCell()); }

CellCursor FlexGrid::cursorAfter(CellMove move, bool extends) const
{
    return moved(cursorCell(), move, extends, {rowSizes(), columnSizes(), wholeRows()});
}

void FlexGrid::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    guarded(this, [&] { raiseKeyUp(this, *event); });
}

// --- mouse

void FlexGrid::handleMouseOfCells(QMouseEvent *event)
{
    const QPointF place = event->position() + viewport()->pos();
    event->accept();
    handleMouse(viewport(), {event->type(), place, event->scenePosition(), event->globalPosition(), event->button(),
                             event->buttons(), event->modifiers(), event->pointingDevice()});
}

void FlexGrid::handleMouse(QWidget *surface, const QMouseEvent &event)
{
    if (event.type() != QEvent::MouseButtonPress || !isContextMenuDue(event)) {
        handleMouse(event);
        return;
    }
    const std::shared_ptr<QMouseEvent> press(event.clone());
    actBeforeNextEvent(surface, [this, press] { handleMouse(*press); });
}

void FlexGrid::handleMouse(const QMouseEvent &event)
{
    const QPointer<FlexGrid> self = this;
    guarded(this, [&] {
        const bool isPress = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
        if (isPress && (!FocusTracker::instance().settle() || !self))
            return;
        m_mousePlace = event.position().toPoint() - viewport()->pos();
        m_mouse = {rowAtPlace(m_mousePlace.y()), columnAtPlace(m_mousePlace.x())};
        switch (event.type()) {
        case QEvent::MouseButtonPress: press(event); break;
        case QEvent::MouseButtonDblClick: doublePress(event); break;
        case QEvent::MouseMove: follow(event); break;
        default: release(event); break;
        }
    });
}

void FlexGrid::press(const QMouseEvent &event)
{
    const QPointer<FlexGrid> self = this;
    const Place place = m_mouse;
    m_pressed |= event.button();
    MouseArguments mouse(this, event);
    Q_EMIT MouseDown(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
    if (!self || event.button() != Qt::LeftButton)
        return;
    m_isClickDue = true;
    pressAt(place, event.modifiers().testFlag(Qt::ShiftModifier));
}

// A title selects its column, the fixed column its row; neither scrolls to where the current cell then is.
void FlexGrid::pressAt(const Place &place, bool extends)
{
    const QPointer<FlexGrid> self = this;
    const int lastRow = Rows() - 1;
    const int lastColumn = Cols() - 1;
    m_drag = Drag::None;
    if (place.row < 0 || place.column < 0 || (place.row == 0 && place.column == 0) || place.row > lastRow ||
        place.column > lastColumn)
        return;
    if (place.row == 0) {
        if (lastRow > 0 && moveByUser({1, extends ? Col() : place.column, lastRow, place.column}))
            m_drag = Drag::Columns;
    } else if (place.column == 0) {
        if (lastColumn > 0 && moveByUser({extends ? Row() : place.row, 1, place.row, lastColumn}))
            m_drag = Drag::Rows;
    } else if (moveByUser(extends ? CellCursor{Row(), Col(), place.row, place.column}
                                  : CellCursor::at(place.row, place.column))) {
        m_drag = Drag::Cells;
        makeVisible(RowSel(), ColSel());
    }
}

void FlexGrid::doublePress(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton) {
        press(event);
        return;
    }
    const QPointer<FlexGrid> self = this;
    const Place place = m_mouse;
    m_pressed |= event.button();
    m_isClickDue = false;
    // The second press may fall on the cell beside the first one's.
    if (place.row > 0 && place.column > 0)
        pressAt(place, event.modifiers().testFlag(Qt::ShiftModifier));
    if (self)
        Q_EMIT DblClick();
}

void FlexGrid::follow(const QMouseEvent &event)
{
    const QPointer<FlexGrid> self = this;
    MouseArguments mouse(this, event);
    Q_EMIT MouseMove(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
    if (!self || !m_pressed.testFlag(Qt::LeftButton))
        return;
    if (!event.buttons().testFlag(Qt::LeftButton)) {
        m_pressed = {}; // released where nobody saw it, over a message that a handler showed
        m_drag = Drag::None;
        m_following.stop();
        return;
    }
    if (m_drag == Drag::None)
        return;
    const bool isBeyond = !viewport()->rect().contains(m_mousePlace);
    if (isBeyond && !m_following.isActive())
        m_following.start(followingStep, this);
    else if (!isBeyond)
        m_following.stop();
    extendTo(m_mousePlace);
}

void FlexGrid::extendTo(const QPoint &place)
{
    const QRect room = viewport()->rect();
    const auto lineAt = [](int line, int first, bool isBefore, bool isBehind, int last) {
        const int next = isBefore ? first - 1 : line + (isBehind ? 1 : 0);
        return line < 0 ? last : std::clamp(next, 1, last);
    };
    const int row = rowAtPlace(std::clamp(place.y(), 0, room.bottom()));
    const int column = columnAtPlace(std::clamp(place.x(), 0, room.right()));
    const bool isLeft = place.x() < 0;
    const bool isRight = place.x() > room.right();
    CellCursor cursor = cursorCell();
    if (m_drag != Drag::Columns)
        cursor.rowSel = lineAt(row, TopRow(), place.y() < 0, place.y() > room.bottom(), Rows() - 1);
    if (m_drag != Drag::Rows)
        cursor.columnSel = lineAt(column, LeftCol(), isRightToLeft() ? isRight : isLeft,
                                  isRightToLeft() ? isLeft : isRight, Cols() - 1);
    if (moveTo(cursor))
        makeVisible(m_drag == Drag::Columns ? 0 : RowSel(), m_drag == Drag::Rows ? 0 : ColSel());
}

void FlexGrid::release(const QMouseEvent &event)
{
    if (!m_pressed.testFlag(event.button()))
        return;
    const QPointer<FlexGrid> self = this;
    m_pressed.setFlag(event.button(), false);
    const bool isLeft = event.button() == Qt::LeftButton;
    if (isLeft) {
        m_following.stop();
        m_drag = Drag::None;
    }
    MouseArguments mouse(this, event);
    Q_EMIT MouseUp(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
    if (self && isLeft && std::exchange(m_isClickDue, false))
        Q_EMIT Click();
}

void FlexGrid::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_following.timerId())
        CellView::timerEvent(event);
    else if (m_drag == Drag::None || !isVisible() || !isEnabled())
        m_following.stop(); // where no release will be seen
    else
        guarded(this, [this] { extendTo(m_mousePlace); });
}

// --- focus

// The toolkit's own would make the first cell the current one.
void FlexGrid::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    updateCursor();
    tellCurrentCell(this);
}

void FlexGrid::focusOutEvent(QFocusEvent *event)
{
    const QPointer<FlexGrid> self = this;
    CellView::focusOutEvent(event);
    if (self)
        updateCursor();
}

} // namespace kor
