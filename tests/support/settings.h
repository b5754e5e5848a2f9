// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/UserControl>

#include <QtCore/QStringList>

namespace kor::test {

//! The keys of saved settings in their order, each as often as it was written.
[[nodiscard]] inline QStringList keysOf(const PropertyBag &bag)
{
    QStringList keys;
    for (const auto &[key, value] : bag.entries())
        keys << key;
    return keys;
}

//! What a control saves.
[[nodiscard]] inline PropertyBag settingsOf(const UserControl &control)
{
    PropertyBag bag;
    control.writeProperties(bag);
    return bag;
}

} // namespace kor::test
