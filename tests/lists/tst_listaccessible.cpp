// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/heard.h"
#include "support/stage.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

#include <memory>

using namespace kor;
using namespace kor::test;

//! What a screen reader is told of lists and their entries, and how it chooses among them.
class tst_ListAccessible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_stage.reset(); }

    void entriesAreReadWithTheirStates();
    void anEntryIsSelectedAsByAClick();
    void anEntryIsCheckedThroughTheInterface();
    void aDisabledListKeepsItsChoice();
    void countingEntriesMakesNone();
    void entriesThatAreGoneAreForgotten();
    void theEntryUnderTheKeyboardIsTold();
    void checksAreTold();
    void theOpenListHasItsFieldsName();
    void openingIsTold();
    void aListThatWasNeverOpenedIsNotMade();
    void anotherEntryIsTold();

private:
    template <class List>
    List *fill(List *list)
    {
        m_stage->place(list, 160, list->inherits("KorCombo") ? 26 : 90);
        list->setSQL(QStringLiteral("LIST 1;Alfa|2;Beta|3;Celina"));
        list->Refresh();
        m_label->setBuddy(list);
        return list;
    }
    static QAccessibleInterface *entry(QWidget *list, int index)
    {
        return heard(list->focusProxy())->tableInterface()->cellAt(index, 0);
    }
    static void act(QAccessibleInterface *part, const QString &name) { part->actionInterface()->doAction(name); }

    std::unique_ptr<Stage> m_stage;
    QPointer<QLabel> m_label;
};

void tst_ListAccessible::init()
{
    failOnWarnings();
    m_stage = std::make_unique<Stage>();
    m_label = new QLabel(QStringLiteral("Towary"), m_stage.get());
}

void tst_ListAccessible::entriesAreReadWithTheirStates()
{
    auto *list = fill(new KorListCheck);
    list->setListIndex(1);
    list->setSelected(true);
    QVERIFY(m_stage->open());
    QAccessibleInterface *box = heard(list->focusProxy());
    QCOMPARE(box->role(), QAccessible::List);
    QCOMPARE(box->text(QAccessible::Name), QStringLiteral("Towary"));
    QCOMPARE(box->childCount(), 3);
    QAccessibleInterface *beta = box->child(1);
    QCOMPARE(beta, entry(list, 1));
    QCOMPARE(beta->role(), QAccessible::ListItem);
    QCOMPARE(beta->text(QAccessible::Name), QStringLiteral("Beta"));
    QVERIFY(beta->state().selected && beta->state().checkable && beta->state().checked);
    QVERIFY(!entry(list, 0)->state().selected && !entry(list, 0)->state().checked);
    auto *plain = fill(new KorList);
    QVERIFY(!entry(plain, 0)->state().checkable);
    QVERIFY(!entry(plain, 0)->actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
}

void tst_ListAccessible::anEntryIsSelectedAsByAClick()
{
    auto *list = fill(new KorList);
    QVERIFY(m_stage->open());
    EventLog log(list);
    act(entry(list, 2), QAccessibleActionInterface::pressAction());
    QCOMPARE(list->Value(), QVariant(QStringLiteral("3")));
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QVERIFY(heard(list->focusProxy())->tableInterface()->selectRow(0));
    QCOMPARE(list->Text(), QStringLiteral("Alfa"));
    QVERIFY(!heard(list->focusProxy())->tableInterface()->selectRow(9));
    QVERIFY(!heard(list->focusProxy())->tableInterface()->unselectRow(0)); // as no key does
    QCOMPARE(list->Text(), QStringLiteral("Alfa"));
}

void tst_ListAccessible::anEntryIsCheckedThroughTheInterface()
{
    auto *list = fill(new KorListCheck);
    QVERIFY(m_stage->open());
    EventLog log(list);
    act(entry(list, 1), QAccessibleActionInterface::toggleAction());
    QCOMPARE(list->ValueChecked(), QStringLiteral("2;"));
    QCOMPARE(log.take(), QStringLiteral("ItemCheck(1)"));
    act(entry(list, 1), QAccessibleActionInterface::toggleAction());
    QCOMPARE(list->ValueChecked(), QString());
}

void tst_ListAccessible::aDisabledListKeepsItsChoice()
{
    auto *list = fill(new KorListCheck);
    list->setListIndex(0);
    list->setEnabled(false);
    QVERIFY(m_stage->open());
    QVERIFY(heard(list->focusProxy())->state().disabled && entry(list, 1)->state().disabled);
    act(entry(list, 1), QAccessibleActionInterface::pressAction());
    act(entry(list, 1), QAccessibleActionInterface::toggleAction());
    QVERIFY(!heard(list->focusProxy())->tableInterface()->selectRow(1));
    QCOMPARE(list->Text(), QStringLiteral("Alfa"));
    QCOMPARE(list->ValueChecked(), QString());
    auto *combo = fill(new KorCombo);
    combo->setListIndex(0);
    combo->setEnabled(false);
    heard(combo->focusProxy())->setText(QAccessible::Value, QStringLiteral("Beta"));
    act(heard(combo->focusProxy()), QAccessibleActionInterface::showMenuAction());
    QVERIFY(heard(combo->focusProxy())->state().collapsed);
    QCOMPARE(combo->Text(), QStringLiteral("Alfa"));
}

void tst_ListAccessible::countingEntriesMakesNone()
{
    auto *list = fill(new KorList);
    for (int i = 0; i < 20'000; ++i)
        list->AddEntry(i, QString::number(i));
    QVERIFY(m_stage->open());
    const QAccessible::Id before = QAccessible::uniqueId(entry(list, 0));
    QCOMPARE(heard(list->focusProxy())->childCount(), 20'003);
    QCOMPARE(heard(list->focusProxy())->tableInterface()->rowCount(), 20'003);
    QVERIFY(QAccessible::uniqueId(entry(list, 20'000)) - before <
            50); // whoever listens asks for a few things of its own
}

void tst_ListAccessible::entriesThatAreGoneAreForgotten()
{
    auto *list = fill(new KorList);
    QVERIFY(m_stage->open());
    const QAccessible::Id id = QAccessible::uniqueId(entry(list, 2));
    list->Clear();
    const QAccessibleInterface *gone = QAccessible::accessibleInterface(id);
    QVERIFY(!gone || (!gone->isValid() && gone->text(QAccessible::Name).isEmpty()));
    if (Notices::areHeard())
        QVERIFY(!gone);
    QCOMPARE(heard(list->focusProxy())->childCount(), 0);
    QCOMPARE(heard(list->focusProxy())->child(0), nullptr);
}

void tst_ListAccessible::theEntryUnderTheKeyboardIsTold()
{
    if (!Notices::areHeard())
        QSKIP("nobody listens");
    auto *list = fill(new KorList);
    list->setListIndex(0);
    QVERIFY(m_stage->open());
    m_stage->button()->setFocus();
    settle();
    Notices notices;
    list->setFocus();
    settle();
    QVERIFY(notices.take().contains(QStringLiteral("Focus Alfa")));
    QCOMPARE(heard(list->focusProxy())->focusChild(), entry(list, 0));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    const QStringList told = notices.take();
    QVERIFY2(told.contains(QStringLiteral("Focus Beta")) && told.contains(QStringLiteral("SelectionAdd Beta")),
             qPrintable(told.join(u',')));
}

void tst_ListAccessible::checksAreTold()
{
    if (!Notices::areHeard())
        QSKIP("nobody listens");
    auto *list = fill(new KorListCheck);
    list->setListIndex(1);
    QVERIFY(m_stage->open());
    list->setFocus();
    settle();
    Notices notices;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(notices.take().contains(QStringLiteral("StateChanged Beta")));
}

void tst_ListAccessible::theOpenListHasItsFieldsName()
{
    auto *combo = fill(new KorCombo);
    combo->setListIndex(1);
    QVERIFY(m_stage->open());
    QAccessibleInterface *box = heard(combo->focusProxy());
    QVERIFY(box->state().hasPopup && box->state().collapsed && !box->state().editable);
    act(box, QAccessibleActionInterface::showMenuAction());
    settle();
    QVERIFY(box->state().expanded && !box->state().collapsed);
    QCOMPARE(box->childCount(), 1);
    QAccessibleInterface *list = box->child(0);
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(list->text(QAccessible::Name), QStringLiteral("Towary"));
    QCOMPARE(list->childCount(), 3);
    QCOMPARE(list->child(1)->text(QAccessible::Name), QStringLiteral("Beta"));
    QVERIFY(list->child(1)->state().selected);
    act(box, QAccessibleActionInterface::pressAction());
    settle();
    QVERIFY(box->state().collapsed);
    QCOMPARE(box->text(QAccessible::Value), QStringLiteral("Beta"));
    QCOMPARE(box->textInterface()->text(0, -1), QStringLiteral("Beta")); // for readers that look for a text
}

void tst_ListAccessible::openingIsTold()
{
    if (!Notices::areHeard())
        QSKIP("nobody listens");
    auto *combo = fill(new KorCombo);
    QVERIFY(m_stage->open());
    combo->setFocus();
    settle();
    Notices notices;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QVERIFY(notices.take().contains(QStringLiteral("StateChanged Towary")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    settle();
    QVERIFY(notices.take().contains(QStringLiteral("StateChanged Towary")));
}

void tst_ListAccessible::aListThatWasNeverOpenedIsNotMade()
{
    auto *combo = fill(new KorCombo);
    QVERIFY(m_stage->open());
    QCOMPARE(faultsIn(heard(combo)), QString());
    const auto *box = qobject_cast<QComboBox *>(combo->focusProxy());
    QVERIFY(box->findChildren<QAbstractItemView *>().isEmpty());
}

void tst_ListAccessible::anotherEntryIsTold()
{
    if (!Notices::areHeard())
        QSKIP("nobody listens");
    auto *combo = fill(new KorCombo);
    combo->setListIndex(0);
    QVERIFY(m_stage->open());
    combo->setFocus();
    settle();
    Notices notices;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(notices.take().contains(QStringLiteral("ValueChanged Towary")));
    QCOMPARE(heard(combo->focusProxy())->text(QAccessible::Value), QStringLiteral("Beta"));
}

QTEST_MAIN(tst_ListAccessible)
#include "tst_listaccessible.moc"
