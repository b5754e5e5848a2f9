// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orders/order.h"
#include "orders/ordercursor.h"

#include <QtTest/QtTest>

using orders::Order;
using orders::OrderCursor;

namespace {

//! "previous current next", with 0 for none.
QString around(const OrderCursor &cursor)
{
    return QStringLiteral("%1 %2 %3")
        .arg(cursor.previous().value_or(0))
        .arg(cursor.current().value_or(0))
        .arg(cursor.next().value_or(0));
}

} // namespace

//! The desk's rules that need no window.
class tst_OrderCursor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsBehindTheLast()
    {
        const OrderCursor cursor({10, 20, 30});
        QCOMPARE(around(cursor), QStringLiteral("30 0 0"));
        QCOMPARE(cursor.first().value_or(0), 10);
        QCOMPARE(cursor.last().value_or(0), 30);
        QCOMPARE(cursor.text(), QStringLiteral("nowe (4)"));
    }

    void knowsItsNeighbours()
    {
        OrderCursor cursor({10, 20, 30});
        cursor.goTo(20);
        QCOMPARE(around(cursor), QStringLiteral("10 20 30"));
        QCOMPARE(cursor.text(), QStringLiteral("2 z 3"));
        cursor.goTo(10);
        QCOMPARE(around(cursor), QStringLiteral("0 10 20"));
        cursor.goTo(30);
        QCOMPARE(around(cursor), QStringLiteral("20 30 0"));
        cursor.goToNew();
        QCOMPARE(around(cursor), QStringLiteral("30 0 0"));
    }

    void anOrderOfAnotherDeskComesLast()
    {
        OrderCursor cursor({10, 20});
        cursor.goTo(99);
        QCOMPARE(around(cursor), QStringLiteral("20 99 0"));
    }

    void removingGoesToTheFollower()
    {
        OrderCursor cursor({10, 20, 30});
        cursor.goTo(20);
        cursor.removeCurrent();
        QCOMPARE(around(cursor), QStringLiteral("10 30 0"));
        cursor.removeCurrent();
        QCOMPARE(around(cursor), QStringLiteral("0 10 0"));
        cursor.removeCurrent();
        QCOMPARE(around(cursor), QStringLiteral("0 0 0"));
        QCOMPARE(cursor.text(), QStringLiteral("nowe (1)"));
        cursor.removeCurrent();
        QVERIFY(!cursor.first());
        QVERIFY(!cursor.last());
    }

    void dateProblems()
    {
        Order order;
        order.date = QDate();
        QVERIFY(orders::problemOf(order)->text.contains(QStringLiteral("datę")));
        order.date = QDate(2026, 3, 2);
        QVERIFY(!orders::problemOf(order));
        order.delivery = QDate(2026, 3, 1);
        QVERIFY(orders::problemOf(order)->text.contains(QStringLiteral("wcześniejsza")));
        order.delivery = order.date;
        QVERIFY(!orders::problemOf(order));
    }

    void problems_data()
    {
        QTest::addColumn<double>("discount");
        QTest::addColumn<qint64>("advance");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<QString>("text"); // a part of it

        // clang-format off
        QTest::newRow("an empty order")              <<   0.0 << qint64(0)  << qint64(0)   << "";
        QTest::newRow("all at their limits")         << 100.0 << qint64(50) << qint64(50)  << "";
        QTest::newRow("a discount below zero")       <<  -0.1 << qint64(0)  << qint64(0)   << "Rabat";
        QTest::newRow("a discount above a hundred")  << 100.1 << qint64(0)  << qint64(0)   << "Rabat";
        QTest::newRow("a discount that is no number")<< qQNaN() << qint64(0) << qint64(0)  << "Rabat";
        QTest::newRow("a total below zero")          <<   0.0 << qint64(0)  << qint64(-1)  << QStringLiteral("Wartość");
        QTest::newRow("an advance below zero")       <<   0.0 << qint64(-1) << qint64(0)   << "Zaliczka";
        QTest::newRow("an advance above the total")  <<   0.0 << qint64(51) << qint64(50)  << QStringLiteral("przekraczać");
        // clang-format on
    }
    void problems()
    {
        QFETCH(const double, discount);
        QFETCH(const qint64, advance);
        QFETCH(const qint64, total);
        QFETCH(const QString, text);
        Order order;
        order.date = QDate(2026, 3, 2);
        order.discount = discount;
        order.advance = advance;
        order.total = total;
        const std::optional<orders::OrderProblem> problem = orders::problemOf(order);
        QCOMPARE(problem.has_value(), !text.isEmpty());
        if (problem)
            QVERIFY2(problem->text.contains(text), qPrintable(problem->text));
    }
};

QTEST_GUILESS_MAIN(tst_OrderCursor)
#include "tst_ordercursor.moc"
