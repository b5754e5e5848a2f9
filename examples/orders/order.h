// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orderline.h"
#include "paymentterms.h"

namespace orders {

//! An order as the desk edits it. Amounts are whole grosze. What was not entered is nothing, which is not 0.
struct Order {
    qint64 id = 0;  //!< 0: not saved yet
    QString number; //!< given by the store when the order is saved first
    QDate date;
    std::optional<QDate> delivery; //!< none: not agreed yet
    std::optional<qint64> customer;
    QString paymentTerms = usualTerms;
    std::optional<double> discount; //!< per cent
    std::optional<qint64> advance;
    std::optional<qint64> total;
    int priority = 3; //!< 1 to 5
    QString remarks;
    std::optional<int> labelColor; //!< &HBBGGRR; none: no label
    QList<OrderLine> lines;

    bool operator==(const Order &) const = default;
};

//! What is still to be paid; nothing while the total is not known.
[[nodiscard]] std::optional<qint64> dueOf(std::optional<qint64> total, std::optional<qint64> advance);

enum class OrderField { Date, Delivery, Customer, Terms, Discount, Priority, Total, Advance, Remarks, Label, Lines };

//! What keeps an order from being saved, in the clerk's language, and the field to mend.
struct OrderProblem {
    OrderField field;
    QString text;
    qsizetype line = 0; //!< place in `lines` of the one to mend
    LineField cell = LineField::Product;
};

[[nodiscard]] std::optional<OrderProblem> problemOf(const Order &order);

} // namespace orders
