// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace orders {

//! The rates of VAT that the tables take, in per cent, the highest last.
[[nodiscard]] const QList<int> &vatRates();
//! All of them as the source of a list: LIST 0;0 %|5;...
[[nodiscard]] QString vatRatesToChoose();

} // namespace orders
