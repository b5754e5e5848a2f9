// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>

//! A connection of its own for one test, as a host would open it: SQLite on a file in a temporary folder or, when
//! KOR_TEST_POSTGRES names the socket folder of a server, PostgreSQL with an empty schema. Removed with the object.
class TestConnection
{
public:
    enum class Engine { Sqlite, Postgres };

    explicit TestConnection(Engine engine);
    ~TestConnection();
    Q_DISABLE_COPY(TestConnection)

    [[nodiscard]] static QString postgresFolder();

    [[nodiscard]] const QString &name() const { return m_name; }
    [[nodiscard]] QString fileName() const { return m_folder.filePath(QStringLiteral("dane.sqlite")); }
    [[nodiscard]] QSqlDatabase connection() const { return QSqlDatabase::database(m_name, false); }

    //! Runs statements on it; a failure fails the test.
    void run(std::initializer_list<const char *> statements) const;
    void close() const { connection().close(); }
    [[nodiscard]] bool reopen() const { return connection().open(); }
    void remove() const { QSqlDatabase::removeDatabase(m_name); }

private:
    QTemporaryDir m_folder;
    QString m_name;
};
