// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "number/numbersuite.h"
#include "support/eventlog.h"

#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/Variant>

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

using namespace kor;
using namespace kor::test;

namespace {
const QString nbsp = QStringLiteral("\u00A0");
}

//! The numeric field in the hands of a clerk: typing, entering, leaving.
class tst_KorNumber_Typing : public NumberSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    // typing
    void separatorKeysTypeTheLocalesOwn_data();
    void separatorKeysTypeTheLocalesOwn();
    void aFieldKeepsTheLocaleItStartedWith();
    void minusGoesToTheFront();
    void maxLengthLimitsTypingNotTheProgram();
    void deadKeysAndInputMethodsAreFilteredToo();
    void copyCutAndPasteActOnTheWholeText();
    void insertAndDeleteKeysActAsTheirCtrlTwins();
    void lockedFieldKeepsItsText();
    void aLockedNumberIsLeftAsTheProgramFilledIt_data();
    void aLockedNumberIsLeftAsTheProgramFilledIt();
    void whatWasTypedBeforeTheLockIsTakenOver();

    // focus
    void enteringShowsTheBareNumberSelected();
    void enteringLeavesBlockChangeFalse();
    void leavingFormatsTheNumber();
    void whatStaysWithoutAMask_data();
    void whatStaysWithoutAMask();
    void minusAloneIsErased();
    void rangeMessageSendsTheUserBack();
    void rangeMessageIsShownOnceForTwoFields();
    void leavingTheControlErasesWhatValReadsOutsideTheRange();
    void anotherWindowIsNoLeaving();
};

void tst_KorNumber_Typing::separatorKeysTypeTheLocalesOwn_data()
{
    QTest::addColumn<QString>("decimal");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("keypad");
    QTest::addColumn<QString>("text");
    QTest::newRow("comma in Polish") << QStringLiteral(",") << int(Qt::Key_Comma) << false << QStringLiteral(",");
    QTest::newRow("full stop in Polish") << QStringLiteral(",") << int(Qt::Key_Period) << false << QStringLiteral(".");
    QTest::newRow("keypad in Polish") << QStringLiteral(",") << int(Qt::Key_Period) << true << QStringLiteral(".");
    QTest::newRow("comma in English") << QStringLiteral(".") << int(Qt::Key_Comma) << false << QStringLiteral(",");
    QTest::newRow("keypad in English") << QStringLiteral(".") << int(Qt::Key_Comma) << true << QStringLiteral(",");
}

void tst_KorNumber_Typing::separatorKeysTypeTheLocalesOwn()
{
    QFETCH(QString, decimal);
    QFETCH(int, key);
    QFETCH(bool, keypad);
    QFETCH(QString, text);
    setUp(decimal == u"," ? Locale::polish() : Locale::english());
    QVERIFY(enter(QStringLiteral("1")));
    QTest::sendKeyEvent(QTest::Click, m_box, static_cast<Qt::Key>(key), text,
                        keypad ? Qt::KeypadModifier : Qt::NoModifier);
    QTest::keyClicks(m_box, QStringLiteral("5"));
    QCOMPARE(m_box->text(), QStringLiteral("1") + decimal + QStringLiteral("5"));
    QCOMPARE(m_number->Value(), QVariant(1.5));
    QTest::keyClicks(m_box, QStringLiteral(","));
    QCOMPARE(field(m_box), QStringLiteral("1") + decimal + QStringLiteral("|5"));
}

void tst_KorNumber_Typing::aFieldKeepsTheLocaleItStartedWith()
{
    Locale::setSystemDefault(Locale::english());
    auto *english = m_stage->place(new KorNumber);
    QVERIFY(m_stage->open());
    const QList<std::pair<KorNumber *, QString>> fields{{m_number, QStringLiteral("1234,5")},
                                                        {english, QStringLiteral("1234.5")}};
    Messages messages;
    for (const auto &[number, typed] : fields) {
        number->setMaxValue(9999);
        number->setCheckRange(true);
        number->setFocus();
        settle();
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("1234,5"));
        QCOMPARE(number->Text(), typed);
        QCOMPARE(number->Value(), QVariant(1234.5));
    }
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(m_number->Text(), QStringLiteral("1") + nbsp + QStringLiteral("234,50"));
    QCOMPARE(english->Text(), QStringLiteral("1,234.50"));
    m_number->setMaxValue(QStringLiteral("0,5"));
    QCOMPARE(m_number->MaxValue(), QVariant(0.5F));
    m_number->setFocus();
    settle();
    m_stage->button()->setFocus();
    settle();
    QVERIFY(messages.take().join(QString()).endsWith(QStringLiteral("0,5].")));
}

void tst_KorNumber_Typing::minusGoesToTheFront()
{
    QVERIFY(enter(QStringLiteral("12-")));
    QCOMPARE(field(m_box), QStringLiteral("-|12"));
    QTest::keyClick(m_box, Qt::Key_End);
    QTest::keyClicks(m_box, QStringLiteral("-"));
    QCOMPARE(field(m_box), QStringLiteral("-|12"));
    QCOMPARE(m_number->Value(), QVariant(-12.0));
}

void tst_KorNumber_Typing::maxLengthLimitsTypingNotTheProgram()
{
    m_number->setMaxLength(3);
    m_number->setValue(123456);
    QCOMPARE(m_number->Text(), QStringLiteral("123\u00A0456,00"));
    m_number->setValue(null());
    QVERIFY(enter());
    Beeps beeps;
    QTest::keyClicks(m_box, QStringLiteral("1234"));
    QCOMPARE(m_box->text(), QStringLiteral("123"));
    QCOMPARE(beeps.take(), 0);
    leave();
    QCOMPARE(m_number->Text(), QStringLiteral("123,00"));
}

void tst_KorNumber_Typing::deadKeysAndInputMethodsAreFilteredToo()
{
    QVERIFY(enter());
    Beeps beeps;
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("1ą2"));
    QApplication::sendEvent(m_box, &composed);
    QCOMPARE(field(m_box), QStringLiteral("12|"));
    QCOMPARE(beeps.take(), 1);
}

void tst_KorNumber_Typing::copyCutAndPasteActOnTheWholeText()
{
    QVERIFY(enter());
    EventLog log(m_number);
    log.ignore({QStringLiteral("KeyUp")});

    QTest::keyClicks(m_box, QStringLiteral("1234"));
    setField(m_box, QStringLiteral("1[23]4"));
    (void)log.take();
    QTest::keyClick(m_box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("23"));
    QCOMPARE(field(m_box), QStringLiteral("1[23]4"));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(67,2)"));

    QTest::keyClick(m_box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("23"));
    QCOMPARE(m_box->text(), QString());
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(88,2)"));

    QTest::keyClicks(m_box, QStringLiteral("9"));
    QGuiApplication::clipboard()->setText(QStringLiteral("7,5 szt."));
    (void)log.take();
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(field(m_box), QStringLiteral("|7,5 szt."));
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(86,2)"));
    leave();
    QCOMPARE(m_number->Text(), QString()); // what is no number does not stay
    QVERIFY(isNull(m_number->Value()));
}

void tst_KorNumber_Typing::insertAndDeleteKeysActAsTheirCtrlTwins()
{
    QVERIFY(enter(QStringLiteral("1234")));
    setField(m_box, QStringLiteral("[12]34"));
    QTest::keyClick(m_box, Qt::Key_Insert, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(m_box->text(), QString());
    QTest::keyClick(m_box, Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(m_box->text(), QStringLiteral("12"));
}

void tst_KorNumber_Typing::lockedFieldKeepsItsText()
{
    m_number->setValue(5);
    m_number->setLocked(true);
    QVERIFY(enter());
    QGuiApplication::clipboard()->setText(QStringLiteral("9"));
    QTest::keyClicks(m_box, QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QTest::keyClick(m_box, Qt::Key_Delete);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_number->Value(), QVariant(5.0));
    m_box->selectAll();
    QTest::keyClick(m_box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(m_number->Value(), QVariant(5.0));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("5,00"));
    m_number->setValue(6); // the program may
    QCOMPARE(m_number->Value(), QVariant(6.0));
}

void tst_KorNumber_Typing::aLockedNumberIsLeftAsTheProgramFilledIt_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("as the mask writes it") << "#,##0.00"
                                           << "1\u00a0234,50" << 1234.5;
    QTest::newRow("with other decimals than the mask's") << "#,##0.00"
                                                         << "1234,567" << 1234.567;
    QTest::newRow("no number, from a saved form") << "#,##0.00"
                                                  << "5.3.99" << 5.3;
    QTest::newRow("percent, which reads as a hundred times as much") << "0%"
                                                                     << "50%" << 50.0;
}

void tst_KorNumber_Typing::aLockedNumberIsLeftAsTheProgramFilledIt()
{
    QFETCH(QString, mask);
    QFETCH(QString, text);
    QFETCH(double, value);
    PropertyBag bag;
    bag.append(QStringLiteral("Locked"), true);
    bag.append(QStringLiteral("Text"), text);
    bag.append(QStringLiteral("Value"), value);
    bag.append(QStringLiteral("MaskPicture"), mask);
    m_number->readProperties(bag);
    const QVariant before = m_number->Value();
    QVERIFY(m_stage->open());
    for (int visit = 0; visit < 2; ++visit) {
        m_number->setFocus();
        settle();
        m_stage->button()->setFocus();
        settle();
        QCOMPARE(m_number->Text(), text);
        QCOMPARE(m_number->Value(), before);
    }
    m_number->setFocus();
    settle();
    m_number->setValue(8); // the program may, while the user is in it
    const QString shown = m_number->Text();
    const QVariant eight = m_number->Value();
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(m_number->Text(), shown);
    QCOMPARE(m_number->Value(), eight);
}

void tst_KorNumber_Typing::whatWasTypedBeforeTheLockIsTakenOver()
{
    m_number->setValue(5);
    QVERIFY(enter(QStringLiteral("12")));
    m_number->setLocked(true);
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(m_number->Text(), QStringLiteral("12,00"));
    QCOMPARE(m_number->Value(), QVariant(12.0));
}

void tst_KorNumber_Typing::enteringShowsTheBareNumberSelected()
{
    auto *second = m_stage->place(new KorNumber);
    second->setValue(1234.5);
    QVERIFY(enter());
    EventLog log(second);
    leave();
    auto *box = second->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTRY_COMPARE(QApplication::focusWidget(), box);
    QCOMPARE(field(box), QStringLiteral("[1234,50]"));
    QCOMPARE(second->Value(), QVariant(1234.5));
    log.ignore({QStringLiteral("KeyUp")});
    QCOMPARE(log.take(), QString()); // showing is no change
}

void tst_KorNumber_Typing::enteringLeavesBlockChangeFalse()
{
    m_number->setBlockChange(true);
    QVERIFY(enter());
    QVERIFY(!m_number->BlockChange());
}

void tst_KorNumber_Typing::leavingFormatsTheNumber()
{
    QVERIFY(enter());
    EventLog log(m_number);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    QTest::keyClicks(m_box, QStringLiteral("1234,567"));
    QCOMPARE(m_number->Value(), QVariant(1234.567));
    (void)log.take();
    leave();
    QCOMPARE(m_number->Text(), QStringLiteral("1\u00A0234,57"));
    QCOMPARE(m_number->Value(), QVariant(1234.57));
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorNumber_Typing::whatStaysWithoutAMask_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::newRow("written as its number is") << ""
                                              << "12,5"
                                              << "12,5";
    QTest::newRow("a whole number") << ""
                                    << "-7"
                                    << "-7";
    QTest::newRow("a needless nought behind") << ""
                                              << "12,50"
                                              << "";
    QTest::newRow("needless noughts in front") << ""
                                               << "007"
                                               << "";
    QTest::newRow("any number, as it is") << "General Number"
                                          << "12,50"
                                          << "12,5";
    QTest::newRow("any number, noughts in front") << "General Number"
                                                  << "007"
                                                  << "7";
}

void tst_KorNumber_Typing::whatStaysWithoutAMask()
{
    QFETCH(const QString, mask);
    QFETCH(const QString, typed);
    m_number->setMaskPicture(mask);
    QVERIFY(enter(typed));
    leave();
    QTEST(m_number->Text(), "left");
}

void tst_KorNumber_Typing::minusAloneIsErased()
{
    QVERIFY(enter(QStringLiteral("-")));
    leave();
    QCOMPARE(m_number->Text(), QString());
    QVERIFY(isNull(m_number->Value()));
}

void tst_KorNumber_Typing::rangeMessageSendsTheUserBack()
{
    Messages messages;
    m_number->setMinValue(0);
    m_number->setMaxValue(10);
    m_number->setCheckRange(true);
    QVERIFY(enter(QStringLiteral("11")));
    leave();
    QTRY_COMPARE(QApplication::focusWidget(), m_box);
    QCOMPARE(messages.take(), QStringList{QStringLiteral("Bład zakresu liczby: Przekroczony zakres liczby. Wprowadź "
                                                         "liczbę z zakresu: [0...10].")});
    QCOMPARE(m_number->Value(), QVariant(11.0)); // kept for correction
    QCOMPARE(field(m_box), QStringLiteral("[11,00]"));
    QTest::keyClicks(m_box, QStringLiteral("10"));
    leave();
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
    QCOMPARE(m_number->Text(), QStringLiteral("10,00"));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorNumber_Typing::rangeMessageIsShownOnceForTwoFields()
{
    Messages messages;
    auto *second = m_stage->place(new KorNumber);
    for (KorNumber *number : {m_number.data(), second}) {
        number->setValue(11);
        number->setMaxValue(10);
        number->setCheckRange(true);
    }
    QVERIFY(enter());
    QTest::keyClick(m_box, Qt::Key_Tab);
    QTest::qWait(200);
    QCOMPARE(messages.take().size(), 1);
    QVERIFY(m_number->isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(second->Text(), QStringLiteral("11,00")); // never entered
}

void tst_KorNumber_Typing::leavingTheControlErasesWhatValReadsOutsideTheRange()
{
    Messages messages;
    m_number->setMinValue(QStringLiteral("0,5"));
    m_number->setMaxValue(10);
    m_number->setCheckRange(true);
    QVERIFY(enter(QStringLiteral("0,7")));
    leave();
    // 0,70 is inside the range, but Val stops at the comma and reads 0.
    QCOMPARE(m_number->Text(), QString());
    QVERIFY(messages.take().isEmpty());
}

void tst_KorNumber_Typing::anotherWindowIsNoLeaving()
{
    QVERIFY(enter(QStringLiteral("5")));
    {
        QWidget other;
        QLineEdit edit(&other);
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        edit.setFocus();
        settle();
        QCOMPARE(m_box->text(), QStringLiteral("5"));
    }
    m_stage->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_stage.get()));
    settle();
    QCOMPARE(field(m_box), QStringLiteral("5|")); // neither formatted nor selected anew
}

QTEST_MAIN(tst_KorNumber_Typing)
#include "tst_kornumber_typing.moc"
