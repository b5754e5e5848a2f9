// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cells/cellsession.h"
#include "cells/surfacetyping.h"
#include "lists/databasereference.h"
#include "param/paramrecord.h"

class KorClick;
class KorCombo;
class KorDate;

namespace kor {

class FlexGrid;

//! What the editing of parameters asks of the control, and has to tell it.
class ParamEditingHost
{
public:
    virtual ~ParamEditingHost() = default;
    //! Not at design time.
    [[nodiscard]] virtual bool mayEdit() const = 0;
    virtual void chooserAsked() = 0;
};

//! The editors of a sheet: which one a parameter has, how it is prepared, what it writes back, and what the keys do in
//! it.
class ParamEditing final : public QObject
{
    Q_OBJECT

public:
    ParamEditing(FlexGrid *grid, ParamValues &values, ParamEditingHost &host);

    [[nodiscard]] CellSession &session() { return m_session; }
    //! What is typed on the grid itself.
    [[nodiscard]] SurfaceTyping &typing() { return m_typing; }
    [[nodiscard]] KorClick *click() const;
    [[nodiscard]] KorCombo *combo() const;
    [[nodiscard]] KorDate *date() const;
    //! The host's database, as the drop-down list has it.
    [[nodiscard]] DatabaseReference &database() { return m_database; }
    //! The drop-down list's dictionary while it is open over a value, "" otherwise.
    [[nodiscard]] QString dictionary() const;

    [[nodiscard]] ParamKind kindOf(int row) const;
    //! The height in pixels of the highest editor, which the font decides.
    [[nodiscard]] int editorHeight() const;
    //! How the editor of a row's kind writes its value; a click field has its text from the program. May end the
    //! control, where a list is read from a database that waits.
    [[nodiscard]] QString written(int row, const QString &clickText);

    //! Opens the editor of the current row, if its value is the current cell; whether one is open. An editor that is
    //! open already is left before.
    bool open(CellSession::Keyboard keyboard);
    //! Makes the value of a row the current cell, in sight whether or not it has an editor.
    void goTo(int row);
    //! Gives the parameter its old text and value back and closes the editor.
    void cancel();
    //! Closes the editor of a row that the program leaves; what was typed stands.
    void hide();
    //! Closes it where nobody is asked, because the program goes on, and writes back.
    void finishUnasked();
    //! Copies text and value of the open editor into its row.
    void writeBack();
    //! A program has replaced the value of a row: an editor that is open over it shows that.
    void valueReplaced(int row);

private:
    //! What a parameter was when its editor opened.
    struct Before {
        QString shown;
        QVariant value;
    };

    [[nodiscard]] QString text(int row, ParamColumn::Code column) const;
    [[nodiscard]] bool holdsParameter(int row) const;
    [[nodiscard]] CellEditor *editorOf(ParamKind kind) const;
    [[nodiscard]] CellSetup setupOf(int row) const;
    [[nodiscard]] bool openToType();
    //! False where the editor is another row's by now, or gone.
    [[nodiscard]] bool prepare(CellEditor *editor, int row);
    [[nodiscard]] CellContents contentsOf(int row, const QString &clickText) const;
    [[nodiscard]] EditorBox placeOf(int row) const;
    [[nodiscard]] bool hasSomethingToSay() const;
    void closing();
    void keyDown(int &code, int &shift);
    void follow();

    FlexGrid *m_grid;
    ParamValues &m_values;
    ParamEditingHost &m_host;
    CellSession m_session;
    SurfaceTyping m_typing;
    CellEditor *m_textEditor;
    CellEditor *m_numberEditor;
    CellEditor *m_dateEditor;
    CellEditor *m_comboEditor;
    CellEditor *m_clickEditor;
    Before m_before;
    DatabaseReference m_database;
    bool m_canReadList = false; //!< the list of the row that was prepared last has somewhere to come from
    bool m_isListRead = false;  //!< and did
};

} // namespace kor
