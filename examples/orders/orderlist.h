// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "longwork.h"
#include "orderfilter.h"

#include <QtCore/QList>
#include <QtSql/QSqlDatabase>

namespace orders {

//! An order as a list shows it.
struct ListedOrder {
    qint64 id = 0;
    QString number;
    QDate date;
    QString customer; //!< "" for none yet
    QString terms;    //!< the code
    std::optional<QDate> delivery;
    int priority = 3;
    std::optional<qint64> net; //!< grosze, of its lines
    std::optional<qint64> total;
    std::optional<qint64> due;
    QString remarks;

    bool operator==(const ListedOrder &) const = default;
};

//! Orders, the newest first.
struct OrderList {
    QList<ListedOrder> orders;
    qint64 all = 0; //!< so many there are, whatever the filter
};

struct OrderSums {
    qint64 net = 0;
    qint64 total = 0;
    qint64 due = 0;

    bool operator==(const OrderSums &) const = default;
};

[[nodiscard]] OrderSums sumsOf(const QList<ListedOrder> &orders);

//! How many orders there are. Raises StoreError.
[[nodiscard]] qint64 countOrders(const QSqlDatabase &connection);

//! Reads the orders of a filter. Many of them are read piece by piece, so that the work can be stopped at any time and
//! locks nobody out; nothing when it was. Raises StoreError.
[[nodiscard]] std::optional<OrderList> readOrders(const QSqlDatabase &connection, const OrderFilter &filter,
                                                  const MayGoOn &mayGoOn);

//! Those of these orders that are there and belong to the filter. Raises StoreError.
[[nodiscard]] QList<ListedOrder> readListed(const QSqlDatabase &connection, const OrderFilter &filter,
                                            const QList<qint64> &ids);

//! All orders of a customer. Raises StoreError.
[[nodiscard]] QList<qint64> ordersOf(const QSqlDatabase &connection, qint64 customer);

} // namespace orders
