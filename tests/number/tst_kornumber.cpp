// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {
const QString nbsp = QStringLiteral("\u00A0");
}

//! The numeric field in the hands of a clerk: typing, entering, leaving, setting values.
class tst_KorNumber : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    // values
    void aFreshFieldIsNullAndEmpty();
    void valueShowsGroupedAndReadsRounded();
    void valueGivenAs_data();
    void valueGivenAs();
    void emptyTextGivesNullAndAnEmptyBox();
    void valueIsClampedSilentlyToTheRange();
    void aTooWideNumberShowsAFillAndKeepsItsFullValue();
    void theFillIsReplacedOnlyByAnotherNumber();
    void fitDependsOnWidthAndFont_data();
    void fitDependsOnWidthAndFont();
    void blockChangeKeepsValueAndEventsBack();
    void textIsReadInAnyForm_data();
    void textIsReadInAnyForm();
    void textThatIsNoNumberRaisesChangeOnceMore();
    void dataChangedIsSetByTheProgramOnly();
    void boundsAreSingles();

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

    // focus
    void enteringShowsTheBareNumberSelected();
    void enteringLeavesBlockChangeFalse();
    void leavingFormatsTheNumber();
    void minusAloneIsErased();
    void rangeMessageSendsTheUserBack();
    void rangeMessageIsShownOnceForTwoFields();
    void leavingTheControlErasesWhatValReadsOutsideTheRange();
    void anotherWindowIsNoLeaving();
};

void tst_KorNumber::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
}

void tst_KorNumber::cleanup() { QGuiApplication::clipboard()->clear(); }

void tst_KorNumber::aFreshFieldIsNullAndEmpty()
{
    KorNumber number;
    QVERIFY(isNull(number.Value()));
    QCOMPARE(number.Text(), QString());
    QCOMPARE(number.MaskPicture(), QStringLiteral("#,##0.00"));
    QCOMPARE(number.Alignment(), AlignmentType::Right_Justify);
    QVERIFY(!number.DataChanged());
}

void tst_KorNumber::valueShowsGroupedAndReadsRounded()
{
    KorNumber number;
    number.resize(160, 26);
    number.setValue(1234.567);
    QCOMPARE(number.Text(), QStringLiteral("1") + nbsp + QStringLiteral("234,57"));
    QCOMPARE(number.Value(), QVariant(1234.57));
    QCOMPARE(number.Value().typeId(), int(QMetaType::Double));
    number.setValue(1234.569); // the same text, so no Change, but the same rule
    QCOMPARE(number.Value(), QVariant(1234.57));
}

void tst_KorNumber::valueGivenAs_data()
{
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("whole number")     << QVariant(5)                       << QStringLiteral("5,00")  << QVariant(5.0);
    QTest::newRow("integer")          << QVariant::fromValue<short>(5)     << QStringLiteral("5,00")  << QVariant(5.0);
    QTest::newRow("single")           << QVariant(0.7F)                    << QStringLiteral("0,70")  << QVariant(0.7);
    QTest::newRow("negative")         << QVariant(-0.5)                    << QStringLiteral("-0,50") << QVariant(-0.5);
    QTest::newRow("Polish text")      << QVariant(QStringLiteral("12,5"))  << QStringLiteral("12,50") << QVariant(12.5);
    QTest::newRow("text with a stop") << QVariant(QStringLiteral("12.5"))  << QStringLiteral("12,50") << QVariant(12.5);
    QTest::newRow("Null")             << null()                            << QString()               << null();
    QTest::newRow("missing argument") << missing()                         << QString()               << null();
    QTest::newRow("Empty")            << QVariant()                        << QString()               << null();
    QTest::newRow("letters")          << QVariant(QStringLiteral("abc"))   << QString()               << null();
    // clang-format on
}

void tst_KorNumber::valueGivenAs()
{
    QFETCH(QVariant, given);
    QFETCH(QVariant, value);
    KorNumber number;
    number.resize(160, 26);
    number.setValue(99);
    number.setValue(given);
    QTEST(number.Text(), "text");
    QVERIFY(isSameSetting(number.Value(), value));
}

void tst_KorNumber::emptyTextGivesNullAndAnEmptyBox()
{
    KorNumber number;
    number.setValue(5);
    number.setValue(QString());
    QVERIFY(isNull(number.Value()));
    QCOMPARE(number.Text(), QString());
}

void tst_KorNumber::valueIsClampedSilentlyToTheRange()
{
    Messages messages;
    KorNumber number;
    number.resize(160, 26);
    number.setMinValue(0);
    number.setMaxValue(10);
    number.setCheckRange(true);
    number.setValue(11);
    QCOMPARE(number.Text(), QStringLiteral("10,00"));
    QCOMPARE(number.Value(), QVariant(10.0F));
    QCOMPARE(number.Value().typeId(), int(QMetaType::Float));
    number.setValue(-3);
    QCOMPARE(number.Value(), QVariant(0.0F));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorNumber::aTooWideNumberShowsAFillAndKeepsItsFullValue()
{
    KorNumber number;
    number.resize(50, 26);
    number.setValue(123456789.125);
    QVERIFY(!number.Text().isEmpty());
    QCOMPARE(number.Text().count(QLatin1Char('#')), number.Text().remove(QLatin1Char(',')).remove(nbsp).size());
    QCOMPARE(number.Value(), QVariant(123456789.125));
}

void tst_KorNumber::theFillIsReplacedOnlyByAnotherNumber()
{
    KorNumber number;
    number.resize(50, 26);
    EventLog log(&number);
    number.setValue(123456789.125);
    QCOMPARE(log.take(), QStringLiteral("Change"));
    number.resize(400, 26);
    number.resize(40, 26);
    number.setValue(123456789.125); // not new: the text stays as it was
    QCOMPARE(log.take(), QString());
    number.setValue(987654321);
    QCOMPARE(number.Value(), QVariant(987654321.0));
}

void tst_KorNumber::fitDependsOnWidthAndFont_data()
{
    QTest::addColumn<int>("pointSize");
    for (const int size : {8, 10, 14, 20})
        QTest::addRow("%d points", size) << size;
}

void tst_KorNumber::fitDependsOnWidthAndFont()
{
    QFETCH(int, pointSize);
    KorNumber number;
    QFont font = number.Font();
    font.setPointSize(pointSize);
    number.setFont(font);
    const QString shown = QStringLiteral("1") + nbsp + QStringLiteral("234,50");
    // The text needs less than the width, with a margin of 22 percent.
    const double needed = QFontMetrics(number.Font()).horizontalAdvance(shown) * 1.22;
    const int enough = static_cast<int>(needed) + 1;
    number.resize(enough, 40);
    number.setValue(1234.5);
    QCOMPARE(number.Text(), shown);
    number.setValue(0);
    number.resize(enough - 1, 40);
    number.setValue(1234.5);
    QVERIFY2(number.Text().contains(QLatin1Char('#')), qPrintable(number.Text()));
    QCOMPARE(number.Value(), QVariant(1234.5));
}

void tst_KorNumber::blockChangeKeepsValueAndEventsBack()
{
    KorNumber number;
    number.resize(160, 26);
    number.setValue(1);
    EventLog log(&number);
    number.setBlockChange(true);
    number.setValue(2.346);
    QCOMPARE(number.Text(), QStringLiteral("2,35"));
    QCOMPARE(number.Value(), QVariant(2.346)); // not read back from the text
    number.setValue(null());
    QCOMPARE(number.Text(), QString());
    QCOMPARE(number.Value(), QVariant(2.346));
    QCOMPARE(log.take(), QString());
}

void tst_KorNumber::textIsReadInAnyForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("comma")         << QStringLiteral("12,5")              << QVariant(12.5);
    QTest::newRow("full stop")     << QStringLiteral("12.5")              << QVariant(12.5);
    QTest::newRow("grouped")       << QStringLiteral("1\u00A0234,5")      << QVariant(1234.5);
    QTest::newRow("percent sign")  << QStringLiteral("50%")               << QVariant(50.0);
    QTest::newRow("currency")      << QStringLiteral("12,50 zł")          << QVariant(12.5);
    QTest::newRow("letters")       << QStringLiteral("abc")               << null();
    QTest::newRow("empty")         << QString()                           << null();
    // clang-format on
}

void tst_KorNumber::textIsReadInAnyForm()
{
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    KorNumber number;
    number.resize(160, 26);
    number.setText(text);
    QVERIFY(isSameSetting(number.Value(), value));
    QVERIFY(number.DataChanged());
}

void tst_KorNumber::textThatIsNoNumberRaisesChangeOnceMore()
{
    KorNumber number;
    number.resize(160, 26);
    number.setValue(5);
    EventLog log(&number);
    number.setText(QStringLiteral("abc"));
    QCOMPARE(log.take(), QStringLiteral("Change Change"));
    number.setText(QStringLiteral("abc"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
    number.setBlockChange(true);
    number.setText(QString());
    QCOMPARE(log.take(), QStringLiteral("Change"));
    number.setBlockChange(false);
    number.setText(QStringLiteral("7"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorNumber::dataChangedIsSetByTheProgramOnly()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("12"));
    QCOMPARE(number->Value(), QVariant(12.0));
    QVERIFY(!number->DataChanged());
    number->setValue(3);
    QVERIFY(number->DataChanged());
}

void tst_KorNumber::boundsAreSingles()
{
    KorNumber number;
    number.setMaxValue(QStringLiteral("0,5"));
    QCOMPARE(number.MaxValue(), QVariant(0.5F));
    QCOMPARE(number.MaxValue().typeId(), int(QMetaType::Float));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, number.setMaxValue(QStringLiteral("abc")));
    QCOMPARE(number.MaxValue(), QVariant(0.5F));
}

void tst_KorNumber::separatorKeysTypeTheLocalesOwn_data()
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

void tst_KorNumber::separatorKeysTypeTheLocalesOwn()
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

void tst_KorNumber::aFieldKeepsTheLocaleItStartedWith()
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

void tst_KorNumber::minusGoesToTheFront()
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

void tst_KorNumber::maxLengthLimitsTypingNotTheProgram()
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

void tst_KorNumber::deadKeysAndInputMethodsAreFilteredToo()
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

void tst_KorNumber::copyCutAndPasteActOnTheWholeText()
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

void tst_KorNumber::insertAndDeleteKeysActAsTheirCtrlTwins()
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

void tst_KorNumber::lockedFieldKeepsItsText()
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

void tst_KorNumber::enteringShowsTheBareNumberSelected()
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

void tst_KorNumber::enteringLeavesBlockChangeFalse()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    number->setBlockChange(true);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    QVERIFY(!number->BlockChange());
}

void tst_KorNumber::leavingFormatsTheNumber()
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

void tst_KorNumber::minusAloneIsErased()
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

void tst_KorNumber::rangeMessageSendsTheUserBack()
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

void tst_KorNumber::rangeMessageIsShownOnceForTwoFields()
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

void tst_KorNumber::leavingTheControlErasesWhatValReadsOutsideTheRange()
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

void tst_KorNumber::anotherWindowIsNoLeaving()
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

QTEST_MAIN(tst_KorNumber)
#include "tst_kornumber.moc"
