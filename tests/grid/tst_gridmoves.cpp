// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridmoves.h"

#include <QtTest/QtTest>

using namespace kor;

namespace {

//! Columns as text: a letter for a column that can be edited, "-" for a locked one; the first is column 1.
EditableColumn columnsOf(const QString &pattern)
{
    return [pattern](int column) { return pattern.at(column - 1) != u'-'; };
}

QString said(const std::optional<CellAddress> &cell)
{
    return cell ? QStringLiteral("%1,%2").arg(cell->row).arg(cell->column) : QStringLiteral("none");
}

} // namespace

//! Where the keys and the program's requests lead in a grid.
class tst_GridMoves : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nextCellThatCanBeEdited_data();
    void nextCellThatCanBeEdited();
    void goingForwardMeetsEveryCellOnce();
    void focusRequestComparesTheRowWithTheColumns_data();
    void focusRequestComparesTheRowWithTheColumns();
    void rowsThatAreDeleted_data();
    void rowsThatAreDeleted();
};

void tst_GridMoves::nextCellThatCanBeEdited_data()
{
    QTest::addColumn<QString>("columns");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("previous");
    // clang-format off
    QTest::newRow("beside")                             << QStringLiteral("abc")   << 2 << 2 << QStringLiteral("2,3")  << QStringLiteral("2,1");
    QTest::newRow("over a locked column")               << QStringLiteral("a-c")   << 2 << 1 << QStringLiteral("2,3")  << QStringLiteral("1,3");
    QTest::newRow("from the last column to the next row") << QStringLiteral("abc") << 2 << 3 << QStringLiteral("3,1")  << QStringLiteral("2,2");
    QTest::newRow("locked columns at the ends")         << QStringLiteral("-b-")   << 2 << 2 << QStringLiteral("3,2")  << QStringLiteral("1,2");
    QTest::newRow("not past the last cell")             << QStringLiteral("abc")   << 3 << 3 << QStringLiteral("none") << QStringLiteral("3,2");
    QTest::newRow("not past the last one that is free") << QStringLiteral("ab-")   << 3 << 2 << QStringLiteral("none") << QStringLiteral("3,1");
    QTest::newRow("not before the first cell")          << QStringLiteral("abc")   << 1 << 1 << QStringLiteral("1,2")  << QStringLiteral("none");
    QTest::newRow("all locked")                         << QStringLiteral("---")   << 2 << 2 << QStringLiteral("none") << QStringLiteral("none");
    QTest::newRow("from a locked cell")                 << QStringLiteral("a-c")   << 2 << 2 << QStringLiteral("2,3")  << QStringLiteral("2,1");
    QTest::newRow("from the title row")                 << QStringLiteral("abc")   << 0 << 3 << QStringLiteral("1,1")  << QStringLiteral("0,2");
    QTest::newRow("from the fixed column")              << QStringLiteral("abc")   << 2 << 0 << QStringLiteral("2,1")  << QStringLiteral("1,3");
    // clang-format on
}

void tst_GridMoves::nextCellThatCanBeEdited()
{
    QFETCH(QString, columns);
    QFETCH(int, row);
    QFETCH(int, column);
    const GridExtent extent{4, static_cast<int>(columns.size()) + 1};
    QTEST(said(nextEditable({row, column}, extent, Direction::Forward, columnsOf(columns))), "next");
    QTEST(said(nextEditable({row, column}, extent, Direction::Backward, columnsOf(columns))), "previous");
}

void tst_GridMoves::goingForwardMeetsEveryCellOnce()
{
    const QString columns = QStringLiteral("-b-de-");
    const GridExtent extent{6, 7};
    std::optional<CellAddress> cell = CellAddress{1, 0};
    QStringList forward;
    CellAddress last;
    while ((cell = nextEditable(*cell, extent, Direction::Forward, columnsOf(columns)))) {
        forward << said(cell);
        last = *cell;
    }
    QCOMPARE(forward.size(), 5 * 3);
    QStringList backward{said(last)};
    for (cell = last; (cell = nextEditable(*cell, extent, Direction::Backward, columnsOf(columns)));)
        backward.prepend(said(cell));
    QCOMPARE(backward, forward);
}

void tst_GridMoves::focusRequestComparesTheRowWithTheColumns_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("columnCount");
    QTest::addColumn<int>("answer"); // 0: the column stays
    // clang-format off
    QTest::newRow("row above the count of columns")          << 2  << 3  << 5 << 3;
    QTest::newRow("last row above")                          << 3  << 1  << 5 << 1;
    QTest::newRow("row at the count less one: stays")        << 4  << 2  << 5 << 0;
    QTest::newRow("row 10 of a narrow grid: stays")          << 10 << 2  << 5 << 0;
    QTest::newRow("column 0: stays")                         << 1  << 0  << 5 << 0;
    QTest::newRow("negative column: stays")                  << 1  << -1 << 5 << 0;
    QTest::newRow("two columns, row 1: stays")               << 1  << 1  << 2 << 0;
    QTest::newRow("a row that does not exist counts as well")<< -3 << 2  << 5 << 2;
    // clang-format on
}

void tst_GridMoves::focusRequestComparesTheRowWithTheColumns()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, columnCount);
    QTEST(columnOfFocusRequest({row, column}, columnCount).value_or(0), "answer");
}

void tst_GridMoves::rowsThatAreDeleted_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<QString>("deleted");
    // clang-format off
    QTest::newRow("one row")                         << 2  << 2     << 6 << QStringLiteral("2-2");
    QTest::newRow("a block")                         << 2  << 4     << 6 << QStringLiteral("2-4");
    QTest::newRow("without end: the start")          << 3  << 0     << 6 << QStringLiteral("3-3");
    QTest::newRow("end before the start: the start") << 3  << 1     << 6 << QStringLiteral("3-3");
    QTest::newRow("negative end: the start")         << 3  << -9    << 6 << QStringLiteral("3-3");
    QTest::newRow("end beyond the last row")         << 4  << 100   << 6 << QStringLiteral("4-5");
    QTest::newRow("all")                             << 1  << 5     << 6 << QStringLiteral("1-5");
    QTest::newRow("the title row: nothing")          << 0  << 3     << 6 << QStringLiteral("none");
    QTest::newRow("negative start: nothing")         << -1 << 3     << 6 << QStringLiteral("none");
    QTest::newRow("start beyond the last row")       << 6  << 7     << 6 << QStringLiteral("none");
    QTest::newRow("only titles: nothing")            << 1  << 1     << 1 << QStringLiteral("none");
    // clang-format on
}

void tst_GridMoves::rowsThatAreDeleted()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, rowCount);
    const auto range = rowsToDelete(start, end, rowCount);
    QTEST(range ? QStringLiteral("%1-%2").arg(range->first).arg(range->last) : QStringLiteral("none"), "deleted");
}

QTEST_APPLESS_MAIN(tst_GridMoves)
#include "tst_gridmoves.moc"
