// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/listdesk.h"
#include "orders/recordtables.h"
#include "orders/reportwindow.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/SqlDatabase>

#include <QtWidgets/QComboBox>

using namespace orders;
using namespace orders::test;

//! Keys have 64 bits in the tables, and a database that is joined from others has large ones.
class tst_OrderKeys : public ListDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        m_window.reset();
    }
    void cleanup() { end(); }

    void anOrderIsShownEditedAndSaved_data() { keys(); }
    void anOrderIsShownEditedAndSaved();
    void aNewOrderIsEnteredByKeysAlone_data() { keys(); }
    void aNewOrderIsEnteredByKeysAlone();
    void customersAreOfferedByTheirGroup_data() { keys(); }
    void customersAreOfferedByTheirGroup();
    void theCustomerIsFoundAndTakenAway_data() { keys(); }
    void theCustomerIsFoundAndTakenAway();
    void recordsAreChangedAndFollowed_data() { keys(); }
    void recordsAreChangedAndFollowed();
    void theListIsFiltered_data() { keys(); }
    void theListIsFiltered();
    void theReportIsOfTheCustomer_data() { keys(); }
    void theReportIsOfTheCustomer();

private:
    static void keys()
    {
        QTest::addColumn<qint64>("key");
        QTest::newRow("the last of 32 bits") << Q_INT64_C(2147483647);
        QTest::newRow("the first beyond 32 bits") << Q_INT64_C(2147483648);
        QTest::newRow("as many digits as a Double is written with") << Q_INT64_C(999999999999999);
        QTest::newRow("more digits than that") << Q_INT64_C(1234567890123457);
        QTest::newRow("beyond what a Double holds exactly") << Q_INT64_C(9007199254740993);
    }
    //! A customer and a product with such a key and with all that belongs to them, and an order of both.
    void start(qint64 key)
    {
        QStringList statements{
            QStringLiteral("INSERT INTO customer_groups (id, name) VALUES (%1, 'Żółta grupa')"),
            QStringLiteral("INSERT INTO customers (id, name, group_id, street, postal_code, city) "
                           "VALUES (%1, 'Żółw', %1, 'Prosta 1', '00-950', 'Łódź')"),
            QStringLiteral("INSERT INTO units (id, name) VALUES (%1, 'beczka')"),
            QStringLiteral("INSERT INTO product_categories (id, name) VALUES (%1, 'Beczki')"),
            QStringLiteral("INSERT INTO products (id, name, symbol, category_id, unit_id, net_price, vat) "
                           "VALUES (%1, 'Śledzie', 'SL', %1, %1, 100, 23)"),
            QStringLiteral("INSERT INTO orders (id, number, customer_id, order_date, total) "
                           "VALUES (%1, 'ZAM/2027/0001', %1, '2026-11-20', 1000)"),
            QStringLiteral("INSERT INTO order_lines (order_id, line, product_id, name, quantity, unit_id, net_price, "
                           "vat) VALUES (%1, 1, %1, 'Śledzie', 2, %1, 100, 23)")};
        for (QString &statement : statements)
            statement = statement.arg(key);
        change(file(), statements);
        m_store.reset();
        OrderDesk::start();
        press(Qt::Key_End, Qt::AltModifier); // the last order
    }
    [[nodiscard]] QVariantList saved(qint64 order) const
    {
        return rows(file(), QStringLiteral("SELECT o.id, o.customer_id, l.product_id, l.unit_id, o.remarks FROM orders "
                                           "o JOIN order_lines l ON l.order_id = o.id WHERE o.id = %1")
                                .arg(order))
            .value(0);
    }
};

void tst_OrderKeys::anOrderIsShownEditedAndSaved()
{
    QFETCH(const qint64, key);
    start(key);
    const Order shown = m_window->form().order();
    QCOMPARE(shown.id, key);
    QCOMPARE(shown.customer, std::optional(key));
    QCOMPARE(shown.lines.first().product, std::optional(key));
    QCOMPARE(shown.lines.first().unit, std::optional(key));
    QCOMPARE(part<KorCombo>("cmbCustomer")->Text(), QStringLiteral("Żółw"));
    QVERIFY(part<KorClick>("clkAddress")->Text().contains(QStringLiteral("Łódź")));
    QCOMPARE(part<KorList>("lstOrders")->ListCount(), 1);
    QVERIFY(!m_window->isWindowModified());
    focus("txtRemarks");
    type(QStringLiteral("pilne"));
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_clerk->heard(), QString());
    QCOMPARE(saved(key), (QVariantList{key, key, key, key, QStringLiteral("pilne")}));
}

void tst_OrderKeys::aNewOrderIsEnteredByKeysAlone()
{
    QFETCH(const qint64, key);
    start(key);
    press(Qt::Key_N, Qt::ControlModifier);
    type(QStringLiteral("żół"));
    press(Qt::Key_J, Qt::AltModifier);
    type(QStringLiteral("sl"));
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    type(QStringLiteral("3"));
    press(Qt::Key_Tab); // to the unit
    QCOMPARE(qobject_cast<QComboBox *>(QApplication::focusWidget())->currentText(), QStringLiteral("beczka"));
    press(Qt::Key_Home); // none after all
    type(QStringLiteral("becz"));
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_clerk->heard(), QString());
    const qint64 id = m_window->form().order().id;
    QVERIFY(id != 0 && id != key);
    QCOMPARE(saved(id), (QVariantList{id, key, key, key, QVariant(QMetaType::fromType<QString>())}));
}

void tst_OrderKeys::customersAreOfferedByTheirGroup()
{
    QFETCH(const qint64, key);
    start(key);
    auto *groups = part<KorListCheck>("lstGroups");
    focus("lstGroups");
    type(QStringLiteral("żół"));
    press(Qt::Key_Space);
    QCOMPARE(groups->SelCount(), 1);
    QCOMPARE(part<KorCombo>("cmbCustomer")->ListCount(), 2); // that one, and none
    QCOMPARE(m_window->form().order().customer, std::optional(key));
    press(Qt::Key_Space);
    press(Qt::Key_Home);
    press(Qt::Key_Space); // another group, and the customer of the order nevertheless
    QCOMPARE(m_window->form().order().customer, std::optional(key));
    QVERIFY(!m_window->isWindowModified());
}

void tst_OrderKeys::theCustomerIsFoundAndTakenAway()
{
    QFETCH(const qint64, key);
    start(key);
    focus("clkAddress");
    press(Qt::Key_Delete);
    QVERIFY(!m_window->form().order().customer);
    inNextDialog([](QWidget &) {
        type(QStringLiteral("żółw"));
        press(Qt::Key_Return);
    });
    press(Qt::Key_F4);
    QTRY_VERIFY(m_window->isActiveWindow());
    QCOMPARE(m_window->form().order().customer, std::optional(key));
    QVERIFY(part<KorClick>("clkAddress")->Text().contains(QStringLiteral("Łódź")));
}

void tst_OrderKeys::recordsAreChangedAndFollowed()
{
    QFETCH(const qint64, key);
    start(key);
    openList();
    bringUp(*m_window);
    const auto rename = [](QWidget &) {
        press(Qt::Key_Return);
        type(QStringLiteral("Inna nazwa"));
        press(Qt::Key_S, Qt::ControlModifier);
        press(Qt::Key_Escape);
    };
    inNextDialog(rename);
    press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(m_window->isActiveWindow());
    QCOMPARE(part<KorCombo>("cmbCustomer")->Text(), QStringLiteral("Inna nazwa"));
    QVERIFY(column(ListColumn::Customer).contains(QStringLiteral("Inna nazwa")));
    press(Qt::Key_J, Qt::AltModifier);
    inNextDialog(rename);
    press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(m_window->isActiveWindow());
    QCOMPARE(m_clerk->heard(), QString());
    QCOMPARE(rows(file(), QStringLiteral("SELECT name, group_id FROM customers WHERE id = %1").arg(key)).first(),
             (QVariantList{QStringLiteral("Inna nazwa"), key}));
    QCOMPARE(
        rows(file(), QStringLiteral("SELECT name, category_id, unit_id FROM products WHERE id = %1").arg(key)).first(),
        (QVariantList{QStringLiteral("Inna nazwa"), key, key}));
}

void tst_OrderKeys::theListIsFiltered()
{
    QFETCH(const qint64, key);
    start(key);
    openList();
    enter("cmbGroup", QStringLiteral("Żół"));
    enter("cmbCustomer", QStringLiteral("Żół"));
    press(Qt::Key_Enter);
    QCOMPARE(column(ListColumn::Number), QStringList{QStringLiteral("ZAM/2027/0001")});
    press(Qt::Key_Enter);
    QTRY_VERIFY(m_window->isActiveWindow());
    QCOMPARE(m_window->form().order().id, key);
}

void tst_OrderKeys::theReportIsOfTheCustomer()
{
    QFETCH(const qint64, key);
    start(key);
    kor::SqlDatabase database(m_store->connection());
    ReportWindow report(*m_store, database);
    bringUp(report);
    auto *parameters = report.findChild<KorParam *>();
    parameters->setRow(3);
    parameters->setFocus(Qt::TabFocusReason);
    kor::test::settle();
    type(QStringLiteral("Żół"));
    QCOMPARE(report.question().customer, std::optional(key));
}

QTEST_MAIN(tst_OrderKeys)
#include "tst_orderkeys.moc"
