// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderlist.h"

#include "columns.h"
#include "foldedtext.h"
#include "order.h"
#include "statement.h"

#include <QtCore/QElapsedTimer>
#include <QtSql/QSqlError>

#include <algorithm>
#include <limits>

namespace orders {

namespace {

const QString reading = QStringLiteral("Odczytanie listy zamówień");

// Whole grosze line by line, halves upwards and never too many, as amountOf() has them. A server rounds the halves of
// NUMERIC so, but not those of other numbers.
const QString columns = QStringLiteral(
    "SELECT o.id, o.number, o.order_date, c.name, o.payment_terms, o.delivery_date, o.priority, "
    "(SELECT CAST(sum(round(CAST(CASE WHEN l.quantity * l.net_price < 1e15 THEN l.quantity * l.net_price "
    "WHEN l.quantity * l.net_price >= 1e15 THEN 1e15 END AS NUMERIC))) AS BIGINT) FROM order_lines l WHERE l.order_id "
    "= o.id), o.total, o.advance, o.remarks ");
const QString tables = QStringLiteral("FROM orders o LEFT JOIN customers c ON c.id = o.customer_id WHERE ");

ListedOrder listedIn(const QSqlQuery &query)
{
    ListedOrder order;
    order.id = query.value(0).toLongLong();
    order.number = query.value(1).toString();
    order.date = QDate::fromString(query.value(2).toString(), Qt::ISODate);
    order.customer = query.value(3).toString();
    order.terms = query.value(4).toString();
    order.delivery = optionalDate(query, 5);
    order.priority = query.value(6).toInt();
    order.net = optional<qint64>(query, 7);
    order.total = optional<qint64>(query, 8);
    order.due = dueOf(order.total, optional<qint64>(query, 9));
    order.remarks = query.value(10).toString();
    return order;
}

//! All of a filter but its text, which no database folds as the desk does.
Condition asFarAsTheDatabaseKnows(const OrderFilter &filter)
{
    Condition condition = conditionOf(filter);
    if (filter.most)
        condition.add(QStringLiteral("o.total <= ?"), {*filter.most});
    if (filter.group)
        condition.add(QStringLiteral("c.group_id = ?"), {*filter.group});
    if (!filter.terms.isEmpty())
        condition.addOneOf(QStringLiteral("o.payment_terms"), QVariantList(filter.terms.cbegin(), filter.terms.cend()));
    return condition;
}

//! Reads a piece of the orders as a whole, before anybody else asks the connection.
class Reader
{
public:
    Reader(const QSqlDatabase &connection, const OrderFilter &filter)
        : m_connection(connection),
          m_condition(asFarAsTheDatabaseKnows(filter)),
          m_needle(folded(filter.text.trimmed())),
          m_isIndexed(filter.from || filter.to || filter.customer)
    {
    }

    //! Whether the database finds the orders without going through all of them.
    [[nodiscard]] bool isIndexed() const { return m_isIndexed; }
    [[nodiscard]] qint64 count() const
    {
        QSqlQuery query = run(m_connection, reading, QStringLiteral("SELECT count(*) ") + tables + m_condition.text(),
                              m_condition.values());
        return query.next() ? query.value(0).toLongLong() : 0;
    }

    //! Appends the orders for which this holds as well.
    void read(const Condition &also, QList<ListedOrder> &orders) const
    {
        Condition condition = m_condition;
        condition.add(also.text(), also.values());
        QSqlQuery query =
            run(m_connection, reading, columns + tables + condition.text() + QStringLiteral(" ORDER BY o.id DESC"),
                condition.values());
        while (query.next()) {
            ListedOrder order = listedIn(query);
            if (isMeant(order))
                orders.append(std::move(order));
        }
        if (query.lastError().isValid())
            throw StoreError(reading, query.lastError());
    }

private:
    [[nodiscard]] bool isMeant(const ListedOrder &order) const
    {
        return m_needle.isEmpty() || folded(order.number).contains(m_needle) ||
               folded(order.customer).contains(m_needle) || folded(order.remarks).contains(m_needle);
    }

    QSqlDatabase m_connection;
    Condition m_condition;
    QString m_needle;
    bool m_isIndexed;
};

//! How many orders are gone through at a time: as many as take a moment, which another server has less of.
class PieceSize
{
public:
    [[nodiscard]] qint64 value() const { return m_value; }
    void learn(qint64 milliseconds)
    {
        constexpr qint64 moment = 40;
        if (milliseconds < moment / 2)
            m_value = std::min(m_value * 2, most);
        else if (milliseconds > moment * 2)
            m_value = std::max(m_value / 2, least);
    }

    static constexpr qint64 least = 50;
    static constexpr qint64 most = 20'000;

private:
    qint64 m_value = 1000;
};

//! The last order of the piece that begins with this one; nothing when it is the last piece.
std::optional<qint64> endOfPiece(const QSqlDatabase &connection, qint64 first, qint64 size)
{
    QSqlQuery query =
        run(connection, reading,
            QStringLiteral("SELECT id FROM orders WHERE id <= ? ORDER BY id DESC LIMIT 1 OFFSET ?"), {first, size - 1});
    return query.next() ? std::optional(query.value(0).toLongLong()) : std::nullopt;
}

} // namespace

OrderSums sumsOf(const QList<ListedOrder> &orders)
{
    OrderSums sums;
    for (const ListedOrder &order : orders) {
        sums.net += order.net.value_or(0);
        sums.total += order.total.value_or(0);
        sums.due += order.due.value_or(0);
    }
    return sums;
}

qint64 countOrders(const QSqlDatabase &connection)
{
    QSqlQuery query = run(connection, reading, QStringLiteral("SELECT count(*) FROM orders"));
    return query.next() ? query.value(0).toLongLong() : 0;
}

std::optional<OrderList> readOrders(const QSqlDatabase &connection, const OrderFilter &filter, const MayGoOn &mayGoOn)
{
    const Reader reader(connection, filter);
    OrderList list;
    list.all = countOrders(connection);
    PieceSize size;
    if (list.all <= size.value() || (reader.isIndexed() && reader.count() <= size.value())) {
        reader.read({}, list.orders);
        return list;
    }
    // By their keys, which never change: an order that another desk saves meanwhile is neither missed nor read twice.
    QElapsedTimer clock;
    std::optional<qint64> first = std::numeric_limits<qint64>::max();
    for (qint64 done = 0; first;) {
        if (!mayGoOn(std::min(done, list.all), list.all))
            return std::nullopt;
        clock.start();
        const std::optional<qint64> last = endOfPiece(connection, *first, size.value());
        Condition piece;
        piece.add(QStringLiteral("o.id <= ?"), {*first});
        if (last)
            piece.add(QStringLiteral("o.id >= ?"), {*last});
        reader.read(piece, list.orders);
        first = last ? std::optional(*last - 1) : std::nullopt;
        done += size.value();
        size.learn(clock.elapsed());
    }
    return list;
}

QList<ListedOrder> readListed(const QSqlDatabase &connection, const OrderFilter &filter, const QList<qint64> &ids)
{
    constexpr qsizetype most = 500; // parameters of a statement, of which databases take so many at least
    const Reader reader(connection, filter);
    QList<ListedOrder> orders;
    for (qsizetype first = 0; first < ids.size(); first += most) {
        const QList<qint64> piece = ids.mid(first, most);
        Condition among;
        among.addOneOf(QStringLiteral("o.id"), QVariantList(piece.cbegin(), piece.cend()));
        reader.read(among, orders);
    }
    return orders;
}

QList<qint64> ordersOf(const QSqlDatabase &connection, qint64 customer)
{
    QSqlQuery query =
        run(connection, reading, QStringLiteral("SELECT id FROM orders WHERE customer_id = ?"), {customer});
    QList<qint64> ids;
    while (query.next())
        ids << query.value(0).toLongLong();
    return ids;
}

} // namespace orders
