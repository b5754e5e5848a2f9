// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/gridstage.h"
#include "support/deletion.h"
#include "support/runtimeerrors.h"

#include <QtWidgets/QHeaderView>

#include <functional>
#include <vector>

using namespace kor;
using namespace kor::test;

//! The current cell and the selection, by program, keys and mouse.
class tst_FlexGrid : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void freshGridHasOneCell();
    void keepsNoTitlesOfTheToolkit();
    void programMovesOnce();
    void rowsOutsideAreRefused_data();
    void rowsOutsideAreRefused();
    void removedRowsMoveTheCursor();
    void addsTextsBetweenTabs();
    void keysMove_data();
    void keysMove();
    void keysAreOfferedFirst();
    void keysScroll();
    void aCellIsInSightWhenItIsEntered();
    void aRefusedMoveScrollsNothing();
    void keysOfTheFormAreItsOwn();
    void mouseMoves();
    void partlyShownRowIsScrolledIn();
    void doubleClick();
    void shiftClickExtends();
    void draggingSelects();
    void draggingBeyondScrolls();
    void titleSelectsItsColumn();
    void fixedColumnSelectsItsRow();
    void blankSpaceIsNoCell();
    void refusedLeaveStays();
    void handlersMayMoveOn();
    void handlersMayDelete_data();
    void handlersMayDelete();
    void titleHandlersMayDelete();
    void programMovesSurviveDeletion();
    void withoutRedrawCellsAreQuiet();
};

void tst_FlexGrid::keepsNoTitlesOfTheToolkit()
{
    FlexGrid grid(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto titles = grid.findChildren<QHeaderView *>();
    QCOMPARE(titles.size(), 2);
    QVERIFY(titles.contains(grid.horizontalHeader()));
    QVERIFY(titles.contains(grid.verticalHeader()));
}

void tst_FlexGrid::freshGridHasOneCell()
{
    FlexGrid grid(nullptr);
    QCOMPARE(grid.Rows(), 2);
    QCOMPARE(grid.Cols(), 2);
    QCOMPARE(grid.Row(), 1);
    QCOMPARE(grid.Col(), 1);
    QCOMPARE(grid.TopRow(), 1);
    QCOMPARE(grid.LeftCol(), 1);
    QCOMPARE(grid.RowHeight(1), 285);
    QCOMPARE(grid.Text(), QString());
    QCOMPARE(grid.BorderStyle(), BorderStyleType::FixedSingle);
}

void tst_FlexGrid::programMovesOnce()
{
    GridStage on;
    on.grid->setRow(3);
    QCOMPARE(on.take(), QStringLiteral("LeaveCell(1,1) EnterCell(3,1) RowColChange SelChange"));
    on.grid->setRow(3);
    QCOMPARE(on.take(), QString());
    on.grid->setCurrentCell(5, 4);
    QCOMPARE(on.take(), QStringLiteral("LeaveCell(3,1) EnterCell(5,4) RowColChange SelChange"));
    QCOMPARE(on.grid->Text(), QStringLiteral("5,4"));
    on.grid->setRowSel(7);
    QCOMPARE(on.take(), QStringLiteral("SelChange"));
    QCOMPARE(on.cursor(), QStringLiteral("5,4 to 7,4"));
    on.grid->setCol(2);
    QCOMPARE(on.cursor(), QStringLiteral("5,2"));
    on.grid->setRow(0); // among the titles
    QCOMPARE(on.grid->Text(), QStringLiteral("0,2"));
    QVERIFY(!on.grid->currentIndex().isValid());
    on.grid->setRow(19); // scrolls nothing
    QCOMPARE(on.grid->TopRow(), 1);
    QCOMPARE(on.grid->currentIndex(), on.grid->model()->index(18, 1));
}

void tst_FlexGrid::rowsOutsideAreRefused_data()
{
    QTest::addColumn<std::function<void(FlexGrid &)>>("call");
    QTest::addColumn<int>("error");
    using Call = std::function<void(FlexGrid &)>;
    // clang-format off
    QTest::newRow("Row below the titles")       << Call([](FlexGrid &grid) { grid.setRow(-1); })               << 380;
    QTest::newRow("Row behind the last")        << Call([](FlexGrid &grid) { grid.setRow(20); })               << 380;
    QTest::newRow("Col behind the last")        << Call([](FlexGrid &grid) { grid.setCol(6); })                << 380;
    QTest::newRow("RowSel behind the last")     << Call([](FlexGrid &grid) { grid.setRowSel(20); })            << 380;
    QTest::newRow("TopRow of the titles")       << Call([](FlexGrid &grid) { grid.setTopRow(0); })             << 380;
    QTest::newRow("TopRow behind the last")     << Call([](FlexGrid &grid) { grid.setTopRow(20); })            << 380;
    QTest::newRow("LeftCol behind the last")    << Call([](FlexGrid &grid) { grid.setLeftCol(6); })            << 380;
    QTest::newRow("no Rows")                    << Call([](FlexGrid &grid) { grid.setRows(0); })               << 380;
    QTest::newRow("no Cols")                    << Call([](FlexGrid &grid) { grid.setCols(0); })               << 380;
    QTest::newRow("SelectionMode")              << Call([](FlexGrid &grid) { grid.setSelectionMode(SelectionModeType(3)); }) << 380;
    QTest::newRow("BorderStyle")                << Call([](FlexGrid &grid) { grid.setBorderStyle(BorderStyleType(2)); })     << 380;
    QTest::newRow("alignment of a column")      << Call([](FlexGrid &grid) { grid.setColAlignment(1, CellAlignmentType(10)); }) << 380;
    QTest::newRow("alignment of a cell")        << Call([](FlexGrid &grid) { grid.setCellAlignment(1, 1, CellAlignmentType(-1)); }) << 380;
    QTest::newRow("negative height")            << Call([](FlexGrid &grid) { grid.setRowHeightMin(-1); })      << 380;
    QTest::newRow("width below the usual's -1") << Call([](FlexGrid &grid) { grid.setColWidth(1, -2); })       << 380;
    QTest::newRow("text of no row")             << Call([](FlexGrid &grid) { (void)grid.TextMatrix(20, 1); })  << 381;
    QTest::newRow("text of no column")          << Call([](FlexGrid &grid) { grid.setTextMatrix(1, 6, {}); })  << 381;
    QTest::newRow("text of a negative row")     << Call([](FlexGrid &grid) { (void)grid.TextMatrix(-1, 1); })  << 381;
    QTest::newRow("width of no column")         << Call([](FlexGrid &grid) { (void)grid.ColWidth(6); })        << 381;
    QTest::newRow("data of no column")          << Call([](FlexGrid &grid) { grid.setColData(6, 1); })         << 381;
    QTest::newRow("height of no row")           << Call([](FlexGrid &grid) { grid.setRowHeight(20, 300); })    << 381;
    QTest::newRow("visibility of no row")       << Call([](FlexGrid &grid) { (void)grid.RowIsVisible(20); })   << 381;
    QTest::newRow("adding before the titles")   << Call([](FlexGrid &grid) { grid.AddItem({}, 0); })           << 381;
    QTest::newRow("adding behind the end")      << Call([](FlexGrid &grid) { grid.AddItem({}, 21); })          << 381;
    QTest::newRow("removing the titles")        << Call([](FlexGrid &grid) { grid.RemoveItem(0); })            << 381;
    QTest::newRow("removing more than there are") << Call([](FlexGrid &grid) { grid.RemoveItem(19, 2); })      << 381;
    // clang-format on
}

void tst_FlexGrid::rowsOutsideAreRefused()
{
    QFETCH(std::function<void(FlexGrid &)>, call);
    GridStage on;
    on.grid->setCurrentCell(4, 2);
    (void)on.take();
    const auto perform = [&] {
        call(*on.grid);
        return 0;
    };
    QTEST(errorOf(perform), "error");
    QCOMPARE(on.cursor(), QStringLiteral("4,2"));
    QCOMPARE(on.grid->Rows(), 20);
    QCOMPARE(on.take(), QString());
}

void tst_FlexGrid::removedRowsMoveTheCursor()
{
    GridStage on;
    on.grid->setCurrentCell(10, 5);
    (void)on.take();
    on.grid->RemoveItem(3, 2); // above: the current cell stays where it is, and shows what moved up
    QCOMPARE(on.take(), QString());
    QCOMPARE(on.grid->Rows(), 18);
    QCOMPARE(on.grid->Text(), QStringLiteral("12,5"));
    QCOMPARE(on.grid->currentIndex(), on.grid->model()->index(9, 4));
    on.grid->AddItem(QStringLiteral("new"), 2);
    QCOMPARE(on.grid->Text(), QStringLiteral("11,5"));
    QCOMPARE(on.grid->currentIndex(), on.grid->model()->index(9, 4));
    on.grid->setRows(5);
    QCOMPARE(on.take(), QStringLiteral("LeaveCell(10,5) EnterCell(4,5) RowColChange SelChange"));
    on.grid->setCols(3);
    QCOMPARE(on.take(), QStringLiteral("LeaveCell(4,5) EnterCell(4,2) RowColChange SelChange"));
    on.grid->setRows(1);
    QCOMPARE(on.cursor(), QStringLiteral("0,2"));
    QVERIFY(!on.grid->currentIndex().isValid());
    (void)on.take();
    on.grid->setRows(3); // and out of the titles again
    QCOMPARE(on.take(), QStringLiteral("LeaveCell(0,2) EnterCell(1,2) RowColChange SelChange"));
    QCOMPARE(on.cursor(), QStringLiteral("1,2"));
    QCOMPARE(on.grid->currentIndex(), on.grid->model()->index(0, 1));
    QCOMPARE(on.grid->TextMatrix(2, 2), QString());
    on.grid->setCols(1);
    on.grid->setCols(3);
    QCOMPARE(on.cursor(), QStringLiteral("1,1"));
    on.grid->setRow(0); // where the program has put it, it stays
    on.grid->setRows(5);
    QCOMPARE(on.cursor(), QStringLiteral("0,1"));
}

void tst_FlexGrid::addsTextsBetweenTabs()
{
    GridStage on;
    on.grid->AddItem(QStringLiteral("a\t\tc\td\te\tf\tg"));
    QCOMPARE(on.grid->Rows(), 21);
    QCOMPARE(on.grid->TextMatrix(20, 0), QStringLiteral("a"));
    QCOMPARE(on.grid->TextMatrix(20, 1), QString());
    QCOMPARE(on.grid->TextMatrix(20, 5), QStringLiteral("f"));
    QCOMPARE(on.take(), QString());
}

void tst_FlexGrid::keysMove_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("cursor");
    // from 5,3; column 4 is hidden
    // clang-format off
    QTest::newRow("Down")           << Qt::Key_Down     << Qt::KeyboardModifiers()                    << QStringLiteral("6,3");
    QTest::newRow("Right")          << Qt::Key_Right    << Qt::KeyboardModifiers()                    << QStringLiteral("5,5");
    QTest::newRow("PageDown")       << Qt::Key_PageDown << Qt::KeyboardModifiers()                    << QStringLiteral("17,3");
    QTest::newRow("End")            << Qt::Key_End      << Qt::KeyboardModifiers()                    << QStringLiteral("5,5");
    QTest::newRow("Ctrl+Home")      << Qt::Key_Home     << Qt::KeyboardModifiers(Qt::ControlModifier) << QStringLiteral("1,1");
    QTest::newRow("Ctrl+End")       << Qt::Key_End      << Qt::KeyboardModifiers(Qt::ControlModifier) << QStringLiteral("19,5");
    QTest::newRow("Shift+Up")       << Qt::Key_Up       << Qt::KeyboardModifiers(Qt::ShiftModifier)   << QStringLiteral("5,3 to 4,3");
    QTest::newRow("Shift+Ctrl+End") << Qt::Key_End      << (Qt::ControlModifier | Qt::ShiftModifier)  << QStringLiteral("5,3 to 19,5");
    QTest::newRow("a letter")       << Qt::Key_A        << Qt::KeyboardModifiers()                    << QStringLiteral("5,3");
    // clang-format on
}

void tst_FlexGrid::keysMove()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    GridStage on;
    on.grid->setColWidth(4, 0);
    on.grid->setCurrentCell(5, 3);
    QVERIFY(on.open());
    QTest::keyClick(on.grid, key, modifiers);
    QTEST(on.cursor(), "cursor");
}

void tst_FlexGrid::keysAreOfferedFirst()
{
    GridStage on;
    QVERIFY(on.open());
    QTest::keyClick(on.grid, Qt::Key_Down);
    QCOMPARE(on.take(),
             QStringLiteral("KeyDown(40,0) LeaveCell(1,1) EnterCell(2,1) RowColChange SelChange KeyUp(40,0)"));
    QTest::keyClick(on.grid, 'x');
    QCOMPARE(on.take(), QStringLiteral("KeyDown(88,0) KeyPress(120) KeyUp(88,0)"));
    auto swallow = QObject::connect(on.grid, &FlexGrid::KeyDown, on.grid, [](int &code, int &) { code = 0; });
    QTest::keyClick(on.grid, Qt::Key_Down);
    QTest::keyClick(on.grid, 'x');
    QCOMPARE(on.take(), QStringLiteral("KeyDown(40,0) KeyUp(40,0) KeyDown(88,0) KeyUp(88,0)"));
    QCOMPARE(on.cursor(), QStringLiteral("2,1"));
    QObject::disconnect(swallow);
    QObject::connect(on.grid, &FlexGrid::KeyDown, on.grid, [](int &code, int &shift) {
        code = 35; // End
        shift = 2;
    });
    QTest::keyClick(on.grid, Qt::Key_Down);
    QCOMPARE(on.cursor(), QStringLiteral("19,5"));
}

void tst_FlexGrid::keysScroll()
{
    GridStage on;
    QVERIFY(on.open());
    QTest::keyClick(on.grid, Qt::Key_End, Qt::ControlModifier);
    QVERIFY(on.grid->RowIsVisible(19));
    QVERIFY(on.grid->viewport()->rect().contains(on.grid->cellRect(19, 5)));
    settle();
    QVERIFY(on.take().endsWith(QStringLiteral("Scroll")));
    QTest::keyClick(on.grid, Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(on.grid->TopRow(), 1);
    on.grid->setCurrentCell(15, 1);
    QTest::keyClick(on.grid, Qt::Key_Up);
    QVERIFY(on.grid->viewport()->rect().contains(on.grid->cellRect(14, 1)));
}

void tst_FlexGrid::aCellIsInSightWhenItIsEntered()
{
    GridStage on;
    QVERIFY(on.open());
    QStringList entered;
    const QRect room = on.grid->viewport()->rect();
    QObject::connect(on.grid, &FlexGrid::EnterCell, on.grid, [&] {
        const bool isInSight = room.contains(on.grid->cellRect(on.grid->Row(), on.grid->Col()));
        entered << QStringLiteral("%1 %2").arg(on.grid->Row()).arg(isInSight ? u"in sight" : u"hidden");
    });
    QTest::keyClick(on.grid, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(on.grid, Qt::Key_PageUp);
    QTest::keyClick(on.grid, Qt::Key_PageUp);
    QTest::keyClick(on.grid, Qt::Key_PageDown);
    const QStringList inSight{QStringLiteral("19 in sight"), QStringLiteral("7 in sight"), QStringLiteral("1 in sight"),
                              QStringLiteral("13 in sight")};
    QCOMPARE(entered, inSight);
}

void tst_FlexGrid::aRefusedMoveScrollsNothing()
{
    GridStage on;
    QVERIFY(on.open());
    QObject::connect(on.grid, &FlexGrid::askToLeave, on.grid, [](bool &stays) { stays = true; });
    QTest::keyClick(on.grid, Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(on.cursor(), QStringLiteral("1,1"));
    QCOMPARE(on.grid->TopRow(), 1);
}

void tst_FlexGrid::keysOfTheFormAreItsOwn()
{
    struct Form : QWidget {
        QStringList keys;
        void keyPressEvent(QKeyEvent *event) override { keys << QString::number(event->key(), 16); }
    } form;
    FlexGrid grid(&form);
    form.show();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Down, Qt::Key_Home})
        QTest::keyClick(&grid, key);
    QCOMPARE(form.keys, (QStringList{QString::number(Qt::Key_Return, 16), QString::number(Qt::Key_Escape, 16)}));
}

void tst_FlexGrid::mouseMoves()
{
    GridStage on;
    QVERIFY(on.stage.open());
    on.click(3, 2);
    QVERIFY(on.grid->hasFocus());
    QCOMPARE(on.take(), QStringLiteral("MouseDown(1,0 at 3,2) LeaveCell(1,1) EnterCell(3,2) RowColChange SelChange "
                                       "MouseUp(1,0 at 3,2) Click"));
    QTest::mouseClick(on.grid->viewport(), Qt::RightButton, {}, on.middle(5, 1));
    QCOMPARE(on.take(), QStringLiteral("MouseDown(2,0 at 5,1) MouseUp(2,0 at 5,1)"));
    QCOMPARE(on.cursor(), QStringLiteral("3,2"));
}

void tst_FlexGrid::partlyShownRowIsScrolledIn()
{
    GridStage on;
    QVERIFY(on.open());
    const int last = on.grid->shownRowsEnd() - 1;
    QVERIFY(on.grid->RowIsVisible(last));
    QVERIFY(!on.grid->RowIsVisible(last + 1));
    QVERIFY(!on.grid->viewport()->rect().contains(on.grid->cellRect(last, 1)));
    const QPoint place(on.middle(last, 1).x(), on.grid->viewport()->height() - 2);
    QTest::mouseClick(on.grid->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(on.grid->Row(), last);
    QVERIFY(on.grid->viewport()->rect().contains(on.grid->cellRect(last, 1)));
}

void tst_FlexGrid::doubleClick()
{
    GridStage on;
    QVERIFY(on.open());
    on.grid->setCurrentCell(3, 2);
    (void)on.take();
    on.click(3, 2);
    QTest::mouseDClick(on.grid->viewport(), Qt::LeftButton, {}, on.middle(3, 2));
    QTest::mouseRelease(on.grid->viewport(), Qt::LeftButton, {}, on.middle(3, 2));
    QCOMPARE(on.take(), QStringLiteral("MouseDown(1,0 at 3,2) MouseUp(1,0 at 3,2) Click DblClick MouseUp(1,0 at 3,2)"));
}

void tst_FlexGrid::shiftClickExtends()
{
    GridStage on;
    QVERIFY(on.open());
    on.click(3, 2);
    on.click(5, 4, Qt::ShiftModifier);
    QCOMPARE(on.cursor(), QStringLiteral("3,2 to 5,4"));
    QCOMPARE(on.grid->selectedRange(), (CellRange{3, 2, 5, 4}));
    QCOMPARE(on.grid->selectionModel()->selectedIndexes().size(), 9);
    on.grid->setSelectionMode(SelectionModeType::ByRow);
    QCOMPARE(on.grid->selectedRange(), (CellRange{3, 1, 5, 5}));
    QCOMPARE(on.grid->selectionModel()->selectedIndexes().size(), 15);
    on.click(4, 4);
    QCOMPARE(on.cursor(), QStringLiteral("4,4"));
    QCOMPARE(on.grid->selectedRange(), (CellRange{4, 1, 4, 5}));
}

void tst_FlexGrid::draggingSelects()
{
    GridStage on;
    QVERIFY(on.open());
    on.press(3, 2);
    (void)on.take();
    on.drag(on.middle(3, 2) + QPoint(1, 1));
    QCOMPARE(on.take(), QString());
    on.drag(on.middle(6, 3));
    QCOMPARE(on.take(), QStringLiteral("SelChange"));
    QCOMPARE(on.cursor(), QStringLiteral("3,2 to 6,3"));
    on.drag(on.middle(1, 1));
    QCOMPARE(on.cursor(), QStringLiteral("3,2 to 1,1"));
    QTest::mouseRelease(on.grid->viewport(), Qt::LeftButton, {}, on.middle(1, 1));
    on.drag(on.middle(6, 3));
    QCOMPARE(on.cursor(), QStringLiteral("3,2 to 1,1"));
}

void tst_FlexGrid::draggingBeyondScrolls()
{
    GridStage on;
    QVERIFY(on.open());
    on.press(3, 2);
    on.drag({on.middle(3, 2).x(), on.grid->viewport()->height() + 10});
    QTRY_COMPARE(on.cursor(), QStringLiteral("3,2 to 19,2"));
    QVERIFY(on.grid->RowIsVisible(19));
    on.drag({on.middle(3, 2).x(), -10});
    QTRY_COMPARE(on.cursor(), QStringLiteral("3,2 to 1,2"));
    QCOMPARE(on.grid->TopRow(), 1);
    QTest::mouseRelease(on.grid->viewport(), Qt::LeftButton, {}, on.middle(1, 2));
}

void tst_FlexGrid::titleSelectsItsColumn()
{
    GridStage on;
    QVERIFY(on.stage.open());
    on.grid->setTopRow(4);
    settle();
    (void)on.take();
    QWidget *titles = on.grid->horizontalHeader()->viewport();
    const int x = on.grid->horizontalHeader()->sectionViewportPosition(2) + 20;
    QTest::mouseClick(titles, Qt::LeftButton, {}, {x, 5});
    QVERIFY(on.grid->hasFocus());
    QCOMPARE(on.take(), QStringLiteral("MouseDown(1,0 at 0,3) LeaveCell(1,1) EnterCell(1,3) RowColChange SelChange "
                                       "MouseUp(1,0 at 0,3) Click"));
    QCOMPARE(on.cursor(), QStringLiteral("1,3 to 19,3"));
    QCOMPARE(on.grid->TopRow(), 4);
}

void tst_FlexGrid::fixedColumnSelectsItsRow()
{
    GridStage on;
    QVERIFY(on.stage.open());
    QTest::mouseClick(on.grid->verticalHeader()->viewport(), Qt::LeftButton, {}, {5, on.middle(4, 1).y()});
    QCOMPARE(on.take(), QStringLiteral("MouseDown(1,0 at 4,0) LeaveCell(1,1) EnterCell(4,1) RowColChange SelChange "
                                       "MouseUp(1,0 at 4,0) Click"));
    QCOMPARE(on.cursor(), QStringLiteral("4,1 to 4,5"));
}

void tst_FlexGrid::blankSpaceIsNoCell()
{
    GridStage on;
    on.grid->setRows(4);
    QVERIFY(on.stage.open());
    (void)on.take();
    QTest::mouseClick(on.grid->viewport(), Qt::LeftButton, {}, {10, 150});
    QCOMPARE(on.take(), QStringLiteral("MouseDown(1,0 at -1,1) MouseUp(1,0 at -1,1) Click"));
    QCOMPARE(on.cursor(), QStringLiteral("1,1"));
}

void tst_FlexGrid::refusedLeaveStays()
{
    GridStage on;
    QVERIFY(on.open());
    bool refuses = true;
    QObject::connect(on.grid, &FlexGrid::askToLeave, on.grid, [&](bool &stays) { stays = refuses; });
    QTest::keyClick(on.grid, Qt::Key_Down);
    on.press(5, 5);
    on.drag(on.middle(7, 3));
    QTest::mouseRelease(on.grid->viewport(), Qt::LeftButton, {}, on.middle(7, 3));
    QCOMPARE(on.cursor(), QStringLiteral("1,1"));
    QVERIFY(!on.take().contains(QStringLiteral("LeaveCell")));
    on.grid->setRow(2); // a program is not asked
    QCOMPARE(on.cursor(), QStringLiteral("2,1"));
    refuses = false;
    QTest::keyClick(on.grid, Qt::Key_Down);
    QCOMPARE(on.cursor(), QStringLiteral("3,1"));
}

void tst_FlexGrid::handlersMayMoveOn()
{
    GridStage on;
    QObject::connect(on.grid, &FlexGrid::EnterCell, on.grid, [&] {
        if (on.grid->Row() == 5)
            on.grid->setRow(7);
    });
    on.grid->setRow(5);
    QCOMPARE(on.cursor(), QStringLiteral("7,1"));
    QCOMPARE(on.take(), QStringLiteral("LeaveCell(1,1) EnterCell(5,1) LeaveCell(5,1) EnterCell(7,1) RowColChange "
                                       "SelChange"));
    QObject::connect(on.grid, &FlexGrid::LeaveCell, on.grid, [&] {
        if (on.grid->Rows() > 10)
            on.grid->RemoveItem(10, on.grid->Rows() - 10);
    });
    on.grid->setRow(15); // which is gone before it is reached
    QCOMPARE(on.grid->Rows(), 10);
    QVERIFY(on.grid->Row() < 10);
}

void tst_FlexGrid::handlersMayDelete_data()
{
    QTest::addColumn<QString>("event");
    for (const char *event : {"LeaveCell", "EnterCell", "RowColChange", "SelChange", "KeyDown", "KeyPress", "KeyUp",
                              "MouseDown", "MouseMove", "MouseUp", "Click", "DblClick", "Scroll", "askToLeave"})
        QTest::newRow(event) << QString::fromLatin1(event);
}

void tst_FlexGrid::handlersMayDelete()
{
    QFETCH(QString, event);
    GridStage on;
    QVERIFY(on.open());
    on.grid->setCurrentCell(1, 4);
    const DeletionOn deletion(on.grid, event);
    QVERIFY(deletion.isListening());
    const QPointer<FlexGrid> grid = on.grid;
    const std::vector<std::function<void()>> inputs{
        [&] { QTest::keyClick(on.grid, Qt::Key_X); },
        [&] { QTest::mouseMove(on.grid->viewport(), on.middle(2, 2)); },
        [&] { on.press(3, 3); },
        [&] { on.drag(on.middle(5, 4)); },
        [&] { QTest::mouseRelease(on.grid->viewport(), Qt::LeftButton, {}, on.middle(5, 4)); },
        [&] { QTest::mouseDClick(on.grid->viewport(), Qt::LeftButton, {}, on.middle(5, 4)); },
        [&] { QTest::keyClick(on.grid, Qt::Key_End, Qt::ControlModifier); },
        [&] { settle(); },
    };
    for (const auto &input : inputs) {
        if (grid)
            input();
    }
    QVERIFY(deletion.isDone());
}

void tst_FlexGrid::titleHandlersMayDelete()
{
    GridStage on;
    QVERIFY(on.open());
    const DeletionOn deletion(on.grid, QStringLiteral("Click"));
    QTest::mouseClick(on.grid->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 5});
    QVERIFY(deletion.isDone());
}

void tst_FlexGrid::programMovesSurviveDeletion()
{
    for (const QString &event : {QStringLiteral("LeaveCell"), QStringLiteral("EnterCell"),
                                 QStringLiteral("RowColChange"), QStringLiteral("SelChange")}) {
        GridStage on;
        const DeletionOn moving(on.grid, event);
        QVERIFY(!on.grid->setCurrentCell(3, 3));
        QVERIFY(moving.isDone());
        GridStage other;
        other.grid->setRow(10);
        const DeletionOn removing(other.grid, event);
        other.grid->RemoveItem(2, 18);
        QVERIFY(removing.isDone());
    }
}

void tst_FlexGrid::withoutRedrawCellsAreQuiet()
{
    GridStage on;
    QSignalSpy changed(on.grid->model(), &QAbstractItemModel::dataChanged);
    on.grid->setRedraw(false);
    for (int row = 1; row < 20; ++row)
        on.grid->setTextMatrix(row, 1, QStringLiteral("x"));
    on.grid->setRow(4);
    QCOMPARE(changed.count(), 0);
    on.grid->setRedraw(true);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(on.grid->currentIndex(), on.grid->model()->index(3, 0));
    QVERIFY(on.grid->updatesEnabled());
}

QTEST_MAIN(tst_FlexGrid)
#include "tst_flexgrid.moc"
