// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

using namespace kor;
using namespace kor::test;

//! Cells on their way from a spreadsheet into the grid, and back.
class tst_KorGridPaste : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        orderColumns();
    }
    void cleanup() { tearDown(); }

    void everyTextIsJudgedAsTyped_data();
    void everyTextIsJudgedAsTyped();
    void aBlockGoesRightAndDown();
    void hiddenColumnsAreLeftOut();
    void rowsAreAddedAsNeeded();
    void refusedCellsStayAndTheOthersAreWritten();
    void judgingChangesNothing();
    void cellsBehindTheLastColumnAreTold();
    void eachCellThatChangesIsTold();
    void anEmptyCellEmptiesCellAndValue();
    void aRefusedEditorKeepsEverything();
    void aHandlerMayDeleteTheGrid();
    void aHandlerMayTakeRowsAway();
    void selectedCellsAreCopied();
    void whatIsCopiedIsPasted();

private:
    [[nodiscard]] static QString told(const QList<RefusedCell> &refused)
    {
        static const QStringList reasons{QStringLiteral("Locked"),  QStringLiteral("NoNumber"),
                                         QStringLiteral("NoDate"),  QStringLiteral("NotListed"),
                                         QStringLiteral("TooLong"), QStringLiteral("LineBreak"),
                                         QStringLiteral("Outside")};
        QStringList all;
        for (const RefusedCell &cell : refused)
            all << QStringLiteral("%1,%2 %3 %4")
                       .arg(cell.row)
                       .arg(cell.column)
                       .arg(reasons.at(static_cast<int>(cell.reason)), cell.text);
        return all.join(u'|');
    }
};

void tst_KorGridPaste::everyTextIsJudgedAsTyped_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("refused");
    // clang-format off
    QTest::newRow("text")                        << int(Product)  << "Żółty kask" << "Żółty kask"  << "";
    QTest::newRow("leading zeros stay")          << int(Product)  << "00123"      << "00123"       << "";
    QTest::newRow("number")                      << int(Price)    << "1234,5"     << "1 234,50"    << "";
    QTest::newRow("number with a point")         << int(Price)    << "12.5"       << "12,50"       << "";
    QTest::newRow("number with thousands")       << int(Price)    << "1 234,50"   << "1 234,50"    << "";
    QTest::newRow("negative number")             << int(Price)    << "-3"         << "-3,00"       << "";
    QTest::newRow("day as the clerk writes it")  << int(Delivery) << "1.12.26"    << "01.12.2026"  << "";
    QTest::newRow("day of other programs")       << int(Delivery) << "2026-12-01" << "01.12.2026"  << "";
    QTest::newRow("name of the list")            << int(Unit)     << "karton"     << "karton"      << "";
    QTest::newRow("blanks around a name")        << int(Unit)     << " karton "   << "karton"      << "";
    QTest::newRow("what the program looks up")   << int(Store)    << "M1"         << "M1"          << "";
    QTest::newRow("break in a wrapped text")     << int(Remark)   << "\"a\nb\""   << "a\nb"        << "";
    QTest::newRow("word for a number")           << int(Price)    << "dużo"       << "stare"       << "1,2 NoNumber dużo";
    QTest::newRow("number of another country")   << int(Price)    << "1,234.50"   << "stare"       << "1,2 NoNumber 1,234.50";
    QTest::newRow("two numbers")                 << int(Price)    << "12 34"      << "stare"       << "1,2 NoNumber 12 34";
    QTest::newRow("word for a day")              << int(Delivery) << "jutro"      << "stare"       << "1,4 NoDate jutro";
    QTest::newRow("day that does not exist")     << int(Delivery) << "31.02.2026" << "stare"       << "1,4 NoDate 31.02.2026";
    QTest::newRow("time")                        << int(Delivery) << "12:30"      << "stare"       << "1,4 NoDate 12:30";
    QTest::newRow("no name of the list")         << int(Unit)     << "wiadro"     << "stare"       << "1,3 NotListed wiadro";
    QTest::newRow("break in a line")             << int(Product)  << "\"a\nb\""   << "stare"       << "1,1 LineBreak a\nb";
    QTest::newRow("locked column")               << int(Number)   << "7"          << "stare"       << "1,8 Locked 7";
    // clang-format on
}

void tst_KorGridPaste::everyTextIsJudgedAsTyped()
{
    QFETCH(const int, column);
    QFETCH(const QString, text);
    grid->setTextControl(1, column, QStringLiteral("stare"));
    const QString refused = told(grid->pasteCells(1, column, text));
    QTEST(QString(refused), "refused");
    QTEST(grid->TextMatrix(1, column).replace(QChar(0xa0), u' '), "shown");
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorGridPaste::aBlockGoesRightAndDown()
{
    QVERIFY(grid->pasteCells(2, Product, QStringLiteral("Kask\t12,5\tsztuka\r\nLina\t3\tkarton\r\n")).isEmpty());
    QCOMPARE(row(1), QStringLiteral("|||||||"));
    QCOMPARE(row(2), QStringLiteral("Kask|12,50|sztuka|||12,5||"));
    QCOMPARE(row(3), QStringLiteral("Lina|3,00|karton|||3||"));
    QCOMPARE(grid->Value(2, Unit), QVariant(QStringLiteral("S")));
    QCOMPARE(grid->Rows(), 6);
}

void tst_KorGridPaste::hiddenColumnsAreLeftOut()
{
    // Behind the store comes the hidden exact price, and then the remark.
    QVERIFY(grid->pasteCells(1, Store, QStringLiteral("M1\tpilne")).isEmpty());
    QCOMPARE(row(1), QStringLiteral("||||M1||pilne|"));
}

void tst_KorGridPaste::rowsAreAddedAsNeeded()
{
    QVERIFY(grid->pasteCells(5, Product, QStringLiteral("a\nb\nc")).isEmpty());
    QCOMPARE(grid->Rows(), 8);
    QCOMPARE(column(Product), QStringLiteral("||||a|b|c"));
}

void tst_KorGridPaste::refusedCellsStayAndTheOthersAreWritten()
{
    grid->setValue(1, Price, 7);
    QCOMPARE(told(grid->pasteCells(1, Product, QStringLiteral("Kask\tx\tsztuka\nLina\t3\twiadro"))),
             QStringLiteral("1,2 NoNumber x|2,3 NotListed wiadro"));
    QCOMPARE(row(1), QStringLiteral("Kask|7,00|sztuka|||7||"));
    QCOMPARE(row(2), QStringLiteral("Lina|3,00||||3||"));
}

void tst_KorGridPaste::judgingChangesNothing()
{
    QCOMPARE(told(grid->refusedCells(5, Product, QStringLiteral("Kask\tx\nb"))), QStringLiteral("5,2 NoNumber x"));
    QCOMPARE(grid->Rows(), 6);
    QCOMPARE(row(5), QStringLiteral("|||||||"));
    QCOMPARE(log->take(), QString());
}

void tst_KorGridPaste::cellsBehindTheLastColumnAreTold()
{
    QCOMPARE(told(grid->pasteCells(1, Remark, QStringLiteral("a\t\tb\t\tc"))),
             QStringLiteral("1,9 Outside b|1,11 Outside c"));
    QVERIFY(grid->pasteCells(9, Product, QStringLiteral("a")).isEmpty());
    QVERIFY(grid->pasteCells(0, Product, QStringLiteral("a")).isEmpty());
    QCOMPARE(column(Product), QStringLiteral("||||"));
    QCOMPARE(grid->TextMatrix(0, Product), QStringLiteral("Towar"));
}

void tst_KorGridPaste::eachCellThatChangesIsTold()
{
    grid->setValue(1, Price, 3);
    grid->pasteCells(1, Product, QStringLiteral("Kask\t3,00\nLina"));
    QCOMPARE(log->take(), QStringLiteral("Change(1,1) Change(2,1)"));
}

void tst_KorGridPaste::anEmptyCellEmptiesCellAndValue()
{
    grid->setValue(1, Price, 3);
    grid->pasteCells(1, Product, QStringLiteral("Kask\t\tsztuka"));
    QCOMPARE(row(1), QStringLiteral("Kask||sztuka|||||"));
    QVERIFY(isNull(grid->Value(1, Price)));
}

void tst_KorGridPaste::aRefusedEditorKeepsEverything()
{
    click(1, Delivery);
    type(QStringLiteral("99"));
    QVERIFY(grid->pasteCells(1, Product, QStringLiteral("Kask")).isEmpty());
    QCOMPARE(messages->take().size(), 1);
    QCOMPARE(grid->TextMatrix(1, Product), QString());
}

void tst_KorGridPaste::aHandlerMayDeleteTheGrid()
{
    connect(grid, &KorGrid::Change, this, [this] { delete grid; });
    grid->pasteCells(1, Product, QStringLiteral("a\nb"));
    QVERIFY(!grid);
}

void tst_KorGridPaste::aHandlerMayTakeRowsAway()
{
    connect(grid, &KorGrid::Change, this, [this](int &row) {
        if (row == 1)
            grid->setRows(3);
    });
    grid->pasteCells(1, Product, QStringLiteral("a\nb\nc\nd"));
    QCOMPARE(column(Product), QStringLiteral("a|b"));
}

void tst_KorGridPaste::selectedCellsAreCopied()
{
    grid->pasteCells(1, Product, QStringLiteral("Kask\t1234,5\nLina\t3"));
    click(1, Product);
    QCOMPARE(grid->copiedCells(), QStringLiteral("Kask\n"));
    press(Qt::Key_F2); // closes the editor
    QCOMPARE(openEditor(), QString());
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(grid->copiedCells().replace(QChar(0xa0), u' '), QStringLiteral("Kask\t1 234,50\nLina\t3,00\n"));
    // All but the hidden column; and no blank rows.
    QCOMPARE(grid->allCells().count(u'\n'), 2);
    QCOMPARE(grid->allCells().count(u'\t'), 2 * 6);
}

void tst_KorGridPaste::whatIsCopiedIsPasted()
{
    grid->pasteCells(1, Product, QStringLiteral("3\" rura\t-1234,5\tkarton\t01.12.2026\tM1\t\"a\n\"\"b\"\"\""));
    const QString before = row(1);
    const QString copied = grid->allCells();
    grid->DelRow(1, 5);
    grid->setTextControl(1, Number, QStringLiteral("8"));
    QVERIFY(grid->pasteCells(1, Product, copied).isEmpty());
    grid->setTextControl(1, Number, {});
    QCOMPARE(row(1), before);
}

QTEST_MAIN(tst_KorGridPaste)
#include "tst_korgrid_paste.moc"
