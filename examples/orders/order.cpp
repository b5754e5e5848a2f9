// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "order.h"

namespace orders {

std::optional<qint64> dueOf(std::optional<qint64> total, std::optional<qint64> advance)
{
    return total ? std::optional(*total - advance.value_or(0)) : std::nullopt;
}

std::optional<OrderProblem> problemOf(const Order &order)
{
    if (!order.date.isValid())
        return OrderProblem{OrderField::Date, QStringLiteral("Zamówienie musi mieć poprawną datę.")};
    if (order.delivery && !order.delivery->isValid())
        return OrderProblem{OrderField::Delivery, QStringLiteral("Data dostawy jest błędna.")};
    if (order.delivery && *order.delivery < order.date)
        return OrderProblem{OrderField::Delivery, QStringLiteral("Dostawa nie może być wcześniejsza niż zamówienie.")};
    if (order.discount && !(*order.discount >= 0 && *order.discount <= 100))
        return OrderProblem{OrderField::Discount, QStringLiteral("Rabat musi leżeć między 0 a 100 %.")};
    if (order.total && *order.total < 0)
        return OrderProblem{OrderField::Total, QStringLiteral("Wartość zamówienia nie może być ujemna.")};
    if (order.advance && *order.advance < 0)
        return OrderProblem{OrderField::Advance, QStringLiteral("Zaliczka nie może być ujemna.")};
    if (dueOf(order.total, order.advance).value_or(0) < 0)
        return OrderProblem{OrderField::Advance, QStringLiteral("Zaliczka nie może przekraczać wartości zamówienia.")};
    for (qsizetype line = 0; line < order.lines.size(); ++line) {
        if (const auto problem = problemOf(order.lines.at(line), order.date)) {
            const QString text = QStringLiteral("Pozycja %1: %2").arg(order.lines.at(line).number).arg(problem->text);
            return OrderProblem{OrderField::Lines, text, line, problem->field};
        }
    }
    return std::nullopt;
}

} // namespace orders
