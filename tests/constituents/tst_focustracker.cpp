// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/focustracker.h"
#include "support/stage.h"

#include <KorDaoUC/errorhandler.h>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {

//! A control with one box, which writes down what it hears.
class Field : public QWidget, public FocusClient
{
public:
    Field(const QString &name, QStringList *heard) : m_heard(heard)
    {
        setObjectName(name);
        m_box = new QLineEdit(this);
        setFocusProxy(m_box);
        FocusTracker::instance().addClient(this, this);
    }
    ~Field() override { FocusTracker::instance().removeClient(this); }

    void boxEntered(QWidget *, FocusEntry entry) override
    {
        hear(entry == FocusEntry::Moved ? QStringLiteral("entered") : QStringLiteral("returned"));
    }
    std::optional<Complaint> boxLeft(QWidget *) override
    {
        hear(QStringLiteral("box left"));
        if (!fault.isEmpty())
            return Complaint{fault, QStringLiteral("Błąd"), [this] { hear(QStringLiteral("after message")); }};
        return std::nullopt;
    }
    void controlEntered() override { hear(QStringLiteral("control entered")); }
    void controlLeft() override { hear(QStringLiteral("control left")); }

    [[nodiscard]] QLineEdit *box() const { return m_box; }

    QString fault;
    std::function<void(const QString &)> deed = [](const QString &) {};

private:
    void hear(const QString &what)
    {
        *m_heard << objectName() + QLatin1Char(' ') + what;
        const auto lasting = deed; // which may end the field
        lasting(what);
    }

    QStringList *m_heard;
    QLineEdit *m_box;
};

} // namespace

//! Who hears of the focus, in which order, and what a box answers that is asked.
class tst_FocusTracker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aMoveIsToldAfterItHasHappened();
    void aComplaintPutsTheFocusBack();
    void anotherWindowDecidesNothing();
    void aFieldTakenAwayUnderAMenuIsNotGivenTheKeyboard_data();
    void aFieldTakenAwayUnderAMenuIsNotGivenTheKeyboard();
    void norIsAnyOtherWidget();
    void aFieldMayBeEnteredBeforeItIsShown();

    void aBoxMayBeLeft();
    void aBoxWithAFaultMayNotBeLeft();
    void nobodysBoxMayBeLeft();
    void askingInsideAMoveMovesNothing();
    void aMoveThatWaitsIsAnsweredByAsking();
    void aMoveThatWaitsIsTakenBackByARefusal();
    void aBoxThatGoesAwayUnderItsMessageMayBeLeft();
    void aHandlerMayEndTheBoxThatIsAsked();

    void theNextFieldIsEnteredWhateverTheLastOneThrows_data();
    void theNextFieldIsEnteredWhateverTheLastOneThrows();
    void aDialogOpenedWhileLeavingHasMovesOfItsOwn();
    void aWindowMayEndWhileItsMoveIsHandled();

private:
    [[nodiscard]] QString heard() { return std::exchange(m_heard, {}).join(QStringLiteral(", ")); }

    QStringList m_heard;
    std::unique_ptr<Stage> m_stage;
    Field *m_first = nullptr;
    Field *m_second = nullptr;
    std::unique_ptr<Messages> m_messages;
    QStringList m_errors;
};

void tst_FocusTracker::init()
{
    failOnWarnings();
    setUnhandledErrorHandler(
        [this](QObject *, const RunTimeError &error) { m_errors << QString::number(error.number()); });
    m_messages = std::make_unique<Messages>();
    m_stage = std::make_unique<Stage>();
    m_first = m_stage->place(new Field(QStringLiteral("first"), &m_heard));
    m_second = m_stage->place(new Field(QStringLiteral("second"), &m_heard));
    QVERIFY(m_stage->open());
    m_first->setFocus();
    settle();
    m_heard.clear();
    m_errors.clear();
}

void tst_FocusTracker::cleanup()
{
    m_stage.reset();
    m_messages.reset();
    setUnhandledErrorHandler({});
}

void tst_FocusTracker::aMoveIsToldAfterItHasHappened()
{
    m_second->setFocus();
    QCOMPARE(heard(), QString());
    QVERIFY(FocusTracker::instance().settle());
    QCOMPARE(heard(), QStringLiteral("first box left, first control left, second control entered, second entered"));
}

void tst_FocusTracker::aComplaintPutsTheFocusBack()
{
    m_first->fault = QStringLiteral("Nie tak");
    m_second->setFocus();
    QVERIFY(!FocusTracker::instance().settle());
    QCOMPARE(heard(), QStringLiteral("first box left, first returned, first after message"));
    QTRY_VERIFY(m_first->box()->hasFocus());
}

void tst_FocusTracker::anotherWindowDecidesNothing()
{
    QDialog dialog(m_stage.get());
    QLineEdit box(&dialog);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    box.setFocus();
    settle();
    dialog.close();
    m_stage->activateWindow();
    QTRY_VERIFY(m_first->box()->hasFocus());
    settle();
    QCOMPARE(heard(), QString());
}

void tst_FocusTracker::aFieldTakenAwayUnderAMenuIsNotGivenTheKeyboard_data()
{
    QTest::addColumn<bool>("isByItsPanel");
    QTest::addColumn<bool>("hasFault");
    QTest::addColumn<QString>("heard");
    const QString left = QStringLiteral("third box left, third control left");
    const QString wrong = QStringLiteral("third box left, third after message, third control left");
    QTest::newRow("hidden itself") << false << false << left;
    QTest::newRow("hidden with its panel") << true << false << left;
    QTest::newRow("nobody sends the user back to it") << true << true << wrong;
}

void tst_FocusTracker::aFieldTakenAwayUnderAMenuIsNotGivenTheKeyboard()
{
    QFETCH(bool, isByItsPanel);
    QFETCH(bool, hasFault);
    QFETCH(const QString, heard);
    QWidget panel(m_stage.get());
    panel.show();
    Field *third = new Field(QStringLiteral("third"), &m_heard);
    third->setParent(&panel);
    third->show();
    third->setFocus();
    settle();
    m_heard.clear();
    if (hasFault)
        third->fault = QStringLiteral("Nie tak");
    QMenu menu(m_stage.get());
    menu.addAction(QStringLiteral("Wytnij"));
    menu.popup(m_stage->mapToGlobal(QPoint(5, 5)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    menu.setFocus(); // as its own arrow keys do
    (isByItsPanel ? &panel : static_cast<QWidget *>(third))->hide();
    menu.close();
    m_stage->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    settle();
    QVERIFY(m_stage->focusWidget() != third->box());
    QVERIFY(m_stage->focusWidget()->isVisible());
    QCOMPARE(this->heard().left(heard.size()), heard);
    QCOMPARE(m_messages->take().size(), hasFault ? 1 : 0);
}

void tst_FocusTracker::norIsAnyOtherWidget()
{
    QWidget panel(m_stage.get());
    auto *plain = new QLineEdit(&panel);
    panel.show();
    plain->setFocus();
    settle();
    QMenu menu(m_stage.get());
    menu.addAction(QStringLiteral("Wytnij"));
    menu.popup(m_stage->mapToGlobal(QPoint(5, 5)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    menu.setFocus();
    panel.hide();
    menu.close();
    m_stage->activateWindow();
    QTRY_VERIFY(QApplication::focusWidget());
    QVERIFY(m_stage->focusWidget()->isVisible());
}

void tst_FocusTracker::aFieldMayBeEnteredBeforeItIsShown()
{
    m_second->hide();
    m_second->box()->setFocus();
    settle();
    m_second->show();
    settle();
    QVERIFY(m_second->box()->hasFocus());
    QCOMPARE(heard(), QStringLiteral("first box left, first control left, second control entered, second entered"));
}

// --- asking

void tst_FocusTracker::aBoxMayBeLeft()
{
    QVERIFY(FocusTracker::instance().askToLeave(m_first->box()));
    settle();
    QCOMPARE(heard(), QStringLiteral("first box left"));
    QVERIFY(m_first->box()->hasFocus());
}

void tst_FocusTracker::aBoxWithAFaultMayNotBeLeft()
{
    m_first->fault = QStringLiteral("Nie tak");
    QVERIFY(!FocusTracker::instance().askToLeave(m_first->box()));
    settle();
    QCOMPARE(heard(), QStringLiteral("first box left, first returned, first after message"));
    QCOMPARE(m_messages->take(), QStringList(QStringLiteral("Błąd: Nie tak")));
    QTRY_VERIFY(m_first->box()->hasFocus());
}

void tst_FocusTracker::nobodysBoxMayBeLeft()
{
    QVERIFY(FocusTracker::instance().askToLeave(m_stage->button()));
    QCOMPARE(heard(), QString());
}

void tst_FocusTracker::askingInsideAMoveMovesNothing()
{
    bool answer = true;
    m_second->fault = QStringLiteral("Nie tak");
    m_first->deed = [&](const QString &what) {
        if (what == QLatin1String("control left"))
            answer = FocusTracker::instance().askToLeave(m_second->box());
    };
    m_second->setFocus();
    settle();
    QVERIFY(!answer);
    QCOMPARE(m_messages->take(), QStringList(QStringLiteral("Błąd: Nie tak")));
    QTRY_VERIFY(m_second->box()->hasFocus());
    QCOMPARE(heard(), QStringLiteral("first box left, first control left, second box left, second returned, second "
                                     "after message, second control entered, second entered"));
}

void tst_FocusTracker::aMoveThatWaitsIsAnsweredByAsking()
{
    m_second->setFocus(); // as a click on a cell does, before the grid hears of it
    QVERIFY(FocusTracker::instance().askToLeave(m_first->box()));
    settle();
    QCOMPARE(heard(), QStringLiteral("first box left, first control left, second control entered, second entered"));
}

void tst_FocusTracker::aMoveThatWaitsIsTakenBackByARefusal()
{
    m_first->fault = QStringLiteral("Nie tak");
    m_second->setFocus();
    QVERIFY(!FocusTracker::instance().askToLeave(m_first->box()));
    settle();
    QCOMPARE(m_messages->take().size(), 1);
    QTRY_VERIFY(m_first->box()->hasFocus());
    QCOMPARE(heard(), QStringLiteral("first box left, first returned, first after message"));
}

void tst_FocusTracker::aBoxThatGoesAwayUnderItsMessageMayBeLeft()
{
    m_first->fault = QStringLiteral("Nie tak");
    QTimer::singleShot(0, m_first, [this] { m_first->hide(); });
    QVERIFY(FocusTracker::instance().askToLeave(m_first->box()));
}

void tst_FocusTracker::aHandlerMayEndTheBoxThatIsAsked()
{
    m_first->deed = [this](const QString &) { m_first->deleteLater(); };
    QVERIFY(FocusTracker::instance().askToLeave(m_first->box()));
    QPointer<Field> second = m_second;
    m_second->deed = [&](const QString &) { delete second.data(); };
    m_second->setFocus();
    settle();
    QVERIFY(!second);
}

// --- handlers

void tst_FocusTracker::theNextFieldIsEnteredWhateverTheLastOneThrows_data()
{
    QTest::addColumn<QString>("event");
    for (const char *event : {"box left", "control left"})
        QTest::newRow(event) << QString::fromLatin1(event);
}

void tst_FocusTracker::theNextFieldIsEnteredWhateverTheLastOneThrows()
{
    QFETCH(QString, event);
    m_first->deed = [&](const QString &what) {
        if (what == event)
            throw RunTimeError(ErrorNumber::Overflow);
    };
    m_second->setFocus();
    settle();
    QCOMPARE(heard(), QStringLiteral("first box left, first control left, second control entered, second entered"));
    QCOMPARE(m_errors, QStringList(QStringLiteral("6")));
}

void tst_FocusTracker::aDialogOpenedWhileLeavingHasMovesOfItsOwn()
{
    QStringList inside;
    m_first->deed = [&](const QString &what) {
        if (what != QLatin1String("box left"))
            return;
        QDialog dialog(m_stage.get());
        auto *one = new Field(QStringLiteral("one"), &inside);
        auto *two = new Field(QStringLiteral("two"), &inside);
        one->setParent(&dialog);
        two->setParent(&dialog);
        two->move(0, 40);
        QTimer::singleShot(0, &dialog, [&] {
            dialog.activateWindow();
            one->setFocus();
            QTRY_VERIFY(one->box()->hasFocus());
            kor::test::settle();
            inside.clear();
            two->setFocus();
            QVERIFY(FocusTracker::instance().settle());
            dialog.accept();
        });
        dialog.exec();
    };
    m_second->setFocus();
    settle();
    QCOMPARE(inside.join(QStringLiteral(", ")),
             QStringLiteral("one box left, one control left, two control entered, two entered"));
    QCOMPARE(heard(), QStringLiteral("first box left, first control left, second control entered, second entered"));
}

void tst_FocusTracker::aWindowMayEndWhileItsMoveIsHandled()
{
    m_second->deed = [this](const QString &what) {
        if (what == QLatin1String("control entered"))
            m_stage.reset();
    };
    m_second->setFocus();
    settle();
    QVERIFY(!m_stage);
    QCOMPARE(heard(), QStringLiteral("first box left, first control left, second control entered"));
}

QTEST_MAIN(tst_FocusTracker)
#include "tst_focustracker.moc"
