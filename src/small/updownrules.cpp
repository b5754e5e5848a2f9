// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/updownrules.h"

#include <KorDaoUC/convert.h>

#include <cmath>
#include <limits>

namespace kor {

namespace {

//! Beyond every range for a number that is too large to be read at all.
double wholeIn(const QString &text)
{
    if (const auto number = leadingNumber(text))
        return std::nearbyint(*number);
    const double huge = std::numeric_limits<double>::infinity();
    return text.trimmed().startsWith(u'-') ? -huge : huge;
}

} // namespace

std::optional<int> wholeNumberIn(const QString &text)
{
    const double whole = wholeIn(text);
    if (whole < std::numeric_limits<int>::min() || whole > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(whole);
}

QString textOnLeaving(const QString &text, const SpinRange &range)
{
    QString left = text;
    if (wholeIn(left) < range.min)
        left = CStr(range.min);
    if (wholeIn(left) > range.max)
        left = CStr(range.max);
    return left;
}

} // namespace kor
