// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/checklistbox.h"

#include "constituents/checkedentrymodel.h"

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtWidgets/QStyle>

#include <utility>

namespace kor {

CheckListBox::CheckListBox(QWidget *parent) : CheckListBox(new CheckedEntryModel, parent) {}

CheckListBox::CheckListBox(CheckedEntryModel *entries, QWidget *parent) : ListBox(entries, parent), m_checks(entries)
{
    connect(entries, &CheckedEntryModel::toggled, this, &CheckListBox::raiseItemCheck);
}

void CheckListBox::Clear()
{
    ++m_clearings;
    m_pressedBox = -1;
    ListBox::Clear();
}

// --- checks

bool CheckListBox::Selected(int index) const
{
    if (index < 0 || index >= m_checks->count())
        throw RunTimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return m_checks->isChecked(index);
}

void CheckListBox::setSelected(int index, bool checked)
{
    if (index < 0 || index >= ListCount())
        throw RunTimeError(ErrorNumber::InvalidPropertyArrayIndex);
    if (!m_checks->setChecked(index, checked))
        return;
    m_checks->announce(index, index);
    raiseItemCheck(index);
}

void CheckListBox::setSelected(const std::vector<bool> &checks)
{
    const QPointer<CheckListBox> self = this;
    const int clearings = m_clearings;
    int first = -1;
    int last = -1;
    for (int i = 0; i < ListCount(); ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (!m_checks->setChecked(i, place < checks.size() && checks[place]))
            continue;
        first = first < 0 ? i : first;
        last = i;
        raiseItemCheck(i);
        if (!self || m_clearings != clearings)
            return;
    }
    if (last >= 0)
        m_checks->announce(first, last);
}

void CheckListBox::setSelectedSilently(std::vector<bool> checks) { m_checks->setChecked(std::move(checks)); }

int CheckListBox::SelCount() const { return m_checks->checkedCount(); }

void CheckListBox::raiseItemCheck(int index)
{
    if (QAccessible::isActive()) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(this, changed);
        event.setChild(index);
        QAccessible::updateAccessibility(&event);
    }
    Q_EMIT ItemCheck(index);
}

// --- keys and mouse

bool CheckListBox::pressSpace()
{
    if (const int index = ListIndex(); index >= 0)
        setSelected(index, !m_checks->isChecked(index));
    return true;
}

void CheckListBox::pressedAt(const QPoint &place) { m_pressedBox = boxAt(place); }

void CheckListBox::releasedAt(const QPoint &place)
{
    const int pressed = std::exchange(m_pressedBox, -1);
    if (pressed >= 0 && boxAt(place) == pressed)
        setSelected(pressed, !m_checks->isChecked(pressed));
}

QStyleOptionViewItem CheckListBox::entryOption() const
{
    QStyleOptionViewItem option = ListBox::entryOption();
    option.features |= QStyleOptionViewItem::HasCheckIndicator;
    return option;
}

int CheckListBox::boxAt(const QPoint &place) const
{
    const QModelIndex index = indexAt(place);
    if (!index.isValid())
        return -1;
    QStyleOptionViewItem option = entryOption();
    option.rect = visualRect(index);
    QRect box = style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this);
    box.setTop(option.rect.top()); // boxes are small; what is above and below them belongs to them
    box.setBottom(option.rect.bottom());
    return box.contains(place) ? index.row() : -1;
}

} // namespace kor
