// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QStringList>

namespace kor {

//! The names that a list shows. Any number of them is added or removed in one step, with one notification.
//!
//! A prefix search through match(), as the toolkit's views do while the user types, finds by beginsAsTyped().
class EntryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void append(const QString &name);
    void append(QStringList names);
    virtual void clear();

    [[nodiscard]] int count() const { return static_cast<int>(m_names.size()); }
    //! The name at a place, "" where there is none.
    [[nodiscard]] QString name(int index) const { return m_names.value(index); }
    [[nodiscard]] const QStringList &names() const { return m_names; }
    //! The first entry of exactly this name, -1 when there is none.
    [[nodiscard]] int indexOf(const QString &name) const { return static_cast<int>(m_names.indexOf(name)); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits,
                                        Qt::MatchFlags flags) const override;

private:
    QStringList m_names;
};

} // namespace kor
