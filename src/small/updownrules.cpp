// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/updownrules.h"

#include <KorDaoUC/convert.h>

#include <cmath>
#include <limits>

namespace kor {

namespace {

double wholeIn(const QString &text) { return std::nearbyint(Val(text)); }

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
