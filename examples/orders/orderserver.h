// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

namespace orders {

//! Whether a place is a database on a server, postgresql://user@host:port/name, and no file.
[[nodiscard]] bool isServer(const QString &place);

//! Opens the connection to the orders of a server, which many desks share. A database without tables gets those of the
//! desk and the sample data; one of anyone else's is refused and left as it was. Behind "?" stand parameters of the
//! connection as the server's own programs take them (sslmode=require, host=/var/run/postgresql, ...). Raises
//! StoreError.
void openOrderServer(QSqlDatabase &connection, const QString &address);

} // namespace orders
