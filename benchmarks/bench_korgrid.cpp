// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "dictionary.h"
#include "run.h"
#include "sizes.h"
#include "turn.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/SqlDatabase>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableWidget>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

// The grid as a clerk meets it: cells filled, editors opened, typed into and left, rows added, removed and summed. The
// peer is the toolkit's table widget with editors of its own.

namespace {

enum Column { Number = 1, Product, Price, Unit, Delivery, Exact, Last = Exact };

void fillRow(QTableWidget &table, int row)
{
    for (int column = 0; column < Last; ++column)
        table.setItem(row, column, new QTableWidgetItem(QString::number(row + 1)));
}

void addOrderColumns(KorGrid &grid)
{
    grid.AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Lp."), 600, 1, true, QStringLiteral("0"));
    grid.AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 2000, 0);
    grid.AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1200, 1, false, QStringLiteral("#,##0.00"), 0, 0,
                   QString(), QString(), Exact);
    grid.AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 2000, 0, false, QString(), 0, 0,
                   dictionaryStatement);
    grid.AddColumn(QStringLiteral("DATE"), QStringLiteral("Dostawa"), 1300, 2);
    grid.AddColumn(QStringLiteral("TEXT"), QString(), 0, 0);
}

void show(QWidget &widget)
{
    widget.resize(1000, 800);
    widget.show();
    QApplication::setActiveWindow(&widget);
    widget.setFocus();
    turn();
}

std::unique_ptr<KorGrid> makeGrid(int rows)
{
    auto grid = std::make_unique<KorGrid>();
    addOrderColumns(*grid);
    grid->setRows(rows + 1);
    return grid;
}

//! The rows that are shown at the start hold texts; the others are empty.
std::unique_ptr<KorGrid> makeShownGrid(int rows)
{
    auto grid = makeGrid(rows);
    for (int row = 1; row <= std::min(rows, 50); ++row)
        grid->setTextMatrix(row, Product, QStringLiteral("Towar %1").arg(row));
    grid->setRow(1);
    show(*grid);
    return grid;
}

std::unique_ptr<QTableWidget> makeShownTable(int rows)
{
    auto table = std::make_unique<QTableWidget>(rows, Last);
    table->setEditTriggers(QAbstractItemView::AllEditTriggers); // the current cell's editor is open, as in the grid
    for (int row = 0; row < std::min(rows, 50); ++row)
        fillRow(*table, row);
    show(*table);
    return table;
}

// --- filling through the public face

void fillGrid(benchmark::State &state)
{
    const QString text = QStringLiteral("żółty");
    for (auto _ : state) {
        const auto grid = makeGrid(sizeOf(state));
        for (int row = 1; row <= sizeOf(state); ++row) {
            for (const int column : {Number, Product, Unit, Delivery})
                grid->setTextMatrix(row, column, text);
        }
        benchmark::DoNotOptimize(grid.get());
    }
    // Of a thousand rows three fifths of the time are the making and the end of the grid (5.1 of 8.1 million
    // instructions): the toolkit's table view, and six editors that programs find by their names from the start.
    state.SetLabel(state.range() == 1'000 ? "goal tablewidget 0.6" : "goal tablewidget 0.4");
}

void fillTable(benchmark::State &state)
{
    const QString text = QStringLiteral("żółty");
    for (auto _ : state) {
        QTableWidget table(sizeOf(state), Last);
        for (int row = 0; row < sizeOf(state); ++row) {
            for (int column = 0; column < 4; ++column)
                table.setItem(row, column, new QTableWidgetItem(text));
        }
        benchmark::DoNotOptimize(&table);
    }
}

// --- from cell to cell, with an editor open in each

void openInGrid(benchmark::State &state, int column)
{
    const auto grid = makeShownGrid(sizeOf(state));
    grid->setCol(column);
    int row = 1;
    for (auto _ : state) {
        row = 3 - row;
        grid->setRow(row);
        turn();
    }
}

void openInTable(benchmark::State &state, int column)
{
    const auto table = makeShownTable(sizeOf(state));
    int row = 0;
    for (auto _ : state) {
        row = 1 - row;
        table->setCurrentCell(row, column - 1);
        turn();
    }
}

void openText(benchmark::State &state) { openInGrid(state, Product); }
void openTextOfTable(benchmark::State &state) { openInTable(state, Product); }
void openNumber(benchmark::State &state) { openInGrid(state, Price); }
void openDate(benchmark::State &state) { openInGrid(state, Delivery); }

//! The list is read anew at each opening.
void openCombo(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    const auto grid = makeShownGrid(100);
    grid->setdatabase(&database);
    grid->setCol(Unit);
    int row = 1;
    for (auto _ : state) {
        row = 3 - row;
        grid->setRow(row);
        deleteWhatIsDue();
    }
    state.SetLabel(state.range() == 10'000 ? "goal read 1.3; tablewidget 1" : "");
}

//! What the reading alone takes, in a drop-down list that is always there.
void readOnly(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorCombo combo;
    combo.setdatabase(&database);
    combo.setSQL(dictionaryStatement);
    for (auto _ : state)
        combo.Refresh();
}

class ComboDelegate final : public QStyledItemDelegate
{
public:
    explicit ComboDelegate(QSqlDatabase connection) : m_connection(std::move(connection)) {}
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                          const QModelIndex & /*index*/) const override
    {
        auto *combo = new QComboBox(parent);
        QSqlQuery query(m_connection);
        query.setForwardOnly(true);
        query.exec(dictionaryStatement);
        while (query.next())
            combo->addItem(query.value(1).toString(), query.value(0));
        return combo;
    }

private:
    QSqlDatabase m_connection;
};

void openComboOfTable(benchmark::State &state)
{
    ComboDelegate delegate(dictionary(state.range()));
    const auto table = makeShownTable(100);
    table->setItemDelegateForColumn(Unit - 1, &delegate);
    int row = 0;
    for (auto _ : state) {
        row = 1 - row;
        table->setCurrentCell(row, Unit - 1);
        deleteWhatIsDue();
    }
    table->setCurrentCell(0, 0);
    turn();
}

// --- typing

//! A digit and a Backspace, painted each time, in whatever has the keyboard.
void type(benchmark::State &state)
{
    for (auto _ : state) {
        QKeyEvent digit(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"));
        QApplication::sendEvent(QApplication::focusWidget(), &digit);
        turn();
        QKeyEvent back(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
        QApplication::sendEvent(QApplication::focusWidget(), &back);
        turn();
    }
}

void typeInGrid(benchmark::State &state)
{
    const auto grid = makeShownGrid(sizeOf(state));
    grid->SetFocusCell(2, Price);
    type(state);
}

void typeInTable(benchmark::State &state)
{
    const auto table = makeShownTable(sizeOf(state));
    table->setCurrentCell(1, Price - 1);
    type(state);
}

// --- rows

void addRows(benchmark::State &state)
{
    for (auto _ : state) {
        const auto grid = makeShownGrid(1);
        for (int row = 0; row < sizeOf(state); ++row) {
            grid->AddRow(0, Product);
            deleteWhatIsDue();
        }
    }
}

void addRowsOfTable(benchmark::State &state)
{
    for (auto _ : state) {
        const auto table = makeShownTable(1);
        for (int row = 1; row <= sizeOf(state); ++row) {
            table->insertRow(row);
            fillRow(*table, row);
            table->setCurrentCell(row, Product - 1);
            deleteWhatIsDue();
        }
    }
}

//! Each new row gets the next running number, which looks at all the rows before it.
void addNumberedRows(benchmark::State &state)
{
    for (auto _ : state) {
        const auto grid = makeShownGrid(1);
        for (int row = 0; row < sizeOf(state); ++row)
            grid->AddRow(0, Number, Number);
    }
}

void deleteBlock(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const auto grid = makeShownGrid(sizeOf(state));
        state.ResumeTiming();
        grid->DelRow(sizeOf(state) / 3, 2 * sizeOf(state) / 3);
        turn();
    }
}

void deleteBlockOfTable(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const auto table = makeShownTable(sizeOf(state));
        state.ResumeTiming();
        table->model()->removeRows(sizeOf(state) / 3, sizeOf(state) / 3);
        turn();
    }
}

void sum(benchmark::State &state)
{
    const auto grid = makeGrid(sizeOf(state));
    for (int row = 1; row <= sizeOf(state); ++row)
        grid->setValue(row, Price, row * 0.25);
    for (auto _ : state)
        benchmark::DoNotOptimize(grid->SumColumn(Price));
}

void sumOfTable(benchmark::State &state)
{
    QTableWidget table(sizeOf(state), Last);
    for (int row = 0; row < sizeOf(state); ++row)
        table.setItem(row, Price - 1, new QTableWidgetItem(QLocale().toString(row * 0.25, 'f', 2)));
    for (auto _ : state) {
        float total = 0;
        for (int row = 0; row < sizeOf(state); ++row)
            total += static_cast<float>(QLocale().toDouble(table.item(row, Price - 1)->text()));
        benchmark::DoNotOptimize(total);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const std::vector<int64_t> all{1'000, 10'000, 100'000, 1'000'000};
    const std::vector<int64_t> lists{1'000, 10'000, 100'000};
    measure("GridTextMatrix/kor", fillGrid, lists);
    measure("GridTextMatrix/peer:tablewidget", fillTable, lists);
    measure("GridOpenText/kor", openText, all);
    measure("GridOpenText/peer:tablewidget", openTextOfTable, all);
    measure("GridOpenNumber/kor", openNumber, all);
    measure("GridOpenDate/kor", openDate, all);
    measure("GridOpenList/kor", openCombo, lists);
    measure("GridOpenList/peer:read", readOnly, lists);
    measure("GridOpenList/peer:tablewidget", openComboOfTable, {1'000, 10'000});
    measure("GridType/kor", typeInGrid, all);
    measure("GridType/peer:tablewidget", typeInTable, all);
    measure("GridAddRow/kor", addRows, {1'000, 5'000, 20'000});
    measure("GridAddRow/peer:tablewidget", addRowsOfTable, {1'000, 5'000});
    measure("GridAddNumberedRow/kor", addNumberedRows, {1'000, 5'000, 20'000});
    measure("GridDelRow/kor", deleteBlock, all);
    measure("GridDelRow/peer:tablewidget", deleteBlockOfTable, {1'000, 10'000, 100'000});
    measure("GridSumColumn/kor", sum, {1'000, 10'000, 30'000});
    measure("GridSumColumn/peer:tablewidget", sumOfTable, {1'000, 10'000, 30'000});
    return runBenchmarks(argc, argv);
}
