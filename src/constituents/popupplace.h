// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QRect>

namespace kor {

//! What becomes of a pop-up that would reach over the screen: it is moved back onto it, and made no larger than it. The
//! user could neither see nor close the rest.
[[nodiscard]] QRect ontoScreen(const QRect &popup, const QRect &screen);

} // namespace kor
