// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDate>
#include <QtCore/QString>

#include <optional>

namespace orders {

//! An order as the desk edits it. Amounts are whole grosze.
struct Order {
    qint64 id = 0;  //!< 0: not saved yet
    QString number; //!< given by the store when the order is saved first
    QDate date;
    std::optional<QDate> delivery; //!< none: not agreed yet
    std::optional<qint64> customer;
    QString paymentTerms = QStringLiteral("P14");
    double discount = 0; //!< per cent
    qint64 advance = 0;
    qint64 total = 0;
    int priority = 3; //!< 1 to 5
    QString remarks;
    std::optional<int> labelColor; //!< &HBBGGRR; none: no label

    [[nodiscard]] qint64 due() const { return total - advance; }
    bool operator==(const Order &) const = default;
};

enum class OrderField { Date, Delivery, Discount, Advance, Total };

//! What keeps an order from being saved, in the clerk's language, and the field to mend.
struct OrderProblem {
    OrderField field;
    QString text;
};

[[nodiscard]] std::optional<OrderProblem> problemOf(const Order &order);

} // namespace orders
