// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QRect>

#include <algorithm>

namespace kor {

//! Where a field and what stands at its end go. In a right-to-left form the end is on the left.
struct FieldLayout {
    QRect field;
    QRect end;
};

//! Divides an area between a field and its end, which gets the width it wants, but never more than half.
[[nodiscard]] inline FieldLayout layoutField(const QRect &area, int endWidth, Qt::LayoutDirection direction)
{
    const int end = std::clamp(endWidth, 0, std::max(0, area.width() / 2));
    const int field = area.width() - end;
    const int fieldLeft = direction == Qt::LeftToRight ? area.left() : area.left() + end;
    const int endLeft = direction == Qt::LeftToRight ? area.left() + field : area.left();
    return {QRect(fieldLeft, area.top(), field, area.height()), QRect(endLeft, area.top(), end, area.height())};
}

} // namespace kor
