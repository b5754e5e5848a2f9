// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/decimal.h"

#include <KorDaoUC/currency.h>
#include <KorDaoUC/runtimeerror.h>

#include <cmath>

namespace kor {

Currency Currency::fromDouble(double value)
{
    if (!std::isfinite(value))
        throw RunTimeError(ErrorNumber::Overflow);
    const auto result = Decimal::fromDouble(value).toCurrency();
    if (!result)
        throw RunTimeError(ErrorNumber::Overflow);
    return *result;
}

Currency Currency::operator+(Currency other) const
{
    qint64 sum = 0;
    if (qAddOverflow(m_units, other.m_units, &sum))
        throw RunTimeError(ErrorNumber::Overflow);
    return Currency(sum);
}

Currency Currency::operator-(Currency other) const
{
    qint64 difference = 0;
    if (qSubOverflow(m_units, other.m_units, &difference))
        throw RunTimeError(ErrorNumber::Overflow);
    return Currency(difference);
}

} // namespace kor
