// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orderlist.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace orders {

//! What stands below a list: how many orders of how many, and their amounts.
[[nodiscard]] QString sumText(const QList<ListedOrder> &orders, qint64 all);

//! A list of orders on pages of A4, the limits of its filter above and the sums below, as PDF. Nothing when it was
//! stopped.
[[nodiscard]] QByteArray listPdf(const QList<ListedOrder> &orders, const QStringList &limits, const QString &sums,
                                 const MayGoOn &mayGoOn);

} // namespace orders
