// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/uitaborder.h"

#include <QtCore/QHash>

#include <algorithm>
#include <limits>
#include <numeric>

namespace kor {

namespace {

//! The places in the order of Tab; those without a number behind the others.
QList<qsizetype> orderOf(const QList<UiStop> &stops)
{
    QList<qsizetype> order(stops.size());
    std::iota(order.begin(), order.end(), 0);
    const auto indexAt = [&stops](qsizetype place) {
        return stops.at(place).tabIndex.value_or(std::numeric_limits<int>::max());
    };
    std::stable_sort(order.begin(), order.end(),
                     [&](qsizetype left, qsizetype right) { return indexAt(left) < indexAt(right); });
    return order;
}

//! The numbers for as many as the list and the buddies tell.
QList<std::optional<int>> tabIndexesOf(const QList<UiStop> &stops, const QStringList &tabStops)
{
    QHash<QString, qsizetype> places;
    QHash<QString, QList<qsizetype>> leading;
    QStringList order = tabStops;
    for (qsizetype place = 0; place < stops.size(); ++place) {
        const UiStop &stop = stops.at(place);
        if (stop.leadsToNext && !stop.buddy.isEmpty())
            leading[stop.buddy].append(place);
        else if (!places.contains(stop.name))
            places.insert(stop.name, place);
        if (tabStops.isEmpty() && stop.takesFocus && !stop.name.isEmpty())
            order.append(stop.name);
    }
    QList<std::optional<int>> indexes(stops.size());
    int number = 1;
    const auto give = [&](qsizetype place) {
        if (!indexes.at(place))
            indexes[place] = number++;
    };
    for (const QString &name : std::as_const(order)) {
        const qsizetype place = places.value(name, -1);
        if (place < 0 || name.isEmpty())
            continue;
        for (const qsizetype label : leading.value(name))
            give(label);
        give(place);
    }
    return indexes;
}

} // namespace

QStringList tabStopsOf(const QList<UiStop> &stops)
{
    QStringList names;
    const auto takesFocus = [](const UiStop &stop) { return stop.takesFocus; };
    const bool isNumbered =
        std::any_of(stops.cbegin(), stops.cend(), [](const UiStop &stop) { return stop.takesFocus && stop.tabIndex; });
    if (!isNumbered)
        return names;
    // What is not in the list stays between its last and its first, in the order of the file: only a control that
    // would be the very first must be told to follow.
    const bool isFirstNumbered = std::find_if(stops.cbegin(), stops.cend(), takesFocus)->tabIndex.has_value();
    for (const qsizetype place : orderOf(stops)) {
        const UiStop &stop = stops.at(place);
        if (stop.takesFocus && !stop.name.isEmpty() && (stop.tabIndex || !isFirstNumbered))
            names << stop.name;
    }
    return names;
}

QStringList buddiesOf(const QList<UiStop> &stops)
{
    QStringList buddies(stops.size());
    const QList<qsizetype> order = orderOf(stops);
    QString next;
    for (auto place = order.crbegin(); place != order.crend(); ++place) {
        const UiStop &stop = stops.at(*place);
        if (stop.leadsToNext)
            buddies[*place] = next;
        else if (stop.takesFocus)
            next = stop.name;
    }
    QHash<QString, int> counts;
    for (const UiStop &stop : stops)
        ++counts[stop.name];
    for (QString &buddy : buddies) {
        if (counts.value(buddy) > 1) // whom that means can't be told by the name
            buddy.clear();
    }
    return buddies;
}

QList<std::optional<int>> toldTabIndexes(QList<UiStop> stops, const QStringList &tabStops)
{
    for (UiStop &stop : stops)
        stop.tabIndex.reset();
    QStringList told;
    for (const UiStop &stop : stops)
        told << stop.buddy;
    if (tabStops.isEmpty() && buddiesOf(stops) == told)
        return QList<std::optional<int>>(stops.size());
    return tabIndexesOf(stops, tabStops);
}

} // namespace kor
