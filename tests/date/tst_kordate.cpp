// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/datesuite.h"
#include "support/eventlog.h"

#include <KorDaoUC/KorDate>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

using namespace kor;
using namespace kor::test;

//! The date field in the hands of a program and of a clerk: values, entering, leaving.
class tst_KorDate : public DateSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aFreshFieldShowsToday();
    void valueGivenAs_data();
    void valueGivenAs();
    void textGivenAs_data();
    void textGivenAs();
    void textThatIsNoDateKeepsTheOldTextAndGivesNull();
    void valueOfZeroIsNull();
    void maskIsOnlyStored();

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
};

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

// --- stepping

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
