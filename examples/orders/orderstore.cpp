// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderstore.h"

#include <QtCore/QFile>
#include <QtCore/QUuid>
#include <QtCore/QVariant>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <utility>

namespace orders {

namespace {

//! Runs one statement with its values, or raises StoreError.
QSqlQuery run(const QSqlDatabase &connection, const QString &doing, const QString &statement,
              const QVariantList &values = {})
{
    QSqlQuery query(connection);
    query.setForwardOnly(true);
    bool works = query.prepare(statement);
    for (const QVariant &value : values)
        query.addBindValue(value);
    works = works && query.exec();
    if (!works)
        throw StoreError(doing, query.lastError().text());
    return query;
}

//! A change that takes place as a whole or not at all.
class Transaction
{
public:
    Transaction(QSqlDatabase &connection, QString doing) : m_connection(connection), m_doing(std::move(doing))
    {
        // At once as a writer: one that reads first and writes later could be refused in between.
        run(m_connection, m_doing, QStringLiteral("BEGIN IMMEDIATE"));
    }
    ~Transaction()
    {
        if (!m_done)
            QSqlQuery(m_connection).exec(QStringLiteral("ROLLBACK"));
    }
    Q_DISABLE_COPY_MOVE(Transaction)

    void commit()
    {
        run(m_connection, m_doing, QStringLiteral("COMMIT"));
        m_done = true;
    }

private:
    QSqlDatabase &m_connection;
    QString m_doing;
    bool m_done = false;
};

//! Lower case without accents, as `customers.sort_name` is without its tildes.
QString folded(const QString &text)
{
    const QString lower = text.toLower();
    QString result;
    for (const QChar character : lower.normalized(QString::NormalizationForm_D)) {
        if (character == u'ł')
            result += u'l';
        else if (character.category() != QChar::Mark_NonSpacing && character != u'~')
            result += character;
    }
    return result;
}

QVariant orNull(const std::optional<qint64> &key)
{
    return key ? QVariant(*key) : QVariant(QMetaType(QMetaType::LongLong));
}
QVariant orNull(const QString &text)
{
    return text.isEmpty() ? QVariant(QMetaType(QMetaType::QString)) : QVariant(text);
}

} // namespace

StoreError::StoreError(const QString &doing, const QString &driverText)
    : std::runtime_error((doing + QStringLiteral(": ") + driverText).toStdString()),
      m_text(doing + QStringLiteral(":\n") + driverText)
{
}

OrderStore::OrderStore(const QString &fileName)
    : m_connectionName(QUuid::createUuid().toString()),
      m_connection(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName))
{
    m_connection.setDatabaseName(fileName);
    const QString doing = QStringLiteral("Otwieranie bazy %1").arg(fileName);
    if (!m_connection.open())
        throw StoreError(doing, m_connection.lastError().text());
    // A commit waits for the disk; the write-ahead log keeps readers and the rest of the file out of its way.
    for (const char *pragma : {"journal_mode = WAL", "synchronous = FULL", "foreign_keys = ON"})
        run(m_connection, doing, QStringLiteral("PRAGMA ") + QLatin1String(pragma));
    create();
}

OrderStore::~OrderStore()
{
    m_connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

void OrderStore::create()
{
    const QString doing = QStringLiteral("Zakładanie bazy");
    Transaction transaction(m_connection, doing);
    QSqlQuery version = run(m_connection, doing, QStringLiteral("PRAGMA user_version"));
    version.next();
    const bool exists = version.value(0).toInt() > 0;
    version.finish();
    if (!exists) {
        for (const char *name : {"schema", "seed"}) {
            QFile script(QStringLiteral(":/orders/data/%1.sql").arg(QLatin1String(name)));
            if (!script.open(QIODevice::ReadOnly))
                throw StoreError(doing, script.errorString());
            for (const QString &statement : QString::fromUtf8(script.readAll()).split(QStringLiteral(";\n")))
                if (!statement.trimmed().isEmpty())
                    run(m_connection, doing, statement);
        }
    }
    transaction.commit();
}

QList<qint64> OrderStore::ids() const
{
    QSqlQuery query = run(m_connection, QStringLiteral("Czytanie listy zamówień"),
                          QStringLiteral("SELECT id FROM orders ORDER BY id"));
    QList<qint64> all;
    while (query.next())
        all.append(query.value(0).toLongLong());
    return all;
}

std::optional<Order> OrderStore::order(qint64 id) const
{
    QSqlQuery query =
        run(m_connection, QStringLiteral("Czytanie zamówienia"),
            QStringLiteral("SELECT number, order_date, customer_id, payment_terms, discount, advance, "
                           "total, remarks, delivery_date, priority, label_color FROM orders WHERE id = ?"),
            {id});
    if (!query.next())
        return std::nullopt;
    Order order;
    order.id = id;
    order.number = query.value(0).toString();
    order.date = QDate::fromString(query.value(1).toString(), Qt::ISODate);
    if (!query.isNull(2))
        order.customer = query.value(2).toLongLong();
    order.paymentTerms = query.value(3).toString();
    order.discount = query.value(4).toDouble();
    order.advance = query.value(5).toLongLong();
    order.total = query.value(6).toLongLong();
    order.remarks = query.value(7).toString();
    if (!query.isNull(8))
        order.delivery = QDate::fromString(query.value(8).toString(), Qt::ISODate);
    order.priority = query.value(9).toInt();
    if (!query.isNull(10))
        order.labelColor = query.value(10).toInt();
    return order;
}

QString OrderStore::nextNumber(const QDate &date) const
{
    const QString prefix = QStringLiteral("ZAM/%1/").arg(date.year(), 4, 10, QLatin1Char('0'));
    QSqlQuery query = run(m_connection, QStringLiteral("Nadawanie numeru"),
                          QStringLiteral("SELECT max(CAST(substr(number, 10) AS INTEGER)) FROM orders "
                                         "WHERE substr(number, 1, 9) = ?"),
                          {prefix});
    query.next();
    return prefix + QStringLiteral("%1").arg(query.value(0).toLongLong() + 1, 4, 10, QLatin1Char('0'));
}

Order OrderStore::save(const Order &order)
{
    const QString doing = QStringLiteral("Zapis zamówienia");
    Order saved = order;
    Transaction transaction(m_connection, doing);
    const QVariantList values{orNull(order.customer),
                              order.paymentTerms,
                              order.discount,
                              order.advance,
                              order.total,
                              orNull(order.remarks),
                              order.delivery ? QVariant(order.delivery->toString(Qt::ISODate)) : QVariant(),
                              order.date.toString(Qt::ISODate),
                              order.priority,
                              order.labelColor ? QVariant(*order.labelColor) : QVariant()};
    if (order.id == 0) {
        saved.number = nextNumber(order.date);
        QSqlQuery query =
            run(m_connection, doing,
                QStringLiteral("INSERT INTO orders (customer_id, payment_terms, discount, advance, total, "
                               "remarks, delivery_date, order_date, priority, label_color, number) "
                               "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                values + QVariantList{saved.number});
        saved.id = query.lastInsertId().toLongLong();
    } else {
        QSqlQuery query = run(m_connection, doing,
                              QStringLiteral("UPDATE orders SET customer_id = ?, payment_terms = ?, discount = ?, "
                                             "advance = ?, total = ?, remarks = ?, delivery_date = ?, order_date = ?, "
                                             "priority = ?, label_color = ? WHERE id = ?"),
                              values + QVariantList{order.id});
        if (query.numRowsAffected() != 1)
            throw StoreError(doing, QStringLiteral("Zamówienie %1 zostało tymczasem usunięte.").arg(order.number));
    }
    transaction.commit();
    return saved;
}

void OrderStore::remove(qint64 id)
{
    const QString doing = QStringLiteral("Usuwanie zamówienia");
    Transaction transaction(m_connection, doing);
    run(m_connection, doing, QStringLiteral("DELETE FROM orders WHERE id = ?"), {id});
    transaction.commit();
}

QList<FoundOrder> OrderStore::find(const QString &text, int atMost) const
{
    const QString needle = folded(text.trimmed());
    QSqlQuery query = run(m_connection, QStringLiteral("Szukanie zamówień"),
                          QStringLiteral("SELECT o.id, o.number, o.order_date, c.name, o.total FROM orders o "
                                         "LEFT JOIN customers c ON c.id = o.customer_id "
                                         "WHERE instr(lower(o.number), ?) > 0 "
                                         "OR instr(replace(c.sort_name, '~', ''), ?) > 0 ORDER BY o.id DESC LIMIT ?"),
                          {needle, needle, atMost});
    QList<FoundOrder> found;
    while (query.next()) {
        found.append({query.value(0).toLongLong(), query.value(1).toString(),
                      QDate::fromString(query.value(2).toString(), Qt::ISODate), query.value(3).toString(),
                      query.value(4).toLongLong()});
    }
    return found;
}

QList<FoundCustomer> OrderStore::findCustomers(const QString &text, int atMost) const
{
    const QString needle = folded(text.trimmed());
    QSqlQuery query = run(m_connection, QStringLiteral("Szukanie klientów"),
                          QStringLiteral("SELECT id, name, city, nip FROM customers "
                                         "WHERE instr(replace(sort_name, '~', ''), ?) > 0 "
                                         "OR instr(coalesce(nip, ''), ?) > 0 ORDER BY sort_name LIMIT ?"),
                          {needle, needle, atMost});
    QList<FoundCustomer> found;
    while (query.next())
        found.append({query.value(0).toLongLong(), query.value(1).toString(), query.value(2).toString(),
                      query.value(3).toString()});
    return found;
}

QString OrderStore::addressOf(qint64 customer) const
{
    QSqlQuery query =
        run(m_connection, QStringLiteral("Czytanie klienta"),
            QStringLiteral("SELECT street, postal_code, city, nip FROM customers WHERE id = ?"), {customer});
    if (!query.next())
        return {};
    QString address = QStringLiteral("%1, %2 %3")
                          .arg(query.value(0).toString(), query.value(1).toString(), query.value(2).toString());
    if (!query.isNull(3))
        address += QStringLiteral(", NIP ") + query.value(3).toString();
    return address;
}

} // namespace orders
