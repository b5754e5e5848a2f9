// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>

using namespace kor;
using namespace kor::test;

//! Cells of the grid edited in place: the editor of each type, where it lies, and what it copies back.
class tst_KorGrid_Editing : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        orderColumns();
    }
    void cleanup() { tearDown(); }

    void clickingACellOpensTheEditorOfItsType_data();
    void clickingACellOpensTheEditorOfItsType();
    void theDateEditorIsOneLineHighInHighRows_data();
    void theDateEditorIsOneLineHighInHighRows();
    void anOpenEditorFollowsItsCell();
    void aCellThatScrollsOutTakesItsEditorAlong();
    void lockedAndFixedAndInvisibleCellsHaveNoEditor();

    void typingCopiesEveryChangeIntoTheCell();
    void aNullValueKeepsTheValueColumn();
    void enteringACellThatIsRewrittenRaisesChangeBeforeSelChange();
    void aWrappedTextStandsInItsEditorAsInItsCell_data();
    void aWrappedTextStandsInItsEditorAsInItsCell();
    void aTextThatTheEditorCannotShowStays_data();
    void aTextThatTheEditorCannotShowStays();
    void looksOfAListChangeNothing_data();
    void looksOfAListChangeNothing();
    void aChosenEntryGoesIntoTheCell();
    void theLengthOfAColumnLimitsWhatIsTyped();
    void aWrappedColumnKeepsItsLineBreaks();
    void theButtonOfAClickCellTellsItsRow();
    void aProgramThatWritesIntoTheOpenCellIsShown();
    void aProgramThatMovesOnKeepsWhatWasTyped();
    void theWheelScrollsAndChangesNoValue();
    void atDesignTimeNothingOpens();
};

void tst_KorGrid_Editing::clickingACellOpensTheEditorOfItsType_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("editor");
    QTest::newRow("text") << int(Product) << QStringLiteral("TxtBox");
    QTest::newRow("number") << int(Price) << QStringLiteral("KorNum");
    QTest::newRow("list") << int(Unit) << QStringLiteral("KorCmb");
    QTest::newRow("date") << int(Delivery) << QStringLiteral("KorDate");
    QTest::newRow("click field") << int(Store) << QStringLiteral("KorClick");
    QTest::newRow("text that wraps") << int(Remark) << QStringLiteral("TxtMBox");
}

void tst_KorGrid_Editing::clickingACellOpensTheEditorOfItsType()
{
    QFETCH(int, column);
    QFETCH(QString, editor);
    click(2, column);
    QCOMPARE(openEditor(), editor);
    QCOMPARE(place(), QStringLiteral("2,%1").arg(column));
    QVERIFY(hasKeyboard(qPrintable(editor)));
    const QRect lies = grid->findChild<QWidget *>(editor)->geometry();
    const QRect inside = cellRect(2, column).adjusted(2, 2, 0, 0); // two pixels are 30 twips
    if (column == Unit)
        QVERIFY(lies.left() == inside.left() && lies.right() == inside.right()); // a list has a height of its own
    else
        QCOMPARE(lies, inside);
    QCOMPARE(log->take(), QStringLiteral("MouseDownRow(1,0,2) MouseDown(1,0) SelChange MouseUp(1,0) Click"));
}

void tst_KorGrid_Editing::theDateEditorIsOneLineHighInHighRows_data()
{
    QTest::addColumn<int>("rowHeightMin");
    QTest::addColumn<int>("height"); // pixels
    QTest::newRow("285: the cell less 30 twips") << 285 << 16;
    QTest::newRow("315: the cell less 30 twips") << 315 << 18;
    QTest::newRow("316: one line") << 316 << 17;
    QTest::newRow("600: one line") << 600 << 17;
}

void tst_KorGrid_Editing::theDateEditorIsOneLineHighInHighRows()
{
    QFETCH(int, rowHeightMin);
    grid->setRowHeightMin(rowHeightMin);
    click(2, Delivery);
    QTEST(editor("KorDate")->height(), "height");
    press(Qt::Key_Escape);
    click(2, Price); // all others fill the cell
    QCOMPARE(editor("KorNum")->height(), cellRect(2, Price).height() - 2);
}

void tst_KorGrid_Editing::anOpenEditorFollowsItsCell()
{
    click(3, Price);
    view()->setColumnWidth(Product - 1, 160);
    settle();
    QCOMPARE(editor("KorNum")->geometry(), cellRect(3, Price).adjusted(2, 2, 0, 0));
    grid->resize(400, 150);
    settle();
    grid->setRowHeightMin(450);
    settle();
    QCOMPARE(editor("KorNum")->geometry(), cellRect(3, Price).adjusted(2, 2, 0, 0));
    QVERIFY(hasKeyboard("KorNum"));
}

void tst_KorGrid_Editing::aCellThatScrollsOutTakesItsEditorAlong()
{
    grid->setRows(100);
    click(2, Product);
    type(QStringLiteral("abc"));
    view()->verticalScrollBar()->setValue(view()->verticalScrollBar()->maximum());
    settle();
    QVERIFY(!editor("TxtBox")->geometry().intersects(view()->viewport()->rect()));
    type(QStringLiteral("d")); // the keyboard is still there, and so is the text
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("abcd"));
    view()->verticalScrollBar()->setValue(0);
    settle();
    QCOMPARE(editor("TxtBox")->geometry(), cellRect(2, Product).adjusted(2, 2, 0, 0));
}

void tst_KorGrid_Editing::lockedAndFixedAndInvisibleCellsHaveNoEditor()
{
    click(2, Number);
    QCOMPARE(place(), QStringLiteral("2,%1").arg(int(Number)));
    QCOMPARE(openEditor(), QString());
    grid->setCol(Exact); // without width
    QCOMPARE(openEditor(), QString());
    grid->setRows(100);
    grid->setCol(Product);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    grid->setRow(90); // a program does not scroll
    QCOMPARE(openEditor(), QString());
    grid->setRow(0);
    QCOMPARE(openEditor(), QString());
    grid->setRow(1);
    grid->setCol(0);
    QCOMPARE(openEditor(), QString());
}

// --- copying back

void tst_KorGrid_Editing::typingCopiesEveryChangeIntoTheCell()
{
    click(2, Price);
    (void)log->take();
    type(QStringLiteral("12.5"));
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("12,5"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("12,5"));
    QCOMPARE(log->take(), QStringLiteral("Change(2,2) Change(2,2) Change(2,2) Change(2,2)"));
    press(Qt::Key_Return);
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("12,50"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("12,5"));
    QCOMPARE(place(), QStringLiteral("2,3"));
    QCOMPARE(log->take(), QStringLiteral("Change(2,2) SelChange"));
}

void tst_KorGrid_Editing::aNullValueKeepsTheValueColumn()
{
    click(2, Price);
    type(QStringLiteral("12,5"));
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Backspace);
    QCOMPARE(grid->TextMatrix(2, Price), QString());
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("1")); // the last number there was
    QVERIFY(isNull(grid->Value(2, Price)));                    // which is no longer what the cell says
    QCOMPARE(grid->SumColumn(Price), 0.0F);
}

void tst_KorGrid_Editing::enteringACellThatIsRewrittenRaisesChangeBeforeSelChange()
{
    grid->setTextControl(2, Price, QStringLiteral("1234,5"));
    click(2, Price);
    QCOMPARE(log->take(), QStringLiteral("MouseDownRow(1,0,2) MouseDown(1,0) Change(2,2) SelChange MouseUp(1,0) "
                                         "Click"));
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("1\u00a0234,50"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("1234,5"));
}

void tst_KorGrid_Editing::aWrappedTextStandsInItsEditorAsInItsCell_data()
{
    QTest::addColumn<int>("words");
    QTest::addColumn<bool>("isTyped");
    for (const int words : {1, 2, 3, 5}) {
        QTest::addRow("%d words", words) << words << false;
        QTest::addRow("%d words, typed", words) << words << true;
    }
}

void tst_KorGrid_Editing::aWrappedTextStandsInItsEditorAsInItsCell()
{
    QFETCH(const int, words);
    QFETCH(const bool, isTyped);
    const QString text = QStringLiteral("proszę uważać ").repeated(words).trimmed();
    if (!isTyped)
        grid->setTextControl(1, Remark, text);
    settle();
    click(1, Remark);
    if (isTyped)
        type(text);
    settle();
    QCOMPARE(grid->TextMatrix(1, Remark), text);
    auto *box = editor<QPlainTextEdit>("TxtMBox");
    QCOMPARE(box->verticalScrollBar()->maximum(), 0); // no line is out of sight
    QTextCursor caret = box->textCursor();
    caret.movePosition(QTextCursor::Start);
    const int left = box->viewport()->mapTo(view()->viewport(), box->cursorRect(caret).topLeft()).x();
    QCOMPARE(left, cellRect(1, Remark).left() + 3); // as texts do in cells
}

void tst_KorGrid_Editing::aTextThatTheEditorCannotShowStays_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::newRow("no date") << int(Delivery) << QStringLiteral("po świętach");
    QTest::newRow("no number") << int(Price) << QStringLiteral("do uzgodnienia");
}

void tst_KorGrid_Editing::aTextThatTheEditorCannotShowStays()
{
    QFETCH(int, column);
    QFETCH(QString, text);
    grid->setTextControl(2, column, text);
    (void)log->take();
    click(2, column);
    QCOMPARE(log->take(), QStringLiteral("MouseDownRow(1,0,2) MouseDown(1,0) Change(2,%1) SelChange MouseUp(1,0) "
                                         "Click")
                              .arg(column));
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, column), text);
    QCOMPARE(messages->take(), QStringList());
    click(2, column);
    press(Qt::Key_Down);
    QCOMPARE(grid->TextMatrix(2, column), text);
}

void tst_KorGrid_Editing::looksOfAListChangeNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a name that the list does not have") << QStringLiteral("tona");
    QTest::newRow("nothing") << QString();
    QTest::newRow("an entry") << QStringLiteral("karton");
}

void tst_KorGrid_Editing::looksOfAListChangeNothing()
{
    QFETCH(QString, text);
    grid->setTextControl(2, Unit, text);
    click(2, Unit);
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, Unit), text);
    click(2, Unit);
    press(Qt::Key_F2);
    QCOMPARE(grid->TextMatrix(2, Unit), text);
    click(2, Unit);
    stage->button()->setFocus();
    settle();
    QCOMPARE(grid->TextMatrix(2, Unit), text);
}

void tst_KorGrid_Editing::aChosenEntryGoesIntoTheCell()
{
    click(2, Unit);
    type(QStringLiteral("p"));
    QCOMPARE(grid->TextMatrix(2, Unit), QStringLiteral("paleta"));
    QCOMPARE(grid->Value(2, Unit), QVariant(QStringLiteral("P")));
}

void tst_KorGrid_Editing::theLengthOfAColumnLimitsWhatIsTyped()
{
    const int code = grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Kod"), 900, 0, false, QString(), 0, 3);
    grid->setTextControl(2, code, QStringLiteral("ABCDE"));
    grid->resize(900, 200);
    click(2, code);
    QCOMPARE(grid->TextMatrix(2, code), QStringLiteral("ABCDE")); // a program's text is never cut
    press(Qt::Key_Down);
    type(QStringLiteral("wxyz"));
    QCOMPARE(grid->TextMatrix(3, code), QStringLiteral("wxy"));
    grid->setCol(Product); // and the next column has no limit
    type(QStringLiteral("wxyz"));
    QCOMPARE(grid->TextMatrix(3, Product), QStringLiteral("wxyz"));
}

void tst_KorGrid_Editing::aWrappedColumnKeepsItsLineBreaks()
{
    const QString text = QStringLiteral("dwa\r\nwiersze");
    grid->setTextControl(2, Remark, text);
    settle();
    QVERIFY(cellRect(2, Remark).height() > cellRect(1, Remark).height());
    click(2, Remark);
    QCOMPARE(editor("TxtMBox")->height(), cellRect(2, Remark).height() - 2);
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, Remark), text);
    click(2, Remark);
    press(Qt::Key_Return, Qt::ControlModifier);
    type(QStringLiteral("trzy"));
    QCOMPARE(grid->TextMatrix(2, Remark), QStringLiteral("dwa\r\nwiersze\r\ntrzy"));
}

void tst_KorGrid_Editing::theButtonOfAClickCellTellsItsRow()
{
    click(4, Store);
    (void)log->take();
    connect(grid, &KorGrid::ClickClick, this, [this](int &) {
        auto *field = editor<KorClick>("KorClick");
        field->setValue(7);
        field->setText(QStringLiteral("Gdańsk"));
    });
    press(Qt::Key_F4);
    QCOMPARE(grid->TextMatrix(4, Store), QStringLiteral("Gdańsk"));
    QVERIFY2(log->take().startsWith(QLatin1String("ClickClick(4) Change(4,5)")), "the chooser, then the change");
}

void tst_KorGrid_Editing::aProgramThatWritesIntoTheOpenCellIsShown()
{
    click(2, Product);
    (void)log->take();
    grid->setTextMatrix(2, Product, QStringLiteral("deska"));
    QCOMPARE(editor<QLineEdit>("TxtBox")->text(), QStringLiteral("deska"));
    QCOMPARE(log->take(), QString());
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("deska"));
}

void tst_KorGrid_Editing::aProgramThatMovesOnKeepsWhatWasTyped()
{
    click(2, Product);
    type(QStringLiteral("deska"));
    grid->setRow(4);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QVERIFY(hasKeyboard("TxtBox"));
    type(QStringLiteral("belka"));
    QCOMPARE(column(Product), QStringLiteral("|deska||belka|"));
    stage->button()->setFocus();
    settle();
    QCOMPARE(openEditor(), QString());
    grid->setRow(1); // the user is elsewhere, and stays there
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(QApplication::focusWidget(), stage->button());
}

void tst_KorGrid_Editing::theWheelScrollsAndChangesNoValue()
{
    grid->setRows(100);
    grid->setTextControl(2, Unit, QStringLiteral("karton"));
    click(2, Unit);
    QWidget *box = QApplication::focusWidget();
    QWheelEvent wheel({3, 3}, box->mapToGlobal(QPointF(3, 3)), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    QCOMPARE(grid->TextMatrix(2, Unit), QStringLiteral("karton"));
    QVERIFY(view()->verticalScrollBar()->value() > 0);
    QCOMPARE(place(), QStringLiteral("2,3"));
}

void tst_KorGrid_Editing::atDesignTimeNothingOpens()
{
    UserControl::setUserMode(stage.get(), false);
    click(2, Product);
    grid->setRow(3);
    QVERIFY(!grid->SetFocusCell(2, 2));
    QCOMPARE(openEditor(), QString());
    UserControl::setUserMode(stage.get(), true);
}

QTEST_MAIN(tst_KorGrid_Editing)
#include "tst_korgrid_editing.moc"
