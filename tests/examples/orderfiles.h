// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orders/orderstore.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <functional>

namespace orders::test {

//! A new file with the sample data. It takes its time to be made, so that is done once and the file copied.
inline void makeFile(const QString &fileName)
{
    static const QTemporaryDir folder;
    const QString made = folder.filePath(QStringLiteral("fresh.sqlite"));
    if (!QFile::exists(made))
        const OrderStore created(made);
    if (!QFile::copy(made, fileName))
        qFatal("%s cannot be made", qPrintable(fileName));
}

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
