// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/checkedentrymodel.h"

#include <algorithm>
#include <utility>

namespace kor {

void CheckedEntryModel::clear()
{
    m_checks.clear();
    m_checkedCount = 0;
    EntryModel::clear();
}

bool CheckedEntryModel::setChecked(int index, bool checked)
{
    if (index < 0 || index >= count() || isChecked(index) == checked)
        return false;
    const auto place = static_cast<std::size_t>(index);
    if (place >= m_checks.size())
        m_checks.resize(place + 1);
    m_checks[place] = checked;
    m_checkedCount += checked ? 1 : -1;
    return true;
}

void CheckedEntryModel::setChecked(std::vector<bool> checks)
{
    checks.resize(static_cast<std::size_t>(count()));
    const auto checked = static_cast<int>(std::count(checks.cbegin(), checks.cend(), true));
    if (checked == 0 && m_checkedCount == 0)
        return;
    m_checks = std::move(checks);
    m_checkedCount = checked;
    announce(0, count() - 1);
}

void CheckedEntryModel::announce(int first, int last)
{
    Q_EMIT dataChanged(index(first), index(last), {Qt::CheckStateRole});
}

QVariant CheckedEntryModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::CheckStateRole && index.isValid())
        return static_cast<int>(isChecked(index.row()) ? Qt::Checked : Qt::Unchecked);
    return EntryModel::data(index, role);
}

Qt::ItemFlags CheckedEntryModel::flags(const QModelIndex &index) const
{
    return EntryModel::flags(index) | Qt::ItemIsUserCheckable;
}

bool CheckedEntryModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid())
        return EntryModel::setData(index, value, role);
    if (setChecked(index.row(), value.value<Qt::CheckState>() == Qt::Checked)) {
        announce(index.row(), index.row());
        Q_EMIT toggled(index.row());
    }
    return true;
}

} // namespace kor
