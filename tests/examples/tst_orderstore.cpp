// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/addup.h"
#include "examples/orderfiles.h"
#include "orders/catalogue.h"
#include "orders/orderstore.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>
#include <QtTest/QtTest>

#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>

using orders::Order;
using orders::OrderStore;
using orders::test::change;
using orders::test::makeFile;
using orders::test::rows;
using Kind = orders::Outcome::Kind;

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
    order.lines = {{1, 7, QStringLiteral("Śruba, dłuższa"), 12.5, 2, 199, 23, QDate(2026, 12, 1)},
                   {4, std::nullopt, {}, std::nullopt, std::nullopt, std::nullopt, std::nullopt, std::nullopt}};
    return order;
}

//! Saves a new order, or a changed one over what the file holds.
Order save(OrderStore &store, const Order &order)
{
    if (order.id == 0)
        return store.add(order);
    const orders::Outcome outcome = store.save(order, store.order(order.id).value());
    if (outcome.kind != orders::Outcome::Kind::Done)
        qFatal("not saved");
    return outcome.order;
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
    for (qint64 total = 1;; ++total) {
        order.total = total;
        save(store, order);
        std::printf("%lld\n", static_cast<long long>(total));
        std::fflush(stdout);
    }
}

//! Another desk saves a discount.
int saveDiscount(const QString &fileName)
{
    OrderStore store(fileName);
    Order order = store.order(1).value();
    order.discount = 12.5;
    save(store, order);
    return 0;
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

Q_DECLARE_METATYPE(std::function<void(Order &)>)

class tst_OrderStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_file = m_folder->filePath(QStringLiteral("zamówienia.sqlite"));
        makeFile(m_file);
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
        const Order saved = save(*m_store, newOrder());
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
        QCOMPARE(save(*m_store, newOrder()).number.sliced(prefix.size()).toInt(),
                 last.sliced(prefix.size()).toInt() + 1);
        QCOMPARE(save(*m_store, newOrder()).number.sliced(prefix.size()).toInt(),
                 last.sliced(prefix.size()).toInt() + 2);
    }

    void theFirstOrderOfAYearIsNumberOne()
    {
        Order order = newOrder();
        order.date = QDate(2031, 1, 2);
        order.delivery = std::nullopt;
        QCOMPARE(save(*m_store, order).number, QStringLiteral("ZAM/2031/0001"));
    }

    void numbersGoOnBehindFourDigits()
    {
        execute(*m_store, QStringLiteral("UPDATE orders SET number = 'ZAM/2026/9999' WHERE id = 1000"));
        QCOMPARE(save(*m_store, newOrder()).number, QStringLiteral("ZAM/2026/10000"));
        QCOMPARE(save(*m_store, newOrder()).number, QStringLiteral("ZAM/2026/10001"));
    }

    void aChangeTouchesOnlyWhatTheDeskEdits()
    {
        const qint64 id = m_store->ids().at(1);
        const QVariantList before = row(id);
        Order order = m_store->order(id).value();
        order.customer = std::nullopt;
        order.remarks.clear();
        save(*m_store, order);
        QVERIFY(m_store->order(id) == order);
        const QVariantList after = row(id);
        QCOMPARE(after, before); // dates, priority, colour of the label, lines
    }

    void linesAreSavedWithTheirOrder_data()
    {
        QTest::addColumn<std::function<void(Order &)>>("edit");
        const auto row = [](const char *name, std::function<void(Order &)> edit) {
            QTest::newRow(name) << std::move(edit);
        };
        row("one more", [](Order &order) { order.lines.append({9, 3, QStringLiteral("nowa"), 2, 1, 500, 8, {}}); });
        row("one less", [](Order &order) { order.lines.removeFirst(); });
        row("none left", [](Order &order) { order.lines.clear(); });
        row("another price", [](Order &order) { order.lines.last().netPrice = 1; });
        row("a price is not known", [](Order &order) { order.lines.last().netPrice = std::nullopt; });
        row("nothing is known",
            [](Order &order) { order.lines.last() = {order.lines.last().number, {}, {}, {}, {}, {}, {}, {}}; });
        row("a day of its own", [](Order &order) { order.lines.last().delivery = QDate(2027, 1, 4); });
        row("with the head", [](Order &order) {
            order.remarks = QStringLiteral("x");
            order.lines.first().name = QStringLiteral("inna");
        });
    }
    void linesAreSavedWithTheirOrder()
    {
        QFETCH(const std::function<void(Order &)>, edit);
        const Order loaded = m_store->order(6).value();
        QVERIFY(loaded.lines.size() > 1);
        const QString others = QStringLiteral("SELECT * FROM order_lines WHERE order_id <> 6 ORDER BY 1, 2");
        const auto before = rows(m_file, others);
        Order order = loaded;
        edit(order);
        QVERIFY(order.lines != loaded.lines);
        QCOMPARE(int(m_store->save(order, loaded).kind), int(Kind::Done));
        restart();
        QVERIFY(m_store->order(6) == order);
        QVERIFY(rows(m_file, others) == before);
        // Who has not seen these lines saves nothing over them.
        QCOMPARE(int(m_store->save(loaded, loaded).kind), int(Kind::ChangedMeanwhile));
        QCOMPARE(int(m_store->remove(loaded).kind), int(Kind::ChangedMeanwhile));
        QVERIFY(m_store->order(6) == order);
    }

    void aRefusedLineSavesNothingOfTheOrder()
    {
        const Order before = m_store->order(6).value();
        Order order = before;
        order.remarks = QStringLiteral("nowe");
        order.lines.last().product = 999999; // which does not exist
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, save(*m_store, order));
        QVERIFY(m_store->order(6) == before);
        const QList<qint64> ids = m_store->ids();
        order.id = 0;
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, m_store->add(order));
        QCOMPARE(m_store->ids(), ids);
    }

    void productsAreFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("symbol");
        // clang-format off
        QTest::newRow("by symbol")            << "T0335"     << "T0335";
        QTest::newRow("by small symbol")      << "t0335"     << "T0335";
        QTest::newRow("by name, no accents")  << "gasnica"   << "T0335";
        QTest::newRow("by name, accents")     << "GAŚNICA"   << "T0335";
        QTest::newRow("by neither")           << "qqq"       << "";
        // clang-format on
    }
    void productsAreFound()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, symbol);
        const orders::Catalogue catalogue(m_store->connection());
        QStringList symbols;
        for (const orders::Product &found : catalogue.find(text, 100))
            symbols << found.symbol;
        QCOMPARE(symbols.contains(symbol), !symbol.isEmpty());
        const auto exact = catalogue.productOf(text);
        QCOMPARE(exact.has_value(), text.compare(symbol, Qt::CaseInsensitive) == 0);
        if (exact)
            QCOMPARE(catalogue.product(exact->id)->name, exact->name);
    }

    void anOrderMayBeWithoutACustomer()
    {
        Order order = newOrder();
        order.customer = std::nullopt;
        const Order saved = save(*m_store, order);
        QVERIFY(!m_store->order(saved.id)->customer);
    }

    void aRemovedOrderIsGoneWithItsLines()
    {
        const qint64 id = m_store->ids().first();
        QCOMPARE(int(m_store->remove(m_store->order(id).value()).kind), int(Kind::Done));
        QVERIFY(!m_store->order(id));
        QVERIFY(!m_store->ids().contains(id));
        QSqlQuery lines(QStringLiteral("SELECT count(*) FROM order_lines WHERE order_id = %1").arg(id),
                        m_store->connection());
        QVERIFY(lines.next());
        QCOMPARE(lines.value(0).toInt(), 0);
    }

    void savingAnOrderThatIsGoneChangesNothing()
    {
        const Order loaded = m_store->order(1).value();
        Order order = loaded;
        order.remarks = QStringLiteral("nowe");
        QCOMPARE(int(m_store->remove(loaded).kind), int(Kind::Done));
        QCOMPARE(int(m_store->save(order, loaded).kind), int(Kind::DeletedMeanwhile));
        QCOMPARE(int(m_store->remove(loaded).kind), int(Kind::DeletedMeanwhile));
        QVERIFY(!m_store->order(1));
    }

    void savingOverAnothersChangeChangesNothing()
    {
        const Order loaded = m_store->order(1).value();
        runChild(QStringLiteral("--save-discount")); // another process, on the same file
        Order order = loaded;
        order.remarks = QStringLiteral("nowe");
        const orders::Outcome outcome = m_store->save(order, loaded);
        QCOMPARE(int(outcome.kind), int(Kind::ChangedMeanwhile));
        QCOMPARE(outcome.order.discount, std::optional(12.5));
        QVERIFY(m_store->order(1) == outcome.order);
        QCOMPARE(outcome.order.remarks, loaded.remarks);
        QCOMPARE(int(m_store->remove(loaded).kind), int(Kind::ChangedMeanwhile));
        QVERIFY(m_store->order(1));
        order.discount = outcome.order.discount;
        QCOMPARE(int(m_store->save(order, outcome.order).kind), int(Kind::Done));
        QVERIFY(m_store->order(1) == order);
    }

    void aBusyFileIsToldInWords()
    {
        OrderStore other(m_file);
        execute(other, QStringLiteral("BEGIN IMMEDIATE"));
        execute(*m_store, QStringLiteral("PRAGMA busy_timeout = 0"));
        const Order before = m_store->order(1).value();
        expectError([&] { (void)m_store->save(before, before); }, "Z bazy korzysta teraz inny program");
        execute(other, QStringLiteral("ROLLBACK"));
        QCOMPARE(int(m_store->save(before, before).kind), int(Kind::Done));
    }

    void aFullDiskIsToldInWordsAndLosesNothing()
    {
        execute(*m_store, QStringLiteral("PRAGMA max_page_count = 1")); // the file may not grow: as on a full disk
        Order order = newOrder();
        order.remarks = QString(100000, u'x');
        const QList<qint64> ids = m_store->ids();
        expectError([&] { (void)m_store->add(order); }, "Na dysku z plikiem bazy nie ma już miejsca");
        QCOMPARE(m_store->ids(), ids);
        execute(*m_store, QStringLiteral("PRAGMA max_page_count = 1000000"));
        QVERIFY(m_store->order(m_store->add(order).id));
    }

    void aFileThatIsNotInItsPlaceIsNotSavedTo_data()
    {
        QTest::addColumn<QString>("fate");
        for (const char *fate : {"moved", "replaced", "deleted"})
            QTest::newRow(fate) << QString::fromLatin1(fate);
    }
    void aFileThatIsNotInItsPlaceIsNotSavedTo()
    {
        QFETCH(const QString, fate);
        const QString aside = m_folder->filePath(QStringLiteral("na-bok.sqlite"));
        const Order loaded = m_store->order(1).value();
        Order order = loaded;
        order.remarks = QStringLiteral("nowe");
        if (fate == u"deleted")
            QVERIFY(QFile::remove(m_file));
        else
            QVERIFY(QFile::rename(m_file, aside));
        if (fate == u"replaced")
            QVERIFY(QFile::copy(aside, m_file));
        const char *const said = "Plik bazy usunięto, przeniesiono albo zastąpiono innym";
        expectError([&] { (void)m_store->save(order, loaded); }, said);
        expectError([&] { (void)m_store->add(newOrder()); }, said);
        expectError([&] { (void)m_store->remove(loaded); }, said);
        if (fate == u"deleted")
            return;
        // Back in its place it takes what was refused.
        QFile::remove(m_file);
        QVERIFY(QFile::rename(aside, m_file));
        QCOMPARE(int(m_store->save(order, loaded).kind), int(Kind::Done));
        restart();
        QVERIFY(m_store->order(1) == order);
    }

    void aRefusedSaveChangesNothing()
    {
        const Order before = m_store->order(1).value();
        Order order = before;
        order.customer = 999999; // who does not exist
        order.total = 5;
        QVERIFY_THROWS_EXCEPTION(orders::StoreError, save(*m_store, order));
        QVERIFY(m_store->order(1) == before);
        QVERIFY(save(*m_store, newOrder()).id > 0); // and the store goes on working
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

    void aForeignDatabaseIsLeftAsItWas_data()
    {
        QTest::addColumn<QStringList>("statements");
        const QString tables = QStringLiteral("CREATE TABLE orders (id INTEGER PRIMARY KEY, note TEXT)");
        QTest::newRow("tables of its own") << QStringList{tables};
        QTest::newRow("a version of its own") << QStringList{tables, QStringLiteral("PRAGMA user_version = 1")};
        QTest::newRow("a high version of its own") << QStringList{QStringLiteral("PRAGMA user_version = 7")};
        QTest::newRow("another program's mark") << QStringList{QStringLiteral("PRAGMA application_id = 7")};
        QTest::newRow("a log of its own") << QStringList{QStringLiteral("PRAGMA journal_mode = WAL"), tables};
        QTest::newRow("ours, of a newer program") << QStringList{QStringLiteral("PRAGMA application_id = 1332896882"),
                                                                 QStringLiteral("PRAGMA user_version = 4")};
    }
    void aForeignDatabaseIsLeftAsItWas()
    {
        QFETCH(const QStringList, statements);
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("obca baza?.sqlite")); // no address takes it as it is
        change(name, statements);
        const auto state = [&] {
            QFile file(name);
            (void)file.open(QIODevice::ReadOnly);
            return std::pair(file.readAll(), QDir(folder.path()).entryList(QDir::Files | QDir::Hidden));
        };
        const auto before = state();
        QVERIFY(before.first.size() > 0);
        expectError([&] { const OrderStore store(name); }, "Pozostał bez zmian");
        QVERIFY(state() == before);
    }

    void whatWasNotEnteredStaysSo()
    {
        Order order = newOrder();
        order.discount = std::nullopt;
        order.advance = std::nullopt;
        order.total = std::nullopt;
        order.customer = std::nullopt;
        order.delivery = std::nullopt;
        order.remarks.clear();
        const Order saved = m_store->add(order);
        restart();
        QVERIFY(m_store->order(saved.id) == saved);
        const QList<QVariantList> row = rows(
            m_file, QStringLiteral("SELECT discount, advance, total, customer_id, delivery_date, remarks FROM orders "
                                   "ORDER BY id DESC LIMIT 1"));
        for (const QVariant &value : row.first())
            QVERIFY(value.isNull());
    }

    void anEmptySearchGivesTheNewestAndAll_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing typed yet") << QString();
        QTest::newRow("deleted again") << QStringLiteral("");
        QTest::newRow("blanks only") << QStringLiteral("  ");
    }
    void anEmptySearchGivesTheNewestAndAll()
    {
        QFETCH(const QString, text);
        const QList<orders::FoundOrder> found = m_store->find(text, 50);
        QCOMPARE(found.size(), 50);
        QCOMPARE(found.first().id, m_store->ids().last());
        QCOMPARE(m_store->findCustomers(text, 1000).size(), 240);
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
            const qint64 found = store.order(1)->total.value_or(-1);
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
        const Order saved = save(other, newOrder());
        QVERIFY(m_store->order(saved.id) == saved);
        QVERIFY(save(*m_store, newOrder()).number != saved.number);
    }

    void twoProcessesSaveAThousandTimesAndLoseNothing()
    {
        const qint64 before = m_store->order(1)->total.value();
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--add-up"), m_file});
        orders::test::addUp(m_file, 500);
        QVERIFY(other.waitForFinished(60000));
        QCOMPARE(other.exitCode(), 0);
        QCOMPARE(m_store->order(1)->total.value(), before + 1000);
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

    static void expectError(const std::function<void()> &work, const char *words)
    {
        try {
            work();
        } catch (const orders::StoreError &error) {
            QVERIFY2(error.text().contains(QString::fromUtf8(words)), qPrintable(error.text()));
            return;
        }
        QFAIL("no error");
    }

    void runChild(const QString &what)
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {what, m_file});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitCode(), 0);
    }

    void runToItsDeath(const QString &how)
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {how, m_file});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    }

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
        if (qstrcmp(argv[1], "--save-discount") == 0)
            return saveDiscount(file);
        if (qstrcmp(argv[1], "--add-up") == 0) {
            orders::test::addUp(file, 500);
            return 0;
        }
        if (qstrcmp(argv[1], "--die-in-mid-save") == 0)
            return dieInMidSave(file);
        if (qstrcmp(argv[1], "--die-in-mid-creation") == 0)
            return dieInMidCreation(file);
    }
    tst_OrderStore test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_orderstore.moc"
