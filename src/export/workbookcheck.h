// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <optional>

namespace kor {

//! How many cells the first sheet of a workbook has. Nothing for a workbook that is not whole. What writes workbooks
//! does not notice when its temporary files find no room, and packs what is left of them.
[[nodiscard]] std::optional<qint64> cellsInWorkbook(QByteArrayView workbook);

} // namespace kor
