// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "run.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/SqlDatabase>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

#include <benchmark/benchmark.h>
#include <utility>
#include <vector>

// Dictionaries of a PostgreSQL server, up to a million rows: what a clerk waits for when a form opens. The clock's time
// counts, as the server works beside the program.

namespace {

const QString statement = QStringLiteral("SELECT id, name FROM dictionary ORDER BY name");

//! The dictionary of so many rows, with the index that its order asks for.
QSqlDatabase dictionary(qint64 rows)
{
    const QString name = QString::number(rows);
    if (QSqlDatabase::contains(name))
        return QSqlDatabase::database(name);
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name);
    connection.setHostName(qEnvironmentVariable("KOR_TEST_POSTGRES"));
    connection.setUserName(QStringLiteral("kor"));
    connection.setDatabaseName(QStringLiteral("postgres"));
    if (!connection.open())
        qFatal("%s", qPrintable(connection.lastError().text()));
    QSqlQuery query(connection);
    query.exec(
        QStringLiteral("CREATE TEMPORARY TABLE dictionary AS SELECT x::bigint AS id, 'Odbiorca żółty nr ' || x AS "
                       "name FROM generate_series(1, %1) x")
            .arg(rows));
    query.exec(QStringLiteral("CREATE INDEX dictionary_by_name ON dictionary (name) INCLUDE (id)"));
    query.exec(QStringLiteral("VACUUM ANALYZE dictionary"));
    return connection;
}

void refresh(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorCombo combo;
    combo.setdatabase(&database);
    combo.setSQL(statement);
    for (auto _ : state)
        combo.Refresh();
    if (combo.ListCount() != state.range())
        state.SkipWithError("the list is not whole");
    state.SetLabel("goal rows 1.5; addItem 1");
}

//! The rows alone, as the toolkit gives them.
void rows(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    for (auto _ : state) {
        std::vector<std::pair<qint64, QString>> entries;
        QSqlQuery query(connection);
        query.setForwardOnly(true);
        query.exec(statement);
        while (query.next())
            entries.emplace_back(query.value(0).toLongLong(), query.value(1).toString());
        benchmark::DoNotOptimize(entries);
    }
}

void addItem(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    QComboBox combo;
    for (auto _ : state) {
        combo.clear();
        QSqlQuery query(connection);
        query.setForwardOnly(true);
        query.exec(statement);
        while (query.next())
            combo.addItem(query.value(1).toString(), query.value(0));
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    for (const std::int64_t size : {std::int64_t(10'000), std::int64_t(1'000'000)}) {
        for (const auto &[name, body] :
             {std::pair("ServerRefresh/kor", &refresh), std::pair("ServerRefresh/peer:rows", &rows),
              std::pair("ServerRefresh/peer:addItem", &addItem)})
            benchmark::RegisterBenchmark(name, body)->Arg(size)->Unit(benchmark::kMillisecond)->UseRealTime();
    }
    return runBenchmarks(argc, argv);
}
