// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QStringView>

namespace kor {

//! Whether the text matches a pattern of ? * # [list] [!list]. A malformed pattern raises error 93.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool Like(QStringView text, QStringView pattern);

} // namespace kor
