// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QRect>

namespace kor {

//! Where a pop-up opens: with its left edge at the control's and directly below it; moved left where the screen ends,
//! above the control where there is no room below. Where there is room neither below nor above, as far down as the
//! screen goes. Its upper left corner is on the screen in every case.
[[nodiscard]] QPoint placePopup(const QRect &screen, const QRect &control, QSize popup);

} // namespace kor
