// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/fieldsuite.h"

#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/Locale>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtGui/QWheelEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

using namespace kor;
using namespace kor::test;

//! What keyboard, mouse and wheel do to the closed field and to the open list.
class tst_KorComboKeys : public FieldSuite<KorCombo, QComboBox>
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp("cmbCombo"); }
    void cleanup() { tearDown(); }

    void arrowsRaiseKeyDownThenClick();
    void blockUpDownKeepsTheSelection_data();
    void blockUpDownKeepsTheSelection();
    void hostMayTurnAKeyIntoABlockedArrow();
    void hostZeroSwallowsTheKey();
    void hostTurnsOneKeyIntoAnother();
    void f5ReloadsAndRaisesNoKeyDown_data();
    void f5ReloadsAndRaisesNoKeyDown();
    void otherKeysAreKeyDownOnly();
    void homeAndEndMoveToTheEnds();
    void escapeAndEnterAreLeftToTheForm();

    void altDownAndF4OpenTheList_data();
    void altDownAndF4OpenTheList();
    void keysInTheOpenListRaiseNothingUntilAccepted();
    void escapeInTheOpenListAcceptsNothing();
    void acceptingTheSelectedEntryRaisesNothing();
    void tabInTheOpenListAcceptsAndMovesOn();
    void f5InTheOpenListReloadsIt();
    void f5ThatEmptiesTheOpenListClosesIt();
    void droppedStateIsAskedAtEachKey();
    void keysSentToTheFieldActInTheOpenList();
    void openListFollowsTheProgram();
    void mouseOpensAndAccepts();
    void anEmptyListDoesNotOpen();
    void aDisabledListDoesNotOpen();

    void typingFindsWithoutCaseAndAccents_data();
    void typingFindsWithoutCaseAndAccents();
    void typingABlankGoesOnSearching();
    void typingInTheOpenListFindsToo();
    void menuLettersAreNotSearchedFor();

    void wheelMovesOnlyWithTheFocus();
    void handlersMayRefreshInsideAKey();
    void errorsOfHandlersAreRaisedAsTheErrorEvent();

private:
    [[nodiscard]] bool enter(const QString &source);
    [[nodiscard]] bool drop();
    [[nodiscard]] bool isDropped() const { return m_box->view()->isVisible(); }
    [[nodiscard]] int row() const { return m_box->view()->currentIndex().row(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(m_box, key, modifiers); }
    void pressInList(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(m_box->view(), key, modifiers);
    }

    QPointer<KorCombo> &m_combo = m_control;
};

bool tst_KorComboKeys::enter(const QString &source)
{
    m_combo->setSQL(source);
    m_combo->Refresh();
    return FieldSuite::enter();
}

bool tst_KorComboKeys::drop()
{
    m_box->showPopup();
    return QTest::qWaitFor([this] { return isDropped(); });
}

// --- the closed field

void tst_KorComboKeys::arrowsRaiseKeyDownThenClick()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    m_combo->setDataChanged(false);
    EventLog log(m_combo);
    press(Qt::Key_Down);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(40,0) Click"));
    QCOMPARE(m_combo->ListIndex(), 1);
    QVERIFY(m_combo->DataChanged());
    press(Qt::Key_Up);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(38,0) Click"));
    press(Qt::Key_Up);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(38,0)"));
    QCOMPARE(m_combo->ListIndex(), 0);
}

void tst_KorComboKeys::blockUpDownKeepsTheSelection_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("block");
    QTest::addColumn<QString>("events");
    QTest::addColumn<int>("index");
    constexpr int up = Qt::Key_Up;
    constexpr int down = Qt::Key_Down;
    constexpr int none = 0;
    constexpr int shift = Qt::ShiftModifier;
    constexpr int ctrl = Qt::ControlModifier;
    constexpr int alt = Qt::AltModifier;
    // clang-format off
    QTest::newRow("blocked Down")            << down << none         << true  << QStringLiteral("KeyDown(40,0)")       << 1;
    QTest::newRow("blocked Up")              << up   << none         << true  << QStringLiteral("KeyDown(38,0)")       << 1;
    QTest::newRow("blocked Ctrl+Down")       << down << ctrl         << true  << QStringLiteral("KeyDown(40,2)")       << 1;
    QTest::newRow("blocked Ctrl+Up")         << up   << ctrl         << true  << QStringLiteral("KeyDown(38,2)")       << 1;
    QTest::newRow("Shift+Down moves")        << down << shift        << true  << QStringLiteral("KeyDown(40,1) Click") << 2;
    QTest::newRow("Shift+Up moves")          << up   << shift        << true  << QStringLiteral("KeyDown(38,1) Click") << 0;
    QTest::newRow("Shift+Ctrl+Down moves")   << down << shift + ctrl << true  << QStringLiteral("KeyDown(40,3) Click") << 2;
    QTest::newRow("Alt+Up moves")            << up   << alt          << true  << QStringLiteral("KeyDown(38,4) Click") << 0;
    QTest::newRow("free Down")               << down << none         << false << QStringLiteral("KeyDown(40,0) Click") << 2;
    QTest::newRow("free Up")                 << up   << none         << false << QStringLiteral("KeyDown(38,0) Click") << 0;
    QTest::newRow("free Ctrl+Down moves")    << down << ctrl         << false << QStringLiteral("KeyDown(40,2) Click") << 2;
    QTest::newRow("free Ctrl+Up moves")      << up   << ctrl         << false << QStringLiteral("KeyDown(38,2) Click") << 0;
    QTest::newRow("PageDown is not blocked") << int(Qt::Key_PageDown) << none << true << QStringLiteral("KeyDown(34,0) Click") << 2;
    // clang-format on
}

void tst_KorComboKeys::blockUpDownKeepsTheSelection()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, block);
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    m_combo->setListIndex(1);
    m_combo->setBlockUpDown(block);
    EventLog log(m_combo);
    press(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(log.take(), "events");
    QTEST(m_combo->ListIndex(), "index");
    QVERIFY(!isDropped());
}

void tst_KorComboKeys::hostMayTurnAKeyIntoABlockedArrow()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    m_combo->setBlockUpDown(true);
    connect(m_combo, &KorCombo::KeyDown, this, [](int &code, int &) { code = 40; });
    press(Qt::Key_End);
    QCOMPARE(m_combo->ListIndex(), 0);
    m_combo->setBlockUpDown(false);
    press(Qt::Key_End);
    QCOMPARE(m_combo->ListIndex(), 1);
}

void tst_KorComboKeys::hostZeroSwallowsTheKey()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    connect(m_combo, &KorCombo::KeyDown, this, [](int &code, int &) { code = 0; });
    press(Qt::Key_Down);
    QTest::keyClick(m_box, 'c');
    QCOMPARE(m_combo->ListIndex(), 0);
    press(Qt::Key_F4);
    QVERIFY(!isDropped());
    QKeyEvent enterKey(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(m_box, &enterKey);
    QVERIFY(enterKey.isAccepted()); // not offered to the form
}

void tst_KorComboKeys::hostTurnsOneKeyIntoAnother()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    int becomes = 35; // End
    int shiftBecomes = 0;
    connect(m_combo, &KorCombo::KeyDown, this, [&](int &code, int &shift) {
        code = becomes;
        shift = shiftBecomes;
    });
    press(Qt::Key_F9);
    QCOMPARE(m_combo->ListIndex(), 2);
    becomes = 'B';
    press(Qt::Key_F9);
    QCOMPARE(m_combo->ListIndex(), 1);
    becomes = 40;
    shiftBecomes = 4;
    press(Qt::Key_Down);
    QVERIFY(isDropped());
}

void tst_KorComboKeys::f5ReloadsAndRaisesNoKeyDown_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::newRow("alone") << 0;
    QTest::newRow("Shift") << int(Qt::ShiftModifier);
    QTest::newRow("Ctrl") << int(Qt::ControlModifier);
}

void tst_KorComboKeys::f5ReloadsAndRaisesNoKeyDown()
{
    QFETCH(int, modifiers);
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    m_combo->setListIndex(1);
    m_combo->setSQL(QStringLiteral("LIST 3;c|2;b"));
    EventLog log(m_combo);
    press(Qt::Key_F5, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    QCOMPARE(m_box->itemText(0), QStringLiteral("c"));
    QCOMPARE(m_combo->ListIndex(), 1);
}

void tst_KorComboKeys::otherKeysAreKeyDownOnly()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    EventLog log(m_combo);
    press(Qt::Key_F2);
    press(Qt::Key_Delete);
    press(Qt::Key_Backspace);
    press(Qt::Key_Left);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(113,0) KeyDown(46,0) KeyDown(8,0) KeyDown(37,0) KeyDown(67,2)"));
    QCOMPARE(m_combo->ListIndex(), 0);
}

void tst_KorComboKeys::homeAndEndMoveToTheEnds()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c|4;d")));
    EventLog log(m_combo);
    press(Qt::Key_End);
    QCOMPARE(m_combo->ListIndex(), 3);
    press(Qt::Key_Home);
    QCOMPARE(m_combo->ListIndex(), 0);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(35,0) Click KeyDown(36,0) Click"));
}

void tst_KorComboKeys::escapeAndEnterAreLeftToTheForm()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    EventLog log(m_combo);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"));
        QApplication::sendEvent(m_box, &event);
        QVERIFY(!event.isAccepted());
    }
    QCOMPARE(log.take(), QStringLiteral("KeyDown(13,0) KeyDown(27,0)"));
}

// --- the open list

void tst_KorComboKeys::altDownAndF4OpenTheList_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("events");
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier) << QStringLiteral("KeyDown(40,4)");
    QTest::newRow("F4") << int(Qt::Key_F4) << 0 << QStringLiteral("KeyDown(115,0)");
}

void tst_KorComboKeys::altDownAndF4OpenTheList()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    m_combo->setBlockUpDown(true);
    EventLog log(m_combo);
    press(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(isDropped());
    QTEST(log.take(), "events");
    pressInList(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(!isDropped());
    QCOMPARE(log.take(), QString());
}

void tst_KorComboKeys::keysInTheOpenListRaiseNothingUntilAccepted()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    m_combo->setBlockUpDown(true); // concerns the closed list only
    m_combo->setDataChanged(false);
    EventLog log(m_combo);
    QVERIFY(drop());
    pressInList(Qt::Key_Down);
    pressInList(Qt::Key_Down);
    QCOMPARE(row(), 2);
    QCOMPARE(m_combo->ListIndex(), 0);
    QVERIFY(!m_combo->DataChanged());
    QCOMPARE(log.take(), QString());
    pressInList(Qt::Key_Return);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QVERIFY(!isDropped());
    QCOMPARE(m_combo->Text(), QStringLiteral("c"));
    QVERIFY(m_combo->DataChanged());
}

void tst_KorComboKeys::escapeInTheOpenListAcceptsNothing()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    EventLog log(m_combo);
    QVERIFY(drop());
    pressInList(Qt::Key_Down);
    pressInList(Qt::Key_Escape);
    QVERIFY(!isDropped());
    QCOMPARE(m_combo->ListIndex(), 0);
    QCOMPARE(log.take(), QString());
}

void tst_KorComboKeys::acceptingTheSelectedEntryRaisesNothing()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    m_combo->setListIndex(1);
    m_combo->setDataChanged(false);
    EventLog log(m_combo);
    QVERIFY(drop());
    QCOMPARE(row(), 1);
    pressInList(Qt::Key_Return);
    QVERIFY(!isDropped());
    QCOMPARE(log.take(), QString());
    QVERIFY(!m_combo->DataChanged());
}

void tst_KorComboKeys::tabInTheOpenListAcceptsAndMovesOn()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    EventLog log(m_combo);
    QVERIFY(drop());
    pressInList(Qt::Key_Down);
    pressInList(Qt::Key_Tab);
    settle();
    QVERIFY(!isDropped());
    QCOMPARE(m_combo->ListIndex(), 1);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QCOMPARE(m_stage->focusWidget(), m_stage->button());
}

void tst_KorComboKeys::f5InTheOpenListReloadsIt()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    m_combo->setListIndex(1);
    EventLog log(m_combo);
    QVERIFY(drop());
    m_combo->setSQL(QStringLiteral("LIST 3;c|2;b|4;d"));
    const int heightBefore = m_box->view()->height();
    pressInList(Qt::Key_F5);
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    QCOMPARE(m_combo->ListCount(), 3);
    settle();
    QVERIFY(isDropped());
    QVERIFY(m_box->view()->height() > heightBefore);
    QCOMPARE(row(), 1);
    pressInList(Qt::Key_Down);
    pressInList(Qt::Key_Return);
    QCOMPARE(m_combo->Text(), QStringLiteral("d"));
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorComboKeys::f5ThatEmptiesTheOpenListClosesIt()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    QVERIFY(drop());
    m_combo->setSQL(QStringLiteral("LIST"));
    pressInList(Qt::Key_F5);
    settle();
    QVERIFY(!isDropped());
    QCOMPARE(m_combo->ListCount(), 0);
}

void tst_KorComboKeys::droppedStateIsAskedAtEachKey()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    EventLog log(m_combo);
    press(Qt::Key_F2);
    QVERIFY(drop());
    pressInList(Qt::Key_F2);
    m_box->hidePopup();
    press(Qt::Key_F2);
    QVERIFY(drop());
    pressInList(Qt::Key_F2);
    pressInList(Qt::Key_Escape);
    press(Qt::Key_F2);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(113,0) KeyDown(113,0) KeyDown(113,0)"));
}

void tst_KorComboKeys::keysSentToTheFieldActInTheOpenList()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    EventLog log(m_combo);
    QVERIFY(drop());
    press(Qt::Key_Down);
    QCOMPARE(row(), 1);
    QCOMPARE(m_combo->ListIndex(), 0);
    press(Qt::Key_F5);
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    press(Qt::Key_Escape);
    QVERIFY(!isDropped());
    QCOMPARE(log.take(), QString());
}

void tst_KorComboKeys::openListFollowsTheProgram()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    QVERIFY(drop());
    EventLog log(m_combo);
    m_combo->setValue(3);
    QCOMPARE(row(), 2);
    pressInList(Qt::Key_Return);
    QCOMPARE(m_combo->Text(), QStringLiteral("c"));
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorComboKeys::mouseOpensAndAccepts()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    m_stage->button()->setFocus();
    settle();
    EventLog log(m_combo);
    QTest::mouseClick(m_box, Qt::LeftButton);
    QVERIFY(isDropped());
    QCOMPARE(m_box->hasFocus() || m_box->view()->hasFocus(), true);
    QCOMPARE(log.take(), QString());
    // A release right after the press that opened the list belongs to that press.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QAbstractItemView *list = m_box->view();
    const QPoint third = list->visualRect(list->model()->index(2, 0)).center();
    QTest::mouseMove(list->viewport(), third);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, third);
    QVERIFY(!isDropped());
    QCOMPARE(m_combo->Text(), QStringLiteral("c"));
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorComboKeys::anEmptyListDoesNotOpen()
{
    QVERIFY(enter(QStringLiteral("LIST")));
    press(Qt::Key_F4);
    QTest::mouseClick(m_box, Qt::LeftButton);
    QVERIFY(!isDropped());
}

void tst_KorComboKeys::aDisabledListDoesNotOpen()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    m_combo->setEnabled(false);
    EventLog log(m_combo);
    QTest::mouseClick(m_box, Qt::LeftButton);
    QVERIFY(!isDropped());
    QVERIFY(!m_combo->Enabled());
    QCOMPARE(log.take(), QString());
}

// --- type-ahead

void tst_KorComboKeys::typingFindsWithoutCaseAndAccents_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    // clang-format off
    QTest::newRow("small letter")             << QStringLiteral("g")    << QStringLiteral("Gdańsk");
    QTest::newRow("capital letter")           << QStringLiteral("G")    << QStringLiteral("Gdańsk");
    QTest::newRow("base letter of a stroke")  << QStringLiteral("lo")   << QStringLiteral("Łódź");
    QTest::newRow("base letters of accents")  << QStringLiteral("lodz") << QStringLiteral("Łódź");
    QTest::newRow("base letter of Ż")         << QStringLiteral("za")   << QStringLiteral("Żagań");
    QTest::newRow("prefix, not part")         << QStringLiteral("da")   << QStringLiteral("Alfa");
    QTest::newRow("nothing found")            << QStringLiteral("x")    << QStringLiteral("Alfa");
    // clang-format on
}

void tst_KorComboKeys::typingFindsWithoutCaseAndAccents()
{
    QFETCH(QString, typed);
    QVERIFY(enter(QStringLiteral("LIST 1;Alfa|2;Gdańsk|3;Łódź|4;Lublin|5;Żagań")));
    QTest::keyClicks(m_box, typed);
    QTEST(m_combo->Text(), "found");
}

void tst_KorComboKeys::typingABlankGoesOnSearching()
{
    QVERIFY(enter(QStringLiteral("LIST 1;Alfa|2;Jan Adamski|3;Jan Kowalski")));
    QTest::keyClicks(m_box, QStringLiteral("jan k"));
    QVERIFY(!isDropped());
    QCOMPARE(m_combo->Text(), QStringLiteral("Jan Kowalski"));
}

void tst_KorComboKeys::typingInTheOpenListFindsToo()
{
    QVERIFY(enter(QStringLiteral("LIST 1;Alfa|2;Gdańsk|3;Łódź")));
    EventLog log(m_combo);
    QVERIFY(drop());
    QTest::keyClicks(m_box->view(), QStringLiteral("lod"));
    QCOMPARE(row(), 2);
    QCOMPARE(m_combo->ListIndex(), 0);
    pressInList(Qt::Key_Return);
    QCOMPARE(m_combo->Text(), QStringLiteral("Łódź"));
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorComboKeys::menuLettersAreNotSearchedFor()
{
    QVERIFY(enter(QStringLiteral("LIST 1;Alfa|2;Plik")));
    press(Qt::Key_P, Qt::AltModifier);
    press(Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(m_combo->Text(), QStringLiteral("Alfa"));
    press(Qt::Key_P);
    QCOMPARE(m_combo->Text(), QStringLiteral("Plik"));
}

// --- wheel and handlers

void tst_KorComboKeys::wheelMovesOnlyWithTheFocus()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    const auto turn = [this] {
        const QPointF middle = m_box->rect().center();
        QWheelEvent wheel(middle, m_box->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_box, &wheel);
        return wheel.isAccepted();
    };
    m_stage->button()->setFocus();
    settle();
    EventLog log(m_combo);
    QVERIFY(!turn());
    QCOMPARE(m_combo->ListIndex(), 0);
    QCOMPARE(log.take(), QString());
    m_combo->setFocus();
    settle();
    QVERIFY(turn());
    QCOMPARE(m_combo->ListIndex(), 1);
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorComboKeys::handlersMayRefreshInsideAKey()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b|3;c")));
    connect(m_combo, &KorCombo::KeyDown, this, [this] {
        m_combo->setSQL(QStringLiteral("LIST 1;a"));
        m_combo->Refresh();
    });
    press(Qt::Key_Down);
    QCOMPARE(m_combo->ListIndex(), 0);
    QCOMPARE(m_combo->ListCount(), 1);
}

void tst_KorComboKeys::errorsOfHandlersAreRaisedAsTheErrorEvent()
{
    QVERIFY(enter(QStringLiteral("LIST 1;a|2;b")));
    int number = 0;
    connect(m_combo, &KorCombo::Error, this, [&](int &errorNumber, QString &, bool &handled) {
        number = errorNumber;
        handled = true;
    });
    connect(m_combo, &KorCombo::Click, this, [this] { m_combo->setListIndex(99); });
    press(Qt::Key_Down);
    QCOMPARE(number, 380);
    QCOMPARE(m_combo->ListIndex(), 1);
    number = 0;
    QVERIFY(drop());
    pressInList(Qt::Key_Up);
    pressInList(Qt::Key_Return);
    QCOMPARE(number, 380);
    QCOMPARE(m_combo->ListIndex(), 0);
}

QTEST_MAIN(tst_KorComboKeys)
#include "tst_korcombo_keys.moc"
