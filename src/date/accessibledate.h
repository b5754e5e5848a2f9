// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

namespace kor {

//! Lets screen readers know date fields: a box with a drop-down, its date as the value, open or closed.
void makeDatesAccessible();

} // namespace kor
