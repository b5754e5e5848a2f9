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
    float greatest = 0; // Kept: running numbers start behind it, so it is the floor
    for (int row = 1; row <= count; ++row) {
        const QVariant value = valueAt(row);
        if (counts(value) && compare(value, greatest) == std::partial_ordering::greater)
            greatest = CSng(value, locale);
    }
    return greatest;
}

} // namespace kor
