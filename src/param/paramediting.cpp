// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramediting.h"

#include "cells/celleditors.h"
#include "constituents/flexgrid/flexgrid.h"
#include "constituents/keycodes.h"
#include "constituents/textbox.h"
#include "constituents/twips.h"
#include "lists/dictionarysource.h"
#include "param/paramkeys.h"

#include <KorDaoUC/korclick.h>
#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/kordate.h>
#include <KorDaoUC/kornumber.h>
#include <KorDaoUC/variant.h>

#include <algorithm>
#include <utility>

namespace kor {

ParamEditing::ParamEditing(FlexGrid *grid, ParamValues &values, ParamEditingHost &host)
    : m_grid(grid),
      m_values(values),
      m_host(host),
      m_session(grid),
      m_typing(grid, m_session, [this] { return openToType(); }),
      m_textEditor(m_session.make<TextCellEditor, TextBox>("TxtBox")),
      m_numberEditor(m_session.make<NumberCellEditor, KorNumber>("KorNum")),
      m_dateEditor(m_session.make<DateCellEditor, KorDate>("KorDat")),
      m_comboEditor(m_session.make<ComboCellEditor, KorCombo>("KorCmb")),
      m_clickEditor(m_session.make<ClickCellEditor, KorClick>("KorClk"))
{
    combo()->setBlockUpDown(true); // the arrows are the sheet's
    date()->setBlockUpDown(true);
    click()->setBlockUpDown(true);
    click()->setLocked(true); // its text is the program's
    connect(&m_session, &CellSession::Edited, this, &ParamEditing::writeBack);
    connect(&m_session, &CellSession::Closing, this, &ParamEditing::closing);
    connect(&m_session, &CellSession::KeyDown, this, &ParamEditing::keyDown);
    connect(&m_session, &CellSession::ChooserAsked, this, [this] { m_host.chooserAsked(); });
    connect(combo(), &KorCombo::Refreshed, this, [this] { m_isListRead = m_canReadList; });
    connect(grid, &CellView::cellsMoved, this, &ParamEditing::follow);
}

KorClick *ParamEditing::click() const { return static_cast<KorClick *>(m_clickEditor->control()); }
KorCombo *ParamEditing::combo() const { return static_cast<KorCombo *>(m_comboEditor->control()); }
KorDate *ParamEditing::date() const { return static_cast<KorDate *>(m_dateEditor->control()); }

QString ParamEditing::dictionary() const
{
    return m_session.editor() == m_comboEditor ? combo()->Slownik() : QString();
}

// --- what the record says

QString ParamEditing::text(int row, ParamColumn::Code column) const { return m_grid->TextMatrix(row, column); }
bool ParamEditing::holdsParameter(int row) const { return row > 0 && !text(row, ParamColumn::Name).isEmpty(); }
ParamKind ParamEditing::kindOf(int row) const { return paramKind(text(row, ParamColumn::ControlType)); }

CellEditor *ParamEditing::editorOf(ParamKind kind) const
{
    switch (kind) {
    case ParamKind::Text: return m_textEditor;
    case ParamKind::Number: return m_numberEditor;
    case ParamKind::Date: return m_dateEditor;
    case ParamKind::Combo: return m_comboEditor;
    case ParamKind::Click: return m_clickEditor;
    case ParamKind::None: break;
    }
    return nullptr;
}

int ParamEditing::editorHeight() const
{
    int height = 0;
    for (const CellEditor *editor : {m_textEditor, m_numberEditor, m_dateEditor, m_comboEditor, m_clickEditor})
        height = std::max(height, editor->control()->sizeHint().height());
    return height;
}

CellSetup ParamEditing::setupOf(int row) const
{
    CellSetup setup;
    switch (kindOf(row)) {
    case ParamKind::Number: setup.mask = numberMask(text(row, ParamColumn::NumFormat)); [[fallthrough]];
    case ParamKind::Text: setup.maxLength = lengthLimit(text(row, ParamColumn::TextLength)); break;
    case ParamKind::Combo:
        // Kept: without a source the list of the row before stays
        if (const QString source = text(row, ParamColumn::ComboSource); !source.isEmpty()) {
            const QString nullName = text(row, ParamColumn::ComboNullName);
            setup.list = CellList{source, text(row, ParamColumn::Dictionary),
                                  nullName.isEmpty() ? std::nullopt : std::optional(nullName)};
        }
        break;
    case ParamKind::Date:
    case ParamKind::Click:
    case ParamKind::None: break;
    }
    return setup;
}

//! Reads a list, too, so that anything may happen in between.
bool ParamEditing::prepare(CellEditor *editor, int row)
{
    const CellSetup setup = setupOf(row);
    const SourceKind kind = setup.list ? sourceKind(setup.list->source) : SourceKind::Other;
    m_canReadList = kind == SourceKind::List || (kind == SourceKind::Select && m_database.get());
    m_isListRead = false;
    return editor->setUp(setup);
}

CellContents ParamEditing::contentsOf(int row, const QString &clickText) const
{
    const QVariant value = m_values.at(row);
    switch (kindOf(row)) {
    case ParamKind::Text: return {textShown(value, Locale::systemDefault()), std::nullopt};
    case ParamKind::Click: return {clickText, value};
    default: return {QString(), value};
    }
}

QString ParamEditing::written(int row, const QString &clickText)
{
    CellEditor *editor = editorOf(kindOf(row));
    if (!editor)
        return {};
    const CellContents contents = contentsOf(row, clickText);
    if (editor == m_textEditor)
        return contents.text;
    const QPointer<ParamEditing> self = this;
    editor->control()->resize(m_grid->cellRect(0, ParamColumn::Shown).width(), editor->control()->height());
    if (!prepare(editor, row)) // by somebody who has opened a row meanwhile
        return self ? textShown(contents.value.value_or(null()), Locale::systemDefault()) : QString();
    editor->fill(contents);
    return self ? editor->text() : QString();
}

// --- opening and closing

EditorBox ParamEditing::placeOf(int row) const
{
    const QRect rect = m_grid->cellRect(row, ParamColumn::Shown);
    const QPoint corner = m_grid->viewport()->mapTo(m_grid, rect.topLeft());
    const CellBox box{toTwipsX(m_grid, corner.x()).rounded(), toTwipsY(m_grid, corner.y()).rounded(),
                      toTwipsX(m_grid, rect.width()).rounded(), toTwipsY(m_grid, rect.height()).rounded()};
    return placeOver(box, {static_cast<float>(toTwipsX(m_grid, m_grid->x()).count()),
                           static_cast<float>(toTwipsY(m_grid, m_grid->y()).count())});
}

bool ParamEditing::open(CellSession::Keyboard keyboard)
{
    const QPointer<ParamEditing> self = this;
    if (!m_session.leave() || !self)
        return false;
    const int row = m_grid->Row();
    const auto isHere = [&] {
        return self && m_session.state() == CellSession::State::Closed && m_grid->Row() == row &&
               m_grid->Col() == ParamColumn::Shown && holdsParameter(row);
    };
    CellEditor *editor = isHere() ? editorOf(kindOf(row)) : nullptr;
    if (!editor)
        return false;
    m_grid->makeVisible(row, ParamColumn::Shown);
    const auto asker = m_session.keyboardPlace();
    const bool isReady = prepare(editor, row);
    if (!isReady || !isHere() || !m_session.isStillWanted(keyboard, asker))
        return self && m_session.isOpen(); // a database that waits lets anything happen
    m_before = {text(row, ParamColumn::Shown), m_values.at(row)};
    editor->setName(text(row, ParamColumn::Name));
    m_session.open(editor, {row, ParamColumn::Shown}, placeOf(row), contentsOf(row, m_before.shown), keyboard);
    return self && m_session.isOpen();
}

bool ParamEditing::openToType()
{
    if (!m_host.mayEdit())
        return false;
    // While a list is waited for, the user may go on in another row, which this key is not meant for.
    const QPointer<ParamEditing> self = this;
    const int row = m_grid->Row();
    return open(CellSession::Keyboard::Take) && self && m_session.cell().row == row;
}

void ParamEditing::goTo(int row)
{
    if (m_grid->setCurrentCell(row, ParamColumn::Shown))
        m_grid->makeVisible(row, ParamColumn::Shown);
}

void ParamEditing::cancel()
{
    if (!m_session.isOpen())
        return;
    const QPointer<ParamEditing> self = this;
    const int row = m_session.cell().row;
    m_session.abandon();
    if (!self || row >= m_grid->Rows())
        return;
    m_values.set(row, m_before.value);
    m_grid->setTextMatrix(row, ParamColumn::Shown, m_before.shown);
}

// Under a message about its value an editor cannot be completed, nor asked again: it is read as it stands.

void ParamEditing::hide()
{
    const QPointer<ParamEditing> self = this;
    if (m_session.state() == CellSession::State::Leaving)
        writeBack();
    else
        m_session.complete();
    if (self)
        m_session.abandon();
}

void ParamEditing::finishUnasked()
{
    if (m_session.state() == CellSession::State::Leaving)
        hide();
    else
        m_session.finishUnasked();
}

void ParamEditing::follow()
{
    if (m_session.isOpen() && m_session.cell().row < m_grid->Rows())
        m_session.place(placeOf(m_session.cell().row));
}

// --- writing back

//! What a list shows that was not read for its parameter, because there is no database or it has failed, is nobody's
//! choice: the parameter keeps what it has until the user chooses.
bool ParamEditing::hasSomethingToSay() const
{
    if (m_session.editor() != m_comboEditor)
        return true;
    return combo()->ListIndex() >= 0 && (m_isListRead || m_session.isTouched());
}

void ParamEditing::writeBack()
{
    const int row = m_session.cell().row;
    const CellEditor *editor = m_session.editor();
    if (!editor || row >= m_grid->Rows() || !hasSomethingToSay())
        return;
    m_values.set(row, editor->value());
    m_grid->setTextMatrix(row, ParamColumn::Shown, editor->text());
}

void ParamEditing::closing()
{
    const int row = m_session.cell().row;
    if (!m_session.hasErased())
        writeBack();
    else if (row < m_grid->Rows())
        m_values.set(row, null()); // the text stays, to be found
}

void ParamEditing::valueReplaced(int row)
{
    if (!m_session.isOpen() || m_session.cell().row != row)
        return;
    m_before.value = m_values.at(row); // Escape takes the user's typing back, not what the program wrote meanwhile
    m_session.refill(contentsOf(row, text(row, ParamColumn::Shown)));
}

// --- keys

void ParamEditing::keyDown(int &code, int &shift)
{
    const QPointer<ParamEditing> self = this;
    if (m_session.editor() == m_clickEditor && clearsChoice(code)) {
        click()->setValue(null());
        click()->setText(QString());
        if (self)
            writeBack(); // also where only the hidden value is another one
        return;
    }
    const ParamPlace place{m_grid->Row(), m_grid->Rows(), m_grid->wholeRows()};
    const ParamEnd end = endOfKey(code, shift);
    const auto row = rowAfterKey(code, shift, place);
    if (end == ParamEnd::None && !row)
        return;
    code = Key::None;
    if (end == ParamEnd::GiveUp) {
        cancel();
    } else if (end == ParamEnd::Take) {
        (void)m_session.leave();
    } else if (*row != place.row && m_session.leaveToGoOn()) {
        if (*row < m_grid->Rows())
            goTo(*row);
    }
}

} // namespace kor
