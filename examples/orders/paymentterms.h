// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace orders {

//! "Przelew 14 dni": what is said of a code of payment terms to the clerk.
[[nodiscard]] QString nameOfTerms(const QString &code);
//! All terms as the source of a list: LIST G;Gotówka|K;...
[[nodiscard]] QString termsToChoose();

} // namespace orders
