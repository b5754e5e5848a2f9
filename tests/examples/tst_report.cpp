// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderfiles.h"
#include "orders/orderstore.h"
#include "orders/report.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace orders;
using namespace orders::test;

Q_DECLARE_METATYPE(orders::ReportQuestion)

//! Reports over the orders: what is counted, how it is put together, and that one can stop it.
class tst_Report : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void whatIsAskedFor_data();
    void whatIsAskedFor();
    void everyGroupCountsTheSameOrders_data();
    void everyGroupCountsTheSameOrders();
    void monthsComeOneAfterTheOther();
    void theGreatestAmountComesFirst();
    void ordersWithoutCustomerOrAmountAreCounted();
    void aReportCanBeStopped();
    void whatTheDatabaseRefusesIsSaid();

private:
    [[nodiscard]] Report report(const ReportQuestion &question) const
    {
        return readReport(store->connection(), question, [](qint64, qint64) { return true; }).value_or(Report());
    }
    [[nodiscard]] static QString text(const Report &report)
    {
        QStringList rows;
        for (const ReportRow &row : report.rows)
            rows << QStringLiteral("%1: %2, %3").arg(row.name).arg(row.orders).arg(row.total);
        return rows.join(u'|');
    }

    QTemporaryDir folder;
    QString file;
    std::unique_ptr<OrderStore> store;
};

void tst_Report::initTestCase()
{
    file = folder.filePath(QStringLiteral("zamówienia.sqlite"));
    store = std::make_unique<OrderStore>(file);
}

void tst_Report::whatIsAskedFor_data()
{
    const auto from = [](ReportQuestion question) {
        question.from = QDate(2026, 1, 1);
        return question;
    };
    QTest::addColumn<ReportQuestion>("question");
    QTest::addColumn<QString>("condition");
    QTest::newRow("everything") << ReportQuestion{} << QStringLiteral("1 = 1");
    QTest::newRow("from a day") << from({}) << QStringLiteral("order_date >= '2026-01-01'");
    ReportQuestion question;
    question.to = QDate(2025, 2, 28);
    QTest::newRow("to a day, which counts") << question << QStringLiteral("order_date <= '2025-02-28'");
    question = from({});
    question.to = QDate(2026, 3, 31);
    question.customer = 25;
    QTest::newRow("a customer within a period")
        << question << QStringLiteral("order_date BETWEEN '2026-01-01' AND '2026-03-31' AND customer_id = 25");
    question = {};
    question.least = 250000;
    QTest::newRow("of an amount at least") << question << QStringLiteral("total >= 250000");
    question = {};
    question.remarks = QStringLiteral(" WĄSKA brama");
    QTest::newRow("remarks in another case") << question << QStringLiteral("remarks LIKE '%wąska brama%'");
    question.remarks = QStringLiteral("waska");
    QTest::newRow("remarks without accents") << question << QStringLiteral("remarks LIKE '%wąska%'");
    question.remarks = QStringLiteral("100%");
    QTest::newRow("signs of patterns mean themselves")
        << question << QStringLiteral("remarks LIKE '%100\\%%' ESCAPE '\\'");
    question = {};
    question.from = QDate(2030, 1, 1);
    QTest::newRow("nothing") << question << QStringLiteral("0 = 1");
}

void tst_Report::whatIsAskedFor()
{
    QFETCH(ReportQuestion, question);
    QFETCH(QString, condition);
    const auto expected =
        rows(file, QStringLiteral("SELECT count(*), coalesce(sum(total), 0) FROM orders WHERE ") + condition).first();
    const Report found = report(question);
    QCOMPARE(found.orders, expected.at(0).toLongLong());
    QCOMPARE(found.total, expected.at(1).toLongLong());
}

void tst_Report::everyGroupCountsTheSameOrders_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<QString>("key");
    const QStringList keys{QStringLiteral("substr(order_date, 1, 7)"), QStringLiteral("customer_id"),
                           QStringLiteral("c.group_id"), QStringLiteral("c.city"), QStringLiteral("payment_terms")};
    for (const ReportGroup group : reportGroups())
        QTest::addRow("%s", qPrintable(nameOf(group))) << int(group) << keys.at(int(group));
}

void tst_Report::everyGroupCountsTheSameOrders()
{
    QFETCH(int, group);
    QFETCH(QString, key);
    ReportQuestion question;
    question.group = static_cast<ReportGroup>(group);
    const Report found = report(question);
    QCOMPARE(found.orders, 1000);
    qint64 orders = 0;
    qint64 total = 0;
    for (const ReportRow &row : found.rows) {
        orders += row.orders;
        total += row.total;
        QVERIFY(!row.name.isEmpty());
    }
    QCOMPARE(orders, found.orders);
    QCOMPARE(total, found.total);
    const auto groups = rows(file, QStringLiteral("SELECT count(*), coalesce(sum(total), 0) FROM orders o "
                                                  "LEFT JOIN customers c ON c.id = o.customer_id GROUP BY %1")
                                       .arg(key));
    QCOMPARE(found.rows.size(), groups.size());
    QList<qint64> sums;
    QList<qint64> expected;
    for (const ReportRow &row : found.rows)
        sums << row.total;
    for (const QVariantList &row : groups)
        expected << row.at(1).toLongLong();
    std::sort(sums.begin(), sums.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(sums, expected);
}

void tst_Report::monthsComeOneAfterTheOther()
{
    ReportQuestion question;
    question.group = ReportGroup::Month;
    question.from = QDate(2025, 11, 1);
    question.to = QDate(2026, 2, 15);
    QStringList names;
    for (const ReportRow &row : report(question).rows)
        names << row.name;
    QCOMPARE(names.join(u'|'), QStringLiteral("listopad 2025|grudzień 2025|styczeń 2026|luty 2026"));
}

void tst_Report::theGreatestAmountComesFirst()
{
    ReportQuestion question;
    question.group = ReportGroup::CustomerGroup;
    const Report found = report(question);
    for (qsizetype at = 1; at < found.rows.size(); ++at)
        QVERIFY(found.rows.at(at - 1).total >= found.rows.at(at).total);
}

void tst_Report::ordersWithoutCustomerOrAmountAreCounted()
{
    change(file, {QStringLiteral("INSERT INTO orders (id, number, order_date) "
                                 "VALUES (5001, 'ZAM/2031/0001', '2031-01-02'), (5002, 'ZAM/2031/0002', '2031-01-03')"),
                  QStringLiteral("UPDATE orders SET total = 700, payment_terms = 'P7' WHERE id = 5002")});
    ReportQuestion question;
    question.from = QDate(2031, 1, 1);
    const Report found = report(question);
    QCOMPARE(text(found), QStringLiteral("(bez klienta): 2, 700"));
    QCOMPARE(found.unknown, 1);
    question.group = ReportGroup::Terms;
    QCOMPARE(text(report(question)), QStringLiteral("Przelew 7 dni: 1, 700|Przelew 14 dni: 1, 0"));
    question.least = 0; // an amount that is not known is no amount
    QCOMPARE(report(question).orders, 1);
    change(file, {QStringLiteral("DELETE FROM orders WHERE id > 5000")});
}

void tst_Report::aReportCanBeStopped()
{
    // So many that the reading takes longer than a clerk's patience.
    change(file, {QStringLiteral("WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM i WHERE x < 100000) "
                                 "INSERT INTO orders (number, order_date, total, customer_id, remarks) SELECT "
                                 "printf('ZAM/2040/%06d', x), '2040-01-02', x, x % 200 + 1, 'Żółty nr ' || x FROM i")});
    ReportQuestion question;
    question.from = QDate(2040, 1, 1);
    question.remarks = QStringLiteral("żółty");
    QCOMPARE(report(question).total, 5000050000);
    qint64 asked = 0;
    const auto stopped = readReport(store->connection(), question, [&](qint64 done, qint64 all) {
        asked = all;
        return done < 0;
    });
    QVERIFY(!stopped);
    QCOMPARE(asked, 100000);
    change(file, {QStringLiteral("DELETE FROM orders WHERE order_date = '2040-01-02'")}); // no statement is still open
}

void tst_Report::whatTheDatabaseRefusesIsSaid()
{
    const QSqlDatabase closed;
    QVERIFY_THROWS_EXCEPTION(StoreError, (void)readReport(closed, {}, [](qint64, qint64) { return true; }));
}

QTEST_GUILESS_MAIN(tst_Report)
#include "tst_report.moc"
