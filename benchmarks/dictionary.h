// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlQuery>

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <string>
#include <utility>
#include <vector>

// A dictionary in memory for the benchmarks that fill something from one, and the least that reading it can take.

inline const QString dictionaryStatement = QStringLiteral("SELECT id, name FROM t");

//! The same dictionary each time for the same number of rows.
inline QSqlDatabase dictionary(qint64 rows)
{
    const QString name = QString::number(rows);
    if (QSqlDatabase::contains(name))
        return QSqlDatabase::database(name);
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    connection.setDatabaseName(QStringLiteral(":memory:"));
    if (!connection.open())
        qFatal("no SQLite");
    QSqlQuery query(connection);
    query.exec(QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, name TEXT)"));
    query.exec(QStringLiteral("WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM i WHERE x < %1) "
                              "INSERT INTO t SELECT x, 'Odbiorca żółty nr ' || x FROM i")
                   .arg(rows));
    return connection;
}

//! The rows as the database gives them, into a vector.
inline void rawStepping(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    auto *const handle = *static_cast<sqlite3 *const *>(connection.driver()->handle().constData());
    for (auto _ : state) {
        std::vector<std::pair<sqlite3_int64, std::string>> entries;
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(handle, qUtf8Printable(dictionaryStatement), -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            entries.emplace_back(sqlite3_column_int64(statement, 0),
                                 reinterpret_cast<const char *>(sqlite3_column_text(statement, 1)));
        }
        sqlite3_finalize(statement);
        benchmark::DoNotOptimize(entries);
    }
}
