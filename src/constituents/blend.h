// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QColor>

namespace kor {

//! The colour halfway between two.
[[nodiscard]] inline QColor between(const QColor &one, const QColor &other)
{
    return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2, (one.blue() + other.blue()) / 2);
}

} // namespace kor
