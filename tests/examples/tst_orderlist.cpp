// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "listfilters.h"
#include "orderfiles.h"
#include "orders/orderlist.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace orders;
using namespace orders::test;

Q_DECLARE_METATYPE(orders::OrderFilter)

namespace {

const MayGoOn always = [](qint64, qint64) { return true; };

QList<qint64> idsIn(const QList<ListedOrder> &orders)
{
    QList<qint64> ids;
    for (const ListedOrder &order : orders)
        ids << order.id;
    return ids;
}

} // namespace

//! Which orders a list has, and what it says of them.
class tst_OrderList : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        file = folder->filePath(QStringLiteral("zamówienia.sqlite"));
        makeFile(file);
        store = std::make_unique<OrderStore>(file);
    }
    void cleanup() { store.reset(); }

    void whatAFilterLeaves_data()
    {
        QTest::addColumn<OrderFilter>("filter");
        QTest::addColumn<QString>("condition");
        QTest::addColumn<bool>("isMany");
        for (const FilterCase &each : filterCases()) {
            QTest::addRow("%s", each.name) << each.filter() << QString::fromUtf8(each.condition) << false;
            QTest::addRow("%s, of many orders", each.name)
                << each.filter() << QString::fromUtf8(each.condition) << true;
        }
    }
    void whatAFilterLeaves()
    {
        QFETCH(const OrderFilter, filter);
        QFETCH(const QString, condition);
        QFETCH(const bool, isMany);
        if (isMany)
            addMany(4000);
        QList<qint64> expected;
        for (const QVariantList &row :
             rows(file, QStringLiteral("SELECT o.id FROM orders o LEFT JOIN customers c ON c.id = o.customer_id "
                                       "WHERE %1 ORDER BY o.id DESC")
                            .arg(condition)))
            expected << row.first().toLongLong();
        QCOMPARE(idsIn(list(filter).orders), expected);
        QCOMPARE(list(filter).all, isMany ? 5000 : 1000);
    }

    void aListSaysWhatTheOrdersSay()
    {
        for (const ListedOrder &listed : list({}).orders) {
            const Order order = store->order(listed.id).value();
            QCOMPARE(listed.number, order.number);
            QCOMPARE(listed.date, order.date);
            QCOMPARE(listed.customer, order.customer ? store->nameOf(*order.customer) : QString());
            QCOMPARE(listed.terms, order.paymentTerms);
            QCOMPARE(listed.delivery, order.delivery);
            QCOMPARE(listed.priority, order.priority);
            QCOMPARE(listed.net, amountOf(order.lines));
            QCOMPARE(listed.total, order.total);
            QCOMPARE(listed.due, dueOf(order.total, order.advance));
            QCOMPARE(listed.remarks, order.remarks);
        }
    }

    void netAmountsAreRoundedLineByLine_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<bool>("isKnown");
        QTest::addColumn<qint64>("net");
        // clang-format off
        QTest::newRow("halves go up")                  << "(1, 1, 0.5, 1), (1, 2, 0.5, 3)"           << true  << qint64(3);
        QTest::newRow("less than half of a grosz")     << "(1, 1, 0.1, 1), (1, 2, 0.1, 1)"           << true  << qint64(0);
        QTest::newRow("a line without price is left out") << "(1, 1, 2, 250), (1, 2, 7, NULL)"       << true  << qint64(500);
        QTest::newRow("no line is known")              << "(1, 1, NULL, 250)"                        << false << qint64(0);
        QTest::newRow("more than any order comes to")  << "(1, 1, 1e12, 1000000), (1, 2, 1e300, 10)" << true  << qint64(2'000'000'000'000'000);
        // clang-format on
    }
    void netAmountsAreRoundedLineByLine()
    {
        QFETCH(const QString, lines);
        QFETCH(const bool, isKnown);
        QFETCH(const qint64, net);
        change(file, {QStringLiteral("DELETE FROM order_lines WHERE order_id = 1"),
                      QStringLiteral("INSERT INTO order_lines (order_id, line, quantity, net_price) VALUES ") + lines});
        const QList<ListedOrder> orders = readListed(store->connection(), {}, {1});
        QCOMPARE(idsIn(orders), QList<qint64>{1});
        QCOMPARE(orders.first().net, isKnown ? std::optional(net) : std::nullopt);
        QCOMPARE(orders.first().net, amountOf(store->order(1)->lines));
    }

    void anOrderIsListedOnlyWhereItBelongs()
    {
        OrderFilter filter;
        filter.text = store->order(7)->number;
        QCOMPARE(idsIn(readListed(store->connection(), filter, {8, 7})), QList<qint64>{7});
        QCOMPARE(idsIn(readListed(store->connection(), {}, {7, 123456, 8})), (QList<qint64>{8, 7}));
        QVERIFY(readListed(store->connection(), {}, {}).isEmpty());
    }

    void moreOrdersAreReadThanAStatementTakes()
    {
        QList<qint64> all = idsIn(list({}).orders);
        QCOMPARE(all.size(), 1000);
        all.removeOne(500);
        QCOMPARE(idsIn(readListed(store->connection(), {}, all)), all);
    }

    void aCustomerHasTheirOrders()
    {
        OrderFilter filter;
        filter.customer = 25;
        QList<qint64> ids = ordersOf(store->connection(), 25);
        std::sort(ids.rbegin(), ids.rend());
        QVERIFY(ids.size() > 1);
        QCOMPARE(ids, idsIn(list(filter).orders));
        QVERIFY(ordersOf(store->connection(), 123456).isEmpty());
    }

    void keysFarApartAreReadToo()
    {
        addMany(4000);
        change(file, {QStringLiteral("UPDATE orders SET id = id * 1000000000000 WHERE id > 1000"),
                      QStringLiteral("UPDATE orders SET id = 9223372036854775807 WHERE id = 5000000000000000"),
                      QStringLiteral("UPDATE orders SET id = -7 WHERE id = 2000000000000000")});
        const QList<qint64> ids = idsIn(list({}).orders);
        QCOMPARE(ids.size(), 5000);
        QCOMPARE(ids.first(), std::numeric_limits<qint64>::max());
        QCOMPARE(ids.last(), -7);
    }

    void whatIsReadMeanwhileIsNeitherMissedNorDoubled()
    {
        addMany(9000);
        bool isMoved = false;
        const auto read = readOrders(store->connection(), {}, [&](qint64 done, qint64) {
            if (done > 0 && !isMoved) {
                isMoved = true;
                change(file, {QStringLiteral("UPDATE orders SET order_date = '2027-01-01', delivery_date = NULL")});
            }
            return true;
        });
        QVERIFY(isMoved);
        QCOMPARE(read->orders.size(), 10000);
        const QList<qint64> ids = idsIn(read->orders);
        QCOMPARE(QSet<qint64>(ids.cbegin(), ids.cend()).size(), 10000);
    }

    void aListCanBeStopped()
    {
        addMany(30000);
        qint64 last = -1;
        int asked = 0;
        const auto read = readOrders(store->connection(), {}, [&](qint64 done, qint64 all) {
            [&] { QVERIFY(done > last && done <= all); }();
            last = done;
            return ++asked < 3;
        });
        QVERIFY(!read);
        QCOMPARE(asked, 3);
        change(file, {QStringLiteral("DELETE FROM orders WHERE id > 1000")}); // no statement is still open
    }

    void sumsLeaveOutWhatIsNotKnown()
    {
        QList<ListedOrder> orders(3);
        orders[0].net = 100;
        orders[0].total = 123;
        orders[1].total = 200;
        orders[1].due = 50;
        QCOMPARE(sumsOf(orders), (OrderSums{100, 323, 50}));
    }

    void whatTheDatabaseRefusesIsSaid()
    {
        QVERIFY_THROWS_EXCEPTION(StoreError, (void)readOrders(QSqlDatabase(), {}, always));
        QVERIFY_THROWS_EXCEPTION(StoreError, (void)readListed(QSqlDatabase(), {}, {1}));
    }

    void filtersAreKeptUntilTomorrow_data()
    {
        QTest::addColumn<OrderFilter>("filter");
        for (const FilterCase &each : filterCases())
            QTest::newRow(each.name) << each.filter();
    }
    void filtersAreKeptUntilTomorrow()
    {
        QFETCH(const OrderFilter, filter);
        QCOMPARE(filterOf(textsOf(filter)), filter);
    }

    void nonsenseIsNoLimit()
    {
        QMap<QString, QString> texts;
        for (const char *name : {"from", "to", "least", "most", "group", "customer"})
            texts.insert(QLatin1String(name), QStringLiteral("12x"));
        QCOMPARE(filterOf(texts), OrderFilter());
    }

    void whatIsWrongWithAFilter_data()
    {
        QTest::addColumn<OrderFilter>("filter");
        QTest::addColumn<int>("field");
        const auto row = [](const char *name, FilterField field, const std::function<void(OrderFilter &)> &set) {
            OrderFilter filter;
            set(filter);
            QTest::newRow(name) << filter << int(field);
        };
        row("no date", FilterField::From, [](OrderFilter &f) { f.from = QDate(); });
        row("no date at the end", FilterField::To, [](OrderFilter &f) { f.to = QDate(); });
        row("a period that ends before it begins", FilterField::To, [](OrderFilter &f) {
            f.from = QDate(2026, 2, 2);
            f.to = QDate(2026, 2, 1);
        });
        row("amounts the wrong way round", FilterField::Most, [](OrderFilter &f) {
            f.least = 2;
            f.most = 1;
        });
    }
    void whatIsWrongWithAFilter()
    {
        QFETCH(const OrderFilter, filter);
        QFETCH(const int, field);
        const auto problem = problemOf(filter);
        QVERIFY(problem);
        QCOMPARE(int(problem->field), field);
        QVERIFY(!problem->text.isEmpty());
    }
    void whatIsRightIsNoProblem()
    {
        for (const FilterCase &each : filterCases())
            QVERIFY2(!problemOf(each.filter()), each.name);
    }

private:
    [[nodiscard]] OrderList list(const OrderFilter &filter) const
    {
        return readOrders(store->connection(), filter, always).value();
    }
    //! Copies of the sample's orders, in turn.
    void addMany(int count) const
    {
        change(file,
               {QStringLiteral("WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM i WHERE x < %1) "
                               "INSERT INTO orders (number, customer_id, order_date, payment_terms, total, remarks) "
                               "SELECT printf('ZAM/2030/%05d', x), customer_id, order_date, payment_terms, total, "
                               "remarks FROM i JOIN orders o ON o.id = x % 1000 + 1")
                    .arg(count)});
    }

    std::unique_ptr<QTemporaryDir> folder;
    QString file;
    std::unique_ptr<OrderStore> store;
};

QTEST_GUILESS_MAIN(tst_OrderList)
#include "tst_orderlist.moc"
