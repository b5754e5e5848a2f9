// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "order.h"

#include <QtCore/QList>

namespace orders {

//! A field that another desk changed and saved while it was open here.
struct Difference {
    OrderField field;
    bool isOurs = false; //!< it was changed here too, to something else

    bool operator==(const Difference &) const = default;
};

//! The fields in which the saved order differs from the one that was loaded and from ours.
[[nodiscard]] QList<Difference> differences(const Order &loaded, const Order &ours, const Order &theirs);

//! Gives an order one field of another.
void take(OrderField field, Order &order, const Order &from);

//! What a form says of an order: a field that reads as it was shown keeps what it was loaded with, though the form
//! rounds it or can't show it.
[[nodiscard]] Order withUntouched(const Order &read, const Order &asShown, const Order &loaded);

} // namespace orders
