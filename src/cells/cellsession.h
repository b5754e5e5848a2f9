// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cells/celleditor.h"
#include "cells/placement.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>

class QAbstractScrollArea;
class QKeyEvent;

namespace kor {

//! The editing of one cell at a time, by whichever editor is laid over it: from its opening to its end.
//!
//! The composite decides which editor belongs to a cell, sets it up and fills it; it copies back what Edited() reports,
//! always to cell(), wherever its current cell may be by then. An editor is left only after it was asked, before
//! anything moves.
class CellSession : public QObject
{
    Q_OBJECT

public:
    enum class State { Closed, Opening, Open, Leaving };
    //! Whether an editor that opens takes the keyboard; not where the program opens it while the user is elsewhere.
    enum class Keyboard { Take, Leave };

    //! The surface is the composite's grid: the editors lie in its viewport, and it has the keyboard between two of
    //! them.
    explicit CellSession(QAbstractScrollArea *surface);

    //! An editor that may be opened from now on.
    void add(CellEditor *editor);
    //! Makes one around a control of its own, which is a hidden part of the surface under its name.
    template <class Editor, class Control>
    Editor *make(const char *name)
    {
        auto *control = new Control(room());
        control->setObjectName(QString::fromLatin1(name));
        auto *editor = new Editor(control);
        add(editor);
        return editor;
    }

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool isOpen() const { return m_state == State::Open || m_state == State::Leaving; }
    //! The editor that is open, null where none is.
    [[nodiscard]] CellEditor *editor() const { return isOpen() ? m_editor.data() : nullptr; }
    //! The cell that is edited.
    [[nodiscard]] CellAddress cell() const { return m_cell; }
    //! What keeps the keyboard when the composite is given it again, in the middle of typing.
    [[nodiscard]] QWidget *keeper() const { return m_state == State::Open ? m_editor->box() : nullptr; }
    //! Whether the user, or the program through the editor, has changed anything since it was opened.
    [[nodiscard]] bool isTouched() const { return m_isTouched; }
    //! Whether the editor has erased what it refused, since nobody can correct it any more. The cell still holds it.
    [[nodiscard]] bool hasErased() const;

    //! Where the keyboard is when an editor is asked for, which may have to wait for a list.
    [[nodiscard]] QPointer<QWidget> keyboardPlace() const;
    //! Whether it is to be opened after that. A user who has gone to another control meanwhile is not called back.
    [[nodiscard]] bool isStillWanted(Keyboard keyboard, const QWidget *before) const;
    //! Places, fills and shows an editor that has been set up; no other may be open. Whoever opens it must look whether
    //! it is still open afterwards, since a host hears that its control was entered.
    void open(CellEditor *editor, CellAddress cell, const EditorBox &place, const CellContents &contents,
              Keyboard keyboard);
    //! What the editor made of the contents it was filled with, or held when it last reported.
    [[nodiscard]] const QString &text() const { return m_seen.text; }
    //! Fills the open editor anew, for a program that has written into its cell. The caret stays where the user types.
    void refill(const CellContents &contents);
    //! Follows the cell when the surface scrolls or is laid out anew.
    void place(const EditorBox &place);
    //! Follows the cell when rows above it come or go.
    void moveTo(CellAddress cell) { m_cell = cell; }

    //! Ends the editing as the user does by moving on: the editor checks and formats what it holds, with its message;
    //! what is new is reported, and the editor closes. False when it keeps the user; true when none is open.
    [[nodiscard]] bool leave();
    //! The same where the user moves on by it, which is void once the program has hidden or disabled the composite
    //! under the message.
    [[nodiscard]] bool leaveToGoOn();
    //! Ends it when the user has left already, and the editor has been asked.
    void finish();
    //! Ends it where nobody is asked, because the program goes on: what was typed is taken over as leaving would take
    //! it, as far as that goes without a word.
    void finishUnasked();
    //! The first half of that: the editor stays open.
    void complete();
    //! Ends it at once: nothing more is asked, nothing reported.
    void abandon();

Q_SIGNALS:
    //! The open editor's text or value is another one than before.
    void Edited();
    //! The editing ends, and the editor is still there to be read.
    void Closing();
    void KeyDown(int &KeyCode, int &Shift);
    void ChooserAsked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Seen {
        QString text;
        QVariant value;
        bool operator==(const Seen &) const = default;
    };

    [[nodiscard]] QWidget *room() const;
    [[nodiscard]] bool passOn(QKeyEvent *event) const;
    [[nodiscard]] bool hears(const CellEditor *editor) const { return m_state == State::Open && editor == m_editor; }
    [[nodiscard]] Seen look() const { return {m_editor->text(), m_editor->value()}; }
    void showCell(const QWidget *control);
    //! Whether the keyboard is in the editor, a button of it included.
    [[nodiscard]] bool hasKeyboard() const;
    //! Titles and scroll bars of the surface leave the keyboard to it, so that one may drag a line and type on.
    void setKeyboardBeside(QWidget *taker);
    //! Whether somebody could correct in the editor what it refuses.
    [[nodiscard]] bool canBeCorrected() const;
    //! Reports what the editor holds, if that is new.
    void report();
    void close();

    QAbstractScrollArea *m_surface;
    QPointer<CellEditor> m_editor;
    CellAddress m_cell;
    Seen m_seen;
    int m_keyDown = 0; //!< the toolkit's key that was pressed in an editor last, and not yet released
    bool m_isTouched = false;
    State m_state = State::Closed;
};

} // namespace kor
