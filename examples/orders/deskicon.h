// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QIcon>

namespace orders {

//! The sign of the program on its windows and wherever the desktop lists them: an order that is ticked off.
[[nodiscard]] QIcon deskIcon();

} // namespace orders
