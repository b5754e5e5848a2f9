// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "report.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace orders {

//! What stands above a report: its title, and one line for each parameter that was entered.
struct ReportHeading {
    QString title;
    QStringList parameters;
};

//! Amounts as the desk writes them, "1 234,50".
[[nodiscard]] QString amountText(qint64 grosze);
//! A number of things, "1 234".
[[nodiscard]] QString countText(qint64 count);
//! A part of a whole, "12,5%"; nothing of nothing.
[[nodiscard]] QString shareText(qint64 part, qint64 whole);
//! The last line of a report: how many orders, of what amount, and how many have none yet.
[[nodiscard]] QString totalText(const Report &report);

//! A report on pages of A4 with its chart, as PDF.
[[nodiscard]] QByteArray reportPdf(const ReportHeading &heading, const Report &report);

} // namespace orders
