// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "order.h"
#include "statement.h"

#include <QtCore/QList>
#include <QtSql/QSqlDatabase>

namespace orders {

//! One line of a search result.
struct FoundOrder {
    qint64 id = 0;
    QString number;
    QDate date;
    QString customer;
    std::optional<qint64> total;
};

//! One line of a search for a customer.
struct FoundCustomer {
    qint64 id = 0;
    QString name;
    QString city;
    QString nip;
};

//! What became of a change.
struct Outcome {
    enum class Kind { Done, ChangedMeanwhile, DeletedMeanwhile };
    Kind kind = Kind::Done;
    Order order; //!< as it stands in the file now; as it was given when it is no longer there
};

//! The orders in their SQLite file, or on a PostgreSQL server that many desks share. Every change is one transaction
//! that is on the disk when the call returns: what was saved survives the end of the program, however it ends. A server
//! that was restarted is connected to again by the next call. All calls raise StoreError.
class OrderStore
{
public:
    //! Opens a file as openOrderFile() does, and an address as openOrderServer() does.
    explicit OrderStore(const QString &place);
    ~OrderStore();
    Q_DISABLE_COPY_MOVE(OrderStore)

    //! For the lists that fill themselves from the database.
    [[nodiscard]] const QSqlDatabase &connection() const { return m_connection; }
    //! Makes sure that the database answers before a list is read from it: one that can't be read would be emptied, and
    //! its entry lost.
    void wake() const;
    //! The same without an error.
    [[nodiscard]] bool isAwake() const;

    //! All orders from the oldest to the newest.
    [[nodiscard]] QList<qint64> ids() const;
    //! The order, or nothing when it is no longer there.
    [[nodiscard]] std::optional<Order> order(qint64 id) const;
    //! Saves a new order with its lines and gives it back with its number.
    Order add(const Order &order);
    //! Saves a changed order with its lines if both still stand in the file as they were loaded; otherwise nothing is
    //! changed.
    [[nodiscard]] Outcome save(const Order &order, const Order &loaded);
    //! Removes an order with its lines if it still stands in the file as it was loaded. One that is gone is as wished.
    [[nodiscard]] Outcome remove(const Order &loaded);

    //! The newest orders whose number or customer contains the text, without regard to case and accents.
    [[nodiscard]] QList<FoundOrder> find(const QString &text, int atMost) const;
    //! The customers whose name or tax number contains the text, without regard to case and accents.
    [[nodiscard]] QList<FoundCustomer> findCustomers(const QString &text, int atMost) const;
    [[nodiscard]] QString nameOf(qint64 customer) const;
    //! Street, city and tax number of a customer on one line.
    [[nodiscard]] QString addressOf(qint64 customer) const;

private:
    [[nodiscard]] QString nextNumber(const QDate &date) const;

    QString m_connectionName;
    QSqlDatabase m_connection;
};

} // namespace orders
