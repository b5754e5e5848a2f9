// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/SqlDatabase>

#include <QtCore/QCoreApplication>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlQuery>

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <string>
#include <utility>
#include <vector>

// Reading the rows of a dictionary, key and name, into a vector.

namespace {

QSqlDatabase dictionary(qint64 rows)
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

void recordset(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    for (auto _ : state) {
        std::vector<std::pair<QVariant, QString>> entries;
        const auto rows = database.OpenRecordset(QStringLiteral("SELECT id, name FROM t"));
        for (; !rows->Eof(); rows->MoveNext())
            entries.emplace_back(rows->FieldValue(0), rows->FieldValue(1).toString());
        benchmark::DoNotOptimize(entries);
    }
    // What a list makes of the rows has to fit into the 2.5 as well.
    state.SetLabel("goal raw 2.5; query 1");
}

void rawStepping(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    auto *const handle = *static_cast<sqlite3 *const *>(connection.driver()->handle().constData());
    for (auto _ : state) {
        std::vector<std::pair<sqlite3_int64, std::string>> entries;
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(handle, "SELECT id, name FROM t", -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            entries.emplace_back(sqlite3_column_int64(statement, 0),
                                 reinterpret_cast<const char *>(sqlite3_column_text(statement, 1)));
        }
        sqlite3_finalize(statement);
        benchmark::DoNotOptimize(entries);
    }
}

void toolkitQuery(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    for (auto _ : state) {
        std::vector<std::pair<QVariant, QString>> entries;
        QSqlQuery query(connection);
        query.setForwardOnly(true);
        query.exec(QStringLiteral("SELECT id, name FROM t"));
        while (query.next())
            entries.emplace_back(query.value(0), query.value(1).toString());
        benchmark::DoNotOptimize(entries);
    }
}

BENCHMARK(recordset)->Name("ReadRows/kor")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(rawStepping)->Name("ReadRows/peer:raw")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(toolkitQuery)->Name("ReadRows/peer:query")->RangeMultiplier(10)->Range(1000, 100000);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
