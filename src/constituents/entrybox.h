// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

namespace kor {

//! A constituent that shows names and has one of them selected, or none: the drop-down list and the list boxes.
class EntryBox
{
public:
    virtual ~EntryBox() = default;

    //! The place of the selected entry, -1 for none.
    [[nodiscard]] virtual int ListIndex() const = 0;
    //! Selects an entry, -1 none. Error 380 for an entry that does not exist; the old one then stays selected.
    virtual void setListIndex(int index) = 0;
    [[nodiscard]] virtual int ListCount() const = 0;
    //! The name of an entry, "" for one that does not exist.
    [[nodiscard]] virtual QString List(int index) const = 0;
    //! The first entry of exactly this name, -1 when there is none.
    [[nodiscard]] virtual int indexOf(const QString &name) const = 0;
    virtual void AddItem(const QString &name) = 0;
    virtual void AddItems(QStringList names) = 0;
    //! Removes all entries. Raises nothing.
    virtual void Clear() = 0;
};

} // namespace kor
