// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <stdexcept>

namespace orders {

//! A failure of the database, in the clerk's words: what was being done, why it failed, and below that the driver's own
//! text for those who look after the program.
class StoreError : public std::runtime_error
{
public:
    StoreError(const QString &doing, const QString &reason);
    StoreError(const QString &doing, const QSqlError &error);
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    explicit StoreError(const QString &text);
    QString m_text;
};

//! The toolkit's driver for a server; without it, a connection is one to a file.
inline const QString serverDriver = QStringLiteral("QPSQL");

//! Opens a connection, or opens it again, as the desk works with it. False with the connection's lastError().
[[nodiscard]] bool openAgain(QSqlDatabase &connection);

//! Runs one statement with its values, or raises StoreError. A text is bound as a text, the empty one too; NULL is an
//! invalid value. A connection that the server has ended meanwhile is opened again, but in a transaction, of which the
//! server has kept nothing.
QSqlQuery run(const QSqlDatabase &connection, const QString &doing, const QString &statement,
              const QVariantList &values = {});

//! A change that takes place as a whole or not at all, while nobody else changes anything: a file is locked for other
//! writers, of a server the tables that are named.
class Transaction
{
public:
    Transaction(const QSqlDatabase &connection, QString doing, const QString &tables = {});
    ~Transaction();
    Q_DISABLE_COPY_MOVE(Transaction)

    void commit();

private:
    void rollBack();

    QSqlDatabase m_connection;
    QString m_doing;
    bool m_done = false;
};

} // namespace orders
