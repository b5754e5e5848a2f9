// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fileplace.h"

#include <QtCore/QFile>
#include <QtCore/QVariant>
#include <QtSql/QSqlDriver>

#include <sys/stat.h>

namespace orders {

namespace {

constexpr const char *ownFile = "ownFile"; // known to the connection itself, of which there are many handles

//! What the system knows the file by that stands under the connection's name for it; "-" while there is none.
QString fileOf(const QSqlDatabase &connection)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(connection.databaseName()).constData(), &status) != 0)
        return QStringLiteral("-");
    return QStringLiteral("%1:%2").arg(status.st_dev).arg(status.st_ino);
}

} // namespace

void rememberFile(const QSqlDatabase &connection) { connection.driver()->setProperty(ownFile, fileOf(connection)); }

bool hasItsFile(const QSqlDatabase &connection)
{
    const QVariant own = connection.driver()->property(ownFile);
    return !own.isValid() || own.toString() == fileOf(connection);
}

} // namespace orders
