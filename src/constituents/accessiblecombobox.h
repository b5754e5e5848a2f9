// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/accessiblefield.h"

namespace kor {

class ComboBox;

//! The drop-down list. The toolkit's own would make the list of each field to ask whether it is open, and on some
//! systems tells the entry for the name. The entry is a text as well: that is where some readers look for it.
class AccessibleComboBox final : public AccessibleField, public QAccessibleTextInterface
{
public:
    explicit AccessibleComboBox(ComboBox *box);

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    [[nodiscard]] QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType kind) override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &name) override;

    void selection(int, int *start, int *end) const override { *start = *end = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint &) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    [[nodiscard]] QString attributes(int, int *start, int *end) const override;

private:
    ComboBox *m_box;
};

} // namespace kor
