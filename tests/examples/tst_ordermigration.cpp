// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderfiles.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using orders::Order;
using orders::OrderStore;
using orders::test::change;
using orders::test::makeFile;
using orders::test::rows;

namespace {

const QString schema = QStringLiteral("SELECT type, name, sql FROM sqlite_master ORDER BY 1, 2");
const QString ordersIn = QStringLiteral("SELECT * FROM orders ORDER BY id");
const QString linesIn = QStringLiteral("SELECT order_id, line, product_id, quantity, net_price, vat FROM order_lines "
                                       "ORDER BY order_id, line");
const QString productsIn = QStringLiteral("SELECT id, name, category_id, net_price, vat FROM products ORDER BY id");
const QString unitsIn = QStringLiteral("SELECT products.id, units.name FROM products JOIN units ON units.id = unit_id "
                                       "ORDER BY products.id");

//! Makes the file what the program before lines wrote: products with the word of their unit, lines of numbers only.
void makeSecond(const QString &fileName)
{
    QString products = rows(fileName, QStringLiteral("SELECT sql FROM sqlite_master WHERE name = 'products'"))
                           .first()
                           .first()
                           .toString();
    products.remove(QRegularExpression(QStringLiteral("\n    symbol [^\n]*")));
    products.replace(QRegularExpression(QStringLiteral("unit_id [^\n]*")),
                     QStringLiteral("unit TEXT NOT NULL CHECK (unit IN ('szt.', 'op.', 'kg', 'm', 'l', 'kpl.', 'para', "
                                    "'rolka')),"));
    change(
        fileName,
        {QStringLiteral("PRAGMA legacy_alter_table = ON"), QStringLiteral("ALTER TABLE products RENAME TO p"),
         QStringLiteral("ALTER TABLE order_lines RENAME TO l"), products,
         QStringLiteral("INSERT INTO products (id, name, category_id, unit, net_price, vat) "
                        "SELECT p.id, p.name, category_id, units.name, net_price, vat FROM p "
                        "JOIN units ON units.id = unit_id"),
         QStringLiteral("CREATE TABLE order_lines (order_id INTEGER NOT NULL REFERENCES orders (id) ON DELETE "
                        "CASCADE, line INTEGER NOT NULL CHECK (line > 0), product_id INTEGER NOT NULL REFERENCES "
                        "products (id), quantity REAL NOT NULL CHECK (quantity > 0), net_price INTEGER NOT NULL "
                        "CHECK (net_price >= 0), vat INTEGER NOT NULL CHECK (vat IN (0, 5, 8, 23)), "
                        "PRIMARY KEY (order_id, line)) STRICT, WITHOUT ROWID"),
         QStringLiteral("INSERT INTO order_lines SELECT order_id, line, product_id, quantity, net_price, vat FROM l"),
         QStringLiteral("DROP TABLE l"), QStringLiteral("DROP TABLE p"), QStringLiteral("DROP TABLE units"),
         QStringLiteral("CREATE INDEX products_by_name ON products (sort_name)"),
         QStringLiteral("CREATE INDEX products_by_category ON products (category_id)"),
         QStringLiteral("CREATE INDEX order_lines_by_product ON order_lines (product_id)"),
         QStringLiteral("PRAGMA user_version = 2")});
}

//! And further back to the first program: NULL was refused, and nothing told whose file it is.
void makeFirst(const QString &fileName)
{
    makeSecond(fileName);
    QString table = rows(fileName, QStringLiteral("SELECT sql FROM sqlite_master WHERE name = 'orders'"))
                        .first()
                        .first()
                        .toString();
    table.replace(QStringLiteral("discount      REAL"), QStringLiteral("discount      REAL NOT NULL DEFAULT 0"));
    table.replace(QStringLiteral("advance       INTEGER"), QStringLiteral("advance       INTEGER NOT NULL DEFAULT 0"));
    table.replace(QStringLiteral("total         INTEGER"), QStringLiteral("total         INTEGER NOT NULL DEFAULT 0"));
    QCOMPARE(table.count(QStringLiteral("NOT NULL DEFAULT 0")), 3);
    change(fileName,
           {QStringLiteral("PRAGMA legacy_alter_table = ON"), QStringLiteral("ALTER TABLE orders RENAME TO old"), table,
            QStringLiteral("INSERT INTO orders SELECT * FROM old"), QStringLiteral("DROP TABLE old"),
            QStringLiteral("CREATE INDEX orders_by_customer ON orders (customer_id)"),
            QStringLiteral("CREATE INDEX orders_by_date ON orders (order_date)"),
            QStringLiteral("PRAGMA application_id = 0"), QStringLiteral("PRAGMA user_version = 1")});
}

} // namespace

using Maker = void (*)(const QString &);
Q_DECLARE_METATYPE(Maker)

//! Files of older programs open, and lose nothing on the way.
class tst_OrderMigration : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_fresh = m_folder->filePath(QStringLiteral("nowa.sqlite"));
        m_old = m_folder->filePath(QStringLiteral("dawna.sqlite"));
        makeFile(m_fresh);
    }

    void aFileOfAnOlderProgramIsBroughtUpToDate_data()
    {
        QTest::addColumn<Maker>("make");
        QTest::newRow("the first program") << &makeFirst;
        QTest::newRow("the program before lines") << &makeSecond;
    }
    void aFileOfAnOlderProgramIsBroughtUpToDate()
    {
        QFETCH(const Maker, make);
        copyOld(make);
        const auto before = rows(m_old, ordersIn);
        const auto lines = rows(m_old, linesIn);
        const auto products = rows(m_old, productsIn);
        const auto units = rows(m_old, QStringLiteral("SELECT id, unit FROM products ORDER BY id"));
        QVERIFY(before.size() >= 1000 && lines.size() >= 1000 && products.size() >= 500);
        for (int times = 0; times < 2; ++times) // and once more, as it is by then
            QVERIFY(OrderStore(m_old).order(1));
        QVERIFY(rows(m_old, ordersIn) == before);
        QVERIFY(rows(m_old, linesIn) == lines);
        QVERIFY(rows(m_old, productsIn) == products);
        QVERIFY(rows(m_old, unitsIn) == units);
        QVERIFY(rows(m_old, schema) == rows(m_fresh, schema));
        for (const char *pragma : {"PRAGMA application_id", "PRAGMA user_version"})
            QVERIFY(rows(m_old, QLatin1String(pragma)) == rows(m_fresh, QLatin1String(pragma)));
        QCOMPARE(rows(m_old, QStringLiteral("PRAGMA integrity_check")).first().first().toString(),
                 QStringLiteral("ok"));
        QVERIFY(rows(m_old, QStringLiteral("PRAGMA foreign_key_check")).isEmpty());
    }

    void linesKeepTheNameAndUnitOfTheirProducts()
    {
        copyOld(&makeSecond);
        OrderStore old(m_old);
        OrderStore fresh(m_fresh);
        for (const qint64 id : fresh.ids().first(50)) {
            Order expected = fresh.order(id).value();
            for (orders::OrderLine &line : expected.lines)
                line.delivery = std::nullopt; // no line had a day of its own
            QVERIFY2(old.order(id) == expected, qPrintable(expected.number));
        }
    }

    void whatIsBroughtUpToDateCanBeEdited()
    {
        copyOld(&makeFirst);
        OrderStore store(m_old);
        const Order loaded = store.order(1).value();
        Order order = loaded;
        order.discount = std::nullopt;
        order.lines.last().quantity = std::nullopt;
        QCOMPARE(int(store.save(order, loaded).kind), int(orders::Outcome::Kind::Done));
        QVERIFY(store.order(1) == order);
        order.lines.last().product = 999999;
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, (void)store.save(order, *store.order(1))); // references are held
    }

    void aFileThatCannotMoveIsLeftAsItWas()
    {
        copyOld(&makeSecond);
        change(m_old, {QStringLiteral("PRAGMA ignore_check_constraints = ON"),
                       QStringLiteral("UPDATE products SET unit = 'tona' WHERE id = 7")});
        const auto before = rows(m_old, QStringLiteral("SELECT * FROM products ORDER BY id"));
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, OrderStore{m_old});
        QVERIFY(rows(m_old, QStringLiteral("SELECT * FROM products ORDER BY id")) == before);
        QCOMPARE(rows(m_old, QStringLiteral("PRAGMA user_version")).first().first().toInt(), 2);
    }

private:
    void copyOld(Maker make)
    {
        QVERIFY(QFile::copy(m_fresh, m_old));
        make(m_old);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_fresh;
    QString m_old;
};

QTEST_GUILESS_MAIN(tst_OrderMigration)
#include "tst_ordermigration.moc"
