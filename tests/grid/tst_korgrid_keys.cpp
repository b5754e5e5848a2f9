// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QPlainTextEdit>

using namespace kor;
using namespace kor::test;

//! The keys between the cells of a grid: what a clerk does who never takes the mouse.
class tst_KorGrid_Keys : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        orderColumns();
    }
    void cleanup() { tearDown(); }

    void tabAndEnterGoFromCellToCell();
    void shiftGoesBack();
    void theGridIsLeftBehindItsLastCell();
    void enterStaysInTheLastCell();
    void aLineTypedInOneBurst();
    void lettersForOneListAreNotTheBeginningOfTheNext();
    void arrowsMoveWhereTheEditorHasNoUseForThem();
    void upStopsBelowTheTitles();
    void aMoveThatLeadsNowhereKeepsTheEditor_data();
    void aMoveThatLeadsNowhereKeepsTheEditor();
    void controlHomeAndEndGoToTheEnds();
    void escapeGivesTheOldTextBack();
    void escapeLeavesWhatTheProgramWroteMeanwhile();
    void f2ClosesAndOpensWithoutLosingText();
    void theFirstCharacterGoesIntoTheEditor_data();
    void theFirstCharacterGoesIntoTheEditor();
    void aCharacterOfTwoUnitsStaysWhole();
    void anInputMethodComposesIntoTheEditor();
    void deleteOnTheGridEmptiesTheCell_data();
    void deleteOnTheGridEmptiesTheCell();
    void aRefusedDateKeepsTheCellWithOneMessage_data();
    void aRefusedDateKeepsTheCellWithOneMessage();
    void escapeGetsOutOfARefusedValue();
    void enteringTheGridOpensTheCurrentCell();
    void keysOnLockedCellsAreTheGrids();

private:
    //! Puts the keyboard on the grid itself, over a cell that can be edited.
    void surfaceAt(int row, int column)
    {
        click(row, column);
        press(Qt::Key_F2);
        QCOMPARE(openEditor(), QString());
        QCOMPARE(QApplication::focusWidget(), view());
        (void)log->take();
    }
};

void tst_KorGrid_Keys::tabAndEnterGoFromCellToCell()
{
    click(1, Product);
    type(QStringLiteral("gwoździe"));
    press(Qt::Key_Tab);
    type(QStringLiteral("3"));
    press(Qt::Key_Return);
    type(QStringLiteral("k"));
    press(Qt::Key_Tab);
    type(QStringLiteral("241226"));
    press(Qt::Key_Enter);
    press(Qt::Key_Tab);
    type(QStringLiteral("pilne"));
    press(Qt::Key_Tab);
    QCOMPARE(row(1), QStringLiteral("gwoździe|3,00|karton|24.12.2026||3|pilne|"));
    QCOMPARE(place(), QStringLiteral("2,1"));
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
}

void tst_KorGrid_Keys::shiftGoesBack()
{
    click(2, Product);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(place(), QStringLiteral("1,7")); // over the locked running number
    press(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(place(), QStringLiteral("1,5")); // and over the hidden column
}

void tst_KorGrid_Keys::theGridIsLeftBehindItsLastCell()
{
    click(5, Remark);
    type(QStringLiteral("koniec"));
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage->button());
    QCOMPARE(openEditor(), QString());
    QCOMPARE(grid->TextMatrix(5, Remark), QStringLiteral("koniec"));
    QCOMPARE(place(), QStringLiteral("5,7"));
    click(1, Product);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(!grid->isAncestorOf(QApplication::focusWidget()));
}

void tst_KorGrid_Keys::enterStaysInTheLastCell()
{
    click(5, Remark);
    type(QStringLiteral("koniec"));
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    QCOMPARE(place(), QStringLiteral("5,7"));
    QCOMPARE(grid->TextMatrix(5, Remark), QStringLiteral("koniec"));
    QVERIFY(grid->isAncestorOf(QApplication::focusWidget()));
}

// All keys wait before the first one is handled; every one lands where a slow typist's would.
void tst_KorGrid_Keys::aLineTypedInOneBurst()
{
    click(1, Product);
    const auto post = [](int key, const QString &text) {
        QWindow *window = QApplication::focusWindow();
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(window, new QKeyEvent(type, key, Qt::NoModifier, text));
    };
    const QString line = QStringLiteral("deska\t12.5\tk\t241226\t\tpilne\tbelka\t7");
    for (const QChar c : line)
        post(c == u'\t' ? int(Qt::Key_Tab) : int(c.toUpper().unicode()), QString(c));
    settle();
    QCOMPARE(row(1), QStringLiteral("deska|12,50|karton|24.12.2026||12,5|pilne|"));
    QCOMPARE(row(2), QStringLiteral("belka|7||||7||"));
}

void tst_KorGrid_Keys::lettersForOneListAreNotTheBeginningOfTheNext()
{
    click(1, Unit);
    for (const char *letter : {"k", "p", "s", "k"}) { // faster than the toolkit forgets
        type(QString::fromLatin1(letter));
        press(Qt::Key_Down);
    }
    QCOMPARE(column(Unit), QStringLiteral("karton|paleta|sztuka|karton|"));
}

void tst_KorGrid_Keys::arrowsMoveWhereTheEditorHasNoUseForThem()
{
    grid->setTextControl(2, Product, QStringLiteral("ab"));
    click(2, Product);
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    QCOMPARE(place(), QStringLiteral("2,1")); // inside the text
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    QCOMPARE(place(), QStringLiteral("2,2"));
    press(Qt::Key_Down);
    QCOMPARE(place(), QStringLiteral("3,2"));
    press(Qt::Key_Left);
    QCOMPARE(place(), QStringLiteral("3,1"));
    grid->setCol(Delivery);
    press(Qt::Key_Up); // in a date as in all others
    QCOMPARE(place(), QStringLiteral("2,4"));
    QCOMPARE(grid->TextMatrix(3, Delivery), QString());
    grid->setCol(Unit);
    press(Qt::Key_Down);
    QCOMPARE(place(), QStringLiteral("3,3"));
    QCOMPARE(grid->TextMatrix(2, Unit), QString());
}

void tst_KorGrid_Keys::upStopsBelowTheTitles()
{
    click(1, Product);
    press(Qt::Key_Up);
    QCOMPARE(place(), QStringLiteral("1,1"));
    QCOMPARE(grid->TextMatrix(0, Product), QStringLiteral("Towar"));
}

void tst_KorGrid_Keys::aMoveThatLeadsNowhereKeepsTheEditor_data()
{
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QKeyCombination>("keys");
    // clang-format off
    QTest::newRow("Up in the first row")               << "1,1" << QKeyCombination(Qt::Key_Up);
    QTest::newRow("Page Up in the first row")          << "1,1" << QKeyCombination(Qt::Key_PageUp);
    QTest::newRow("Ctrl+Home in the first cell")       << "1,1" << (Qt::CTRL | Qt::Key_Home);
    QTest::newRow("Down in the last row")              << "5,1" << QKeyCombination(Qt::Key_Down);
    QTest::newRow("Page Down in the last row")         << "5,1" << QKeyCombination(Qt::Key_PageDown);
    // clang-format on
}

void tst_KorGrid_Keys::aMoveThatLeadsNowhereKeepsTheEditor()
{
    QFETCH(const QString, cell);
    QFETCH(const QKeyCombination, keys);
    const int row = cell.startsWith(u'1') ? 1 : 5;
    click(row, Product);
    type(QStringLiteral("des"));
    (void)log->take();
    press(keys.key(), keys.keyboardModifiers());
    QCOMPARE(place(), cell);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(log->take(), QString());
    type(QStringLiteral("ka")); // goes on where it was
    QCOMPARE(grid->TextMatrix(row, Product), QStringLiteral("deska"));
}

void tst_KorGrid_Keys::controlHomeAndEndGoToTheEnds()
{
    grid->setRows(100);
    click(2, Price);
    type(QStringLiteral("5"));
    press(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(place(), QStringLiteral("99,8"));
    press(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(place(), QStringLiteral("1,1"));
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("5,00"));
    press(Qt::Key_PageDown);
    QVERIFY(grid->Row() > 5);
}

void tst_KorGrid_Keys::escapeGivesTheOldTextBack()
{
    click(2, Price);
    type(QStringLiteral("12,5"));
    press(Qt::Key_Return);
    click(2, Price);
    (void)log->take();
    type(QStringLiteral("99"));
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("99"));
    press(Qt::Key_Escape);
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("12,50"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("12,5"));
    QCOMPARE(openEditor(), QString());
    QCOMPARE(QApplication::focusWidget(), view());
    QCOMPARE(log->take(), QStringLiteral("Change(2,2) Change(2,2) Change(2,2)"));
}

void tst_KorGrid_Keys::escapeLeavesWhatTheProgramWroteMeanwhile()
{
    grid->setTextControl(2, Product, QStringLiteral("deska"));
    click(2, Product);
    grid->setTextMatrix(2, Product, QStringLiteral("belka"));
    type(QStringLiteral("x"));
    press(Qt::Key_Escape);
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("belka"));
    click(2, Price);
    grid->setTextMatrix(2, Exact, QStringLiteral("3"));
    type(QStringLiteral("8"));
    press(Qt::Key_Escape);
    QCOMPARE(grid->TextMatrix(2, Price), QString());
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("3"));
}

void tst_KorGrid_Keys::f2ClosesAndOpensWithoutLosingText()
{
    click(2, Product);
    type(QStringLiteral("deska"));
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("deska"));
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    type(QStringLiteral("!"));
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("deska!"));
}

void tst_KorGrid_Keys::theFirstCharacterGoesIntoTheEditor_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("cell");
    const int altGr = int(Qt::ControlModifier | Qt::AltModifier);
    const int levelFive = int(Qt::GroupSwitchModifier);
    // clang-format off
    QTest::newRow("a letter")                    << int(Product)  << QStringLiteral("x") << 0         << QStringLiteral("x");
    QTest::newRow("a letter of AltGr")           << int(Product)  << QStringLiteral("ż") << altGr     << QStringLiteral("ż");
    QTest::newRow("a letter of the third level") << int(Product)  << QStringLiteral("ł") << levelFive << QStringLiteral("ł");
    QTest::newRow("a digit of a number")         << int(Price)    << QStringLiteral("7") << 0         << QStringLiteral("7");
    QTest::newRow("a digit of a date")           << int(Delivery) << QStringLiteral("7") << 0         << QStringLiteral("7");
    QTest::newRow("a letter finds an entry")     << int(Unit)     << QStringLiteral("p") << 0         << QStringLiteral("paleta");
    QTest::newRow("a letter in a number: none")  << int(Price)    << QStringLiteral("x") << 0         << QString();
    // clang-format on
}

void tst_KorGrid_Keys::theFirstCharacterGoesIntoTheEditor()
{
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(int, modifiers);
    surfaceAt(2, column);
    QTest::sendKeyEvent(QTest::Click, view(), Qt::Key_unknown, typed, Qt::KeyboardModifiers(modifiers));
    settle();
    QVERIFY(!openEditor().isEmpty());
    QTEST(grid->TextMatrix(2, column), "cell");
}

void tst_KorGrid_Keys::aCharacterOfTwoUnitsStaysWhole()
{
    surfaceAt(2, Product);
    const QString typed = QString::fromUtf8("\U0001F69A");
    QTest::sendKeyEvent(QTest::Click, view(), Qt::Key_unknown, typed, Qt::NoModifier);
    QCOMPARE(grid->TextMatrix(2, Product), typed);
}

void tst_KorGrid_Keys::anInputMethodComposesIntoTheEditor()
{
    surfaceAt(2, Product);
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QApplication::sendEvent(view(), &query);
    QVERIFY(query.value(Qt::ImEnabled).toBool());
    QInputMethodEvent composing(QStringLiteral("か"), {});
    QApplication::sendEvent(view(), &composing);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("か"));
    QApplication::sendEvent(QApplication::focusWidget(), &committed);
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("か"));
}

void tst_KorGrid_Keys::deleteOnTheGridEmptiesTheCell_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("editor");
    // clang-format off
    QTest::newRow("text")                   << int(Product)  << "deska"      << int(Qt::Key_Delete)    << "TxtBox";
    QTest::newRow("text, Backspace")        << int(Product)  << "deska"      << int(Qt::Key_Backspace) << "TxtBox";
    QTest::newRow("wrapped text")           << int(Remark)   << "jeden\ndwa" << int(Qt::Key_Delete)    << "TxtMBox";
    QTest::newRow("wrapped, Backspace")     << int(Remark)   << "jeden\ndwa" << int(Qt::Key_Backspace) << "TxtMBox";
    QTest::newRow("number")                 << int(Price)    << "7,00"       << int(Qt::Key_Delete)    << "KorNum";
    QTest::newRow("date")                   << int(Delivery) << "24.12.2026" << int(Qt::Key_Delete)    << "KorDate";
    QTest::newRow("click field")            << int(Store)    << "A1"         << int(Qt::Key_Delete)    << "KorClick";
    // clang-format on
}

void tst_KorGrid_Keys::deleteOnTheGridEmptiesTheCell()
{
    QFETCH(const int, column);
    QFETCH(const QString, text);
    QFETCH(const int, key);
    QFETCH(const QString, editor);
    grid->setTextControl(2, column, text);
    surfaceAt(2, column);
    press(static_cast<Qt::Key>(key));
    QCOMPARE(grid->TextMatrix(2, column), QString());
    QCOMPARE(openEditor(), editor);
    press(Qt::Key_Escape);
    QCOMPARE(grid->TextMatrix(2, column), text);
}

void tst_KorGrid_Keys::aRefusedDateKeepsTheCellWithOneMessage_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"Tab", "Enter", "Down", "click", "F2", "row set by the program", "SetFocusCell"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorGrid_Keys::aRefusedDateKeepsTheCellWithOneMessage()
{
    QFETCH(QString, way);
    click(2, Delivery);
    type(QStringLiteral("99"));
    (void)log->take();
    if (way == u"Tab")
        press(Qt::Key_Tab);
    else if (way == u"Enter")
        press(Qt::Key_Return);
    else if (way == u"Down")
        press(Qt::Key_Down);
    else if (way == u"click")
        click(4, Product);
    else if (way == u"F2")
        press(Qt::Key_F2);
    else if (way == u"SetFocusCell")
        QVERIFY(!grid->SetFocusCell(4, 1));
    else
        grid->setRow(4);
    settle();
    QCOMPARE(messages->take().size(), 1);
    QCOMPARE(place(), QStringLiteral("2,4"));
    QCOMPARE(openEditor(), QStringLiteral("KorDate"));
    QVERIFY(hasKeyboard("KorDate"));
    QCOMPARE(editor<KorDate>("KorDate")->Text(), QStringLiteral("99"));
    QVERIFY(!log->take().contains(QLatin1String("SelChange")));
    settle();
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorGrid_Keys::escapeGetsOutOfARefusedValue()
{
    click(2, Delivery);
    type(QStringLiteral("99"));
    press(Qt::Key_Escape);
    QCOMPARE(messages->take(), QStringList());
    QCOMPARE(grid->TextMatrix(2, Delivery), QString());
    press(Qt::Key_Down);
    QCOMPARE(place(), QStringLiteral("3,4"));
}

void tst_KorGrid_Keys::enteringTheGridOpensTheCurrentCell()
{
    stage->button()->setFocus();
    settle();
    QTest::keyClick(stage->button(), Qt::Key_Backtab, Qt::ShiftModifier);
    settle();
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    type(QStringLiteral("deska"));
    QCOMPARE(grid->TextMatrix(1, Product), QStringLiteral("deska"));
}

void tst_KorGrid_Keys::keysOnLockedCellsAreTheGrids()
{
    click(2, Number);
    (void)log->take();
    QTest::keyClick(QApplication::focusWidget(), 'x');
    press(Qt::Key_Delete);
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(log->take(), QStringLiteral("KeyDown(88,0) KeyPress(120) KeyUp(88,0) KeyDown(46,0) KeyUp(46,0) "
                                         "KeyDown(113,0) KeyUp(113,0)"));
    press(Qt::Key_Return);
    QCOMPARE(place(), QStringLiteral("3,1"));
}

QTEST_MAIN(tst_KorGrid_Keys)
#include "tst_korgrid_keys.moc"
