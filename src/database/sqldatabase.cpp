// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/failure.h"
#include "database/queryrecordset.h"
#include "database/source.h"
#include "database/sqliterecordset.h"

#include <KorDaoUC/sqldatabase.h>

#include <QtCore/QPointer>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>

#include <optional>

namespace kor {

// Holds the connection's driver, not the connection: a copy of the connection would count as a user of it and keep the
// host from removing it, and its name may be given to another one later.
struct Q_DECL_HIDDEN SqlDatabase::Private {
    QPointer<QSqlDriver> driver;
    std::optional<bool> stepsSqliteItself; // asked at the first recordset

    QString statementFor(const QString &source) const;
};

QString SqlDatabase::Private::statementFor(const QString &source) const
{
    if (!isTableName(source))
        return source;
    const QString name = findTable(source, driver->tables(QSql::AllTables)).value_or(source.trimmed());
    const QString quoted = driver->isIdentifierEscaped(name, QSqlDriver::TableName)
                               ? name
                               : driver->escapeIdentifier(name, QSqlDriver::TableName);
    return QStringLiteral("SELECT * FROM ") + quoted;
}

SqlDatabase::SqlDatabase(const QSqlDatabase &connection, QObject *parent)
    : Database(parent), d(std::make_unique<Private>())
{
    if (connection.isValid())
        d->driver = connection.driver();
}

SqlDatabase::SqlDatabase(const QString &connectionName, QObject *parent)
    : SqlDatabase(QSqlDatabase::database(connectionName, false), parent)
{
}

SqlDatabase::~SqlDatabase() = default;

std::unique_ptr<Recordset> SqlDatabase::OpenRecordset(const QString &source, int type)
{
    if (type != OpenForwardOnly)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    if (!d->driver || !d->driver->isOpen())
        throw connectionLost(DatabaseTask::Open, source);
    if (source.trimmed().isEmpty())
        throw databaseFailure(QStringLiteral("The source is empty"), DatabaseTask::Open, source);
    if (!d->stepsSqliteItself)
        d->stepsSqliteItself = sharesSqlite(*d->driver);
    const QString statement = d->statementFor(source);
    return *d->stepsSqliteItself ? openThroughSqlite(*d->driver, statement) : openThroughQuery(*d->driver, statement);
}

} // namespace kor
