// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/fieldsuite.h"
#include "support/settings.h"

#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <limits>

using namespace kor;
using namespace kor::test;

//! The spin field, driven by keyboard and mouse.
class tst_KorUpDown : public FieldSuite<KorUpDown>
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { tearDown(); }

    void aFreshFieldShowsText1();
    void valueBelowOneIsZero();
    void valueIsWrittenIntoTheText();
    void valueOutOfRangeIsRefused();
    void theFloorsZeroIsTakenLiterally();
    void typedNumbersBecomeTheValue();
    void typedNumbersOutOfRangeLeaveTheValue();
    void aNumberTooLargeForAnyReadingIsStillAChange();
    void leavingClampsToTheRange();
    void leavingWithLettersShowsTheMinimum();
    void leavingAFreshFieldInRangeChangesNothing();
    void arrowsStepTextAndValue();
    void arrowsTakeNoFocusAndStopAtTheEnds();
    void clicksOnAGreyArrowStayInside();
    void arrowsStepFromTheValueWhateverTheText();
    void aHeldArrowStepsAtOnceAndRepeats();
    void aMessageFromAHandlerEndsTheRepeating();
    void draggingOffAnArrowIsNoMouseMove();
    void upAndDownKeysStep();
    void hostSwallowsAStep();
    void wheelStepsOnlyWithTheFocus();
    void narrowingTheRangeMovesTheValueNotTheText();
    void theWholeRangeOfALongIsThere();
    void boundsTheWrongWayRoundEndAtMax();
    void incrementBelowOneIsRefused();
    void keysAndClicksComeFromTheText();
    void mouseEventsComeFromTheSurface();
    void backStyleLetsTheFormShowThrough();

private:
    QPointer<KorUpDown> &m_spin = m_control;
    QAbstractButton *m_up = nullptr;
    QAbstractButton *m_down = nullptr;
    bool enter(const QString &typed = {});
    void leave();
    //! Lets the arrows repeat sooner than a user would like.
    void hurry();
};

void tst_KorUpDown::init()
{
    setUp("txtUpDown");
    auto *arrows = m_spin->findChild<QWidget *>(QStringLiteral("cmdUpDown"));
    m_up = arrows->findChild<QAbstractButton *>(QStringLiteral("cmdUp"));
    m_down = arrows->findChild<QAbstractButton *>(QStringLiteral("cmdDown"));
}

bool tst_KorUpDown::enter(const QString &typed)
{
    if (!FieldSuite::enter())
        return false;
    if (!typed.isEmpty()) {
        m_box->selectAll();
        QTest::keyClicks(m_box, typed);
    }
    return QApplication::focusWidget() == m_box;
}

void tst_KorUpDown::leave()
{
    m_stage->button()->setFocus();
    settle();
}

void tst_KorUpDown::hurry()
{
    for (QAbstractButton *arrow : {m_up, m_down}) {
        arrow->setAutoRepeatDelay(40);
        arrow->setAutoRepeatInterval(20);
    }
}

void tst_KorUpDown::aFreshFieldShowsText1()
{
    QCOMPARE(m_spin->Text(), QStringLiteral("Text1"));
    QCOMPARE(m_spin->Value(), 0);
    QCOMPARE(m_spin->Min(), 0);
    QCOMPARE(m_spin->Max(), 10);
    QCOMPARE(m_spin->Increment(), 1);
    QVERIFY(settingsOf(*m_spin).isEmpty());
}

void tst_KorUpDown::valueBelowOneIsZero()
{
    m_spin->setValue(7);
    m_spin->setValue(-5);
    QCOMPARE(m_spin->Value(), 0);
    QCOMPARE(m_spin->Text(), QStringLiteral("0"));
    m_spin->setValue(7);
    m_spin->setValue(0);
    QCOMPARE(m_spin->Value(), 0);
    m_spin->setMin(-20);
    m_spin->setValue(-5);
    QCOMPARE(m_spin->Value(), 0);
}

void tst_KorUpDown::valueIsWrittenIntoTheText()
{
    EventLog log(m_spin);
    m_spin->setValue(7);
    QCOMPARE(m_spin->Text(), QStringLiteral("7"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
    m_spin->setValue(7);
    QCOMPARE(log.take(), QString());
}

void tst_KorUpDown::valueOutOfRangeIsRefused()
{
    m_spin->setValue(7);
    EventLog log(m_spin);
    try {
        m_spin->setValue(11);
        QFAIL("no error");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 380);
    }
    QCOMPARE(m_spin->Value(), 7);
    QCOMPARE(m_spin->Text(), QStringLiteral("7"));
    QCOMPARE(log.take(), QString());
}

void tst_KorUpDown::theFloorsZeroIsTakenLiterally()
{
    m_spin->setMin(1);
    m_spin->setValue(5);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_spin->setValue(-5));
    QCOMPARE(m_spin->Value(), 5);
}

void tst_KorUpDown::typedNumbersBecomeTheValue()
{
    QVERIFY(enter(QStringLiteral("8")));
    QCOMPARE(m_spin->Value(), 8);
    EventLog log(m_spin);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(8,0) KeyPress(8) Change KeyUp(8,0)"));
    QCOMPARE(m_spin->Value(), 0);
    QCOMPARE(m_spin->Text(), QString()); // a value that came from the text is not written back
}

void tst_KorUpDown::typedNumbersOutOfRangeLeaveTheValue()
{
    QVERIFY(enter(QStringLiteral("8")));
    EventLog log(m_spin);
    log.ignore({QStringLiteral("KeyDown"), QStringLiteral("KeyPress"), QStringLiteral("KeyUp")});
    QTest::keyClicks(m_box, QStringLiteral("5"));
    QCOMPARE(m_spin->Text(), QStringLiteral("85"));
    QCOMPARE(m_spin->Value(), 8);
    QCOMPARE(log.take(), QStringLiteral("Change")); // raised all the same
    m_spin->setText(QStringLiteral("99999999999"));
    QCOMPARE(m_spin->Value(), 8);
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorUpDown::aNumberTooLargeForAnyReadingIsStillAChange()
{
    QVERIFY(enter(QStringLiteral("8")));
    Messages messages;
    EventLog log(m_spin);
    log.ignore({QStringLiteral("KeyDown"), QStringLiteral("KeyPress"), QStringLiteral("KeyUp")});
    QTest::keyClicks(m_box, QStringLiteral("e400"));
    QCOMPARE(log.take(), QStringLiteral("Change Change Change Change"));
    QCOMPARE(m_spin->Value(), 8);
    m_spin->setText(QStringLiteral("&H123456789"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
    leave();
    QCOMPARE(m_spin->Text(), QStringLiteral("10"));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorUpDown::leavingClampsToTheRange()
{
    m_spin->setMin(0);
    m_spin->setMax(100);
    QVERIFY(enter(QStringLiteral("250")));
    Messages messages;
    leave();
    QCOMPARE(m_spin->Text(), QStringLiteral("100"));
    QCOMPARE(m_spin->Value(), 100);
    QVERIFY(messages.take().isEmpty());
}

void tst_KorUpDown::leavingWithLettersShowsTheMinimum()
{
    m_spin->setMin(1);
    m_spin->setMax(100);
    QVERIFY(enter(QStringLiteral("abc")));
    leave();
    QCOMPARE(m_spin->Text(), QStringLiteral("1"));
    QCOMPARE(m_spin->Value(), 1);
}

void tst_KorUpDown::leavingAFreshFieldInRangeChangesNothing()
{
    QVERIFY(enter());
    EventLog log(m_spin);
    leave();
    QCOMPARE(m_spin->Text(), QStringLiteral("Text1"));
    QCOMPARE(log.take(), QString());
}

void tst_KorUpDown::arrowsStepTextAndValue()
{
    QVERIFY(enter(QStringLiteral("5")));
    EventLog log(m_spin);
    QTest::mouseClick(m_up, Qt::LeftButton);
    QCOMPARE(m_spin->Text(), QStringLiteral("6"));
    QCOMPARE(m_spin->Value(), 6);
    QCOMPARE(log.take(), QStringLiteral("Change"));
    QTest::mouseClick(m_down, Qt::LeftButton);
    QTest::mouseClick(m_down, Qt::LeftButton);
    QCOMPARE(m_spin->Text(), QStringLiteral("4"));
    m_spin->setIncrement(3);
    QTest::mouseClick(m_up, Qt::LeftButton);
    QCOMPARE(m_spin->Text(), QStringLiteral("7"));
}

void tst_KorUpDown::arrowsTakeNoFocusAndStopAtTheEnds()
{
    QVERIFY(m_stage->open());
    leave();
    m_spin->setIncrement(4);
    for (int i = 0; i < 5; ++i)
        QTest::mouseClick(m_up, Qt::LeftButton);
    QCOMPARE(m_spin->Value(), 10);
    QVERIFY(!m_up->isEnabled());
    QVERIFY(m_down->isEnabled());
    for (int i = 0; i < 5; ++i)
        QTest::mouseClick(m_down, Qt::LeftButton);
    QCOMPARE(m_spin->Text(), QStringLiteral("0"));
    QVERIFY(!m_down->isEnabled());
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
}

void tst_KorUpDown::clicksOnAGreyArrowStayInside()
{
    QVERIFY(m_stage->open());
    EventLog log(m_spin);
    log.ignore({QStringLiteral("MouseMove")});
    const QPoint at = m_down->mapTo(m_stage.get(), m_down->rect().center());
    QVERIFY(!m_down->isEnabled());
    QTest::mouseClick(m_stage->windowHandle(), Qt::LeftButton, {}, at);
    QCOMPARE(log.take(), QString());
}

void tst_KorUpDown::arrowsStepFromTheValueWhateverTheText()
{
    QVERIFY(enter(QStringLiteral("8")));
    QTest::keyClicks(m_box, QStringLiteral("5"));
    QTest::mouseClick(m_up, Qt::LeftButton);
    QCOMPARE(m_spin->Text(), QStringLiteral("9"));
}

void tst_KorUpDown::aHeldArrowStepsAtOnceAndRepeats()
{
    QVERIFY(enter(QStringLiteral("5")));
    hurry();
    QTest::mousePress(m_up, Qt::LeftButton);
    QCOMPARE(m_spin->Text(), QStringLiteral("6"));
    QTRY_COMPARE(m_spin->Text(), QStringLiteral("10"));
    QTest::mouseRelease(m_up, Qt::LeftButton);
    QTest::mousePress(m_down, Qt::LeftButton);
    QTRY_VERIFY(m_spin->Value() <= 8); // it may have gone on by the time one looks
    QTest::mouseRelease(m_down, Qt::LeftButton);
    const QString released = m_spin->Text();
    QTest::qWait(100); // longer than until the next repetition
    QCOMPARE(m_spin->Text(), released);
}

void tst_KorUpDown::aMessageFromAHandlerEndsTheRepeating()
{
    QVERIFY(enter(QStringLiteral("5")));
    int messages = 0;
    connect(m_spin, &KorUpDown::Change, this, [&] {
        ++messages;
        QDialog message(m_stage.get());
        QTimer::singleShot(100, &message, &QDialog::accept); // longer than until the first repetition
        message.exec();
    });
    hurry();
    QTest::mousePress(m_up, Qt::LeftButton);
    QTest::qWait(100);
    QCOMPARE(messages, 1);
    QCOMPARE(m_spin->Value(), 6);
    QVERIFY(!m_up->isDown());
}

void tst_KorUpDown::draggingOffAnArrowIsNoMouseMove()
{
    QVERIFY(enter(QStringLiteral("5")));
    EventLog log(m_spin);
    for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
        const auto send = [&](QEvent::Type type, const QPointF &at) {
            QMouseEvent mouse(type, at, m_up->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : button,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button),
                              Qt::NoModifier);
            QApplication::sendEvent(m_up, &mouse);
        };
        send(QEvent::MouseButtonPress, {3, 3});
        send(QEvent::MouseMove, {-30, 3});
        send(QEvent::MouseMove, {-40, 3});
        send(QEvent::MouseButtonRelease, {-40, 3});
    }
    QCOMPARE(log.take(), QStringLiteral("Change")); // the left button's step
}

void tst_KorUpDown::upAndDownKeysStep()
{
    QVERIFY(enter(QStringLiteral("5")));
    EventLog log(m_spin);
    QTest::keyPress(m_box, Qt::Key_Up);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(38,0) Change"));
    QCOMPARE(m_spin->Text(), QStringLiteral("6"));
    QTest::keyPress(m_box, Qt::Key_Down);
    QTest::keyPress(m_box, Qt::Key_Down);
    QCOMPARE(m_spin->Text(), QStringLiteral("4"));
    QTest::keyPress(m_box, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(m_spin->Text(), QStringLiteral("4"));
}

void tst_KorUpDown::hostSwallowsAStep()
{
    QVERIFY(enter(QStringLiteral("5")));
    connect(m_spin, &KorUpDown::KeyDown, this, [](int &code, int &) { code = 0; });
    QTest::keyPress(m_box, Qt::Key_Up);
    QCOMPARE(m_spin->Text(), QStringLiteral("5"));
}

void tst_KorUpDown::wheelStepsOnlyWithTheFocus()
{
    QVERIFY(m_stage->open());
    m_spin->setValue(5);
    leave();
    const auto turn = [this](int angle) {
        bool isTaken = false;
        for (QWidget *place = m_box; place != m_stage.get() && !isTaken; place = place->parentWidget()) {
            const QPointF at(3, 3);
            QWheelEvent wheel(at, m_box->mapToGlobal(at), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(place, &wheel);
            isTaken = wheel.isAccepted();
        }
        return isTaken;
    };
    QVERIFY(!turn(120)); // the form scrolls
    QCOMPARE(m_spin->Value(), 5);
    QCOMPARE(m_spin->Text(), QStringLiteral("5"));
    m_spin->setFocus();
    settle();
    QVERIFY(turn(120));
    QCOMPARE(m_spin->Text(), QStringLiteral("6"));
    turn(-240);
    QCOMPARE(m_spin->Text(), QStringLiteral("4"));
    turn(60);
    QCOMPARE(m_spin->Text(), QStringLiteral("4"));
    turn(60); // fine wheels send parts of a notch
    QCOMPARE(m_spin->Text(), QStringLiteral("5"));
}

void tst_KorUpDown::narrowingTheRangeMovesTheValueNotTheText()
{
    m_spin->setValue(8);
    EventLog log(m_spin);
    m_spin->setMax(5);
    QCOMPARE(m_spin->Value(), 5);
    QCOMPARE(m_spin->Text(), QStringLiteral("8"));
    QCOMPARE(log.take(), QString());
    QVERIFY(enter());
    leave();
    QCOMPARE(m_spin->Text(), QStringLiteral("5"));
}

void tst_KorUpDown::theWholeRangeOfALongIsThere()
{
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    m_spin->setMin(smallest);
    m_spin->setMax(largest);
    m_spin->setIncrement(largest);
    m_spin->setValue(largest);
    QCOMPARE(m_spin->Text(), QStringLiteral("2147483647"));
    QVERIFY(!m_up->isEnabled());
    for (int i = 0; i < 3; ++i)
        QTest::mouseClick(m_down, Qt::LeftButton);
    QCOMPARE(m_spin->Text(), QStringLiteral("-2147483648"));
    QVERIFY(!m_down->isEnabled());
    QVERIFY(enter(QStringLiteral("2147483648")));
    leave();
    QCOMPARE(m_spin->Text(), QStringLiteral("2147483647"));
    QCOMPARE(m_spin->Value(), largest);
}

void tst_KorUpDown::boundsTheWrongWayRoundEndAtMax()
{
    m_spin->setMin(10);
    m_spin->setMax(2);
    for (const char *typed : {"5", "1", "12"}) {
        QVERIFY(enter(QString::fromLatin1(typed)));
        leave();
        QCOMPARE(m_spin->Text(), QStringLiteral("2")); // not less than Min, and then not more than Max
        QCOMPARE(m_spin->Value(), 2);
    }
}

void tst_KorUpDown::incrementBelowOneIsRefused()
{
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_spin->setIncrement(0));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_spin->setMaxLength(-1));
    for (const int style : {-1, 2, 65536, 65537}) // as an Integer the last two would be 0 and 1
        QVERIFY_THROWS_EXCEPTION(RunTimeError, m_spin->setBackStyle(style));
    QCOMPARE(m_spin->Increment(), 1);
    QCOMPARE(m_spin->BackStyle(), 1);
}

void tst_KorUpDown::keysAndClicksComeFromTheText()
{
    QVERIFY(enter());
    EventLog log(m_spin);
    QTest::keyClick(m_box, Qt::Key_A);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(65,0) KeyPress(97) Change KeyUp(65,0)"));
    QTest::mouseClick(m_box, Qt::LeftButton);
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorUpDown::mouseEventsComeFromTheSurface()
{
    QVERIFY(enter());
    EventLog log(m_spin);
    log.ignore({QStringLiteral("MouseMove")});
    QTest::mouseClick(m_spin, Qt::RightButton, Qt::ShiftModifier, QPoint(1, 1));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(2,1) MouseUp(2,1)"));
}

void tst_KorUpDown::backStyleLetsTheFormShowThrough()
{
    QVERIFY(m_stage->open());
    m_spin->setBorderStyle(BorderStyleType::None);
    m_spin->setText(QString());
    QPalette palette = m_stage->palette();
    palette.setColor(QPalette::Window, Qt::yellow);
    m_stage->setPalette(palette);
    const auto inside = [this] { return m_stage->grab().toImage().pixelColor(m_spin->pos() + QPoint(40, 5)); };
    m_spin->setBackColor(0x000000FF);
    QCOMPARE(inside(), QColor(Qt::red));
    m_spin->setBackStyle(0);
    QCOMPARE(inside(), QColor(Qt::yellow));
    m_spin->setBackColor(0x0000FF00);
    QCOMPARE(inside(), QColor(Qt::yellow));
    m_spin->setBackStyle(1);
    QCOMPARE(inside(), QColor(Qt::green));
}

QTEST_MAIN(tst_KorUpDown)
#include "tst_korupdown.moc"
