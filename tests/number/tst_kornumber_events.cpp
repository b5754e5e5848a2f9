// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "number/numbersuite.h"
#include "support/eventlog.h"
#include "support/listeningform.h"

#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

using namespace kor;
using namespace kor::test;

//! What the host of a numeric field hears and may change.
class tst_KorNumberEvents : public NumberSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aDigitRaisesDownPressChangeUp();
    void arrowsRaiseKeyDownTwice_data();
    void arrowsRaiseKeyDownTwice();
    void ctrlTabRaisesNothing();
    void separatorOverEverythingRaisesKeyPressTwice();
    void keyUpIsRaisedForDigitsAndErasingOnly();
    void hostZeroInKeyPressSuppressesTheCharacter();
    void hostChangesTheCharacter();
    void hostSwallowsTheKey();
    void hostTurnsOneKeyIntoAnother();
    void swallowedKeysAreNotOfferedToTheForm();
    void clicksComeInTheirOrder();
    void doubleClickComesInItsOrder();
    void mousePositionsAreTwips();
    void changeOfAClampedValueMayRaiseAnError();
    void errorsOfHandlersAreRaisedAsTheErrorEvent();
};

void tst_KorNumberEvents::aDigitRaisesDownPressChangeUp()
{
    QVERIFY(enter());
    EventLog log(m_number);
    QTest::keyClick(m_box, Qt::Key_7);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(55,0) KeyPress(55) Change KeyUp(55,0)"));
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(8,0) KeyPress(8) Change KeyUp(8,0)"));
}

void tst_KorNumberEvents::arrowsRaiseKeyDownTwice_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("events");
    // clang-format off
    QTest::newRow("Up")         << int(Qt::Key_Up)   << 0                        << QStringLiteral("KeyDown(38,0) KeyDown(0,0)");
    QTest::newRow("Down")       << int(Qt::Key_Down) << 0                        << QStringLiteral("KeyDown(40,0) KeyDown(0,0)");
    QTest::newRow("Ctrl+Up")    << int(Qt::Key_Up)   << int(Qt::ControlModifier) << QStringLiteral("KeyDown(38,2) KeyDown(0,2)");
    QTest::newRow("Ctrl+Down")  << int(Qt::Key_Down) << int(Qt::ControlModifier) << QStringLiteral("KeyDown(40,2) KeyDown(0,2)");
    QTest::newRow("Shift+Up")   << int(Qt::Key_Up)   << int(Qt::ShiftModifier)   << QStringLiteral("KeyDown(38,1)");
    QTest::newRow("Alt+Down")   << int(Qt::Key_Down) << int(Qt::AltModifier)     << QStringLiteral("KeyDown(40,4)");
    QTest::newRow("Left once")  << int(Qt::Key_Left) << 0                        << QStringLiteral("KeyDown(37,0)");
    QTest::newRow("F5 once")    << int(Qt::Key_F5)   << 0                        << QStringLiteral("KeyDown(116,0)");
    // clang-format on
}

void tst_KorNumberEvents::arrowsRaiseKeyDownTwice()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter(QStringLiteral("12")));
    EventLog log(m_number);
    QTest::keyPress(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(log.take(), "events");
}

void tst_KorNumberEvents::ctrlTabRaisesNothing()
{
    QVERIFY(enter(QStringLiteral("12")));
    EventLog log(m_number);
    QTest::keyPress(m_box, Qt::Key_Tab, Qt::ControlModifier);
    settle();
    QCOMPARE(log.take(), QString());
    QCOMPARE(field(m_box), QStringLiteral("12|"));
}

void tst_KorNumberEvents::separatorOverEverythingRaisesKeyPressTwice()
{
    QVERIFY(enter(QStringLiteral("12")));
    m_box->selectAll();
    EventLog log(m_number);
    QTest::keyPress(m_box, Qt::Key_Period);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(190,0) KeyPress(44) KeyPress(44) Change"));
    QCOMPARE(field(m_box), QStringLiteral(",|"));
}

void tst_KorNumberEvents::keyUpIsRaisedForDigitsAndErasingOnly()
{
    QVERIFY(enter(QStringLiteral("12")));
    EventLog log(m_number);
    for (const auto key : {Qt::Key_Left, Qt::Key_Minus, Qt::Key_Comma, Qt::Key_A, Qt::Key_F5, Qt::Key_Up})
        QTest::keyRelease(m_box, key);
    QTest::keyRelease(m_box, Qt::Key_5, Qt::KeypadModifier);
    QCOMPARE(log.take(), QString());
    for (const auto key : {Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Backspace, Qt::Key_0})
        QTest::keyRelease(m_box, key);
    QCOMPARE(log.take(), QStringLiteral("KeyUp(46,0) KeyUp(45,0) KeyUp(8,0) KeyUp(48,0)"));
}

void tst_KorNumberEvents::hostZeroInKeyPressSuppressesTheCharacter()
{
    QVERIFY(enter(QStringLiteral("12")));
    connect(m_number, &KorNumber::KeyPress, m_number, [](int &ascii) { ascii = 0; });
    QTest::keyClicks(m_box, QStringLiteral("3"));
    QCOMPARE(field(m_box), QStringLiteral("12|"));
}

void tst_KorNumberEvents::hostChangesTheCharacter()
{
    QVERIFY(enter(QStringLiteral("12")));
    connect(m_number, &KorNumber::KeyPress, m_number, [](int &ascii) {
        if (ascii == '3')
            ascii = '4';
        else if (ascii == '5')
            ascii = 8;
    });
    QTest::keyClicks(m_box, QStringLiteral("3"));
    QCOMPARE(field(m_box), QStringLiteral("124|"));
    QTest::keyClicks(m_box, QStringLiteral("5"));
    QCOMPARE(field(m_box), QStringLiteral("12|"));
}

void tst_KorNumberEvents::hostSwallowsTheKey()
{
    QVERIFY(enter(QStringLiteral("12")));
    EventLog log(m_number);
    log.ignore({QStringLiteral("KeyUp")});
    connect(m_number, &KorNumber::KeyDown, m_number, [](int &code, int &) { code = 0; });
    QTest::keyClicks(m_box, QStringLiteral("3"));
    QTest::keyClick(m_box, Qt::Key_Home);
    QCOMPARE(field(m_box), QStringLiteral("12|"));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(51,0) KeyDown(36,0)"));
}

void tst_KorNumberEvents::hostTurnsOneKeyIntoAnother()
{
    QVERIFY(enter(QStringLiteral("12")));
    connect(m_number, &KorNumber::KeyDown, m_number, [](int &code, int &) {
        if (code == 113) // F2
            code = 36;   // Home
        else if (code == 114)
            code = '7';
        else if (code == 0)
            code = 37; // the second event of an arrow
    });
    QTest::keyClick(m_box, Qt::Key_F3);
    QCOMPARE(field(m_box), QStringLiteral("127|"));
    QTest::keyClick(m_box, Qt::Key_F2);
    QCOMPARE(field(m_box), QStringLiteral("|127"));
    QTest::keyClick(m_box, Qt::Key_End);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(field(m_box), QStringLiteral("12|7"));
}

void tst_KorNumberEvents::swallowedKeysAreNotOfferedToTheForm()
{
    ListeningForm form;
    m_number->setParent(&form);
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    m_number->setFocus();
    settle();
    for (const auto key : {Qt::Key_Up, Qt::Key_A, Qt::Key_Return, Qt::Key_Escape, Qt::Key_5})
        QTest::keyClick(m_box, key);
    QVERIFY(form.keys.isEmpty());
    QTest::keyClick(m_box, Qt::Key_F9);
    QCOMPARE(form.keys, QList<int>{Qt::Key_F9});
    delete m_number;
}

void tst_KorNumberEvents::clicksComeInTheirOrder()
{
    QVERIFY(enter());
    EventLog log(m_number);
    log.ignore({QStringLiteral("MouseMove")});
    QTest::mouseClick(m_box, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,1) MouseUp(1,1) Click"));
    QTest::mouseClick(m_box, Qt::RightButton);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(2,0) MouseUp(2,0)"));
    QTest::mousePress(m_box, Qt::LeftButton);
    QTest::mouseRelease(m_box, Qt::LeftButton, {}, QPoint(-5, -5));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0)"));
}

void tst_KorNumberEvents::doubleClickComesInItsOrder()
{
    QVERIFY(enter());
    EventLog log(m_number);
    log.ignore({QStringLiteral("MouseMove")});
    QTest::mouseClick(m_box, Qt::LeftButton);
    QTest::mouseDClick(m_box, Qt::LeftButton);
    QTest::mouseRelease(m_box, Qt::LeftButton);
    const QString events = log.take();
    QVERIFY2(events.endsWith(QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click DblClick MouseUp(1,0)")),
             qPrintable(events));
}

void tst_KorNumberEvents::mousePositionsAreTwips()
{
    QVERIFY(enter());
    float x = 0;
    float y = 0;
    connect(m_number, &KorNumber::MouseDown, m_number, [&](int &, int &, float &atX, float &atY) {
        x = atX;
        y = atY;
    });
    QTest::mouseClick(m_box, Qt::LeftButton, {}, QPoint(10, 4));
    QCOMPARE(x, 10 * 1440.0F / static_cast<float>(m_box->logicalDpiX()));
    QCOMPARE(y, 4 * 1440.0F / static_cast<float>(m_box->logicalDpiY()));
}

void tst_KorNumberEvents::changeOfAClampedValueMayRaiseAnError()
{
    m_number->setMaxValue(10);
    m_number->setCheckRange(true);
    const auto refusing =
        connect(m_number, &KorNumber::Change, this, [] { throw RunTimeError(ErrorNumber::Overflow); });
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_number->setValue(70));
    disconnect(refusing);
    m_number->setText(QStringLiteral("3"));
    QCOMPARE(m_number->Value(), QVariant(3.0)); // the bound was for that one change
}

void tst_KorNumberEvents::errorsOfHandlersAreRaisedAsTheErrorEvent()
{
    QVERIFY(enter());
    connect(m_number, &KorNumber::KeyDown, this, [](int &, int &) { throw RunTimeError(ErrorNumber::Overflow); });
    QList<int> numbers;
    const auto connection = connect(m_number, &UserControl::Error, this, [&](int &number, QString &, bool &handled) {
        numbers << number;
        handled = true;
    });
    QTest::keyPress(m_box, Qt::Key_F9);
    QCOMPARE(numbers, QList<int>{6});

    disconnect(connection);
    QStringList unhandled;
    setUnhandledErrorHandler(
        [&](QObject *, const RunTimeError &error) { unhandled << QString::fromUtf8(error.what()); });
    QTest::keyPress(m_box, Qt::Key_F9);
    setUnhandledErrorHandler({});
    QCOMPARE(unhandled, QStringList{QStringLiteral("6: Overflow")});
}

QTEST_MAIN(tst_KorNumberEvents)
#include "tst_kornumber_events.moc"
