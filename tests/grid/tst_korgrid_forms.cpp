// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStackedWidget>

using namespace kor;
using namespace kor::test;

//! A grid in forms that hide, disable, scroll, narrow and mirror it.
class tst_KorGrid_Forms : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aPageThatIsHiddenKeepsWhatIsTyped_data();
    void aPageThatIsHiddenKeepsWhatIsTyped();
    void disablingKeepsWhatIsTyped_data();
    void disablingKeepsWhatIsTyped();
    void disablingIsNoWayAroundARefusedValue();
    void aDisabledGridOpensNothing();
    void typingOnACellThatWasScrolledAway();
    void aNumberInACellThatIsTooNarrow();
    void twoGridsInAWindow();
    void leavingTheGridWithARefusedValue();
    void fromRightToLeft();
    void theKeyboardComesIntoAnEditorThatTheProgramOpened();
    void aVeryLongTextThatWraps();
    void theDateInARowThatAWrappedTextMakesHigh_data();
    void theDateInARowThatAWrappedTextMakesHigh();
    void aColumnThatIsScrolledOutHasNoEditor();
    void whoeverGivesTheKeyboardAgainLeavesTheTyping();
    void anEntryIsLookedAtWithoutAWord();
    void theMouseMovesInTwips();
};

void tst_KorGrid_Forms::aPageThatIsHiddenKeepsWhatIsTyped_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<int>("complaints");
    QTest::newRow("a text") << int(Product) << QStringLiteral("deska") << QStringLiteral("deska") << 0;
    QTest::newRow("a number") << int(Price) << QStringLiteral("1234,5") << QStringLiteral("1\u00a0234,50") << 0;
    QTest::newRow("an entry") << int(Unit) << QStringLiteral("k") << QStringLiteral("karton") << 0;
    QTest::newRow("half a date") << int(Delivery) << QStringLiteral("99") << QStringLiteral("99") << 1;
}

void tst_KorGrid_Forms::aPageThatIsHiddenKeepsWhatIsTyped()
{
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(int, complaints);
    orderColumns();
    auto *pages = stage->place(new QStackedWidget, 640, 220);
    pages->addWidget(grid);
    auto *other = new QLineEdit;
    pages->addWidget(other);
    pages->setCurrentWidget(grid);
    stage->resize(700, 600);
    pages->show();
    settle();
    click(2, column);
    type(typed);
    pages->setCurrentWidget(other);
    settle();
    QTEST(grid->TextMatrix(2, column), "kept");
    QCOMPARE(messages->take().size(), complaints);
    QVERIFY(!grid->isAncestorOf(QApplication::focusWidget()));
    stage->activateWindow(); // which no window manager does after the message
    pages->setCurrentWidget(grid);
    settle();
    QCOMPARE(place(), QStringLiteral("2,%1").arg(column));
    QTEST(grid->TextMatrix(2, column), "kept");
    click(3, Product);
    type(QStringLiteral("belka"));
    QTEST(grid->TextMatrix(2, column), "kept");
    QCOMPARE(grid->TextMatrix(3, Product), QStringLiteral("belka"));
    QCOMPARE(messages->take().size(), 0);
}

void tst_KorGrid_Forms::disablingKeepsWhatIsTyped_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("left");
    const QString number = QStringLiteral("1234,5");
    const QString formatted = QStringLiteral("1\u00a0234,50");
    // clang-format off
    QTest::newRow("a text")   << int(Product) << QStringLiteral("deska") << QStringLiteral("deska")  << QStringLiteral("deska");
    QTest::newRow("a number") << int(Price)   << number                  << number                   << formatted;
    QTest::newRow("an entry") << int(Unit)    << QStringLiteral("k")     << QStringLiteral("karton") << QStringLiteral("karton");
    // clang-format on
}

void tst_KorGrid_Forms::disablingKeepsWhatIsTyped()
{
    QFETCH(int, column);
    QFETCH(QString, typed);
    orderColumns();
    click(2, column);
    type(typed);
    grid->setEnabled(false);
    settle();
    QTEST(grid->TextMatrix(2, column), "kept");
    QVERIFY(!grid->isAncestorOf(QApplication::focusWidget()));
    grid->setEnabled(true);
    settle();
    QTEST(grid->TextMatrix(2, column), "kept");
    click(3, Product);
    type(QStringLiteral("belka"));
    QTEST(grid->TextMatrix(2, column), "left");
    QCOMPARE(grid->TextMatrix(3, Product), QStringLiteral("belka"));
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorGrid_Forms::disablingIsNoWayAroundARefusedValue()
{
    orderColumns();
    click(2, Delivery);
    type(QStringLiteral("99"));
    grid->setEnabled(false);
    settle();
    grid->setEnabled(true);
    settle();
    QCOMPARE(messages->take(), QStringList());
    QCOMPARE(grid->TextMatrix(2, Delivery), QStringLiteral("99"));
    click(3, Product);
    QCOMPARE(messages->take().size(), 1);
    QCOMPARE(place(), QStringLiteral("2,4"));
    QVERIFY(hasKeyboard("KorDate"));
    press(Qt::Key_Escape);
    QCOMPARE(grid->TextMatrix(2, Delivery), QString());
}

void tst_KorGrid_Forms::typingOnACellThatWasScrolledAway()
{
    orderColumns(100);
    click(2, Product);
    press(Qt::Key_Escape);
    view()->verticalScrollBar()->setValue(60);
    type(QStringLiteral("deska"));
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("deska"));
    QVERIFY(view()->viewport()->rect().contains(editor("TxtBox")->geometry()));
}

void tst_KorGrid_Forms::aNumberInACellThatIsTooNarrow()
{
    orderColumns();
    grid->setTextMatrix(2, Price, QStringLiteral("1234,5"));
    view()->setColumnWidth(Price - 1, 30);
    settle();
    (void)log->take();
    grid->setRow(1); // the user is elsewhere
    grid->setRow(2);
    auto *box = editor("KorNum")->findChild<QLineEdit *>();
    QVERIFY(box->text().contains(u'#'));
    QCOMPARE(log->take(), QStringLiteral("SelChange SelChange"));
    QTest::keyClick(stage->button(), Qt::Key_Backtab, Qt::ShiftModifier);
    settle();
    QVERIFY(hasKeyboard("KorNum"));
    QCOMPARE(field(box), QStringLiteral("[1234,50]"));
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("1\u00a0234,50"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("1234,5"));
    QVERIFY(!log->take().contains(QLatin1String("Change(")));
}

void tst_KorGrid_Forms::aDisabledGridOpensNothing()
{
    orderColumns();
    grid->setEnabled(false);
    grid->setRow(2);
    QVERIFY(!grid->SetFocusCell(3, 2));
    grid->AddRow(0, 1);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(place(), QStringLiteral("6,1"));
}

void tst_KorGrid_Forms::twoGridsInAWindow()
{
    orderColumns(2);
    const QPointer<KorGrid> first = grid;
    auto *second = stage->place(new KorGrid, 640, 220);
    stage->resize(700, 600);
    second->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
    second->show();
    QWidget::setTabOrder(first, second);
    QWidget::setTabOrder(second, stage->button());
    settle();
    EventLog secondLog(second);
    secondLog.ignore({QStringLiteral("MouseMove")});
    click(1, Remark);
    type(QStringLiteral("pilne"));
    press(Qt::Key_Tab);
    QVERIFY(second->isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(openEditor(), QString());
    type(QStringLiteral("deska"));
    QCOMPARE(second->TextMatrix(1, 1), QStringLiteral("deska"));
    QCOMPARE(first->TextMatrix(1, Remark), QStringLiteral("pilne"));
    click(1, Delivery);
    type(QStringLiteral("99"));
    (void)secondLog.take();
    second->setFocus();
    settle();
    QCOMPARE(messages->take().size(), 1);
    QVERIFY(hasKeyboard("KorDate"));
    QCOMPARE(secondLog.take(), QString());
}

void tst_KorGrid_Forms::leavingTheGridWithARefusedValue()
{
    orderColumns();
    click(2, Delivery);
    type(QStringLiteral("99"));
    QTest::mouseClick(stage->button(), Qt::LeftButton);
    settle();
    QCOMPARE(messages->take().size(), 1);
    QVERIFY(hasKeyboard("KorDate"));
    QCOMPARE(openEditor(), QStringLiteral("KorDate"));
    QCOMPARE(editor<KorDate>("KorDate")->Text(), QStringLiteral("99"));
    QCOMPARE(grid->TextMatrix(2, Delivery), QStringLiteral("99"));
    press(Qt::Key_Escape);
    QCOMPARE(grid->TextMatrix(2, Delivery), QString());
}

void tst_KorGrid_Forms::fromRightToLeft()
{
    orderColumns();
    stage->setLayoutDirection(Qt::RightToLeft);
    settle();
    QVERIFY(cellRect(1, Product).left() > cellRect(1, Price).left());
    grid->setTextMatrix(2, Product, QStringLiteral("ab"));
    click(2, Product);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    const QRect cell = cellRect(2, Product);
    QCOMPARE(editor("TxtBox")->geometry(), cell.adjusted(2, 2, 0, 0));
    press(Qt::Key_End);
    press(Qt::Key_Left);
    QCOMPARE(place(), QStringLiteral("2,2"));
    press(Qt::Key_Right);
    QCOMPARE(place(), QStringLiteral("2,1"));
    press(Qt::Key_Tab);
    type(QStringLiteral("1234,5"));
    press(Qt::Key_Tab);
    QCOMPARE(grid->Value(2, Price), QVariant(1234.5));
}

void tst_KorGrid_Forms::theKeyboardComesIntoAnEditorThatTheProgramOpened()
{
    orderColumns();
    grid->setTextMatrix(2, Product, QStringLiteral("deska"));
    grid->setRow(2);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QTest::keyClick(stage->button(), Qt::Key_Backtab, Qt::ShiftModifier);
    settle();
    QVERIFY(hasKeyboard("TxtBox"));
    QCOMPARE(field(editor<QLineEdit>("TxtBox")), QStringLiteral("[deska]"));
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
}

void tst_KorGrid_Forms::aVeryLongTextThatWraps()
{
    orderColumns();
    QString text;
    for (int word = 0; word < 700; ++word)
        text += QStringLiteral("słowo%1 ").arg(word);
    grid->setTextMatrix(2, Remark, text);
    settle();
    QVERIFY(cellRect(2, Remark).height() > view()->viewport()->height());
    click(1, Remark);
    press(Qt::Key_Down);
    QCOMPARE(place(), QStringLiteral("2,7"));
    QCOMPARE(openEditor(), QStringLiteral("TxtMBox"));
    type(QStringLiteral("koniec"));
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, Remark), text + QStringLiteral("koniec"));
    QCOMPARE(place(), QStringLiteral("3,1"));
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QVERIFY(view()->viewport()->rect().contains(editor("TxtBox")->geometry()));
}

void tst_KorGrid_Forms::theDateInARowThatAWrappedTextMakesHigh_data()
{
    QTest::addColumn<int>("rowHeightMin");
    QTest::addColumn<bool>("fills");
    QTest::newRow("285: fills its cell") << 285 << true;
    QTest::newRow("315: fills its cell") << 315 << true;
    QTest::newRow("316: one line") << 316 << false;
}

void tst_KorGrid_Forms::theDateInARowThatAWrappedTextMakesHigh()
{
    QFETCH(int, rowHeightMin);
    QFETCH(bool, fills);
    orderColumns();
    grid->setRowHeightMin(rowHeightMin);
    grid->setTextMatrix(2, Remark, QStringLiteral("jeden\ndwa\ntrzy\ncztery"));
    settle();
    click(2, Delivery);
    const int cell = cellRect(2, Delivery).height();
    QVERIFY(cell > 40);
    QCOMPARE(editor("KorDate")->height(), fills ? cell - 2 : 17);
}

void tst_KorGrid_Forms::whoeverGivesTheKeyboardAgainLeavesTheTyping()
{
    orderColumns();
    auto *label = new QLabel(QStringLiteral("&Pozycje"), stage.get());
    label->setBuddy(grid);
    label->show();
    click(1, Product);
    type(QStringLiteral("ab"));
    grid->setFocus();
    settle();
    type(QStringLiteral("cd"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::AltModifier);
    settle();
    type(QStringLiteral("ef"));
    QCOMPARE(grid->TextMatrix(1, Product), QStringLiteral("abcdef"));
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    stage->button()->setFocus();
    settle();
    grid->setFocus(); // and from elsewhere it is entered as ever
    settle();
    QVERIFY(hasKeyboard("TxtBox"));
}

void tst_KorGrid_Forms::aColumnThatIsScrolledOutHasNoEditor()
{
    orderColumns();
    grid->resize(260, 220);
    settle();
    click(1, Product);
    (void)log->take();
    grid->setCol(Remark); // a program does not scroll
    QCOMPARE(openEditor(), QString());
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
    press(Qt::Key_F2); // the user does
    QCOMPARE(openEditor(), QStringLiteral("TxtMBox"));
    QVERIFY(view()->viewport()->rect().contains(editor("TxtMBox")->geometry()));
}

void tst_KorGrid_Forms::anEntryIsLookedAtWithoutAWord()
{
    orderColumns();
    grid->setTextMatrix(2, Unit, QStringLiteral("karton"));
    click(1, Unit);
    (void)log->take();
    press(Qt::Key_Down);
    QCOMPARE(editor<KorCombo>("KorCmb")->Text(), QStringLiteral("karton"));
    QCOMPARE(log->take(), QStringLiteral("SelChange"));
}

void tst_KorGrid_Forms::theMouseMovesInTwips()
{
    orderColumns();
    QStringList moved;
    connect(grid, &KorGrid::MouseMove, this, [&](int &button, int &shift, float &x, float &y) {
        moved << QStringLiteral("%1,%2,%3,%4").arg(button).arg(shift).arg(x).arg(y);
    });
    const QPoint place = cellRect(2, Price).center();
    QMouseEvent move(QEvent::MouseMove, place, view()->viewport()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::ShiftModifier);
    QApplication::sendEvent(view()->viewport(), &move);
    const QPoint inGrid = view()->viewport()->mapTo(grid.data(), place) * 15;
    QCOMPARE(moved, QStringList{QStringLiteral("0,1,%1,%2").arg(inGrid.x()).arg(inGrid.y())});
}

QTEST_MAIN(tst_KorGrid_Forms)
#include "tst_korgrid_forms.moc"
