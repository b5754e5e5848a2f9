// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/listsuite.h"
#include "support/eventlog.h"

#include <KorDaoUC/KorList>

#include <QtTest/QtTest>
#include <QtWidgets/QScrollBar>

using namespace kor;
using namespace kor::test;

namespace {

const QString abc = QStringLiteral("LIST a;Alfa|b;Beta|c;Celina");

} // namespace

//! The list under the mouse.
class tst_KorList_Mouse : public ListSuite<KorList>
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp("Lista"); }
    void cleanup() { tearDown(); }

    void wheelScrollsAndChangesNothing();
    void clickSelectsAndRaisesInOrder();
    void clickOnTheSelectedEntryRaisesNoClick();
    void mouseHeldDownSelectsWhereItGoes();
    void mouseBeyondTheEdgeScrollsOn();
    void otherButtonsSelectNothing();
    void clickBelowTheLastEntrySelectsNothing();
    void doubleClickFollowsItsOrder();
    void disabledListRaisesNothing();

private:
    [[nodiscard]] QPoint middleOf(int row) const { return rect(row).center(); }
};

void tst_KorList_Mouse::wheelScrollsAndChangesNothing()
{
    QVERIFY(enter(QString()));
    for (int i = 0; i < 100; ++i)
        m_list->AddEntry(i, QString::number(i));
    m_list->setListIndex(0);
    settle();
    EventLog log(m_list);
    for (const bool focused : {true, false}) {
        if (!focused)
            m_stage->button()->setFocus();
        settle();
        const int before = m_box->verticalScrollBar()->value();
        const QPoint place = m_box->viewport()->rect().center();
        QWheelEvent wheel(place, m_box->viewport()->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_box->viewport(), &wheel);
        QVERIFY(m_box->verticalScrollBar()->value() > before);
    }
    QCOMPARE(m_list->ListIndex(), 0);
    QVERIFY(m_stage->button()->hasFocus());
    QCOMPARE(log.take(), QString());
}

void tst_KorList_Mouse::clickSelectsAndRaisesInOrder()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    QTest::mousePress(m_box->viewport(), Qt::LeftButton, Qt::ShiftModifier, middleOf(1));
    QCOMPARE(m_list->ListIndex(), 1);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,1)"));
    QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, middleOf(1));
    QCOMPARE(log.take(), QStringLiteral("MouseUp(1,0) Click"));
    QVERIFY(m_list->DataChanged());
}

void tst_KorList_Mouse::clickOnTheSelectedEntryRaisesNoClick()
{
    QVERIFY(enter(abc));
    m_list->setListIndex(1);
    EventLog log(m_list);
    QTest::mouseClick(m_box->viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(1));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,2) MouseUp(1,2)"));
    QCOMPARE(m_list->ListIndex(), 1);
}

void tst_KorList_Mouse::mouseHeldDownSelectsWhereItGoes()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    const auto moveTo = [this](int row) {
        QMouseEvent move(QEvent::MouseMove, middleOf(row), m_box->viewport()->mapToGlobal(middleOf(row)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_box->viewport(), &move);
    };
    QTest::mousePress(m_box->viewport(), Qt::LeftButton, {}, middleOf(1));
    moveTo(2);
    QCOMPARE(m_list->ListIndex(), 2);
    QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, middleOf(2));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click"));
    QTest::mousePress(m_box->viewport(), Qt::LeftButton, {}, middleOf(0));
    moveTo(1);
    moveTo(2);
    QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, middleOf(2));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0)")); // back where it began
    moveTo(0);                                                           // a move without a press on the list
    QCOMPARE(m_list->ListIndex(), 2);
}

void tst_KorList_Mouse::mouseBeyondTheEdgeScrollsOn()
{
    QVERIFY(enter(QString()));
    for (int i = 0; i < 12; ++i)
        m_list->AddEntry(i, QString::number(i));
    settle();
    QTest::mousePress(m_box->viewport(), Qt::LeftButton, {}, middleOf(0));
    const auto moveTo = [this](const QPoint &place) {
        QMouseEvent move(QEvent::MouseMove, place, m_box->viewport()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(m_box->viewport(), &move);
    };
    moveTo({20, m_box->viewport()->height() + 30});
    QTRY_COMPARE(m_list->ListIndex(), 11);
    moveTo({20, -30});
    QTRY_COMPARE(m_list->ListIndex(), 0);
    QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, middleOf(0));
}

void tst_KorList_Mouse::otherButtonsSelectNothing()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    QTest::mouseClick(m_box->viewport(), Qt::RightButton, {}, middleOf(2));
    QTest::mouseClick(m_box->viewport(), Qt::MiddleButton, {}, middleOf(2));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(2,0) MouseUp(2,0) MouseDown(4,0) MouseUp(4,0)"));
    QCOMPARE(m_list->ListIndex(), 0);
}

void tst_KorList_Mouse::clickBelowTheLastEntrySelectsNothing()
{
    QVERIFY(enter(QStringLiteral("LIST a;A|b;B")));
    EventLog log(m_list);
    const QPoint below(20, m_box->viewport()->height() - 2);
    QTest::mouseClick(m_box->viewport(), Qt::LeftButton, {}, below);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0)"));
    doubleClick(m_box->viewport(), below);
    QVERIFY(!log.take().contains(QStringLiteral("DblClick")));
    QCOMPARE(m_list->ListIndex(), 0);
}

void tst_KorList_Mouse::doubleClickFollowsItsOrder()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    doubleClick(m_box->viewport(), middleOf(2));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click DblClick MouseUp(1,0)"));
    QCOMPARE(m_list->ListIndex(), 2);
}

void tst_KorList_Mouse::disabledListRaisesNothing()
{
    QVERIFY(enter(abc));
    m_list->setEnabled(false);
    EventLog log(m_list);
    QTest::mouseClick(m_box->viewport(), Qt::LeftButton, {}, middleOf(2));
    press(Qt::Key_Down);
    QCOMPARE(log.take(), QString());
    QCOMPARE(m_list->ListIndex(), 0);
    m_list->setListIndex(1); // the program may
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

QTEST_MAIN(tst_KorList_Mouse)
#include "tst_korlist_mouse.moc"
