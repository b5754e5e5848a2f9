// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>
#include <system_error>

namespace kor {

//! Why a file could not be written: the system's error, for programs that say it in their users' language, and what
//! the system says of it.
struct WriteFailure {
    std::error_code error; //!< the system's
    QString reason;        //!< in the system's words
};

//! Writes a file all or nothing: afterwards it holds these bytes, and they are on the disk, or it is as it was before
//! and the reason is given. A link to a file is written through. What is no regular file is refused, never replaced.
//! For programs that save what their users made: the toolkit's own QSaveFile replaces a device, and may take a full
//! disk for success.
[[nodiscard]] KORDAOUC_EXPORT std::optional<QString> writeWhole(const QString &fileName, QByteArrayView bytes);
//! The same, with the error itself. What is no regular file is `std::errc::is_a_directory` or `not_supported`.
[[nodiscard]] KORDAOUC_EXPORT std::optional<WriteFailure> tryWriteWhole(const QString &fileName, QByteArrayView bytes);

} // namespace kor
