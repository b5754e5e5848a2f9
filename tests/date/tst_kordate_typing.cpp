// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/datesuite.h"
#include "date/isodates.h"
#include "support/eventlog.h"

#include <KorDaoUC/KorDate>
#include <KorDaoUC/Locale>
#include <KorDaoUC/Variant>

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

using namespace kor;
using namespace kor::test;

//! The date field in the hands of a clerk: typing and stepping.
class tst_KorDate_Typing : public DateSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

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

    void upOnAnEmptyBoxGivesTomorrowWithTheCaretBehindTheFirstCharacter();
    void downOnAnEmptyBoxGivesYesterday();
    void stepsKeepTheCaretOnlyDownwards_data();
    void stepsKeepTheCaretOnlyDownwards();
    void insertGivesToday();
    void stepsStartFromTheValueNotFromWhatIsTyped();
    void stepsEndWithTheCalendar();
};

void tst_KorDate_Typing::init() { setUp(); }

void tst_KorDate_Typing::cleanup()
{
    QGuiApplication::clipboard()->clear();
    tearDown();
}

void tst_KorDate_Typing::typedAndLeft_data()
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

void tst_KorDate_Typing::typedAndLeft()
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

void tst_KorDate_Typing::typedAndLeftByIso()
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

void tst_KorDate_Typing::aFieldKeepsTheLocaleItStartedWith()
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

void tst_KorDate_Typing::valueIsNotReadWhileTyping()
{
    QVERIFY(enter(QDate(1999, 3, 15)));
    QTest::keyClicks(m_box, QStringLiteral("010203"));
    QCOMPARE(m_date->Value(), QVariant(QDate(1999, 3, 15)));
    QVERIFY(m_date->DataChanged());
    leave();
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
}

void tst_KorDate_Typing::lettersAreDroppedSilently()
{
    Beeps beeps;
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("a1; :+2"));
    QKeyEvent altGrL(QEvent::KeyPress, 0x141, Qt::NoModifier, QStringLiteral("ł"));
    QApplication::sendEvent(m_box, &altGrL);
    QCOMPARE(field(m_box), QStringLiteral("12|"));
    QCOMPARE(beeps.take(), 0);
}

void tst_KorDate_Typing::hyphenIsTypedOnlyWhereItSeparatesDates()
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

void tst_KorDate_Typing::deadKeysAndInputMethodsAreFilteredToo()
{
    QVERIFY(enter());
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("1ą.2"));
    QApplication::sendEvent(m_box, &composed);
    QCOMPARE(field(m_box), QStringLiteral("1.2|"));
}

void tst_KorDate_Typing::composingDestroysNothing()
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

void tst_KorDate_Typing::copyCutAndPasteActOnTheWholeText()
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

void tst_KorDate_Typing::pastedDatesAreCheckedLikeTypedOnes_data()
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

void tst_KorDate_Typing::pastedDatesAreCheckedLikeTypedOnes()
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

void tst_KorDate_Typing::insertAndDeleteKeysActAsTheirCtrlTwins()
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

void tst_KorDate_Typing::lockedFieldKeepsItsDate()
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

void tst_KorDate_Typing::aLockHoldsWhatTheProgramGives_data()
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

void tst_KorDate_Typing::aLockHoldsWhatTheProgramGives()
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

void tst_KorDate_Typing::aLockTakesOverWhatWasTypedBeforeIt()
{
    QVERIFY(enter());
    QTest::keyClicks(m_box, QStringLiteral("010203"));
    m_date->setLocked(true);
    leave();
    QCOMPARE(m_date->Text(), QStringLiteral("01.02.2003"));
    QCOMPARE(m_date->Value(), QVariant(QDate(2003, 2, 1)));
}

void tst_KorDate_Typing::upOnAnEmptyBoxGivesTomorrowWithTheCaretBehindTheFirstCharacter()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(field(m_box), QStringLiteral("0|6.03.2024"));
    QCOMPARE(m_date->Value(), QVariant(today.addDays(1)));
    QCOMPARE(log.take(), QStringLiteral("Change KeyUp(38,0)"));
    QVERIFY(m_date->DataChanged());
}

void tst_KorDate_Typing::downOnAnEmptyBoxGivesYesterday()
{
    QVERIFY(enter());
    EventLog log(m_date);
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(m_box->text(), QStringLiteral("04.03.2024"));
    QCOMPARE(m_date->Value(), QVariant(today.addDays(-1)));
    QCOMPARE(log.take(), QStringLiteral("Change KeyUp(40,0)"));
}

void tst_KorDate_Typing::stepsKeepTheCaretOnlyDownwards_data()
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

void tst_KorDate_Typing::stepsKeepTheCaretOnlyDownwards()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter(QDate(2003, 2, 28)));
    setField(m_box, QStringLiteral("28.02|.2003"));
    QTest::keyClick(m_box, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QTEST(field(m_box), "state");
}

void tst_KorDate_Typing::insertGivesToday()
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

void tst_KorDate_Typing::stepsStartFromTheValueNotFromWhatIsTyped()
{
    QVERIFY(enter(QDate(2003, 2, 28)));
    QTest::keyClicks(m_box, QStringLiteral("1"));
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->text(), QStringLiteral("01.03.2003"));
}

void tst_KorDate_Typing::stepsEndWithTheCalendar()
{
    QVERIFY(enter(QDate(9999, 12, 31)));
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(m_box->text(), QStringLiteral("31.12.9999"));
    m_date->setValue(QDate(100, 1, 1));
    QTest::keyClick(m_box, Qt::Key_PageDown);
    QCOMPARE(m_date->Value(), QVariant(QDate(100, 1, 1)));
}

QTEST_MAIN(tst_KorDate_Typing)
#include "tst_kordate_typing.moc"
