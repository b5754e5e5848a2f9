// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/placement.h"

#include <algorithm>

namespace kor {

QPoint placePopup(const QRect &screen, const QRect &control, QSize popup)
{
    // Edges are exclusive here: the first pixel that no longer belongs to the rectangle.
    const int screenRight = screen.x() + screen.width();
    const int screenBottom = screen.y() + screen.height();
    const int below = control.y() + control.height();
    const int above = control.y() - popup.height();

    const int left = std::max(screen.x(), std::min(control.x(), screenRight - popup.width()));
    int top = below;
    if (top + popup.height() > screenBottom)
        top = above;
    if (top < screen.y() || top + popup.height() > screenBottom)
        top = below < screen.y() ? screen.y() : screenBottom - popup.height();
    return {left, std::max(screen.y(), top)};
}

} // namespace kor
