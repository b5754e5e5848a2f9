// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>
#include <QtSql/QSqlDatabase>

namespace orders {

//! The statements of one of the scripts in data/. Raises StoreError.
[[nodiscard]] QStringList statementsOf(const QString &script, const QString &doing);

//! Runs scripts one behind the other. Raises StoreError.
void runScripts(const QSqlDatabase &connection, const QStringList &scripts, const QString &doing);

//! The number that a statement gives, 0 for none. Raises StoreError.
[[nodiscard]] int numberOf(const QSqlDatabase &connection, const QString &doing, const QString &statement);

} // namespace orders
