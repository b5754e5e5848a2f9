// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "catalogue.h"

#include "foldedtext.h"
#include "statement.h"

namespace orders {

namespace {

const QString reading = QStringLiteral("Odczytanie towarów");
const QString products =
    QStringLiteral("SELECT products.id, symbol, products.name, unit_id, units.name, net_price, vat "
                   "FROM products JOIN units ON units.id = unit_id ");

Product productIn(const QSqlQuery &query)
{
    return {query.value(0).toLongLong(), query.value(1).toString(), query.value(2).toString(),
            query.value(3).toLongLong(), query.value(4).toString(), query.value(5).toLongLong(),
            query.value(6).toInt()};
}

std::optional<Product> onlyOne(QSqlQuery query)
{
    return query.next() ? std::optional(productIn(query)) : std::nullopt;
}

} // namespace

QList<Product> Catalogue::find(const QString &text, int atMost) const
{
    const QString needle = folded(text.trimmed());
    QSqlQuery query = run(m_connection, reading,
                          products + QStringLiteral("WHERE instr(replace(sort_name, '~', ''), ?) > 0 "
                                                    "OR instr(lower(symbol), ?) > 0 ORDER BY sort_name LIMIT ?"),
                          {needle, needle, atMost});
    QList<Product> found;
    while (query.next())
        found.append(productIn(query));
    return found;
}

std::optional<Product> Catalogue::product(qint64 id) const
{
    return onlyOne(run(m_connection, reading, products + QStringLiteral("WHERE products.id = ?"), {id}));
}

std::optional<Product> Catalogue::productOf(const QString &symbol) const
{
    return onlyOne(run(m_connection, reading, products + QStringLiteral("WHERE symbol = ?"), {symbol.trimmed()}));
}

QString Catalogue::unitName(qint64 unit) const
{
    QSqlQuery query = run(m_connection, reading, QStringLiteral("SELECT name FROM units WHERE id = ?"), {unit});
    return query.next() ? query.value(0).toString() : QString();
}

} // namespace orders
