// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/settingsmerge.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <utility>
#include <vector>

namespace kor {

namespace {

//! A key and which of its repetitions is meant, counted from 0.
using Occurrence = std::pair<QString, int>;

std::vector<Occurrence> occurrences(const PropertyBag &bag)
{
    QHash<QString, int> seen;
    std::vector<Occurrence> all;
    all.reserve(static_cast<std::size_t>(bag.count()));
    for (const auto &entry : bag.entries())
        all.emplace_back(entry.first, seen[entry.first]++);
    return all;
}

QHash<Occurrence, int> places(const PropertyBag &bag)
{
    QHash<Occurrence, int> all;
    int place = 0;
    for (const Occurrence &occurrence : occurrences(bag))
        all.insert(occurrence, place++);
    return all;
}

} // namespace

PropertyBag mergeSettings(const PropertyBag &loaded, const PropertyBag &taken, const PropertyBag &present)
{
    const QHash<Occurrence, int> presentPlaces = places(present);
    const QHash<Occurrence, int> loadedPlaces = places(loaded);
    const std::vector<Occurrence> presentOrder = occurrences(present);
    QSet<QString> takenKeys;
    for (const auto &entry : taken.entries())
        takenKeys.insert(entry.first);

    PropertyBag merged;
    int next = 0;
    // The new settings that come before the given place of the present ones.
    const auto addNewUpTo = [&](int end) {
        for (; next < end; ++next) {
            if (!loadedPlaces.contains(presentOrder.at(static_cast<std::size_t>(next))))
                merged.append(present.keyAt(next), present.valueAt(next));
        }
    };
    int place = 0;
    for (const Occurrence &occurrence : occurrences(loaded)) {
        const auto found = presentPlaces.constFind(occurrence);
        if (found != presentPlaces.cend()) {
            addNewUpTo(*found);
            merged.append(occurrence.first, present.valueAt(*found));
        } else if (!takenKeys.contains(occurrence.first)) {
            merged.append(occurrence.first, loaded.valueAt(place));
        }
        ++place;
    }
    addNewUpTo(present.count());
    return merged;
}

} // namespace kor
