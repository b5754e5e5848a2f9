// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orderline.h"
#include "orderpaper.h"

namespace orders {

class Catalogue;

//! An amount of money as the desk shows it, "" for none.
[[nodiscard]] QString amountText(std::optional<qint64> grosze);
//! All that a line says, for one who has to choose between two of them: "2. T0335 Gaśnica, 4 szt. po 135,69 zł, dostawa
//! 2026-12-01". Raises StoreError.
[[nodiscard]] QString lineText(const OrderLine &line, const Catalogue &catalogue);
//! A line as it is printed. Raises StoreError.
[[nodiscard]] OrderPaper::Line paperLineOf(const OrderLine &line, const Catalogue &catalogue);
//! Line by line; "" for none.
[[nodiscard]] QString lineTexts(const QList<OrderLine> &lines, const Catalogue &catalogue);

} // namespace orders
