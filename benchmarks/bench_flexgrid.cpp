// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/flexgrid.h"
#include "memory.h"
#include "run.h"
#include "sizes.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableWidget>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

// The grid surface: filled cell by cell, and shown, scrolled and moved in with up to a million rows. The peers are the
// toolkit's table widget and, for the cells alone, plain strings.

namespace {

constexpr int columns = 10;

//! Texts as a program makes them, each of its own.
QString textOf(int row, int column) { return QStringLiteral("żółty %1/%2").arg(row).arg(column); }

std::vector<std::vector<QString>> textsOf(int rows)
{
    std::vector<std::vector<QString>> texts(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            texts[static_cast<std::size_t>(row)].push_back(textOf(row, column));
    }
    return texts;
}

std::unique_ptr<kor::FlexGrid> makeGrid(int rows)
{
    auto grid = std::make_unique<kor::FlexGrid>(nullptr);
    grid->setCols(columns + 1);
    grid->setRows(rows + 1);
    return grid;
}

std::unique_ptr<QTableWidget> makeTable(int rows) { return std::make_unique<QTableWidget>(rows, columns); }

void show(QWidget &widget)
{
    widget.resize(1000, 800);
    widget.show();
    QApplication::processEvents();
}

// --- filling

template <class Make, class SetText>
void fill(benchmark::State &state, Make &&make, SetText &&setText)
{
    const auto texts = textsOf(sizeOf(state));
    for (auto _ : state) {
        auto grid = make(sizeOf(state));
        for (int row = 0; row < sizeOf(state); ++row) {
            for (int column = 0; column < columns; ++column)
                setText(*grid, row, column, texts[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
        }
        benchmark::DoNotOptimize(grid);
    }
}

void setInGrid(kor::FlexGrid &grid, int row, int column, const QString &text)
{
    grid.setTextMatrix(row + 1, column + 1, text);
}

void setInTable(QTableWidget &table, int row, int column, const QString &text)
{
    table.setItem(row, column, new QTableWidgetItem(text));
}

using Plain = std::vector<std::vector<QString>>;

std::unique_ptr<Plain> makePlain(int rows)
{
    return std::make_unique<Plain>(static_cast<std::size_t>(rows), std::vector<QString>(columns));
}

void setInPlain(Plain &cells, int row, int column, const QString &text)
{
    cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
}

void fillGrid(benchmark::State &state)
{
    fill(state, makeGrid, setInGrid);
    state.SetLabel(state.range() == 100'000 ? "goal tablewidget 0.2; strings 3" : "");
}
void fillTable(benchmark::State &state) { fill(state, makeTable, setInTable); }
void fillPlain(benchmark::State &state) { fill(state, makePlain, setInPlain); }

//! What a cell takes. The texts are shared with the program.
template <class Make, class SetText>
void memoryOfCells(benchmark::State &state, Make &&make, SetText &&setText)
{
    const auto texts = textsOf(sizeOf(state));
    memory(state, state.range() * columns, [&] {
        auto grid = make(sizeOf(state));
        for (int row = 0; row < sizeOf(state); ++row) {
            for (int column = 0; column < columns; ++column)
                setText(*grid, row, column, texts[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
        }
        return grid;
    });
}

void memoryOfGrid(benchmark::State &state)
{
    memoryOfCells(state, makeGrid, setInGrid);
    state.SetLabel("goal tablewidget 0.25");
}
void memoryOfTable(benchmark::State &state) { memoryOfCells(state, makeTable, setInTable); }

// --- many rows

void createGrid(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(makeGrid(sizeOf(state)));
}

void createTable(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(makeTable(sizeOf(state)));
}

//! Every so-manieth row is higher, and every shown cell holds a text.
template <class Grid, class SetHeight>
void mix(Grid &grid, int rows, SetHeight &&setHeight)
{
    grid.setUpdatesEnabled(false);
    for (int row = 1; row < rows; row += std::max(1, rows / 1000))
        setHeight(row);
    grid.setUpdatesEnabled(true);
}

std::unique_ptr<kor::FlexGrid> makeMixedGrid(int rows)
{
    auto grid = makeGrid(rows);
    mix(*grid, rows, [&](int row) { grid->setRowHeight(row, 600); });
    for (int row = std::max(0, rows - 100); row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            setInGrid(*grid, row, column, textOf(row, column));
    }
    show(*grid);
    return grid;
}

std::unique_ptr<QTableWidget> makeMixedTable(int rows)
{
    auto table = makeTable(rows);
    table->verticalHeader()->setUpdatesEnabled(false);
    mix(*table, rows, [&](int row) { table->setRowHeight(row, 40); });
    table->verticalHeader()->setUpdatesEnabled(true);
    for (int row = std::max(0, rows - 100); row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            setInTable(*table, row, column, textOf(row, column));
    }
    show(*table);
    return table;
}

void jumpInGrid(benchmark::State &state)
{
    const auto grid = makeMixedGrid(sizeOf(state));
    for (auto _ : state) {
        grid->makeVisible(grid->Rows() - 1, 1);
        QApplication::processEvents();
        grid->makeVisible(1, 1);
        QApplication::processEvents();
    }
}

void jumpInTable(benchmark::State &state)
{
    const auto table = makeMixedTable(sizeOf(state));
    for (auto _ : state) {
        table->scrollToBottom();
        QApplication::processEvents();
        table->scrollToTop();
        QApplication::processEvents();
    }
}

void paintGrid(benchmark::State &state)
{
    const auto grid = makeMixedGrid(sizeOf(state));
    grid->makeVisible(grid->Rows() - 1, 1);
    for (auto _ : state)
        grid->viewport()->repaint();
}

void paintTable(benchmark::State &state)
{
    const auto table = makeMixedTable(sizeOf(state));
    table->scrollToBottom();
    for (auto _ : state)
        table->viewport()->repaint();
}

//! Up and down by one, near the end, painted each time.
void moveInGrid(benchmark::State &state)
{
    const auto grid = makeMixedGrid(sizeOf(state));
    grid->setCurrentCell(grid->Rows() - 5, 1);
    grid->makeVisible(grid->Row(), 1);
    int step = 1;
    for (auto _ : state) {
        grid->setRow(grid->Row() + step);
        QApplication::processEvents();
        step = -step;
    }
}

void moveInTable(benchmark::State &state)
{
    const auto table = makeMixedTable(sizeOf(state));
    table->setCurrentCell(table->rowCount() - 5, 1);
    int step = 1;
    for (auto _ : state) {
        table->setCurrentCell(table->currentRow() + step, 1);
        QApplication::processEvents();
        step = -step;
    }
}

// --- rows one by one

void addToGrid(benchmark::State &state)
{
    for (auto _ : state) {
        auto grid = makeGrid(0);
        grid->resize(1000, 800);
        grid->show();
        for (int row = 0; row < sizeOf(state); ++row) {
            grid->AddItem(QStringLiteral("\tżółty"));
            grid->setRow(grid->Rows() - 1);
            grid->setTopRow(grid->Row());
        }
    }
}

void addToTable(benchmark::State &state)
{
    for (auto _ : state) {
        auto table = makeTable(0);
        table->resize(1000, 800);
        table->show();
        for (int row = 0; row < sizeOf(state); ++row) {
            table->insertRow(row);
            table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("żółty")));
            table->setCurrentCell(row, 0);
            table->scrollToItem(table->item(row, 0), QAbstractItemView::PositionAtTop);
        }
    }
}

void removeBlock(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto grid = makeMixedGrid(sizeOf(state));
        state.ResumeTiming();
        grid->RemoveItem(sizeOf(state) / 3, sizeOf(state) / 3);
        QApplication::processEvents();
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const std::vector<int64_t> all{1'000, 10'000, 100'000, 1'000'000};
    measure("GridFill/kor", fillGrid, {1'000, 10'000, 100'000});
    measure("GridFill/peer:tablewidget", fillTable, {1'000, 10'000, 100'000});
    measure("GridFill/peer:strings", fillPlain, {1'000, 10'000, 100'000});
    measure("GridMemory/kor", memoryOfGrid, {100'000});
    measure("GridMemory/peer:tablewidget", memoryOfTable, {100'000});
    measure("GridCreate/kor", createGrid, all);
    measure("GridCreate/peer:tablewidget", createTable, all);
    measure("GridJump/kor", jumpInGrid, all);
    measure("GridJump/peer:tablewidget", jumpInTable, all);
    measure("GridPaint/kor", paintGrid, all);
    measure("GridPaint/peer:tablewidget", paintTable, all);
    measure("GridMove/kor", moveInGrid, all);
    measure("GridMove/peer:tablewidget", moveInTable, all);
    measure("GridAddRows/kor", addToGrid, {1'000, 5'000, 20'000});
    measure("GridAddRows/peer:tablewidget", addToTable, {1'000, 5'000});
    measure("GridRemoveBlock/kor", removeBlock, all);
    return runBenchmarks(argc, argv);
}
