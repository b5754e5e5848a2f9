// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

#include <KorDaoUC/RunTimeError>

#include <functional>
#include <limits>

using namespace kor;
using namespace kor::test;

namespace {

//! The number of the error that a deed raises, 0 for none.
int errorOf(const std::function<void()> &deed)
{
    try {
        deed();
    } catch (const RunTimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace

//! How a program fills a grid, reads it, and adds and deletes rows.
class tst_KorGrid_Rows : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void textsOutsideTheDataAreNotWritten_data();
    void textsOutsideTheDataAreNotWritten();
    void textsOutsideTheGridAreNotRead();
    void textControlWritesTitlesToo();
    void aTextWithAValueColumnBecomesTheCurrentCell();
    void valuesByType_data();
    void valuesByType();
    void whatIsNoValueOfTheTypeIsRefused();
    void valuesOutsideTheDataAreNull();
    void anOpenEditorShowsTheValueThatIsWritten();

    void sumsAndMaxima();
    void sumsAreSingleAfterEveryStep();
    void moreRowsThanAnIntegerCountsHaveNoSum();

    void theFocusRequestComparesTheRowWithTheColumns_data();
    void aHiddenGridTakesNoKeyboard();
    void aGridThatIsHiddenLetsTheKeyboardGo_data();
    void aGridThatIsHiddenLetsTheKeyboardGo();
    void moreRowsThanMemoryHoldsAreRefused();
    void theFocusRequestComparesTheRowWithTheColumns();
    void theFocusRequestRaisesSelChangeOnce();
    void movingByProgramRaisesSelChangeOnce();

    void addingRows_data();
    void addingRows();
    void theNextRunningNumberGoesToTheFocusColumn();
    void theNextRunningNumberFollowsWhateverWasDone();
    void addingRowsKeepsWhatIsBeingTyped();
    void addingRowsToARefusedEditorKeepsTheUser();
    void addRowGivesTheMousePointerBack();

    void deletingRows_data();
    void deletingRows();
    void anEditorOnADeletedRowCloses();
    void anEditorBelowDeletedRowsGoesAlong();
    void anEditorAboveDeletedRowsStays();

private:
    void fill(const QString &texts, int column = 1)
    {
        const QStringList all = texts.split(u'|');
        grid->setRows(static_cast<int>(all.size()) + 1);
        for (int row = 1; row <= all.size(); ++row)
            grid->setTextControl(row, column, all.at(row - 1));
    }
    void columns(int count)
    {
        for (int column = 1; column <= count; ++column)
            grid->AddColumn(QStringLiteral("TEXT"), QString::number(column), 900, 0);
    }
};

// --- cells

void tst_KorGrid_Rows::textsOutsideTheDataAreNotWritten_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("titles") << 0 << 1;
    QTest::newRow("fixed column") << 1 << 0;
    QTest::newRow("below the last row") << 6 << 1;
    QTest::newRow("right of the last column") << 1 << 9;
    QTest::newRow("negative") << -1 << -1;
}

void tst_KorGrid_Rows::textsOutsideTheDataAreNotWritten()
{
    QFETCH(int, row);
    QFETCH(int, column);
    orderColumns();
    const auto all = [this] {
        QStringList texts;
        for (int r = 0; r < grid->Rows(); ++r) {
            for (int c = 0; c < grid->Cols(); ++c)
                texts << grid->TextMatrix(r, c);
        }
        return texts;
    };
    const QStringList before = all();
    grid->setTextMatrix(row, column, QStringLiteral("x"));
    grid->setValue(row, column, 5);
    QCOMPARE(all(), before);
    QCOMPARE(place(), QStringLiteral("1,1"));
}

void tst_KorGrid_Rows::textsOutsideTheGridAreNotRead()
{
    QCOMPARE(errorOf([&] { (void)grid->TextMatrix(2, 1); }), 381);
    QCOMPARE(errorOf([&] { (void)grid->TextMatrix(1, -1); }), 381);
    QCOMPARE(grid->TextMatrix(0, 0), QString());
}

void tst_KorGrid_Rows::textControlWritesTitlesToo()
{
    grid->setTextControl(0, 1, QStringLiteral("Towar"));
    grid->setTextControl(1, 0, QStringLiteral("1."));
    grid->setTextControl(7, 7, QStringLiteral("x"));
    QCOMPARE(grid->TextMatrix(0, 1), QStringLiteral("Towar"));
    QCOMPARE(grid->TextMatrix(1, 0), QStringLiteral("1."));
}

void tst_KorGrid_Rows::aTextWithAValueColumnBecomesTheCurrentCell()
{
    orderColumns();
    grid->setTextMatrix(3, Price, QStringLiteral("1234,5"));
    QCOMPARE(grid->TextMatrix(3, Price), QStringLiteral("1\u00a0234,50"));
    QCOMPARE(grid->TextMatrix(3, Exact), QStringLiteral("1234,5"));
    QCOMPARE(place(), QStringLiteral("3,2"));
    QCOMPARE(openEditor(), QString());
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    grid->setTextMatrix(4, Product, QStringLiteral("deska")); // has none
    QCOMPARE(place(), QStringLiteral("3,2"));
}

void tst_KorGrid_Rows::valuesByType_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QVariant>("read");
    const QVariant none = null();
    const QDate day(2026, 12, 24);
    // clang-format off
    QTest::newRow("a text")                    << int(Product)  << QVariant(QStringLiteral("deska")) << QStringLiteral("deska")           << QVariant(QStringLiteral("deska"));
    QTest::newRow("a number")                  << int(Price)    << QVariant(1234.567)                << QStringLiteral("1\u00a0234,57")   << QVariant(1234.567);
    QTest::newRow("a whole number")            << int(Price)    << QVariant(3)                       << QStringLiteral("3,00")            << QVariant(3.0);
    QTest::newRow("a number without value column") << int(Number) << QVariant(12.5)                  << QStringLiteral("12,50")           << QVariant(12.5);
    QTest::newRow("a date")                    << int(Delivery) << QVariant(day)                     << QStringLiteral("24.12.2026")      << QVariant(day);
    QTest::newRow("the key of an entry")       << int(Unit)     << QVariant(QStringLiteral("K"))     << QStringLiteral("karton")          << QVariant(QStringLiteral("K"));
    QTest::newRow("a text of a click field")   << int(Store)    << QVariant(QStringLiteral("A"))     << QStringLiteral("A")               << QVariant(QStringLiteral("A"));
    QTest::newRow("no text")                   << int(Product)  << none << QString() << none;
    QTest::newRow("no number")                 << int(Price)    << none << QString() << none;
    QTest::newRow("no date")                   << int(Delivery) << none << QString() << none;
    QTest::newRow("no entry")                  << int(Unit)     << none << QString() << none;
    // clang-format on
}

void tst_KorGrid_Rows::valuesByType()
{
    QFETCH(int, column);
    QFETCH(QVariant, given);
    orderColumns();
    grid->setValue(2, column, given);
    QTEST(grid->TextMatrix(2, column), "shown");
    QTEST(grid->Value(2, column), "read");
    QCOMPARE(log->take(), QString());
}

void tst_KorGrid_Rows::whatIsNoValueOfTheTypeIsRefused()
{
    orderColumns();
    grid->setValue(2, Price, 5);
    QCOMPARE(errorOf([&] { grid->setValue(2, Price, QStringLiteral("dużo")); }), 13);
    QCOMPARE(errorOf([&] { grid->setValue(2, Delivery, QStringLiteral("jutro")); }), 13);
    QCOMPARE(grid->Value(2, Price), QVariant(5.0));
    QCOMPARE(grid->TextMatrix(2, Delivery), QString());
}

void tst_KorGrid_Rows::valuesOutsideTheDataAreNull()
{
    orderColumns();
    QVERIFY(isNull(grid->Value(0, 1)));
    QVERIFY(isNull(grid->Value(1, 0)));
    QVERIFY(isNull(grid->Value(99, 1)));
    QVERIFY(isNull(grid->Value(1, 99)));
}

void tst_KorGrid_Rows::anOpenEditorShowsTheValueThatIsWritten()
{
    orderColumns();
    click(2, Price);
    grid->setValue(2, Price, 12.5);
    QCOMPARE(editor<KorNumber>("KorNum")->Value(), QVariant(12.5));
    press(Qt::Key_Tab);
    QCOMPARE(grid->Value(2, Price), QVariant(12.5));
}

// --- sums

void tst_KorGrid_Rows::sumsAndMaxima()
{
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Kwota"), 1200, 1);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Uwagi"), 1200, 1);
    fill(QStringLiteral("1,5|2||brak|-4"));
    QCOMPARE(grid->SumColumn(1), -0.5F);
    QCOMPARE(grid->MaxColumn(1), 2.0F);
    fill(QStringLiteral("-3|-1"));
    QCOMPARE(grid->MaxColumn(1), 0.0F);
    QCOMPARE(grid->SumColumn(2), 0.0F);
    grid->setRows(1);
    QCOMPARE(grid->SumColumn(1), 0.0F);
    QCOMPARE(grid->MaxColumn(1), 0.0F);
}

void tst_KorGrid_Rows::sumsAreSingleAfterEveryStep()
{
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Kwota"), 1200, 1);
    fill(QStringLiteral("16777216|1|1|1"));
    QCOMPARE(grid->SumColumn(1), 16777216.0F); // each one is lost by itself
    fill(QStringLiteral("1|1|1|16777216"));
    QCOMPARE(grid->SumColumn(1), 16777220.0F);
}

void tst_KorGrid_Rows::moreRowsThanAnIntegerCountsHaveNoSum()
{
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Kwota"), 1200, 1);
    grid->setRows(32768); // 32,767 of data
    grid->setTextControl(32767, 1, QStringLiteral("5"));
    QCOMPARE(grid->SumColumn(1), 5.0F);
    grid->setRows(32769);
    QCOMPARE(errorOf([&] { (void)grid->SumColumn(1); }), 6);
    QCOMPARE(grid->MaxColumn(1), 5.0F);
}

// --- current cell

void tst_KorGrid_Rows::theFocusRequestComparesTheRowWithTheColumns_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("place");
    // clang-format off
    QTest::newRow("a row above the count of columns")   << 2  << 3 << QStringLiteral("2,3");
    QTest::newRow("row 10 of five columns: the column stays") << 10 << 2 << QStringLiteral("10,1");
    QTest::newRow("the count of columns less one: stays") << 4 << 2 << QStringLiteral("4,1");
    QTest::newRow("column 0 stays")                     << 2  << 0 << QStringLiteral("2,1");
    QTest::newRow("a row that does not exist stays")    << 20 << 2 << QStringLiteral("1,1");
    QTest::newRow("row 0 stays, and the column moves")  << 0  << 3 << QStringLiteral("1,3");
    // clang-format on
}

void tst_KorGrid_Rows::theFocusRequestComparesTheRowWithTheColumns()
{
    QFETCH(int, row);
    QFETCH(int, column);
    columns(4);
    grid->setRows(20);
    settle();
    (void)log->take();
    QVERIFY(grid->SetFocusCell(row, column));
    QTEST(place(), "place");
    if (row >= 1 && row < 20)
        QCOMPARE(cellRect(row, 1).top(), 0); // scrolled to the top
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QVERIFY(hasKeyboard("TxtBox"));
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
}

void tst_KorGrid_Rows::theFocusRequestRaisesSelChangeOnce()
{
    orderColumns();
    QVERIFY(grid->SetFocusCell(2, Price));
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    QVERIFY(grid->SetFocusCell(2, Price)); // again
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Blokada"), 600, 0, true);
    grid->setCol(Number); // locked
    (void)log->take();
    QVERIFY(!grid->SetFocusCell(3, Number));
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    QCOMPARE(openEditor(), QString());
}

void tst_KorGrid_Rows::movingByProgramRaisesSelChangeOnce()
{
    orderColumns();
    grid->setRow(3);
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    grid->setRow(3);
    QCOMPARE(log->take(), QString());
    grid->setCol(Number); // opens no editor
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    QCOMPARE(errorOf([&] { grid->setRow(99); }), 380);
    QCOMPARE(errorOf([&] { grid->setCol(-1); }), 380);
}

// --- rows

void tst_KorGrid_Rows::addingRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("rows");
    QTest::newRow("no row: one at the end") << 0 << 7;
    QTest::newRow("a negative one: one at the end") << -3 << 7;
    QTest::newRow("a row that exists: none") << 4 << 6;
    QTest::newRow("the next row") << 6 << 7;
    QTest::newRow("as many as it takes") << 10 << 11;
}

void tst_KorGrid_Rows::addingRows()
{
    QFETCH(int, row);
    orderColumns();
    grid->AddRow(row);
    QTEST(grid->Rows(), "rows");
    QCOMPARE(place(), QStringLiteral("1,1"));
    QCOMPARE(openEditor(), QStringLiteral("TxtBox")); // of the current cell
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
}

void tst_KorGrid_Rows::theNextRunningNumberGoesToTheFocusColumn()
{
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Lp."), 600, 1);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Uwagi"), 1500, 0);
    fill(QStringLiteral("1|2|3"));
    (void)log->take();
    grid->AddRow(0, 2, 1);
    QCOMPARE(grid->Rows(), 5);
    QCOMPARE(row(4), QStringLiteral("|4|")); // Kept: in the focus column, not in that of the numbers
    QCOMPARE(place(), QStringLiteral("4,2"));
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QVERIFY(hasKeyboard("TxtBox"));
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    grid->AddRow(0, 3);
    QCOMPARE(row(5), QStringLiteral("||"));
    QCOMPARE(place(), QStringLiteral("5,3"));
}

void tst_KorGrid_Rows::theNextRunningNumberFollowsWhateverWasDone()
{
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Lp."), 600, 1, true, QStringLiteral("0"));
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
    const auto added = [&] {
        grid->AddRow(0, 1, 1);
        return grid->TextMatrix(grid->Rows() - 1, 1);
    };
    QCOMPARE(added(), QStringLiteral("1"));
    QCOMPARE(added(), QStringLiteral("2"));
    grid->setTextMatrix(2, 1, QStringLiteral("40")); // by the program
    QCOMPARE(added(), QStringLiteral("41"));
    grid->setTextControl(2, 1, QStringLiteral("7"));
    grid->DelRow(grid->Rows() - 1);
    QCOMPARE(added(), QStringLiteral("8"));
    grid->DelRow(1, grid->Rows() - 1);
    QCOMPARE(added(), QStringLiteral("1"));
    grid->setTextMatrix(1, 1, QStringLiteral("5")); // in a row that is there already
    grid->setCols(1);                               // and its columns go, and come back
    grid->setCols(3);
    QCOMPARE(grid->MaxColumn(1), 0.0F);
    QCOMPARE(grid->MaxColumn(1), 0.0F);
}

void tst_KorGrid_Rows::addingRowsKeepsWhatIsBeingTyped()
{
    orderColumns();
    click(2, Price);
    type(QStringLiteral("12,5"));
    grid->AddRow(0, Product);
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("12,50"));
    QCOMPARE(place(), QStringLiteral("6,1"));
    type(QStringLiteral("deska"));
    QCOMPARE(grid->TextMatrix(6, Product), QStringLiteral("deska"));
}

void tst_KorGrid_Rows::addingRowsToARefusedEditorKeepsTheUser()
{
    orderColumns();
    click(2, Delivery);
    type(QStringLiteral("99"));
    grid->AddRow(0, Product);
    QCOMPARE(messages->take().size(), 1);
    QCOMPARE(grid->Rows(), 7);
    QCOMPARE(place(), QStringLiteral("2,4"));
    QCOMPARE(editor<KorDate>("KorDate")->Text(), QStringLiteral("99"));
}

void tst_KorGrid_Rows::addRowGivesTheMousePointerBack()
{
    orderColumns();
    grid->AddRow();
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(errorOf([&] { grid->AddRow(0, 99); }) != 0);
    QVERIFY(!QGuiApplication::overrideCursor());
    click(1, Product); // and editors open as ever
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
}

void tst_KorGrid_Rows::deletingRows_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("left");
    // clang-format off
    QTest::newRow("one row")                         << 2  << 0  << QStringLiteral("a|c|d|e");
    QTest::newRow("a block")                         << 2  << 4  << QStringLiteral("a|e");
    QTest::newRow("end before the start: one row")   << 3  << 1  << QStringLiteral("a|b|d|e");
    QTest::newRow("end beyond the last row")         << 4  << 99 << QStringLiteral("a|b|c");
    QTest::newRow("all: one stays, empty")           << 1  << 5  << QString();
    QTest::newRow("the titles: nothing")             << 0  << 3  << QStringLiteral("a|b|c|d|e");
    QTest::newRow("beyond the last row: nothing")    << 6  << 9  << QStringLiteral("a|b|c|d|e");
    // clang-format on
}

void tst_KorGrid_Rows::deletingRows()
{
    QFETCH(int, first);
    QFETCH(int, last);
    columns(2);
    fill(QStringLiteral("a|b|c|d|e"));
    grid->DelRow(first, last);
    QTEST(column(1), "left");
    QVERIFY(grid->Rows() >= 2);
    QCOMPARE(grid->TextMatrix(0, 1), QStringLiteral("1"));
}

void tst_KorGrid_Rows::anEditorOnADeletedRowCloses()
{
    columns(2);
    fill(QStringLiteral("a|b|c|d|e"));
    click(3, 1);
    type(QStringLiteral("x"));
    grid->DelRow(3);
    settle();
    QCOMPARE(openEditor(), QString());
    QCOMPARE(column(1), QStringLiteral("a|b|d|e"));
    QVERIFY(grid->isAncestorOf(QApplication::focusWidget()));
    grid->DelRow(1, 4);
    QCOMPARE(column(1), QString());
}

void tst_KorGrid_Rows::anEditorBelowDeletedRowsGoesAlong()
{
    columns(2);
    fill(QStringLiteral("a|b|c|d|e"));
    click(4, 1);
    type(QStringLiteral("x"));
    grid->DelRow(1, 2);
    settle();
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(place(), QStringLiteral("2,1"));
    QCOMPARE(editor("TxtBox")->geometry(), cellRect(2, 1).adjusted(2, 2, 0, 0));
    type(QStringLiteral("y"));
    QCOMPARE(column(1), QStringLiteral("c|xy|e"));
}

void tst_KorGrid_Rows::anEditorAboveDeletedRowsStays()
{
    columns(2);
    fill(QStringLiteral("a|b|c|d|e"));
    click(2, 1);
    (void)log->take();
    type(QStringLiteral("x"));
    grid->DelRow(3, 5);
    type(QStringLiteral("y"));
    QCOMPARE(column(1), QStringLiteral("a|xy"));
    QCOMPARE(log->take(), QStringLiteral("Change(2,1) Change(2,1)"));
}

void tst_KorGrid_Rows::aHiddenGridTakesNoKeyboard()
{
    orderColumns();
    grid->hide();
    (void)grid->SetFocusCell(2, Price);
    settle();
    QCOMPARE(QApplication::focusWidget(), stage->button());
    grid->show();
    QCOMPARE(QApplication::focusWidget(), stage->button());
}

void tst_KorGrid_Rows::moreRowsThanMemoryHoldsAreRefused()
{
    constexpr int most = std::numeric_limits<int>::max();
    orderColumns();
    const int rows = grid->Rows();
    const int columns = grid->Cols();
    QCOMPARE(errorOf([&] { grid->setRows(most); }), 380);
    QCOMPARE(errorOf([&] { grid->setCols(most); }), 380);
    QCOMPARE(errorOf([&] { grid->AddRow(most); }), 380);
    QCOMPARE(grid->Rows(), rows);
    QCOMPARE(grid->Cols(), columns);
    grid->AddRow(); // and goes on as ever
    QCOMPARE(grid->Rows(), rows + 1);
}

void tst_KorGrid_Rows::aGridThatIsHiddenLetsTheKeyboardGo_data()
{
    QTest::addColumn<bool>("isInEditor");
    QTest::newRow("from its surface") << false;
    QTest::newRow("from its open editor") << true;
}

void tst_KorGrid_Rows::aGridThatIsHiddenLetsTheKeyboardGo()
{
    QFETCH(bool, isInEditor);
    orderColumns();
    click(2, Product);
    if (!isInEditor)
        press(Qt::Key_F2);
    QCOMPARE(openEditor(), isInEditor ? QStringLiteral("TxtBox") : QString());
    grid->hide();
    settle();
    QCOMPARE(QApplication::focusWidget(), stage->button());
    QCOMPARE(place(), QStringLiteral("2,1"));
}

QTEST_MAIN(tst_KorGrid_Rows)
#include "tst_korgrid_rows.moc"
