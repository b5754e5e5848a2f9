// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cells/celleditors.h"
#include "cells/cellsession.h"
#include "constituents/keycodes.h"
#include "constituents/textbox.h"

#include <KorDaoUC/errorhandler.h>
#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/kordate.h>
#include <KorDaoUC/kornumber.h>

#include <QtCore/QStringList>
#include <QtWidgets/QAbstractScrollArea>

#include <array>

namespace kor::test {

//! The plainest of composites: a column of five cells, each with an editor of its own kind.
class CellHost : public QWidget
{
public:
    enum Row { Text, Price, Quantity, Day, Unit }; // price and quantity share their editor

    CellHost()
    {
        setFocusProxy(surface);
        surface->setFocusPolicy(Qt::StrongFocus);
        number->setCheckRange(true);
        number->setMaxValue(100);
        combo->setSQL(QStringLiteral("LIST S;sztuka|K;karton|P;paleta"));
        combo->Refresh();
        for (CellEditor *editor : {editors[Text], numberEditor, editors[Day], editors[Unit]})
            session.add(editor);
        connect(&session, &CellSession::Edited, this, [this] { copyBack(); });
        connect(&session, &CellSession::KeyDown, this, [this](int &code, int &) { move(code); });
    }

    void resizeEvent(QResizeEvent *) override { surface->setGeometry(rect().adjusted(4, 4, -4, -4)); }

    void open(Row row, CellSession::Keyboard keyboard = CellSession::Keyboard::Take)
    {
        CellEditor *editor = editors.at(static_cast<std::size_t>(row));
        session.open(editor, {row, 1}, boxOf(row), {cells[row], std::nullopt}, keyboard);
    }

    //! Twips: rows of 450 and a column of 1800, from the surface's edge.
    [[nodiscard]] static EditorBox boxOf(int row) { return *placeInside({60, 450 * row, 1800, 450}, {60, 60}, {}); }

    void copyBack()
    {
        cells[session.cell().row] = session.editor()->text();
        log << QStringLiteral("%1=%2").arg(session.cell().row).arg(session.editor()->text());
        if (onEdited)
            onEdited();
    }

    void move(int &code)
    {
        const int row = session.cell().row + (code == Key::Down ? 1 : code == Key::Up ? -1 : 0);
        if (row == session.cell().row || row < Text || row > Unit)
            return;
        code = Key::None;
        if (session.leave())
            open(static_cast<Row>(row));
    }

    [[nodiscard]] QString taken() { return std::exchange(log, {}).join(u' '); }

    QAbstractScrollArea *surface = new QAbstractScrollArea(this);
    TextBox *text = new TextBox(surface->viewport());
    KorNumber *number = new KorNumber(surface->viewport());
    KorDate *date = new KorDate(surface->viewport());
    KorCombo *combo = new KorCombo(surface->viewport());
    CellEditor *const numberEditor = new NumberCellEditor(number);
    const std::array<CellEditor *, 5> editors{new TextCellEditor(text), numberEditor, numberEditor,
                                              new DateCellEditor(date), new ComboCellEditor(combo)};
    CellSession session{surface};
    QStringList cells{QStringLiteral("abc"), QString(), QStringLiteral("50"), QString(), QStringLiteral("karton")};
    QStringList log;
    std::function<void()> onEdited;
};

} // namespace kor::test
