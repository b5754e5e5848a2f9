// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "dictionary.h"
#include "run.h"

#include <KorDaoUC/SqlDatabase>

#include <QtCore/QCoreApplication>

#include <benchmark/benchmark.h>
#include <vector>

// Reading the rows of a dictionary, key and name, into a vector.

namespace {

void recordset(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    for (auto _ : state) {
        std::vector<std::pair<QVariant, QString>> entries;
        const auto rows = database.OpenRecordset(dictionaryStatement);
        for (; !rows->Eof(); rows->MoveNext())
            entries.emplace_back(rows->FieldValue(0), rows->FieldValue(1).toString());
        benchmark::DoNotOptimize(entries);
    }
    // What a list makes of the rows has to fit into the 2.5 as well.
    state.SetLabel("goal raw 2.5; query 1");
}

void toolkitQuery(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    for (auto _ : state) {
        std::vector<std::pair<QVariant, QString>> entries;
        QSqlQuery query(connection);
        query.setForwardOnly(true);
        query.exec(dictionaryStatement);
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
    return runBenchmarks(argc, argv);
}
