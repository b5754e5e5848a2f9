// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/cellhost.h"
#include "support/stage.h"

#include <KorDaoUC/clock.h>
#include <KorDaoUC/locale.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QScopeGuard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <memory>

using namespace kor;
using namespace kor::test;

//! Entry controls that are laid over the cells of a composite: opened, followed, asked and closed.
class tst_CellSession : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        Locale::setSystemDefault(Locale::polish());
        Clock::setSource([] { return QDate(2026, 11, 21); });
        m_stage = std::make_unique<Stage>();
        m_host = m_stage->place(new CellHost, 200, 170);
        m_messages = std::make_unique<Messages>();
        QVERIFY(m_stage->open());
        m_host->setFocus();
        settle();
    }
    void cleanup()
    {
        m_messages.reset();
        m_stage.reset();
    }

    void theEditorLiesInsideItsCell_data();
    void theEditorLiesInsideItsCell();
    void openingAndLookingReportsNothing_data();
    void openingAndLookingReportsNothing();
    void everyKeyIsReportedAsTheEditorHasIt();
    void formattingIsReportedBeforeTheEditorCloses();
    void whatIsTypedGoesToTheCellThatWasOpened();
    void keysTypedAheadMeetTheNextEditor();
    void aRefusedValueKeepsTheCellWithOneMessage();
    void aRefusedValueKeepsTheUserFromOtherControlsToo();
    void abandoningAsksNothing();
    void theKeyboardStaysWhereTheProgramFoundIt();
    void theSurfaceHasTheKeyboardAfterwards();
    void aTextThatTheEditorRefusesIsNotDestroyedByLooking();
    void aNumberTooWideForTheCellIsReportedWhole();
    void theWheelChangesNoValue();
    void theEditorFollowsItsCell();
    void arrowsMoveTheCaretFirst_data();
    void arrowsMoveTheCaretFirst();
    void handlersMayEndEverything_data();
    void handlersMayEndEverything();
    void aHandlerThatThrowsLeavesTheSessionInOrder();
    void closedEditorsReportNothing();
    void aProgramThatGoesOnTakesADateOver();
    void keysLeftOverAreTheFormsAndNotTheSurfaces();
    void theReleaseOfAKeyThatClosedTheEditorIsDropped();

private:
    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<Messages> m_messages;
    CellHost *m_host = nullptr;
};

void tst_CellSession::theEditorLiesInsideItsCell_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("text") << int(CellHost::Text);
    QTest::newRow("number") << int(CellHost::Price);
    QTest::newRow("date") << int(CellHost::Day);
}

void tst_CellSession::theEditorLiesInsideItsCell()
{
    QFETCH(int, row);
    m_host->open(static_cast<CellHost::Row>(row));
    QWidget *control = m_host->session.editor()->control();
    QVERIFY(control->isVisible());
    // 15 twips a pixel: the surface lies 4 pixels inside the host, the cell 4 inside the surface, the editor 2 in it.
    QCOMPARE(QRect(control->mapTo(m_host, QPoint()), control->size()), QRect(10, 6 + 30 * row, 118, 28));
}

void tst_CellSession::openingAndLookingReportsNothing_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("text") << int(CellHost::Text);
    QTest::newRow("empty number") << int(CellHost::Price);
    QTest::newRow("number") << int(CellHost::Quantity);
    QTest::newRow("empty date") << int(CellHost::Day);
    QTest::newRow("list") << int(CellHost::Unit);
}

void tst_CellSession::openingAndLookingReportsNothing()
{
    QFETCH(int, row);
    const QStringList before = m_host->cells;
    m_host->open(static_cast<CellHost::Row>(row));
    QVERIFY(m_host->session.isOpen());
    QVERIFY(!m_host->session.isTouched());
    QVERIFY(m_host->session.leave());
    QVERIFY(!m_host->session.isOpen());
    QCOMPARE(m_host->taken(), QString());
    QCOMPARE(m_host->cells, before);
    QCOMPARE(m_messages->take(), QStringList());
}

void tst_CellSession::everyKeyIsReportedAsTheEditorHasIt()
{
    m_host->open(CellHost::Text);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("xy"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    QCOMPARE(m_host->taken(), QStringLiteral("0=x 0=xy 0=x"));
    QVERIFY(m_host->session.isTouched());
    m_host->open(CellHost::Unit);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_P);
    QCOMPARE(m_host->taken(), QStringLiteral("4=paleta"));
}

void tst_CellSession::formattingIsReportedBeforeTheEditorCloses()
{
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7.5"));
    QCOMPARE(m_host->taken(), QStringLiteral("1=7 1=7, 1=7,5"));
    QVERIFY(m_host->session.leave());
    QCOMPARE(m_host->taken(), QStringLiteral("1=7,50"));
    m_host->open(CellHost::Day);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("2.1.26"));
    (void)m_host->taken();
    QVERIFY(m_host->session.leave());
    QCOMPARE(m_host->taken(), QStringLiteral("3=02.01.2026"));
}

void tst_CellSession::whatIsTypedGoesToTheCellThatWasOpened()
{
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(m_host->session.cell(), (CellAddress{CellHost::Quantity, 1}));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("8"));
    QCOMPARE(m_host->cells.at(CellHost::Price), QStringLiteral("7,00"));
    QCOMPARE(m_host->cells.at(CellHost::Quantity), QStringLiteral("8"));
}

void tst_CellSession::keysTypedAheadMeetTheNextEditor()
{
    // In one go, as a fast typist's keys arrive after a slow moment.
    m_host->open(CellHost::Text);
    const auto press = [](int key, const QString &text = {}) {
        QWidget *box = QApplication::focusWidget();
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(box, &down);
    };
    press(Qt::Key_A, QStringLiteral("ą"));
    press(Qt::Key_Down);
    press(Qt::Key_4, QStringLiteral("4"));
    press(Qt::Key_Down);
    press(Qt::Key_9, QStringLiteral("9"));
    press(Qt::Key_Down);
    press(Qt::Key_1, QStringLiteral("1"));
    QCOMPARE(m_host->cells.mid(0, 4),
             QStringList({QStringLiteral("ą"), QStringLiteral("4,00"), QStringLiteral("9,00"), QStringLiteral("1")}));
    QCOMPARE(m_messages->take(), QStringList());
}

void tst_CellSession::aRefusedValueKeepsTheCellWithOneMessage()
{
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("500"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    settle();
    QCOMPARE(m_messages->take(), QStringList({QStringLiteral("Bład zakresu liczby: Przekroczony zakres liczby. "
                                                             "Wprowadź liczbę z zakresu: [0...100].")}));
    QCOMPARE(m_host->session.cell(), (CellAddress{CellHost::Price, 1}));
    QVERIFY(m_host->session.isOpen());
    QVERIFY(m_host->number->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("50"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    settle();
    QCOMPARE(m_messages->take(), QStringList());
    QCOMPARE(m_host->session.cell(), (CellAddress{CellHost::Quantity, 1}));
}

void tst_CellSession::aRefusedValueKeepsTheUserFromOtherControlsToo()
{
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("500"));
    m_stage->button()->setFocus(Qt::TabFocusReason);
    settle();
    QCOMPARE(m_messages->take().size(), 1);
    QVERIFY(m_host->session.isOpen());
    QVERIFY(m_host->number->isAncestorOf(QApplication::focusWidget()));
}

void tst_CellSession::abandoningAsksNothing()
{
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("500"));
    (void)m_host->taken();
    m_host->session.abandon();
    settle();
    QCOMPARE(m_messages->take(), QStringList());
    QCOMPARE(m_host->taken(), QString());
    QVERIFY(!m_host->session.isOpen());
    QVERIFY(!m_host->number->isVisible());
    QCOMPARE(QApplication::focusWidget(), m_host->surface);
}

void tst_CellSession::theKeyboardStaysWhereTheProgramFoundIt()
{
    m_stage->button()->setFocus();
    settle();
    m_host->open(CellHost::Price, CellSession::Keyboard::Leave);
    settle();
    QVERIFY(m_host->number->isVisible());
    QCOMPARE(QApplication::focusWidget(), m_stage->button());
    m_host->number->setValue(20);
    QCOMPARE(m_host->taken(), QStringLiteral("1=20,00"));
    QVERIFY(m_host->session.leave());
    settle();
    QCOMPARE(QApplication::focusWidget(), m_stage->button());
}

void tst_CellSession::theSurfaceHasTheKeyboardAfterwards()
{
    m_host->open(CellHost::Day);
    QVERIFY(m_host->date->isAncestorOf(QApplication::focusWidget()));
    QVERIFY(m_host->session.leave());
    settle();
    QVERIFY(!m_host->date->isVisible());
    QCOMPARE(QApplication::focusWidget(), m_host->surface);
}

void tst_CellSession::aTextThatTheEditorRefusesIsNotDestroyedByLooking()
{
    m_host->cells[CellHost::Day] = QStringLiteral("jutro");
    m_host->open(CellHost::Day);
    QCOMPARE(m_host->date->Text(), QString());
    QVERIFY(m_host->session.leave());
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(m_host->cells.at(CellHost::Day), QStringLiteral("jutro"));
    m_host->open(CellHost::Day);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("3"));
    QCOMPARE(m_host->cells.at(CellHost::Day), QStringLiteral("3"));
}

void tst_CellSession::aNumberTooWideForTheCellIsReportedWhole()
{
    m_host->number->setCheckRange(false);
    m_host->cells[CellHost::Price] = QStringLiteral("1234567890");
    CellEditor *editor = m_host->numberEditor;
    m_host->number->resize(40, 20);
    editor->fill({m_host->cells.at(CellHost::Price), std::nullopt});
    QVERIFY(m_host->number->Text().contains(u'#'));
    QCOMPARE(editor->text(), QString(QStringLiteral("1 234 567 890,00")).replace(u' ', QChar::Nbsp));
    QCOMPARE(editor->value(), QVariant(1234567890.0));
}

void tst_CellSession::theWheelChangesNoValue()
{
    m_host->surface->verticalScrollBar()->setRange(0, 1000);
    m_host->open(CellHost::Unit);
    QWheelEvent wheel(QPointF(5, 5), m_host->combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(QApplication::focusWidget(), &wheel);
    QCOMPARE(m_host->combo->Text(), QStringLiteral("karton"));
    QCOMPARE(m_host->taken(), QString());
    QVERIFY(m_host->surface->verticalScrollBar()->value() > 0);
}

void tst_CellSession::theEditorFollowsItsCell()
{
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
    m_host->session.place(CellHost::boxOf(CellHost::Day));
    QCOMPARE(m_host->number->mapTo(m_host, QPoint()), QPoint(10, 6 + 30 * CellHost::Day));
    QCOMPARE(m_host->number->Text(), QStringLiteral("7"));
    QVERIFY(m_host->session.leave());
    QCOMPARE(m_host->cells.at(CellHost::Price), QStringLiteral("7,00"));
}

void tst_CellSession::arrowsMoveTheCaretFirst_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isUsed");
    // clang-format off
    QTest::newRow("text: left in the middle")     << int(CellHost::Text)     << QStringLiteral("a|b")   << int(Key::Left)  << true;
    QTest::newRow("text: left in front")          << int(CellHost::Text)     << QStringLiteral("|ab")   << int(Key::Left)  << false;
    QTest::newRow("text: right in the middle")    << int(CellHost::Text)     << QStringLiteral("a|b")   << int(Key::Right) << true;
    QTest::newRow("text: right behind")           << int(CellHost::Text)     << QStringLiteral("ab|")   << int(Key::Right) << false;
    QTest::newRow("text: left takes back a selection") << int(CellHost::Text) << QStringLiteral("[ab]") << int(Key::Left)  << true;
    QTest::newRow("text: right takes back a selection")<< int(CellHost::Text) << QStringLiteral("[ab]") << int(Key::Right) << true;
    QTest::newRow("text: up")                     << int(CellHost::Text)     << QStringLiteral("a|b")   << int(Key::Up)    << false;
    QTest::newRow("text: down")                   << int(CellHost::Text)     << QStringLiteral("a|b")   << int(Key::Down)  << false;
    QTest::newRow("number: left in front")        << int(CellHost::Quantity) << QStringLiteral("|50")   << int(Key::Left)  << false;
    QTest::newRow("number: left in the middle")   << int(CellHost::Quantity) << QStringLiteral("5|0")   << int(Key::Left)  << true;
    QTest::newRow("list: left")                   << int(CellHost::Unit)     << QString()               << int(Key::Left)  << false;
    QTest::newRow("list: down")                   << int(CellHost::Unit)     << QString()               << int(Key::Down)  << false;
    // clang-format on
}

void tst_CellSession::arrowsMoveTheCaretFirst()
{
    QFETCH(int, row);
    QFETCH(QString, state);
    QFETCH(int, key);
    m_host->open(static_cast<CellHost::Row>(row));
    if (auto *box = qobject_cast<QLineEdit *>(QApplication::focusWidget()))
        setField(box, state);
    QTEST(m_host->session.editor()->hasUseFor(key), "isUsed");
}

void tst_CellSession::handlersMayEndEverything_data()
{
    QTest::addColumn<std::function<void(CellHost *)>>("end");
    using End = std::function<void(CellHost *)>;
    QTest::newRow("delete the composite") << End([](CellHost *host) { delete host; });
    QTest::newRow("close the editor") << End([](CellHost *host) { host->session.abandon(); });
    QTest::newRow("leave the editor") << End([](CellHost *host) { (void)host->session.leave(); });
    QTest::newRow("open another one") << End([](CellHost *host) {
        if (host->session.leave())
            host->open(CellHost::Text);
    });
    QTest::newRow("delete the control") << End([](CellHost *host) { delete host->number; });
}

void tst_CellSession::handlersMayEndEverything()
{
    QFETCH(std::function<void(CellHost *)>, end);
    const QPointer<CellHost> host = m_host;
    m_host->onEdited = [host, end, isDone = false]() mutable {
        if (!std::exchange(isDone, true))
            end(host);
    };
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
    settle();
    QVERIFY(m_stage->button());
    if (host && host->session.isOpen())
        QVERIFY(host->session.leave());
    QCOMPARE(m_messages->take(), QStringList());
}

void tst_CellSession::aHandlerThatThrowsLeavesTheSessionInOrder()
{
    QStringList errors;
    setUnhandledErrorHandler([&](QObject *, const RunTimeError &error) { errors << QString::number(error.number()); });
    const auto restore = qScopeGuard([] { setUnhandledErrorHandler({}); });
    m_host->onEdited = [] { throw RunTimeError(ErrorNumber::InvalidProcedureCall); };
    m_host->open(CellHost::Price);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
    QCOMPARE(errors.size(), 1);
    m_host->onEdited = {};
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("8"));
    QCOMPARE(m_host->cells.at(CellHost::Price), QStringLiteral("78"));
    QVERIFY(m_host->session.leave());
    QCOMPARE(m_host->cells.at(CellHost::Price), QStringLiteral("78,00"));
}

void tst_CellSession::closedEditorsReportNothing()
{
    m_host->open(CellHost::Price);
    QVERIFY(m_host->session.leave());
    m_host->number->setValue(5);
    m_host->text->setProgramText(QStringLiteral("x"));
    QCOMPARE(m_host->taken(), QString());
    QCOMPARE(m_host->cells.at(CellHost::Price), QString());
}

void tst_CellSession::aProgramThatGoesOnTakesADateOver()
{
    m_host->open(CellHost::Day);
    m_host->session.finishUnasked(); // untouched: nothing to take over
    QCOMPARE(m_host->taken(), QString());
    m_host->open(CellHost::Day);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("241226"));
    (void)m_host->taken();
    m_host->session.complete();
    QCOMPARE(m_host->taken(), QStringLiteral("3=24.12.2026"));
    QVERIFY(m_host->session.isOpen());
    QCOMPARE(m_host->date->Value(), QVariant(QDate(2026, 12, 24)));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x9"));
    m_host->session.finishUnasked();
    QVERIFY(!m_host->session.isOpen());
    QVERIFY(isNull(m_host->date->Value())); // no date any more, and nobody was asked
    QCOMPARE(m_messages->take(), QStringList());
}

namespace {

//! The keys that come to a widget.
class KeysOf : public QObject
{
public:
    explicit KeysOf(QObject *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            seen << static_cast<QKeyEvent *>(event)->key();
        else if (event->type() == QEvent::KeyRelease)
            seen << -static_cast<QKeyEvent *>(event)->key();
        return false;
    }
    QList<int> seen;
};

} // namespace

void tst_CellSession::keysLeftOverAreTheFormsAndNotTheSurfaces()
{
    m_host->open(CellHost::Text);
    const KeysOf surface(m_host->surface);
    const KeysOf form(m_stage.get());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A);
    QCOMPARE(surface.seen, QList<int>());
    QCOMPARE(form.seen, QList<int>{Qt::Key_F9});
    QVERIFY(m_host->session.leave());
    QTest::keyPress(m_host->surface->viewport(), Qt::Key_F9); // between two editors it is the surface's
    QVERIFY(surface.seen.contains(Qt::Key_F9));
}

void tst_CellSession::theReleaseOfAKeyThatClosedTheEditorIsDropped()
{
    m_host->open(CellHost::Text);
    connect(&m_host->session, &CellSession::KeyDown, this, [this](int &code, int &) {
        if (code == Key::F2)
            m_host->session.abandon();
    });
    KeysOf surface(m_host->surface);
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_F2);
    settle();
    QCOMPARE(QApplication::focusWidget(), m_host->surface);
    surface.seen.clear();
    QTest::keyRelease(m_host->surface, Qt::Key_F2);
    QTest::keyClick(m_host->surface, Qt::Key_F2); // the next one is told whole
    QCOMPARE(m_host->session.state(), CellSession::State::Closed);
    QCOMPARE(surface.seen, (QList<int>{-Qt::Key_F2, Qt::Key_F2, -Qt::Key_F2}));
}

QTEST_MAIN(tst_CellSession)
#include "tst_cellsession.moc"
