// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

using namespace kor;
using namespace kor::test;

//! A grid that odd programs set up, in forms that hide, disable and mirror it.
class tst_KorGrid_Odd : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void anEmptiedGridIsTypedIntoAgain_data();
    void anEmptiedGridIsTypedIntoAgain();
    void arrowsOpenTheEditorOfEveryRow();
    void stepsOpenTheEditorOfEveryColumn();
    void describingColumnsUnderAnOpenEditor();
    void describingColumnsUnderACellThatIsCutOff();
    void aGridWithoutColumns();
    void valueColumnsThatPointAtThemselves();
    void valueColumnsThatPointAtEachOther();
    void datesOfTwoDigitYears_data();
    void datesOfTwoDigitYears();
    void readingAListAnewKeepsWhatItDoesNotHave_data();
    void readingAListAnewKeepsWhatItDoesNotHave();
    void aHandlerThatWritesTheCellItselfLeavesTheTyping_data();
    void aHandlerThatWritesTheCellItselfLeavesTheTyping();
    void addingARowWhileTyping();
    void deletingTheRowThatIsTypedInto();
    void aColumnWithoutDescriptionKeepsTheEditorAsItWas();
    void rowSelOfWholeRows();
    void theMousePointerWhileRowsAreAdded();
    void noEditorWhileRowsAreAdded();
};

void tst_KorGrid_Odd::anEmptiedGridIsTypedIntoAgain_data()
{
    QTest::addColumn<bool>("hasKeyboard");
    QTest::addColumn<bool>("byAddRow");
    QTest::newRow("the keyboard comes later") << false << false;
    QTest::newRow("the keyboard is there") << true << false;
    QTest::newRow("row by row, the keyboard comes later") << false << true;
    QTest::newRow("row by row, the keyboard is there") << true << true;
}

void tst_KorGrid_Odd::anEmptiedGridIsTypedIntoAgain()
{
    QFETCH(bool, hasKeyboard);
    QFETCH(bool, byAddRow);
    orderColumns();
    if (hasKeyboard) {
        click(2, Product);
        press(Qt::Key_Escape);
    }
    grid->setRows(1);
    (void)log->take();
    if (byAddRow)
        grid->AddRow();
    else
        grid->setRows(4);
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    QCOMPARE(place(), QStringLiteral("1,1"));
    settle();
    if (!hasKeyboard)
        QTest::keyClick(stage->button(), Qt::Key_Backtab, Qt::ShiftModifier);
    settle();
    type(QStringLiteral("deska"));
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(row(1), QStringLiteral("deska|||||||"));
}

void tst_KorGrid_Odd::arrowsOpenTheEditorOfEveryRow()
{
    orderColumns(60);
    click(1, Product);
    for (int row = 2; row < 60; ++row) {
        press(Qt::Key_Down);
        QCOMPARE(place(), QStringLiteral("%1,1").arg(row));
        QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
        QCOMPARE(editor("TxtBox")->geometry(), cellRect(row, 1).adjusted(2, 2, 0, 0));
        QVERIFY(view()->viewport()->rect().contains(editor("TxtBox")->geometry()));
    }
    for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Up}) {
        press(key);
        QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
        QVERIFY(view()->viewport()->rect().contains(editor("TxtBox")->geometry()));
    }
    press(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(place(), QStringLiteral("1,1"));
}

void tst_KorGrid_Odd::stepsOpenTheEditorOfEveryColumn()
{
    orderColumns();
    grid->resize(260, 220);
    settle();
    click(1, Product);
    for (const int column : {Price, Unit, Delivery, Store, Remark}) {
        press(Qt::Key_Tab);
        QCOMPARE(place(), QStringLiteral("1,%1").arg(column));
        QVERIFY(!openEditor().isEmpty());
        const QRect lies = editor(qPrintable(openEditor()))->geometry();
        QVERIFY2(lies.left() >= 0 && lies.right() <= view()->viewport()->rect().right(), qPrintable(openEditor()));
    }
    press(Qt::Key_Return);
    QCOMPARE(place(), QStringLiteral("2,1"));
    for (const int column : {Price, Unit, Delivery, Store}) {
        press(Qt::Key_Right);
        QCOMPARE(place(), QStringLiteral("2,%1").arg(column));
        QVERIFY2(!openEditor().isEmpty(), qPrintable(place()));
    }
}

void tst_KorGrid_Odd::describingColumnsUnderAnOpenEditor()
{
    grid->setFocus();
    settle();
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    type(QStringLiteral("7"));
    (void)log->take();
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Lp."), 600, 1, true);
    settle();
    QCOMPARE(openEditor(), QString());
    QCOMPARE(log->take(), QString());
    QCOMPARE(grid->TextMatrix(1, 1), QStringLiteral("7"));
    QVERIFY(grid->isAncestorOf(QApplication::focusWidget()));
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
    press(Qt::Key_Tab);
    QCOMPARE(place(), QStringLiteral("1,2"));
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    type(QStringLiteral("deska"));
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Uwagi"), 1500, 0);
    type(QStringLiteral("!")); // a column behind takes nothing from the one that is edited
    QCOMPARE(row(1), QStringLiteral("7|deska!|"));
}

void tst_KorGrid_Odd::describingColumnsUnderACellThatIsCutOff()
{
    grid->setCols(5);
    click(1, 4);
    type(QStringLiteral("x"));
    (void)log->take();
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0), 1);
    settle();
    QCOMPARE(grid->Cols(), 2);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(log->take(), QString());
}

void tst_KorGrid_Odd::aGridWithoutColumns()
{
    grid->setFocus();
    settle();
    grid->setCols(1);
    grid->setRows(4);
    settle();
    QCOMPARE(openEditor(), QString());
    type(QStringLiteral("x"));
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_F2);
    QCOMPARE(grid->SumColumn(1), 0.0F);
    QCOMPARE(grid->MaxColumn(1), 0.0F);
    grid->DelRow(1, 2);
    grid->AddRow();
    QVERIFY(!grid->SetFocusCell(1, 0));
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage->button());
    grid->setRows(1);
    grid->AddRow();
    grid->DelRow(1);
    QCOMPARE(grid->Rows(), 2);
}

void tst_KorGrid_Odd::valueColumnsThatPointAtThemselves()
{
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1500, 1, false, QStringLiteral("#,##0.00"), 0, 0,
                    QString(), QString(), 1);
    grid->setRows(4);
    click(1, 1);
    type(QStringLiteral("1234.5"));
    press(Qt::Key_Down);
    QCOMPARE(grid->Value(1, 1), QVariant(1234.5));
    press(Qt::Key_Up);
    press(Qt::Key_Down);
    QCOMPARE(grid->Value(1, 1), QVariant(1234.5));
    grid->setTextMatrix(2, 1, QStringLiteral("7"));
    QCOMPARE(grid->Value(2, 1), QVariant(7.0));
    grid->setValue(2, 1, 8);
    QCOMPARE(grid->Value(2, 1), QVariant(8.0));
}

void tst_KorGrid_Odd::valueColumnsThatPointAtEachOther()
{
    for (const int valueColumn : {2, 1})
        grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1500, 1, false, QStringLiteral("#,##0.00"), 0,
                        0, QString(), QString(), valueColumn);
    grid->setRows(4);
    click(1, 1);
    type(QStringLiteral("1234.5"));
    press(Qt::Key_Tab);
    QCOMPARE(place(), QStringLiteral("1,2"));
    press(Qt::Key_Tab);
    QCOMPARE(grid->Value(1, 1), QVariant(1234.5));
    QCOMPARE(grid->Value(1, 2), QVariant(1234.5));
    grid->setTextMatrix(2, 2, QStringLiteral("7"));
    QCOMPARE(row(2), QStringLiteral("7|7,00"));
}

void tst_KorGrid_Odd::datesOfTwoDigitYears_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("49 is in this century") << QStringLiteral("24.12.49") << QDate(2049, 12, 24);
    QTest::newRow("50 is in the last one") << QStringLiteral("24.12.50") << QDate(1950, 12, 24);
    QTest::newRow("six digits") << QStringLiteral("241226") << QDate(2026, 12, 24);
}

void tst_KorGrid_Odd::datesOfTwoDigitYears()
{
    QFETCH(QString, text);
    QFETCH(QDate, date);
    orderColumns();
    grid->setTextMatrix(2, Delivery, text);
    QCOMPARE(grid->Value(2, Delivery), QVariant(date));
    click(2, Delivery);
    const bool isRewritten = grid->TextMatrix(2, Delivery) != text;
    QCOMPARE(log->take(), QStringLiteral("MouseDownRow(1,0,2) MouseDown(1,0) %1SelChange MouseUp(1,0) Click")
                              .arg(isRewritten ? QStringLiteral("Change(2,4) ") : QString()));
    press(Qt::Key_Tab);
    QCOMPARE(grid->Value(2, Delivery), QVariant(date));
    QCOMPARE(messages->take(), QStringList());
    click(3, Delivery);
    type(text);
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(3, Delivery), date.toString(QStringLiteral("dd.MM.yyyy")));
}

void tst_KorGrid_Odd::readingAListAnewKeepsWhatItDoesNotHave_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("byKey");
    for (const bool byKey : {false, true}) {
        const char *way = byKey ? "F5" : "program";
        QTest::addRow("another name, %s", way) << QStringLiteral("tona") << byKey;
        QTest::addRow("nothing, %s", way) << QString() << byKey;
        QTest::addRow("an entry, %s", way) << QStringLiteral("karton") << byKey;
    }
}

void tst_KorGrid_Odd::readingAListAnewKeepsWhatItDoesNotHave()
{
    QFETCH(QString, text);
    QFETCH(bool, byKey);
    orderColumns();
    grid->setTextMatrix(2, Unit, text);
    click(2, Unit);
    (void)log->take();
    if (byKey)
        press(Qt::Key_F5);
    else
        grid->CmbRefresh();
    QCOMPARE(grid->TextMatrix(2, Unit), text);
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, Unit), text);
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
}

void tst_KorGrid_Odd::aHandlerThatWritesTheCellItselfLeavesTheTyping_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("cell");
    QTest::newRow("a text, the same") << int(Product) << QStringLiteral("same") << QStringLiteral("deska")
                                      << QStringLiteral("deska");
    QTest::newRow("a number, the same") << int(Price) << QStringLiteral("same") << QStringLiteral("1234.5")
                                        << QStringLiteral("1\u00a0234,50");
    QTest::newRow("a wrapped text, the same")
        << int(Remark) << QStringLiteral("same") << QStringLiteral("deska") << QStringLiteral("deska");
    QTest::newRow("a date, the same") << int(Delivery) << QStringLiteral("same") << QStringLiteral("241226")
                                      << QStringLiteral("24.12.2026");
    QTest::newRow("a text in capitals") << int(Product) << QStringLiteral("upper") << QStringLiteral("deska")
                                        << QStringLiteral("DESKA");
    QTest::newRow("a wrapped text in capitals")
        << int(Remark) << QStringLiteral("upper") << QStringLiteral("deska") << QStringLiteral("DESKA");
    QTest::newRow("a click field in capitals")
        << int(Store) << QStringLiteral("upper") << QStringLiteral("gdynia") << QStringLiteral("GDYNIA");
}

void tst_KorGrid_Odd::aHandlerThatWritesTheCellItselfLeavesTheTyping()
{
    QFETCH(int, column);
    QFETCH(QString, deed);
    QFETCH(QString, typed);
    orderColumns();
    connect(grid, &KorGrid::Change, this, [&](int &row, int &changed) {
        const QString text = grid->TextMatrix(row, changed);
        grid->setTextControl(row, changed, deed == u"upper" ? text.toUpper() : text);
    });
    click(2, column);
    type(typed);
    press(Qt::Key_Tab);
    QTEST(grid->TextMatrix(2, column), "cell");
}

void tst_KorGrid_Odd::addingARowWhileTyping()
{
    orderColumns();
    connect(grid, &KorGrid::Change, this, [this](int &row, int &) {
        if (row == grid->Rows() - 1)
            grid->AddRow(grid->Rows()); // always an empty one behind the last
    });
    click(5, Product);
    type(QStringLiteral("deska"));
    QCOMPARE(column(Product), QStringLiteral("||||deska|"));
    QCOMPARE(grid->Rows(), 7);
    press(Qt::Key_Down);
    type(QStringLiteral("belka"));
    QCOMPARE(column(Product), QStringLiteral("||||deska|belka|"));
}

void tst_KorGrid_Odd::deletingTheRowThatIsTypedInto()
{
    orderColumns();
    grid->setTextMatrix(3, Product, QStringLiteral("belka"));
    bool isDone = false;
    connect(grid, &KorGrid::Change, this, [&](int &row, int &) {
        if (!std::exchange(isDone, true))
            grid->DelRow(row);
    });
    click(2, Product);
    type(QStringLiteral("x"));
    QCOMPARE(openEditor(), QString());
    QCOMPARE(column(Product), QStringLiteral("|belka||"));
    QVERIFY(grid->isAncestorOf(QApplication::focusWidget()));
    type(QStringLiteral("y")); // and goes on in the row that came up
    QCOMPARE(column(Product), QStringLiteral("|y||"));
}

void tst_KorGrid_Odd::aColumnWithoutDescriptionKeepsTheEditorAsItWas()
{
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Kod"), 900, 0, false, QString(), 0, 3);
    grid->setCols(3);
    click(1, 1);
    type(QStringLiteral("wxyz"));
    click(1, 2);
    type(QStringLiteral("wxyz"));
    QCOMPARE(row(1), QStringLiteral("wxy|wxy"));
}

void tst_KorGrid_Odd::rowSelOfWholeRows()
{
    orderColumns();
    view()->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setRow(3);
    QCOMPARE(grid->RowSel(), 3);
    click(3, Number);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(grid->Row(), 3);
    QCOMPARE(grid->RowSel(), 4);
    QVERIFY(view()->selectionModel()->isSelected(view()->model()->index(3, 0)));
    view()->setSelectionBehavior(QAbstractItemView::SelectColumns);
    QCOMPARE(grid->RowSel(), 0);
}

void tst_KorGrid_Odd::theMousePointerWhileRowsAreAdded()
{
    orderColumns();
    QList<Qt::CursorShape> shapes;
    const auto look = [&] {
        const QCursor *cursor = QGuiApplication::overrideCursor();
        shapes << (cursor ? cursor->shape() : Qt::ArrowCursor);
    };
    connect(view()->model(), &QAbstractItemModel::rowsInserted, this, look);
    connect(grid, &KorGrid::SelChange, this, look);
    grid->AddRow(0, Product);
    QCOMPARE(shapes, (QList<Qt::CursorShape>{Qt::WaitCursor, Qt::WaitCursor}));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_KorGrid_Odd::noEditorWhileRowsAreAdded()
{
    orderColumns();
    QString open;
    connect(view()->model(), &QAbstractItemModel::rowsInserted, this, [&] {
        grid->setRow(3);
        open += openEditor();
        (void)grid->SetFocusCell(2, 2);
        open += openEditor();
    });
    grid->AddRow(0, Product);
    QCOMPARE(open, QString());
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(place(), QStringLiteral("6,1"));
}

QTEST_MAIN(tst_KorGrid_Odd)
#include "tst_korgrid_odd.moc"
