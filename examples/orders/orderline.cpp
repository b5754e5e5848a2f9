// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderline.h"

#include <algorithm>
#include <cmath>

namespace orders {

std::optional<qint64> amountOf(const OrderLine &line)
{
    if (!line.quantity || !line.netPrice)
        return std::nullopt;
    constexpr double most = 1e15; // one too large for any database is still too large, not something else
    return std::llround(std::clamp(*line.quantity * static_cast<double>(*line.netPrice), -most, most));
}

std::optional<qint64> amountOf(const QList<OrderLine> &lines)
{
    std::optional<qint64> sum;
    for (const OrderLine &line : lines) {
        if (const auto amount = amountOf(line))
            sum = sum.value_or(0) + *amount;
    }
    return sum;
}

std::optional<LineProblem> problemOf(const OrderLine &line, const QDate &ordered)
{
    if (line.product == OrderLine::noProduct)
        return LineProblem{LineField::Product, QStringLiteral("nie ma towaru o takim symbolu.")};
    if (line.quantity && !(*line.quantity > 0))
        return LineProblem{LineField::Quantity, QStringLiteral("ilość musi być większa od zera.")};
    if (line.netPrice && *line.netPrice < 0)
        return LineProblem{LineField::Price, QStringLiteral("cena nie może być ujemna.")};
    if (line.delivery && !line.delivery->isValid())
        return LineProblem{LineField::Delivery, QStringLiteral("data dostawy jest błędna.")};
    if (line.delivery && *line.delivery < ordered)
        return LineProblem{LineField::Delivery, QStringLiteral("dostawa nie może być wcześniejsza niż zamówienie.")};
    return std::nullopt;
}

} // namespace orders
