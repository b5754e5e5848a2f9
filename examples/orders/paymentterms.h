// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace orders {

//! The terms of payment that the tables take, by their codes: "G", "P14".
[[nodiscard]] const QStringList &paymentTerms();
//! Those of a new order, as long as the desk has no others set.
inline const QString usualTerms = QStringLiteral("P14");
//! "Przelew 14 dni": what is said of a code to the clerk.
[[nodiscard]] QString nameOfTerms(const QString &code);
//! All terms as the source of a list: LIST G;Gotówka|K;...
[[nodiscard]] QString termsToChoose();

} // namespace orders
