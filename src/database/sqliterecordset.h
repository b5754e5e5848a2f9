// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QSqlDriver;
QT_END_NAMESPACE

namespace kor {

class Recordset;

//! Whether the driver's statements may be stepped by this library's own SQLite: the driver is SQLite's, its connection
//! is open, and both use one and the same copy of SQLite (a driver may carry a private one). Constant for a driver.
[[nodiscard]] bool sharesSqlite(QSqlDriver &driver);

//! Opens a statement on a driver that sharesSqlite(). The toolkit prepares and owns the statement, so that closing the
//! connection takes it away in good order; only the rows are fetched past the toolkit, which takes half the time.
[[nodiscard]] std::unique_ptr<Recordset> openThroughSqlite(QSqlDriver &driver, const QString &statement);

} // namespace kor
