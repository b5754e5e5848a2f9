// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "support/heard.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

using namespace kor::test;
using namespace orders::test;

//! The order desk for a clerk who hears it.
class tst_OrderAccess : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void everythingForUseHasANameAndARole() { QCOMPARE(faultsIn(heard(m_window.get())), QString()); }

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
