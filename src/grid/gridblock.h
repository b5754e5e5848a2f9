// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace kor {

// Cells as spreadsheets have them on the clipboard: a line for each row, tabs between the cells. A cell with a tab or a
// line break in it is quoted, its quotes doubled.

[[nodiscard]] QString textOfBlock(const QList<QStringList> &rows);

//! A line break at the end is that of the last row. Quotes that quote nothing are the cell's own: 3" is three inches.
[[nodiscard]] QList<QStringList> blockOfText(const QString &text);

//! Whether the blanks in a number, if any, stand between thousands: "1 234,50", but not "12 34".
[[nodiscard]] bool isGroupedByThousands(const QString &number);

} // namespace kor
