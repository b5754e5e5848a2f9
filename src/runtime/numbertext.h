// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/decimal.h"

#include <QtCore/QString>

namespace kor {

//! The shortest text of a number. Fixed form while it needs no more than `precision` digits on either side of the
//! point, scientific form ("1E+16", "1,5E-07") beyond.
[[nodiscard]] QString numberText(const Decimal &number, int precision, QChar decimalSeparator);

} // namespace kor
