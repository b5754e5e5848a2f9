// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "dictionary.h"
#include "memory.h"
#include "run.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/SqlDatabase>

#include <QtCore/QStringListModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <vector>

// A drop-down list from the first row of its dictionary to the choice of an entry.

namespace {

void fill(KorCombo &combo, kor::SqlDatabase &database)
{
    combo.setdatabase(&database);
    combo.setSQL(dictionaryStatement);
    combo.Refresh();
}

// --- filling

void refresh(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorCombo combo;
    fill(combo, database);
    combo.setListIndex(combo.ListCount() / 2); // which Refresh selects again
    for (auto _ : state)
        combo.Refresh();
    state.SetLabel("goal sqlite3 2.5; addItem 0.5");
}

void fill(QComboBox &combo, const QSqlDatabase &connection)
{
    QSqlQuery query(connection);
    query.setForwardOnly(true);
    query.exec(dictionaryStatement);
    while (query.next())
        combo.addItem(query.value(1).toString(), query.value(0));
}

void addItem(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    QComboBox combo;
    for (auto _ : state) {
        combo.clear();
        fill(combo, connection);
        combo.setCurrentIndex(combo.count() / 2);
    }
}

//! What an entry takes.
void memoryOwn(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    memory(state, state.range(), [&] {
        auto combo = std::make_unique<KorCombo>();
        fill(*combo, database);
        return combo;
    });
    state.SetLabel("goal combo 0.6");
}

void memoryStock(benchmark::State &state)
{
    const QSqlDatabase connection = dictionary(state.range());
    memory(state, state.range(), [&] {
        auto combo = std::make_unique<QComboBox>();
        fill(*combo, connection);
        return combo;
    });
}

// --- opening

//! The first opening, as after each filling; the layout of the entries is part of it.
void openAndClose(benchmark::State &state, QWidget &window, QComboBox *box, const std::function<void()> &fillAgain)
{
    window.show();
    for (auto _ : state) {
        state.PauseTiming();
        fillAgain();
        QApplication::processEvents();
        state.ResumeTiming();
        box->showPopup();
        QApplication::processEvents(); // it is painted, too
        state.PauseTiming();
        box->hidePopup();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void openOwn(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    QWidget window;
    KorCombo combo(&window);
    fill(combo, database);
    openAndClose(state, window, combo.findChild<QComboBox *>(), [&] { combo.Refresh(); });
    state.SetLabel("goal combo 0.05");
}

void openStock(benchmark::State &state)
{
    QStringList names;
    for (int i = 1; i <= state.range(); ++i)
        names << QStringLiteral("Odbiorca żółty nr %1").arg(i);
    QWidget window;
    QComboBox combo(&window);
    openAndClose(state, window, &combo, [&] {
        combo.clear();
        combo.addItems(names);
    });
}

// --- choosing

void valueByKey(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorCombo combo;
    fill(combo, database);
    const int count = combo.ListCount();
    int key = 1;
    combo.setValue(count);
    combo.setValue(count);
    for (auto _ : state) {
        key = (key + 7919) % count + 1;
        combo.setValue(key);
    }
}

void findData(benchmark::State &state)
{
    QComboBox combo;
    const int count = static_cast<int>(state.range());
    for (int i = 1; i <= count; ++i)
        combo.addItem(QStringLiteral("Odbiorca żółty nr %1").arg(i), i);
    int key = 1;
    for (auto _ : state) {
        key = (key + 7919) % count + 1;
        combo.setCurrentIndex(combo.findData(key));
    }
}

// A combo with a model of its own is connected to two models, one after the other: that alone takes 2.75 times as long
// as the plain one (18.7 us beside 6.8), so 3 times is out of reach for a field (23 us).
void create(benchmark::State &state)
{
    QWidget form;
    for (auto _ : state)
        delete new KorCombo(&form);
    state.SetLabel("goal combo 4; ownmodel 1.5");
}

void createStock(benchmark::State &state)
{
    QWidget form;
    for (auto _ : state)
        delete new QComboBox(&form);
}

void createStockWithModel(benchmark::State &state)
{
    QWidget form;
    for (auto _ : state) {
        auto *combo = new QComboBox(&form);
        combo->setModel(new QStringListModel(combo));
        delete combo;
    }
}

BENCHMARK(refresh)->Name("Refresh/kor")->RangeMultiplier(10)->Range(1'000, 100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(rawStepping)
    ->Name("Refresh/peer:sqlite3")
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(addItem)
    ->Name("Refresh/peer:addItem")
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(memoryOwn)->Name("ComboMemory/kor")->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(memoryStock)->Name("ComboMemory/peer:combo")->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(openOwn)->Name("OpenList/kor")->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(openStock)->Name("OpenList/peer:combo")->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(valueByKey)->Name("Value/kor")->RangeMultiplier(10)->Range(1'000, 100'000);
BENCHMARK(findData)->Name("Value/peer:findData")->RangeMultiplier(10)->Range(1'000, 100'000);
BENCHMARK(create)->Name("CreateCombo/kor")->Unit(benchmark::kMicrosecond);
BENCHMARK(createStock)->Name("CreateCombo/peer:combo")->Unit(benchmark::kMicrosecond);
BENCHMARK(createStockWithModel)->Name("CreateCombo/peer:ownmodel")->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    return runBenchmarks(argc, argv);
}
