// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/database.h>

QT_BEGIN_NAMESPACE
class QSqlDatabase;
QT_END_NAMESPACE

namespace kor {

//! A Database over an open connection of the toolkit: SQLite, PostgreSQL, ODBC or any other driver.
//!
//! The connection stays the host's: it is neither opened nor closed here, and the host may close or remove it at any
//! time. Recordsets that are open then, and those asked for later, raise error 3146. Use it in the connection's thread.
//! Several recordsets may be open at once where the driver can do it (SQLite); a driver that streams one statement at a
//! time (PostgreSQL) drops the older one, whose next step is error 3146.
//!
//! A source whose first word is not one that begins a statement is taken for the name of a table or view, blanks and
//! national letters included ("Order Details"); it is quoted as the driver quotes.
class KORDAOUC_EXPORT SqlDatabase final : public Database
{
    Q_OBJECT
public:
    explicit SqlDatabase(const QSqlDatabase &connection, QObject *parent = nullptr);
    //! The connection that was added under this name. One that does not exist is an error at the first OpenRecordset().
    explicit SqlDatabase(const QString &connectionName, QObject *parent = nullptr);
    ~SqlDatabase() override;

    //! Forward-only recordsets only. A statement that gives no columns (an UPDATE, say) is refused with error 3146;
    //! drivers other than SQLite's have run it by then.
    [[nodiscard]] std::unique_ptr<Recordset> OpenRecordset(const QString &source, int type = OpenForwardOnly) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace kor
