// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "linetable.h"

#include "columns.h"
#include "statement.h"

namespace orders {

QString lineColumns()
{
    return QStringLiteral("l.line, l.product_id, l.name, l.quantity, l.unit_id, l.net_price, l.vat, l.delivery_date");
}

OrderLine lineIn(const QSqlQuery &query, int first)
{
    OrderLine line;
    line.number = query.value(first).toInt();
    line.product = optional<qint64>(query, first + 1);
    line.name = query.value(first + 2).toString();
    line.quantity = optional<double>(query, first + 3);
    line.unit = optional<qint64>(query, first + 4);
    line.netPrice = optional<qint64>(query, first + 5);
    line.vat = optional<int>(query, first + 6);
    line.delivery = optionalDate(query, first + 7);
    return line;
}

void writeLines(const QSqlDatabase &connection, qint64 order, const QList<OrderLine> &lines)
{
    const QString doing = QStringLiteral("Zapisanie pozycji zamówienia");
    run(connection, doing, QStringLiteral("DELETE FROM order_lines WHERE order_id = ?"), {order});
    for (const OrderLine &line : lines) {
        run(connection, doing,
            QStringLiteral("INSERT INTO order_lines (order_id, line, product_id, name, quantity, unit_id, net_price, "
                           "vat, delivery_date) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            {order, line.number, orNull(line.product), orNull(line.name), orNull(line.quantity), orNull(line.unit),
             orNull(line.netPrice), orNull(line.vat), orNull(line.delivery)});
    }
}

} // namespace orders
