// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/database.h>

namespace kor {

Recordset::~Recordset() = default;

Database::Database(QObject *parent) : QObject(parent) {}

Database::~Database() = default;

} // namespace kor
