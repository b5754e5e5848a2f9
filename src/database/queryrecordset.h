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

//! Opens a statement through the toolkit's query, the way that works with every driver.
[[nodiscard]] std::unique_ptr<Recordset> openThroughQuery(QSqlDriver &driver, const QString &statement);

} // namespace kor
