// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "script.h"

#include "statement.h"

#include <QtCore/QFile>

namespace orders {

QStringList statementsOf(const QString &script, const QString &doing)
{
    QFile file(QStringLiteral(":/orders/data/%1.sql").arg(script));
    if (!file.open(QIODevice::ReadOnly))
        throw StoreError(doing, file.errorString());
    return QString::fromUtf8(file.readAll()).trimmed().split(QStringLiteral(";\n"));
}

void runScripts(const QSqlDatabase &connection, const QStringList &scripts, const QString &doing)
{
    for (const QString &script : scripts) {
        for (const QString &statement : statementsOf(script, doing))
            run(connection, doing, statement);
    }
}

int numberOf(const QSqlDatabase &connection, const QString &doing, const QString &statement)
{
    QSqlQuery query = run(connection, doing, statement);
    return query.next() ? query.value(0).toInt() : 0;
}

} // namespace orders
