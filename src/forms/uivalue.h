// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/uikind.h"
#include "forms/uixml.h"

#include <optional>

namespace kor {

//! The element that holds the setting in a .ui file; nothing when a .ui file can't hold this value.
[[nodiscard]] std::optional<UiElement> uiValue(const UiSetting &setting, const QVariant &value);

//! A value of a .ui file, or why a form file can't hold it.
struct UiValueResult {
    std::optional<QVariant> value;
    QString reason;
};

//! The value of the setting that the element holds, in the type in which controls save it.
[[nodiscard]] UiValueResult settingValue(const UiSetting &setting, const UiElement &element);

//! The value after the form designer has saved it: it keeps fifteen decimals of a number, and line feeds only.
[[nodiscard]] QVariant asDesignerSaves(const QVariant &value);

//! Whether two values of .ui files differ by what the form designer keeps at most.
[[nodiscard]] bool isSameUiValue(const QVariant &left, const QVariant &right);

//! Whether two values are the same in the text of a form file.
[[nodiscard]] bool isSameInText(const QVariant &left, const QVariant &right);

} // namespace kor
