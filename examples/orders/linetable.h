// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orderline.h"

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

namespace orders {

//! For a SELECT of order_lines under the name l: the columns of a line, and the line that a row holds in them from its
//! column `first` on.
[[nodiscard]] QString lineColumns();
[[nodiscard]] OrderLine lineIn(const QSqlQuery &query, int first);
//! Puts these lines in place of the order's. To be called inside the order's transaction; raises StoreError.
void writeLines(const QSqlDatabase &connection, qint64 order, const QList<OrderLine> &lines);

} // namespace orders
