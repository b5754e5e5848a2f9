// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/locale.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace kor {

//! Writes a value through a mask: a named format ("Standard", "Percent", "Currency", "Short Date", ...) or a picture
//! of up to four sections ("#,##0.00;(#,##0.00)"). A text that reads as a number or a date is formatted as such.
//! Null gives an empty text, unless the mask has a section for it. Halves are rounded away from zero. A text that is
//! nothing to the mask stays as it is. Error 6 for a number beyond the calendar in a date mask.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QString Format(const QVariant &value, QStringView mask = {},
                                                     const Locale &locale = Locale::systemDefault());

} // namespace kor
