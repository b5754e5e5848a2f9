// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/datemask.h"
#include "runtime/numbermask.h"
#include "runtime/textmask.h"

#include <variant>

namespace kor {

//! The named formats that are no picture in disguise.
enum class NamedFormat { GeneralNumber, Currency, YesNo, TrueFalse, OnOff };

//! A mask that holds nothing but literal characters.
struct LiteralMask {
    NumberMask text;
};

//! A mask as Format uses it. Without any mask, the value's own text.
using CompiledMask = std::variant<std::monostate, NamedFormat, NumberMask, DateMask, TextMask, LiteralMask>;

//! The mask compiled, from the thread's own cache: nothing is shared and nothing locked. The reference holds until
//! the next call on the same thread.
[[nodiscard]] const CompiledMask &compiledMask(QStringView mask);
//! The same for a date or time pattern of the system.
[[nodiscard]] const DateMask &systemPattern(QStringView pattern);

} // namespace kor
