// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringView>

namespace kor {

//! The order of a dictionary: without regard to case, letters with marks behind the bare letter (a, ą, b), hyphens and
//! apostrophes only where nothing else differs. Negative, zero or positive.
[[nodiscard]] int compareByDictionary(QStringView left, QStringView right);

} // namespace kor
