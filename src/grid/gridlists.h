// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "lists/databasereference.h"
#include "lists/dictionary.h"

#include <KorDaoUC/locale.h>

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <map>
#include <memory>
#include <optional>

namespace kor {

//! Keys and names of the lists that columns draw on, for programs that read and write cells by key. A list is read when
//! it is first asked for, and again when it may have changed. A host's own database may run an event loop while it is
//! read, in which the grid may end: whoever asks for a list looks afterwards whether it is still there.
class GridLists
{
public:
    //! The host's database, as the drop-down list takes it.
    DatabaseReference &database() { return m_database; }

    //! The name of a key in the list that a source gives; nothing where the list has no such key.
    [[nodiscard]] std::optional<QString> nameOf(const QVariant &key, const QString &source);
    //! The first key of a name, in its own type; nothing where the list has no such name.
    [[nodiscard]] std::optional<QVariant> keyOf(const QString &name, const QString &source);
    //! The key, in the type that the list has it in, that a text stands for.
    [[nodiscard]] std::optional<QVariant> keyWritten(const QString &text, const QString &source);

    void forget() { m_lists = std::make_shared<Lists>(); }
    void forget(const QString &source) { m_lists->erase(source); }

private:
    struct List {
        Dictionary keys{KeyEquality::Loose};
        QStringList names;
        QHash<QString, int> places; //!< the first one of each name
    };
    using Lists = std::map<QString, std::shared_ptr<const List>>; // by source
    [[nodiscard]] std::shared_ptr<const List> list(QString source);

    DatabaseReference m_database;
    std::shared_ptr<Lists> m_lists = std::make_shared<Lists>();
};

} // namespace kor
