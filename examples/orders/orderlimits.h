// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "condition.h"

#include <QtCore/QDate>

#include <optional>

namespace orders {

//! What limits the orders of a list as well as those of a report. What was not entered leaves none out.
struct OrderLimits {
    std::optional<QDate> from; //!< the first day
    std::optional<QDate> to;   //!< the last day
    std::optional<qint64> customer;
    std::optional<qint64> least; //!< grosze, of a single order

    bool operator==(const OrderLimits &) const = default;
};

//! The same over orders o.
[[nodiscard]] Condition conditionOf(const OrderLimits &limits);

} // namespace orders
