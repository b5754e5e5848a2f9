// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orders/orderfilter.h"

#include <functional>

namespace orders::test {

//! A filter, and the condition that says the same over orders o with their customers c.
struct FilterCase {
    const char *name;
    std::function<void(OrderFilter &)> set;
    const char *condition;

    [[nodiscard]] OrderFilter filter() const
    {
        OrderFilter filter;
        set(filter);
        return filter;
    }
};

inline QList<FilterCase> filterCases()
{
    return {
        {"no limit", [](OrderFilter &) {}, "1 = 1"},
        {"from a day on", [](OrderFilter &f) { f.from = QDate(2026, 1, 1); }, "o.order_date >= '2026-01-01'"},
        {"to a day, which counts", [](OrderFilter &f) { f.to = QDate(2025, 2, 28); }, "o.order_date <= '2025-02-28'"},
        {"one day",
         [](OrderFilter &f) {
             f.from = QDate(2025, 3, 3);
             f.to = QDate(2025, 3, 3);
         },
         "o.order_date = '2025-03-03'"},
        {"from an amount on", [](OrderFilter &f) { f.least = 500'000; }, "o.total >= 500000"},
        {"to an amount", [](OrderFilter &f) { f.most = 20'000; }, "o.total <= 20000"},
        {"a customer", [](OrderFilter &f) { f.customer = 25; }, "o.customer_id = 25"},
        {"a group of customers", [](OrderFilter &f) { f.group = 2; }, "c.group_id = 2"},
        {"payment terms",
         [](OrderFilter &f) {
             f.terms = {QStringLiteral("G"), QStringLiteral("P60")};
         },
         "o.payment_terms IN ('G', 'P60')"},
        {"a text in the remarks, without accents", [](OrderFilter &f) { f.text = QStringLiteral("WASKA brama"); },
         "o.remarks LIKE '%wąska brama%'"},
        {"a part of a number", [](OrderFilter &f) { f.text = QStringLiteral("/012"); }, "o.number LIKE '%/012%'"},
        {"all at once",
         [](OrderFilter &f) {
             f.from = QDate(2025, 1, 1);
             f.to = QDate(2026, 6, 30);
             f.least = 10'000;
             f.most = 900'000;
             f.group = 1;
             f.terms = {QStringLiteral("P14"), QStringLiteral("P30")};
         },
         "o.order_date BETWEEN '2025-01-01' AND '2026-06-30' AND o.total BETWEEN 10000 AND 900000 AND c.group_id = 1 "
         "AND o.payment_terms IN ('P14', 'P30')"},
        {"nothing", [](OrderFilter &f) { f.text = QStringLiteral("qqqq"); }, "1 = 0"},
    };
}

} // namespace orders::test
