// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mdb/contents.h"

#include <memory>

namespace kor::mdb {

//! The contents of an .mdb file, by libmdb. Error 3024 for a file that cannot be opened, 3343 for one that is none.
[[nodiscard]] std::unique_ptr<Contents> openJetFile(const QString &fileName);

} // namespace kor::mdb
