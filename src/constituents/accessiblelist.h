// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/accessibletable.h"

namespace kor {

class ListBox;

//! The list and the check list, of one column. Selecting and checking raise what the user's own raise.
class AccessibleList final : public AccessibleTable
{
public:
    explicit AccessibleList(ListBox *box);

    [[nodiscard]] QAccessible::Role cellRole(int, int) const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State cellState(int row, int column) const override;
    [[nodiscard]] QStringList cellActions(int row, int column) const override;
    void actOnCell(int row, int column, const QString &action) override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    bool selectRow(int row) override;

private:
    ListBox *m_box;
};

} // namespace kor
