// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/accessibletable.h"

class QTableView;

namespace kor {

class MonthView;

//! The days of a calendar, each read as a whole date and not as its number in a month that one may have turned.
class AccessibleMonth final : public AccessibleTable
{
public:
    AccessibleMonth(MonthView *month, QTableView *days);

    [[nodiscard]] bool hasTitles() const override { return true; }
    [[nodiscard]] QAccessible::Role cellRole(int row, int column) const override;
    [[nodiscard]] QAccessible::State cellState(int row, int column) const override;
    [[nodiscard]] QString cellText(int row, int column, QAccessible::Text kind) const override;
    [[nodiscard]] QString columnDescription(int column) const override;
    [[nodiscard]] QString rowDescription(int row) const override;
    void actOnCell(int row, int column, const QString &action) override;

private:
    MonthView *m_month;
};

} // namespace kor
