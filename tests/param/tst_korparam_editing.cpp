// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>

using namespace kor;
using namespace kor::test;

//! Values edited in place: the editor of each kind, where it lies, how it is prepared and what it writes back.
class tst_KorParam_Editing : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        report();
    }
    void cleanup() { tearDown(); }

    void clickingAValueOpensTheEditorOfItsKind_data();
    void clickingAValueOpensTheEditorOfItsKind();
    void namesAndEmptyRowsHaveNoEditor();
    void aClickOnANameEndsTheEditing();
    void anOpenEditorFollowsItsCell();
    void aRowBelowTheEdgeIsScrolledInFirst();
    void aNarrowSheetScrollsToTheValue();

    void editorsArePreparedFromTheRecord();
    void theLengthLimitsWhatIsTyped();
    void theCellIsWrittenWithEveryCharacter();
    void aNumberIsFormattedWhenItIsLeft();
    void typingGoesOnWhenTheWindowComesBack();
    void aDateIsReadWhenItIsLeft();
    void leavingUntouchedWritesWhatTheEditorMakesOfIt();
    void aRefusedDateKeepsTheUserWithOneMessage_data();
    void aRefusedDateKeepsTheUserWithOneMessage();
    void theFirstEnterIsTheEditorsAndTheNextTheForms();
    void escapeGivesTextAndValueBack_data();
    void escapeGivesTextAndValueBack();
    void escapeGetsOutOfARefusedDate();

    void theChooserWritesTextAndValue();
    void aChooserMayLookAtOtherParameters();
    void aChoiceOutsideTheChooserGoesNowhere();
    void theDictionaryIsTheOpenLists();
    void theButtonsAreSwitchedTogether();

    void theWheelScrollsAndChangesNoValue();
    void atDesignTimeAnExampleIsShownAndNothingOpens();
    void aDisabledSheetOpensNothing();
    void namesTooLongForTheirColumnHaveAToolTip();
};

void tst_KorParam_Editing::clickingAValueOpensTheEditorOfItsKind_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    QTest::newRow("text") << int(Text) << QStringLiteral("TxtBox");
    QTest::newRow("number") << int(Number) << QStringLiteral("KorNum");
    QTest::newRow("date") << int(Date) << QStringLiteral("KorDat");
    QTest::newRow("list") << int(Combo) << QStringLiteral("KorCmb");
    QTest::newRow("click field") << int(Click) << QStringLiteral("KorClk");
    QTest::newRow("a kind that there is not") << int(Other) << QString();
}

void tst_KorParam_Editing::clickingAValueOpensTheEditorOfItsKind()
{
    QFETCH(int, row);
    QFETCH(QString, name);
    click(row);
    QCOMPARE(openEditor(), name);
    QCOMPARE(sheet->Row(), row);
    if (name.isEmpty())
        return;
    QVERIFY(hasKeyboard(qPrintable(name)));
    const auto *open = sheet->findChild<QWidget *>(name);
    const QRect cell = view()->visualRect(view()->model()->index(row - 1, 1)).adjusted(0, 0, 1, 1);
    QCOMPARE(open->geometry().topLeft(), cell.topLeft());
    QCOMPARE(open->width(), cell.width());
    QCOMPARE(open->height(), open->sizeHint().height()); // its own, which the row has room for
    QVERIFY(cell.contains(open->geometry()));
}

void tst_KorParam_Editing::namesAndEmptyRowsHaveNoEditor()
{
    sheet->setRows(9);
    settle();
    click(Text, 1);
    QCOMPARE(openEditor(), QString());
    click(8);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(sheet->Row(), 8);
}

void tst_KorParam_Editing::aClickOnANameEndsTheEditing()
{
    click(Text);
    type(QStringLiteral("Nowy"));
    click(Date, 1);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(shown(Text), QStringLiteral("Nowy"));
    QCOMPARE(sheet->Row(), int(Date));
    QVERIFY(view()->hasFocus());
}

void tst_KorParam_Editing::anOpenEditorFollowsItsCell()
{
    click(Date);
    sheet->setColNameWidth(1500);
    settle();
    QCOMPARE(editor("KorDat")->x(), cellRect(Date, 2).x());
    QCOMPARE(editor("KorDat")->x(), 100);
    sheet->resize(300, 150);
    settle();
    QCOMPARE(editor("KorDat")->width(), cellRect(Date, 2).width() + 1);
    QVERIFY(hasKeyboard("KorDat"));
}

void tst_KorParam_Editing::aRowBelowTheEdgeIsScrolledInFirst()
{
    for (int i = 0; i < 40; ++i)
        add("TEXT", "Dalszy", i);
    settle();
    enter();
    for (int i = 0; i < 40; ++i)
        press(Qt::Key_Down);
    QCOMPARE(sheet->Row(), 41);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    QCOMPARE(editor("TxtBox")->y(), cellRect(41, 2).y());
    QVERIFY(view()->viewport()->rect().contains(cellRect(41, 2)));
    QCOMPARE(cellRect(41, 2).right() + 2, view()->viewport()->width()); // beside the scroll bar, which took its room
}

void tst_KorParam_Editing::aNarrowSheetScrollsToTheValue()
{
    sheet->resize(180, 200); // names alone are 200 wide
    settle();
    enter();
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    const QRect room = view()->viewport()->rect();
    QVERIFY(room.contains(cellRect(Text, 2)));
    QVERIFY(editor("TxtBox")->geometry().left() >= 0 && editor("TxtBox")->geometry().right() <= room.right());
    type(QStringLiteral("x"));
    QCOMPARE(shown(Text), QStringLiteral("x"));
    sheet->resize(420, 200);
    settle();
    QCOMPARE(cellRect(Text, 1).width() + 1, 200);
}

// --- preparing and writing back

void tst_KorParam_Editing::editorsArePreparedFromTheRecord()
{
    sheet->AddParam(QStringLiteral("Suma"), QString(), QStringLiteral("NUMBER"), 0.25, QString(), 9, QString(),
                    QString(), QString(), 5, 10);
    settle();
    click(Number);
    const auto *number = editor<KorNumber>("KorNum");
    QCOMPARE(number->MaskPicture(), QStringLiteral("#,##0.00"));
    QCOMPARE(number->Value(), QVariant(1234.5));
    QCOMPARE(number->MaxLength(), 0);
    click(Other + 1);
    QCOMPARE(number->MaskPicture(), QStringLiteral("General Number"));
    QCOMPARE(number->Value(), QVariant(0.25));
    QCOMPARE(number->MaxLength(), 9);
    QVERIFY(!number->CheckRange()); // the bounds of the record are the program's own
    click(Combo);
    const auto *combo = editor<KorCombo>("KorCmb");
    QCOMPARE(combo->SQL(), QStringLiteral("LIST 5;Abakus|7;Bartek|9;Celina"));
    QCOMPARE(combo->Slownik(), QStringLiteral("klienci"));
    QCOMPARE(combo->ListCount(), 4);
    QVERIFY(combo->CanBeNull() && combo->BlockUpDown() && !combo->BlockClick());
    QCOMPARE(combo->NullString(), QStringLiteral("(wszyscy)"));
    QCOMPARE(combo->Value(), QVariant(7));
    click(Click);
    const auto *chooser = editor<KorClick>("KorClk");
    QCOMPARE(chooser->Text(), QStringLiteral("Gdynia"));
    QCOMPARE(chooser->Value(), QVariant(3));
    QVERIFY(chooser->Locked() && chooser->BlockUpDown());
    click(Date);
    QCOMPARE(editor<KorDate>("KorDat")->Value(), QVariant(QDate(2026, 11, 1)));
    QVERIFY(editor<KorDate>("KorDat")->BlockUpDown());
}

void tst_KorParam_Editing::theLengthLimitsWhatIsTyped()
{
    sheet->AddParam(QStringLiteral("Kod"), QString(), QStringLiteral("TEXT"), QStringLiteral("ABCDE"), QString(), 3);
    settle();
    click(Other + 1);
    QCOMPARE(editor<QLineEdit>("TxtBox")->text(), QStringLiteral("ABCDE")); // a program's text is never cut
    type(QStringLiteral("wxyz"));
    QCOMPARE(shown(Other + 1), QStringLiteral("wxy"));
    click(Text); // and the next one has no limit
    type(QStringLiteral("wxyz"));
    QCOMPARE(shown(Text), QStringLiteral("wxyz"));
}

void tst_KorParam_Editing::theCellIsWrittenWithEveryCharacter()
{
    click(Number);
    QStringList seen;
    for (const char16_t c : u"12.5") {
        if (c == 0)
            break;
        type(QString(QChar(c)));
        seen << sheet->ParText() + u'/' + sheet->ParValue().toString();
    }
    QCOMPARE(seen.join(u' '), QStringLiteral("1/1 12/12 12,/12 12,5/12.5"));
    click(Combo);
    type(QStringLiteral("c"));
    QCOMPARE(sheet->ParText(), QStringLiteral("Celina"));
    QCOMPARE(sheet->ParValue(), QVariant(9));
    press(Qt::Key_Home); // the entry for none
    QCOMPARE(sheet->ParText(), QStringLiteral("(wszyscy)"));
    QVERIFY(isNull(sheet->ParValue()));
    click(Text);
    type(QStringLiteral("ab"));
    QCOMPARE(sheet->ParText(), QStringLiteral("ab"));
    QCOMPARE(sheet->ParValue(), QVariant(QStringLiteral("ab")));
}

void tst_KorParam_Editing::aNumberIsFormattedWhenItIsLeft()
{
    click(Number);
    type(QStringLiteral("9876,5"));
    QCOMPARE(shown(Number), QStringLiteral("9876,5"));
    press(Qt::Key_Down);
    QCOMPARE(shown(Number), QStringLiteral("9\u00a0876,50"));
    QCOMPARE(valueOf(Number), QVariant(9876.5));
}

void tst_KorParam_Editing::typingGoesOnWhenTheWindowComesBack()
{
    click(Number);
    QGuiApplication::clipboard()->setText(QStringLiteral("#####")); // as a number that found no room is shown
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    other.close();
    sheet->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(sheet->window()));
    QTRY_VERIFY(hasKeyboard("KorNum"));
    type(QStringLiteral("1"));
    const auto *editor = sheet->findChild<KorNumber *>(QStringLiteral("KorNum"));
    QVERIFY(editor->Text().startsWith(u'1'));
    QCOMPARE(shown(Number), editor->Text());
    QCOMPARE(sheet->ParValue(), editor->Value());
}

void tst_KorParam_Editing::aDateIsReadWhenItIsLeft()
{
    click(Date);
    type(QStringLiteral("241226"));
    QCOMPARE(sheet->ParText(), QStringLiteral("241226"));
    QCOMPARE(sheet->ParValue(), QVariant(QDate(2026, 11, 1))); // until it is left
    press(Qt::Key_Tab);
    QCOMPARE(shown(Date), QStringLiteral("24.12.2026"));
    QCOMPARE(valueOf(Date), QVariant(QDate(2026, 12, 24)));
}

void tst_KorParam_Editing::leavingUntouchedWritesWhatTheEditorMakesOfIt()
{
    add("TEXT", "Puste");
    add("NUMBER", "Liczba", QStringLiteral("12,5"));
    settle();
    enter();
    for (int i = 0; i < 10; ++i)
        press(Qt::Key_Down);
    leave();
    QCOMPARE(allShown(), QStringLiteral("Zestawienie|1\u00a0234,50|01.11.2026|Bartek|Gdynia|||12,5"));
    QCOMPARE(valueOf(Text), QVariant(QStringLiteral("Zestawienie")));
    QCOMPARE(valueOf(Number), QVariant(1234.5));
    QCOMPARE(valueOf(Date), QVariant(QDate(2026, 11, 1)));
    QCOMPARE(valueOf(Combo), QVariant(7));
    QCOMPARE(valueOf(Click), QVariant(3));
    QCOMPARE(valueOf(Other), QVariant(QStringLiteral("bez edytora")));
    QCOMPARE(valueOf(Other + 1), QVariant(QString())); // no longer left out
    QCOMPARE(valueOf(Other + 2), QVariant(12.5));
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorParam_Editing::aRefusedDateKeepsTheUserWithOneMessage_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Down") << int(Qt::Key_Down);
    QTest::newRow("Up") << int(Qt::Key_Up);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("a click on another value") << 0;
    QTest::newRow("a click on a name") << 1;
    QTest::newRow("a click beside the sheet") << 2;
}

void tst_KorParam_Editing::aRefusedDateKeepsTheUserWithOneMessage()
{
    QFETCH(int, key);
    stage->button()->setDefault(true);
    QSignalSpy pressed(stage->button(), &QPushButton::clicked);
    click(Date);
    type(QStringLiteral("32.13"));
    if (key == 0)
        click(Text);
    else if (key == 1)
        click(Text, 1);
    else if (key == 2)
        QTest::mouseClick(stage->windowHandle(), Qt::LeftButton, Qt::NoModifier, stage->button()->geometry().center());
    else
        press(Qt::Key(key));
    settle();
    QCOMPARE(messages->take(), QStringList{QStringLiteral("Błąd formatu daty: Błędna data. Wprowadź datę w formacie: "
                                                          "dd.MM.rrrr")});
    QCOMPARE(openEditor(), QStringLiteral("KorDat"));
    QVERIFY(hasKeyboard("KorDat"));
    QCOMPARE(sheet->Row(), int(Date));
    QCOMPARE(editor<KorDate>("KorDat")->Text(), QStringLiteral("32.13"));
    QCOMPARE(pressed.size(), key == 2 ? 1 : 0); // by the mouse itself
    type(QStringLiteral("021226"));
    press(Qt::Key_Down);
    QCOMPARE(shown(Date), QStringLiteral("02.12.2026"));
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorParam_Editing::theFirstEnterIsTheEditorsAndTheNextTheForms()
{
    QString found;
    stage->button()->setDefault(true);
    connect(stage->button(), &QPushButton::clicked, this, [&] { found = shown(Number); });
    click(Number);
    type(QStringLiteral("1234,5"));
    press(Qt::Key_Return);
    QCOMPARE(found, QString());
    QCOMPARE(openEditor(), QString());
    press(Qt::Key_Return);
    QCOMPARE(found, QStringLiteral("1\u00a0234,50"));
}

void tst_KorParam_Editing::escapeGivesTextAndValueBack_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("typed");
    QTest::newRow("text") << int(Text) << QStringLiteral("abc");
    QTest::newRow("number") << int(Number) << QStringLiteral("77");
    QTest::newRow("date") << int(Date) << QStringLiteral("2.2");
    QTest::newRow("list") << int(Combo) << QStringLiteral("c");
    QTest::newRow("click field") << int(Click) << QStringLiteral("\b");
}

void tst_KorParam_Editing::escapeGivesTextAndValueBack()
{
    QFETCH(int, row);
    QFETCH(QString, typed);
    const QString before = allShown();
    const QVariant value = valueOf(row);
    click(row);
    if (typed == u"\b")
        press(Qt::Key_Backspace);
    else
        type(typed);
    QVERIFY(allShown() != before);
    press(Qt::Key_Escape);
    QCOMPARE(openEditor(), QString());
    QVERIFY(view()->hasFocus());
    QCOMPARE(allShown(), before);
    QCOMPARE(sheet->ParValue(), value);
    press(Qt::Key_F2);
    QVERIFY(!openEditor().isEmpty());
}

void tst_KorParam_Editing::escapeGetsOutOfARefusedDate()
{
    click(Date);
    type(QStringLiteral("32.13"));
    press(Qt::Key_Down);
    QCOMPARE(messages->take().size(), 1);
    press(Qt::Key_Escape);
    QCOMPARE(messages->take(), QStringList());
    QCOMPARE(openEditor(), QString());
    QCOMPARE(shown(Date), QStringLiteral("01.11.2026"));
    QCOMPARE(valueOf(Date), QVariant(QDate(2026, 11, 1)));
}

// --- click fields and lists

void tst_KorParam_Editing::theChooserWritesTextAndValue()
{
    sheet->AddParam(QStringLiteral("Cel"), QStringLiteral("cel"), QStringLiteral("CLICK"));
    settle();
    QStringList asked;
    connect(sheet, &KorParam::ClickClick, this, [&](const QString &symbol) {
        asked << symbol;
        sheet->setClickValue(symbol == u"cel" ? 8 : 4);
        sheet->setClickText(symbol == u"cel" ? QStringLiteral("Sopot") : QStringLiteral("Gdańsk"));
    });
    click(Click);
    press(Qt::Key_F4);
    QCOMPARE(sheet->ParText(), QStringLiteral("Gdańsk"));
    QCOMPARE(sheet->ParValue(), QVariant(4));
    QVERIFY(hasKeyboard("KorClk"));
    click(Other + 1);
    press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(asked.join(u' '), QStringLiteral("magazyn cel"));
    QCOMPARE(shown(Click), QStringLiteral("Gdańsk"));
    QCOMPARE(shown(Other + 1), QStringLiteral("Sopot"));
    QCOMPARE(valueOf(Click), QVariant(4));
    QCOMPARE(valueOf(Other + 1), QVariant(8));
}

void tst_KorParam_Editing::aChooserMayLookAtOtherParameters()
{
    connect(sheet, &KorParam::ClickClick, this, [&](const QString &) {
        const int row = sheet->Row();
        sheet->setRow(Combo); // whose warehouse it is
        const QVariant customer = sheet->ParValue();
        sheet->setRow(row);
        sheet->setClickText(QStringLiteral("u klienta"));
        sheet->setClickValue(customer);
    });
    click(Click);
    press(Qt::Key_F4);
    QCOMPARE(shown(Click), QStringLiteral("u klienta"));
    QCOMPARE(shown(Combo), QStringLiteral("Bartek"));
    QCOMPARE(openEditor(), QStringLiteral("KorClk")); // and the user goes on
    QVERIFY(hasKeyboard("KorClk"));
    press(Qt::Key_Up);
    QCOMPARE(valueOf(Click), QVariant(7));
}

void tst_KorParam_Editing::aChoiceOutsideTheChooserGoesNowhere()
{
    const QString before = allShown();
    sheet->setClickText(QStringLiteral("nikogo"));
    sheet->setClickValue(99);
    QCOMPARE(sheet->ClickText(), QStringLiteral("nikogo"));
    QCOMPARE(sheet->ClickValue(), QVariant(99));
    click(Text);
    sheet->setClickText(QStringLiteral("nikogo też"));
    leave();
    QCOMPARE(allShown(), before);
    QCOMPARE(valueOf(Click), QVariant(3));
}

void tst_KorParam_Editing::theDictionaryIsTheOpenLists()
{
    QCOMPARE(sheet->Slownik(), QString());
    click(Combo);
    QCOMPARE(sheet->Slownik(), QStringLiteral("klienci"));
    press(Qt::Key_Down);
    QCOMPARE(sheet->Slownik(), QString());
}

void tst_KorParam_Editing::theButtonsAreSwitchedTogether()
{
    QVERIFY(sheet->EnabledClick());
    sheet->setEnabledClick(false);
    QVERIFY(!sheet->EnabledClick());
    QVERIFY(!editor<KorClick>("KorClk")->EnabledClick());
    QVERIFY(!editor<KorDate>("KorDat")->EnabledClick());
    click(Click);
    (void)log->take();
    press(Qt::Key_F4);
    QCOMPARE(log->take(), QString());
    QCOMPARE(shown(Click), QStringLiteral("Gdynia"));
    press(Qt::Key_Delete); // the field can still be emptied
    QCOMPARE(shown(Click), QString());
}

// --- what the program does meanwhile

void tst_KorParam_Editing::theWheelScrollsAndChangesNoValue()
{
    for (int i = 0; i < 40; ++i)
        add("TEXT", "Dalszy", i);
    settle();
    click(Combo);
    QWidget *box = QApplication::focusWidget();
    QWheelEvent wheel({3, 3}, box->mapToGlobal(QPointF(3, 3)), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    QCOMPARE(shown(Combo), QStringLiteral("Bartek"));
    QVERIFY(view()->verticalScrollBar()->value() > 0);
}

void tst_KorParam_Editing::atDesignTimeAnExampleIsShownAndNothingOpens()
{
    Stage designed;
    UserControl::setUserMode(&designed, false);
    auto *drawn = designed.place(new KorParam, 420, 120);
    QVERIFY(designed.open());
    const auto *grid = drawn->findChild<QTableView *>(QStringLiteral("grid"));
    const QRect row = grid->visualRect(grid->model()->index(0, 0)).adjusted(2, 2, -2, -2);
    const auto colors = [&] {
        const QImage picture = grid->viewport()->grab(row).toImage();
        QSet<QRgb> all;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                all << picture.pixel(x, y);
        }
        return all.size();
    };
    QVERIFY(colors() > 2);
    // In a dark theme that gives placeholders no colour of their own
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, Qt::black);
    designed.setPalette(dark);
    settle();
    QVERIFY(colors() > 2);
    designed.setPalette({});
    QCOMPARE(grid->model()->index(0, 0).data().toString(), QString()); // painted only
    drawn->setFocus();
    settle();
    for (const char *name : {"TxtBox", "KorNum", "KorDat", "KorCmb", "KorClk"})
        QVERIFY(!drawn->findChild<QWidget *>(QString::fromLatin1(name))->isVisible());
    drawn->AddParam(QStringLiteral("Nazwa"), QString(), QStringLiteral("TEXT"), QStringLiteral("x"));
    settle();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(grid->model()->index(0, 1)).center());
    settle();
    for (const char *name : {"TxtBox", "KorNum", "KorDat", "KorCmb", "KorClk"})
        QVERIFY(!drawn->findChild<QWidget *>(QString::fromLatin1(name))->isVisible());
    QCOMPARE(drawn->Row(), 1);
    QCOMPARE(drawn->ParName(), QStringLiteral("Nazwa"));
}

void tst_KorParam_Editing::aDisabledSheetOpensNothing()
{
    sheet->setEnabled(false);
    click(Text);
    QCOMPARE(openEditor(), QString());
    QCOMPARE(log->take(), QString());
}

void tst_KorParam_Editing::namesTooLongForTheirColumnHaveAToolTip()
{
    const QString name = QStringLiteral("Nazwa parametru, która jest o wiele dłuższa niż jej kolumna");
    add("TEXT", name.toUtf8().constData(), 1);
    settle();
    const auto tipAt = [&](int row, int column) {
        QToolTip::hideText();
        const QPoint place = cellRect(row, column).center();
        QHelpEvent help(QEvent::ToolTip, place, view()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view()->viewport(), &help);
        return QToolTip::text();
    };
    QCOMPARE(tipAt(Text, 1), QString());
    QCOMPARE(tipAt(Other + 1, 1), name);
}

QTEST_MAIN(tst_KorParam_Editing)
#include "tst_korparam_editing.moc"
