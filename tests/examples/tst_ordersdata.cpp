// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/SqlDatabase>

#include <QtCore/QFile>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

#include <array>
#include <cmath>
#include <map>

//! The order desk's schema and data, loaded as the sample application loads them.
class tst_OrdersData : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void cleanupTestCase();

    void isLarge_data();
    void isLarge();
    void foreignKeysHold();
    void dictionariesGiveKeyAndName();
    void polishNamesAreInOrder();
    void taxNumbersHaveTheirCheckDigit();
    void totalsFollowFromTheLines();
    void schemaRefuses_data();
    void schemaRefuses();

private:
    void runFile(const QString &name);
    QVariant single(const QString &statement) const;

    std::unique_ptr<kor::SqlDatabase> m_database;
};

void tst_OrdersData::initTestCase()
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    connection.setDatabaseName(QStringLiteral(":memory:"));
    QVERIFY(connection.open());
    m_database = std::make_unique<kor::SqlDatabase>(connection);
    QSqlQuery(connection).exec(QStringLiteral("PRAGMA foreign_keys = ON"));
    QVERIFY(connection.transaction());
    runFile(QStringLiteral("schema.sql"));
    runFile(QStringLiteral("seed.sql"));
    QVERIFY(connection.commit());
}

void tst_OrdersData::cleanupTestCase()
{
    m_database.reset();
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
}

//! Every statement ends with a semicolon at the end of a line, and no other line ends with one.
void tst_OrdersData::runFile(const QString &name)
{
    QFile file(QLatin1String(KOR_ORDERS_DATA "/") + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QSqlQuery query;
    const QStringList statements = QString::fromUtf8(file.readAll()).split(QStringLiteral(";\n"), Qt::SkipEmptyParts);
    for (const QString &statement : statements) {
        QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    }
}

QVariant tst_OrdersData::single(const QString &statement) const
{
    return m_database->OpenRecordset(statement)->FieldValue(0);
}

void tst_OrdersData::isLarge_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("rows");
    QTest::newRow("customers") << "customers" << 200;
    QTest::newRow("products") << "products" << 500;
    QTest::newRow("orders") << "orders" << 1000;
    QTest::newRow("lines of orders") << "order_lines" << 1000;
}

void tst_OrdersData::isLarge()
{
    QFETCH(QString, table);
    QFETCH(int, rows);
    QVERIFY(single(QStringLiteral("SELECT count(*) FROM ") + table).toInt() >= rows);
}

void tst_OrdersData::foreignKeysHold()
{
    QVERIFY(m_database->OpenRecordset(QStringLiteral("PRAGMA foreign_key_check"))->Eof());
    QCOMPARE(single(QStringLiteral("PRAGMA integrity_check")), QVariant(QStringLiteral("ok")));
}

void tst_OrdersData::dictionariesGiveKeyAndName()
{
    for (const char *const table : {"customers", "customer_groups", "products", "product_categories", "units"}) {
        const auto rows = m_database->OpenRecordset(QLatin1String(table));
        QCOMPARE(rows->Fields(0).Name(), QStringLiteral("id"));
        QCOMPARE(rows->Fields(1).Name(), QStringLiteral("name"));
        QCOMPARE(rows->Fields(0).Value().typeId(), int(QMetaType::Int));
        QCOMPARE(rows->Fields(1).Value().typeId(), int(QMetaType::QString));
    }
}

void tst_OrdersData::polishNamesAreInOrder()
{
    QSqlQuery query;
    QVERIFY(query.exec(QStringLiteral("SAVEPOINT names")));
    QVERIFY(query.exec(QStringLiteral("INSERT INTO product_categories VALUES (99, 'próba')")));
    QVERIFY(query.exec(
        QStringLiteral("INSERT INTO products (name, symbol, category_id, unit_id, net_price, vat) "
                       "SELECT value, 'X' || key, 99, 1, 1, 23 FROM json_each("
                       "'[\"Żuk\",\"Łza\",\"źle\",\"Lzy\",\"Ćma\",\"Cz\",\"zz\",\"Ma\",\"Ósmy\",\"Oz\"]')")));
    QStringList names;
    const auto rows = m_database->OpenRecordset(
        QStringLiteral("SELECT name FROM products WHERE category_id = 99 ORDER BY sort_name"));
    for (; !rows->Eof(); rows->MoveNext()) {
        names << rows->FieldValue(0).toString();
    }
    QVERIFY(query.exec(QStringLiteral("ROLLBACK TO names")));
    QCOMPARE(names.join(u' '), QStringLiteral("Cz Ćma Lzy Łza Ma Oz Ósmy zz źle Żuk"));
}

void tst_OrdersData::taxNumbersHaveTheirCheckDigit()
{
    constexpr std::array weights = {6, 5, 7, 2, 3, 4, 5, 6, 7};
    const auto rows = m_database->OpenRecordset(QStringLiteral("SELECT nip FROM customers"));
    for (; !rows->Eof(); rows->MoveNext()) {
        const QString number = rows->FieldValue(0).toString();
        int sum = 0;
        for (std::size_t i = 0; i < weights.size(); ++i) {
            sum += weights[i] * number.at(qsizetype(i)).digitValue();
        }
        QCOMPARE(sum % 11, number.back().digitValue());
    }
}

void tst_OrdersData::totalsFollowFromTheLines()
{
    std::map<int, std::map<int, qint64>> netOfOrders; // order, VAT rate, grosze
    const auto lines =
        m_database->OpenRecordset(QStringLiteral("SELECT o.id, l.vat, l.quantity, l.net_price, o.discount "
                                                 "FROM order_lines l JOIN orders o ON o.id = l.order_id"));
    for (; !lines->Eof(); lines->MoveNext()) {
        // in whole units of a hundredth of a per cent and a half piece, so that halves round exactly
        const qint64 halves = std::llround(lines->FieldValue(2).toDouble() * 2);
        const qint64 payable = 10000 - std::llround(lines->FieldValue(4).toDouble() * 100);
        const qint64 exact = halves * lines->FieldValue(3).toInt() * payable;
        netOfOrders[lines->FieldValue(0).toInt()][lines->FieldValue(1).toInt()] += (exact + 10000) / 20000;
    }
    const auto orders = m_database->OpenRecordset(QStringLiteral("SELECT id, total, advance FROM orders"));
    for (; !orders->Eof(); orders->MoveNext()) {
        qint64 total = 0;
        for (const auto &[vat, net] : netOfOrders[orders->FieldValue(0).toInt()]) {
            total += net + (net * vat + 50) / 100;
        }
        QCOMPARE(qint64(orders->FieldValue(1).toInt()), total);
        QVERIFY(orders->FieldValue(2).toInt() <= total);
    }
}

void tst_OrdersData::schemaRefuses_data()
{
    QTest::addColumn<QString>("statement");
    // clang-format off
    QTest::newRow("discount above 100 per cent")      << "UPDATE orders SET discount = 101 WHERE id = 1";
    QTest::newRow("negative advance")                 << "UPDATE orders SET advance = -1 WHERE id = 1";
    QTest::newRow("fraction of a grosz")              << "UPDATE orders SET total = 0.5 WHERE id = 1";
    QTest::newRow("text as an amount")                << "UPDATE orders SET total = 'sto' WHERE id = 1";
    QTest::newRow("unknown payment terms")            << "UPDATE orders SET payment_terms = 'X' WHERE id = 1";
    QTest::newRow("a day that does not exist")        << "UPDATE orders SET order_date = '2026-02-30' WHERE id = 1";
    QTest::newRow("delivery before the order")        << "UPDATE orders SET delivery_date = '1999-01-01' WHERE id = 1";
    QTest::newRow("customer that does not exist")     << "UPDATE orders SET customer_id = 999999 WHERE id = 1";
    QTest::newRow("number of another form")           << "UPDATE orders SET number = '1/2026' WHERE id = 1";
    QTest::newRow("number given twice")               << "UPDATE orders SET number = 'ZAM/2026/0001' WHERE id = 1";
    QTest::newRow("customer who still has orders")    << "DELETE FROM customers WHERE id = (SELECT customer_id FROM orders WHERE id = 1)";
    QTest::newRow("line of nothing")                  << "UPDATE order_lines SET quantity = 0 WHERE order_id = 1";
    QTest::newRow("line of a unit that is not there") << "UPDATE order_lines SET unit_id = 99 WHERE order_id = 1";
    QTest::newRow("name of a line that is empty")     << "UPDATE order_lines SET name = '' WHERE order_id = 1";
    QTest::newRow("two products of one symbol")       << "UPDATE products SET symbol = 't0002' WHERE id = 1";
    QTest::newRow("postal code without its dash")     << "UPDATE customers SET postal_code = '00950' WHERE id = 1";
    // clang-format on
}

void tst_OrdersData::schemaRefuses()
{
    QFETCH(QString, statement);
    QSqlQuery query;
    QVERIFY(!query.exec(statement));
    QVERIFY2(query.lastError().databaseText().contains(QStringLiteral("constraint failed")) ||
                 query.lastError().databaseText().contains(QStringLiteral("cannot store")),
             qPrintable(query.lastError().databaseText()));
}

QTEST_GUILESS_MAIN(tst_OrdersData)
#include "tst_ordersdata.moc"
