// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>

using namespace kor;
using namespace kor::test;

//! The sheet filled in by keyboard alone.
class tst_KorParam_Keys : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        report();
    }
    void cleanup() { tearDown(); }

    void aSheetIsFilledInByKeyboardAlone();
    void tabEntersAndLeavesTheSheetAsOneField();
    void tabLeavesFromEveryKindOfEditor_data() { kinds(); }
    void tabLeavesFromEveryKindOfEditor();
    void tabComesToTheValueThatWasLeft();
    void downAndUpMoveBetweenValues_data() { kinds(); }
    void downAndUpMoveBetweenValues();
    void theLastAndTheFirstRowAreKept();
    void downGoesToRowsWithoutAnEditorToo();
    void shiftedArrowsStayInTheEditor_data();
    void shiftedArrowsStayInTheEditor();
    void pagesAndEndsGoOnFromAnEditor();
    void aDateStepsByItsPageKeys();

    void backspaceAndDeleteClearAClickField_data();
    void backspaceAndDeleteClearAClickField();
    void aClickFieldTakesNoCharacters();
    void aListOpensByItsKeys();
    void theCalendarOpensByItsKey();

    void enterTakesTheValueAndTheNextOnePressesTheButton();
    void escapeClosesTheEditorAndTheNextOneTheDialog();
    void typingOnAClosedValueOpensItsEditor_data();
    void typingOnAClosedValueOpensItsEditor();
    void typingOnANameDoesNothing();
    void keysOfAnEditorAreNoEventsOfTheSheet();
    void whatAnEditorLeavesOverIsTheForms();

private:
    static void kinds();
};

void tst_KorParam_Keys::kinds()
{
    QTest::addColumn<int>("row");
    QTest::newRow("text") << int(Text);
    QTest::newRow("number") << int(Number);
    QTest::newRow("date") << int(Date);
    QTest::newRow("list") << int(Combo);
    QTest::newRow("click field") << int(Click);
}

void tst_KorParam_Keys::aSheetIsFilledInByKeyboardAlone()
{
    connect(sheet, &KorParam::ClickClick, this, [this](const QString &) {
        sheet->setClickValue(5);
        sheet->setClickText(QStringLiteral("Puck"));
    });
    enter();
    type(QStringLiteral("Sprzedaż"));
    press(Qt::Key_Down);
    type(QStringLiteral("2500.5"));
    press(Qt::Key_Down);
    type(QStringLiteral("011226"));
    press(Qt::Key_Down);
    type(QStringLiteral("a"));
    press(Qt::Key_Down);
    press(Qt::Key_F4);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage->button());
    QCOMPARE(allShown(), QStringLiteral("Sprzedaż|2\u00a0500,50|01.12.2026|Abakus|Puck|"));
    QCOMPARE(valueOf(Text), QVariant(QStringLiteral("Sprzedaż")));
    QCOMPARE(valueOf(Number), QVariant(2500.5));
    QCOMPARE(valueOf(Date), QVariant(QDate(2026, 12, 1)));
    QCOMPARE(valueOf(Combo), QVariant(5));
    QCOMPARE(valueOf(Click), QVariant(5));
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorParam_Keys::tabEntersAndLeavesTheSheetAsOneField()
{
    auto *before = new QLineEdit(stage.get());
    before->show();
    QWidget::setTabOrder(before, sheet);
    QWidget::setTabOrder(sheet, stage->button());
    before->setFocus();
    settle();
    press(Qt::Key_Tab);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QVERIFY(hasKeyboard("TxtBox"));
    QCOMPARE(sheet->Row(), 1);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage->button());
    QCOMPARE(openEditor(), QString());
    press(Qt::Key_Backtab);
    QVERIFY(hasKeyboard("TxtBox"));
    press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), before);
    press(Qt::Key_Tab);
    press(Qt::Key_Escape); // closed: the same way
    QVERIFY(view()->hasFocus());
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), stage->button());
    press(Qt::Key_Backtab);
    press(Qt::Key_Escape);
    press(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), before);
}

void tst_KorParam_Keys::tabLeavesFromEveryKindOfEditor()
{
    QFETCH(int, row);
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        click(row);
        QVERIFY(!openEditor().isEmpty());
        press(key);
        QVERIFY(!sheet->isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(openEditor(), QString());
        leave();
    }
}

void tst_KorParam_Keys::tabComesToTheValueThatWasLeft()
{
    click(Date);
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    QVERIFY(hasKeyboard("KorDat"));
    click(Number, 1); // on its name
    leave();
    enter();
    QVERIFY(hasKeyboard("KorNum"));
}

void tst_KorParam_Keys::downAndUpMoveBetweenValues()
{
    QFETCH(int, row);
    const QString before = allShown();
    static const QStringList names{QString(),
                                   QStringLiteral("TxtBox"),
                                   QStringLiteral("KorNum"),
                                   QStringLiteral("KorDat"),
                                   QStringLiteral("KorCmb"),
                                   QStringLiteral("KorClk"),
                                   QString()};
    click(row);
    press(Qt::Key_Down);
    QCOMPARE(sheet->Row(), row + 1);
    QCOMPARE(openEditor(), names.at(row + 1));
    QVERIFY(row == Click || hasKeyboard(qPrintable(names.at(row + 1))));
    press(Qt::Key_Up);
    QCOMPARE(sheet->Row(), row);
    QCOMPARE(openEditor(), names.at(row));
    QVERIFY(hasKeyboard(qPrintable(names.at(row))));
    if (row > 1) {
        press(Qt::Key_Up);
        QCOMPARE(sheet->Row(), row - 1);
        QVERIFY(hasKeyboard(qPrintable(names.at(row - 1))));
    }
    QCOMPARE(allShown(), before);
}

void tst_KorParam_Keys::theLastAndTheFirstRowAreKept()
{
    sheet->setRows(Number + 1);
    click(Text);
    type(QStringLiteral("ab"));
    press(Qt::Key_Up);
    QCOMPARE(sheet->Row(), 1);
    QVERIFY(hasKeyboard("TxtBox"));
    type(QStringLiteral("c")); // nothing has changed for the user
    QCOMPARE(shown(Text), QStringLiteral("abc"));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(sheet->Row(), int(Number));
    QVERIFY(hasKeyboard("KorNum"));
}

void tst_KorParam_Keys::downGoesToRowsWithoutAnEditorToo()
{
    sheet->setRows(8); // and an empty one
    click(Click);
    press(Qt::Key_Down);
    QCOMPARE(sheet->Row(), int(Other));
    QVERIFY(view()->hasFocus());
    press(Qt::Key_Down);
    QCOMPARE(sheet->Row(), 7);
    press(Qt::Key_Down);
    QCOMPARE(sheet->Row(), 7);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    QVERIFY(hasKeyboard("KorClk"));
}

void tst_KorParam_Keys::shiftedArrowsStayInTheEditor_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    for (const int row : {Text, Number, Date, Combo, Click}) {
        for (const auto key : {Qt::Key_Up, Qt::Key_Down}) {
            for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier}) {
                QTest::addRow("row %d, %s, %s", row, key == Qt::Key_Up ? "Up" : "Down",
                              modifier == Qt::ShiftModifier ? "Shift" : "Ctrl")
                    << row << int(key) << int(modifier);
            }
        }
    }
}

void tst_KorParam_Keys::shiftedArrowsStayInTheEditor()
{
    QFETCH(int, row);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    click(row);
    const QString open = openEditor();
    press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(sheet->Row(), row);
    QCOMPARE(openEditor(), open);
    QVERIFY(hasKeyboard(qPrintable(open)));
}

void tst_KorParam_Keys::pagesAndEndsGoOnFromAnEditor()
{
    for (int i = 0; i < 30; ++i)
        add("TEXT", "Dalszy", i);
    settle();
    const int last = sheet->Rows() - 1;
    click(Text);
    press(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(sheet->Row(), last);
    QVERIFY(hasKeyboard("TxtBox"));
    press(Qt::Key_PageUp);
    QVERIFY(sheet->Row() < last - 5 && sheet->Row() > 5);
    QVERIFY(hasKeyboard("TxtBox"));
    press(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(sheet->Row(), 1);
    press(Qt::Key_PageDown);
    QVERIFY(sheet->Row() > 5);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(sheet->Row(), last);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(sheet->Row(), 1);
    press(Qt::Key_End); // the editor's own
    QCOMPARE(sheet->Row(), 1);
    QCOMPARE(editor<QLineEdit>("TxtBox")->cursorPosition(), 11);
    click(Combo);
    press(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(sheet->Row(), last);
    QCOMPARE(shown(Combo), QStringLiteral("Bartek"));
}

void tst_KorParam_Keys::aDateStepsByItsPageKeys()
{
    click(Date);
    press(Qt::Key_PageUp);
    QCOMPARE(sheet->Row(), int(Date));
    QCOMPARE(shown(Date), QStringLiteral("08.11.2026"));
    QCOMPARE(sheet->ParValue(), QVariant(QDate(2026, 11, 8)));
}

// --- keys of the editors

void tst_KorParam_Keys::backspaceAndDeleteClearAClickField_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Backspace") << int(Qt::Key_Backspace);
    QTest::newRow("Delete") << int(Qt::Key_Delete);
}

void tst_KorParam_Keys::backspaceAndDeleteClearAClickField()
{
    QFETCH(int, key);
    click(Click);
    press(Qt::Key(key));
    QCOMPARE(editor<KorClick>("KorClk")->Text(), QString());
    QVERIFY(isNull(editor<KorClick>("KorClk")->Value()));
    QVERIFY(isNull(sheet->ParValue()));
    QCOMPARE(sheet->Row(), int(Click));
    press(Qt::Key_Up);
    QCOMPARE(shown(Click), QString());
    QVERIFY(isNull(valueOf(Click)));
    sheet->setParValue(12); // a value without a text is cleared as well
    click(Click);
    press(Qt::Key(key));
    QVERIFY(isNull(sheet->ParValue()));
}

void tst_KorParam_Keys::aClickFieldTakesNoCharacters()
{
    click(Click);
    type(QStringLiteral("abc"));
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(shown(Click), QStringLiteral("Gdynia"));
    QCOMPARE(sheet->ParValue(), QVariant(3));
}

void tst_KorParam_Keys::aListOpensByItsKeys()
{
    click(Combo);
    press(Qt::Key_F4);
    auto *list = editor<QComboBox>("cmbCombo")->view();
    QVERIFY(list->isVisible());
    QTest::keyClick(list, Qt::Key_Down); // in the open list, not between the rows
    QTest::keyClick(list, Qt::Key_Return);
    settle();
    QVERIFY(!list->isVisible());
    QCOMPARE(sheet->Row(), int(Combo));
    QCOMPARE(shown(Combo), QStringLiteral("Celina"));
    QCOMPARE(sheet->ParValue(), QVariant(9));
    press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(list->isVisible());
    QTest::keyClick(list, Qt::Key_Up);
    QTest::keyClick(list, Qt::Key_Escape);
    settle();
    QCOMPARE(openEditor(), QStringLiteral("KorCmb")); // the list took the key
    QCOMPARE(shown(Combo), QStringLiteral("Celina"));
}

void tst_KorParam_Keys::theCalendarOpensByItsKey()
{
    click(Date);
    press(Qt::Key_F4);
    auto *calendar = editor("frmMonth");
    QVERIFY(calendar && calendar->isVisible());
    QCOMPARE(openEditor(), QStringLiteral("KorDat"));
    QTest::keyClick(calendar->focusWidget(), Qt::Key_Right);
    QTest::keyClick(calendar->focusWidget(), Qt::Key_Return);
    settle();
    QVERIFY(!calendar->isVisible());
    QVERIFY(hasKeyboard("KorDat"));
    QCOMPARE(shown(Date), QStringLiteral("02.11.2026"));
    press(Qt::Key_Down);
    QCOMPARE(valueOf(Date), QVariant(QDate(2026, 11, 2)));
}

// --- between editor, sheet and form

void tst_KorParam_Keys::enterTakesTheValueAndTheNextOnePressesTheButton()
{
    QDialog dialog;
    dialog.resize(440, 300);
    QDialogButtonBox buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons.move(10, 260);
    int okays = 0;
    connect(&buttons, &QDialogButtonBox::accepted, this, [&] { ++okays; });
    sheet->setParent(&dialog);
    sheet->show();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    enter();
    press(Qt::Key_Down);
    type(QStringLiteral("7"));
    press(Qt::Key_Return);
    QCOMPARE(okays, 0);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(shown(Number), QStringLiteral("7,00"));
    QCOMPARE(sheet->Row(), int(Number));
    press(Qt::Key_Return);
    QCOMPARE(okays, 1);
    sheet->setParent(nullptr);
}

void tst_KorParam_Keys::escapeClosesTheEditorAndTheNextOneTheDialog()
{
    QDialog dialog;
    dialog.resize(440, 300);
    sheet->setParent(&dialog);
    sheet->show();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    enter();
    type(QStringLiteral("x"));
    press(Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QCOMPARE(shown(Text), QStringLiteral("Zestawienie"));
    press(Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    sheet->setParent(nullptr);
}

void tst_KorParam_Keys::typingOnAClosedValueOpensItsEditor_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");
    const int none = 0;
    QTest::newRow("a character replaces a text") << int(Text) << none << QStringLiteral("ż") << QStringLiteral("ż");
    QTest::newRow("a digit replaces a number") << int(Number) << none << QStringLiteral("8") << QStringLiteral("8");
    QTest::newRow("a digit replaces a date") << int(Date) << none << QStringLiteral("8") << QStringLiteral("8");
    QTest::newRow("a letter chooses an entry") << int(Combo) << none << QStringLiteral("c") << QStringLiteral("Celina");
    QTest::newRow("Delete empties") << int(Text) << int(Qt::Key_Delete) << QString() << QString();
    QTest::newRow("Backspace empties") << int(Number) << int(Qt::Key_Backspace) << QString() << QString();
    QTest::newRow("Delete empties a click field") << int(Click) << int(Qt::Key_Delete) << QString() << QString();
    QTest::newRow("F2 goes on with what is there")
        << int(Text) << int(Qt::Key_F2) << QStringLiteral("!") << QStringLiteral("Zestawienie!");
}

void tst_KorParam_Keys::typingOnAClosedValueOpensItsEditor()
{
    QFETCH(int, row);
    QFETCH(int, key);
    QFETCH(QString, text);
    click(row);
    press(Qt::Key_Escape);
    QVERIFY(view()->hasFocus());
    if (key)
        press(Qt::Key(key));
    type(text);
    QVERIFY(!openEditor().isEmpty());
    QTEST(shown(row), "after");
    press(Qt::Key_Escape);
}

void tst_KorParam_Keys::typingOnANameDoesNothing()
{
    const QString before = allShown();
    click(Text, 1);
    type(QStringLiteral("abc"));
    press(Qt::Key_Delete);
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(allShown(), before);
    press(Qt::Key_Right); // to the value
    QVERIFY(hasKeyboard("TxtBox"));
}

void tst_KorParam_Keys::keysOfAnEditorAreNoEventsOfTheSheet()
{
    enter();
    (void)log->take();
    for (int row = 1; row < Other; ++row) {
        type(QStringLiteral("1"));
        for (const auto key : {Qt::Key_Left, Qt::Key_F9, Qt::Key_Insert, Qt::Key_Menu, Qt::Key_Escape, Qt::Key_F2})
            press(key); // of which Escape closes, and F2 on the sheet opens again
        press(Qt::Key_Down);
    }
    QCOMPARE(log->take(), QStringLiteral("KeyDown(113,0) KeyUp(113,0) KeyDown(113,0) KeyUp(113,0) KeyDown(113,0) "
                                         "KeyUp(113,0) KeyDown(113,0) KeyUp(113,0) KeyDown(113,0) KeyUp(113,0)"));
}

void tst_KorParam_Keys::whatAnEditorLeavesOverIsTheForms()
{
    class Keys : public QObject
    {
    public:
        QList<int> seen;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::KeyPress)
                seen << static_cast<QKeyEvent *>(event)->key();
            return false;
        }
    } keys;
    click(Text);
    stage->installEventFilter(&keys);
    press(Qt::Key_F9);
    type(QStringLiteral("a"));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QCOMPARE(keys.seen, QList<int>{Qt::Key_F9});
}

QTEST_MAIN(tst_KorParam_Keys)
#include "tst_korparam_keys.moc"
