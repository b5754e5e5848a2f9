// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/compare.h>
#include <KorDaoUC/export.h>

#include <QtCore/QStringView>

namespace kor {

//! Whether the whole text matches a pattern: ? is any character, # a digit 0 to 9, * any number of characters, [list]
//! one of the list, [!list] one that is not in it; ranges (a-z) ascend. A malformed pattern raises error 93, whatever
//! the text. With TextComparison::Text, case makes no difference, in ranges either.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool Like(QStringView text, QStringView pattern,
                                                TextComparison mode = TextComparison::Binary);

} // namespace kor
