// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringView>

namespace kor {

//! Whether a name begins with what the user has typed, without regard to case and accents: "lod" finds "Łódź". What
//! is typed with accents finds the names without them, too.
[[nodiscard]] bool beginsAsTyped(QStringView name, QStringView typed);

} // namespace kor
