// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <functional>

namespace orders::test {

//! Works on a file as any other program would.
inline void withDatabase(const QString &fileName, const std::function<void(QSqlQuery &)> &work)
{
    const QString name = QStringLiteral("someone");
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        connection.setDatabaseName(fileName);
        if (!connection.open())
            qFatal("%s", qPrintable(connection.lastError().text()));
        QSqlQuery query(connection);
        work(query);
    }
    QSqlDatabase::removeDatabase(name);
}

inline void run(QSqlQuery &query, const QString &statement)
{
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
}

inline void change(const QString &fileName, const QStringList &statements)
{
    withDatabase(fileName, [&](QSqlQuery &query) {
        for (const QString &statement : statements)
            run(query, statement);
    });
}

inline QList<QVariantList> rows(const QString &fileName, const QString &statement)
{
    QList<QVariantList> all;
    withDatabase(fileName, [&](QSqlQuery &query) {
        run(query, statement);
        while (query.next()) {
            QVariantList row;
            for (int column = 0; column < query.record().count(); ++column)
                row << query.value(column);
            all << row;
        }
    });
    return all;
}

} // namespace orders::test
