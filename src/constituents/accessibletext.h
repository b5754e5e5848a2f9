// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/accessiblefield.h"

namespace kor {

class MultiLineTextBox;
class SpinButtons;
class TextBox;

//! A field that shows a text, with a caret and a selection where it has them. What a tool writes into it is typed: a
//! locked field keeps its text, and each character is judged like one from the keyboard.
class AccessibleText : public AccessibleField, public QAccessibleTextInterface, public QAccessibleEditableTextInterface
{
public:
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    void *interface_cast(QAccessible::InterfaceType kind) override;
    [[nodiscard]] int childCount() const override { return 0; }

    void addSelection(int start, int end) override { select(start, end); }
    void setSelection(int, int start, int end) override { select(start, end); }
    void removeSelection(int) override { setCursorPosition(cursorPosition()); }
    [[nodiscard]] int selectionCount() const override;
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] int characterCount() const override { return static_cast<int>(shownText().size()); }
    void scrollToSubstring(int start, int) override { setCursorPosition(start); }
    [[nodiscard]] QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override { type(start, end - start, QString()); }
    void insertText(int offset, const QString &text) override { type(offset, 0, text); }
    void replaceText(int start, int end, const QString &text) override { type(start, end - start, text); }

protected:
    using AccessibleField::AccessibleField;

    [[nodiscard]] virtual QString shownText() const = 0;
    virtual void type(int start, int length, const QString &text) = 0;
    virtual void select(int start, int end) = 0;
};

//! The one-line box. Beside two arrows it is a spin box, whose value they step.
class AccessibleTextBox final : public AccessibleText, public QAccessibleValueInterface
{
public:
    explicit AccessibleTextBox(TextBox *box);

    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType kind) override;

    void selection(int, int *start, int *end) const override;
    [[nodiscard]] int cursorPosition() const override;
    void setCursorPosition(int place) override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint &point) const override;

    [[nodiscard]] QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    [[nodiscard]] QVariant maximumValue() const override;
    [[nodiscard]] QVariant minimumValue() const override;
    [[nodiscard]] QVariant minimumStepSize() const override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &name) override;

protected:
    [[nodiscard]] QString shownText() const override;
    void type(int start, int length, const QString &text) override;
    void select(int start, int end) override;

private:
    //! The arrows beside it; null for a plain box.
    [[nodiscard]] SpinButtons *spin() const;

    TextBox *m_box;
};

class AccessibleMultiLine final : public AccessibleText
{
public:
    explicit AccessibleMultiLine(MultiLineTextBox *box);

    [[nodiscard]] QAccessible::State state() const override;

    void selection(int, int *start, int *end) const override;
    [[nodiscard]] int cursorPosition() const override;
    void setCursorPosition(int place) override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint &point) const override;

protected:
    [[nodiscard]] QString shownText() const override;
    void type(int start, int length, const QString &text) override;
    void select(int start, int end) override;

private:
    MultiLineTextBox *m_box;
};

} // namespace kor
