// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "ordermerge.h"

namespace orders {

namespace {

constexpr OrderField fields[] = {OrderField::Date,     OrderField::Delivery, OrderField::Customer, OrderField::Terms,
                                 OrderField::Discount, OrderField::Priority, OrderField::Total,    OrderField::Advance,
                                 OrderField::Remarks,  OrderField::Label,    OrderField::Lines};

//! Gives the member of a field to what compares or copies it.
template <class Use>
bool with(OrderField field, const Use &use)
{
    switch (field) {
    case OrderField::Date: return use(&Order::date);
    case OrderField::Delivery: return use(&Order::delivery);
    case OrderField::Customer: return use(&Order::customer);
    case OrderField::Terms: return use(&Order::paymentTerms);
    case OrderField::Discount: return use(&Order::discount);
    case OrderField::Priority: return use(&Order::priority);
    case OrderField::Total: return use(&Order::total);
    case OrderField::Advance: return use(&Order::advance);
    case OrderField::Remarks: return use(&Order::remarks);
    case OrderField::Label: return use(&Order::labelColor);
    case OrderField::Lines: return use(&Order::lines);
    }
    return false;
}

bool isSame(OrderField field, const Order &one, const Order &other)
{
    return with(field, [&](auto member) { return one.*member == other.*member; });
}

} // namespace

QList<Difference> differences(const Order &loaded, const Order &ours, const Order &theirs)
{
    QList<Difference> all;
    for (const OrderField field : fields) {
        if (!isSame(field, loaded, theirs) && !isSame(field, ours, theirs))
            all.append({field, !isSame(field, loaded, ours)});
    }
    return all;
}

void take(OrderField field, Order &order, const Order &from)
{
    with(field, [&](auto member) {
        order.*member = from.*member;
        return true;
    });
}

Order withUntouched(const Order &read, const Order &asShown, const Order &loaded)
{
    Order result = read;
    for (const OrderField field : fields) {
        if (isSame(field, read, asShown))
            take(field, result, loaded);
    }
    return result;
}

} // namespace orders
