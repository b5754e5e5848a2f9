// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/datesuite.h"
#include "support/eventlog.h"
#include "support/listeningform.h"

#include <KorDaoUC/KorDate>
#include <KorDaoUC/UserControl>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>

using namespace kor;
using namespace kor::test;

//! The month calendar of a date field: opening, picking, closing.
class tst_KorDateCalendar : public CalendarSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    // opening
    void opensOn_data();
    void opensOn();
    void openingRaisesClickAndWritesNothing();
    void theButtonOpensAndBringsTheFocus();
    void aSecondClickClosesWithoutClick();
    void aSecondF4Closes();
    void openingIsNoLeaving();
    void oneWindowIsReused();
    void theMaskIsHandedOverAtEveryOpening();
    void enabledClickFalseSwitchesOffButtonAndKey();
    void aDisabledButtonSwallowsItsClicks();
    void nothingOpensAtDesignTime();
    void aFieldLeftWithAWrongDateKeepsTheCalendarShut();
    void altF4IsNotTheCalendarsKey();

    // picking
    void arrowsWriteAsTheyGo();
    void keysMove_data();
    void keysMove();
    void acceptingKeysWriteAndClose_data();
    void acceptingKeysWriteAndClose();
    void closingKeysWriteNothing_data();
    void closingKeysWriteNothing();
    void escapeAfterMovingKeepsTheLastDateAndDataChanged();
    void acceptingTheSameDayKeepsDataChanged();
    void escapeOnTheSameDayLeavesDataChangedFalse();
    void valueIsReadWhenTheBoxIsLeft();
    void aReturnFromTheCalendarIsNoNewEntry();
    void doubleClickPicksTheDay();
    void clickWritesTheDayAndStaysOpen();
    void onlyADoubleClickOfTheLeftButtonOnADayPicks_data();
    void onlyADoubleClickOfTheLeftButtonOnADayPicks();
    void oneClickPicksNothingWhereTheStyleOpensByOne();
    void pagingByMouseSelectsNothing();
    void aTypedYearGivesTheKeyboardBackToTheDays();
    void aLockedFieldIsNotWrittenTo();
    void aChoiceCountsForTheNextFieldThatIsLeft();
    void keysSentToTheWindowReachTheCalendar();
};

void tst_KorDateCalendar::init() { setUp(); }
void tst_KorDateCalendar::cleanup() { tearDown(); }

// --- opening

void tst_KorDateCalendar::opensOn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("day");
    // clang-format off
    QTest::newRow("an empty field: today")         << QString()                    << today;
    QTest::newRow("15.03.1999: that day")          << QStringLiteral("15.03.1999") << QDate(1999, 3, 15);
    QTest::newRow("a date still loosely typed")    << QStringLiteral("1503,99")    << today;
    QTest::newRow("six digits still unchecked")    << QStringLiteral("150399")     << QDate(1999, 3, 15);
    QTest::newRow("a day that there is not: today")<< QStringLiteral("31.02.2001") << today;
    QTest::newRow("an old day")                    << QStringLiteral("01.01.1066") << QDate(1066, 1, 1);
    QTest::newRow("the last day")                  << QStringLiteral("31.12.9999") << QDate(9999, 12, 31);
    // clang-format on
}

void tst_KorDateCalendar::opensOn()
{
    QFETCH(QString, text);
    QFETCH(QDate, day);
    QVERIFY(enter());
    QTest::keyClicks(m_box, text);
    press(Qt::Key_F4);
    QVERIFY(isOpen());
    QCOMPARE(view()->selectedDate(), day);
    QCOMPARE(view()->property("Value"), QVariant(day));
    QCOMPARE(view()->monthShown(), day.month());
    QCOMPARE(view()->yearShown(), day.year());
    QCOMPARE(m_box->text(), text);
}

void tst_KorDateCalendar::openingRaisesClickAndWritesNothing()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    EventLog log(m_date);
    press(Qt::Key_F4);
    QVERIFY(isOpen());
    QCOMPARE(log.take(), QStringLiteral("Click KeyDown(115,0)"));
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDateCalendar::theButtonOpensAndBringsTheFocus()
{
    QVERIFY(m_stage->open());
    m_stage->button()->setFocus();
    settle();
    EventLog log(m_date);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(isOpen());
    QCOMPARE(log.take(), QStringLiteral("Click"));
    press(Qt::Key_Escape);
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
}

void tst_KorDateCalendar::aSecondClickClosesWithoutClick()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(isOpen());
    EventLog log(m_date);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!isOpen());
    m_button->click();
    QVERIFY(isOpen());
    (void)log.take();
    m_button->click();
    QVERIFY(!isOpen());
    QCOMPARE(log.take(), QString());
    // As the window system does it: the press beside the open window goes to that window, and is not handed on.
    m_button->click();
    const QPoint onButton = m_button->mapToGlobal(m_button->rect().center());
    QTest::mousePress(month(), Qt::LeftButton, {}, month()->mapFromGlobal(onButton));
    QVERIFY(!isOpen());
    QVERIFY(month()->testAttribute(Qt::WA_NoMouseReplay));
}

void tst_KorDateCalendar::aSecondF4Closes()
{
    QVERIFY(enter());
    press(Qt::Key_F4);
    QVERIFY(isOpen());
    EventLog log(m_date);
    press(Qt::Key_F4);
    QVERIFY(!isOpen());
    QCOMPARE(log.take(), QString());
}

void tst_KorDateCalendar::openingIsNoLeaving()
{
    Messages messages;
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99")); // no date
    EventLog log(m_date);
    press(Qt::Key_F4);
    settle();
    QVERIFY(isOpen());
    QCOMPARE(log.take(), QStringLiteral("Click KeyDown(115,0)"));
    press(Qt::Key_Escape);
    settle();
    QCOMPARE(log.take(), QString());
    QCOMPARE(m_box->text(), QStringLiteral("99"));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorDateCalendar::oneWindowIsReused()
{
    QVERIFY(enter());
    press(Qt::Key_F4);
    const QPointer<QWidget> first = month();
    press(Qt::Key_Escape);
    QVERIFY(first && !first->isVisible());
    press(Qt::Key_F4);
    QCOMPARE(month(), first.data());
    QCOMPARE(m_date->findChildren<QWidget *>(QStringLiteral("frmMonth")).size(), 1);
    QCOMPARE(month()->property("ParentControl").value<QObject *>(), m_box.data());
    QCOMPARE(month()->property("viewMonth").value<QObject *>(), view());
}

void tst_KorDateCalendar::theMaskIsHandedOverAtEveryOpening()
{
    QVERIFY(enter());
    press(Qt::Key_F4);
    QCOMPARE(month()->property("DateMask"), QVariant(QStringLiteral("Short Date")));
    press(Qt::Key_Escape);
    m_date->setFormatMask(QStringLiteral("yyyy-MM-dd"));
    press(Qt::Key_F4);
    QCOMPARE(month()->property("DateMask"), QVariant(QStringLiteral("yyyy-MM-dd")));
    press(Qt::Key_Return);
    QCOMPARE(m_box->text(), QStringLiteral("2024-03-05"));
}

void tst_KorDateCalendar::enabledClickFalseSwitchesOffButtonAndKey()
{
    m_date->setEnabledClick(false);
    QVERIFY(enter());
    EventLog log(m_date);
    press(Qt::Key_F4);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(115,0)"));
    QTest::mouseClick(m_button, Qt::LeftButton);
    m_button->click();
    QCOMPARE(log.take(), QString());
    QVERIFY(!isOpen());
}

void tst_KorDateCalendar::aDisabledButtonSwallowsItsClicks()
{
    ListeningForm form;
    form.resize(200, 60);
    auto *date = new KorDate(&form);
    date->resize(160, 26);
    date->setEnabledClick(false);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    auto *button = date->findChild<QWidget *>(QStringLiteral("cmdDate"));
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseDClick(button, Qt::LeftButton);
    QCOMPARE(form.presses, 0);
    QTest::mouseClick(&form, Qt::LeftButton, {}, QPoint(190, 50));
    QCOMPARE(form.presses, 2);
}

void tst_KorDateCalendar::nothingOpensAtDesignTime()
{
    UserControl::setUserMode(m_stage.get(), false);
    QVERIFY(enter());
    m_button->click();
    press(Qt::Key_F4);
    QVERIFY(!isOpen());
}

void tst_KorDateCalendar::aFieldLeftWithAWrongDateKeepsTheCalendarShut()
{
    Messages messages;
    auto *second = m_stage->place(new KorDate);
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99"));
    QTest::mouseClick(second->findChild<QWidget *>(QStringLiteral("cmdDate")), Qt::LeftButton);
    settle();
    QCOMPARE(messages.take().size(), 1);
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KorDateCalendar::altF4IsNotTheCalendarsKey()
{
    QVERIFY(enter());
    EventLog log(m_date);
    press(Qt::Key_F4, Qt::AltModifier);
    QVERIFY(!isOpen());
    QCOMPARE(log.take(), QStringLiteral("KeyDown(115,4)"));
}

// --- picking

void tst_KorDateCalendar::arrowsWriteAsTheyGo()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    EventLog log(m_date);
    press(Qt::Key_Right);
    QCOMPARE(m_box->text(), QStringLiteral("16.03.1999"));
    press(Qt::Key_Down);
    QCOMPARE(m_box->text(), QStringLiteral("23.03.1999"));
    QVERIFY(isOpen());
    QCOMPARE(log.take(), QStringLiteral("Change Change")); // the calendar's keys are not the field's
    QVERIFY(m_date->DataChanged());
}

void tst_KorDateCalendar::keysMove_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QDate>("day");
    const int ctrl = Qt::ControlModifier;
    // clang-format off
    QTest::newRow("Left")           << int(Qt::Key_Left)     << 0    << QDate(2004, 2, 28);
    QTest::newRow("Right")          << int(Qt::Key_Right)    << 0    << QDate(2004, 3, 1);
    QTest::newRow("Up")             << int(Qt::Key_Up)       << 0    << QDate(2004, 2, 22);
    QTest::newRow("Down")           << int(Qt::Key_Down)     << 0    << QDate(2004, 3, 7);
    QTest::newRow("Page Up")        << int(Qt::Key_PageUp)   << 0    << QDate(2004, 1, 29);
    QTest::newRow("Page Down")      << int(Qt::Key_PageDown) << 0    << QDate(2004, 3, 29);
    QTest::newRow("Home")           << int(Qt::Key_Home)     << 0    << QDate(2004, 2, 1);
    QTest::newRow("Ctrl+Page Up")   << int(Qt::Key_PageUp)   << ctrl << QDate(2003, 2, 28);
    QTest::newRow("Ctrl+Page Down") << int(Qt::Key_PageDown) << ctrl << QDate(2005, 2, 28);
    QTest::newRow("a digit")        << int(Qt::Key_5)        << 0    << QDate(2004, 2, 29);
    // clang-format on
}

void tst_KorDateCalendar::keysMove()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QDate, day);
    QVERIFY(enter(QDate(2004, 2, 29)));
    press(Qt::Key_F4);
    press(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(view()->selectedDate(), day);
    QCOMPARE(view()->monthShown(), day.month());
    QCOMPARE(view()->yearShown(), day.year());
    QCOMPARE(m_box->text(), day.toString(QStringLiteral("dd.MM.yyyy")));
    QVERIFY(isOpen());
}

void tst_KorDateCalendar::acceptingKeysWriteAndClose_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("keypad Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void tst_KorDateCalendar::acceptingKeysWriteAndClose()
{
    QFETCH(int, key);
    QVERIFY(enter());
    press(Qt::Key_F4);
    EventLog log(m_date);
    press(static_cast<Qt::Key>(key));
    QVERIFY(!isOpen());
    QCOMPARE(field(m_box), QStringLiteral("[05.03.2024]"));
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorDateCalendar::closingKeysWriteNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Tab ends in the text box") << int(Qt::Key_Tab);
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
    QTest::newRow("F4") << int(Qt::Key_F4);
}

void tst_KorDateCalendar::closingKeysWriteNothing()
{
    QFETCH(int, key);
    QVERIFY(enter());
    press(Qt::Key_F4);
    EventLog log(m_date);
    press(static_cast<Qt::Key>(key));
    settle();
    QVERIFY(!isOpen());
    QCOMPARE(m_box->text(), QString());
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QCOMPARE(log.take(), QString());
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDateCalendar::escapeAfterMovingKeepsTheLastDateAndDataChanged()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    press(Qt::Key_Right);
    press(Qt::Key_Escape);
    QCOMPARE(m_box->text(), QStringLiteral("16.03.1999"));
    press(Qt::Key_Tab);
    settle();
    QVERIFY(m_date->DataChanged());
    QCOMPARE(m_date->Value(), QVariant(QDate(1999, 3, 16)));
}

void tst_KorDateCalendar::acceptingTheSameDayKeepsDataChanged()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    press(Qt::Key_Return); // a deliberate choice, though of the same day
    press(Qt::Key_Tab);
    settle();
    QVERIFY(m_date->DataChanged());
    // The choice counts for one leaving only.
    m_date->setFocus();
    settle();
    press(Qt::Key_Tab);
    settle();
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDateCalendar::escapeOnTheSameDayLeavesDataChangedFalse()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    press(Qt::Key_Escape);
    press(Qt::Key_Tab);
    settle();
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDateCalendar::valueIsReadWhenTheBoxIsLeft()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    QCOMPARE(m_date->Value(), QVariant(QDate(1999, 3, 15)));
    press(Qt::Key_Tab);
    settle();
    QCOMPARE(m_date->Value(), QVariant(QDate(1999, 3, 16)));
}

void tst_KorDateCalendar::aReturnFromTheCalendarIsNoNewEntry()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    press(Qt::Key_Right);
    press(Qt::Key_Escape);
    QTest::keyClicks(m_box, QStringLiteral("15.03.1999")); // what stood there when the user came
    press(Qt::Key_Tab);
    settle();
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDateCalendar::doubleClickPicksTheDay()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    const QPoint place = placeOf(QDate(2004, 2, 20));
    QTest::mouseClick(days(), Qt::LeftButton, {}, place);
    QCOMPARE(m_box->text(), QStringLiteral("20.02.2004"));
    QVERIFY(isOpen());
    QTest::mouseDClick(days(), Qt::LeftButton, {}, place);
    QVERIFY(!isOpen());
    QCOMPARE(field(m_box), QStringLiteral("[20.02.2004]"));
}

void tst_KorDateCalendar::clickWritesTheDayAndStaysOpen()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    EventLog log(m_date);
    QTest::mouseClick(days(), Qt::LeftButton, {}, placeOf(QDate(2004, 2, 1)));
    QCOMPARE(m_box->text(), QStringLiteral("01.02.2004"));
    QVERIFY(isOpen());
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorDateCalendar::onlyADoubleClickOfTheLeftButtonOnADayPicks_data()
{
    QTest::addColumn<bool>("isLeft");
    QTest::addColumn<bool>("isOnDay");
    QTest::addColumn<bool>("picks");
    QTest::newRow("left, on a day") << true << true << true;
    QTest::newRow("right, on a day") << false << true << false;
    QTest::newRow("left, on the names of the days") << true << false << false;
}

void tst_KorDateCalendar::onlyADoubleClickOfTheLeftButtonOnADayPicks()
{
    QFETCH(bool, isLeft);
    QFETCH(bool, isOnDay);
    QFETCH(bool, picks);
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    EventLog log(m_date);
    const QPoint place = isOnDay ? placeOf(QDate(2004, 2, 15)) : QPoint(3, 3);
    QTest::mouseDClick(days(), isLeft ? Qt::LeftButton : Qt::RightButton, {}, place);
    QCOMPARE(isOpen(), !picks);
    QCOMPARE(m_box->text(), QStringLiteral("15.02.2004"));
    QCOMPARE(log.take(), QString());
}

void tst_KorDateCalendar::oneClickPicksNothingWhereTheStyleOpensByOne()
{
    class OneClick : public QProxyStyle
    {
    public:
        int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                      QStyleHintReturn *answer) const override
        {
            return hint == SH_ItemView_ActivateItemOnSingleClick ? 1
                                                                 : QProxyStyle::styleHint(hint, option, widget, answer);
        }
    };
    OneClick style;
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    view()->findChild<QTableView *>()->setStyle(&style);
    QTest::mouseClick(days(), Qt::LeftButton, {}, placeOf(QDate(2004, 2, 20)));
    QVERIFY(isOpen());
    QTest::mouseDClick(days(), Qt::LeftButton, {}, placeOf(QDate(2004, 2, 20)));
    QVERIFY(!isOpen());
    QCOMPARE(m_box->text(), QStringLiteral("20.02.2004"));
    view()->findChild<QTableView *>()->setStyle(nullptr);
}

void tst_KorDateCalendar::pagingByMouseSelectsNothing()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    auto *next = view()->findChild<QToolButton *>(QStringLiteral("qt_calendar_nextmonth"));
    QVERIFY(next);
    QTest::mouseClick(next, Qt::LeftButton);
    QCOMPARE(view()->monthShown(), 3);
    QCOMPARE(m_box->text(), QStringLiteral("15.02.2004"));
    QVERIFY(isOpen());
}

void tst_KorDateCalendar::aTypedYearGivesTheKeyboardBackToTheDays()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    QTest::mouseClick(view()->findChild<QToolButton *>(QStringLiteral("qt_calendar_yearbutton")), Qt::LeftButton);
    press(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("1999"));
    press(Qt::Key_Return);
    settle();
    QVERIFY(isOpen()); // the key was for the year
    QCOMPARE(view()->yearShown(), 1999);
    QCOMPARE(m_box->text(), QStringLiteral("15.02.2004"));
    press(Qt::Key_Right);
    QCOMPARE(m_box->text(), QStringLiteral("16.02.1999"));
    press(Qt::Key_Return);
    QVERIFY(!isOpen());
    QCOMPARE(m_box->text(), QStringLiteral("16.02.1999"));
}

void tst_KorDateCalendar::aLockedFieldIsNotWrittenTo()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_Tab); // a choice of the test before counts no longer
    settle();
    m_date->setLocked(true);
    m_date->setFocus();
    settle();
    EventLog log(m_date);
    press(Qt::Key_F4);
    QVERIFY(isOpen());
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    QVERIFY(!isOpen());
    QCOMPARE(m_box->text(), QStringLiteral("15.02.2004"));
    QCOMPARE(log.take(), QStringLiteral("Click KeyDown(115,0)"));
    press(Qt::Key_Tab);
    settle();
    QVERIFY(!m_date->DataChanged()); // nothing was handed back
}

void tst_KorDateCalendar::aChoiceCountsForTheNextFieldThatIsLeft()
{
    auto *second = m_stage->place(new KorDate);
    QVERIFY(enter(QDate(1999, 3, 15)));
    press(Qt::Key_F4);
    press(Qt::Key_Return);
    delete m_date; // before it is left
    second->setDataChanged(false);
    for (const bool isMarked : {true, false}) {
        second->setFocus();
        settle();
        press(Qt::Key_Tab);
        settle();
        QCOMPARE(second->DataChanged(), isMarked);
    }
}

void tst_KorDateCalendar::keysSentToTheWindowReachTheCalendar()
{
    QVERIFY(enter(QDate(2004, 2, 15)));
    press(Qt::Key_F4);
    QTest::keyPress(month(), Qt::Key_Right);
    QCOMPARE(m_box->text(), QStringLiteral("16.02.2004"));
    QTest::keyPress(view(), Qt::Key_Right);
    QCOMPARE(m_box->text(), QStringLiteral("17.02.2004"));
    QTest::keyPress(view(), Qt::Key_F9);
    QVERIFY(isOpen());
    QTest::keyPress(view(), Qt::Key_Escape);
    QVERIFY(!isOpen());
}

QTEST_MAIN(tst_KorDateCalendar)
#include "tst_kordate_calendar.moc"
