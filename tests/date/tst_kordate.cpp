// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/datesuite.h"
#include "support/eventlog.h"

#include <KorDaoUC/KorDate>
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

Locale polishIso()
{
    Locale locale = Locale::polish();
    locale.shortDatePattern = QStringLiteral("yyyy-MM-dd");
    locale.dateSeparator = u'-';
    return locale;
}

} // namespace

//! The date field in the hands of a clerk: typing, stepping, entering, leaving.
class tst_KorDate : public DateSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    // values
    void aFreshFieldShowsToday();
    void valueGivenAs_data();
    void valueGivenAs();
    void textGivenAs_data();
    void textGivenAs();
    void textThatIsNoDateKeepsTheOldTextAndGivesNull();
    void valueOfZeroIsNull();
    void maskIsOnlyStored();

    // typing
    void typedAndLeft_data();
    void typedAndLeft();
    void typedAndLeftByIso();
    void aFieldKeepsTheLocaleItStartedWith();
    void valueIsNotReadWhileTyping();
    void lettersAreDroppedSilently();
    void hyphenIsTypedOnlyWhereItSeparatesDates();
    void deadKeysAndInputMethodsAreFilteredToo();
    void composingDestroysNothing();
    void copyCutAndPasteActOnTheWholeText();
    void pastedDatesAreCheckedLikeTypedOnes_data();
    void pastedDatesAreCheckedLikeTypedOnes();
    void insertAndDeleteKeysActAsTheirCtrlTwins();
    void lockedFieldKeepsItsDate();
    void aLockHoldsWhatTheProgramGives_data();
    void aLockHoldsWhatTheProgramGives();
    void aLockTakesOverWhatWasTypedBeforeIt();

    // stepping
    void upOnAnEmptyBoxGivesTomorrowWithTheCaretBehindTheFirstCharacter();
    void downOnAnEmptyBoxGivesYesterday();
    void stepsKeepTheCaretOnlyDownwards_data();
    void stepsKeepTheCaretOnlyDownwards();
    void insertGivesToday();
    void stepsStartFromTheValueNotFromWhatIsTyped();
    void stepsEndWithTheCalendar();

    // focus
    void enteringSelectsEverything();
    void leavingUntouchedRaisesChangeAndLeavesDataChangedFalse();
    void leavingAnEmptyFieldUntouchedRaisesChangeTwice();
    void leavingAnEmptiedFieldLeavesDataChangedTrue();
    void aWrongDateSendsTheUserBackWithAMessage();
    void theMessageShowsTheMask_data();
    void theMessageShowsTheMask();
    void theMessageComesBeforeTheChangeOfLeaving();
    void aReturnAfterTheMessageIsNoNewEntry();
    void aWrongDateIsErasedWithABeepWhenTheUserCannotGoBack();
    void twoWrongFieldsGiveOneMessage();
    void whatIsComposedOnTheWayBackIsNotTyped();
    void anotherWindowIsNoLeaving();
    void nullStaysNullThroughTabbing();
    void wheelChangesNothing();

private:
    void leave();
};

void tst_KorDate::init() { setUp(); }

void tst_KorDate::cleanup()
{
    QGuiApplication::clipboard()->clear();
    tearDown();
}

void tst_KorDate::leave()
{
    QTest::keyClick(m_box, Qt::Key_Tab);
    settle();
}

void tst_KorDate::aFreshFieldShowsToday()
{
    KorDate date;
    QCOMPARE(date.Value(), QVariant(today));
    QCOMPARE(date.Text(), QStringLiteral("05.03.2024"));
    QCOMPARE(date.FormatMask(), QStringLiteral("Short Date"));
    QVERIFY(!date.DataChanged());
    QVERIFY(!date.CurrentDate());
    QVERIFY(!date.BlockUpDown());
    QVERIFY(date.EnabledClick());
    QCOMPARE(date.BorderStyle(), BorderStyleType::FixedSingle);
}

void tst_KorDate::valueGivenAs_data()
{
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    const QDate day(1999, 3, 15);
    const QDateTime withTime(day, QTime(8, 15));
    // clang-format off
    QTest::newRow("date")             << QVariant(day)           << QStringLiteral("15.03.1999") << QVariant(day);
    QTest::newRow("date with a time") << QVariant(withTime)      << QStringLiteral("15.03.1999") << QVariant(withTime);
    QTest::newRow("Null")             << null()                  << QString()                    << null();
    QTest::newRow("missing argument") << missing()               << QString()                    << null();
    QTest::newRow("Empty")            << QVariant()              << QString()                    << null();
    QTest::newRow("empty text")       << QVariant(QString())     << QString()                    << null();
    QTest::newRow("a number as it is")<< QVariant(36234)         << QStringLiteral("15.03.1999") << QVariant(36234);
    QTest::newRow("a text as it is")  << QVariant(QStringLiteral("15.3.99")) << QStringLiteral("15.03.1999")
                                      << QVariant(QStringLiteral("15.3.99"));
    // clang-format on
}

void tst_KorDate::valueGivenAs()
{
    QFETCH(QVariant, given);
    QFETCH(QVariant, value);
    EventLog log(m_date);
    m_date->setValue(given);
    QTEST(m_date->Text(), "text");
    QVERIFY(isSameSetting(m_date->Value(), value));
    QVERIFY(m_date->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Change"));
    m_date->setValue(given);
    QCOMPARE(log.take(), QString()); // the text is the same
}

void tst_KorDate::textGivenAs_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    const QVariant day = QDate(2003, 2, 1);
    // clang-format off
    QTest::newRow("as written")          << QStringLiteral("01.02.2003") << QStringLiteral("01.02.2003") << day;
    QTest::newRow("loosely typed")       << QStringLiteral("1/2-3")      << QStringLiteral("01.02.2003") << day;
    QTest::newRow("bare digits")         << QStringLiteral("010203")     << QStringLiteral("01.02.2003") << day;
    QTest::newRow("empty")               << QString()                    << QString()                    << null();
    QTest::newRow("no date")             << QStringLiteral("31.02.2001") << QStringLiteral("05.03.2024") << null();
    QTest::newRow("letters")             << QStringLiteral("jutro")      << QStringLiteral("05.03.2024") << null();
    // clang-format on
}

void tst_KorDate::textGivenAs()
{
    QFETCH(QString, given);
    QFETCH(QVariant, value);
    Messages messages;
    m_date->setText(given);
    QTEST(m_date->Text(), "text");
    QVERIFY(isSameSetting(m_date->Value(), value));
    QVERIFY(m_date->DataChanged());
    QVERIFY(messages.take().isEmpty());
}

void tst_KorDate::textThatIsNoDateKeepsTheOldTextAndGivesNull()
{
    m_date->setText(QStringLiteral("15.03.1999"));
    EventLog log(m_date);
    m_date->setText(QStringLiteral("15.13.1999"));
    QCOMPARE(m_date->Text(), QStringLiteral("15.03.1999"));
    QVERIFY(isNull(m_date->Value()));
    QCOMPARE(log.take(), QString());
}

void tst_KorDate::valueOfZeroIsNull()
{
    for (const QVariant &zero : {QVariant(0), QVariant(0.0), QVariant(QStringLiteral("0")), QVariant(QString())}) {
        m_date->setValue(zero);
        QVERIFY(isNull(m_date->Value()));
    }
}

void tst_KorDate::maskIsOnlyStored()
{
    EventLog log(m_date);
    m_date->setFormatMask(QStringLiteral("yyyy-MM-dd"));
    QCOMPARE(m_date->Text(), QStringLiteral("05.03.2024"));
    QCOMPARE(log.take(), QString());
    m_date->setValue(QDate(2003, 2, 1));
    QCOMPARE(m_date->Text(), QStringLiteral("2003-02-01"));
}

// --- typing

void tst_KorDate::typedAndLeft_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    const auto row = [](const char *name, const char *mask, const char *typed, const char *text, QDate date) {
        QTest::newRow(name) << QString::fromLatin1(mask) << QString::fromLatin1(typed) << QString::fromLatin1(text)
                            << date;
    };
    // clang-format off
    row("six digits",                 "dd.MM.yyyy", "010203",     "01.02.2003", {2003, 2, 1});
    row("eight digits",               "dd.MM.yyyy", "01021999",   "01.02.1999", {1999, 2, 1});
    row("stops",                      "dd.MM.yyyy", "1.2.2003",   "01.02.2003", {2003, 2, 1});
    row("commas",                     "dd.MM.yyyy", "1,2,2003",   "01.02.2003", {2003, 2, 1});
    row("slashes",                    "dd.MM.yyyy", "1/2/2003",   "01.02.2003", {2003, 2, 1});
    row("year 49 is 2049",            "dd.MM.yyyy", "1/2/49",     "01.02.2049", {2049, 2, 1});
    row("year 50 is 1950",            "dd.MM.yyyy", "1/2/50",     "01.02.1950", {1950, 2, 1});
    row("leap day",                   "dd.MM.yyyy", "290204",     "29.02.2004", {2004, 2, 29});
    row("hyphens are dropped",        "dd.MM.yyyy", "01-02-03",   "01.02.2003", {2003, 2, 1});
    row("short date of the locale",   "Short Date", "010203",     "01.02.2003", {2003, 2, 1});
    row("year first",                 "yyyy-MM-dd", "2003.2.1",   "2003-02-01", {2003, 2, 1});
    row("month first",                "MM/dd/yyyy", "2.1.2003",   "02.01.2003", {2003, 2, 1});
    // clang-format on
}

void tst_KorDate::typedAndLeft()
{
    QFETCH(QString, mask);
    QFETCH(QString, typed);
    QFETCH(QDate, date);
    Messages messages;
    m_date->setFormatMask(mask);
    QVERIFY(enter());
    QTest::keyClicks(m_box, typed);
    leave();
    QTEST(m_date->Text(), "text");
    QCOMPARE(m_date->Value(), QVariant(date));
    QVERIFY(m_date->DataChanged());
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
    QVERIFY(messages.take().isEmpty());
}

void tst_KorDate::typedAndLeftByIso()
{
    Locale::setSystemDefault(polishIso());
    auto *date = m_stage->place(new KorDate);
    date->setValue(null());
    QVERIFY(m_stage->open());
    date->setFocus();
    settle();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("49-2-1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    settle();
    QCOMPARE(date->Text(), QStringLiteral("2049-02-01"));
}

void tst_KorDate::aFieldKeepsTheLocaleItStartedWith()
{
    Locale::setSystemDefault(polishIso());
    QVERIFY(enter(QDate(2024, 2, 1)));
    QCOMPARE(m_date->Text(), QStringLiteral("01.02.2024"));
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_date->Text(), QStringLiteral("02.02.2024"));
    m_box->clear();
    QTest::keyClicks(m_box, QStringLiteral("3/4/24"));
    leave();
    QCOMPARE(m_date->Text(), QStringLiteral("03.04.2024"));
    QCOMPARE(m_date->Value(), QVariant(QDate(2024, 4, 3)));
}

void tst_KorDate::valueIsNotReadWhileTyping()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    QTest::keyClicks(m_box, QStringLiteral("010203"));
    QCOMPARE(m_date->Value(), QVariant(QDate(1999, 3, 15)));
    QVERIFY(m_date->DataChanged());
    leave();
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
}

void tst_KorDate::lettersAreDroppedSilently()
{
    Beeps beeps;
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("a1; :+2"));
    QKeyEvent altGrL(QEvent::KeyPress, 0x141, Qt::NoModifier, QStringLiteral("ł"));
    QApplication::sendEvent(m_box, &altGrL);
    QCOMPARE(field(m_box), QStringLiteral("12|"));
    QCOMPARE(beeps.take(), 0);
}

void tst_KorDate::hyphenIsTypedOnlyWhereItSeparatesDates()
{
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("1-2"));
    QCOMPARE(field(m_box), QStringLiteral("12|"));
    Locale::setSystemDefault(polishIso());
    auto *iso = m_stage->place(new KorDate);
    iso->setValue(null());
    auto *box = iso->findChild<QLineEdit *>(QStringLiteral("txtDate"));
    QTest::keyClicks(box, QStringLiteral("1-2"));
    QCOMPARE(box->text(), QStringLiteral("1-2"));
    QTest::keyClicks(m_box, QStringLiteral("-")); // the field that was there before keeps its separators
    QCOMPARE(m_box->text(), QStringLiteral("12"));
}

void tst_KorDate::deadKeysAndInputMethodsAreFilteredToo()
{
    QVERIFY(enter());
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("1ą.2"));
    QApplication::sendEvent(m_box, &composed);
    QCOMPARE(field(m_box), QStringLiteral("1.2|"));
}

void tst_KorDate::composingDestroysNothing()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    EventLog log(m_date);
    const auto compose = [this](const char16_t *preedit, const char16_t *committed) {
        QInputMethodEvent event(QString::fromUtf16(preedit), {});
        event.setCommitString(QString::fromUtf16(committed));
        QApplication::sendEvent(m_box, &event);
    };
    compose(u"´", u""); // a dead key
    QCOMPARE(m_date->Text(), QStringLiteral("01.02.2003"));
    compose(u"", u"ś"); // no character of a date
    QCOMPARE(field(m_box), QStringLiteral("[01.02.2003]"));
    compose(u"´", u"");
    compose(u"", u""); // given up
    QCOMPARE(field(m_box), QStringLiteral("[01.02.2003]"));
    QCOMPARE(log.take(), QString());
    QVERIFY(!m_date->DataChanged());
    compose(u"1", u"");
    compose(u"12", u"");
    compose(u"", u"12");
    QCOMPARE(field(m_box), QStringLiteral("12|"));
    QCOMPARE(log.take(), QStringLiteral("KeyPress(49) Change KeyPress(50) Change"));
}

void tst_KorDate::copyCutAndPasteActOnTheWholeText()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    EventLog log(m_date);
    log.ignore({QStringLiteral("KeyUp")});
    setField(m_box, QStringLiteral("[01].02.2003"));
    QTest::keyClick(m_box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("01"));
    QCOMPARE(field(m_box), QStringLiteral("[01].02.2003"));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(67,2)"));
    QVERIFY(!m_date->DataChanged());

    QTest::keyClick(m_box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("01"));
    QCOMPARE(m_box->text(), QString());
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(88,2)"));

    QGuiApplication::clipboard()->setText(QStringLiteral("1-2-03"));
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(field(m_box), QStringLiteral("|1-2-03"));
    QCOMPARE(log.take(), QStringLiteral("Change KeyDown(86,2)"));
    m_date->setDataChanged(false);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier); // the same text: no Change
    QCOMPARE(log.take(), QStringLiteral("KeyDown(86,2)"));
    QVERIFY(m_date->DataChanged());
}

void tst_KorDate::pastedDatesAreCheckedLikeTypedOnes_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("text"); // empty: refused
    // clang-format off
    QTest::newRow("hyphens")          << QStringLiteral("1-2-2003")      << QStringLiteral("01.02.2003");
    QTest::newRow("slashes")          << QStringLiteral("01/02/2003")    << QStringLiteral("01.02.2003");
    QTest::newRow("bare digits")      << QStringLiteral("01022003")      << QStringLiteral("01.02.2003");
    QTest::newRow("year first")       << QStringLiteral("2003-02-01")    << QString();
    QTest::newRow("month in words")   << QStringLiteral("1 lutego 2003") << QString();
    QTest::newRow("letters")          << QStringLiteral("jutro")         << QString();
    // clang-format on
}

void tst_KorDate::pastedDatesAreCheckedLikeTypedOnes()
{
    QFETCH(QString, pasted);
    QFETCH(QString, text);
    Messages messages;
    QVERIFY(enter());
    QGuiApplication::clipboard()->setText(pasted);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_box->text(), pasted);
    leave();
    QCOMPARE(messages.take().size(), text.isEmpty() ? 1 : 0);
    QCOMPARE(m_box->text(), text.isEmpty() ? pasted : text);
    QCOMPARE(isNull(m_date->Value()), text.isEmpty());
}

void tst_KorDate::insertAndDeleteKeysActAsTheirCtrlTwins()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    setField(m_box, QStringLiteral("[01].02.2003"));
    QTest::keyClick(m_box, Qt::Key_Insert, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("01"));
    QCOMPARE(m_box->text(), QStringLiteral("01.02.2003")); // copied, not today
    QTest::keyClick(m_box, Qt::Key_Delete, Qt::ShiftModifier);
    QCOMPARE(m_box->text(), QString());
    QTest::keyClick(m_box, Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(m_box->text(), QStringLiteral("01"));
}

void tst_KorDate::lockedFieldKeepsItsDate()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    m_date->setLocked(true);
    EventLog log(m_date);
    log.ignore({QStringLiteral("KeyUp")});
    QGuiApplication::clipboard()->setText(QStringLiteral("09.09.2009"));
    for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Insert})
        QTest::keyClick(m_box, key);
    QCOMPARE(log.take(), QString());
    QTest::keyClick(m_box, Qt::Key_1);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(49,0) KeyPress(49)"));
    QTest::keyClick(m_box, Qt::Key_Delete);
    QTest::keyClick(m_box, Qt::Key_Backspace);
    QTest::keyClick(m_box, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(m_box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(m_date->Text(), QStringLiteral("01.02.2003"));
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
    m_date->setValue(QDate(2004, 1, 1)); // the program may
    QCOMPARE(m_date->Text(), QStringLiteral("01.01.2004"));
}

void tst_KorDate::aLockHoldsWhatTheProgramGives_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("a date as a number")            << QVariant(1)                   << "dd.MM.yyyy" << "31.12.1899";
    QTest::newRow("a date with its time")          << QVariant(QDateTime({2003, 2, 1}, {14, 30})) << "dd.MM.yyyy" << "01.02.2003";
    QTest::newRow("another century than its text") << QVariant(QDate(1903, 2, 1))   << "dd.MM.yy"   << "01.02.03";
    QTest::newRow("a text that is no date")        << QVariant(QStringLiteral("?")) << "dd.MM.yyyy" << "?";
    QTest::newRow("a date that shows nothing")     << QVariant(QDate(2003, 2, 1))   << R"("")"      << "";
    // clang-format on
}

void tst_KorDate::aLockHoldsWhatTheProgramGives()
{
    QFETCH(QVariant, value);
    QFETCH(QString, mask);
    Messages messages;
    QVERIFY(enter(QDate(1999, 3, 15)));
    m_date->setLocked(true);
    m_date->setFormatMask(mask);
    m_date->setValue(value); // while the user is inside
    QTEST(m_date->Text(), "text");
    for (int round = 0; round < 2; ++round) {
        leave();
        QTEST(m_date->Text(), "text");
        QCOMPARE(m_date->Value(), value);
        m_date->setFocus();
        settle();
    }
    QCOMPARE(messages.take(), QStringList());
}

void tst_KorDate::aLockTakesOverWhatWasTypedBeforeIt()
{
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("010203"));
    m_date->setLocked(true);
    leave();
    QCOMPARE(m_date->Text(), QStringLiteral("01.02.2003"));
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
}

// --- stepping

void tst_KorDate::upOnAnEmptyBoxGivesTomorrowWithTheCaretBehindTheFirstCharacter()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(field(m_box), QStringLiteral("0|6.03.2024"));
    QCOMPARE(m_date->Value(), QVariant(today.addDays(1)));
    QCOMPARE(log.take(), QStringLiteral("Change KeyUp(38,0)"));
    QVERIFY(m_date->DataChanged());
}

void tst_KorDate::downOnAnEmptyBoxGivesYesterday()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(m_box->text(), QStringLiteral("04.03.2024"));
    QCOMPARE(m_date->Value(), QVariant(today.addDays(-1)));
    QCOMPARE(log.take(), QStringLiteral("Change KeyUp(40,0)"));
}

void tst_KorDate::stepsKeepTheCaretOnlyDownwards_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("state");
    // clang-format off
    QTest::newRow("Up")           << int(Qt::Key_Up)       << 0                         << QStringLiteral("0|1.03.2003");
    QTest::newRow("Down")         << int(Qt::Key_Down)     << 0                         << QStringLiteral("27.02|.2003");
    QTest::newRow("Page Up")      << int(Qt::Key_PageUp)   << 0                         << QStringLiteral("0|7.03.2003");
    QTest::newRow("Page Down")    << int(Qt::Key_PageDown) << 0                         << QStringLiteral("21.02|.2003");
    QTest::newRow("Shift+Up")     << int(Qt::Key_Up)       << int(Qt::ShiftModifier)    << QStringLiteral("0|1.03.2003");
    QTest::newRow("Ctrl+Down")    << int(Qt::Key_Down)     << int(Qt::ControlModifier)  << QStringLiteral("27.02|.2003");
    QTest::newRow("Alt+Page Up")  << int(Qt::Key_PageUp)   << int(Qt::AltModifier)      << QStringLiteral("0|7.03.2003");
    QTest::newRow("keypad Down")  << int(Qt::Key_Down)     << int(Qt::KeypadModifier)   << QStringLiteral("27.02|.2003");
    // clang-format on
}

void tst_KorDate::stepsKeepTheCaretOnlyDownwards()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter(QDate(2003, 2, 28)));
    setField(m_box, QStringLiteral("28.02|.2003"));
    QTest::keyClick(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(field(m_box), "state");
}

void tst_KorDate::insertGivesToday()
{
    QVERIFY(enter(QDate(2003, 2, 28)));
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_Insert);
    QCOMPARE(field(m_box), QStringLiteral("|05.03.2024"));
    QCOMPARE(m_date->Value(), QVariant(today));
    QCOMPARE(log.take(), QStringLiteral("Change KeyUp(45,0)"));
    m_date->setDataChanged(false);
    QTest::keyClick(m_box, Qt::Key_Insert);
    QCOMPARE(log.take(), QStringLiteral("KeyUp(45,0)"));
    QVERIFY(m_date->DataChanged());
}

void tst_KorDate::stepsStartFromTheValueNotFromWhatIsTyped()
{
    QVERIFY(enter(QDate(2003, 2, 28)));
    QTest::keyClicks(m_box, QStringLiteral("1"));
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->text(), QStringLiteral("01.03.2003"));
}

void tst_KorDate::stepsEndWithTheCalendar()
{
    QVERIFY(enter(QDate(9999, 12, 31)));
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->text(), QStringLiteral("31.12.9999"));
    m_date->setValue(QDate(100, 1, 1));
    QTest::keyClick(m_box, Qt::Key_PageDown);
    QCOMPARE(m_date->Value(), QVariant(QDate(100, 1, 1)));
}

// --- focus

void tst_KorDate::enteringSelectsEverything()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    QCOMPARE(field(m_box), QStringLiteral("[01.02.2003]"));
}

void tst_KorDate::leavingUntouchedRaisesChangeAndLeavesDataChangedFalse()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    EventLog log(m_date);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    leave();
    QCOMPARE(log.take(), QStringLiteral("Change"));
    QVERIFY(!m_date->DataChanged());
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
}

void tst_KorDate::leavingAnEmptyFieldUntouchedRaisesChangeTwice()
{
    QVERIFY(enter());
    EventLog log(m_date);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    leave();
    QCOMPARE(log.take(), QStringLiteral("Change Change"));
    QVERIFY(!m_date->DataChanged());
    QVERIFY(isNull(m_date->Value()));
}

void tst_KorDate::leavingAnEmptiedFieldLeavesDataChangedTrue()
{
    QVERIFY(enter(QDate(2003, 2, 1)));
    QTest::keyClick(m_box, Qt::Key_Delete);
    EventLog log(m_date);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    leave();
    QCOMPARE(log.take(), QStringLiteral("Change Change"));
    QVERIFY(m_date->DataChanged());
    QVERIFY(isNull(m_date->Value()));
}

void tst_KorDate::aWrongDateSendsTheUserBackWithAMessage()
{
    Messages messages;
    Beeps beeps;
    QVERIFY(enter(QDate(2003, 2, 1)));
    QTest::keyClicks(m_box, QStringLiteral("31.02.2001"));
    leave();
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QCOMPARE(messages.take(),
             QStringList{QStringLiteral("Błąd formatu daty: Błędna data. Wprowadź datę w formacie: dd.MM.rrrr")});
    QCOMPARE(field(m_box), QStringLiteral("[31.02.2001]")); // kept for correction
    QVERIFY(isNull(m_date->Value()));
    QVERIFY(m_date->DataChanged());
    QCOMPARE(beeps.take(), 0);
    QTest::keyClicks(m_box, QStringLiteral("28.02.2001"));
    leave();
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
    QCOMPARE(m_date->Value(), QVariant(QDate(2001, 2, 28)));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorDate::theMessageShowsTheMask_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("short date") << QStringLiteral("Short Date") << QStringLiteral("dd.MM.rrrr");
    QTest::newRow("a mask") << QStringLiteral("yyyy-MM-dd") << QStringLiteral("rrrr-MM-dd");
    QTest::newRow("another named mask") << QStringLiteral("Medium Date") << QStringLiteral("Medium Date");
}

void tst_KorDate::theMessageShowsTheMask()
{
    QFETCH(QString, mask);
    QFETCH(QString, pattern);
    Messages messages;
    m_date->setFormatMask(mask);
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("1"));
    leave();
    QCOMPARE(messages.take(),
             QStringList{QStringLiteral("Błąd formatu daty: Błędna data. Wprowadź datę w formacie: ") + pattern});
}

void tst_KorDate::theMessageComesBeforeTheChangeOfLeaving()
{
    Messages messages;
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99"));
    QStringList order;
    connect(m_date, &KorDate::Change, this, [&] {
        order << (messages.take().isEmpty() ? QStringLiteral("early") : QStringLiteral("late"))
              << (m_stage->focusWidget() == m_box ? QStringLiteral("focus is back") : QStringLiteral("elsewhere"));
    });
    leave();
    QCOMPARE(order, (QStringList{QStringLiteral("late"), QStringLiteral("focus is back")}));
}

void tst_KorDate::aReturnAfterTheMessageIsNoNewEntry()
{
    Messages messages;
    QVERIFY(enter(QDate(2003, 2, 1)));
    QTest::keyClicks(m_box, QStringLiteral("99"));
    leave();
    QCOMPARE(messages.take().size(), 1);
    QTest::keyClicks(m_box, QStringLiteral("01.02.2003")); // what stood there when the user came
    leave();
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDate::aWrongDateIsErasedWithABeepWhenTheUserCannotGoBack()
{
    Messages messages;
    Beeps beeps;
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99"));
    EventLog log(m_date);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown")});
    m_stage->button()->setFocus();
    m_date->setEnabled(false);
    settle();
    QCOMPARE(messages.take().size(), 1);
    QCOMPARE(beeps.take(), 1);
    QCOMPARE(m_date->Text(), QString());
    QVERIFY(isNull(m_date->Value()));
    QCOMPARE(log.take(), QStringLiteral("Change Change")); // of leaving, then of erasing
}

void tst_KorDate::twoWrongFieldsGiveOneMessage()
{
    Messages messages;
    auto *second = m_stage->place(new KorDate);
    second->findChild<QLineEdit *>(QStringLiteral("txtDate"))->setText(QStringLiteral("88"));
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99"));
    second->setFocus();
    QTest::qWait(200);
    QCOMPARE(messages.take().size(), 1);
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QCOMPARE(second->Text(), QStringLiteral("88")); // never entered
}

void tst_KorDate::whatIsComposedOnTheWayBackIsNotTyped()
{
    Messages messages;
    auto *second = m_stage->place(new KorDate);
    second->setValue(null());
    auto *secondBox = second->findChild<QLineEdit *>(QStringLiteral("txtDate"));
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99"));
    secondBox->setFocus();
    QInputMethodEvent composed; // comes before the first field had its say
    composed.setCommitString(QStringLiteral("1"));
    QApplication::sendEvent(secondBox, &composed);
    QCOMPARE(messages.take().size(), 1);
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QCOMPARE(second->Text(), QString());
}

void tst_KorDate::anotherWindowIsNoLeaving()
{
    Messages messages;
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("99"));
    {
        QWidget other;
        QLineEdit edit(&other);
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        edit.setFocus();
        settle();
        QCOMPARE(m_box->text(), QStringLiteral("99"));
    }
    m_stage->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_stage.get()));
    settle();
    QCOMPARE(field(m_box), QStringLiteral("99|"));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorDate::nullStaysNullThroughTabbing()
{
    auto *second = m_stage->place(new KorDate);
    second->setValue(null());
    QVERIFY(enter());
    second->setFocus();
    settle();
    m_stage->button()->setFocus();
    settle();
    for (const KorDate *date : {m_date.data(), second}) {
        QVERIFY(isNull(date->Value()));
        QCOMPARE(date->Text(), QString());
        QVERIFY(!m_date->DataChanged());
    }
}

void tst_KorDate::wheelChangesNothing()
{
    m_date->setValue(QDate(2003, 2, 1));
    QVERIFY(m_stage->open());
    m_stage->button()->setFocus();
    settle();
    const QPointF at(5, 5);
    QWheelEvent wheel(at, m_box->mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(m_box, &wheel);
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
    QCOMPARE(m_date->Text(), QStringLiteral("01.02.2003"));
}

QTEST_MAIN(tst_KorDate)
#include "tst_kordate.moc"
