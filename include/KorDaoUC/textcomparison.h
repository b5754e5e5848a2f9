// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

namespace kor {

//! How texts are compared: by code unit, or as a dictionary would, without regard to case.
enum class TextComparison { Binary, Text };

} // namespace kor
