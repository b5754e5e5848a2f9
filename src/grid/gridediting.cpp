// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridediting.h"

#include "cells/celleditors.h"
#include "constituents/flexgrid/flexgrid.h"
#include "constituents/keycodes.h"
#include "constituents/multilinetextbox.h"
#include "constituents/textbox.h"
#include "constituents/twips.h"
#include "grid/gridkeys.h"
#include "grid/gridmoves.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/korclick.h>
#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/kordate.h>
#include <KorDaoUC/kornumber.h>
#include <KorDaoUC/variant.h>

#include <utility>

namespace kor {

namespace {

// What is left of a cell's margins inside the editor, which begins two pixels inside the lines.
constexpr int wrappedLeft = 1;
constexpr int wrappedRight = 3;

} // namespace

GridEditing::GridEditing(FlexGrid *grid, GridCells &cells, GridEditingHost &host)
    : m_grid(grid),
      m_cells(cells),
      m_host(host),
      m_session(grid),
      m_typing(grid, m_session, [this] { return openToType(); }),
      m_textEditor(m_session.make<TextCellEditor, TextBox>("TxtBox")),
      m_multiLineEditor(m_session.make<MultiLineCellEditor, MultiLineTextBox>("TxtMBox")),
      m_numberEditor(m_session.make<NumberCellEditor, KorNumber>("KorNum")),
      m_clickEditor(m_session.make<ClickCellEditor, KorClick>("KorClick")),
      m_comboEditor(m_session.make<ComboCellEditor, KorCombo>("KorCmb")),
      m_dateEditor(m_session.make<DateCellEditor, KorDate>("KorDate"))
{
    m_combo = static_cast<KorCombo *>(m_comboEditor->control());
    m_combo->setBlockUpDown(true); // plain arrows are the grid's
    static_cast<KorDate *>(m_dateEditor->control())->setBlockUpDown(true);
    static_cast<KorClick *>(m_clickEditor->control())->setBlockUpDown(true);
    // Its lines break where those of the cell do, and all of them fit where the cell's do.
    static_cast<MultiLineTextBox *>(m_multiLineEditor->control())->setFrameless(wrappedLeft, wrappedRight);
    connect(&m_session, &CellSession::Edited, this, &GridEditing::copyBack);
    connect(&m_session, &CellSession::KeyDown, this, &GridEditing::keyDown);
    connect(&m_session, &CellSession::ChooserAsked, this, [this] { m_host.chooserAsked(); });
    connect(grid, &CellView::cellsMoved, this, &GridEditing::follow);
}

QString GridEditing::dictionary() const { return m_session.editor() == m_comboEditor ? m_combo->Slownik() : QString(); }

// --- opening

CellEditor *GridEditing::editorOf(const GridColumn *column, ColumnType type) const
{
    switch (type) {
    case ColumnType::Number: return m_numberEditor;
    case ColumnType::Click: return m_clickEditor;
    case ColumnType::Combo: return m_comboEditor;
    case ColumnType::Date: return m_dateEditor;
    case ColumnType::Text: break;
    }
    return column && column->isWrapped ? m_multiLineEditor : m_textEditor;
}

CellSetup GridEditing::setupOf(const GridColumn &column, ColumnType type)
{
    CellSetup setup;
    switch (type) {
    case ColumnType::Text: setup.maxLength = column.maxLength; break;
    case ColumnType::Number: setup.mask = column.format; break;
    case ColumnType::Combo: setup.list = CellList{column.source, column.dictionary, std::nullopt}; break;
    case ColumnType::Click:
    case ColumnType::Date: break;
    }
    return setup;
}

// Rows shown in part count, so the count goes one beyond them.
int GridEditing::visibleRows() const { return m_grid->shownRowsEnd() - m_grid->TopRow() + 1; }

bool GridEditing::isInSight(CellAddress cell) const
{
    return cell.row > 0 && cell.column > 0 && m_grid->RowIsVisible(cell.row) && m_grid->ColIsVisible(cell.column) &&
           cell.row < m_grid->TopRow() + visibleRows() - 1;
}

std::optional<EditorBox> GridEditing::placeOf(CellAddress cell) const
{
    // The toolkit's own idea of a cell leaves the lines out, so that they show around the editor.
    const QRect rect = m_grid->visualRect(m_grid->model()->index(cell.row - 1, cell.column - 1));
    const QPoint corner = m_grid->viewport()->mapTo(m_grid, rect.topLeft());
    const CellBox box{toTwipsX(m_grid, corner.x()).rounded(), toTwipsY(m_grid, corner.y()).rounded(),
                      toTwipsX(m_grid, rect.width()).rounded(), toTwipsY(m_grid, rect.height()).rounded()};
    const SurfacePlace surface{static_cast<float>(toTwipsX(m_grid, m_grid->x()).count()),
                               static_cast<float>(toTwipsY(m_grid, m_grid->y()).count())};
    const bool isOfDate = m_cells.typeOf(cell.column) == ColumnType::Date;
    return placeInside(box, surface, {isOfDate, m_grid->RowHeightMin()});
}

bool GridEditing::canOpen(CellAddress cell) const
{
    return m_host.mayEdit() && !m_cells.columns().isLocked(cell.column) && isInSight(cell) && placeOf(cell);
}

bool GridEditing::open(CellSession::Keyboard keyboard)
{
    const QPointer<GridEditing> self = this;
    if (!m_session.leave() || !self)
        return false;
    const CellAddress cell{m_grid->Row(), m_grid->Col()};
    if (!canOpen(cell))
        return false;
    const auto type = m_cells.typeOf(cell.column);
    const GridColumn *column = m_cells.columns().find(cell.column);
    CellEditor *editor = editorOf(column, type);
    if (column) {
        const CellSetup setup = setupOf(*column, type);
        const auto asker = m_session.keyboardPlace();
        const bool isReady = editor->setUp(setup);
        if (!self)
            return false;
        if (isReady && setup.list)
            m_host.listRead(setup.list->source);
        // A database that waits lets anything happen: another cell may be current by now, or edited already.
        const CellAddress now{m_grid->Row(), m_grid->Col()};
        const bool isHere = now == cell && m_cells.extent().hasDataCell(cell) && m_cells.typeOf(cell.column) == type;
        const bool isWanted = isHere && m_session.isStillWanted(keyboard, asker);
        if (!isReady || m_session.state() != CellSession::State::Closed || !isWanted || !canOpen(cell))
            return m_session.isOpen();
    }
    const auto place = placeOf(cell);
    const QString shown = m_grid->TextMatrix(cell.row, cell.column);
    m_before = m_cells.textsAt(cell);
    editor->setName(m_grid->TextMatrix(0, cell.column), QStringLiteral("Wiersz %1").arg(cell.row));
    m_session.open(editor, cell, *place, {shown, std::nullopt}, keyboard);
    if (!self || !m_session.isOpen() || m_session.cell() != cell)
        return self && m_session.isOpen();
    if (m_session.text() != shown) {
        // What the editor cannot show stays in the cell: looking at it destroys nothing.
        if (!m_session.text().isEmpty())
            write(cell, m_session.text(), editor->value());
        m_host.cellChanged(cell);
    }
    if (self)
        m_host.editorOpened();
    return self && m_session.isOpen();
}

//! The user sees what is typed, though the cell was scrolled away meanwhile.
bool GridEditing::openToType()
{
    if (!m_host.mayEdit())
        return false;
    if (!m_cells.columns().isLocked(m_grid->Col()))
        m_grid->makeVisible(m_grid->Row(), m_grid->Col());
    // While a list is waited for, the user may go on in another cell, which this key is not meant for.
    const QPointer<GridEditing> self = this;
    const CellAddress cell{m_grid->Row(), m_grid->Col()};
    return open(CellSession::Keyboard::Take) && self && m_session.cell() == cell;
}

// --- copying back

void GridEditing::write(CellAddress cell, const QString &shown, const QVariant &value)
{
    CellTexts texts{shown, std::nullopt};
    // Kept: a value that becomes Null leaves the value column as it was
    if (!isNull(value) && !isMissing(value))
        texts.raw = rawTextOf(m_cells.typeOf(cell.column), normalized(value), Locale::systemDefault());
    m_cells.write(cell, texts);
}

void GridEditing::copyBack()
{
    const CellAddress cell = m_session.cell();
    if (!m_cells.extent().hasDataCell(cell))
        return;
    const CellTexts before = m_cells.textsAt(cell);
    write(cell, m_session.editor()->text(), m_session.editor()->value());
    if (before != m_cells.textsAt(cell))
        m_host.cellChanged(cell);
}

void GridEditing::cancel()
{
    if (!m_session.isOpen())
        return;
    const QPointer<GridEditing> self = this;
    const CellAddress cell = m_session.cell();
    m_session.abandon();
    if (self)
        restore(cell);
}

void GridEditing::restore(CellAddress cell)
{
    if (!m_cells.extent().hasDataCell(cell))
        return;
    if (m_before == m_cells.textsAt(cell))
        return;
    m_cells.write(cell, m_before);
    m_host.cellChanged(cell);
}

void GridEditing::cellWritten(CellAddress cell)
{
    const CellAddress edited = m_session.cell();
    if (!m_session.isOpen() || edited.row != cell.row)
        return;
    // Escape takes the user's typing back, not what the program has written meanwhile.
    if (cell.column == m_cells.valueColumnOf(edited.column))
        m_before.raw = m_cells.textsAt(edited).raw;
    // What the editor holds already leaves the user typing, and what Escape gives back as it was.
    if (cell != edited || m_grid->TextMatrix(cell.row, cell.column) == m_session.text())
        return;
    m_before = m_cells.textsAt(cell);
    m_session.refill({m_before.shown, std::nullopt});
}

void GridEditing::columnsDescribed(int first)
{
    if (m_session.isOpen() && m_session.cell().column >= first)
        m_session.abandon();
}

void GridEditing::rowsRemoved(int first, int last)
{
    const CellAddress cell = m_session.cell();
    if (!m_session.isOpen() || cell.row < first)
        return;
    if (cell.row <= last)
        m_session.abandon();
    else
        m_session.moveTo({cell.row - (last - first + 1), cell.column});
}

void GridEditing::follow()
{
    if (!m_session.isOpen() || !m_cells.extent().hasDataCell(m_session.cell()))
        return;
    if (const auto place = placeOf(m_session.cell()))
        m_session.place(*place);
}

// --- keys

void GridEditing::keyDown(int &code, int &shift)
{
    const GridKey key = judgeGridKey(code, shift, m_session.editor()->hasUseFor(code));
    if (key == GridKey::None)
        return;
    if (key == GridKey::Break) {
        if (m_session.editor() == m_multiLineEditor)
            shift = ShiftState::None; // plain Enter is a line break in a text box
        return;
    }
    const int pressed = std::exchange(code, Key::None);
    switch (key) {
    case GridKey::Cancel: cancel(); return;
    case GridKey::Close: (void)m_session.leave(); return;
    case GridKey::Next:
    case GridKey::Previous: (void)step(key == GridKey::Next); return;
    case GridKey::Move:
        // What is being typed at an edge goes on being typed.
        if (const auto move = cellMove(pressed, shift, m_grid->isRightToLeft());
            move && m_grid->canMoveBy(*move) && m_session.leaveToGoOn())
            m_grid->moveBy(*move);
        return;
    case GridKey::None:
    case GridKey::Break: return;
    }
}

bool GridEditing::step(bool isForward)
{
    const QPointer<GridEditing> self = this;
    const auto next = nextEditable({m_grid->Row(), m_grid->Col()}, m_cells.extent(),
                                   isForward ? Direction::Forward : Direction::Backward,
                                   [this](int column) { return !m_cells.columns().isLocked(column); });
    if (!m_session.leaveToGoOn())
        return true; // it keeps the user
    if (!self || !next || !m_cells.extent().hasDataCell(*next))
        return false;
    m_grid->makeVisible(next->row, next->column);
    m_grid->setCurrentCell(next->row, next->column);
    return true;
}

} // namespace kor
