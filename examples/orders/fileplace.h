// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtSql/QSqlDatabase>

namespace orders {

//! Keeps in mind which file an open connection works on.
void rememberFile(const QSqlDatabase &connection);

//! Whether that file is still the one under its name. One that was deleted, moved or replaced can be written to all the
//! same, and nobody would ever find there what was saved. True for connections that were not told to remember.
[[nodiscard]] bool hasItsFile(const QSqlDatabase &connection);

} // namespace orders
