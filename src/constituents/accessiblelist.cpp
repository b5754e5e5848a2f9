// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/accessiblelist.h"

#include "constituents/checklistbox.h"
#include "constituents/errorguard.h"
#include "constituents/focustracker.h"

namespace kor {

AccessibleList::AccessibleList(ListBox *box) : AccessibleTable(box, QAccessible::List), m_box(box) {}

QString AccessibleList::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_box->List(m_box->ListIndex()) : AccessibleTable::text(kind);
}

QAccessible::State AccessibleList::cellState(int row, int column) const
{
    QAccessible::State state = AccessibleTable::cellState(row, column);
    if (const auto *checks = qobject_cast<const CheckListBox *>(m_box)) {
        state.checkable = true;
        state.checked = checks->Selected(row);
    }
    return state;
}

QStringList AccessibleList::cellActions(int row, int column) const
{
    QStringList names = AccessibleTable::cellActions(row, column);
    if (!names.isEmpty() && qobject_cast<const CheckListBox *>(m_box))
        names << QAccessibleActionInterface::toggleAction();
    return names;
}

void AccessibleList::actOnCell(int row, int, const QString &action)
{
    auto *checks = qobject_cast<CheckListBox *>(m_box);
    if (!checks || action != QAccessibleActionInterface::toggleAction()) {
        selectRow(row);
        return;
    }
    guarded(checks, [&] {
        if (FocusTracker::instance().giveKeyboard(checks) && row < checks->ListCount())
            checks->setSelected(row, !checks->Selected(row));
    });
}

bool AccessibleList::selectRow(int row)
{
    const QPointer<ListBox> box = m_box;
    guarded(box, [&] {
        if (row >= 0 && FocusTracker::instance().giveKeyboard(box) && row < box->ListCount())
            box->setListIndex(row);
    });
    return box && box->ListIndex() == row;
}

} // namespace kor
