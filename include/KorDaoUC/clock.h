// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QDate>

#include <functional>

namespace kor::Clock {

//! Today, as every control understands it.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QDate today();

//! Replaces the source of today's date, for tests and for hosts with a business day of their own. An empty function
//! brings the system's clock back. It is asked in the thread that needs the date.
KORDAOUC_RUNTIME_EXPORT void setSource(std::function<QDate()> source);

} // namespace kor::Clock
