// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orderlimits.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace orders {

//! Which orders a list shows. What was not entered leaves none out.
struct OrderFilter : OrderLimits {
    std::optional<qint64> most;  //!< grosze
    QString text;                //!< a part of number, customer or remarks, without regard to case and accents
    std::optional<qint64> group; //!< of the customers
    QStringList terms;           //!< codes of payment terms

    bool operator==(const OrderFilter &) const = default;
};

enum class FilterField { From, To, Least, Most, Text, Group, Customer, Terms };

//! What is wrong with a filter, in the clerk's language, and the field to mend.
struct FilterProblem {
    FilterField field;
    QString text;
};

[[nodiscard]] std::optional<FilterProblem> problemOf(const OrderFilter &filter);

//! A filter as texts by their names, to be kept until tomorrow, and back. What cannot be read is no limit.
[[nodiscard]] QMap<QString, QString> textsOf(const OrderFilter &filter);
[[nodiscard]] OrderFilter filterOf(const QMap<QString, QString> &texts);

} // namespace orders
