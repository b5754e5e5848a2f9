// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/spinrange.h"

#include <algorithm>

namespace kor {

bool SpinRange::contains(int value) const { return value == nearest(value); }

int SpinRange::nearest(int value) const { return std::clamp(value, std::min(min, max), std::max(min, max)); }

int SpinRange::stepped(int value, int steps) const
{
    const long long way = static_cast<long long>(steps) * increment * (max < min ? -1 : 1);
    const long long low = std::min(min, max);
    const long long high = std::max(min, max);
    return static_cast<int>(std::clamp(value + way, low, high));
}

} // namespace kor
