// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "orders/conflictdialog.h"
#include "support/heard.h"

#include <QtCore/QSet>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

using namespace kor::test;
using namespace orders;
using namespace orders::test;

namespace {

//! Where the keyboard is: the whole control, even in an editor of one of its cells.
QWidget *stop()
{
    QWidget *whole = QApplication::focusWidget();
    for (QWidget *widget = whole; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (qobject_cast<kor::UserControl *>(widget))
            whole = widget;
    }
    return whole;
}

//! Walks through a window by Tab, until that comes back to where it began: what has the keyboard and cannot say what it
//! is, and what can be worked with and is never reached.
QString faultsOnTheWayThrough(QWidget &window)
{
    constexpr int farTooLong = 500; // of a walk that passes every cell of the order's lines
    QStringList faults;
    QSet<const QWidget *> reached;
    const QWidget *first = QApplication::focusWidget();
    for (int steps = 0; steps < farTooLong && (steps == 0 || QApplication::focusWidget() != first); ++steps) {
        const QWidget *focused = QApplication::focusWidget();
        if (!focused || !window.isAncestorOf(focused))
            return QStringLiteral("Tab leads out of the window");
        reached << stop();
        const QAccessibleInterface *part = heard(QApplication::focusWidget());
        const QString what = QString::fromLatin1(focused->metaObject()->className()) + u' ' + stop()->objectName();
        if (part->role() == QAccessible::NoRole || part->role() == QAccessible::Client)
            faults << what + QStringLiteral(": no role");
        if (part->text(QAccessible::Name).isEmpty())
            faults << what + QStringLiteral(": no name");
        press(Qt::Key_Tab);
    }
    if (QApplication::focusWidget() != first)
        faults << QStringLiteral("Tab never comes back");
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const bool isStop = widget->isVisibleTo(&window) && widget->isEnabled() &&
                            (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
        const auto around = [widget](const QWidget *one) { return one == widget || one->isAncestorOf(widget); };
        // One button of a group stands for the others, which the arrows reach.
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool isOneOfAGroup = button && button->autoExclusive();
        if (isStop && !isOneOfAGroup && widget->window() == &window &&
            std::none_of(reached.cbegin(), reached.cend(), around))
            faults << QStringLiteral("%1 %2: not reached by Tab")
                          .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName());
    }
    return faults.join(u'\n');
}

} // namespace

//! The order desk for a clerk who hears it.
class tst_OrderAccess : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void everythingForUseHasANameAndARole() { QCOMPARE(faultsIn(heard(m_window.get())), QString()); }

    void everyWindowSaysWhatIsInIt_data()
    {
        QTest::addColumn<QString>("focused");
        QTest::addColumn<QKeySequence>("key");
        QTest::newRow("the search") << QString() << QKeySequence(Qt::CTRL | Qt::Key_F);
        QTest::newRow("customers") << QString() << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_K);
        QTest::newRow("products") << QString() << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
        QTest::newRow("the report") << QString() << QKeySequence(Qt::Key_F9);
        QTest::newRow("the settings") << QString() << QKeySequence(Qt::CTRL | Qt::Key_Comma);
        QTest::newRow("who the customer is") << "clkAddress" << QKeySequence(Qt::Key_F4);
        QTest::newRow("which product it is") << "grdLines" << QKeySequence(Qt::Key_F4);
    }
    void everyWindowSaysWhatIsInIt()
    {
        QFETCH(QString, focused);
        QFETCH(QKeySequence, key);
        if (!focused.isEmpty())
            focus(qPrintable(focused));
        QString said = QStringLiteral("no window");
        QString reached = said;
        inNextDialog([&](QWidget &dialog) {
            said = faultsIn(heard(&dialog));
            reached = faultsOnTheWayThrough(dialog);
            dialog.close();
        });
        press(Qt::Key(key[0].key()), key[0].keyboardModifiers());
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(said, QString());
        QCOMPARE(reached, QString());
    }

    void theListOfOrdersSaysWhatIsInIt()
    {
        press(Qt::Key_L, Qt::ControlModifier);
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != m_window.get());
        QWidget &list = *QApplication::activeWindow();
        QTRY_VERIFY(list.isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(faultsIn(heard(&list)), QString());
        QCOMPARE(faultsOnTheWayThrough(list), QString());
    }

    void tabReachesEverythingOfAnOrder() { QCOMPARE(faultsOnTheWayThrough(*m_window), QString()); }

    void theChoiceBetweenTwoDesksSaysWhatIsInIt()
    {
        ConflictDialog dialog(
            QStringLiteral("Zamówienie ZAM/2025/0001"),
            {{QStringLiteral("Uwagi"), QStringLiteral("było"), QStringLiteral("moje"), QStringLiteral("tamto"), true}},
            m_window.get());
        dialog.open();
        dialog.activateWindow();
        QTRY_VERIFY(dialog.isActiveWindow() && dialog.isAncestorOf(QApplication::focusWidget()));
        settle();
        QCOMPARE(faultsIn(heard(&dialog)), QString());
        QCOMPARE(faultsOnTheWayThrough(dialog), QString());
    }

    void fieldsAreCalledByTheirLabels()
    {
        for (const auto &[control, name] :
             {std::pair("cmbCustomer", "Klient:"), std::pair("clkAddress", "Adres:"),
              std::pair("numDiscount", "Rabat:"), std::pair("txtRemarks", "Uwagi:"),
              std::pair("lstGroups", "Grupy klientów"), std::pair("grdLines", "Pozycje")}) {
            const QString said = nameOf(part<kor::UserControl>(control)->focusProxy());
            QVERIFY2(said == QString::fromUtf8(name), qPrintable(said));
        }
    }

    void everyCommandIsInAMenuOrOnAButtonWithALetter()
    {
        for (const QAction *menu : m_window->menuBar()->actions()) {
            QVERIFY2(menu->text().contains(u'&'), qPrintable(menu->text()));
            for (const QAction *command : menu->menu()->actions())
                QVERIFY2(command->isSeparator() || command->text().contains(u'&') || !command->shortcut().isEmpty(),
                         qPrintable(command->text()));
        }
    }
};

QTEST_MAIN(tst_OrderAccess)
#include "tst_orderaccess.moc"
