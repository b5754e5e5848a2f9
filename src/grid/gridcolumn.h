// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace kor {

//! Which editor a column's cells have. The numbers are those that the grid surface keeps with the column.
enum class ColumnType : short { Text = 0, Number = 1, Click = 2, Combo = 3, Date = 4 };

//! The type of a keyword, "TEXT", "NUMBER", "CLICK", "COMBO" or "DATE", written exactly so. Any other word is a text.
[[nodiscard]] ColumnType columnType(QStringView keyword);
[[nodiscard]] QString keywordOf(ColumnType type);

//! What is kept of a column beside what the grid surface keeps itself: type, title and width.
struct GridColumn {
    bool isLocked = false;
    short alignment = 0; //!< as AlignmentType
    QString format = QStringLiteral("#,##0.00");
    int color = 0;       //!< of the text
    int maxLength = 0;   //!< of a text that is typed; 0 is no limit
    QString source;      //!< what fills the drop-down list
    QString dictionary;  //!< the name of the dictionary, for the host alone
    int valueColumn = 0; //!< the column that takes the raw value; 0 is none
    bool isWrapped = false;

    bool operator==(const GridColumn &) const = default;
};

} // namespace kor
