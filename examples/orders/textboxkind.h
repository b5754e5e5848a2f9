// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/FormBuilder>

namespace orders {

//! Plain text fields for form files: the toolkit's own line edit under the name TextBox, with `Text`, `Locked` and
//! `MaxLength`. A locked one only shows its text and is no stop of the Tab key.
[[nodiscard]] kor::FormItemKind textBoxKind();

} // namespace orders
