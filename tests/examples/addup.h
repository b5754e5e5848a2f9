// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orders/orderstore.h"

namespace orders::test {

//! Adds 1 to the total of order 1 as often as told, over whatever others save meanwhile.
inline void addUp(const QString &place, int times)
{
    OrderStore store(place);
    for (int done = 0; done < times;) {
        const Order loaded = store.order(1).value();
        Order order = loaded;
        order.total = order.total.value() + 1;
        done += store.save(order, loaded).kind == Outcome::Kind::Done ? 1 : 0;
    }
}

} // namespace orders::test
