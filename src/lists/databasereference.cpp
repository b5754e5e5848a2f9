// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/databasereference.h"

#include <KorDaoUC/sqldatabase.h>

namespace kor {

void DatabaseReference::set(Database *database)
{
    m_database = database;
    m_own.reset();
}

void DatabaseReference::setObject(QObject *object)
{
    auto *database = qobject_cast<Database *>(object);
    if (database || !object)
        set(database);
}

void DatabaseReference::setConnection(const QString &name)
{
    m_own = name.isEmpty() ? nullptr : std::make_shared<SqlDatabase>(name);
    m_database = m_own.get();
}

std::shared_ptr<Database> DatabaseReference::share() const
{
    return m_own ? m_own : std::shared_ptr<Database>(m_database.get(), [](Database *) {}); // the host's is not ours
}

} // namespace kor
