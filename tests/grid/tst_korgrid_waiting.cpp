// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "gridsuite.h"
#include "support/slowdatabase.h"

#include <QtWidgets/QComboBox>

using namespace kor;
using namespace kor::test;

//! What happens to a grid while a host's own database keeps one of its lists waiting.
class tst_KorGrid_Waiting : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void anythingMayHappenWhileAListOpens_data();
    void anythingMayHappenWhileAListOpens();
    void anythingMayHappenWhileAnOpenListIsReadAnew_data() { anythingMayHappenWhileAListOpens_data(); }
    void anythingMayHappenWhileAnOpenListIsReadAnew();
    void whatIsChosenMeanwhileStays();
    void whoGoesElsewhereMeanwhileIsNotCalledBack_data();
    void whoGoesElsewhereMeanwhileIsNotCalledBack();
    void aProgramsRequestThatNobodyWalksAwayFromTakesTheKeyboard();
    void aKeyOnAListIsNotTypedElsewhere_data();
    void aKeyOnAListIsNotTypedElsewhere();
    void whoLeavesAListThatIsReadAnewLosesNothing();
    void anythingMayHappenWhileTheProgramReadsAndWrites_data();
    void anythingMayHappenWhileTheProgramReadsAndWrites();
    void aListForgottenMeanwhileIsReadAgain();

private:
    enum ListColumn { Text = 1, Unit, Key, Group };
    static const QStringList deeds;
    void act(const QString &deed);
    //! What the drop-down list of the open editor begins its names with; "" where none is open.
    [[nodiscard]] QString listed() const;
    void lookAround();

    std::unique_ptr<SlowDatabase> database;
};

const QStringList tst_KorGrid_Waiting::deeds{QStringLiteral("deletes the grid"),
                                             QStringLiteral("goes to another list"),
                                             QStringLiteral("clicks on another list"),
                                             QStringLiteral("goes to a text"),
                                             QStringLiteral("types into a text"),
                                             QStringLiteral("clicks on the same cell"),
                                             QStringLiteral("reads the list anew"),
                                             QStringLiteral("cuts the rows"),
                                             QStringLiteral("cuts the columns"),
                                             QStringLiteral("deletes its row"),
                                             QStringLiteral("adds a row"),
                                             QStringLiteral("hides the grid"),
                                             QStringLiteral("disables the grid"),
                                             QStringLiteral("goes elsewhere"),
                                             QStringLiteral("takes the database"),
                                             QStringLiteral("describes other columns")};

void tst_KorGrid_Waiting::init()
{
    setUp();
    const QString units = QStringLiteral("SELECT id, nazwa FROM jm");
    const QString groups = QStringLiteral("SELECT id, nazwa FROM grupa");
    database = std::make_unique<SlowDatabase>();
    database->titles = {{units, QStringLiteral("jm")}, {groups, QStringLiteral("grupa")}};
    grid->setdatabase(database.get());
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
    grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 1500, 0, false, QString(), 0, 0, units,
                    QStringLiteral("jm"), Key);
    grid->AddColumn(QStringLiteral("TEXT"), QString(), 0, 0);
    grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("Grupa"), 1500, 0, false, QString(), 0, 0, groups);
    grid->setRows(5);
    for (int row = 1; row < 5; ++row) {
        grid->setTextControl(row, Text, QStringLiteral("towar %1").arg(row));
        grid->setTextControl(row, Unit, QStringLiteral("jm 2"));
        grid->setTextControl(row, Key, QStringLiteral("2"));
        grid->setTextControl(row, Group, QStringLiteral("grupa 3"));
    }
    settle();
    (void)log->take();
}

void tst_KorGrid_Waiting::cleanup()
{
    tearDown();
    database.reset();
}

void tst_KorGrid_Waiting::act(const QString &deed)
{
    switch (deeds.indexOf(deed)) {
    case 0: delete grid.data(); break;
    case 1: grid->setCol(grid->Col() == Group ? Unit : Group); break;
    case 2: click(3, Group); break;
    case 3: grid->setCol(Text); break;
    case 4:
        click(4, Text);
        type(QStringLiteral("abc"));
        break;
    case 5: click(grid->Row(), grid->Col()); break;
    case 6: grid->CmbRefresh(); break;
    case 7: grid->setRows(2); break;
    case 8: grid->setCols(2); break;
    case 9: grid->DelRow(grid->Row(), grid->Row()); break;
    case 10: grid->AddRow(0, Group); break;
    case 11: grid->hide(); break;
    case 12: grid->setEnabled(false); break;
    case 13:
        stage->button()->setFocus();
        settle();
        break;
    case 14: grid->setdatabase(nullptr); break;
    default:
        grid->setTextControl(0, 1, QString());
        grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Liczba"), 900, 0);
        grid->AddColumn(QStringLiteral("DATE"), QStringLiteral("Data"), 900, 0);
    }
}

QString tst_KorGrid_Waiting::listed() const
{
    return openEditor() == u"KorCmb" ? editor<QComboBox>("cmbCombo")->itemText(0).section(u' ', 0, 0) : QString();
}

//! The one open editor is that of the current cell, over it and with its list, and no text is another than it was.
void tst_KorGrid_Waiting::lookAround()
{
    const QString open = openEditor();
    QVERIFY2(!open.contains(u' '), qPrintable(open));
    if (!open.isEmpty()) {
        const QRect cell = cellRect(grid->Row(), grid->Col());
        QVERIFY2(cell.contains(editor(qPrintable(open))->geometry().center()), qPrintable(place()));
        const QStringList lists{QString(), QString(), QStringLiteral("jm"), QString(), QStringLiteral("grupa")};
        if (open == u"KorCmb" && grid->columnDescription(grid->Col()).col_type == u"COMBO")
            QCOMPARE(listed(), lists.value(grid->Col()));
    }
    for (int row = 1; row < grid->Rows(); ++row) {
        for (int column = 1; column < grid->Cols(); ++column) {
            static const QStringList known{QString(),
                                           QStringLiteral("jm 2"),
                                           QStringLiteral("2"),
                                           QStringLiteral("grupa 3"),
                                           QStringLiteral("abc"),
                                           QStringLiteral("jm 3"),
                                           QStringLiteral("3")};
            const QString text = grid->TextMatrix(row, column);
            QVERIFY2(text.startsWith(u"towar ") || known.contains(text), qPrintable(text));
        }
    }
}

// --- opening and reading anew

void tst_KorGrid_Waiting::anythingMayHappenWhileAListOpens_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<SlowDatabase::Place>("place");
    for (const QString &deed : deeds) {
        QTest::addRow("%s, in OpenRecordset", qPrintable(deed)) << deed << SlowDatabase::Place::OpenRecordset;
        QTest::addRow("%s, in MoveNext", qPrintable(deed)) << deed << SlowDatabase::Place::MoveNext;
    }
}

void tst_KorGrid_Waiting::anythingMayHappenWhileAListOpens()
{
    QFETCH(const QString, deed);
    QFETCH(const SlowDatabase::Place, place);
    database->once(place, [&] { act(deed); });
    click(2, Unit);
    QVERIFY(!database->isWaitedFor());
    settle();
    if (!grid)
        return;
    lookAround();
    if (deed == u"types into a text") {
        QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
        QCOMPARE(grid->TextMatrix(4, Text), QStringLiteral("abc"));
    }
    if (deed == u"goes elsewhere") {
        QVERIFY(stage->button()->hasFocus());
        QCOMPARE(openEditor(), QString());
    }
    // And it goes on
    grid->show();
    grid->setEnabled(true);
    settle();
    grid->setdatabase(database.get());
    if (grid->Cols() > 4 && grid->columnDescription(Group).col_type == u"COMBO") {
        view()->scrollToTop();
        click(1, Group);
        QCOMPARE(listed(), QStringLiteral("grupa"));
        type(QStringLiteral("g"));
        press(Qt::Key_Home);
        QCOMPARE(grid->TextMatrix(1, Group), QStringLiteral("grupa 1"));
    }
}

void tst_KorGrid_Waiting::anythingMayHappenWhileAnOpenListIsReadAnew()
{
    QFETCH(const QString, deed);
    QFETCH(const SlowDatabase::Place, place);
    click(2, Unit);
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    database->once(place, [&] { act(deed); });
    press(Qt::Key_F5);
    QVERIFY(!database->isWaitedFor());
    settle();
    if (grid)
        lookAround();
}

void tst_KorGrid_Waiting::whatIsChosenMeanwhileStays()
{
    database->once(SlowDatabase::Place::OpenRecordset, [&] {
        click(3, Group);
        press(Qt::Key_Home);
    });
    click(2, Unit);
    QCOMPARE(place(), QStringLiteral("3,4"));
    QCOMPARE(grid->TextMatrix(3, Group), QStringLiteral("grupa 1"));
    press(Qt::Key_End);
    QCOMPARE(grid->TextMatrix(3, Group), QStringLiteral("grupa 3"));
    QCOMPARE(row(2), QStringLiteral("towar 2|jm 2|2|grupa 3"));
}

void tst_KorGrid_Waiting::whoGoesElsewhereMeanwhileIsNotCalledBack_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"F2", "a letter", "an arrow", "Tab into the grid", "the program's SetFocusCell"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_KorGrid_Waiting::whoGoesElsewhereMeanwhileIsNotCalledBack()
{
    QFETCH(const QString, way);
    auto *field = stage->place(new QLineEdit);
    field->show();
    click(2, way == u"an arrow" ? Text : Unit);
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QString());
    if (way == u"Tab into the grid" || way == u"the program's SetFocusCell") {
        stage->button()->setFocus();
        settle();
    }
    database->once(SlowDatabase::Place::OpenRecordset, [&] {
        field->setFocus();
        QTest::keyClicks(field, QStringLiteral("ab"));
    });
    if (way == u"F2")
        press(Qt::Key_F2);
    else if (way == u"a letter")
        press(Qt::Key_J);
    else if (way == u"an arrow")
        press(Qt::Key_Right);
    else if (way == u"Tab into the grid")
        grid->setFocus(Qt::TabFocusReason);
    else
        QVERIFY(!grid->SetFocusCell(2, Unit));
    settle();
    QVERIFY(!database->isWaitedFor());
    QCOMPARE(QApplication::focusWidget(), field);
    QCOMPARE(field->text(), QStringLiteral("ab"));
    QCOMPARE(openEditor(), QString());
    QCOMPARE(row(2), QStringLiteral("towar 2|jm 2|2|grupa 3"));
    click(2, Unit); // and it opens as ever
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
}

void tst_KorGrid_Waiting::aProgramsRequestThatNobodyWalksAwayFromTakesTheKeyboard()
{
    stage->button()->setFocus();
    settle();
    database->once(SlowDatabase::Place::OpenRecordset, [] {});
    QVERIFY(grid->SetFocusCell(2, Unit));
    settle();
    QVERIFY(!database->isWaitedFor());
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    QVERIFY(grid->isAncestorOf(QApplication::focusWidget()));
}

void tst_KorGrid_Waiting::aKeyOnAListIsNotTypedElsewhere_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("a letter") << int(Qt::Key_J);
    QTest::newRow("Delete") << int(Qt::Key_Delete);
}

void tst_KorGrid_Waiting::aKeyOnAListIsNotTypedElsewhere()
{
    QFETCH(const int, key);
    click(2, Unit);
    press(Qt::Key_F2);
    QCOMPARE(openEditor(), QString());
    database->once(SlowDatabase::Place::OpenRecordset, [&] {
        click(4, Text);
        type(QStringLiteral("abc"));
        press(Qt::Key_Home);
    });
    press(static_cast<Qt::Key>(key));
    QVERIFY(!database->isWaitedFor());
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(grid->TextMatrix(4, Text), QStringLiteral("abc"));
    QCOMPARE(row(2), QStringLiteral("towar 2|jm 2|2|grupa 3"));
}

void tst_KorGrid_Waiting::whoLeavesAListThatIsReadAnewLosesNothing()
{
    click(2, Unit);
    press(Qt::Key_End);
    QCOMPARE(row(2), QStringLiteral("towar 2|jm 3|3|grupa 3"));
    database->once(SlowDatabase::Place::OpenRecordset, [&] { press(Qt::Key_Tab); });
    press(Qt::Key_F5);
    QVERIFY(!database->isWaitedFor());
    QCOMPARE(row(2), QStringLiteral("towar 2|jm 3|3|grupa 3"));
    QCOMPARE(place(), QStringLiteral("2,4"));
    lookAround();
}

// --- the program's own reading and writing

void tst_KorGrid_Waiting::anythingMayHappenWhileTheProgramReadsAndWrites_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("call");
    for (const char *call :
         {"Value", "setValue", "setTextMatrix", "SumColumn", "MaxColumn", "refusedCells", "pasteCells"}) {
        for (const QString &deed : deeds)
            QTest::addRow("%s, %s", call, qPrintable(deed)) << deed << QString::fromLatin1(call);
    }
}

void tst_KorGrid_Waiting::anythingMayHappenWhileTheProgramReadsAndWrites()
{
    QFETCH(const QString, deed);
    QFETCH(const QString, call);
    grid->setRow(3);
    stage->button()->setFocus();
    settle();
    database->once(SlowDatabase::Place::OpenRecordset, [&] { act(deed); });
    const QString block = QStringLiteral("jm 2\tgrupa 3\njm 2\tgrupa 3");
    if (call == u"Value")
        (void)grid->Value(4, Unit);
    else if (call == u"setValue")
        grid->setValue(4, Unit, 2);
    else if (call == u"setTextMatrix")
        grid->setTextMatrix(4, Unit, QStringLiteral("jm 2"));
    else if (call == u"SumColumn")
        (void)grid->SumColumn(Unit);
    else if (call == u"MaxColumn")
        (void)grid->MaxColumn(Unit);
    else if (call == u"refusedCells")
        (void)grid->refusedCells(3, Unit, block);
    else
        (void)grid->pasteCells(3, Unit, block);
    QVERIFY(!database->isWaitedFor());
    settle();
    if (grid)
        lookAround();
}

void tst_KorGrid_Waiting::aListForgottenMeanwhileIsReadAgain()
{
    SlowDatabase other;
    other.titles = {{QStringLiteral("SELECT id, nazwa FROM jm"), QStringLiteral("inna")}};
    database->once(SlowDatabase::Place::MoveNext, [&] { grid->setdatabase(&other); });
    grid->setValue(1, Unit, 1);
    grid->setValue(2, Unit, 1);
    QCOMPARE(grid->TextMatrix(2, Unit), QStringLiteral("inna 1"));
    grid->setdatabase(nullptr);
}

QTEST_MAIN(tst_KorGrid_Waiting)
#include "tst_korgrid_waiting.moc"
