// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace kor {

//! Whether a recordset's source is the bare name of a table rather than a statement.
[[nodiscard]] bool isTableName(QStringView source);

//! The table that a name means: the exact one, otherwise the first that differs in the case of letters only (databases
//! fold unquoted names each in its own way), otherwise nothing.
[[nodiscard]] std::optional<QString> findTable(QStringView name, const QStringList &tables);

//! The beginning of a statement on one line, for messages.
[[nodiscard]] QString statementExcerpt(QStringView statement);

} // namespace kor
