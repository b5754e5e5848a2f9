// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/gridexport.h>

#include <QtCore/QByteArray>

namespace kor {

//! What spreadsheets of a country expect between the cells of a line: a semicolon where the comma is in the numbers.
[[nodiscard]] QChar listSeparator(const Locale &locale);

//! A text of the table as a cell of the file. It is quoted where it has a separator, a quote, a line break or a blank
//! at either end.
[[nodiscard]] QString csvCell(const QString &text, QChar separator);

//! Whether a spreadsheet would take a text for a formula.
[[nodiscard]] bool looksLikeFormula(const QString &text, const Locale &locale);

//! A value as its text: numbers bare, with the locale's separator; dates as its short date.
[[nodiscard]] QString csvText(const QVariant &value, CsvFormulas formulas, const Locale &locale);

//! The whole file, in UTF-8 with a byte order mark, without which spreadsheets take it for another encoding. Nothing
//! when it was stopped.
[[nodiscard]] std::optional<QByteArray> csvOf(const ExportTable &table, const ExportSettings &settings);

} // namespace kor
