// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/cellcursor.h"
#include "constituents/flexgrid/linesizes.h"
#include "constituents/keycodes.h"

#include <QtTest/QtTest>

using namespace kor;

namespace {

constexpr int plain = ShiftState::None;
constexpr int shift = ShiftState::Shift;
constexpr int ctrl = ShiftState::Ctrl;

QString written(const CellCursor &cursor)
{
    const QString cell = QStringLiteral("%1,%2").arg(cursor.row).arg(cursor.column);
    if (cursor == CellCursor::at(cursor.row, cursor.column))
        return cell;
    return cell + QStringLiteral(" to %1,%2").arg(cursor.rowSel).arg(cursor.columnSel);
}

} // namespace

//! Where the keys lead the current cell, and what is selected.
class tst_CellCursor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void keysMove_data();
    void keysMove();
    void mirroredGridTurnsLeftAndRight();
    void otherKeysMeanNothing();
    void withoutAnyRowNothingMoves();
    void selectionFollowsTheMode_data();
    void selectionFollowsTheMode();
    void fitsIntoASmallerGrid();
};

void tst_CellCursor::keysMove_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("shiftState");
    QTest::addColumn<QString>("cursor");
    // 20 rows, of which 8 and 20 are hidden; 6 columns, of which 1 and 4 are hidden; a page is 5 rows
    // clang-format off
    QTest::newRow("down")                              << 2  << 2 << int(Key::Down)     << plain << "3,2";
    QTest::newRow("down over a hidden row")            << 7  << 2 << int(Key::Down)     << plain << "9,2";
    QTest::newRow("down from the last shown row")      << 19 << 2 << int(Key::Down)     << plain << "19,2";
    QTest::newRow("up")                                << 2  << 2 << int(Key::Up)       << plain << "1,2";
    QTest::newRow("up never reaches the titles")       << 1  << 2 << int(Key::Up)       << plain << "1,2";
    QTest::newRow("right")                             << 2  << 2 << int(Key::Right)    << plain << "2,3";
    QTest::newRow("right over a hidden column")        << 2  << 3 << int(Key::Right)    << plain << "2,5";
    QTest::newRow("right from the last column")        << 2  << 6 << int(Key::Right)    << plain << "2,6";
    QTest::newRow("left")                              << 2  << 3 << int(Key::Left)     << plain << "2,2";
    QTest::newRow("left never reaches column 0")       << 2  << 2 << int(Key::Left)     << plain << "2,2";
    QTest::newRow("page down")                         << 2  << 2 << int(Key::PageDown) << plain << "7,2";
    QTest::newRow("page down counts shown rows")       << 5  << 2 << int(Key::PageDown) << plain << "11,2";
    QTest::newRow("page down stops at the end")        << 17 << 2 << int(Key::PageDown) << plain << "19,2";
    QTest::newRow("page up stops at the beginning")    << 3  << 2 << int(Key::PageUp)   << plain << "1,2";
    QTest::newRow("home")                              << 5  << 5 << int(Key::Home)     << plain << "5,2";
    QTest::newRow("end")                               << 5  << 2 << int(Key::End)      << plain << "5,6";
    QTest::newRow("Ctrl+Home")                         << 5  << 5 << int(Key::Home)     << ctrl  << "1,2";
    QTest::newRow("Ctrl+End")                          << 5  << 5 << int(Key::End)      << ctrl  << "19,6";
    QTest::newRow("Ctrl+Up")                           << 5  << 5 << int(Key::Up)       << ctrl  << "1,5";
    QTest::newRow("Ctrl+Down")                         << 5  << 5 << int(Key::Down)     << ctrl  << "19,5";
    QTest::newRow("Ctrl+Left")                         << 5  << 5 << int(Key::Left)     << ctrl  << "5,2";
    QTest::newRow("Ctrl+Right")                        << 5  << 2 << int(Key::Right)    << ctrl  << "5,6";
    QTest::newRow("Shift+Down extends")                << 2  << 2 << int(Key::Down)     << shift << "2,2 to 3,2";
    QTest::newRow("Shift+End extends")                 << 2  << 2 << int(Key::End)      << shift << "2,2 to 2,6";
    QTest::newRow("Ctrl+Shift+End extends")            << 2  << 2 << int(Key::End)      << (ctrl | shift) << "2,2 to 19,6";
    QTest::newRow("Shift+Left extends over the hidden")<< 2  << 5 << int(Key::Left)     << shift << "2,5 to 2,3";
    QTest::newRow("down from the titles")              << 0  << 2 << int(Key::Down)     << plain << "1,2";
    QTest::newRow("left from the titles")              << 0  << 3 << int(Key::Left)     << plain << "1,2";
    QTest::newRow("down from the fixed column")        << 3  << 0 << int(Key::Down)     << plain << "4,2";
    // clang-format on
}

void tst_CellCursor::keysMove()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, key);
    QFETCH(int, shiftState);
    LineSizes rows(21, 285);
    rows.setSize(8, 0);
    rows.setSize(20, 0);
    LineSizes columns(7, 960);
    columns.setSize(1, 0);
    columns.setSize(4, 0);
    const auto move = cellMove(key, shiftState, false);
    QVERIFY(move);
    QTEST(written(moved(CellCursor::at(row, column), *move, shiftState & shift, {rows, columns, 5})), "cursor");
}

void tst_CellCursor::mirroredGridTurnsLeftAndRight()
{
    QVERIFY(cellMove(Key::Left, plain, true) == CellMove::Right);
    QVERIFY(cellMove(Key::Right, plain, true) == CellMove::Left);
    QVERIFY(cellMove(Key::Left, ctrl, true) == CellMove::LastColumn);
    QVERIFY(cellMove(Key::Home, plain, true) == CellMove::FirstColumn);
    QVERIFY(cellMove(Key::Up, plain, true) == CellMove::Up);
}

void tst_CellCursor::otherKeysMeanNothing()
{
    for (const int key : {int(Key::Tab), int(Key::Enter), int(Key::Escape), int(Key::Space), int(Key::Delete),
                          int(Key::F2), int('A')}) {
        QVERIFY(!cellMove(key, plain, false));
    }
    QVERIFY(!cellMove(Key::Down, ShiftState::Alt, false));
}

void tst_CellCursor::withoutAnyRowNothingMoves()
{
    const LineSizes none(1, 285);
    for (const CellMove move : {CellMove::Up, CellMove::Down, CellMove::PageDown, CellMove::FirstCell,
                                CellMove::LastCell, CellMove::LastColumn}) {
        QCOMPARE(written(moved(CellCursor::at(0, 0), move, false, {none, none, 5})), QStringLiteral("0,0"));
    }
}

void tst_CellCursor::selectionFollowsTheMode_data()
{
    QTest::addColumn<SelectionModeType>("mode");
    QTest::addColumn<QList<int>>("cells");
    QTest::newRow("free: between the corners") << SelectionModeType::Free << QList<int>{2, 1, 4, 3};
    QTest::newRow("by row: whole rows") << SelectionModeType::ByRow << QList<int>{2, 1, 4, 5};
    QTest::newRow("by column: whole columns") << SelectionModeType::ByColumn << QList<int>{1, 1, 9, 3};
}

void tst_CellCursor::selectionFollowsTheMode()
{
    QFETCH(SelectionModeType, mode);
    const CellRange range = selectedCells({4, 1, 2, 3}, mode, 10, 6);
    QTEST((QList<int>{range.top, range.left, range.bottom, range.right}), "cells");
}

void tst_CellCursor::fitsIntoASmallerGrid()
{
    QCOMPARE(written(fitted({4, 1, 2, 3}, 4, 3)), QStringLiteral("3,1 to 2,2"));
    QCOMPARE(written(fitted({4, 1, 2, 3}, 5, 4)), QStringLiteral("4,1 to 2,3"));
    QCOMPARE(written(fitted({4, 1, 2, 3}, 1, 1)), QStringLiteral("0,0"));
}

QTEST_GUILESS_MAIN(tst_CellCursor)
#include "tst_cellcursor.moc"
