// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/gridstage.h"
#include "support/onevent.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

using namespace kor;
using namespace kor::test;

namespace {

void wheel(FlexGrid *grid, int notches)
{
    const QPoint place = grid->viewport()->rect().center();
    QWheelEvent event(place, grid->viewport()->mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(grid->viewport(), &event);
}

//! Whether something of a colour is to be seen in a place.
bool shows(const QImage &image, const QRect &place, const QColor &color)
{
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

} // namespace

//! Sizes and places of cells, scrolling, and how cells look.
class tst_CellView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void cellsAreWhereTheToolkitSays_data();
    void cellsAreWhereTheToolkitSays();
    void placeOfTheCurrentCellIsInTwips();
    void hiddenLinesTakeNoSpace();
    void anyRowCanBeTheTop();
    void scrollBarEndsWithTheLastRow();
    void partlyShownRowsAreVisible();
    void columnsScrollWhole();
    void scrollBarsAreThereForCellsOnly_data();
    void scrollBarsAreThereForCellsOnly();
    void wheelScrollsOnly();
    void bordersAreDragged();
    void doubleClickOnABorderFitsWhatIsSeen();
    void hiddenColumnsCannotBeDraggedOut();
    void wrappedRowsGrow();
    void mixedHeightsOfAMillionRows();
    void coloursAndAlignments();
    void numbersThatDoNotFitShowARunOfSigns();
    void aCellUnderAnEditorShowsNoTextBesideIt();
    void changedCellsAreRepainted();
    void selectionIsSeen();
    void blankSpaceHasItsOwnColor();
    void screenReadersSeeTheTable();
    void assistiveToolsMoveTheCursor();
};

void tst_CellView::cellsAreWhereTheToolkitSays_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_CellView::cellsAreWhereTheToolkitSays()
{
    QFETCH(Qt::LayoutDirection, direction);
    GridStage on;
    on.stage.setLayoutDirection(direction);
    on.grid->setRowHeight(6, 600);
    on.grid->setColWidth(3, 1500);
    on.grid->setTopRow(4);
    on.grid->setLeftCol(2);
    QVERIFY(on.open());
    for (const int row : {1, 4, 5, 6, 7, 19}) {
        for (const int column : {1, 2, 3, 5}) {
            const QModelIndex index = on.grid->model()->index(row - 1, column - 1);
            const QRect cell = on.grid->visualRect(index);
            QCOMPARE(cell.size(), on.grid->cellRect(row, column).size() - QSize(1, 1));
            QCOMPARE(cell.height() + 1, row == 6 ? 40 : 19);
            QCOMPARE(cell.width() + 1, column == 3 ? 100 : 64);
            QCOMPARE(cell.top(), on.grid->rowViewportPosition(row - 1));
            QCOMPARE(on.grid->cellRect(row, column).left(), on.grid->columnViewportPosition(column - 1));
            if (row >= 4 && column >= 2 && row < 19)
                QCOMPARE(on.grid->indexAt(cell.center()), index);
        }
    }
    QCOMPARE(on.grid->cellRect(4, 2).top(), 0);
    QCOMPARE(on.grid->rowAt(on.grid->cellRect(7, 1).center().y()), 6);
    const int fixed = on.grid->cellRect(4, 0).left();
    QCOMPARE(fixed, direction == Qt::LeftToRight ? -21 : on.grid->viewport()->width());
}

void tst_CellView::placeOfTheCurrentCellIsInTwips()
{
    GridStage on;
    on.grid->setBorderStyle(BorderStyleType::None);
    on.grid->setColWidth(1, 1200);
    on.grid->setCurrentCell(3, 2);
    QVERIFY(on.open());
    QCOMPARE(on.grid->CellLeft(), 315 + 1200);
    QCOMPARE(on.grid->CellTop(), 3 * 285);
    QCOMPARE(on.grid->CellWidth(), 960);
    QCOMPARE(on.grid->CellHeight(), 285);
    on.grid->setTopRow(2);
    QCOMPARE(on.grid->CellTop(), 2 * 285);
    on.grid->setRow(0);
    QCOMPARE(on.grid->CellTop(), 0);
    QCOMPARE(on.grid->CellHeight(), 285);
}

void tst_CellView::hiddenLinesTakeNoSpace()
{
    GridStage on;
    on.grid->setColWidth(2, 0);
    on.grid->setRowHeight(2, 0);
    QVERIFY(on.open());
    QCOMPARE(on.grid->cellRect(3, 3).topLeft(), QPoint(64, 19));
    QVERIFY(!on.grid->ColIsVisible(2));
    QVERIFY(!on.grid->RowIsVisible(2));
    QVERIFY(on.grid->ColIsVisible(0));
    QVERIFY(on.grid->RowIsVisible(0));
    QCOMPARE(on.grid->visualRect(on.grid->model()->index(1, 1)), QRect());
    on.grid->setColWidth(2, -1);
    on.grid->setRowHeight(2, -1);
    QCOMPARE(on.grid->ColWidth(2), 960);
    QCOMPARE(on.grid->cellRect(3, 3).topLeft(), QPoint(128, 38));
    on.grid->setRowHeight(2, 100); // never below the least height
    QCOMPARE(on.grid->RowHeight(2), 285);
    on.grid->setRowHeightMin(400);
    QCOMPARE(on.grid->RowHeight(3), 400);
    QCOMPARE(on.grid->cellRect(2, 1).top(), 27);
}

void tst_CellView::anyRowCanBeTheTop()
{
    GridStage on;
    QVERIFY(on.open());
    on.grid->setTopRow(19);
    QCOMPARE(on.grid->TopRow(), 19);
    QCOMPARE(on.grid->cellRect(19, 1).top(), 0);
    QVERIFY(!on.grid->RowIsVisible(18));
    on.stage.resize(600, 500);
    settle();
    QCOMPARE(on.grid->TopRow(), 19);
    on.grid->setRows(18);
    QCOMPARE(on.grid->TopRow(), 17);
    on.grid->setRows(3); // which fit without scrolling
    on.grid->setTopRow(2);
    settle();
    QCOMPARE(on.grid->TopRow(), 2);
}

void tst_CellView::scrollBarEndsWithTheLastRow()
{
    GridStage on;
    QVERIFY(on.open());
    on.grid->verticalScrollBar()->setValue(on.grid->verticalScrollBar()->maximum());
    QVERIFY(on.grid->viewport()->rect().contains(on.grid->cellRect(19, 1)));
    QVERIFY(!on.grid->viewport()->rect().contains(on.grid->cellRect(on.grid->TopRow(), 1).translated(0, -1)));
    on.grid->setTopRow(19);
    on.grid->setTopRow(1);
    const int top = on.grid->verticalScrollBar()->maximum() + 1;
    QVERIFY(top < 19); // the blank space behind the last row is the program's only
}

void tst_CellView::partlyShownRowsAreVisible()
{
    GridStage on;
    QVERIFY(on.open());
    const int behind = on.grid->shownRowsEnd();
    QVERIFY(behind < 20);
    QVERIFY(on.grid->cellRect(behind - 1, 1).top() < on.grid->viewport()->height());
    QVERIFY(on.grid->cellRect(behind, 1).top() >= on.grid->viewport()->height());
    QVERIFY(on.grid->RowIsVisible(behind - 1));
    QVERIFY(!on.grid->RowIsVisible(behind));
    on.grid->setColWidth(5, 20000);
    QVERIFY(on.grid->ColIsVisible(5));
    on.grid->setColWidth(1, 20000);
    QVERIFY(on.grid->ColIsVisible(1));
    QVERIFY(!on.grid->ColIsVisible(2));
}

void tst_CellView::scrollBarsAreThereForCellsOnly_data()
{
    QTest::addColumn<QSize>("beyond"); // room beyond the cells
    QTest::addColumn<bool>("isAcross");
    QTest::addColumn<bool>("isDown");
    QTest::newRow("cells that just fit need none") << QSize(0, 0) << false << false;
    QTest::newRow("nor for less room than a bar takes") << QSize(5, 5) << false << false;
    QTest::newRow("nor for room enough") << QSize(50, 50) << false << false;
    QTest::newRow("a row too many takes room from the columns") << QSize(5, -1) << true << true;
    QTest::newRow("a column too many takes room from the rows") << QSize(-1, 5) << true << true;
    QTest::newRow("a row too many beside narrow columns") << QSize(50, -1) << false << true;
    QTest::newRow("a column too many over few rows") << QSize(-1, 50) << true << false;
    QTest::newRow("too many of both") << QSize(-1, -1) << true << true;
}

//! Whatever size the grid had before. Two bars that show and hide each other would never come to an end.
void tst_CellView::scrollBarsAreThereForCellsOnly()
{
    QFETCH(QSize, beyond);
    GridStage on;
    on.grid->setRows(9);
    QVERIFY(on.open());
    const QRect last = on.grid->cellRect(8, 5);
    const QSize cells(last.right() + 1, last.bottom() + 1);
    const QSize around = on.grid->size() - on.grid->maximumViewportSize();
    const QSize size = cells + beyond + around;
    constexpr int patience = 100;
    int turns = 0;
    const OnEvent resized(on.grid->viewport(), QEvent::Resize, [&] {
        if (++turns == patience)
            on.grid->resize(cells * 3); // which ends it
    });
    for (const QSize before :
         {size * 2, QSize(size.width() / 2, size.height()), QSize(size.width(), size.height() / 2), size / 2}) {
        on.grid->resize(before);
        settle();
        turns = 0;
        on.grid->resize(size);
        settle();
        QVERIFY(turns < patience);
        QTEST(on.grid->horizontalScrollBar()->isVisible(), "isAcross");
        QTEST(on.grid->verticalScrollBar()->isVisible(), "isDown");
    }
}

void tst_CellView::columnsScrollWhole()
{
    GridStage on;
    for (int column = 1; column < 6; ++column)
        on.grid->setColWidth(column, 3000);
    QVERIFY(on.open());
    QVERIFY(on.grid->horizontalScrollBar()->isVisible());
    on.grid->setLeftCol(3);
    QCOMPARE(on.grid->cellRect(1, 3).left(), 0);
    QCOMPARE(on.grid->horizontalHeader()->sectionViewportPosition(2), 0);
    on.grid->makeVisible(1, 5);
    QVERIFY(on.grid->viewport()->rect().contains(on.grid->cellRect(1, 5)));
    on.grid->makeVisible(1, 1);
    QCOMPARE(on.grid->LeftCol(), 1);
}

void tst_CellView::wheelScrollsOnly()
{
    GridStage on;
    QVERIFY(on.open());
    (void)on.take();
    wheel(on.grid, -1);
    settle();
    QCOMPARE(on.take(), QStringLiteral("Scroll"));
    QVERIFY(on.grid->TopRow() > 1);
    QCOMPARE(on.cursor(), QStringLiteral("1,1"));
    wheel(on.grid, 5);
    QCOMPARE(on.grid->TopRow(), 1);
}

void tst_CellView::bordersAreDragged()
{
    GridStage on;
    QVERIFY(on.open());
    (void)on.take();
    QWidget *titles = on.grid->horizontalHeader()->viewport();
    const QPoint border(64 + 63, 5); // of column 2
    QTest::mouseMove(titles, border);
    QTest::mousePress(titles, Qt::LeftButton, {}, border);
    QMouseEvent move(QEvent::MouseMove, border + QPoint(36, 0), titles->mapToGlobal(border + QPoint(36, 0)),
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(titles, &move);
    QCOMPARE(on.grid->ColWidth(2), 1500);
    QCOMPARE(on.grid->cellRect(1, 3).left(), 64 + 100);
    QTest::mouseRelease(titles, Qt::LeftButton, {}, border + QPoint(36, 0));
    QVERIFY(!on.take().contains(QStringLiteral("Click")));
    QCOMPARE(on.cursor(), QStringLiteral("1,1"));
}

void tst_CellView::doubleClickOnABorderFitsWhatIsSeen()
{
    GridStage on;
    const QString shown = QStringLiteral("as wide as this text is");
    on.grid->setTextMatrix(2, 2, shown);
    on.grid->setTextMatrix(19, 2, shown.repeated(3)); // out of sight
    QVERIFY(on.open());
    (void)on.take();
    QWidget *titles = on.grid->horizontalHeader()->viewport();
    const QPoint border(64 + 63, 5);
    QTest::mouseMove(titles, border);
    QTest::mouseDClick(titles, Qt::LeftButton, {}, border);
    QTest::mouseRelease(titles, Qt::LeftButton, {}, border);
    QVERIFY(on.take().contains(QStringLiteral("ColumnResized(2)")));
    const int width = on.grid->cellRect(1, 2).width();
    const int text = on.grid->fontMetrics().horizontalAdvance(shown);
    QVERIFY(width > text && width < text + 30);
}

void tst_CellView::hiddenColumnsCannotBeDraggedOut()
{
    GridStage on;
    on.grid->setColWidth(2, 0);
    QVERIFY(on.open());
    QWidget *titles = on.grid->horizontalHeader()->viewport();
    const QPoint border(64 + 1, 5); // right of where column 2 would be
    QTest::mouseMove(titles, border);
    QTest::mousePress(titles, Qt::LeftButton, {}, border);
    QMouseEvent move(QEvent::MouseMove, border + QPoint(30, 0), titles->mapToGlobal(border + QPoint(30, 0)),
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(titles, &move);
    QTest::mouseRelease(titles, Qt::LeftButton, {}, border + QPoint(30, 0));
    QCOMPARE(on.grid->ColWidth(2), 0);
}

void tst_CellView::wrappedRowsGrow()
{
    GridStage on;
    const QString text = QStringLiteral("a text of several words that is much too long for its column");
    on.grid->setTextMatrix(3, 2, text);
    on.grid->setTextMatrix(18, 2, text);
    QVERIFY(on.open());
    QCOMPARE(on.grid->RowHeight(3), 285);
    on.grid->setColWordWrap(2, true);
    const int grown = on.grid->RowHeight(3);
    QVERIFY(grown > 2 * 285);
    QCOMPARE(on.grid->RowHeight(2), 285);
    QCOMPARE(on.grid->RowHeight(18), grown);
    QCOMPARE(on.grid->cellRect(4, 1).top(), on.grid->cellRect(3, 1).bottom() + 1);
    on.grid->setColWidth(2, 15000);
    QCOMPARE(on.grid->RowHeight(3), 285);
    on.grid->setColWidth(2, 960);
    QCOMPARE(on.grid->RowHeight(3), grown);
    on.grid->setTextMatrix(3, 2, QStringLiteral("short"));
    QCOMPARE(on.grid->RowHeight(3), 285);
    on.grid->setTextMatrix(3, 2, text);
    on.grid->setRowHeight(3, 500); // given by the program
    QCOMPARE(on.grid->RowHeight(3), 500);
    on.grid->setColWordWrap(2, false);
    QCOMPARE(on.grid->RowHeight(18), 285);
    on.grid->setWordWrap(true);
    QCOMPARE(on.grid->RowHeight(18), grown);
    on.grid->makeVisible(19, 1);
    QVERIFY(on.grid->viewport()->rect().contains(on.grid->cellRect(19, 1)));
}

void tst_CellView::mixedHeightsOfAMillionRows()
{
    GridStage on;
    on.grid->setRows(1'000'001);
    for (int row = 1; row <= 1'000'000; row += 1000)
        on.grid->setRowHeight(row, 600);
    QVERIFY(on.open());
    QCOMPARE(on.grid->cellRect(1'000'000, 1).top(), 999'999 * 19 + 1000 * 21);
    on.grid->makeVisible(1'000'000, 1);
    QVERIFY(on.grid->RowIsVisible(1'000'000));
    QCOMPARE(on.grid->rowViewportPosition(999'999), on.grid->cellRect(1'000'000, 1).top());
}

void tst_CellView::coloursAndAlignments()
{
    GridStage on;
    for (int row = 1; row < 20; ++row) {
        for (int column = 1; column < 6; ++column)
            on.grid->setTextMatrix(row, column, QStringLiteral("MMM"));
    }
    on.grid->setColForeColor(2, 0x0000FF); // red
    on.grid->setCellForeColor(3, 2, 0xFF0000);
    on.grid->setColAlignment(3, CellAlignmentType::RightCenter);
    on.grid->setCellAlignment(3, 3, CellAlignmentType::LeftCenter);
    QCOMPARE(on.grid->CellForeColor(2, 2), 0x0000FF);
    QCOMPARE(on.grid->CellForeColor(3, 2), 0xFF0000);
    QCOMPARE(on.grid->CellForeColor(0, 2), 0);
    QCOMPARE(on.grid->CellAlignment(2, 3), CellAlignmentType::RightCenter);
    QCOMPARE(on.grid->CellAlignment(3, 3), CellAlignmentType::LeftCenter);
    QVERIFY(on.open());
    const QImage image = on.grid->viewport()->grab().toImage();
    const auto text = [&](int row, int column) { return on.grid->look(row, column).color; };
    QCOMPARE(text(2, 2), QColor(255, 0, 0));
    QCOMPARE(text(3, 2), QColor(0, 0, 255));
    QVERIFY(shows(image, on.grid->cellRect(2, 2), QColor(255, 0, 0)) ||
            shows(image, on.grid->cellRect(2, 2), QColor(255, 1, 1)));
    const QRect right = on.grid->cellRect(2, 3);
    const QRect left = on.grid->cellRect(3, 3);
    const QColor base = on.grid->palette().color(QPalette::Base);
    const auto isBlank = [&](const QRect &cell, int from) {
        for (int x = from; x < from + 8; ++x) {
            for (int y = cell.top() + 2; y < cell.bottom() - 2; ++y) {
                if (image.pixelColor(x, y) != base)
                    return false;
            }
        }
        return true;
    };
    QVERIFY(isBlank(right, right.left() + 3) && !isBlank(right, right.right() - 12));
    QVERIFY(!isBlank(left, left.left() + 3) && isBlank(left, left.right() - 12));
    on.grid->setCellForeColor(3, 2, 0); // the column's again
    QCOMPARE(text(3, 2), QColor(255, 0, 0));
    on.grid->Clear();
    QCOMPARE(on.grid->CellAlignment(3, 3), CellAlignmentType::RightCenter);
}

void tst_CellView::numbersThatDoNotFitShowARunOfSigns()
{
    GridStage on;
    on.grid->setCols(4);
    for (const int column : {1, 2, 3}) {
        on.grid->setColWidth(column, 600);
        on.grid->setColAlignment(column, CellAlignmentType::RightCenter);
    }
    on.grid->setColFillsNarrow(1, true);
    for (int row = 1; row < 20; ++row) {
        for (const int column : {1, 2, 3})
            on.grid->setTextMatrix(row, column, QString());
    }
    const QString wide = QStringLiteral("1234567890");
    on.grid->setTextMatrix(3, 1, wide);
    on.grid->setTextMatrix(3, 2, wide);
    const int signs = (on.grid->cellRect(3, 1).width() - 7) / on.grid->fontMetrics().horizontalAdvance(u'#');
    on.grid->setTextMatrix(3, 3, QString(signs, u'#'));
    on.grid->setTextMatrix(4, 1, QStringLiteral("do uzgodnienia"));
    on.grid->setTextMatrix(4, 2, QStringLiteral("do uzgodnienia"));
    on.grid->setTextMatrix(5, 1, QStringLiteral("15"));
    on.grid->setTextMatrix(5, 2, QStringLiteral("15"));
    on.grid->setCurrentCell(9, 1);
    QVERIFY(on.open());
    const QImage image = on.grid->viewport()->grab().toImage();
    const auto cell = [&](int row, int column) { return image.copy(on.grid->cellRect(row, column)); };
    QVERIFY(cell(3, 1) == cell(3, 3));
    QVERIFY(cell(3, 2) != cell(3, 3));
    QVERIFY(cell(4, 1) == cell(4, 2)); // words end in dots
    QVERIFY(cell(5, 1) == cell(5, 2)); // and what fits is itself
}

void tst_CellView::aCellUnderAnEditorShowsNoTextBesideIt()
{
    GridStage on;
    on.grid->setRowHeightMin(900);
    QVERIFY(on.open());
    on.grid->setCurrentCell(9, 1);
    QWidget editor(on.grid->viewport());
    const QRect cell = on.grid->cellRect(2, 2);
    editor.setGeometry(cell.left() + 2, cell.top() + 2, cell.width() - 4, 16);
    editor.show();
    const auto ink = [&](const QRect &place) {
        const QImage image = on.grid->viewport()->grab().toImage();
        return shows(image, place, on.grid->palette().color(QPalette::Text));
    };
    const QRect below(cell.left(), cell.top() + 20, cell.width() - 2, cell.height() - 22);
    QVERIFY(ink(on.grid->cellRect(3, 2)));
    QVERIFY(!ink(below));
    editor.hide();
    QVERIFY(ink(below));
}

void tst_CellView::changedCellsAreRepainted()
{
    struct Paints : QObject {
        QRegion region;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                region += static_cast<QPaintEvent *>(event)->region();
            return false;
        }
    } paints;
    GridStage on;
    QVERIFY(on.open());
    on.grid->viewport()->installEventFilter(&paints);
    const auto painted = [&](auto &&change) {
        settle();
        paints.region = {};
        change();
        settle();
        return !(paints.region & on.grid->cellRect(3, 2)).isEmpty();
    };
    QVERIFY(painted([&] { on.grid->setTextMatrix(3, 2, QStringLiteral("x")); }));
    QVERIFY(!painted([&] { on.grid->setTextMatrix(3, 2, QStringLiteral("x")); }));
    QVERIFY(!painted([&] { on.grid->setTextMatrix(19, 2, QStringLiteral("x")); }));
    QVERIFY(painted([&] { on.grid->setCellForeColor(3, 2, 0x0000FF); }));
    QVERIFY(painted([&] { on.grid->setCellAlignment(3, 2, CellAlignmentType::RightTop); }));
    QVERIFY(painted([&] { on.grid->setColAlignment(2, CellAlignmentType::RightTop); }));
    QVERIFY(painted([&] { on.grid->Clear(); }));
    on.grid->setRedraw(false);
    QVERIFY(!painted([&] { on.grid->setTextMatrix(3, 2, QStringLiteral("y")); }));
    QVERIFY(painted([&] { on.grid->setRedraw(true); }));
}

void tst_CellView::selectionIsSeen()
{
    GridStage on;
    on.grid->setCurrentCell(2, 2);
    on.grid->setRowSel(4);
    QVERIFY(on.open());
    const QImage image = on.grid->viewport()->grab().toImage();
    const auto back = [&](int row, int column) {
        return image.pixelColor(on.grid->cellRect(row, column).bottomRight() - QPoint(4, 4));
    };
    QCOMPARE(back(3, 2), on.grid->palette().color(QPalette::Highlight));
    QCOMPARE(back(5, 2), on.grid->palette().color(QPalette::Base));
    QCOMPARE(back(2, 2), on.grid->palette().color(QPalette::Base)); // with a frame around it
    QCOMPARE(image.pixelColor(on.grid->cellRect(2, 2).topLeft() + QPoint(1, 9)),
             on.grid->palette().color(QPalette::Highlight));
}

void tst_CellView::blankSpaceHasItsOwnColor()
{
    GridStage on;
    on.grid->setRows(4);
    on.grid->setBackColorBkg(0x00FF00);
    QVERIFY(on.open());
    const QImage image = on.grid->viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(5, 150), QColor(0, 255, 0));
    QCOMPARE(image.pixelColor(on.grid->cellRect(1, 5).right() + 3, 5), QColor(0, 255, 0));
}

void tst_CellView::screenReadersSeeTheTable()
{
    GridStage on;
    QVERIFY(on.open());
    on.grid->setCurrentCell(3, 2);
    QAccessibleInterface *grid = QAccessible::queryAccessibleInterface(on.grid);
    QVERIFY(grid && grid->tableInterface());
    QAccessibleTableInterface *table = grid->tableInterface();
    QCOMPARE(table->rowCount(), 19);
    QCOMPARE(table->columnCount(), 5);
    QCOMPARE(table->columnDescription(1), QStringLiteral("0,2"));
    QCOMPARE(table->rowDescription(2), QStringLiteral("3,0"));
    QAccessibleInterface *cell = table->cellAt(2, 1);
    QVERIFY(cell);
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("3,2"));
    QVERIFY(cell->state().focused);
    QVERIFY(cell->state().selected);
    QVERIFY(!table->cellAt(3, 1)->state().focused);
    const QRect place = on.grid->visualRect(on.grid->model()->index(2, 1));
    QCOMPARE(cell->rect(), QRect(on.grid->viewport()->mapToGlobal(place.topLeft()), place.size()));
    on.grid->setCurrentCell(4, 1);
    QVERIFY(table->cellAt(3, 0)->state().focused);
}

void tst_CellView::assistiveToolsMoveTheCursor()
{
    GridStage on;
    QVERIFY(on.open());
    (void)on.take();
    on.grid->setCurrentIndex(on.grid->model()->index(5, 3));
    settle();
    QCOMPARE(on.cursor(), QStringLiteral("6,4"));
    QCOMPARE(on.take(), QStringLiteral("LeaveCell(1,1) EnterCell(6,4) RowColChange SelChange"));
}

QTEST_MAIN(tst_CellView)
#include "tst_cellview.moc"
