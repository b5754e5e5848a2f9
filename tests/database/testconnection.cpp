// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/testconnection.h"

#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QTest>

TestConnection::TestConnection(Engine engine)
{
    static int number = 0;
    m_name = QStringLiteral("test%1").arg(++number);
    const bool isSqlite = engine == Engine::Sqlite;
    QSqlDatabase connection =
        QSqlDatabase::addDatabase(isSqlite ? QStringLiteral("QSQLITE") : QStringLiteral("QPSQL"), m_name);
    if (isSqlite) {
        connection.setDatabaseName(fileName());
    } else {
        connection.setHostName(postgresFolder());
        connection.setUserName(QStringLiteral("kor"));
        connection.setDatabaseName(QStringLiteral("postgres"));
    }
    if (!connection.open())
        QFAIL(qPrintable(connection.lastError().text()));
    if (isSqlite)
        run({"PRAGMA synchronous = OFF"}); // nobody pulls the plug on a test
    else
        run({"SET client_min_messages = warning", "DROP SCHEMA IF EXISTS public CASCADE", "CREATE SCHEMA public"});
}

TestConnection::~TestConnection()
{
    if (QSqlDatabase::contains(m_name))
        remove();
}

QString TestConnection::postgresFolder() { return qEnvironmentVariable("KOR_TEST_POSTGRES"); }

void TestConnection::run(std::initializer_list<const char *> statements) const
{
    QSqlQuery query(connection());
    for (const char *const statement : statements)
        QVERIFY2(query.exec(QString::fromUtf8(statement)), qPrintable(query.lastError().text()));
}
