// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/datesuite.h"
#include "support/eventlog.h"
#include "support/listeningform.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>
#include <utility>

using namespace kor;
using namespace kor::test;

//! What the host of a date field hears and may change.
class tst_KorDateEvents : public DateSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aDigitRaisesDownPressChangeUp();
    void aDroppedCharacterRaisesNoKeyPress();
    void backspaceRaisesKeyPress();
    void enterAndEscapeRaiseNoKeyPress();
    void keysThatStepRaiseNoKeyDown_data();
    void keysThatStepRaiseNoKeyDown();
    void blockedArrowsAreHandedToTheHost_data();
    void blockedArrowsAreHandedToTheHost();
    void aBlockedArrowIsDoneWithWhateverTheHostMakesOfIt();
    void changeRewrittenOnLeavingComesFirst();
    void hostMayChangeOrSuppressTheCharacter();
    void hostMaySwallowOrTurnTheKey();
    void swallowedKeysAreNotOfferedToTheForm();
    void clicksComeInTheirOrder();
    void aDisabledFieldRaisesNothing();
    void deletionWhileLeavingIsSafe();
    void deletionWhileTheMessageIsUpIsSafe();
    void errorsOfHandlersAreRaisedAsTheErrorEvent();

    void everyMemberIsReachedByItsName();
    void isTheSecondControlOfTheLibrary();
    void oneBorderIsDrawnAroundBoxAndButton();
    void borderChangesTheLayout();
};

void tst_KorDateEvents::init() { setUp(); }
void tst_KorDateEvents::cleanup() { tearDown(); }

void tst_KorDateEvents::aDigitRaisesDownPressChangeUp()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_7);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(55,0) KeyPress(55) Change KeyUp(55,0)"));
    QVERIFY(m_date->DataChanged());
}

void tst_KorDateEvents::aDroppedCharacterRaisesNoKeyPress()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_A);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(65,0) KeyUp(65,0)"));
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDateEvents::backspaceRaisesKeyPress()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(8,0) KeyPress(8) KeyUp(8,0)"));
    QVERIFY(!m_date->DataChanged()); // nothing to erase
    QTest::keyClick(m_box, Qt::Key_1);
    (void)log.take();
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(8,0) KeyPress(8) Change KeyUp(8,0)"));
}

void tst_KorDateEvents::enterAndEscapeRaiseNoKeyPress()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_Return);
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(13,0) KeyUp(13,0) KeyDown(27,0) KeyUp(27,0)"));
}

void tst_KorDateEvents::keysThatStepRaiseNoKeyDown_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("events");
    // clang-format off
    QTest::newRow("Up")         << int(Qt::Key_Up)       << 0                        << QStringLiteral("Change KeyUp(38,0)");
    QTest::newRow("Down")       << int(Qt::Key_Down)     << 0                        << QStringLiteral("Change KeyUp(40,0)");
    QTest::newRow("Ctrl+Up")    << int(Qt::Key_Up)       << int(Qt::ControlModifier) << QStringLiteral("Change KeyUp(38,2)");
    QTest::newRow("Page Up")    << int(Qt::Key_PageUp)   << 0                        << QStringLiteral("Change KeyUp(33,0)");
    QTest::newRow("Page Down")  << int(Qt::Key_PageDown) << 0                        << QStringLiteral("Change KeyUp(34,0)");
    QTest::newRow("Insert")     << int(Qt::Key_Insert)   << 0                        << QStringLiteral("Change KeyUp(45,0)");
    QTest::newRow("Left")       << int(Qt::Key_Left)     << 0                        << QStringLiteral("KeyDown(37,0) KeyUp(37,0)");
    QTest::newRow("Home")       << int(Qt::Key_Home)     << 0                        << QStringLiteral("KeyDown(36,0) KeyUp(36,0)");
    QTest::newRow("F5")         << int(Qt::Key_F5)       << 0                        << QStringLiteral("KeyDown(116,0) KeyUp(116,0)");
    // clang-format on
}

void tst_KorDateEvents::keysThatStepRaiseNoKeyDown()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter(QDate(2003, 2, 1)));
    EventLog log(m_date);
    QTest::keyClick(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(log.take(), "events");
}

void tst_KorDateEvents::blockedArrowsAreHandedToTheHost_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("text");
    const QString same = QStringLiteral("01.02.2003");
    // clang-format off
    QTest::newRow("Up")          << int(Qt::Key_Up)     << 0                        << QStringLiteral("KeyDown(38,0)") << same;
    QTest::newRow("Down")        << int(Qt::Key_Down)   << 0                        << QStringLiteral("KeyDown(40,0)") << same;
    QTest::newRow("Ctrl+Up")     << int(Qt::Key_Up)     << int(Qt::ControlModifier) << QStringLiteral("KeyDown(38,2)") << same;
    QTest::newRow("Ctrl+Down")   << int(Qt::Key_Down)   << int(Qt::ControlModifier) << QStringLiteral("KeyDown(40,2)") << same;
    QTest::newRow("Shift+Up")    << int(Qt::Key_Up)     << int(Qt::ShiftModifier)   << QStringLiteral("Change") << QStringLiteral("02.02.2003");
    QTest::newRow("Alt+Down")    << int(Qt::Key_Down)   << int(Qt::AltModifier)     << QStringLiteral("Change") << QStringLiteral("31.01.2003");
    QTest::newRow("Page Up")     << int(Qt::Key_PageUp) << 0                        << QStringLiteral("Change") << QStringLiteral("08.02.2003");
    // clang-format on
}

void tst_KorDateEvents::blockedArrowsAreHandedToTheHost()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter(QDate(2003, 2, 1)));
    m_date->setBlockUpDown(true);
    setField(m_box, QStringLiteral("01.02|.2003"));
    EventLog log(m_date);
    QTest::keyPress(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(log.take(), "events");
    QTEST(m_box->text(), "text");
}

void tst_KorDateEvents::aBlockedArrowIsDoneWithWhateverTheHostMakesOfIt()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    m_date->setBlockUpDown(true);
    connect(m_date, &KorDate::KeyDown, m_date, [](int &code, int &) { code = '5'; });
    QTest::keyPress(m_box, Qt::Key_Up);
    QCOMPARE(field(m_box), QStringLiteral("[01.02.2003]"));
}

void tst_KorDateEvents::changeRewrittenOnLeavingComesFirst()
{
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("010203"));
    EventLog log(m_date);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    QTest::keyClick(m_box, Qt::Key_Tab);
    settle();
    QCOMPARE(log.take(), QStringLiteral("Change Change")); // of the rewritten text, then of leaving
}

void tst_KorDateEvents::hostMayChangeOrSuppressTheCharacter()
{
    QVERIFY(enter());
    connect(m_date, &KorDate::KeyPress, m_date, [](int &ascii) {
        if (ascii == '1')
            ascii = '2';
        else if (ascii == '3')
            ascii = 0;
    });
    QTest::keyClicks(m_box, QStringLiteral("134"));
    QCOMPARE(field(m_box), QStringLiteral("24|"));
}

void tst_KorDateEvents::hostMaySwallowOrTurnTheKey()
{
    QVERIFY(enter());
    connect(m_date, &KorDate::KeyDown, m_date, [](int &code, int &) {
        if (code == '1')
            code = 0;
        else if (code == 114) // F3
            code = '7';
    });
    QTest::keyClicks(m_box, QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_F3);
    QCOMPARE(field(m_box), QStringLiteral("27|"));
}

void tst_KorDateEvents::swallowedKeysAreNotOfferedToTheForm()
{
    ListeningForm form;
    m_date->setParent(&form);
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    m_date->setFocus();
    settle();
    for (const auto key : {Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Insert, Qt::Key_A, Qt::Key_Return, Qt::Key_5})
        QTest::keyClick(m_box, key);
    m_date->setBlockUpDown(true);
    QTest::keyClick(m_box, Qt::Key_Down);
    QVERIFY(form.keys.isEmpty());
    QTest::keyClick(m_box, Qt::Key_F9);
    QCOMPARE(form.keys, QList<int>{Qt::Key_F9});
    delete m_date;
}

void tst_KorDateEvents::clicksComeInTheirOrder()
{
    QVERIFY(enter());
    EventLog log(m_date);
    log.ignore({QStringLiteral("MouseMove")});
    QTest::mouseClick(m_box, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,1) MouseUp(1,1) Click"));
    QTest::mouseClick(m_box, Qt::RightButton);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(2,0) MouseUp(2,0)"));
    QTest::mouseClick(m_box, Qt::LeftButton);
    QTest::mouseDClick(m_box, Qt::LeftButton);
    QTest::mouseRelease(m_box, Qt::LeftButton);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click DblClick MouseUp(1,0)"));
    log.ignore({});
    const QPointF at(5, 5);
    QMouseEvent move(QEvent::MouseMove, at, m_box->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::ControlModifier);
    QApplication::sendEvent(m_box, &move);
    QCOMPARE(log.take(), QStringLiteral("MouseMove(0,2)"));
}

void tst_KorDateEvents::aDisabledFieldRaisesNothing()
{
    m_date->setEnabled(false);
    QVERIFY(m_stage->open());
    EventLog log(m_date);
    QTest::mouseClick(m_box, Qt::LeftButton);
    QTest::mouseClick(m_date->findChild<QWidget *>(QStringLiteral("cmdDate")), Qt::LeftButton);
    QTest::keyClick(m_box, Qt::Key_F4);
    settle();
    QCOMPARE(log.take(), QString());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KorDateEvents::deletionWhileLeavingIsSafe()
{
    // The second Change of an empty field is raised when the control as a whole is left.
    QVERIFY(enter());
    const QPointer<KorDate> date = m_date;
    int count = 0;
    connect(m_date, &KorDate::Change, this, [&count, date] {
        if (++count == 2)
            delete date.data();
    });
    QTest::keyClick(m_box, Qt::Key_Tab);
    settle();
    QVERIFY(!date);
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
}

void tst_KorDateEvents::deletionWhileTheMessageIsUpIsSafe()
{
    Messages messages;
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99"));
    messages.beneath([this] { delete std::exchange(m_date, nullptr); });
    QTest::keyClick(m_box, Qt::Key_Tab);
    QTRY_VERIFY(!m_date);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(messages.take().size(), 1);
}

void tst_KorDateEvents::errorsOfHandlersAreRaisedAsTheErrorEvent()
{
    QVERIFY(enter());
    connect(m_date, &KorDate::Change, this, [] { throw RunTimeError(ErrorNumber::Overflow); });
    QList<int> numbers;
    connect(m_date, &UserControl::Error, this, [&](int &number, QString &, bool &handled) {
        numbers << number;
        handled = true;
    });
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(numbers, QList<int>{6});
    QTest::keyClick(m_box, Qt::Key_F4);
    QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Right);
    QCOMPARE(numbers, (QList<int>{6, 6}));
}

void tst_KorDateEvents::everyMemberIsReachedByItsName()
{
    const std::unique_ptr<QObject> date(ControlRegistry::create(QStringLiteral("KorDate"), nullptr));
    QVERIFY(date);
    for (const char *name :
         {"BackColor", "ForeColor", "Enabled", "Font", "BorderStyle", "Text", "Value", "WhatsThisHelpID", "Locked",
          "DataChanged", "CurrentDate", "BlockUpDown", "Appearance", "EnabledClick", "FormatMask", "ToolTipText"}) {
        QVERIFY2(date->metaObject()->indexOfProperty(name) >= 0, name);
        QVERIFY2(date->property(name).isValid(), name);
    }
    QVERIFY(QMetaObject::invokeMethod(date.get(), "Refresh"));
    QCOMPARE(date->metaObject()->userProperty().name(), "Value");
    QVERIFY(date->setProperty("Value", QVariant(QDate(1999, 3, 15))));
    QCOMPARE(date->property("Text"), QVariant(QStringLiteral("15.03.1999")));
    QVERIFY(date->setProperty("Value", null()));
    QVERIFY(isNull(date->property("Value")));

    QStringList events;
    const QMetaObject &type = KorDate::staticMetaObject;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == QMetaMethod::Signal)
            events << QString::fromLatin1(type.method(i).methodSignature());
    }
    QCOMPARE(events.join(QLatin1Char(' ')),
             QStringLiteral("Change() Click() DblClick() KeyDown(int&,int&) KeyPress(int&) KeyUp(int&,int&) "
                            "MouseDown(int&,int&,float&,float&) MouseMove(int&,int&,float&,float&) "
                            "MouseUp(int&,int&,float&,float&)"));
}

void tst_KorDateEvents::isTheSecondControlOfTheLibrary()
{
    const QStringList names = ControlRegistry::names();
    QCOMPARE(names.mid(0, 2), (QStringList{QStringLiteral("KorNumber"), QStringLiteral("KorDate")}));
}

void tst_KorDateEvents::oneBorderIsDrawnAroundBoxAndButton()
{
    QVERIFY(m_stage->open());
    const auto *frame = m_date->findChild<QWidget *>(QStringLiteral("picBack"));
    const auto *button = m_date->findChild<QWidget *>(QStringLiteral("cmdDate"));
    QVERIFY(frame && button);
    QCOMPARE(frame->geometry(), m_date->rect());
    QVERIFY(!m_box->hasFrame());
    QVERIFY(!m_box->geometry().intersects(button->geometry()));
    QVERIFY(frame->rect().contains(m_box->geometry() | button->geometry()));
    QVERIFY(frame->rect() != (m_box->geometry() | button->geometry())); // the border is around them
    QCOMPARE(m_date->focusProxy(), m_box.data());
}

void tst_KorDateEvents::borderChangesTheLayout()
{
    QVERIFY(m_stage->open());
    const auto *frame = m_date->findChild<QWidget *>(QStringLiteral("picBack"));
    const auto *button = m_date->findChild<QWidget *>(QStringLiteral("cmdDate"));
    m_date->setBorderStyle(BorderStyleType::None);
    QCOMPARE(m_box->geometry() | button->geometry(), frame->rect());
    m_date->setBorderStyle(BorderStyleType::FixedSingle);
    QVERIFY((m_box->geometry() | button->geometry()) != frame->rect());
}

QTEST_MAIN(tst_KorDateEvents)
#include "tst_kordate_events.moc"
