// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QSqlError;
QT_END_NAMESPACE

namespace kor {

enum class DatabaseTask { Open, Read };

//! Error 3146: the driver's text and, behind it, what was being done with which statement.
[[nodiscard]] RunTimeError databaseFailure(const QString &driverText, DatabaseTask task, const QString &statement);
[[nodiscard]] RunTimeError databaseFailure(const QSqlError &error, DatabaseTask task, const QString &statement);

//! Error 3146 for a connection that the host has closed or removed.
[[nodiscard]] RunTimeError connectionLost(DatabaseTask task, const QString &statement);

} // namespace kor
