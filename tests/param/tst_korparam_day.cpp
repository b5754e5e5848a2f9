// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"
#include "support/settings.h"

#include <KorDaoUC/PropertyBag>

#include <QtWidgets/QDialog>

using namespace kor;
using namespace kor::test;

//! The sheet among the windows, programs and screens of its days.
class tst_KorParam_Day : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        report();
    }
    void cleanup() { tearDown(); }

    void aRowIsAsHighAsItsEditorInEveryFont_data();
    void aRowIsAsHighAsItsEditorInEveryFont();
    void anOpenEditorGrowsWithTheFont();
    void aChooserMayOpenADialog_data();
    void aChooserMayOpenADialog();
    void aChooserMayAddAndClear_data();
    void aChooserMayAddAndClear();
    void anOpenListTakesEnterAndEscapeFirst();
    void anOpenCalendarTakesEscapeFirst();
    void whatIsTypedOutlivesDisablingAndHiding_data();
    void whatIsTypedOutlivesDisablingAndHiding();
    void twoSheetsOfAWindowLetEachOtherBe();
    void aRefusedDateKeepsTheUserFromTheOtherSheet();
    void theTabOrderOfTheFormGoesThroughTheSheet();
    void aNumberWithoutAMaskIsGeneral();
    void fromRightToLeftTheEditorLiesOverItsCell();
    void aProgramThatKnowsOnlyNamesFillsTheSheet();
    void lowerCaseKindsAreWalkedOver();
    void whateverRowIsCurrentIsInSight();
    void keysOnAClosedValueLeadToValues_data();
    void keysOnAClosedValueLeadToValues();
    void theFormIsTheSameAfterSavingAndLoading();
};

void tst_KorParam_Day::aRowIsAsHighAsItsEditorInEveryFont_data()
{
    QTest::addColumn<int>("points");
    QTest::newRow("usual") << 0;
    QTest::newRow("small") << 7;
    QTest::newRow("half as large again") << 15;
    QTest::newRow("for a clerk far from the screen") << 28;
}

void tst_KorParam_Day::aRowIsAsHighAsItsEditorInEveryFont()
{
    QFETCH(int, points);
    if (points > 0) {
        QFont font = sheet->Font();
        font.setPointSize(points);
        sheet->setFont(font);
        stage->resize(440, 700);
        sheet->resize(420, 600);
        settle();
    }
    int highest = 0;
    for (int row = Text; row <= Click; ++row) {
        click(row);
        QVERIFY(!openEditor().isEmpty());
        const auto *open = sheet->findChild<QWidget *>(openEditor());
        highest = std::max(highest, open->height());
        QVERIFY(open->geometry().top() == cellRect(row, 2).top());
        QVERIFY2(open->geometry().bottom() < cellRect(row + 1, 2).top(), "the next value is seen whole");
    }
    QCOMPARE(cellRect(Text, 2).height() + 1, highest);
}

void tst_KorParam_Day::anOpenEditorGrowsWithTheFont()
{
    click(Number);
    const int before = editor("KorNum")->height();
    QFont font = sheet->Font();
    font.setPointSize(24);
    sheet->setFont(font);
    settle();
    QVERIFY(editor("KorNum")->height() > before);
    QCOMPARE(editor("KorNum")->y(), cellRect(Number, 2).y());
    QVERIFY(editor("KorNum")->geometry().bottom() < cellRect(Date, 2).top());
    type(QStringLiteral("7"));
    QCOMPARE(shown(Number), QStringLiteral("7"));
}

void tst_KorParam_Day::aChooserMayOpenADialog_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("and take its choice") << "takes"
                                         << "Sopot" << QVariant(8);
    QTest::newRow("and be refused one") << "refused"
                                        << "Gdynia" << QVariant(3);
    QTest::newRow("and look at other rows in it") << "looks"
                                                  << "Sopot" << QVariant(8);
    QTest::newRow("and choose no value to it") << "text only"
                                               << "Sopot" << QVariant(3);
}

void tst_KorParam_Day::aChooserMayOpenADialog()
{
    QFETCH(QString, deed);
    connect(sheet, &KorParam::ClickClick, this, [&](const QString &symbol) {
        QCOMPARE(symbol, QStringLiteral("magazyn"));
        QDialog dialog(stage.get());
        auto *name = new QLineEdit(&dialog);
        QTimer::singleShot(0, &dialog, [&] {
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            name->setFocus();
            QTest::keyClicks(name, QStringLiteral("Sopot"));
            if (deed == u"refused")
                dialog.reject();
            else
                dialog.accept();
        });
        if (dialog.exec() == QDialog::Rejected)
            return;
        if (deed == u"looks")
            sheet->setRow(Text); // and stays there
        if (deed != u"text only")
            sheet->setClickValue(8);
        sheet->setClickText(name->text());
    });
    click(Click);
    press(Qt::Key_F4);
    stage->activateWindow(); // which no window manager does after the dialog
    QVERIFY(QTest::qWaitForWindowActive(stage.get()));
    settle();
    QTEST(shown(Click), "text");
    if (deed == u"looks") {
        QCOMPARE(sheet->Row(), int(Text));
    } else {
        QVERIFY(hasKeyboard("KorClk"));
        press(Qt::Key_Up);
        QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    }
    leave();
    QTEST(shown(Click), "text");
    QTEST(valueOf(Click), "value");
    QCOMPARE(shown(Text), QStringLiteral("Zestawienie"));
}

void tst_KorParam_Day::aChooserMayAddAndClear_data()
{
    QTest::addColumn<bool>("clears");
    QTest::newRow("adds") << false;
    QTest::newRow("clears") << true;
}

void tst_KorParam_Day::aChooserMayAddAndClear()
{
    QFETCH(bool, clears);
    connect(sheet, &KorParam::ClickClick, this, [&] {
        if (clears)
            sheet->Clear();
        else
            sheet->AddParam(QStringLiteral("Cel"), QStringLiteral("cel"), QStringLiteral("CLICK"), 1, QString(), 0,
                            QString(), QString(), QString(), 0, 0, QStringLiteral("Hel"));
        sheet->setClickText(QStringLiteral("Sopot"));
        sheet->setClickValue(8);
    });
    click(Click);
    press(Qt::Key_F4);
    if (clears) {
        QCOMPARE(allShown(), QStringLiteral("|||||")); // nothing is brought back into an empty sheet
        QCOMPARE(valueOf(Click), QVariant(3));
        return;
    }
    QCOMPARE(shown(Click), QStringLiteral("Sopot"));
    QCOMPARE(shown(Other + 1), QStringLiteral("Hel"));
    QCOMPARE(valueOf(Click), QVariant(8));
    QCOMPARE(valueOf(Other + 1), QVariant(1));
}

void tst_KorParam_Day::anOpenListTakesEnterAndEscapeFirst()
{
    stage->button()->setDefault(true);
    QSignalSpy pressed(stage->button(), &QPushButton::clicked);
    click(Combo);
    const auto *box = editor<QComboBox>("cmbCombo");
    press(Qt::Key_F4);
    QVERIFY(box->view()->isVisible());
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QVERIFY(!box->view()->isVisible());
    QCOMPARE(pressed.size(), 0);
    QCOMPARE(sheet->ParText(), QStringLiteral("Celina"));
    QCOMPARE(sheet->ParValue(), QVariant(9));
    press(Qt::Key_F4);
    press(Qt::Key_Up);
    press(Qt::Key_Escape);
    QVERIFY(!box->view()->isVisible());
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    QCOMPARE(sheet->ParText(), QStringLiteral("Celina"));
    press(Qt::Key_Return); // takes the entry
    QCOMPARE(openEditor(), QString());
    QCOMPARE(pressed.size(), 0);
    press(Qt::Key_Return);
    QCOMPARE(pressed.size(), 1);
    QCOMPARE(shown(Combo), QStringLiteral("Celina"));
}

void tst_KorParam_Day::anOpenCalendarTakesEscapeFirst()
{
    click(Date);
    press(Qt::Key_F4);
    press(Qt::Key_Right);
    press(Qt::Key_Escape);
    QCOMPARE(openEditor(), QStringLiteral("KorDat"));
    QVERIFY(hasKeyboard("KorDat"));
    QCOMPARE(sheet->ParText(), QStringLiteral("02.11.2026")); // where the calendar had come to
    press(Qt::Key_Escape);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(sheet->ParText(), QStringLiteral("01.11.2026"));
}

void tst_KorParam_Day::whatIsTypedOutlivesDisablingAndHiding_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("hides");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    for (const bool hides : {false, true}) {
        const char *deed = hides ? "hidden" : "disabled";
        QTest::addRow("%s, text", deed) << int(Text) << "ab" << hides << "ab" << QVariant(QStringLiteral("ab"));
        QTest::addRow("%s, number", deed) << int(Number) << "7,5" << hides << "7,50" << QVariant(7.5);
        QTest::addRow("%s, date", deed) << int(Date) << "241226" << hides << "24.12.2026"
                                        << QVariant(QDate(2026, 12, 24));
        QTest::addRow("%s, list", deed) << int(Combo) << "c" << hides << "Celina" << QVariant(9);
    }
}

void tst_KorParam_Day::whatIsTypedOutlivesDisablingAndHiding()
{
    QFETCH(int, row);
    QFETCH(QString, typed);
    QFETCH(bool, hides);
    click(row);
    type(typed);
    if (hides)
        sheet->hide();
    else
        sheet->setEnabled(false);
    settle();
    if (hides)
        sheet->show();
    else
        sheet->setEnabled(true);
    settle();
    if (QApplication::focusWidget() != stage->button())
        leave();
    QTEST(shown(row), "text");
    QTEST(valueOf(row), "value");
    QCOMPARE(messages->take(), QStringList());
    enter();
    QVERIFY(!openEditor().isEmpty());
    QCOMPARE(sheet->Row(), row);
}

void tst_KorParam_Day::twoSheetsOfAWindowLetEachOtherBe()
{
    auto *other = stage->place(new KorParam, 420, 120);
    stage->resize(440, 500);
    other->show();
    other->AddParam(QStringLiteral("Uwagi"), QStringLiteral("uwagi"), QStringLiteral("TEXT"), QStringLiteral("brak"));
    settle();
    click(Number);
    type(QStringLiteral("5"));
    press(Qt::Key_Tab);
    const auto *box = other->findChild<QLineEdit *>(QStringLiteral("TxtBox"));
    QVERIFY(box->hasFocus());
    QCOMPARE(openEditor(), QString());
    QCOMPARE(shown(Number), QStringLiteral("5,00"));
    type(QStringLiteral("nowe"));
    press(Qt::Key_Backtab);
    QCOMPARE(openEditor(), QStringLiteral("KorNum"));
    QVERIFY(!box->isVisible());
    QCOMPARE(allShown().section(u'|', 0, 1), QStringLiteral("Zestawienie|5,00"));
    other->setRow(1);
    QCOMPARE(other->ParValue(), QVariant(QStringLiteral("nowe")));
    QVERIFY(hasKeyboard("KorNum")); // reading one sheet closes nothing in the other
}

void tst_KorParam_Day::aRefusedDateKeepsTheUserFromTheOtherSheet()
{
    auto *other = stage->place(new KorParam, 420, 120);
    stage->resize(440, 500);
    other->show();
    other->AddParam(QStringLiteral("Uwagi"), QStringLiteral("uwagi"), QStringLiteral("TEXT"), QStringLiteral("brak"));
    settle();
    click(Date);
    type(QStringLiteral("32.13"));
    const auto *grid = other->findChild<QTableView *>(QStringLiteral("grid"));
    const QPoint value = grid->visualRect(grid->model()->index(0, 1)).center();
    QTest::mouseClick(stage->windowHandle(), Qt::LeftButton, {}, grid->viewport()->mapTo(stage.get(), value));
    settle();
    QCOMPARE(messages->take().size(), 1);
    QVERIFY(hasKeyboard("KorDat"));
    type(QStringLiteral("021226"));
    press(Qt::Key_Tab);
    QCOMPARE(messages->take(), QStringList());
    QCOMPARE(shown(Date), QStringLiteral("02.12.2026"));
    QVERIFY(other->isAncestorOf(QApplication::focusWidget()));
}

void tst_KorParam_Day::theTabOrderOfTheFormGoesThroughTheSheet()
{
    auto *before = stage->place(new QLineEdit, 100, 26);
    QWidget::setTabOrder(before, sheet);
    before->show();
    QWidget::setTabOrder(sheet, stage->button());
    before->setFocus();
    settle();
    press(Qt::Key_Tab);
    QVERIFY(hasKeyboard("TxtBox"));
    press(Qt::Key_Tab);
    QVERIFY(stage->button()->hasFocus());
    press(Qt::Key_Backtab);
    QVERIFY(hasKeyboard("TxtBox"));
    press(Qt::Key_Backtab);
    QVERIFY(before->hasFocus());
    QCOMPARE(openEditor(), QString());
    for (int row = Number; row <= Other; ++row) {
        sheet->setRow(row);
        press(Qt::Key_Tab);
        QVERIFY(sheet->isAncestorOf(QApplication::focusWidget()));
        press(Qt::Key_Tab);
        QVERIFY(stage->button()->hasFocus());
        before->setFocus();
        settle();
    }
}

void tst_KorParam_Day::aNumberWithoutAMaskIsGeneral()
{
    add("NUMBER", "Suma");
    settle();
    click(Number); // with a mask, before and after
    click(Other + 1);
    type(QStringLiteral("1234.50"));
    QCOMPARE(sheet->ParText(), QStringLiteral("1234,50"));
    press(Qt::Key_Up);
    QCOMPARE(shown(Other + 1), QStringLiteral("1234,5"));
    QCOMPARE(valueOf(Other + 1), QVariant(1234.5));
    QCOMPARE(shown(Number), QStringLiteral("1\u00a0234,50"));
}

void tst_KorParam_Day::fromRightToLeftTheEditorLiesOverItsCell()
{
    stage->setLayoutDirection(Qt::RightToLeft);
    settle();
    QVERIFY(cellRect(Text, 2).right() < cellRect(Text, 1).left() + 2);
    for (int row = Text; row <= Click; ++row) {
        click(row);
        const auto *open = sheet->findChild<QWidget *>(openEditor());
        QVERIFY(open);
        QVERIFY(std::abs(open->geometry().left() - cellRect(row, 2).left()) <= 1);
        QVERIFY(std::abs(open->geometry().right() - cellRect(row, 2).right()) <= 1);
        QVERIFY(view()->viewport()->rect().contains(open->geometry()));
    }
    click(Text);
    type(QStringLiteral("abc"));
    press(Qt::Key_Down);
    QCOMPARE(openEditor(), QStringLiteral("KorNum"));
    QCOMPARE(shown(Text), QStringLiteral("abc"));
}

void tst_KorParam_Day::aProgramThatKnowsOnlyNamesFillsTheSheet()
{
    QObject *late = sheet;
    bool result = true;
    QVERIFY(late->setProperty("Rows", 2));
    QVERIFY(QMetaObject::invokeMethod(late, "Clear"));
    QVERIFY(QMetaObject::invokeMethod(late, "AddParam", Q_RETURN_ARG(bool, result),
                                      Q_ARG(QString, QStringLiteral("Kod")), Q_ARG(QString, QStringLiteral("kod")),
                                      Q_ARG(QString, QStringLiteral("TEXT"))));
    QVERIFY(!result);
    QVERIFY(QMetaObject::invokeMethod(late, "AddParam", Q_ARG(QString, QStringLiteral("Ile")),
                                      Q_ARG(QString, QStringLiteral("ile")), Q_ARG(QString, QStringLiteral("NUMBER")),
                                      Q_ARG(QVariant, QVariant(5)), Q_ARG(QString, QStringLiteral("Double")),
                                      Q_ARG(int, 4)));
    settle();
    QCOMPARE(late->property("Rows"), QVariant(3));
    QCOMPARE(late->property("Row"), QVariant(0));
    enter();
    type(QStringLiteral("K1"));
    press(Qt::Key_Down);
    type(QStringLiteral("123456"));
    leave();
    QVERIFY(late->setProperty("Row", 1));
    QCOMPARE(late->property("ParText").toString(), QStringLiteral("K1"));
    QVERIFY(late->setProperty("Row", 2));
    QCOMPARE(late->property("ParValue"), QVariant(1234.0));
    QCOMPARE(late->property("ParType").toString(), QStringLiteral("Double"));
}

void tst_KorParam_Day::lowerCaseKindsAreWalkedOver()
{
    for (const char *kind : {"text", "Number", "date", "combo", "click"})
        add(kind, "Mała", QStringLiteral("wartość"));
    add("TEXT", "Ostatni");
    settle();
    click(Click);
    const int before = Other;
    for (int i = 0; i < 7; ++i) {
        press(Qt::Key_Down);
        type(QStringLiteral("q"));
        press(Qt::Key_F4);
    }
    QCOMPARE(sheet->Row(), before + 6);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(shown(before + 6), QStringLiteral("q"));
    for (int row = before; row < before + 6; ++row)
        QCOMPARE(shown(row), QString());
    QCOMPARE(valueOf(before + 1), QVariant(QStringLiteral("wartość")));
}

void tst_KorParam_Day::whateverRowIsCurrentIsInSight()
{
    for (int i = 0; i < 20; ++i) {
        add("INNY", "Bez edytora");
        add("TEXT", "Tekst");
    }
    settle();
    enter();
    const auto isInSight = [this] { return view()->viewport()->rect().contains(cellRect(sheet->Row(), 2)); };
    while (sheet->Row() < sheet->Rows() - 1) {
        const int before = sheet->Row();
        press(Qt::Key_Down);
        QCOMPARE(sheet->Row(), before + 1);
        QVERIFY2(isInSight(), qPrintable(QString::number(before + 1)));
    }
    while (sheet->Row() > Other) {
        press(Qt::Key_Up);
        QVERIFY(isInSight());
    }
    leave();
    sheet->setRow(sheet->Rows() - 2);
    QVERIFY(!isInSight());
    enter();
    QCOMPARE(openEditor(), QString());
    QVERIFY(isInSight());
}

void tst_KorParam_Day::keysOnAClosedValueLeadToValues_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("reached");
    const int ctrl = Qt::ControlModifier;
    QTest::newRow("Down") << int(Qt::Key_Down) << 0 << "KorCmb";
    QTest::newRow("Up") << int(Qt::Key_Up) << 0 << "KorNum";
    QTest::newRow("Ctrl+Home") << int(Qt::Key_Home) << ctrl << "TxtBox";
    QTest::newRow("Ctrl+Page Up") << int(Qt::Key_PageUp) << ctrl << "TxtBox";
    QTest::newRow("Ctrl+End") << int(Qt::Key_End) << ctrl << "KorClk";
    QTest::newRow("Ctrl+Page Down") << int(Qt::Key_PageDown) << ctrl << "KorClk";
    QTest::newRow("Page Up") << int(Qt::Key_PageUp) << 0 << "TxtBox";
    QTest::newRow("Page Down") << int(Qt::Key_PageDown) << 0 << "KorClk";
}

void tst_KorParam_Day::keysOnAClosedValueLeadToValues()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    sheet->setRows(6); // all of them have editors
    settle();
    click(Date);
    press(Qt::Key_Escape);
    press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(openEditor(), "reached");
}

void tst_KorParam_Day::theFormIsTheSameAfterSavingAndLoading()
{
    sheet->setBackColor(0x00E0FFFF);
    sheet->setColNameWidth(2200);
    sheet->setColValTitle(QStringLiteral("Treść"));
    sheet->setEnabledClick(false);
    const PropertyBag bag = settingsOf(*sheet);
    auto *loaded = stage->place(new KorParam, 420, 200);
    stage->resize(440, 560);
    loaded->show();
    loaded->readProperties(bag);
    settle();
    const auto *grid = loaded->findChild<QTableView *>(QStringLiteral("grid"));
    const QRect name = grid->visualRect(grid->model()->index(0, 0));
    QCOMPARE(name.width(), cellRect(Text, 1).width());
    QCOMPARE(grid->visualRect(grid->model()->index(0, 1)).width(), cellRect(Text, 2).width());
    QCOMPARE(grid->rowHeight(0), view()->rowHeight(0));
    loaded->AddParam(QStringLiteral("Dnia"), QStringLiteral("dnia"), QStringLiteral("DATE"), QDate(2026, 5, 6));
    QCOMPARE(loaded->Rows(), 7); // into the last of the saved rows
    loaded->setRow(6);
    QCOMPARE(loaded->ParName(), QStringLiteral("Dnia"));
}

QTEST_MAIN(tst_KorParam_Day)
#include "tst_korparam_day.moc"
