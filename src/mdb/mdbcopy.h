// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mdb/contents.h"

#include <KorDaoUC/mdbfile.h>

namespace kor::mdb {

//! Copies everything into an SQLite database, in one transaction. Error 3146 when that refuses.
[[nodiscard]] MdbReading copyInto(const QSqlDatabase &target, Contents &contents, const MdbProgress &mayGoOn);

} // namespace kor::mdb
