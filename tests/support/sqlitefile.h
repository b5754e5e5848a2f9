// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>

namespace kor::test {

//! An SQLite file with a connection to it, both of which last as long as this. One at a time.
class SqliteFile
{
public:
    SqliteFile()
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name());
        connection.setDatabaseName(m_folder.filePath(QStringLiteral("dane.sqlite")));
        if (!connection.open())
            qFatal("no SQLite file");
    }
    ~SqliteFile() { QSqlDatabase::removeDatabase(name()); }
    SqliteFile(const SqliteFile &) = delete;
    SqliteFile &operator=(const SqliteFile &) = delete;

    //! Not to be kept beyond this.
    [[nodiscard]] QSqlDatabase connection() const { return QSqlDatabase::database(name()); }

private:
    [[nodiscard]] static QString name() { return QStringLiteral("sqlitefile"); }

    QTemporaryDir m_folder;
};

} // namespace kor::test
