// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QVarLengthArray>

namespace kor {

//! Where masks write to: most results fit without an allocation.
using MaskOutput = QVarLengthArray<char16_t, 96>;

inline void appendText(QStringView text, MaskOutput &out) { out.append(text.utf16(), text.size()); }

[[nodiscard]] inline QString textOf(const MaskOutput &out)
{
    return QString(reinterpret_cast<const QChar *>(out.constData()), out.size());
}

} // namespace kor
