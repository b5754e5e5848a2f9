// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/Variant>

#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>

using orders::Order;
using namespace orders::test;

//! What a clerk enters into the fields of an order, and what is saved of it.
class tst_OrderEntry : public orders::test::OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void aClerkEntersAndSavesAnOrder()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(position(), QStringLiteral("nowe (1001)"));
        QCOMPARE(focusName(), QStringLiteral("cmbCustomer"));
        press(Qt::Key_Down); // the first customer behind the null entry
        press(Qt::Key_Tab);
        press(Qt::Key_Tab);  // past the address
        press(Qt::Key_Home); // cash
        press(Qt::Key_Tab);
        type(QStringLiteral("2.5")); // the point types the comma
        press(Qt::Key_Tab);
        press(Qt::Key_Down); // more urgent
        press(Qt::Key_Tab);
        type(QStringLiteral("1234,567"));
        press(Qt::Key_Tab);
        QCOMPARE(number("numTotal")->Text(), grouped("1 234,57"));
        type(QStringLiteral("100"));
        press(Qt::Key_Tab);
        QCOMPARE(number("numDue")->Text(), grouped("1 134,57"));
        type(QStringLiteral("Zażółć"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);

        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(position(), QStringLiteral("1001 z 1001"));
        restart();
        press(Qt::Key_End, Qt::AltModifier);
        const Order saved = m_window->form().order();
        QCOMPARE(saved.number, QStringLiteral("ZAM/2026/0340"));
        QCOMPARE(saved.date, QDate(2026, 11, 21));
        QVERIFY(saved.customer);
        QCOMPARE(saved.paymentTerms, QStringLiteral("G"));
        QCOMPARE(saved.discount, std::optional(2.5));
        QCOMPARE(saved.priority, 2);
        QCOMPARE(saved.total, 123457);
        QCOMPARE(saved.advance, 10000);
        QCOMPARE(saved.remarks, QStringLiteral("Zażółć"));
        QVERIFY(m_store->order(saved.id) == saved);
    }

    void aClerkEntersTheDates()
    {
        focus("datOrder");
        type(QStringLiteral("010226"));
        press(Qt::Key_Tab);
        QCOMPARE(date("datOrder")->Text(), QStringLiteral("01.02.2026"));
        QCOMPARE(focusName(), QStringLiteral("datDelivery"));
        press(Qt::Key_Insert);
        press(Qt::Key_PageUp);
        QCOMPARE(date("datDelivery")->Text(), QStringLiteral("28.11.2026"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        restart();
        const Order saved = m_window->form().order();
        QCOMPARE(saved.date, QDate(2026, 2, 1));
        QCOMPARE(saved.delivery, QDate(2026, 11, 28));
        QCOMPARE(saved.number, QStringLiteral("ZAM/2025/0001")); // a number once given stays
    }

    void noDeliveryIsKeptAsNone()
    {
        focus("datDelivery");
        press(Qt::Key_Delete);
        press(Qt::Key_Tab);
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_store->order(1)->delivery);
        restart();
        QVERIFY(kor::isNull(date("datDelivery")->Value()));
        QVERIFY(!m_window->isWindowModified());
        focus("datDelivery");
        press(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified()); // looking is no change
    }

    void savesWhileTheDateIsStillBeingTyped()
    {
        focus("datDelivery");
        type(QStringLiteral("011226"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->delivery, QDate(2026, 12, 1));
        QVERIFY(!m_window->isWindowModified());
    }

    void deliveryBeforeTheOrderIsNotSaved()
    {
        const Order before = m_store->order(1).value();
        focus("datDelivery");
        type(QStringLiteral("01.01.1999"));
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_clerk->heard(), QStringLiteral("Dostawa nie może być wcześniejsza niż zamówienie."));
        QTRY_COMPARE(focusName(), QStringLiteral("datDelivery"));
        QVERIFY(m_store->order(1) == before);
    }

    void savesWhileTheNumberIsStillBeingTyped()
    {
        focus("numTotal");
        type(QStringLiteral("5000,5"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->total, 500050);
        QVERIFY(!m_window->isWindowModified());
        press(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified());
    }

    void anEmptyNumberStaysEmpty_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"numDiscount", "numTotal", "numAdvance"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void anEmptyNumberStaysEmpty()
    {
        QFETCH(const QString, name);
        focus("numAdvance"); // nothing is paid of a total that is not known
        press(Qt::Key_Delete);
        focus(qPrintable(name));
        press(Qt::Key_Delete);
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        restart();
        QVERIFY(kor::isNull(number(qPrintable(name))->Value()));
        QCOMPARE(number(qPrintable(name))->Text(), QString());
        QCOMPARE(number("numDue")->Text().isEmpty(), name == u"numTotal");
        focus(qPrintable(name));
        press(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified()); // looking is no change
        const Order saved = *m_store->order(1);
        QVERIFY(!saved.advance);
        QCOMPARE(saved.total.has_value(), name != u"numTotal");
        QCOMPARE(saved.discount.has_value(), name != u"numDiscount");
    }

    void aNewOrderHasNoAmountsUntilTheyAreTyped()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        for (const char *name : {"numDiscount", "numTotal", "numAdvance", "numDue"})
            QCOMPARE(number(name)->Text(), QString());
        press(Qt::Key_S, Qt::ControlModifier);
        const Order saved = *m_store->order(m_store->ids().last());
        QVERIFY(!saved.discount && !saved.total && !saved.advance);
    }

    void whatTheFormRoundsIsNotSavedRounded()
    {
        Order order = *m_store->order(1);
        order.discount = 2.555;
        (void)m_store->save(order, *m_store->order(1));
        restart();
        QCOMPARE(number("numDiscount")->Text(), QStringLiteral("2,56"));
        focus("txtRemarks");
        type(QStringLiteral("nowe"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->remarks, QStringLiteral("nowe"));
        QCOMPARE(m_store->order(1)->discount, std::optional(2.555));
    }

    void theNullEntryIsAnOrderWithoutCustomer()
    {
        press(Qt::Key_Home);
        QCOMPARE(part<KorCombo>("cmbCustomer")->Text(), QStringLiteral("(bez klienta)"));
        QCOMPARE(part<KorClick>("clkAddress")->Text(), QString());
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_store->order(1)->customer);
    }

    void aDiscountOutOfItsRangeGoesBackToTheField()
    {
        focus("numDiscount");
        type(QStringLiteral("150"));
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_Tab);
        QTRY_COMPARE(m_clerk->heard(),
                     QStringLiteral("Przekroczony zakres liczby. Wprowadź liczbę z zakresu: [0...100]."));
        QTRY_COMPARE(focusName(), QStringLiteral("numDiscount"));
    }

    void theLargestAmountsAreShownWhole()
    {
        const auto isWhole = [this](const char *name) { return !number(name)->Text().contains(u'#'); };
        focus("numTotal");
        type(QStringLiteral("999999999999"));
        focus("numAdvance");
        QVERIFY(isWhole("numTotal"));
        QVERIFY(isWhole("numDue"));
        type(QStringLiteral("999999999999"));
        focus("numTotal");
        QVERIFY(isWhole("numAdvance"));
    }

    void anAdvanceAboveTheTotalIsNotSaved()
    {
        focus("numAdvance");
        type(QStringLiteral("9999"));
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_clerk->heard(), QStringLiteral("Zaliczka nie może przekraczać wartości zamówienia."));
        QTRY_COMPARE(focusName(), QStringLiteral("numAdvance"));
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_store->order(1)->advance, 178000);
    }

    void theAddressFieldChoosesACustomer()
    {
        QString choice;
        const auto choose = [&](const char *text, Qt::Key key) {
            inNextDialog([&choice, text, key](const QWidget &dialog) {
                QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
                const auto *list = dialog.findChild<QTreeWidget *>();
                choice = list->currentItem() ? list->currentItem()->text(0) : QString();
                QTest::keyClick(QApplication::focusWidget(), key);
            });
        };
        focus("clkAddress");
        choose("hurt", Qt::Key_Return);
        press(Qt::Key_F4);
        QVERIFY(!choice.isEmpty());
        QCOMPARE(part<KorCombo>("cmbCustomer")->Text(), choice);
        const auto customer = m_window->form().order().customer;
        QVERIFY(customer);
        QCOMPARE(part<KorClick>("clkAddress")->Text(), m_store->addressOf(*customer));
        QVERIFY(m_window->isWindowModified());

        choose("zak", Qt::Key_Escape);
        m_window->activateWindow();
        focus("clkAddress");
        press(Qt::Key_F4);
        QCOMPARE(m_window->form().order().customer, customer);

        m_window->activateWindow();
        focus("clkAddress");
        press(Qt::Key_Delete);
        QVERIFY(!m_window->form().order().customer);
        QCOMPARE(part<KorClick>("clkAddress")->Text(), QString());
    }

    void priorityRemarksAndLabelAreSaved()
    {
        focus("spnPriority");
        part<QLineEdit>("txtUpDown")->selectAll();
        type(QStringLiteral("9")); // clamped on leaving
        press(Qt::Key_Tab);
        QCOMPARE(part<KorUpDown>("spnPriority")->Text(), QStringLiteral("5"));
        focus("clrLabel");
        press(Qt::Key_Home);
        press(Qt::Key_Down);
        press(Qt::Key_Down); // blue
        auto *remarks = part<KorMultiText>("txtRemarks");
        remarks->findChild<QAbstractButton *>(QStringLiteral("cmdClick"))->click();
        kor::test::settle();
        type(QStringLiteral("jeden"));
        press(Qt::Key_Return);
        type(QStringLiteral("dwa"));
        press(Qt::Key_Tab);
        QCOMPARE(remarks->Text(), QStringLiteral("jeden\ndwa"));
        press(Qt::Key_S, Qt::ControlModifier);
        const Order saved = *m_store->order(1);
        QCOMPARE(saved.priority, 5);
        QCOMPARE(saved.labelColor, std::optional<int>(0x800000));
        QCOMPARE(saved.remarks, QStringLiteral("jeden\ndwa"));
    }

    void aLabelColorOutsideTheListIsNotLost()
    {
        Order order = *m_store->order(1);
        order.labelColor = 0x123456;
        QCOMPARE(int(m_store->save(order, *m_store->order(1)).kind), int(orders::Outcome::Kind::Done));
        restart();
        QVERIFY(!m_window->isWindowModified());
        focus("numAdvance");
        type(QStringLiteral("5"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->labelColor, std::optional<int>(0x123456));
        focus("clrLabel");
        press(Qt::Key_Home); // no label
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_store->order(1)->labelColor);
    }
};

QTEST_MAIN(tst_OrderEntry)
#include "tst_orderentry.moc"
