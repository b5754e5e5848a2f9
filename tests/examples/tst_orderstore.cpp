// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orders/orderstore.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

#include <csignal>
#include <cstdio>
#include <memory>

using orders::Order;
using orders::OrderStore;

namespace {

Order newOrder()
{
    Order order;
    order.date = QDate(2026, 11, 21);
    order.delivery = QDate(2026, 11, 30);
    order.customer = 25;
    order.paymentTerms = QStringLiteral("G");
    order.discount = 2.5;
    order.advance = 10000;
    order.total = 123456;
    order.remarks = QStringLiteral("Zażółć gęślą jaźń");
    return order;
}

void execute(const OrderStore &store, const QString &statement)
{
    QSqlQuery query(store.connection());
    if (!query.exec(statement))
        qFatal("%s", qPrintable(query.lastError().text()));
}

//! Saves order 1 again and again with the totals 1, 2, 3, ... and reports each one that is saved.
int saveForever(const QString &fileName)
{
    OrderStore store(fileName);
    Order order = store.order(1).value();
    order.advance = 0;
    for (order.total = 1;; ++order.total) {
        store.save(order);
        std::printf("%lld\n", static_cast<long long>(order.total));
        std::fflush(stdout);
    }
}

//! Is killed between the change and its commit.
int dieInMidSave(const QString &fileName)
{
    const OrderStore store(fileName);
    execute(store, QStringLiteral("BEGIN IMMEDIATE"));
    execute(store, QStringLiteral("UPDATE orders SET total = 777, advance = 0 WHERE id = 1"));
    execute(store, QStringLiteral("DELETE FROM orders WHERE id > 1"));
    return std::raise(SIGKILL);
}

//! Is killed while the tables are there and the sample data are not.
int dieInMidCreation(const QString &fileName)
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    connection.setDatabaseName(fileName);
    QSqlQuery query(connection.open() ? connection : QSqlDatabase());
    for (const char *statement : {"PRAGMA journal_mode = WAL", "BEGIN IMMEDIATE", "PRAGMA user_version = 1",
                                  "CREATE TABLE customers (id INTEGER PRIMARY KEY)"})
        if (!query.exec(QString::fromLatin1(statement)))
            return 1;
    return std::raise(SIGKILL);
}

} // namespace

class tst_OrderStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { OrderStore created(m_fresh.filePath(QStringLiteral("fresh.sqlite"))); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_file = m_folder->filePath(QStringLiteral("zamówienia.sqlite"));
        QVERIFY(QFile::copy(m_fresh.filePath(QStringLiteral("fresh.sqlite")), m_file));
        m_store = std::make_unique<OrderStore>(m_file);
    }
    void cleanup() { m_store.reset(); }

    void aNewFileHoldsTheSampleData()
    {
        const QList<qint64> ids = m_store->ids();
        QVERIFY(ids.size() >= 1000);
        QVERIFY(std::is_sorted(ids.begin(), ids.end()));
        const std::optional<Order> first = m_store->order(ids.first());
        QVERIFY(first);
        QVERIFY(first->number.startsWith(QStringLiteral("ZAM/")));
        QVERIFY(first->date.isValid());
        QVERIFY(!orders::problemOf(*first));
    }

    void everyOrderOfTheSampleCouldBeSaved()
    {
        for (const qint64 id : m_store->ids()) {
            const std::optional<orders::OrderProblem> problem = orders::problemOf(m_store->order(id).value());
            QVERIFY2(!problem, qPrintable(QString::number(id)));
        }
    }

    void whatWasSavedIsThereAfterARestart()
    {
        const Order saved = m_store->save(newOrder());
        QVERIFY(saved.id > 0);
        const qsizetype count = m_store->ids().size();
        restart();
        QVERIFY(m_store->order(saved.id) == saved);
        QCOMPARE(m_store->ids().size(), count);
        QCOMPARE(m_store->ids().last(), saved.id);
    }

    void aNewOrderGetsTheNextNumberOfItsYear()
    {
        const QString last = m_store->order(m_store->ids().last())->number;
        const QString prefix = QStringLiteral("ZAM/2026/");
        QVERIFY(last.startsWith(prefix));
        QCOMPARE(m_store->save(newOrder()).number.sliced(prefix.size()).toInt(),
                 last.sliced(prefix.size()).toInt() + 1);
        QCOMPARE(m_store->save(newOrder()).number.sliced(prefix.size()).toInt(),
                 last.sliced(prefix.size()).toInt() + 2);
    }

    void theFirstOrderOfAYearIsNumberOne()
    {
        Order order = newOrder();
        order.date = QDate(2031, 1, 2);
        order.delivery = std::nullopt;
        QCOMPARE(m_store->save(order).number, QStringLiteral("ZAM/2031/0001"));
    }

    void numbersGoOnBehindFourDigits()
    {
        execute(*m_store, QStringLiteral("UPDATE orders SET number = 'ZAM/2026/9999' WHERE id = 1000"));
        QCOMPARE(m_store->save(newOrder()).number, QStringLiteral("ZAM/2026/10000"));
        QCOMPARE(m_store->save(newOrder()).number, QStringLiteral("ZAM/2026/10001"));
    }

    void aChangeTouchesOnlyWhatTheDeskEdits()
    {
        const qint64 id = m_store->ids().at(1);
        const QVariantList before = row(id);
        Order order = m_store->order(id).value();
        order.customer = std::nullopt;
        order.remarks.clear();
        m_store->save(order);
        QVERIFY(m_store->order(id) == order);
        const QVariantList after = row(id);
        QCOMPARE(after, before); // dates, priority, colour of the label, lines
    }

    void anOrderMayBeWithoutACustomer()
    {
        Order order = newOrder();
        order.customer = std::nullopt;
        const Order saved = m_store->save(order);
        QVERIFY(!m_store->order(saved.id)->customer);
    }

    void aRemovedOrderIsGoneWithItsLines()
    {
        const qint64 id = m_store->ids().first();
        m_store->remove(id);
        QVERIFY(!m_store->order(id));
        QVERIFY(!m_store->ids().contains(id));
        QSqlQuery lines(QStringLiteral("SELECT count(*) FROM order_lines WHERE order_id = %1").arg(id),
                        m_store->connection());
        QVERIFY(lines.next());
        QCOMPARE(lines.value(0).toInt(), 0);
    }

    void savingAnOrderThatIsGoneIsAnError()
    {
        const Order order = m_store->order(1).value();
        m_store->remove(1);
        try {
            m_store->save(order);
            QFAIL("saved");
        } catch (const orders::StoreError &error) {
            QVERIFY(error.text().contains(order.number));
        }
    }

    void aRefusedSaveChangesNothing()
    {
        const Order before = m_store->order(1).value();
        Order order = before;
        order.customer = 999999; // who does not exist
        order.total = 5;
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, m_store->save(order));
        QVERIFY(m_store->order(1) == before);
        QVERIFY(m_store->save(newOrder()).id > 0); // and the store goes on working
    }

    void aFileThatIsNoDatabaseIsAnError()
    {
        const QString name = m_folder->filePath(QStringLiteral("tekst.txt"));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("to nie jest baza danych\n").repeated(100));
        file.close();
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, OrderStore{name});
        QCOMPARE(QFileInfo(name).size(), 2400);
    }

    void aFileInAMissingFolderIsAnError()
    {
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, OrderStore{m_folder->filePath(QStringLiteral("none/a.sqlite"))});
    }

    void find_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // a part of number or customer of every result

        // clang-format off
        QTest::newRow("a whole number")                << "ZAM/2025/0123"  << "ZAM/2025/0123";
        QTest::newRow("the end of a number")           << "25/0123"        << "ZAM/2025/0123";
        QTest::newRow("a number in small letters")     << "zam/2025/0123"  << "ZAM/2025/0123";
        QTest::newRow("blanks around the text")        << "  25/0123 "     << "ZAM/2025/0123";
        QTest::newRow("part of a customer")            << QStringLiteral("Ślusarski")  << QStringLiteral("Ślusarski");
        QTest::newRow("a customer without accents")    << "slusarski"      << QStringLiteral("Ślusarski");
        QTest::newRow("a customer in capitals")        << QStringLiteral("ŚLUSARSKI")  << QStringLiteral("Ślusarski");
        QTest::newRow("l stands for the l with stroke")<< "spoldzielnia"   << QStringLiteral("Spółdzielnia");
        QTest::newRow("nothing fits")                  << "qqqq"           << "";
        QTest::newRow("a percent sign is no wildcard") << "%"              << "";
        QTest::newRow("an underscore is no wildcard")  << "_"              << "";
        QTest::newRow("a quote is no end")             << "'; DROP TABLE orders; --" << "";
        // clang-format on
    }
    void find()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, expected);
        const QList<orders::FoundOrder> found = m_store->find(text, 50);
        QCOMPARE(found.isEmpty(), expected.isEmpty());
        QVERIFY(found.size() <= 50);
        for (const orders::FoundOrder &order : found)
            QVERIFY2((order.number + order.customer).contains(expected), qPrintable(order.number + order.customer));
    }

    void findGivesTheNewestFirst()
    {
        const QList<orders::FoundOrder> found = m_store->find(QStringLiteral("ZAM"), 20);
        QCOMPARE(found.size(), 20);
        QCOMPARE(found.first().id, m_store->ids().last());
    }

    void killedAtAnyTimeNothingSavedIsLost()
    {
        m_store.reset();
        for (int round = 0; round < 5; ++round) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--save-forever"), m_file});
            QVERIFY(child.waitForReadyRead(20000));
            QTest::qWait(20 + 17 * round);
            child.kill();
            QVERIFY(child.waitForFinished());
            const QByteArrayList lines = child.readAllStandardOutput().split('\n');
            QVERIFY(lines.size() >= 2);
            const qint64 reported = lines.at(lines.size() - 2).toLongLong(); // the last whole line
            const OrderStore store(m_file);
            const qint64 found = store.order(1)->total;
            QVERIFY2(found >= reported && found <= reported + 1,
                     qPrintable(QStringLiteral("%1 reported, %2 found").arg(reported).arg(found)));
            checkIntegrity(store);
        }
    }

    void killedInMidSaveTheOldStateStands()
    {
        const Order before = m_store->order(1).value();
        const QList<qint64> ids = m_store->ids();
        m_store.reset();
        runToItsDeath(QStringLiteral("--die-in-mid-save"));
        m_store = std::make_unique<OrderStore>(m_file);
        QVERIFY(m_store->order(1) == before);
        QCOMPARE(m_store->ids(), ids);
        checkIntegrity(*m_store);
    }

    void killedInMidCreationTheNextStartBeginsAnew()
    {
        m_file = m_folder->filePath(QStringLiteral("second.sqlite"));
        runToItsDeath(QStringLiteral("--die-in-mid-creation"));
        m_store = std::make_unique<OrderStore>(m_file);
        QVERIFY(m_store->ids().size() >= 1000);
        checkIntegrity(*m_store);
    }

    void twoDesksWorkOnOneFile()
    {
        OrderStore other(m_file);
        const Order saved = other.save(newOrder());
        QVERIFY(m_store->order(saved.id) == saved);
        QVERIFY(m_store->save(newOrder()).number != saved.number);
    }

private:
    void restart()
    {
        m_store.reset();
        m_store = std::make_unique<OrderStore>(m_file);
    }

    [[nodiscard]] QVariantList row(qint64 id) const
    {
        QSqlQuery query(
            QStringLiteral("SELECT number, order_date, delivery_date, priority, label_color, (SELECT count(*) "
                           "FROM order_lines WHERE order_id = id) FROM orders WHERE id = %1")
                .arg(id),
            m_store->connection());
        QVariantList values;
        if (query.next()) {
            for (int column = 0; column < 6; ++column)
                values << query.value(column);
        }
        return values;
    }

    static void checkIntegrity(const OrderStore &store)
    {
        QSqlQuery query(QStringLiteral("PRAGMA integrity_check"), store.connection());
        QVERIFY(query.next());
        QCOMPARE(query.value(0).toString(), QStringLiteral("ok"));
    }

    void runToItsDeath(const QString &how)
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {how, m_file});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    }

    QTemporaryDir m_fresh;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<OrderStore> m_store;
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3) {
        const QString file = QString::fromLocal8Bit(argv[2]);
        if (qstrcmp(argv[1], "--save-forever") == 0)
            return saveForever(file);
        if (qstrcmp(argv[1], "--die-in-mid-save") == 0)
            return dieInMidSave(file);
        if (qstrcmp(argv[1], "--die-in-mid-creation") == 0)
            return dieInMidCreation(file);
    }
    tst_OrderStore test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_orderstore.moc"
