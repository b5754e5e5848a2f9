// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/gridexport.h>

#include <QtCore/QByteArray>

namespace kor {

struct Workbook {
    ExportResult result;
    QByteArray bytes;
};

//! The table as a workbook with one sheet. Nothing in it is a formula.
[[nodiscard]] Workbook workbookOf(const ExportTable &table, const ExportSettings &settings);

} // namespace kor
