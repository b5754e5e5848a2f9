// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "order.h"

#include <QtCore/QList>
#include <QtSql/QSqlDatabase>

#include <stdexcept>

namespace orders {

//! A failure of the database: what was being done and the driver's own text.
class StoreError : public std::runtime_error
{
public:
    StoreError(const QString &doing, const QString &driverText);
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
};

//! One line of a search result.
struct FoundOrder {
    qint64 id = 0;
    QString number;
    QDate date;
    QString customer;
    qint64 total = 0;
};

//! One line of a search for a customer.
struct FoundCustomer {
    qint64 id = 0;
    QString name;
    QString city;
    QString nip;
};

//! The orders in their SQLite file. Every change is one transaction that is on the disk when the call returns: what was
//! saved survives the end of the program, however it ends. All calls raise StoreError.
class OrderStore
{
public:
    //! Opens the file. One that is new, or was left half made, gets the tables and the sample data.
    explicit OrderStore(const QString &fileName);
    ~OrderStore();
    Q_DISABLE_COPY_MOVE(OrderStore)

    //! For the lists that fill themselves from the database.
    [[nodiscard]] const QSqlDatabase &connection() const { return m_connection; }

    //! All orders from the oldest to the newest.
    [[nodiscard]] QList<qint64> ids() const;
    //! The order, or nothing when it is no longer there.
    [[nodiscard]] std::optional<Order> order(qint64 id) const;
    //! Saves a new or a changed order, and gives it back with its number.
    Order save(const Order &order);
    void remove(qint64 id);

    //! The newest orders whose number or customer contains the text, without regard to case and accents.
    [[nodiscard]] QList<FoundOrder> find(const QString &text, int atMost) const;
    //! The customers whose name or tax number contains the text, without regard to case and accents.
    [[nodiscard]] QList<FoundCustomer> findCustomers(const QString &text, int atMost) const;
    //! Street, city and tax number of a customer on one line.
    [[nodiscard]] QString addressOf(qint64 customer) const;

private:
    void create();
    [[nodiscard]] QString nextNumber(const QDate &date) const;

    QString m_connectionName;
    QSqlDatabase m_connection;
};

} // namespace orders
