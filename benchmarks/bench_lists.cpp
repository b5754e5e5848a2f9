// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "dictionary.h"
#include "memory.h"
#include "run.h"
#include "sizes.h"

#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/SqlDatabase>

#include <QtCore/QAbstractListModel>
#include <QtCore/QSet>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>
#include <QtWidgets/QListWidget>

#include <benchmark/benchmark.h>
#include <vector>

// The open lists from the first row of their dictionary to the set of what is checked in them.

namespace {

template <class List>
void fill(List &list, kor::SqlDatabase &database)
{
    list.setdatabase(&database);
    list.setSQL(dictionaryStatement);
    list.Refresh();
}

enum class Boxes { None, Unchecked };

void fill(QListWidget &list, qint64 rows, Boxes boxes)
{
    QSqlQuery query(dictionary(rows));
    query.setForwardOnly(true);
    query.exec(dictionaryStatement);
    while (query.next()) {
        auto *item = new QListWidgetItem(query.value(1).toString());
        item->setData(Qt::UserRole, query.value(0));
        if (boxes == Boxes::Unchecked)
            item->setCheckState(Qt::Unchecked);
        list.addItem(item);
    }
}

//! Every key, or every so-manieth, with the separator behind it.
QString keys(qint64 rows, qint64 step, qint64 first)
{
    QString set;
    for (qint64 key = first; key <= rows; key += step)
        set += QString::number(key) + QLatin1Char(';');
    return set;
}

// --- filling

template <class List>
void refresh(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    List list;
    fill(list, database);
    list.setListIndex(list.ListCount() / 2); // which Refresh selects again
    for (auto _ : state)
        list.Refresh();
    state.SetLabel("goal sqlite3 2.5");
}

template <Boxes boxes>
void refreshStock(benchmark::State &state)
{
    QListWidget list;
    for (auto _ : state) {
        list.clear();
        fill(list, state.range(), boxes);
        list.setCurrentRow(list.count() / 2);
    }
}

//! The entries at hand, so that no database is measured along with the list.
void addEntries(benchmark::State &state)
{
    QStringList names;
    for (int i = 0; i < state.range(); ++i)
        names << QStringLiteral("Odbiorca żółty nr %1").arg(i);
    KorList list;
    for (auto _ : state) {
        list.Clear();
        for (int i = 0; i < names.size(); ++i)
            list.AddEntry(i, names[i]);
    }
    // A fifth is out of reach while each entry is announced when it is added: that alone takes 0.4 of the list widget.
    state.SetLabel("goal listwidget 0.4; announced 1");
}

//! Rows that are announced to a list of the toolkit and kept nowhere.
class AnnouncedRows final : public QAbstractListModel
{
public:
    void append()
    {
        beginInsertRows({}, m_count, m_count);
        ++m_count;
        endInsertRows();
    }
    void clear()
    {
        beginResetModel();
        m_count = 0;
        endResetModel();
    }
    [[nodiscard]] int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : m_count; }
    [[nodiscard]] QVariant data(const QModelIndex &, int) const override { return {}; }

private:
    int m_count = 0;
};

void announceRows(benchmark::State &state)
{
    AnnouncedRows rows;
    QListView list;
    list.setModel(&rows);
    list.setUniformItemSizes(true);
    for (auto _ : state) {
        rows.clear();
        for (int i = 0; i < state.range(); ++i)
            rows.append();
    }
}

void addItems(benchmark::State &state)
{
    QStringList names;
    for (int i = 0; i < state.range(); ++i)
        names << QStringLiteral("Odbiorca żółty nr %1").arg(i);
    QListWidget list;
    for (auto _ : state) {
        list.clear();
        for (int i = 0; i < names.size(); ++i) {
            auto *item = new QListWidgetItem(names[i]);
            item->setData(Qt::UserRole, i);
            list.addItem(item);
        }
    }
}

// --- scrolling

//! From freshly filled to the last entry painted; the layout of the entries is part of it.
template <class Fill, class GoToEnd>
void toTheEnd(benchmark::State &state, QWidget &list, Fill &&fillAgain, GoToEnd &&goToEnd)
{
    list.resize(200, 300);
    list.show();
    for (auto _ : state) {
        state.PauseTiming();
        fillAgain();
        state.ResumeTiming();
        goToEnd();
        QApplication::processEvents();
    }
}

void toTheEndOwn(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorList list;
    fill(list, database);
    toTheEnd(
        state, list, [&] { list.Refresh(); }, [&] { list.setListIndex(list.ListCount() - 1); });
    state.SetLabel("goal listwidget 0.2");
}

template <bool isUniform>
void toTheEndStock(benchmark::State &state)
{
    QListWidget list;
    list.setUniformItemSizes(isUniform);
    toTheEnd(
        state, list,
        [&] {
            list.clear();
            fill(list, state.range(), Boxes::None);
        },
        [&] { list.setCurrentRow(list.count() - 1); });
}

// --- checking

void checkAll(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorListCheck list;
    fill(list, database);
    for (auto _ : state) {
        list.CheckAll(true);
        list.CheckAll(false);
    }
    state.SetLabel("goal listwidget 0.2");
}

void checkAllStock(benchmark::State &state)
{
    QListWidget list;
    fill(list, state.range(), Boxes::Unchecked);
    for (auto _ : state) {
        for (const Qt::CheckState check : {Qt::Checked, Qt::Unchecked}) {
            for (int i = 0; i < list.count(); ++i)
                list.item(i)->setCheckState(check);
        }
    }
}

void readSet(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorListCheck list;
    fill(list, database);
    list.setValueChecked(keys(state.range(), 2, 1));
    for (auto _ : state)
        benchmark::DoNotOptimize(list.ValueChecked());
    state.SetLabel("goal loop 0.2");
}

void readSetStock(benchmark::State &state)
{
    QListWidget list;
    fill(list, state.range(), Boxes::Unchecked);
    for (int i = 0; i < list.count(); i += 2)
        list.item(i)->setCheckState(Qt::Checked);
    for (auto _ : state) {
        QString set;
        for (int i = 0; i < list.count(); ++i) {
            if (list.item(i)->checkState() == Qt::Checked)
                set += list.item(i)->data(Qt::UserRole).toString() + QLatin1Char(';');
        }
        benchmark::DoNotOptimize(set);
    }
}

//! Every other half in turn, so that every check changes.
template <class SetChecks>
void writeSets(benchmark::State &state, SetChecks &&setChecks)
{
    const QString odd = keys(state.range(), 2, 1);
    const QString even = keys(state.range(), 2, 2);
    bool isOdd = false;
    for (auto _ : state) {
        isOdd = !isOdd;
        setChecks(isOdd ? odd : even);
    }
}

void writeSet(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    KorListCheck list;
    fill(list, database);
    writeSets(state, [&](const QString &set) { list.setValueChecked(set); });
    state.SetLabel(state.range() <= 10'000 ? "goal loop 0.2; hashed 0.2" : "goal hashed 0.2");
}

//! The rule as one would write it down: the key between two separators somewhere in the text.
void writeSetLoop(benchmark::State &state)
{
    QListWidget list;
    fill(list, state.range(), Boxes::Unchecked);
    writeSets(state, [&](const QString &set) {
        const QString text = QLatin1Char(';') + set;
        for (int i = 0; i < list.count(); ++i) {
            const QString key = QLatin1Char(';') + list.item(i)->data(Qt::UserRole).toString() + QLatin1Char(';');
            list.item(i)->setCheckState(text.contains(key) ? Qt::Checked : Qt::Unchecked);
        }
    });
}

//! As one would write it once that has become too slow; keys that hold the separator are not found any more.
void writeSetHashed(benchmark::State &state)
{
    QListWidget list;
    fill(list, state.range(), Boxes::Unchecked);
    writeSets(state, [&](const QString &set) {
        const QStringList parts = set.split(QLatin1Char(';'));
        const QSet<QString> wanted(parts.cbegin(), parts.cend());
        for (int i = 0; i < list.count(); ++i) {
            const bool isWanted = wanted.contains(list.item(i)->data(Qt::UserRole).toString());
            list.item(i)->setCheckState(isWanted ? Qt::Checked : Qt::Unchecked);
        }
    });
}

// --- memory

//! What an entry takes, all entries checked.
void memoryOwn(benchmark::State &state)
{
    kor::SqlDatabase database(dictionary(state.range()));
    memory(state, state.range(), [&] {
        auto list = std::make_unique<KorListCheck>();
        fill(*list, database);
        list->setValueChecked(keys(state.range(), 1, 1));
        return list;
    });
    state.SetLabel("goal listwidget 0.5");
}

void memoryStock(benchmark::State &state)
{
    memory(state, state.range(), [&] {
        auto list = std::make_unique<QListWidget>();
        fill(*list, state.range(), Boxes::Unchecked);
        for (int i = 0; i < list->count(); ++i)
            list->item(i)->setCheckState(Qt::Checked);
        return list;
    });
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    measure("ListFill/kor", refresh<KorList>, {100'000}, benchmark::kMillisecond);
    measure("ListFill/peer:listwidget", refreshStock<Boxes::None>, {100'000}, benchmark::kMillisecond);
    measure("ListFill/peer:sqlite3", rawStepping, {100'000}, benchmark::kMillisecond);
    measure("ListAdd/kor", addEntries, {10'000, 100'000}, benchmark::kMillisecond);
    measure("ListAdd/peer:listwidget", addItems, {10'000, 100'000}, benchmark::kMillisecond);
    measure("ListAdd/peer:announced", announceRows, {10'000, 100'000}, benchmark::kMillisecond);
    measure("CheckListFill/kor", refresh<KorListCheck>, {100'000}, benchmark::kMillisecond);
    measure("CheckListFill/peer:listwidget", refreshStock<Boxes::Unchecked>, {100'000}, benchmark::kMillisecond);
    measure("CheckListFill/peer:sqlite3", rawStepping, {100'000}, benchmark::kMillisecond);
    measure("ListToEnd/kor", toTheEndOwn, {100'000}, benchmark::kMillisecond);
    measure("ListToEnd/peer:listwidget", toTheEndStock<false>, {100'000}, benchmark::kMillisecond);
    measure("ListToEnd/peer:uniform", toTheEndStock<true>, {100'000}, benchmark::kMillisecond);
    measure("CheckAll/kor", checkAll, {10'000, 100'000}, benchmark::kMillisecond);
    measure("CheckAll/peer:listwidget", checkAllStock, {10'000, 100'000}, benchmark::kMillisecond);
    measure("ValueCheckedGet/kor", readSet, {10'000, 100'000}, benchmark::kMillisecond);
    measure("ValueCheckedGet/peer:loop", readSetStock, {10'000, 100'000}, benchmark::kMillisecond);
    measure("ValueCheckedSet/kor", writeSet, {10'000, 100'000}, benchmark::kMillisecond);
    measure("ValueCheckedSet/peer:hashed", writeSetHashed, {10'000, 100'000}, benchmark::kMillisecond);
    measure("ValueCheckedSet/peer:loop", writeSetLoop, {10'000}, benchmark::kMillisecond);
    measure("CheckListMemory/kor", memoryOwn, {100'000}, benchmark::kMillisecond);
    measure("CheckListMemory/peer:listwidget", memoryStock, {100'000}, benchmark::kMillisecond);
    return runBenchmarks(argc, argv);
}
