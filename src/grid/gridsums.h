// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QVariant>

#include <functional>

namespace kor {

//! The value in a data row, 1-based.
using RowValues = std::function<QVariant(int row)>;

//! The sum of the values in rows 1 to count, in single precision after every step; what is Null or a text adds nothing.
//! Error 6 for more rows than an Integer can count, before any is read, and for a sum that no Single holds.
[[nodiscard]] float sumOfRows(int count, const RowValues &valueAt, const Locale &locale);

//! The greatest of the values, in single precision, and never less than 0; what is Null or a text does not count.
[[nodiscard]] float greatestOfRows(int count, const RowValues &valueAt, const Locale &locale);

//! The greatest value of one column, remembered: rows that come behind are looked at alone, so that numbering rows one
//! by one takes no longer the more there are.
class GreatestInColumn
{
public:
    //! As greatestOfRows().
    [[nodiscard]] float of(int column, int count, const RowValues &valueAt, const Locale &locale);
    //! This row, and maybe others below, may hold another value than before.
    void changed(int row);

private:
    int m_column = -1;
    int m_count = 0; //!< so many rows were looked at
    float m_greatest = 0;
};

} // namespace kor
