// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

namespace orders {

//! Opens the connection to a file of orders. A file that is new, or was left half made, gets the tables and the sample
//! data; one of an older program is brought up to date. A file of anyone else's is refused and left as it was, to the
//! byte. Raises StoreError.
void openOrderFile(QSqlDatabase &connection, const QString &fileName);

} // namespace orders
