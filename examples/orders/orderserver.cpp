// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderserver.h"

#include "script.h"
#include "statement.h"

#include <QtCore/QUrl>
#include <QtCore/QUrlQuery>
#include <QtSql/QSqlError>

namespace orders {

namespace {

constexpr int currentVersion = 3; // as in schema-server.sql

//! The toolkit takes some parameters by themselves, and the others in one text.
void setAddress(QSqlDatabase &connection, const QUrl &address)
{
    connection.setHostName(address.host());
    connection.setPort(address.port());
    connection.setDatabaseName(address.path().mid(1));
    connection.setUserName(address.userName(QUrl::FullyDecoded));
    connection.setPassword(address.password(QUrl::FullyDecoded));
    QStringList others;
    const QUrlQuery query(address);
    for (const auto &[key, value] : query.queryItems(QUrl::FullyDecoded)) {
        if (key == u"host") // a folder with the server's socket is no host of an address
            connection.setHostName(value);
        else if (key == u"user")
            connection.setUserName(value);
        else
            others << key + u'=' + value;
    }
    if (!query.hasQueryItem(QStringLiteral("connect_timeout")))
        others << QStringLiteral("connect_timeout=5"); // seconds; one that is off would keep the clerk for minutes
    connection.setConnectOptions(others.join(u';'));
}

//! Brings the database up to date while no other desk can come in between.
void bringUpToDate(const QSqlDatabase &connection, const QString &doing)
{
    const QString here = QStringLiteral("SELECT count(*) FROM information_schema.tables "
                                        "WHERE table_schema = current_schema()");
    Transaction transaction(connection, doing);
    run(connection, doing, QStringLiteral("SELECT pg_advisory_xact_lock(1332896882)"));
    if (numberOf(connection, doing, here) == 0) {
        runScripts(connection, {QStringLiteral("schema-server"), QStringLiteral("seed"), QStringLiteral("ids-server")},
                   doing);
        transaction.commit();
        return;
    }
    if (numberOf(connection, doing, here + QStringLiteral(" AND table_name = 'order_desk'")) == 0)
        throw StoreError(doing, QStringLiteral("To nie jest baza zamówień. Pozostała bez zmian."));
    if (numberOf(connection, doing, QStringLiteral("SELECT version FROM order_desk")) > currentVersion)
        throw StoreError(doing, QStringLiteral("Ta baza pochodzi z nowszej wersji programu. Pozostała bez zmian."));
}

} // namespace

bool isServer(const QString &place) { return place.startsWith(u"postgresql://") || place.startsWith(u"postgres://"); }

void openOrderServer(QSqlDatabase &connection, const QString &address)
{
    const QUrl url(address);
    const QString doing =
        QStringLiteral("Otwarcie bazy %1").arg(url.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery));
    if (!url.isValid() || url.path().size() < 2)
        throw StoreError(doing, QStringLiteral("Adres nie wskazuje bazy: postgresql://użytkownik@serwer/baza."));
    setAddress(connection, url);
    if (!openAgain(connection))
        throw StoreError(doing, connection.lastError());
    bringUpToDate(connection, doing);
}

} // namespace orders
