// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/uikind.h"
#include "forms/uiwidget.h"

#include <KorDaoUC/uifile.h>

namespace kor {

namespace UiKeys {

inline constexpr QLatin1String formName("Form");
inline constexpr QLatin1String dotsProperty("korDotsPerInch");
inline constexpr QLatin1String layoutKey("ui.layout");
inline constexpr QLatin1String moreKey("ui.more");
inline constexpr QLatin1String classKey("ui.class");
inline constexpr QLatin1String propertyKey("ui.property.");
inline constexpr QLatin1String dynamicKey("ui.dynamic.");
inline constexpr QLatin1String attributeKey("ui.attribute.");
inline constexpr QLatin1String sectionKey("ui.section.");
inline constexpr QLatin1String buddyKey("ui.property.buddy");
inline constexpr double usualDots = 96;

} // namespace UiKeys

//! The name of the class that uic makes of a form of this name: one that C++ takes.
[[nodiscard]] QString uiClassName(const QString &form);

//! UiFile::fromForm() and UiFile::toForm(), by what is known of the kinds of block.
[[nodiscard]] UiFile::Text uiFromForm(const FormBlock &form, const UiKinds &kinds, const UiFile::Options &options);
[[nodiscard]] UiFile::Form formFromUi(QByteArrayView text, const UiKinds &kinds, const UiFile::Options &options);

} // namespace kor
