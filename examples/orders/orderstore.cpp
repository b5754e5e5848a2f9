// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderstore.h"

#include "columns.h"
#include "foldedtext.h"
#include "linetable.h"
#include "orderfile.h"
#include "orderserver.h"

#include <QtCore/QUuid>
#include <QtCore/QVariant>
#include <QtSql/QSqlQuery>

#include <utility>

namespace orders {

namespace {

const QString changedTables = QStringLiteral("orders, order_lines");

//! The columns of an order that the desk edits, in the order of the statements that write them.
QVariantList valuesOf(const Order &order)
{
    return {orNull(order.customer), order.paymentTerms,      orNull(order.discount), orNull(order.advance),
            orNull(order.total),    orNull(order.remarks),   orNull(order.delivery), order.date.toString(Qt::ISODate),
            order.priority,         orNull(order.labelColor)};
}

Order orderIn(const QSqlQuery &query, qint64 id)
{
    Order order;
    order.id = id;
    order.number = query.value(0).toString();
    order.date = QDate::fromString(query.value(1).toString(), Qt::ISODate);
    order.customer = optional<qint64>(query, 2);
    order.paymentTerms = query.value(3).toString();
    order.discount = optional<double>(query, 4);
    order.advance = optional<qint64>(query, 5);
    order.total = optional<qint64>(query, 6);
    order.remarks = query.value(7).toString();
    order.delivery = optionalDate(query, 8);
    order.priority = query.value(9).toInt();
    order.labelColor = optional<int>(query, 10);
    return order;
}

} // namespace

OrderStore::OrderStore(const QString &place)
    : m_connectionName(QUuid::createUuid().toString()),
      m_connection(
          QSqlDatabase::addDatabase(isServer(place) ? serverDriver : QStringLiteral("QSQLITE"), m_connectionName))
{
    try {
        if (isServer(place))
            openOrderServer(m_connection, place);
        else
            openOrderFile(m_connection, place);
    } catch (...) {
        m_connection = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_connectionName);
        throw;
    }
}

OrderStore::~OrderStore()
{
    m_connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

void OrderStore::wake() const { run(m_connection, QStringLiteral("Odczytanie bazy"), QStringLiteral("SELECT 1")); }

bool OrderStore::isAwake() const
{
    try {
        wake();
    } catch (const StoreError &) {
        return false;
    }
    return true;
}

QList<qint64> OrderStore::ids() const
{
    QSqlQuery query = run(m_connection, QStringLiteral("Odczytanie listy zamówień"),
                          QStringLiteral("SELECT id FROM orders ORDER BY id"));
    QList<qint64> all;
    while (query.next())
        all.append(query.value(0).toLongLong());
    return all;
}

std::optional<Order> OrderStore::order(qint64 id) const
{
    // One statement: no other desk comes in between the order and its lines.
    QSqlQuery query =
        run(m_connection, QStringLiteral("Odczytanie zamówienia"),
            QStringLiteral("SELECT o.number, o.order_date, o.customer_id, o.payment_terms, o.discount, o.advance, "
                           "o.total, o.remarks, o.delivery_date, o.priority, o.label_color, %1 FROM orders o "
                           "LEFT JOIN order_lines l ON l.order_id = o.id WHERE o.id = ? ORDER BY l.line")
                .arg(lineColumns()),
            {id});
    constexpr int firstOfLine = 11;
    std::optional<Order> order;
    while (query.next()) {
        if (!order)
            order = orderIn(query, id);
        if (!query.isNull(firstOfLine))
            order->lines.append(lineIn(query, firstOfLine));
    }
    return order;
}

QString OrderStore::nextNumber(const QDate &date) const
{
    const QString prefix = QStringLiteral("ZAM/%1/").arg(date.year(), 4, 10, QLatin1Char('0'));
    QSqlQuery query = run(m_connection, QStringLiteral("Nadanie numeru"),
                          QStringLiteral("SELECT max(CAST(substr(number, 10) AS INTEGER)) FROM orders "
                                         "WHERE substr(number, 1, 9) = ?"),
                          {prefix});
    query.next();
    return prefix + QStringLiteral("%1").arg(query.value(0).toLongLong() + 1, 4, 10, QLatin1Char('0'));
}

Order OrderStore::add(const Order &order)
{
    const QString doing = QStringLiteral("Zapisanie zamówienia");
    Order saved = order;
    Transaction transaction(m_connection, doing, changedTables);
    saved.number = nextNumber(order.date);
    QSqlQuery query = run(m_connection, doing,
                          QStringLiteral("INSERT INTO orders (customer_id, payment_terms, discount, advance, total, "
                                         "remarks, delivery_date, order_date, priority, label_color, number) "
                                         "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?) RETURNING id"),
                          valuesOf(order) + QVariantList{saved.number});
    query.next();
    saved.id = query.value(0).toLongLong();
    query.finish();
    writeLines(m_connection, saved.id, saved.lines);
    transaction.commit();
    return saved;
}

Outcome OrderStore::save(const Order &order, const Order &loaded)
{
    const QString doing = QStringLiteral("Zapisanie zamówienia");
    Transaction transaction(m_connection, doing, changedTables);
    const std::optional<Order> now = this->order(loaded.id);
    if (!now)
        return {Outcome::Kind::DeletedMeanwhile, order};
    if (*now != loaded)
        return {Outcome::Kind::ChangedMeanwhile, *now};
    run(m_connection, doing,
        QStringLiteral("UPDATE orders SET customer_id = ?, payment_terms = ?, discount = ?, advance = ?, total = ?, "
                       "remarks = ?, delivery_date = ?, order_date = ?, priority = ?, label_color = ? WHERE id = ?"),
        valuesOf(order) + QVariantList{loaded.id});
    if (order.lines != loaded.lines)
        writeLines(m_connection, loaded.id, order.lines);
    transaction.commit();
    return {Outcome::Kind::Done, order};
}

Outcome OrderStore::remove(const Order &loaded)
{
    const QString doing = QStringLiteral("Usunięcie zamówienia");
    Transaction transaction(m_connection, doing, changedTables);
    const std::optional<Order> now = order(loaded.id);
    if (!now)
        return {Outcome::Kind::DeletedMeanwhile, loaded};
    if (*now != loaded)
        return {Outcome::Kind::ChangedMeanwhile, *now};
    run(m_connection, doing, QStringLiteral("DELETE FROM orders WHERE id = ?"), {loaded.id});
    transaction.commit();
    return {Outcome::Kind::Done, loaded};
}

QList<FoundOrder> OrderStore::find(const QString &text, int atMost) const
{
    const QString needle = folded(text.trimmed());
    // The customers are looked through once, not once for each of their orders: the clerk waits at every letter.
    QSqlQuery query = run(m_connection, QStringLiteral("Wyszukanie zamówień"),
                          QStringLiteral("SELECT o.id, o.number, o.order_date, c.name, o.total FROM orders o "
                                         "LEFT JOIN customers c ON c.id = o.customer_id "
                                         "WHERE instr(lower(o.number), ?) > 0 OR o.customer_id IN "
                                         "(SELECT id FROM customers WHERE instr(replace(sort_name, '~', ''), ?) > 0) "
                                         "ORDER BY o.id DESC LIMIT ?"),
                          {needle, needle, atMost});
    QList<FoundOrder> found;
    while (query.next()) {
        found.append({query.value(0).toLongLong(), query.value(1).toString(),
                      QDate::fromString(query.value(2).toString(), Qt::ISODate), query.value(3).toString(),
                      optional<qint64>(query, 4)});
    }
    return found;
}

QList<FoundCustomer> OrderStore::findCustomers(const QString &text, int atMost) const
{
    const QString needle = folded(text.trimmed());
    QSqlQuery query = run(m_connection, QStringLiteral("Wyszukanie klientów"),
                          QStringLiteral("SELECT id, name, city, nip FROM customers "
                                         "WHERE instr(replace(sort_name, '~', ''), ?) > 0 "
                                         "OR instr(coalesce(nip, ''), ?) > 0 ORDER BY sort_name, id LIMIT ?"),
                          {needle, needle, atMost});
    QList<FoundCustomer> found;
    while (query.next())
        found.append({query.value(0).toLongLong(), query.value(1).toString(), query.value(2).toString(),
                      query.value(3).toString()});
    return found;
}

QString OrderStore::nameOf(qint64 customer) const
{
    QSqlQuery query = run(m_connection, QStringLiteral("Odczytanie klienta"),
                          QStringLiteral("SELECT name FROM customers WHERE id = ?"), {customer});
    return query.next() ? query.value(0).toString() : QString();
}

QString OrderStore::addressOf(qint64 customer) const
{
    QSqlQuery query =
        run(m_connection, QStringLiteral("Odczytanie klienta"),
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
