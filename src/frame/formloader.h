// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

namespace kor {

//! Whether the toolkit's loader of .ui files is what sets a property just now: asked inside the call. False where the
//! callers can't be seen. Slow; to be asked only when something went wrong.
[[nodiscard]] bool isFormLoaderSettingProperty();

} // namespace kor
