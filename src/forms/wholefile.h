// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace kor {

//! Writes a file all or nothing: afterwards it holds these bytes, and they are on the disk, or it is as it was before
//! and the reason is given. A link to a file is written through. What is no regular file is refused, never replaced.
[[nodiscard]] std::optional<QString> writeWhole(const QString &fileName, QByteArrayView bytes);

} // namespace kor
