// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mdb/contents.h"

namespace kor::mdb {

//! A name as SQLite takes it, whatever is in it.
[[nodiscard]] QString quoted(const QString &name);

//! The statement that makes a table, with its primary key and its relations to others.
[[nodiscard]] QString createTable(const Table &table, const QList<Relation> &relations);
//! The statement for an index that is no primary key; unique only if it is asked for, since SQLite may tell texts apart
//! otherwise than the file did.
[[nodiscard]] QString createIndex(const Table &table, const Index &index, bool isUnique);
//! The statement that adds a row, with a place for each column.
[[nodiscard]] QString insertRow(const Table &table);

//! A value as it is bound: dates as ISO texts, a Single as the Double of the same digits, all else as it is.
[[nodiscard]] QVariant boundValue(Type type, const QVariant &value);

} // namespace kor::mdb
