// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QIcon>

class QString;

namespace kor {

//! A control's picture in the form designer, for light and dark ground. No icon for an unknown name.
[[nodiscard]] QIcon controlIcon(const QString &control);

} // namespace kor
