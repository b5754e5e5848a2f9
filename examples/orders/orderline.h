// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDate>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace orders {

//! A line of an order. What was not entered is nothing, which is not 0.
struct OrderLine {
    static constexpr qint64 noProduct = 0; //!< something was entered that is no product's symbol

    int number = 0; //!< running number on the order, from 1
    std::optional<qint64> product;
    QString name; //!< as agreed, which need not be the product's
    std::optional<double> quantity;
    std::optional<qint64> unit;
    std::optional<qint64> netPrice; //!< of one unit, in grosze
    std::optional<int> vat;         //!< per cent
    std::optional<QDate> delivery;  //!< none: with the order

    bool operator==(const OrderLine &) const = default;
};

enum class LineField { Product, Name, Quantity, Unit, Price, Delivery };

//! What a line is worth, in whole grosze; nothing while its quantity or its price is not known.
[[nodiscard]] std::optional<qint64> amountOf(const OrderLine &line);
//! What all lines are worth whose amount is known; nothing when there is none.
[[nodiscard]] std::optional<qint64> amountOf(const QList<OrderLine> &lines);

//! What keeps a line from being saved, in the clerk's language, and the cell to mend.
struct LineProblem {
    LineField field;
    QString text;
};

[[nodiscard]] std::optional<LineProblem> problemOf(const OrderLine &line, const QDate &ordered);

} // namespace orders
