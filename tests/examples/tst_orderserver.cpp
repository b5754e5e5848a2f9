// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/addup.h"
#include "examples/listfilters.h"
#include "examples/orderdesk.h"
#include "orders/catalogue.h"
#include "orders/listwindow.h"
#include "orders/orderlist.h"
#include "orders/recordstore.h"
#include "orders/recordtables.h"
#include "orders/recordwindow.h"
#include "orders/report.h"
#include "orders/searchdialog.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtCore/QProcess>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <functional>

using namespace orders;
using namespace orders::test;
using Kind = Outcome::Kind;

namespace {

QString folder() { return qEnvironmentVariable("KOR_TEST_POSTGRES"); }
QString address(const QString &database)
{
    return QStringLiteral("postgresql:///%1?host=%2&user=kor").arg(database, folder());
}

//! Works on the server as those who look after it do.
QVariantList administer(const QString &database, const QString &statement)
{
    const QString name = QStringLiteral("administrator");
    QVariantList values;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name);
        connection.setHostName(folder());
        connection.setUserName(QStringLiteral("kor"));
        connection.setDatabaseName(database);
        if (!connection.open())
            qFatal("%s", qPrintable(connection.lastError().text()));
        QSqlQuery query(connection);
        if (!query.exec(statement))
            qFatal("%s", qPrintable(query.lastError().text()));
        while (query.next())
            values << query.value(0);
    }
    QSqlDatabase::removeDatabase(name);
    return values;
}

void server(const char *deed)
{
    QCOMPARE(QProcess::execute(folder() + QStringLiteral("/server"), {QString::fromLatin1(deed)}), 0);
}

//! What a call said that failed.
QString errorOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const StoreError &error) {
        return error.text();
    }
    return QStringLiteral("no error");
}

Order newOrder()
{
    Order order;
    order.date = QDate(2026, 11, 21);
    order.customer = 25;
    order.paymentTerms = QStringLiteral("G");
    order.discount = 2.55;
    order.total = 9'007'199'254'740'993; // beyond what a double holds
    order.remarks = QStringLiteral("Zażółć gęślą jaźń, 'x' \\ ?");
    order.lines = {{1, 7, QStringLiteral("Śruba, dłuższa"), 12.5, 2, 199, 23, QDate(2026, 12, 1)},
                   {4, std::nullopt, {}, std::nullopt, std::nullopt, std::nullopt, std::nullopt, std::nullopt}};
    return order;
}

} // namespace

//! The desk on a server that many share: as in a file, and when the server goes.
class tst_OrderServer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        kor::Locale::setSystemDefault(kor::Locale::polish());
        kor::Clock::setSource([] { return QDate(2026, 11, 21); });
        administer(QStringLiteral("postgres"), QStringLiteral("CREATE DATABASE fresh"));
        const OrderStore created(address(QStringLiteral("fresh")));
        m_file = std::make_unique<OrderStore>(m_folder.filePath(QStringLiteral("a.sqlite")));
    }
    void init()
    {
        administer(QStringLiteral("postgres"), QStringLiteral("CREATE DATABASE desk TEMPLATE fresh"));
        m_store = std::make_unique<OrderStore>(address(QStringLiteral("desk")));
    }
    void cleanup()
    {
        m_store.reset();
        administer(QStringLiteral("postgres"), QStringLiteral("DROP DATABASE desk WITH (FORCE)"));
    }

    void theSampleDataAreThoseOfAFile()
    {
        const OrderStore &file = *m_file;
        QCOMPARE(m_store->ids(), file.ids());
        QVERIFY(m_store->ids().size() >= 1000);
        for (const qint64 id : file.ids())
            QVERIFY2(m_store->order(id) == file.order(id), qPrintable(QString::number(id)));
    }

    void searchesFindWhatTheyFindInAFile_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", "slusarski", "ŚLUSARSKI", "spoldzielnia", "25/0123", "zam/2025", "%", "_", "'",
                                 "?", "qqqq", "999002", "t0335", "GAŚNICA", "gasnica", "żó"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }
    void searchesFindWhatTheyFindInAFile()
    {
        QFETCH(const QString, text);
        const OrderStore &file = *m_file;
        const auto all = [&text](const OrderStore &store) {
            QStringList found;
            for (const FoundOrder &order : store.find(text, 50))
                found << order.number + order.customer + order.date.toString(Qt::ISODate);
            for (const FoundCustomer &customer : store.findCustomers(text, 1000))
                found << customer.name + customer.nip;
            const Catalogue catalogue(store.connection());
            for (const Product &product : catalogue.find(text, 1000))
                found << product.symbol + product.name;
            const auto exact = catalogue.productOf(text);
            return found << (exact ? exact->name : QString());
        };
        QCOMPARE(all(*m_store), all(file));
    }

    void reportsSayWhatTheySayOfAFile()
    {
        const OrderStore &file = *m_file;
        for (const ReportGroup group : reportGroups()) {
            ReportQuestion question;
            question.group = group;
            question.from = QDate(2026, 1, 1);
            question.least = 10000;
            const auto texts = [&question](const OrderStore &store) {
                const auto report = readReport(store.connection(), question, [](qint64, qint64) { return true; });
                QStringList all;
                for (const ReportRow &row : report->rows)
                    all << QStringLiteral("%1 %2 %3").arg(row.name).arg(row.orders).arg(row.total);
                return all;
            };
            QVERIFY(texts(file).size() > 1);
            QCOMPARE(texts(*m_store), texts(file));
        }
    }

    void listsSayWhatTheySayOfAFile_data()
    {
        QTest::addColumn<int>("place");
        const QList<FilterCase> cases = filterCases();
        for (int place = 0; place < cases.size(); ++place)
            QTest::newRow(cases.at(place).name) << place;
    }
    void listsSayWhatTheySayOfAFile()
    {
        QFETCH(const int, place);
        const OrderFilter filter = filterCases().at(place).filter();
        const auto listed = [&filter](const OrderStore &store) {
            return readOrders(store.connection(), filter, [](qint64, qint64) { return true; })->orders;
        };
        const OrderStore &file = *m_file;
        QCOMPARE(listed(*m_store), listed(file));
    }

    void aLongListIsReadPieceByPiece()
    {
        QSqlQuery(m_store->connection())
            .exec(QStringLiteral("INSERT INTO orders (number, customer_id, order_date, total) SELECT 'ZAM/2030/' || "
                                 "lpad(x::text, 6, '0'), x % 240 + 1, '2026-11-20', x FROM generate_series(1, 30000) "
                                 "AS t(x)"));
        int pieces = 0;
        const auto list = readOrders(m_store->connection(), {}, [&pieces](qint64, qint64) { return ++pieces > 0; });
        QVERIFY(pieces > 2);
        QCOMPARE(list->orders.size(), 31000);
        QVERIFY(!readOrders(m_store->connection(), {}, [](qint64 done, qint64) { return done == 0; }));
    }

    void theOldListStaysWhileTheServerIsOff()
    {
        Clerk clerk;
        OrderWindow window(*m_store);
        window.show();
        ListWindow &list = window.list();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        const auto *grid = list.findChild<KorGrid *>();
        const auto *groups = list.findChild<KorCombo *>(QStringLiteral("cmbGroup"));
        QCOMPARE(grid->Rows(), 1001);
        QCOMPARE(groups->ListCount(), 8);
        server("stop");
        clerk.willPress({Qt::Key_Return});
        press(Qt::Key_F5);
        QVERIFY2(clerk.heard().contains(u"Nie ma połączenia z bazą na serwerze"), qPrintable(clerk.heard()));
        QVERIFY2(!clerk.heard().contains(u'|'), qPrintable(clerk.heard()));
        QCOMPARE(grid->Rows(), 1001);
        QCOMPARE(groups->ListCount(), 8);
        server("start");
        administer(QStringLiteral("desk"), QStringLiteral("DELETE FROM orders WHERE id = 5"));
        press(Qt::Key_F5);
        QCOMPARE(grid->Rows(), 1000);
    }

    void anOrderThatCannotBeReadLeavesTheDeskWhereItWas()
    {
        Clerk clerk;
        OrderWindow window(*m_store);
        bringUp(window);
        server("stop");
        clerk.willPress({Qt::Key_Return});
        press(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(!clerk.heard().isEmpty());
        server("start");
        press(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(window.form().order() == m_store->order(2));
    }

    void whatIsSavedIsThereForEveryDesk()
    {
        const Order saved = m_store->add(newOrder());
        QCOMPARE(saved.id, 1001);
        QVERIFY(saved.number.startsWith(QStringLiteral("ZAM/2026/")));
        OrderStore other(address(QStringLiteral("desk")));
        QVERIFY(other.order(saved.id) == saved);
        Order changed = saved;
        changed.remarks.clear();
        changed.discount = std::nullopt;
        changed.lines.removeLast();
        QCOMPARE(int(other.save(changed, saved).kind), int(Kind::Done));
        QVERIFY(m_store->order(saved.id) == changed);
        QCOMPARE(int(m_store->save(saved, saved).kind), int(Kind::ChangedMeanwhile));
        QCOMPARE(int(m_store->remove(saved).kind), int(Kind::ChangedMeanwhile));
        QCOMPARE(int(m_store->remove(changed).kind), int(Kind::Done));
        QCOMPARE(int(other.save(changed, changed).kind), int(Kind::DeletedMeanwhile));
    }

    void customersAndProductsAreKeptAsInAFile()
    {
        for (const RecordTable &table : {customersTable(), productsTable(23)}) {
            const RecordStore file(m_file->connection(), table);
            const RecordStore store(m_store->connection(), table);
            qint64 id = 1;
            for (; const std::optional<Record> record = file.record(id); ++id)
                QVERIFY2(store.record(id) == record, qPrintable(QStringLiteral("%1 %2").arg(table.table).arg(id)));
            QVERIFY(id > 240);
        }
    }

    void aProductIsSavedDecidedAndRemoved()
    {
        using enum RecordOutcome::Kind;
        const OrderStore otherDesk(address(QStringLiteral("desk")));
        RecordStore other(otherDesk.connection(), productsTable(23));
        RecordStore store(m_store->connection(), productsTable(23));
        const Record product{0,
                             {QStringLiteral("Ździebełko 'x' \\ ?"), QStringLiteral("Z1"), qint64(1), qint64(2),
                              qint64(9'007'199'254), qint64(0)}};
        const RecordOutcome added = store.save(product, {});
        QCOMPARE(int(added.kind), int(Done));
        QVERIFY(other.record(added.record.id) == added.record);

        Record theirs = added.record;
        theirs.values[1] = QStringLiteral("Z2");
        QCOMPARE(int(other.save(theirs, added.record).kind), int(Done));
        const RecordOutcome late = store.save(added.record, added.record);
        QCOMPARE(int(late.kind), int(ChangedMeanwhile));
        QVERIFY(late.record == theirs);
        QCOMPARE(int(store.remove(added.record).kind), int(ChangedMeanwhile));

        Record taken = theirs;
        taken.values[1] = QStringLiteral("t0002"); // as in a file, in small letters too
        const RecordOutcome refused = store.save(taken, theirs);
        QCOMPARE(int(refused.kind), int(Refused));
        QCOMPARE(refused.problem.field, 1);
        QVERIFY2(refused.problem.text.contains(u"już występuje w bazie"), qPrintable(refused.problem.text));

        QCOMPARE(int(store.remove(*store.record(1)).kind), int(Refused)); // it was ordered
        QCOMPARE(int(store.remove(theirs).kind), int(Done));
        QVERIFY(!other.record(theirs.id));
        QCOMPARE(int(other.save(theirs, theirs).kind), int(DeletedMeanwhile));
    }

    void aCustomerIsTypedWhileTheServerComesAndGoes()
    {
        Clerk clerk;
        kor::SqlDatabase database(m_store->connection());
        RecordWindow window(*m_store, customersTable(), customersToSearch(*m_store), database);
        window.go(7);
        bringUp(window);
        auto *street = window.findChild<QLineEdit *>(QStringLiteral("street"));
        street->setFocus(Qt::TabFocusReason);
        type(QStringLiteral("Nowa 1"));
        server("stop");
        clerk.willPress({Qt::Key_Return, Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY2(clerk.heard().contains(u"Nie ma połączenia z bazą na serwerze"), qPrintable(clerk.heard()));
        press(Qt::Key_F5);
        QVERIFY(window.isWindowModified());
        QCOMPARE(street->text(), QStringLiteral("Nowa 1"));
        QVERIFY(!kor::isNull(window.findChild<KorCombo *>(QStringLiteral("group_id"))->Value()));
        server("start");
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window.isWindowModified());
        QVERIFY(m_store->addressOf(7).startsWith(QStringLiteral("Nowa 1")));
    }

    void aRefusedLineSavesNothingOfTheOrder()
    {
        const Order before = m_store->order(6).value();
        Order order = before;
        order.remarks = QStringLiteral("nowe");
        order.lines.last().product = 999999; // which does not exist
        QVERIFY(errorOf([&] { (void)m_store->save(order, before); }).contains(u"Baza nie przyjęła tych danych"));
        QVERIFY(m_store->order(6) == before);
    }

    void twoProcessesSaveAThousandTimesAndLoseNothing()
    {
        const qint64 before = m_store->order(1)->total.value();
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--add-up"), QStringLiteral("500")});
        addUp(address(QStringLiteral("desk")), 500);
        QVERIFY(other.waitForFinished(60000));
        QCOMPARE(other.exitCode(), 0);
        QCOMPARE(m_store->order(1)->total.value(), before + 1000);
    }

    void whoWaitsTooLongForAnotherDeskIsTold()
    {
        QSqlQuery(m_store->connection()).exec(QStringLiteral("SET lock_timeout = '50ms'"));
        OrderStore other(address(QStringLiteral("desk")));
        const Order order = m_store->order(1).value();
        QSqlQuery query(other.connection());
        QVERIFY(query.exec(QStringLiteral("BEGIN")));
        QVERIFY(query.exec(QStringLiteral("UPDATE orders SET remarks = 'x' WHERE id = 1")));
        QVERIFY(errorOf([&] { (void)m_store->save(order, order); }).contains(u"korzysta teraz inne stanowisko"));
        QVERIFY(query.exec(QStringLiteral("ROLLBACK")));
        QCOMPARE(int(m_store->save(order, order).kind), int(Kind::Done));
    }

    void aForeignDatabaseIsLeftAsItWas()
    {
        administer(QStringLiteral("postgres"), QStringLiteral("CREATE DATABASE obca"));
        administer(QStringLiteral("obca"), QStringLiteral("CREATE TABLE orders (id INTEGER PRIMARY KEY)"));
        QVERIFY(
            errorOf([] { const OrderStore store(address(QStringLiteral("obca"))); }).contains(u"Pozostała bez zmian"));
        const QString tables = QStringLiteral("SELECT table_name::text FROM information_schema.tables "
                                              "WHERE table_schema = 'public'");
        QCOMPARE(administer(QStringLiteral("obca"), tables), QVariantList{QStringLiteral("orders")});
        administer(QStringLiteral("desk"), QStringLiteral("UPDATE order_desk SET version = 4"));
        QVERIFY(errorOf([] { const OrderStore store(address(QStringLiteral("desk"))); }).contains(u"nowszej wersji"));
    }

    void twoDesksMayComeFirst()
    {
        administer(QStringLiteral("postgres"), QStringLiteral("CREATE DATABASE nowa"));
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--open"), QStringLiteral("nowa")});
        const OrderStore store(address(QStringLiteral("nowa")));
        QVERIFY(other.waitForFinished(60000));
        QCOMPARE(other.exitCode(), 0);
        QCOMPARE(store.ids().size(), m_store->ids().size());
    }

    void whatCannotBeOpenedIsToldInWords_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("words");
        QTest::newRow("no such database") << address(QStringLiteral("nie_ma")) << "\"nie_ma\" does not exist";
        QTest::newRow("no such user")
            << address(QStringLiteral("desk")).replace(QStringLiteral("=kor"), QStringLiteral("=nikt")) << "nikt";
        QTest::newRow("no such server") << "postgresql:///desk?host=/tmp/none&user=kor"
                                        << "Nie ma połączenia z bazą na serwerze";
        QTest::newRow("no database named") << "postgresql://localhost"
                                           << "Adres nie wskazuje bazy";
    }
    void whatCannotBeOpenedIsToldInWords()
    {
        QFETCH(const QString, place);
        QFETCH(const QString, words);
        const QString error = errorOf([&place] { const OrderStore store(place); });
        QVERIFY2(error.contains(words), qPrintable(error));
    }

    void aRestartOfTheServerIsNotNoticed()
    {
        const Order order = m_store->order(1).value();
        server("restart");
        QVERIFY(m_store->order(1) == order);
        server("restart");
        QCOMPARE(int(m_store->save(order, order).kind), int(Kind::Done));
        server("restart");
        QCOMPARE(m_store->add(newOrder()).id, 1001);
    }

    void aServerThatIsOffIsToldAndNothingIsLost()
    {
        const Order order = m_store->order(1).value();
        server("stop");
        const QString error = errorOf([&] { (void)m_store->save(order, order); });
        server("start");
        QVERIFY2(error.contains(u"Nie ma połączenia z bazą na serwerze"), qPrintable(error));
        QVERIFY(m_store->order(1) == order);
    }

    //! What a server has kept of a change that it did not end is nothing.
    void aRestartInMidSaveSavesNothing()
    {
        const Order before = m_store->order(1).value();
        const QString error = errorOf([&] {
            Transaction transaction(m_store->connection(), QStringLiteral("Zapisanie"), QStringLiteral("orders"));
            run(m_store->connection(), QStringLiteral("Zapisanie"), QStringLiteral("UPDATE orders SET total = 1"));
            server("restart");
            run(m_store->connection(), QStringLiteral("Zapisanie"), QStringLiteral("UPDATE orders SET advance = 1"));
            transaction.commit();
        });
        QVERIFY2(error.contains(u"Zapisanie nie powiodło się"), qPrintable(error));
        QVERIFY(m_store->order(1) == before);
    }

    void aConnectionLostWithTheCommitIsSaidToBeUncertain()
    {
        const QString error = errorOf([&] {
            Transaction transaction(m_store->connection(), QStringLiteral("Zapisanie"), QStringLiteral("orders"));
            run(m_store->connection(), QStringLiteral("Zapisanie"), QStringLiteral("UPDATE orders SET total = 1"));
            server("restart");
            transaction.commit();
        });
        QVERIFY2(error.contains(u"nie wiadomo, czy"), qPrintable(error));
        QVERIFY(m_store->order(1)->total != 1);
    }

    void aClerkWorksOnWhileTheServerComesAndGoes()
    {
        Clerk clerk;
        OrderWindow window(*m_store);
        bringUp(window);
        const auto *customer = window.findChild<KorCombo *>(QStringLiteral("cmbCustomer"));
        const QVariant first = customer->Value();
        QVERIFY(!kor::isNull(first));
        QCOMPARE(customer->ListCount(), 241); // all, and none
        QVERIFY(window.findChild<KorList *>(QStringLiteral("lstOrders"))->ListCount() > 0);
        window.findChild<KorMultiText *>(QStringLiteral("txtRemarks"))->setFocus(Qt::TabFocusReason);
        type(QStringLiteral("pilne"));
        server("stop");
        clerk.willPress({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY2(clerk.heard().contains(u"Nie ma połączenia z bazą na serwerze"), qPrintable(clerk.heard()));
        QVERIFY(window.isWindowModified());
        QCOMPARE(window.form().order().remarks, QStringLiteral("pilne"));
        QCOMPARE(customer->Value(), first);
        server("start");
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window.isWindowModified());
        QCOMPARE(m_store->order(1)->remarks, QStringLiteral("pilne"));
        server("restart");
        press(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(window.form().order() == m_store->order(2));
        QVERIFY(!window.isWindowModified());
    }

    void keysGoOnBeyond32Bits()
    {
        for (const char *table : {"customers", "orders"})
            administer(
                QStringLiteral("desk"),
                QStringLiteral("ALTER TABLE %1 ALTER COLUMN id RESTART WITH 3000000000").arg(QLatin1String(table)));
        administer(QStringLiteral("desk"),
                   QStringLiteral("INSERT INTO customers (name, group_id, street, postal_code, city) "
                                  "VALUES ('Żółw', 1, 'Prosta 1', '00-950', 'Łódź')"));
        Clerk clerk;
        OrderWindow window(*m_store);
        bringUp(window);
        press(Qt::Key_N, Qt::ControlModifier);
        type(QStringLiteral("żół"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(clerk.heard(), QString());
        const Order saved = window.form().order();
        QCOMPARE(saved.id, Q_INT64_C(3000000000));
        QCOMPARE(saved.customer, std::optional(Q_INT64_C(3000000000)));
        QVERIFY(m_store->order(saved.id) == saved);
        press(Qt::Key_PageUp, Qt::ControlModifier);
        press(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(window.form().order() == saved);
        QVERIFY(!window.isWindowModified());
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<OrderStore> m_file; //!< the same orders in a file
    std::unique_ptr<OrderStore> m_store;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--add-up") == 0) {
        addUp(address(QStringLiteral("desk")), QByteArray(argv[2]).toInt());
        return 0;
    }
    if (argc == 3 && qstrcmp(argv[1], "--open") == 0) {
        const OrderStore store(address(QString::fromLatin1(argv[2])));
        return store.ids().size() > 0 ? 0 : 1;
    }
    tst_OrderServer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_orderserver.moc"
