// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/SqlDatabase>

#include <QtGui/QKeyEvent>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
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

const QString unitStatement = QStringLiteral("SELECT id, name FROM units");

QSqlDatabase units(qint64 rows)
{
    const QString name = QString::number(rows);
    if (QSqlDatabase::contains(name))
        return QSqlDatabase::database(name);
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    connection.setDatabaseName(QStringLiteral(":memory:"));
    if (!connection.open())
        qFatal("no SQLite");
    QSqlQuery query(connection);
    query.exec(QStringLiteral("CREATE TABLE units (id INTEGER PRIMARY KEY, name TEXT)"));
    query.exec(QStringLiteral("WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM i WHERE x < %1) "
                              "INSERT INTO units SELECT x, 'Jednostka żółta nr ' || x FROM i")
                   .arg(rows));
    return connection;
}

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
    grid.AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 2000, 0, false, QString(), 0, 0, unitStatement);
    grid.AddColumn(QStringLiteral("DATE"), QStringLiteral("Dostawa"), 1300, 2);
    grid.AddColumn(QStringLiteral("TEXT"), QString(), 0, 0);
}

void show(QWidget &widget)
{
    widget.resize(1000, 800);
    widget.show();
    QApplication::setActiveWindow(&widget);
    widget.setFocus();
    QApplication::processEvents();
}

int countOf(const benchmark::State &state) { return static_cast<int>(state.range()); }

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
        const auto grid = makeGrid(countOf(state));
        for (int row = 1; row <= countOf(state); ++row) {
            for (const int column : {Number, Product, Unit, Delivery})
                grid->setTextMatrix(row, column, text);
        }
        benchmark::DoNotOptimize(grid.get());
    }
    state.SetLabel("goal tablewidget 0.5");
}

void fillTable(benchmark::State &state)
{
    const QString text = QStringLiteral("żółty");
    for (auto _ : state) {
        QTableWidget table(countOf(state), Last);
        for (int row = 0; row < countOf(state); ++row) {
            for (int column = 0; column < 4; ++column)
                table.setItem(row, column, new QTableWidgetItem(text));
        }
        benchmark::DoNotOptimize(&table);
    }
}

// --- from cell to cell, with an editor open in each

void openInGrid(benchmark::State &state, int column)
{
    const auto grid = makeShownGrid(countOf(state));
    grid->setCol(column);
    int row = 1;
    for (auto _ : state) {
        row = 3 - row;
        grid->setRow(row);
        QApplication::processEvents();
    }
}

void openInTable(benchmark::State &state, int column)
{
    const auto table = makeShownTable(countOf(state));
    int row = 0;
    for (auto _ : state) {
        row = 1 - row;
        table->setCurrentCell(row, column - 1);
        QApplication::processEvents();
    }
}

void openText(benchmark::State &state) { openInGrid(state, Product); }
void openTextOfTable(benchmark::State &state) { openInTable(state, Product); }
void openNumber(benchmark::State &state) { openInGrid(state, Price); }
void openDate(benchmark::State &state) { openInGrid(state, Delivery); }

//! The list is read anew at each opening.
void openCombo(benchmark::State &state)
{
    kor::SqlDatabase database(units(state.range()));
    const auto grid = makeShownGrid(100);
    grid->setdatabase(&database);
    grid->setCol(Unit);
    int row = 1;
    for (auto _ : state) {
        row = 3 - row;
        grid->setRow(row);
    }
    state.SetLabel(state.range() == 10'000 ? "goal read 1.3; tablewidget 1" : "");
}

//! What the reading alone takes, in a drop-down list that is always there.
void readOnly(benchmark::State &state)
{
    kor::SqlDatabase database(units(state.range()));
    KorCombo combo;
    combo.setdatabase(&database);
    combo.setSQL(unitStatement);
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
        query.exec(unitStatement);
        while (query.next())
            combo->addItem(query.value(1).toString(), query.value(0));
        return combo;
    }

private:
    QSqlDatabase m_connection;
};

void openComboOfTable(benchmark::State &state)
{
    ComboDelegate delegate(units(state.range()));
    const auto table = makeShownTable(100);
    table->setItemDelegateForColumn(Unit - 1, &delegate);
    int row = 0;
    for (auto _ : state) {
        row = 1 - row;
        table->setCurrentCell(row, Unit - 1);
    }
    table->setCurrentCell(0, 0);
    QApplication::processEvents();
}

// --- typing

//! A digit and a Backspace, painted each time, in whatever has the keyboard.
void type(benchmark::State &state)
{
    for (auto _ : state) {
        QKeyEvent digit(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"));
        QApplication::sendEvent(QApplication::focusWidget(), &digit);
        QApplication::processEvents();
        QKeyEvent back(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
        QApplication::sendEvent(QApplication::focusWidget(), &back);
        QApplication::processEvents();
    }
}

void typeInGrid(benchmark::State &state)
{
    const auto grid = makeShownGrid(countOf(state));
    grid->SetFocusCell(2, Price);
    type(state);
}

void typeInTable(benchmark::State &state)
{
    const auto table = makeShownTable(countOf(state));
    table->setCurrentCell(1, Price - 1);
    type(state);
}

// --- rows

void addRows(benchmark::State &state)
{
    for (auto _ : state) {
        const auto grid = makeShownGrid(1);
        for (int row = 0; row < countOf(state); ++row)
            grid->AddRow(0, Product);
    }
}

void addRowsOfTable(benchmark::State &state)
{
    for (auto _ : state) {
        const auto table = makeShownTable(1);
        for (int row = 1; row <= countOf(state); ++row) {
            table->insertRow(row);
            fillRow(*table, row);
            table->setCurrentCell(row, Product - 1);
        }
    }
}

//! Each new row gets the next running number, which looks at all the rows before it.
void addNumberedRows(benchmark::State &state)
{
    for (auto _ : state) {
        const auto grid = makeShownGrid(1);
        for (int row = 0; row < countOf(state); ++row)
            grid->AddRow(0, Number, Number);
    }
}

void deleteBlock(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const auto grid = makeShownGrid(countOf(state));
        state.ResumeTiming();
        grid->DelRow(countOf(state) / 3, 2 * countOf(state) / 3);
        QApplication::processEvents();
    }
}

void deleteBlockOfTable(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const auto table = makeShownTable(countOf(state));
        state.ResumeTiming();
        table->model()->removeRows(countOf(state) / 3, countOf(state) / 3);
        QApplication::processEvents();
    }
}

void sum(benchmark::State &state)
{
    const auto grid = makeGrid(countOf(state));
    for (int row = 1; row <= countOf(state); ++row)
        grid->setValue(row, Price, row * 0.25);
    for (auto _ : state)
        benchmark::DoNotOptimize(grid->SumColumn(Price));
}

void sumOfTable(benchmark::State &state)
{
    QTableWidget table(countOf(state), Last);
    for (int row = 0; row < countOf(state); ++row)
        table.setItem(row, Price - 1, new QTableWidgetItem(QLocale().toString(row * 0.25, 'f', 2)));
    for (auto _ : state) {
        float total = 0;
        for (int row = 0; row < countOf(state); ++row)
            total += static_cast<float>(QLocale().toDouble(table.item(row, Price - 1)->text()));
        benchmark::DoNotOptimize(total);
    }
}

void add(const char *name, void (*body)(benchmark::State &), const std::vector<int64_t> &sizes)
{
    for (const int64_t size : sizes)
        benchmark::RegisterBenchmark(name, body)->Arg(size)->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const std::vector<int64_t> all{1'000, 10'000, 100'000, 1'000'000};
    const std::vector<int64_t> lists{1'000, 10'000, 100'000};
    add("GridTextMatrix/kor", fillGrid, lists);
    add("GridTextMatrix/peer:tablewidget", fillTable, lists);
    add("GridOpenText/kor", openText, all);
    add("GridOpenText/peer:tablewidget", openTextOfTable, all);
    add("GridOpenNumber/kor", openNumber, all);
    add("GridOpenDate/kor", openDate, all);
    add("GridOpenList/kor", openCombo, lists);
    add("GridOpenList/peer:read", readOnly, lists);
    add("GridOpenList/peer:tablewidget", openComboOfTable, {1'000, 10'000});
    add("GridType/kor", typeInGrid, all);
    add("GridType/peer:tablewidget", typeInTable, all);
    add("GridAddRow/kor", addRows, {1'000, 5'000, 20'000});
    add("GridAddRow/peer:tablewidget", addRowsOfTable, {1'000, 5'000});
    add("GridAddNumberedRow/kor", addNumberedRows, {1'000, 5'000, 20'000});
    add("GridDelRow/kor", deleteBlock, all);
    add("GridDelRow/peer:tablewidget", deleteBlockOfTable, {1'000, 10'000, 100'000});
    add("GridSumColumn/kor", sum, {1'000, 10'000, 30'000});
    add("GridSumColumn/peer:tablewidget", sumOfTable, {1'000, 10'000, 30'000});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
