// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/currency.h>
#include <KorDaoUC/export.h>
#include <KorDaoUC/locale.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace kor {

//! The number that a text begins with, 0 when there is none. Blanks are skipped; "." is the decimal point in every
//! locale; reading stops at the first character that can't belong to the number. "&HFF" and "&O17" are read too. Error
//! 6 for a number that no Double holds.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT double Val(QStringView text);

//! Val() for texts of a user, where nothing is raised: nothing for a number that no Double holds.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT std::optional<double> leadingNumber(QStringView text);

//! Whether the value is a number or a text that the conversions would take for one. Null is not numeric.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool IsNumeric(const QVariant &value,
                                                     const Locale &locale = Locale::systemDefault());

//! The text of a value: numbers in their shortest form with the locale's decimal separator. Null raises error 94.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QString CStr(const QVariant &value,
                                                   const Locale &locale = Locale::systemDefault());

//! Conversions by the locale's rules. Error 13 for what is no number, 6 for one that does not fit, 94 for Null. Halves
//! become the even whole number in CInt and CLng; CCur rounds them away from zero.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT float CSng(const QVariant &value, const Locale &locale = Locale::systemDefault());
//! A Double; errors as CSng().
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT double CDbl(const QVariant &value,
                                                  const Locale &locale = Locale::systemDefault());
//! A 16-bit Integer, halves rounded to the even one; errors as CSng().
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT short CInt(const QVariant &value, const Locale &locale = Locale::systemDefault());
//! A 32-bit Long, halves rounded to the even one; errors as CSng().
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT int CLng(const QVariant &value, const Locale &locale = Locale::systemDefault());
//! True for every number but 0; reads the words of the locale and English ones, too. Errors as CSng().
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool CBool(const QVariant &value, const Locale &locale = Locale::systemDefault());
//! An exact amount, rounded to four decimals; errors as CSng().
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT Currency CCur(const QVariant &value,
                                                    const Locale &locale = Locale::systemDefault());

} // namespace kor
