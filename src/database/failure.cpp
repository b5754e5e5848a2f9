// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/failure.h"

#include "database/source.h"

#include <QtSql/QSqlError>

namespace kor {

RunTimeError databaseFailure(const QString &driverText, DatabaseTask task, const QString &statement)
{
    const QString doing =
        task == DatabaseTask::Open ? QStringLiteral("while opening: ") : QStringLiteral("while reading: ");
    return {ErrorNumber::DatabaseFailed,
            driverText.trimmed() + QStringLiteral(" (") + doing + statementExcerpt(statement) + QChar(u')')};
}

RunTimeError databaseFailure(const QSqlError &error, DatabaseTask task, const QString &statement)
{
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    return databaseFailure(text, task, statement);
}

RunTimeError connectionLost(DatabaseTask task, const QString &statement)
{
    return databaseFailure(QStringLiteral("The database connection is not open"), task, statement);
}

} // namespace kor
