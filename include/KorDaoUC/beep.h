// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <functional>

namespace kor {

//! The sound that answers a refused key.
KORDAOUC_EXPORT void beep();

//! Replaces the sound, for hosts with a quiet or a visible bell. An empty function brings the system's beep back.
KORDAOUC_EXPORT void setBeepHandler(std::function<void()> handler);

} // namespace kor
