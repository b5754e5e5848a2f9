// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/popupplace.h"

#include <algorithm>

namespace kor {

QRect ontoScreen(const QRect &popup, const QRect &screen)
{
    const QSize size = popup.size().boundedTo(screen.size());
    return {{std::clamp(popup.x(), screen.x(), screen.x() + screen.width() - size.width()),
             std::clamp(popup.y(), screen.y(), screen.y() + screen.height() - size.height())},
            size};
}

} // namespace kor
