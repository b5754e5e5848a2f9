// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QIcon>

namespace orders {

enum class Arrow { First, Previous, Next, Last };

//! The sign on a button that moves among the orders. The style's own pictures are black and point one way: this one has
//! the colour of the theme's texts and follows the direction of writing.
[[nodiscard]] QIcon arrowIcon(Arrow arrow);

} // namespace orders
