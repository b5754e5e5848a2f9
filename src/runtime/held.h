// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QVariant>

namespace kor {

//! What a Variant holds, of the type that it is known to be of: the toolkit's own way copies it and asks once more.
template <typename T>
[[nodiscard]] const T &held(const QVariant &value)
{
    return *static_cast<const T *>(value.constData());
}

} // namespace kor
