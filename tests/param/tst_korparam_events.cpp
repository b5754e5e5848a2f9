// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"

using namespace kor;
using namespace kor::test;

//! The events of the sheet, each in its order and with its arguments.
class tst_KorParam_Events : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        report();
    }
    void cleanup() { tearDown(); }

    void aClickIsToldWhenTheEditorIsOpen();
    void aClickOnWhatIsOpenAlreadyIsTheEditors();
    void aDoubleClickOnAName();
    void theRightButton();
    void aTitleIsClickedToo();
    void keysOnTheSheetItself();
    void aHandlerChangesAndSwallowsKeys();
    void movingFromValueToValueRaisesNothing();
    void addingAndReadingRaisesNothing();
    void theButtonOfAClickFieldTellsItsSymbol_data();
    void theButtonOfAClickFieldTellsItsSymbol();
    void preparingAListRaisesNoClick();
    void theHostHearsOfEveryLet();
};

void tst_KorParam_Events::aClickIsToldWhenTheEditorIsOpen()
{
    QStringList seen;
    connect(sheet, &KorParam::MouseDown, this, [&] { seen << QStringLiteral("MouseDown ") + openEditor(); });
    connect(sheet, &KorParam::MouseUp, this, [&] { seen << QStringLiteral("MouseUp ") + openEditor(); });
    connect(sheet, &KorParam::Click, this, [&] { seen << QStringLiteral("Click ") + openEditor(); });
    click(Date);
    QCOMPARE(log->take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click"));
    QCOMPARE(seen.join(u'|'), QStringLiteral("MouseDown |MouseUp KorDat|Click KorDat"));
    seen.clear();
    press(Qt::Key_Escape);
    click(Date); // the current cell already
    QCOMPARE(seen.join(u'|'), QStringLiteral("MouseDown |MouseUp KorDat|Click KorDat"));
}

void tst_KorParam_Events::aClickOnWhatIsOpenAlreadyIsTheEditors()
{
    click(Text);
    (void)log->take();
    click(Text);
    QCOMPARE(log->take(), QString());
}

void tst_KorParam_Events::aDoubleClickOnAName()
{
    QWindow *window = stage->windowHandle();
    const QPoint name = inWindow(Text, 1);
    QTest::mouseClick(window, Qt::LeftButton, {}, name);
    QTest::mouseDClick(window, Qt::LeftButton, {}, name);
    settle();
    QCOMPARE(log->take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click MouseDown(1,0) MouseUp(1,0) Click DblClick "
                                         "MouseUp(1,0)"));
}

void tst_KorParam_Events::theRightButton()
{
    QTest::mouseClick(stage->windowHandle(), Qt::RightButton, Qt::ControlModifier, inWindow(Text));
    settle();
    QCOMPARE(log->take(), QStringLiteral("MouseDown(2,2) MouseUp(2,2)"));
    QCOMPARE(openEditor(), QString());
}

void tst_KorParam_Events::aTitleIsClickedToo()
{
    const QPoint title = inWindow(Text) - QPoint(0, cellRect(Text, 2).height());
    QTest::mouseClick(stage->windowHandle(), Qt::LeftButton, {}, title);
    settle();
    QCOMPARE(log->take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click"));
    QCOMPARE(openEditor(), QString());
}

void tst_KorParam_Events::keysOnTheSheetItself()
{
    click(Text, 1);
    (void)log->take();
    press(Qt::Key_A);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Left);
    QCOMPARE(log->take(), QStringLiteral("KeyDown(65,0) KeyPress(97) KeyUp(65,0) KeyDown(40,1) KeyUp(40,1) "
                                         "KeyDown(37,0) KeyUp(37,0)"));
}

void tst_KorParam_Events::aHandlerChangesAndSwallowsKeys()
{
    click(Text, 1);
    connect(sheet, &KorParam::KeyDown, this, [](int &code, int &) {
        code = code == 38 ? 0 : code == 68 ? 40 : code; // no Up, and D goes down
    });
    connect(sheet, &KorParam::KeyPress, this, [](int &ascii) { ascii = ascii == 'x' ? 'y' : 0; });
    press(Qt::Key_D);
    QCOMPARE(sheet->Row(), 2);
    press(Qt::Key_Up);
    QCOMPARE(sheet->Row(), 2);
    click(Text);
    press(Qt::Key_Escape);
    press(Qt::Key_A);
    QCOMPARE(openEditor(), QString());
    press(Qt::Key_X);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(shown(Text), QStringLiteral("y"));
}

void tst_KorParam_Events::movingFromValueToValueRaisesNothing()
{
    enter();
    (void)log->take();
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Down);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Up);
    type(QStringLiteral("abc"));
    leave();
    QCOMPARE(log->take(), QString());
}

void tst_KorParam_Events::addingAndReadingRaisesNothing()
{
    add("COMBO", "Jeszcze", 1);
    for (int row = 0; row < sheet->Rows(); ++row)
        sheet->setRow(row);
    sheet->CmbRefresh();
    sheet->Refresh();
    sheet->Clear();
    settle();
    QCOMPARE(log->take(), QString());
}

void tst_KorParam_Events::theButtonOfAClickFieldTellsItsSymbol_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("its button") << 0 << 0;
    QTest::newRow("F4") << int(Qt::Key_F4) << 0;
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
    QTest::newRow("Alt+Left") << int(Qt::Key_Left) << int(Qt::AltModifier);
}

void tst_KorParam_Events::theButtonOfAClickFieldTellsItsSymbol()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    click(Click);
    (void)log->take();
    if (key)
        press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    else
        QTest::mouseClick(editor("cmdClick"), Qt::LeftButton);
    settle();
    QCOMPARE(log->take(), QStringLiteral("ClickClick(magazyn)"));
    QCOMPARE(sheet->Row(), int(Click));
    QCOMPARE(openEditor(), QStringLiteral("KorClk"));
}

void tst_KorParam_Events::preparingAListRaisesNoClick()
{
    EventLog combo(editor<KorCombo>("KorCmb"));
    sheet->AddParam(QStringLiteral("Inny"), QString(), QStringLiteral("COMBO"), 2, QString(), 0, QString(),
                    QStringLiteral("LIST 1;jeden|2;dwa"));
    settle();
    click(Combo);
    click(Other + 1);
    QCOMPARE(combo.take(), QStringLiteral("Refreshed Refreshed Refreshed"));
    type(QStringLiteral("j"));
    QVERIFY(combo.take().contains(QLatin1String("Click"))); // the user's own choice is told
}

void tst_KorParam_Events::theHostHearsOfEveryLet()
{
    QStringList told;
    connect(sheet, &UserControl::PropertyChanged, this, [&](const QString &name) { told << name; });
    sheet->setBackColorBkg(0x00FFFFFF);
    sheet->setColNameWidth(2500);
    sheet->setRows(9);
    sheet->setColParTitle(QStringLiteral("A"));
    sheet->setColValTitle(QStringLiteral("B"));
    sheet->setEnabledClick(false);
    sheet->setParValue(1);
    sheet->setClickText(QStringLiteral("t"));
    sheet->setClickValue(2);
    QCOMPARE(told.join(u' '), QStringLiteral("BackColorBkg ColNameWidth Rows ColParTitle ColValTitle EnabledClick "
                                             "ParValue ClickText ClickValue"));
}

QTEST_MAIN(tst_KorParam_Events)
#include "tst_korparam_events.moc"
