// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderlimits.h"

namespace orders {

Condition conditionOf(const OrderLimits &limits)
{
    Condition condition;
    if (limits.from)
        condition.add(QStringLiteral("o.order_date >= ?"), {limits.from->toString(Qt::ISODate)});
    if (limits.to)
        condition.add(QStringLiteral("o.order_date <= ?"), {limits.to->toString(Qt::ISODate)});
    if (limits.customer)
        condition.add(QStringLiteral("o.customer_id = ?"), {*limits.customer});
    if (limits.least)
        condition.add(QStringLiteral("o.total >= ?"), {*limits.least});
    return condition;
}

} // namespace orders
