// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grid/gridcolumn.h"
#include "number/numberrules.h"

#include <QtCore/QDate>
#include <QtCore/QVariant>

#include <optional>

namespace kor {

//! The texts that stand for one value: what its cell shows, and what the column of raw values holds where there is one.
struct CellTexts {
    QString shown;
    std::optional<QString> raw;

    bool operator==(const CellTexts &) const = default;
};

//! What texts are read by. Handed in, so the rules below know no clock and no system.
struct ValueRules {
    const NumberSigns &signs;
    QDate today;
};

//! The value of a cell, read from the raw text where there is one: a Double in a NUMBER column, a date in a DATE
//! column, the text in all others. Null for a cell that shows nothing, whatever its raw text, for an empty raw text,
//! and for one that is no number or no date there.
[[nodiscard]] QVariant valueOfCell(ColumnType type, const CellTexts &texts, const ValueRules &rules);

//! How a value is written: a number by the format, with the plain number as its raw text; a date as short date; all
//! else as rawTextOf() writes it. Null, a missing argument, Empty and "" are empty texts. Error 13 for what is no
//! number or no date in a column of those, 6 for a number that no Double holds.
[[nodiscard]] CellTexts textsOfValue(ColumnType type, const QString &format, const QVariant &value,
                                     const ValueRules &rules);

//! What the column of raw values gets for a value that an editor gives: a key with all of its digits, all else as CStr
//! writes it. Not for Null.
[[nodiscard]] QString rawTextOf(ColumnType type, const QVariant &value, const Locale &locale);

} // namespace kor
