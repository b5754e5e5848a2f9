// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderfile.h"

#include "fileplace.h"
#include "script.h"
#include "statement.h"

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtSql/QSqlError>

#include <initializer_list>
#include <optional>
#include <utility>

namespace orders {

namespace {

constexpr int applicationId = 0x4f726472; // as in schema.sql
constexpr int currentVersion = 3;

//! What a database says it is.
struct Identity {
    int application = 0;
    int version = 0;
    int tables = 0;
    int ownTables = 0;

    [[nodiscard]] bool isEmpty() const { return application == 0 && version == 0 && tables == 0; }
    //! The first files had no application's number yet.
    [[nodiscard]] bool isOurs() const
    {
        constexpr int needed = 4;
        return application == applicationId || (application == 0 && version == 1 && ownTables == needed);
    }
};

Identity identityOf(const QSqlDatabase &connection, const QString &doing)
{
    const QString tables = QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'table'");
    return {numberOf(connection, doing, QStringLiteral("PRAGMA application_id")),
            numberOf(connection, doing, QStringLiteral("PRAGMA user_version")), numberOf(connection, doing, tables),
            numberOf(connection, doing,
                     tables + QStringLiteral(" AND name IN ('customers', 'orders', 'order_lines', 'products')"))};
}

void refuseForeign(const Identity &identity, const QString &doing)
{
    if (!identity.isEmpty() && !identity.isOurs())
        throw StoreError(doing, QStringLiteral("Ten plik nie jest bazą zamówień. Pozostał bez zmian."));
    if (identity.version > currentVersion)
        throw StoreError(doing, QStringLiteral("Ten plik pochodzi z nowszej wersji programu. Pozostał bez zmian."));
}

//! Looks at a file without a lock, a log or any other trace. A file that does not exist is nobody's. Nothing is said of
//! one that can't be read so because a program was killed over it: the log beside it has to be read first.
void refuseForeignFile(const QString &fileName, const QString &doing)
{
    if (QFileInfo(fileName).size() == 0)
        return;
    const QString name = QUuid::createUuid().toString();
    try {
        QSqlDatabase look = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        QUrl address = QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath());
        address.setQuery(QStringLiteral("immutable=1"));
        look.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_OPEN_READONLY"));
        look.setDatabaseName(address.toString(QUrl::FullyEncoded));
        if (!look.open())
            throw StoreError(doing, look.lastError());
        const std::optional<Identity> identity = [&]() -> std::optional<Identity> {
            try {
                return identityOf(look, doing);
            } catch (const StoreError &) {
                if (QFileInfo::exists(fileName + QStringLiteral("-wal")) ||
                    QFileInfo::exists(fileName + QStringLiteral("-journal")))
                    return std::nullopt;
                throw;
            }
        }();
        if (identity)
            refuseForeign(*identity, doing);
    } catch (...) {
        QSqlDatabase::removeDatabase(name);
        throw;
    }
    QSqlDatabase::removeDatabase(name);
}

//! Brings a file of an older program up to date: its tables make room for those of today, and their rows move over. The
//! old tables stay until all rows are there.
class Upgrade
{
public:
    Upgrade(const QSqlDatabase &connection, QString doing)
        : m_connection(connection),
          m_doing(std::move(doing)),
          m_statements(statementsOf(QStringLiteral("schema"), m_doing) + statementsOf(QStringLiteral("seed"), m_doing))
    {
    }

    //! Version 1 took 0 for a discount, an advance or a total that was not entered.
    void from1()
    {
        const QString columns = QStringLiteral("id, number, customer_id, order_date, delivery_date, payment_terms, "
                                               "discount, advance, total, priority, remarks, label_color");
        move(QStringLiteral("orders"),
             QStringLiteral("INSERT INTO orders (%1) SELECT %1 FROM orders_old").arg(columns));
    }

    //! Up to version 2 products had no symbols, their units no table, and a line was its product with its quantity.
    void from2()
    {
        own(QStringLiteral("CREATE TABLE units ("));
        own(QStringLiteral("INSERT INTO units ("));
        move(QStringLiteral("products"),
             QStringLiteral("INSERT INTO products (id, name, symbol, category_id, unit_id, net_price, vat) "
                            "SELECT p.id, p.name, printf('T%04d', p.id), p.category_id, units.id, p.net_price, p.vat "
                            "FROM products_old p JOIN units ON units.name = p.unit"));
        move(QStringLiteral("order_lines"),
             QStringLiteral("INSERT INTO order_lines (order_id, line, product_id, name, quantity, unit_id, net_price, "
                            "vat) SELECT l.order_id, l.line, l.product_id, p.name, l.quantity, p.unit_id, "
                            "l.net_price, l.vat FROM order_lines_old l JOIN products p ON p.id = l.product_id"));
    }

    void finish()
    {
        own(QStringLiteral("PRAGMA "));
        if (run(m_connection, m_doing, QStringLiteral("PRAGMA foreign_key_check")).next())
            fail();
    }

private:
    //! Runs those of today's statements that begin so.
    void own(const QString &beginning)
    {
        for (const QString &statement : m_statements) {
            if (statement.contains(beginning))
                run(m_connection, m_doing, statement);
        }
    }

    void move(const QString &table, const QString &rows)
    {
        const QString count = QStringLiteral("SELECT count(*) FROM ") + table;
        const int before = numberOf(m_connection, m_doing, count);
        run(m_connection, m_doing, QStringLiteral("ALTER TABLE %1 RENAME TO %1_old").arg(table));
        own(QStringLiteral("CREATE TABLE %1 (").arg(table));
        run(m_connection, m_doing, rows);
        if (numberOf(m_connection, m_doing, count) != before)
            fail();
        run(m_connection, m_doing, QStringLiteral("DROP TABLE %1_old").arg(table));
        own(QStringLiteral("CREATE INDEX %1_by_").arg(table));
    }

    [[noreturn]] void fail() const
    {
        throw StoreError(m_doing, QStringLiteral("Danych nie udało się przenieść. Plik pozostał bez zmian."));
    }

    const QSqlDatabase &m_connection;
    QString m_doing;
    QStringList m_statements;
};

void upgrade(const QSqlDatabase &connection, const QString &doing, int version)
{
    Upgrade upgrade(connection, doing);
    if (version == 1)
        upgrade.from1();
    upgrade.from2();
    upgrade.finish();
}

//! Brings the file up to date while no other desk can come in between.
void bringUpToDate(const QSqlDatabase &connection, const QString &doing)
{
    Transaction transaction(connection, doing);
    const Identity identity = identityOf(connection, doing);
    refuseForeign(identity, doing);
    if (identity.isEmpty())
        runScripts(connection, {QStringLiteral("schema"), QStringLiteral("seed")}, doing);
    else if (identity.version < currentVersion)
        upgrade(connection, doing, identity.version);
    else
        return;
    transaction.commit();
}

} // namespace

void openOrderFile(QSqlDatabase &connection, const QString &fileName)
{
    const QString doing = QStringLiteral("Otwarcie bazy %1").arg(fileName);
    refuseForeignFile(fileName, doing);
    connection.setDatabaseName(fileName);
    if (!connection.open())
        throw StoreError(doing, connection.lastError());
    rememberFile(connection);
    const auto pragmas = [&](std::initializer_list<const char *> all) {
        for (const char *pragma : all)
            run(connection, doing, QStringLiteral("PRAGMA ") + QLatin1String(pragma));
    };
    refuseForeign(identityOf(connection, doing), doing);
    // A commit waits for the disk; the write-ahead log keeps readers and the rest of the file out of its way.
    pragmas({"journal_mode = WAL", "synchronous = FULL"});
    // A table that moves keeps the references of the others, and takes none of their rows with it.
    pragmas({"foreign_keys = OFF", "legacy_alter_table = ON"});
    bringUpToDate(connection, doing);
    pragmas({"legacy_alter_table = OFF", "foreign_keys = ON"});
}

} // namespace orders
