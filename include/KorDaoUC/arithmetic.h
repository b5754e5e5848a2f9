// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/locale.h>

#include <QtCore/QVariant>

namespace kor {

//! The sum of two Variants. Null if either is; two texts are joined; a text beside a number is read as a number (error
//! 13 when it is none). The result has the wider of the two types and widens further instead of overflowing: Byte to
//! Integer to Long to Double, Single to Double. An amount plus a number is a Currency, a date plus a number a date (a
//! Double beyond the calendar). Error 6 when nothing is wide enough, 13 for a missing argument.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QVariant add(const QVariant &left, const QVariant &right,
                                                   const Locale &locale = Locale::systemDefault());

} // namespace kor
