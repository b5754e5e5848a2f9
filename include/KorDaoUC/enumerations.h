// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QObject>

namespace kor {

Q_NAMESPACE_EXPORT(KORDAOUC_EXPORT)

//! Whether a field has a line around it.
enum class BorderStyleType : int { None = 0, FixedSingle = 1 };
Q_ENUM_NS(BorderStyleType)

//! Whether a field looks flat or sunk.
enum class AppearanceType : int { Flat = 0, A3D = 1 };
Q_ENUM_NS(AppearanceType)

//! Where the text of a field stands.
enum class AlignmentType : int { Left_Justify = 0, Right_Justify = 1, Center = 2 };
Q_ENUM_NS(AlignmentType)

//! Where an editor would open; forms keep it.
enum class OpenDirectionType : int { Up = 0, Down = 1 };
Q_ENUM_NS(OpenDirectionType)

#ifndef Q_MOC_RUN
// The form designer saves a value without its enumeration's name: kor::Center.
using enum BorderStyleType;
using enum AppearanceType;
using enum AlignmentType;
using enum OpenDirectionType;
#endif

} // namespace kor
