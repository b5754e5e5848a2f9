// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cells/cellsession.h"
#include "cells/surfacetyping.h"
#include "grid/gridcells.h"

#include <memory>

class KorCombo;

namespace kor {

class FlexGrid;

//! What the editing of cells asks of the control, and has to tell it.
class GridEditingHost
{
public:
    virtual ~GridEditingHost() = default;
    //! Not at design time.
    [[nodiscard]] virtual bool mayEdit() const = 0;
    virtual void cellChanged(CellAddress cell) = 0;
    virtual void editorOpened() = 0;
    virtual void chooserAsked() = 0;
    //! An editor took over what a column's list holds by now.
    virtual void listRead(const QString &source) = 0;
};

//! The editors of a grid: which one a cell has, when it opens, what goes back into the cell, and what the keys do in
//! it.
class GridEditing final : public QObject
{
    Q_OBJECT

public:
    GridEditing(FlexGrid *grid, GridCells &cells, GridEditingHost &host);

    [[nodiscard]] CellSession &session() { return m_session; }
    //! What is typed on the grid itself.
    [[nodiscard]] SurfaceTyping &typing() { return m_typing; }
    [[nodiscard]] KorCombo *combo() const { return m_combo; }
    //! The drop-down list's dictionary while it is open over a cell, "" otherwise.
    [[nodiscard]] QString dictionary() const;

    //! Opens the editor of the current cell, where the column is free and the cell in sight; whether one is open.
    //! An editor that is open already is left before.
    bool open(CellSession::Keyboard keyboard);
    //! Gives the edited cell its old text back and closes the editor.
    void cancel();
    //! A program has written into a cell: an editor that is open over it shows that.
    void cellWritten(CellAddress cell);
    //! Reads the drop-down list anew, for a host.
    void rereadList() { m_comboEditor->reread(); }
    //! Columns from one on become others, or go: an editor over one of them closes, without a word.
    void columnsDescribed(int first);
    //! Rows have gone: an editor over one of them closes, and one below them follows its cell.
    void rowsRemoved(int first, int last);

    //! Moves on to the next cell that can be edited. False when there is none; the editor is left all the same, or
    //! keeps the user.
    bool step(bool isForward);

private:
    [[nodiscard]] CellEditor *editorOf(const GridColumn *column, ColumnType type) const;
    [[nodiscard]] static CellSetup setupOf(const GridColumn &column, ColumnType type);
    [[nodiscard]] std::optional<EditorBox> placeOf(CellAddress cell) const;
    [[nodiscard]] bool isInSight(CellAddress cell) const;
    [[nodiscard]] bool canOpen(CellAddress cell) const;
    [[nodiscard]] int visibleRows() const;

    bool openToType();
    void copyBack();
    void write(CellAddress cell, const QString &shown, const QVariant &value);
    void restore(CellAddress cell);
    void keyDown(int &code, int &shift);
    void follow();

    FlexGrid *m_grid;
    GridCells &m_cells;
    GridEditingHost &m_host;
    CellSession m_session;
    SurfaceTyping m_typing;
    KorCombo *m_combo = nullptr;
    CellEditor *m_textEditor;
    CellEditor *m_multiLineEditor;
    CellEditor *m_numberEditor;
    CellEditor *m_clickEditor;
    CellEditor *m_comboEditor;
    CellEditor *m_dateEditor;
    CellTexts m_before; //!< what the cell and its value column held
};

} // namespace kor
