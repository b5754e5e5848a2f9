// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsums.h"

#include <KorDaoUC/arithmetic.h>
#include <KorDaoUC/compare.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <limits>

namespace kor {

namespace {

bool counts(const QVariant &value) { return !isNull(value) && variantType(value) != VariantType::String; }

//! The greatest of a number and the values in the rows behind the first ones.
float greatestBehind(int row, float greatest, int count, const RowValues &valueAt, const Locale &locale)
{
    while (++row <= count) {
        const QVariant value = valueAt(row);
        if (counts(value) && compare(value, greatest) == std::partial_ordering::greater)
            greatest = CSng(value, locale);
    }
    return greatest;
}

} // namespace

float sumOfRows(int count, const RowValues &valueAt, const Locale &locale)
{
    // Kept: the rows are counted in an Integer, and programs rely on the error instead of a sum of the first part
    if (count > std::numeric_limits<short>::max())
        throw RunTimeError(ErrorNumber::Overflow);
    float sum = 0;
    for (int row = 1; row <= count; ++row) {
        if (const QVariant value = valueAt(row); counts(value))
            sum = CSng(add(sum, value, locale), locale); // Kept: Single after every step, as the sums in old reports
    }
    return sum;
}

float greatestOfRows(int count, const RowValues &valueAt, const Locale &locale)
{
    // Kept: running numbers start behind 0, so it is the floor
    return greatestBehind(0, 0, count, valueAt, locale);
}

float GreatestInColumn::of(int column, int count, const RowValues &valueAt, const Locale &locale)
{
    const bool goesOn = column == m_column && count >= m_count;
    const float greatest =
        goesOn ? greatestBehind(m_count, m_greatest, count, valueAt, locale) : greatestOfRows(count, valueAt, locale);
    m_column = column;
    m_count = count;
    m_greatest = greatest;
    return greatest;
}

void GreatestInColumn::changed(int row)
{
    if (row <= m_count)
        m_column = -1;
}

} // namespace kor
