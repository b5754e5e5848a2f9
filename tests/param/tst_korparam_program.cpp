// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"
#include "support/settings.h"

#include <KorDaoUC/PropertyBag>

using namespace kor;
using namespace kor::test;

//! A program that works on the sheet while a clerk types into it.
class tst_KorParam_Program : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        report();
    }
    void cleanup() { tearDown(); }

    void whatWasTypedStandsWhateverTheProgramDoes_data();
    void whatWasTypedStandsWhateverTheProgramDoes();
    void aNumberIsFormattedByTheProgramsNextRow();
    void aDateTypedInPartIsCompletedByTheProgramsNextRow();
    void aValueThatTheProgramSetsIsShownInTheEditor();
    void aRowThatIsCutTakesItsEditorAlong();
    void settingTheCurrentRowClosesTheEditor();
    void refreshAndOtherWindowsLeaveTheEditorOpen();

    void rowsAndClearInMidEdit();
    void theProgramGoesOnUnderAMessage_data();
    void theProgramGoesOnUnderAMessage();
    void aRefusedDateStaysAsATextWhereNobodyCanCorrectIt_data();
    void aRefusedDateStaysAsATextWhereNobodyCanCorrectIt();
    void aValueSetOverAnyOpenEditorIsSeen_data();
    void aValueSetOverAnyOpenEditorIsSeen();
    void settingsLoadedInMidEditKeepWhatWasTyped();
    void aFormThatIsBusyForAWhileKeepsWhatIsTyped_data();
    void aFormThatIsBusyForAWhileKeepsWhatIsTyped();
    void whoeverGivesTheKeyboardAgainLeavesTheTyping();
};

void tst_KorParam_Program::whatWasTypedStandsWhateverTheProgramDoes_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("deed");
    for (const char *deed : {"adds", "reads", "refreshes", "reads lists anew", "hides", "closes", "cuts rows"}) {
        QTest::addRow("%s, text", deed) << int(Text) << QStringLiteral("abc") << QStringLiteral("abc")
                                        << QVariant(QStringLiteral("abc")) << QString::fromLatin1(deed);
        QTest::addRow("%s, number", deed) << int(Number) << QStringLiteral("7,55") << QStringLiteral("7,55")
                                          << QVariant(7.55) << QString::fromLatin1(deed);
        QTest::addRow("%s, date", deed) << int(Date) << QStringLiteral("241226") << QStringLiteral("24.12.2026")
                                        << QVariant(QDate(2026, 12, 24)) << QString::fromLatin1(deed);
        QTest::addRow("%s, list", deed) << int(Combo) << QStringLiteral("c") << QStringLiteral("Celina") << QVariant(9)
                                        << QString::fromLatin1(deed);
    }
}

void tst_KorParam_Program::whatWasTypedStandsWhateverTheProgramDoes()
{
    QFETCH(int, row);
    QFETCH(QString, typed);
    QFETCH(QString, deed);
    click(row);
    type(typed);
    if (deed == u"adds") {
        add("COMBO", "Nowy");
        QCOMPARE(openEditor(), QString());
        QCOMPARE(sheet->Row(), 0);
    } else if (deed == u"refreshes") {
        sheet->Refresh();
    } else if (deed == u"reads lists anew") {
        sheet->CmbRefresh();
    } else if (deed == u"hides") {
        sheet->hide();
    } else if (deed == u"closes") {
        stage->close();
    } else if (deed == u"cuts rows") {
        sheet->setRows(6);
    }
    settle();
    QTEST(valueOf(row), "value");
    QTEST(shown(row), "text");
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorParam_Program::aNumberIsFormattedByTheProgramsNextRow()
{
    click(Number);
    type(QStringLiteral("9876,5"));
    sheet->setRow(Text);
    QCOMPARE(shown(Number), QStringLiteral("9\u00a0876,50"));
    QCOMPARE(valueOf(Number), QVariant(9876.5));
}

void tst_KorParam_Program::aDateTypedInPartIsCompletedByTheProgramsNextRow()
{
    click(Date);
    type(QStringLiteral("241226"));
    sheet->setRow(Date); // reads it back, row by row
    QCOMPARE(sheet->ParText(), QStringLiteral("24.12.2026"));
    QCOMPARE(sheet->ParValue(), QVariant(QDate(2026, 12, 24)));
    click(Text);
    click(Date);
    type(QStringLiteral("32.13"));
    sheet->setRow(Text); // nobody to ask: what is no date is none
    QCOMPARE(messages->take(), QStringList());
    QCOMPARE(shown(Date), QStringLiteral("32.13"));
    QVERIFY(isNull(valueOf(Date)));
}

void tst_KorParam_Program::aValueThatTheProgramSetsIsShownInTheEditor()
{
    click(Number);
    type(QStringLiteral("5"));
    sheet->setParValue(80);
    QCOMPARE(shown(Number), QStringLiteral("5")); // until it is left
    QCOMPARE(editor<KorNumber>("KorNum")->Value(), QVariant(80.0));
    press(Qt::Key_Up);
    QCOMPARE(shown(Number), QStringLiteral("80,00"));
    QCOMPARE(valueOf(Number), QVariant(80.0));
    click(Number);
    type(QStringLiteral("6"));
    sheet->setParValue(90);
    type(QStringLiteral("7"));
    press(Qt::Key_Escape); // the user's own typing
    QCOMPARE(valueOf(Number), QVariant(90));
}

void tst_KorParam_Program::aRowThatIsCutTakesItsEditorAlong()
{
    click(Click);
    sheet->setRows(3);
    settle();
    QCOMPARE(sheet->Row(), 2);
    QCOMPARE(openEditor(), QStringLiteral("KorNum"));
    QCOMPARE(allShown(), QStringLiteral("Zestawienie|1\u00a0234,50"));
}

void tst_KorParam_Program::settingTheCurrentRowClosesTheEditor()
{
    click(Text);
    sheet->setRow(Number);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(sheet->Row(), int(Number));
    QVERIFY(view()->hasFocus()); // typing goes on from there
    type(QStringLiteral("3"));
    QCOMPARE(openEditor(), QStringLiteral("KorNum"));
    QCOMPARE(shown(Number), QStringLiteral("3"));
}

void tst_KorParam_Program::refreshAndOtherWindowsLeaveTheEditorOpen()
{
    click(Text);
    type(QStringLiteral("ab"));
    sheet->Refresh();
    {
        Stage other;
        QVERIFY(other.open());
        settle();
        QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    }
    stage->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(stage.get()));
    settle();
    type(QStringLiteral("c"));
    QCOMPARE(shown(Text), QStringLiteral("abc"));
}

void tst_KorParam_Program::rowsAndClearInMidEdit()
{
    click(Date);
    type(QStringLiteral("241226"));
    sheet->setRows(9); // rows come: the user goes on
    settle();
    QVERIFY(hasKeyboard("KorDat"));
    type(QStringLiteral("9")); // not the date's: it is whole
    sheet->Clear();
    settle();
    QCOMPARE(openEditor(), QString());
    QCOMPARE(sheet->Row(), int(Date));
    QCOMPARE(allShown(), QStringLiteral("|||||||"));
    type(QStringLiteral("x")); // no parameter, no editor
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QString());
    add("TEXT", "Nowy", 1);
    QCOMPARE(shown(8), QStringLiteral("1"));
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorParam_Program::theProgramGoesOnUnderAMessage_data()
{
    QTest::addColumn<QString>("texts");
    const QString others = QStringLiteral("Zestawienie|1\u00a0234,50|%1|Bartek|Gdynia|");
    QTest::newRow("adds") << others.arg(u"32.13") + QStringLiteral("|31.12.2026");
    QTest::newRow("clears") << "|||||";
    QTest::newRow("cuts all rows") << "";
    QTest::newRow("moves") << others.arg(u"32.13");
    QTest::newRow("hides") << others.arg(u"32.13");
    QTest::newRow("disables") << others.arg(u"32.13");
    QTest::newRow("loads") << "Zestawienie";
    QTest::newRow("deletes") << "";
}

void tst_KorParam_Program::theProgramGoesOnUnderAMessage()
{
    const QString deed = QString::fromLatin1(QTest::currentDataTag());
    log.reset();
    click(Date);
    type(QStringLiteral("32.13"));
    bool isDone = false;
    messages->beneath([&] {
        isDone = true;
        if (deed == u"adds")
            sheet->AddParam(QStringLiteral("Do dnia"), QString(), QStringLiteral("DATE"), QDate(2026, 12, 31));
        else if (deed == u"clears")
            sheet->Clear();
        else if (deed == u"cuts all rows")
            sheet->setRows(1);
        else if (deed == u"moves")
            sheet->setRow(Text);
        else if (deed == u"hides")
            sheet->hide();
        else if (deed == u"disables")
            sheet->setEnabled(false);
        else if (deed == u"loads")
            sheet->readProperties(PropertyBag()); // which has two rows
        else
            delete sheet.data();
    });
    press(Qt::Key_Down);
    QVERIFY(isDone);
    QCOMPARE(messages->take().size(), 1);
    if (deed == u"deletes") {
        QVERIFY(!sheet);
        return;
    }
    settle();
    stage->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(stage.get()));
    settle();
    QCOMPARE(openEditor(), QString());
    if (deed == u"hides" || deed == u"disables")
        QCOMPARE(sheet->Row(), int(Date)); // the arrow goes nowhere
    QTEST(allShown(), "texts");
    if (allShown().contains(u"32.13"))
        QVERIFY(isNull(valueOf(Date))); // and not the date that was there before
    sheet->setEnabled(true);
    sheet->show();
    settle();
    QCOMPARE(openEditor(), QString());
    sheet->setFocus();
    press(Qt::Key_Escape);
    leave();
    QCOMPARE(openEditor(), QString());
    QCOMPARE(messages->take(), QStringList());
    if (deed == u"clears")
        QTEST(allShown(), "texts");
}

void tst_KorParam_Program::aRefusedDateStaysAsATextWhereNobodyCanCorrectIt_data()
{
    QTest::addColumn<bool>("hides");
    QTest::newRow("hidden") << true;
    QTest::newRow("disabled") << false;
}

void tst_KorParam_Program::aRefusedDateStaysAsATextWhereNobodyCanCorrectIt()
{
    QFETCH(bool, hides);
    click(Date);
    type(QStringLiteral("32.13"));
    if (hides)
        sheet->hide();
    else
        sheet->setEnabled(false);
    settle();
    QCOMPARE(shown(Date), QStringLiteral("32.13"));
    QVERIFY(isNull(valueOf(Date)));
}

void tst_KorParam_Program::aValueSetOverAnyOpenEditorIsSeen_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << int(Text) << "ab" << QVariant(QStringLiteral("z programu")) << "z programu";
    QTest::newRow("number") << int(Number) << "7" << QVariant(8.5) << "8,50";
    QTest::newRow("date") << int(Date) << "24" << QVariant(QDate(2027, 1, 2)) << "02.01.2027";
    QTest::newRow("list") << int(Combo) << "c" << QVariant(5) << "Abakus";
}

void tst_KorParam_Program::aValueSetOverAnyOpenEditorIsSeen()
{
    QFETCH(int, row);
    QFETCH(QString, typed);
    QFETCH(QVariant, value);
    click(row);
    type(typed);
    sheet->setParValue(value);
    QCOMPARE(sheet->ParValue(), value);
    leave();
    QTEST(shown(row), "text");
    QCOMPARE(valueOf(row), value);
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorParam_Program::settingsLoadedInMidEditKeepWhatWasTyped()
{
    sheet->setColNameWidth(1500);
    const PropertyBag bag = settingsOf(*sheet);
    click(Number);
    type(QStringLiteral("12,5"));
    sheet->readProperties(bag);
    settle();
    leave();
    QCOMPARE(shown(Number), QStringLiteral("12,50"));
    QCOMPARE(valueOf(Number), QVariant(12.5));
}

void tst_KorParam_Program::aFormThatIsBusyForAWhileKeepsWhatIsTyped_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << int(Text) << "ab"
                          << "ab" << QVariant(QStringLiteral("ab"));
    QTest::newRow("number") << int(Number) << "7,5"
                            << "7,50" << QVariant(7.5);
    QTest::newRow("date") << int(Date) << "241226"
                          << "24.12.2026" << QVariant(QDate(2026, 12, 24));
    QTest::newRow("list") << int(Combo) << "c"
                          << "Celina" << QVariant(9);
}

void tst_KorParam_Program::aFormThatIsBusyForAWhileKeepsWhatIsTyped()
{
    QFETCH(int, row);
    QFETCH(QString, typed);
    click(row);
    type(typed);
    stage->setEnabled(false);
    settle();
    stage->setEnabled(true);
    settle();
    sheet->setFocus();
    settle();
    press(Qt::Key_Down);
    QCOMPARE(sheet->Row(), row + 1);
    QTEST(shown(row), "text");
    QTEST(valueOf(row), "value");
}

void tst_KorParam_Program::whoeverGivesTheKeyboardAgainLeavesTheTyping()
{
    add("NUMBER", "Liczba");
    click(1);
    type(QStringLiteral("12"));
    sheet->setFocus();
    settle();
    type(QStringLiteral("3"));
    leave();
    QCOMPARE(valueOf(1), QVariant(123.0));
}

QTEST_MAIN(tst_KorParam_Program)
#include "tst_korparam_program.moc"
