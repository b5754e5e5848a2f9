// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cells/celleditor.h"

class KorClick;
class KorCombo;
class KorDate;
class KorNumber;

namespace kor {

class MultiLineTextBox;
class TextBox;

//! Edits a text of one line.
class TextCellEditor final : public CellEditor
{
public:
    explicit TextCellEditor(TextBox *box);
    [[nodiscard]] QString text() const override;
    //! The text: a text box has no other value.
    [[nodiscard]] QVariant value() const override { return text(); }
    [[nodiscard]] bool hasUseFor(int arrowKey) const override;

protected:
    void applySetup(const CellSetup &setup) override;
    void applyContents(const CellContents &contents) override;

private:
    TextBox *m_box;
};

//! Edits a text that runs over several lines. The caret starts behind it, so that the first key replaces nothing.
class MultiLineCellEditor final : public CellEditor
{
public:
    explicit MultiLineCellEditor(MultiLineTextBox *box);
    [[nodiscard]] QString text() const override;
    [[nodiscard]] QVariant value() const override { return text(); }
    [[nodiscard]] bool hasUseFor(int arrowKey) const override;

protected:
    void applySetup(const CellSetup &setup) override;
    void applyContents(const CellContents &contents) override;

private:
    MultiLineTextBox *m_box;
};

class NumberCellEditor final : public CellEditor
{
public:
    //! In too narrow a cell the control shows a run of "#", but offers the number itself to whoever comes to edit it.
    explicit NumberCellEditor(KorNumber *number);
    bool eventFilter(QObject *watched, QEvent *event) override;
    void complete() override;
    //! The number as the mask writes it, where the control is too narrow and shows a run of "#".
    [[nodiscard]] QString text() const override;
    [[nodiscard]] QVariant value() const override;
    [[nodiscard]] bool hasUseFor(int arrowKey) const override;

protected:
    void applySetup(const CellSetup &setup) override;
    void applyContents(const CellContents &contents) override;

private:
    KorNumber *m_number;
};

class DateCellEditor final : public CellEditor
{
public:
    explicit DateCellEditor(KorDate *date);
    //! A date is read when its field is left; until then only the text is new.
    void complete() override;
    [[nodiscard]] QString text() const override;
    [[nodiscard]] QVariant value() const override;
    [[nodiscard]] bool hasUseFor(int arrowKey) const override;

protected:
    void applySetup(const CellSetup &) override {}
    void applyContents(const CellContents &contents) override;

private:
    KorDate *m_date;
};

//! The list is read anew with each set-up that names one.
class ComboCellEditor final : public CellEditor
{
public:
    explicit ComboCellEditor(KorCombo *combo);
    void reread() override;
    [[nodiscard]] QString text() const override;
    [[nodiscard]] QVariant value() const override;
    [[nodiscard]] bool hasOwnHeight() const override { return true; }
    [[nodiscard]] bool hasUseFor(int) const override { return false; }

protected:
    void applySetup(const CellSetup &setup) override;
    void applyContents(const CellContents &contents) override;

private:
    KorCombo *m_combo;
};

//! Filled by a text alone, the hidden value is Null until the host has chosen one.
class ClickCellEditor final : public CellEditor
{
public:
    explicit ClickCellEditor(KorClick *click);
    [[nodiscard]] QString text() const override;
    [[nodiscard]] QVariant value() const override;
    [[nodiscard]] bool hasUseFor(int arrowKey) const override;

protected:
    void applySetup(const CellSetup &) override {}
    void applyContents(const CellContents &contents) override;

private:
    KorClick *m_click;
};

} // namespace kor
