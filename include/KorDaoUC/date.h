// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/locale.h>

#include <QtCore/QDate>
#include <QtCore/QVariant>

namespace kor {

// Dates run from 1 January 100 to 31 December 9999. Day 0 is 30 December 1899; a time alone is a time of day 0.

//! Whether the value is a date or a text that reads as one in the locale. A number is no date.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool IsDate(const QVariant &value,
                                                  const Locale &locale = Locale::systemDefault());

//! The date of a text or date, without its time. Error 13 for what is no date, 94 for Null.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QDate DateValue(const QVariant &value,
                                                      const Locale &locale = Locale::systemDefault());

//! The day that lies month - 1 months and day - 1 days after the first of the year; both may be out of their range or
//! negative. Years 0 to 29 count as 2000 to 2029, 30 to 99 as 1930 to 1999. Error 5 when the day is not within the
//! years 100 to 9999.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QDate DateSerial(int year, int month, int day);

//! Date with its time: a QDate when the time is midnight, a QDateTime otherwise. A number is taken as a day number, a
//! text that reads as no date as the number it holds. Error 13, 6 (out of range) or 94 (Null).
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QVariant CDate(const QVariant &value,
                                                     const Locale &locale = Locale::systemDefault());

} // namespace kor
