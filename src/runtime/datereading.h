// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/serial.h"

#include <KorDaoUC/export.h>
#include <KorDaoUC/locale.h>

#include <QtCore/QStringView>

#include <optional>

namespace kor {

//! The date, the time or both that a text says: numbers or month names in the locale's order, or in another order
//! when that gives no date. A time alone belongs to day zero. Nothing when the text is no date.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT std::optional<Moment> readDate(QStringView text, const Locale &locale);

//! The four-digit year that a year below 100 stands for: 2000 to 2029, then 1930 to 1999.
[[nodiscard]] constexpr int fullYear(int year)
{
    return year < 0 || year > 99 ? year : year < 30 ? 2000 + year : 1900 + year;
}

} // namespace kor
