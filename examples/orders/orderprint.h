// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class QWidget;

namespace orders {

struct OrderPaper;

//! Asks where, and saves an order there as PDF, all or nothing. What to say of it in passing, "" for nothing.
[[nodiscard]] QString askAndSavePdf(QWidget *parent, const OrderPaper &order);

//! Asks for a printer, and prints an order there. A file that is chosen in a printer's place is saved all or nothing.
//! What to say of it in passing, "" for nothing.
[[nodiscard]] QString askAndPrint(QWidget *parent, const OrderPaper &order);

} // namespace orders
