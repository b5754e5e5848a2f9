// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "run.h"
#include "sizes.h"
#include "turn.h"

#include <KorDaoUC/KorParam>

#include <QtCore/QDate>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableWidget>

#include <benchmark/benchmark.h>
#include <memory>

// The parameter sheet: parameters of all kinds added, walked through by Down with each editor opened, and read back.
// The peer is the same sheet on the toolkit's table widget, with a delegate that makes the toolkit's editors.

namespace {

enum Kind { Text, Number, Date, Combo, Click, KindCount };

const QStringList cities{QStringLiteral("Gdańsk"), QStringLiteral("Gdynia"), QStringLiteral("Puck"),
                         QStringLiteral("Sopot")};

QVariant valueOf(int row)
{
    switch (row % KindCount) {
    case Text: return QStringLiteral("tekst %1").arg(row);
    case Number: return row * 1.25;
    case Date: return QDate(2026, 1, 1).addDays(row);
    default: return row % 4;
    }
}

void press(QWidget *widget, int key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &up);
}

// --- the sheet

std::unique_ptr<KorParam> makeSheet(int rows)
{
    static const char *const kinds[] = {"TEXT", "NUMBER", "DATE", "COMBO", "CLICK"};
    auto sheet = std::make_unique<KorParam>();
    sheet->resize(500, 600);
    for (int row = 0; row < rows; ++row) {
        const int kind = row % KindCount;
        sheet->AddParam(QStringLiteral("Parametr %1").arg(row), QStringLiteral("p%1").arg(row),
                        QString::fromLatin1(kinds[kind]), valueOf(row), QString(), 0, QString(),
                        kind == Combo ? QStringLiteral("LIST 0;Gdańsk|1;Gdynia|2;Puck|3;Sopot") : QString(), QString(),
                        0, 0, kind == Click ? cities.at(row % 4) : QString(), QString(), QStringLiteral("#,##0.00"));
    }
    return sheet;
}

// --- the peer

//! The editors of a table widget, by the kind of their row.
class Editors : public QStyledItemDelegate
{
public:
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        switch (index.row() % KindCount) {
        case Number: {
            auto *box = new QDoubleSpinBox(parent);
            box->setRange(-1e9, 1e9);
            return box;
        }
        case Date: return new QDateEdit(parent);
        case Combo: {
            auto *box = new QComboBox(parent);
            box->addItems(cities);
            return box;
        }
        default: return new QLineEdit(parent);
        }
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        if (auto *combo = qobject_cast<QComboBox *>(editor))
            combo->setCurrentIndex(index.data(Qt::UserRole).toInt());
        else
            QStyledItemDelegate::setEditorData(editor, index);
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        if (const auto *combo = qobject_cast<QComboBox *>(editor)) {
            model->setData(index, combo->currentText());
            model->setData(index, combo->currentIndex(), Qt::UserRole);
        } else {
            QStyledItemDelegate::setModelData(editor, model, index);
        }
    }
};

std::unique_ptr<QTableWidget> makeTable(int rows)
{
    auto table = std::make_unique<QTableWidget>(0, 2);
    table->setItemDelegate(new Editors);
    table->itemDelegate()->setParent(table.get());
    table->resize(500, 600);
    table->horizontalHeader()->setStretchLastSection(true);
    for (int row = 0; row < rows; ++row) {
        const int kind = row % KindCount;
        table->setRowCount(row + 1);
        table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("Parametr %1").arg(row)));
        auto *item = new QTableWidgetItem;
        item->setData(Qt::EditRole, kind < Combo ? valueOf(row) : QVariant(cities.at(row % 4)));
        item->setData(Qt::UserRole, valueOf(row));
        table->setItem(row, 1, item);
    }
    return table;
}

// --- added

void addToSheet(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(makeSheet(sizeOf(state)));
    state.SetLabel("goal tablewidget 20"); // which only stores what it is given, as text
}

void addToTable(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(makeTable(sizeOf(state)));
}

// --- walked through

template <class Widget>
void show(Widget &widget)
{
    widget.show();
    widget.activateWindow();
    turn();
}

void walkThroughSheet(benchmark::State &state)
{
    const auto sheet = makeSheet(sizeOf(state));
    show(*sheet);
    for (auto _ : state) {
        sheet->setRow(1);
        sheet->setFocus();
        turn();
        press(QApplication::focusWidget(), Qt::Key_F2);
        for (int row = 1; row < sizeOf(state); ++row)
            press(QApplication::focusWidget(), Qt::Key_Down);
        turn();
        if (sheet->Row() != sizeOf(state))
            state.SkipWithError("not at the end");
    }
    state.SetLabel("goal tablewidget 0.6"); // measured: 0.47
}

void walkThroughTable(benchmark::State &state)
{
    const auto table = makeTable(sizeOf(state));
    show(*table);
    for (auto _ : state) {
        table->setFocus();
        table->setCurrentCell(0, 1);
        turn();
        for (int row = 0; row < sizeOf(state); ++row) { // commits, moves on and opens the next, as Down in the sheet
            table->setCurrentCell(row, 1);
            table->editItem(table->item(row, 1));
            press(QApplication::focusWidget(), Qt::Key_Return);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); // or all would commit when the walk is over
            deleteWhatIsDue();
        }
        turn();
    }
}

// --- read back

void readSheet(benchmark::State &state)
{
    const auto sheet = makeSheet(sizeOf(state));
    show(*sheet);
    for (auto _ : state) {
        for (int row = 1; row < sheet->Rows(); ++row) {
            sheet->setRow(row);
            benchmark::DoNotOptimize(sheet->ParName());
            benchmark::DoNotOptimize(sheet->ParText());
            benchmark::DoNotOptimize(sheet->ParValue());
        }
    }
    state.SetLabel("goal tablewidget 0.5");
}

void readTable(benchmark::State &state)
{
    const auto table = makeTable(sizeOf(state));
    show(*table);
    for (auto _ : state) {
        for (int row = 0; row < table->rowCount(); ++row) {
            table->setCurrentCell(row, 1);
            benchmark::DoNotOptimize(table->item(row, 0)->text());
            benchmark::DoNotOptimize(table->item(row, 1)->text());
            benchmark::DoNotOptimize(table->item(row, 1)->data(Qt::UserRole));
        }
    }
}

} // namespace

BENCHMARK(addToSheet)->Name("ParamAdd/kor")->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(addToTable)->Name("ParamAdd/peer:tablewidget")->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(walkThroughSheet)->Name("ParamWalk/kor")->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(walkThroughTable)->Name("ParamWalk/peer:tablewidget")->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(readSheet)->Name("ParamRead/kor")->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(readTable)->Name("ParamRead/peer:tablewidget")->Arg(5000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    return runBenchmarks(argc, argv);
}
