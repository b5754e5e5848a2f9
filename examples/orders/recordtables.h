// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record.h"

namespace orders {

//! The customers of the desk.
[[nodiscard]] RecordTable customersTable();
//! What can be ordered. A new product has this rate of VAT.
[[nodiscard]] RecordTable productsTable(int vat);

//! The check digit of the nine digits that a tax number begins with; nothing when no number begins with them.
[[nodiscard]] std::optional<int> checkDigitOf(const QString &nineDigits);

} // namespace orders
