// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/uikind.h"

namespace kor {

//! What conversions know of the form, of what form files hold besides the controls, and of all registered controls.
//! Made anew when a control was registered meanwhile.
[[nodiscard]] const UiKinds &uiKinds();

} // namespace kor
