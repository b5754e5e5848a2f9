// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/entrymodel.h"

#include "constituents/typeahead.h"

#include <utility>

namespace kor {

void EntryModel::append(const QString &name)
{
    beginInsertRows({}, count(), count());
    m_names.append(name);
    endInsertRows();
}

void EntryModel::append(QStringList names)
{
    if (names.isEmpty())
        return;
    beginInsertRows({}, count(), count() + static_cast<int>(names.size()) - 1);
    if (m_names.isEmpty())
        m_names.swap(names);
    else
        m_names.append(std::move(names));
    endInsertRows();
}

void EntryModel::clear()
{
    if (m_names.isEmpty())
        return;
    beginResetModel();
    m_names.clear();
    endResetModel();
}

int EntryModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : count(); }

QVariant EntryModel::data(const QModelIndex &index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    return isText && index.isValid() && index.row() < count() ? QVariant(m_names[index.row()]) : QVariant();
}

QModelIndexList EntryModel::match(const QModelIndex &start, int role, const QVariant &value, int hits,
                                  Qt::MatchFlags flags) const
{
    const bool isTypeAhead = role == Qt::DisplayRole && (flags & Qt::MatchTypeMask) == Qt::MatchStartsWith &&
                             !flags.testFlag(Qt::MatchCaseSensitive);
    if (!isTypeAhead || !start.isValid())
        return QAbstractListModel::match(start, role, value, hits, flags);

    const QString typed = value.value<QString>();
    const bool wraps = flags.testFlag(Qt::MatchWrap);
    QModelIndexList found;
    for (int step = 0; step < count() && (hits < 0 || found.size() < hits); ++step) {
        const int row = start.row() + step;
        if (row >= count() && !wraps)
            break;
        if (beginsAsTyped(m_names[row % count()], typed))
            found.append(index(row % count()));
    }
    return found;
}

} // namespace kor
