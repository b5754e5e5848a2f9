// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QString>

namespace kor {

//! How a sheet writes numbers that are shown through a mask. Sheets have the same signs for digits, but quote every
//! other character. "General" where a mask is none of numbers.
[[nodiscard]] QString sheetFormatOfNumbers(const QString &mask, const Locale &locale);

//! How a sheet writes short dates, with or without the time.
[[nodiscard]] QString sheetFormatOfDates(const Locale &locale, bool hasTime);

//! A name that a sheet may have: 31 characters, none of [ ] : * ? / \ and no apostrophe at either end.
[[nodiscard]] QString sheetName(const QString &wanted);

} // namespace kor
