// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/celleditors.h"

#include "constituents/keycodes.h"
#include "constituents/multilinetextbox.h"
#include "constituents/textbox.h"
#include "number/numberrules.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/format.h>
#include <KorDaoUC/korclick.h>
#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/kordate.h>
#include <KorDaoUC/kornumber.h>
#include <KorDaoUC/variant.h>

#include <QtGui/QTextCursor>
#include <QtWidgets/QLineEdit>

namespace kor {

namespace {

//! Whether an arrow still moves the caret of a line, or takes a selection back.
bool movesCaret(const QLineEdit &line, int arrowKey)
{
    const bool isMirrored = line.isRightToLeft();
    if (arrowKey == (isMirrored ? Key::Right : Key::Left))
        return line.hasSelectedText() || line.cursorPosition() > 0;
    if (arrowKey == (isMirrored ? Key::Left : Key::Right))
        return line.hasSelectedText() || line.cursorPosition() < line.text().size();
    return false;
}

bool movesCaret(const CellEditor &editor, int arrowKey)
{
    const auto *line = qobject_cast<const QLineEdit *>(editor.box());
    return line && movesCaret(*line, arrowKey);
}

} // namespace

TextCellEditor::TextCellEditor(TextBox *box) : CellEditor(box), m_box(box)
{
    connect(box, &TextBox::Change, this, &TextCellEditor::controlChanged);
    connect(box, &TextBox::KeyDown, this, &CellEditor::KeyDown);
}

QString TextCellEditor::text() const { return m_box->text(); }
bool TextCellEditor::hasUseFor(int arrowKey) const { return movesCaret(*m_box, arrowKey); }

void TextCellEditor::applySetup(const CellSetup &setup)
{
    if (setup.maxLength)
        m_box->setMaxLength(*setup.maxLength);
}

void TextCellEditor::applyContents(const CellContents &contents) { m_box->setProgramText(contents.text); }

MultiLineCellEditor::MultiLineCellEditor(MultiLineTextBox *box) : CellEditor(box), m_box(box)
{
    connect(box, &MultiLineTextBox::Change, this, &MultiLineCellEditor::controlChanged);
    connect(box, &MultiLineTextBox::KeyDown, this, &CellEditor::KeyDown);
}

QString MultiLineCellEditor::text() const { return m_box->Text(); }

bool MultiLineCellEditor::hasUseFor(int arrowKey) const
{
    QTextCursor caret = m_box->textCursor();
    if (caret.hasSelection())
        return true;
    switch (arrowKey) {
    case Key::Up: return caret.movePosition(QTextCursor::Up);
    case Key::Down: return caret.movePosition(QTextCursor::Down);
    case Key::Left: return caret.movePosition(QTextCursor::Left);
    case Key::Right: return caret.movePosition(QTextCursor::Right);
    default: return false;
    }
}

void MultiLineCellEditor::applySetup(const CellSetup &setup)
{
    if (setup.maxLength)
        m_box->setMaxLength(*setup.maxLength);
}

void MultiLineCellEditor::applyContents(const CellContents &contents)
{
    m_box->setProgramText(contents.text);
    m_box->moveCursor(QTextCursor::End);
}

NumberCellEditor::NumberCellEditor(KorNumber *number) : CellEditor(number), m_number(number)
{
    connect(number, &KorNumber::Change, this, &NumberCellEditor::controlChanged);
    connect(number, &KorNumber::KeyDown, this, &CellEditor::KeyDown);
    box()->installEventFilter(this);
}

bool NumberCellEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && isHashFill(m_number->Text()) && !isNull(value())) {
        const bool wasBlocked = m_number->BlockChange();
        m_number->setBlockChange(true); // the number is not to be read from its text
        const bool isHere = silently([this] { static_cast<TextBox *>(box())->setProgramText(text()); });
        if (isHere)
            m_number->setBlockChange(wasBlocked); // a window that comes to the front again enters no field anew
    }
    return CellEditor::eventFilter(watched, event);
}

QString NumberCellEditor::text() const
{
    const QString shown = m_number->Text();
    return isHashFill(shown) && !isNull(value()) ? Format(value(), m_number->MaskPicture()) : shown;
}

QVariant NumberCellEditor::value() const { return m_number->Value(); }

void NumberCellEditor::complete()
{
    if (!isHashFill(m_number->Text())) // which is no text to read a number from
        m_number->setText(m_number->Text());
}

bool NumberCellEditor::hasUseFor(int arrowKey) const { return movesCaret(*this, arrowKey); }

void NumberCellEditor::applySetup(const CellSetup &setup)
{
    if (setup.maxLength)
        m_number->setMaxLength(*setup.maxLength);
    if (setup.mask)
        m_number->setMaskPicture(*setup.mask);
}

void NumberCellEditor::applyContents(const CellContents &contents)
{
    const QPointer<KorNumber> number = m_number;
    number->setValue(null()); // a number of the cell before must not show through
    if (number && contents.value)
        number->setValue(*contents.value);
    else if (number)
        number->setText(contents.text);
}

DateCellEditor::DateCellEditor(KorDate *date) : CellEditor(date), m_date(date)
{
    connect(date, &KorDate::Change, this, &DateCellEditor::controlChanged);
    connect(date, &KorDate::KeyDown, this, &CellEditor::KeyDown);
}

QString DateCellEditor::text() const { return m_date->Text(); }
QVariant DateCellEditor::value() const { return m_date->Value(); }
bool DateCellEditor::hasUseFor(int arrowKey) const { return movesCaret(*this, arrowKey); }
void DateCellEditor::complete() { m_date->setText(m_date->Text()); }

void DateCellEditor::applyContents(const CellContents &contents)
{
    const QPointer<KorDate> date = m_date;
    date->setText(QString()); // what is no date leaves the text as it is
    if (date && contents.value)
        date->setValue(*contents.value);
    else if (date && !contents.text.isEmpty())
        date->setText(contents.text);
}

ComboCellEditor::ComboCellEditor(KorCombo *combo) : CellEditor(combo), m_combo(combo)
{
    connect(combo, &KorCombo::Click, this, &ComboCellEditor::controlChanged);
    connect(combo, &KorCombo::KeyDown, this, &CellEditor::KeyDown);
    combo->setRefreshedBy([this] { reread(); }); // which would choose the first entry in place of one that is gone
}

void ComboCellEditor::reread()
{
    const bool hadEntry = m_combo->ListIndex() >= 0;
    const QString name = m_combo->Text();
    const bool isRead = silently([&] {
        m_combo->setBlockClick(true);
        m_combo->Refresh();
    });
    if (!isRead)
        return;
    (void)silently([&] {
        if (!hadEntry || m_combo->Text() != name)
            m_combo->setListIndex(-1);
        m_combo->setBlockClick(false);
    });
    Q_EMIT Reread();
}

QString ComboCellEditor::text() const { return m_combo->Text(); }
QVariant ComboCellEditor::value() const { return m_combo->Value(); }

void ComboCellEditor::applySetup(const CellSetup &setup)
{
    if (!setup.list)
        return;
    const QPointer<KorCombo> combo = m_combo;
    combo->setBlockClick(true); // until it is filled
    combo->setCanBeNull(setup.list->nullName.has_value());
    combo->setNullString(setup.list->nullName.value_or(QString()));
    combo->setSQL(setup.list->source);
    combo->setSlownik(setup.list->dictionary);
    combo->Refresh();
}

void ComboCellEditor::applyContents(const CellContents &contents)
{
    const QPointer<KorCombo> combo = m_combo;
    combo->setBlockClick(true);
    if (contents.value)
        combo->setValue(*contents.value);
    else
        combo->setText(contents.text);
    if (!combo)
        return;
    // A name that the list does not have would become that of the first entry by being looked at.
    if (!contents.value && combo->Text() != contents.text)
        combo->setListIndex(-1);
    if (combo)
        combo->setBlockClick(false);
}

ClickCellEditor::ClickCellEditor(KorClick *click) : CellEditor(click), m_click(click)
{
    connect(click, &KorClick::Change, this, &ClickCellEditor::controlChanged);
    connect(click, &KorClick::KeyDown, this, &CellEditor::KeyDown);
    connect(click, &KorClick::Click, this, &CellEditor::ChooserAsked);
}

QString ClickCellEditor::text() const { return m_click->Text(); }
QVariant ClickCellEditor::value() const { return m_click->Value(); }
bool ClickCellEditor::hasUseFor(int arrowKey) const { return movesCaret(*this, arrowKey); }

void ClickCellEditor::applyContents(const CellContents &contents)
{
    const QPointer<KorClick> click = m_click;
    click->setValue(contents.value.value_or(null()));
    if (click)
        click->setText(contents.text);
}

} // namespace kor
