// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/stage.h"

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
class tst_KorNumber_Typing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

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

void tst_KorNumber_Typing::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
}

void tst_KorNumber_Typing::cleanup() { QGuiApplication::clipboard()->clear(); }

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
    Locale::setSystemDefault(decimal == u"," ? Locale::polish() : Locale::english());
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTest::keyClicks(box, QStringLiteral("1"));
    QTest::sendKeyEvent(QTest::Click, box, static_cast<Qt::Key>(key), text,
                        keypad ? Qt::KeypadModifier : Qt::NoModifier);
    QTest::keyClicks(box, QStringLiteral("5"));
    QCOMPARE(box->text(), QStringLiteral("1") + decimal + QStringLiteral("5"));
    QCOMPARE(number->Value(), QVariant(1.5));
    QTest::keyClicks(box, QStringLiteral(","));
    QCOMPARE(field(box), QStringLiteral("1") + decimal + QStringLiteral("|5"));
}

void tst_KorNumber_Typing::aFieldKeepsTheLocaleItStartedWith()
{
    Stage stage;
    auto *polish = stage.place(new KorNumber);
    Locale::setSystemDefault(Locale::english());
    auto *english = stage.place(new KorNumber);
    QVERIFY(stage.open());
    const QList<std::pair<KorNumber *, QString>> fields{{polish, QStringLiteral("1234,5")},
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
    stage.button()->setFocus();
    settle();
    QCOMPARE(polish->Text(), QStringLiteral("1") + nbsp + QStringLiteral("234,50"));
    QCOMPARE(english->Text(), QStringLiteral("1,234.50"));
    polish->setMaxValue(QStringLiteral("0,5"));
    QCOMPARE(polish->MaxValue(), QVariant(0.5F));
    polish->setFocus();
    settle();
    stage.button()->setFocus();
    settle();
    QVERIFY(messages.take().join(QString()).endsWith(QStringLiteral("0,5].")));
}

void tst_KorNumber_Typing::minusGoesToTheFront()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTest::keyClicks(box, QStringLiteral("12-"));
    QCOMPARE(field(box), QStringLiteral("-|12"));
    QTest::keyClick(box, Qt::Key_End);
    QTest::keyClicks(box, QStringLiteral("-"));
    QCOMPARE(field(box), QStringLiteral("-|12"));
    QCOMPARE(number->Value(), QVariant(-12.0));
}

void tst_KorNumber_Typing::maxLengthLimitsTypingNotTheProgram()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setMaxLength(3);
    number->setValue(123456);
    QCOMPARE(number->Text(), QStringLiteral("123\u00A0456,00"));
    number->setValue(null());
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    Beeps beeps;
    QTest::keyClicks(box, QStringLiteral("1234"));
    QCOMPARE(box->text(), QStringLiteral("123"));
    QCOMPARE(beeps.take(), 0);
    QTest::keyClick(box, Qt::Key_Tab);
    settle();
    QCOMPARE(number->Text(), QStringLiteral("123,00"));
}

void tst_KorNumber_Typing::deadKeysAndInputMethodsAreFilteredToo()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    Beeps beeps;
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("1ą2"));
    QApplication::sendEvent(box, &composed);
    QCOMPARE(field(box), QStringLiteral("12|"));
    QCOMPARE(beeps.take(), 1);
}

void tst_KorNumber_Typing::copyCutAndPasteActOnTheWholeText()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    EventLog log(number);
    log.ignore({QStringLiteral("KeyUp")});

    QTest::keyClicks(box, QStringLiteral("1234"));
    setField(box, QStringLiteral("1[23]4"));
    (void)log.take();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("23"));
    QCOMPARE(field(box), QStringLiteral("1[23]4"));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(67,2)"));

    QTest::keyClick(box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("23"));
    QCOMPARE(box->text(), QString());
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(88,2)"));

    QTest::keyClicks(box, QStringLiteral("9"));
    QGuiApplication::clipboard()->setText(QStringLiteral("7,5 szt."));
    (void)log.take();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(field(box), QStringLiteral("|7,5 szt."));
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(86,2)"));
    QTest::keyClick(box, Qt::Key_Tab);
    settle();
    QCOMPARE(number->Text(), QString()); // what is no number does not stay
    QVERIFY(isNull(number->Value()));
}

void tst_KorNumber_Typing::insertAndDeleteKeysActAsTheirCtrlTwins()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTest::keyClicks(box, QStringLiteral("1234"));
    setField(box, QStringLiteral("[12]34"));
    QTest::keyClick(box, Qt::Key_Insert, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("12"));
    QTest::keyClick(box, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(box->text(), QString());
    QTest::keyClick(box, Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(box->text(), QStringLiteral("12"));
}

void tst_KorNumber_Typing::lockedFieldKeepsItsText()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setValue(5);
    number->setLocked(true);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QGuiApplication::clipboard()->setText(QStringLiteral("9"));
    QTest::keyClicks(box, QStringLiteral("12"));
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(number->Value(), QVariant(5.0));
    box->selectAll();
    QTest::keyClick(box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(number->Value(), QVariant(5.0));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("5,00"));
    number->setValue(6); // the program may
    QCOMPARE(number->Value(), QVariant(6.0));
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
    Stage stage;
    auto *number = stage.place(new KorNumber);
    PropertyBag bag;
    bag.append(QStringLiteral("Locked"), true);
    bag.append(QStringLiteral("Text"), text);
    bag.append(QStringLiteral("Value"), value);
    bag.append(QStringLiteral("MaskPicture"), mask);
    number->readProperties(bag);
    const QVariant before = number->Value();
    QVERIFY(stage.open());
    for (int visit = 0; visit < 2; ++visit) {
        number->setFocus();
        settle();
        stage.button()->setFocus();
        settle();
        QCOMPARE(number->Text(), text);
        QCOMPARE(number->Value(), before);
    }
    number->setFocus();
    settle();
    number->setValue(8); // the program may, while the user is in it
    const QString shown = number->Text();
    const QVariant eight = number->Value();
    stage.button()->setFocus();
    settle();
    QCOMPARE(number->Text(), shown);
    QCOMPARE(number->Value(), eight);
}

void tst_KorNumber_Typing::whatWasTypedBeforeTheLockIsTakenOver()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setValue(5);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("12"));
    number->setLocked(true);
    stage.button()->setFocus();
    settle();
    QCOMPARE(number->Text(), QStringLiteral("12,00"));
    QCOMPARE(number->Value(), QVariant(12.0));
}

void tst_KorNumber_Typing::enteringShowsTheBareNumberSelected()
{
    Stage stage;
    auto *first = stage.place(new KorNumber);
    auto *second = stage.place(new KorNumber);
    second->setValue(1234.5);
    QVERIFY(stage.open());
    first->setFocus();
    settle();
    EventLog log(second);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    settle();
    auto *box = second->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTRY_COMPARE(QApplication::focusWidget(), box);
    QCOMPARE(field(box), QStringLiteral("[1234,50]"));
    QCOMPARE(second->Value(), QVariant(1234.5));
    log.ignore({QStringLiteral("KeyUp")});
    QCOMPARE(log.take(), QString()); // showing is no change
}

void tst_KorNumber_Typing::enteringLeavesBlockChangeFalse()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setBlockChange(true);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    QVERIFY(!number->BlockChange());
}

void tst_KorNumber_Typing::leavingFormatsTheNumber()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    EventLog log(number);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    QTest::keyClicks(box, QStringLiteral("1234,567"));
    QCOMPARE(number->Value(), QVariant(1234.567));
    (void)log.take();
    QTest::keyClick(box, Qt::Key_Tab);
    settle();
    QCOMPARE(number->Text(), QStringLiteral("1\u00A0234,57"));
    QCOMPARE(number->Value(), QVariant(1234.57));
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
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setMaskPicture(mask);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTest::keyClicks(box, typed);
    QTest::keyClick(box, Qt::Key_Tab);
    settle();
    QTEST(number->Text(), "left");
}

void tst_KorNumber_Typing::minusAloneIsErased()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    settle();
    QCOMPARE(number->Text(), QString());
    QVERIFY(isNull(number->Value()));
}

void tst_KorNumber_Typing::rangeMessageSendsTheUserBack()
{
    Messages messages;
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setMinValue(0);
    number->setMaxValue(10);
    number->setCheckRange(true);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTest::keyClicks(box, QStringLiteral("11"));
    QTest::keyClick(box, Qt::Key_Tab);
    settle();
    QTRY_COMPARE(QApplication::focusWidget(), box);
    QCOMPARE(messages.take(), QStringList{QStringLiteral("Bład zakresu liczby: Przekroczony zakres liczby. Wprowadź "
                                                         "liczbę z zakresu: [0...10].")});
    QCOMPARE(number->Value(), QVariant(11.0)); // kept for correction
    QCOMPARE(field(box), QStringLiteral("[11,00]"));
    QTest::keyClicks(box, QStringLiteral("10"));
    QTest::keyClick(box, Qt::Key_Tab);
    settle();
    QTRY_COMPARE(QApplication::focusWidget(), stage.button());
    QCOMPARE(number->Text(), QStringLiteral("10,00"));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorNumber_Typing::rangeMessageIsShownOnceForTwoFields()
{
    Messages messages;
    Stage stage;
    QList<KorNumber *> numbers;
    for (int i = 0; i < 2; ++i) {
        auto *number = numbers.emplace_back(stage.place(new KorNumber));
        number->setValue(11);
        number->setMaxValue(10);
        number->setCheckRange(true);
    }
    QVERIFY(stage.open());
    numbers[0]->setFocus();
    settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::qWait(200);
    QCOMPARE(messages.take().size(), 1);
    QVERIFY(numbers[0]->isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(numbers[1]->Text(), QStringLiteral("11,00")); // never entered
}

void tst_KorNumber_Typing::leavingTheControlErasesWhatValReadsOutsideTheRange()
{
    Messages messages;
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setMinValue(QStringLiteral("0,5"));
    number->setMaxValue(10);
    number->setCheckRange(true);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("0,7"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    settle();
    // 0,70 is inside the range, but Val stops at the comma and reads 0.
    QCOMPARE(number->Text(), QString());
    QVERIFY(messages.take().isEmpty());
}

void tst_KorNumber_Typing::anotherWindowIsNoLeaving()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    auto *box = number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTest::keyClicks(box, QStringLiteral("5"));
    {
        QWidget other;
        QLineEdit edit(&other);
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        edit.setFocus();
        settle();
        QCOMPARE(box->text(), QStringLiteral("5"));
    }
    stage.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&stage));
    settle();
    QCOMPARE(field(box), QStringLiteral("5|")); // neither formatted nor selected anew
}

QTEST_MAIN(tst_KorNumber_Typing)
#include "tst_kornumber_typing.moc"
