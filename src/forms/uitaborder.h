// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace kor {

//! What a widget is in the order of Tab. A form file numbers all controls and lets a label lead to the next one; a .ui
//! file lists those that take the focus and names the one to which a label leads.
struct UiStop {
    QString name{};
    bool takesFocus = false;
    bool leadsToNext = false; //!< a label with "&"
    std::optional<int> tabIndex{};
    QString buddy{};
};

//! The names for the list of a .ui file: nothing when no control has a number.
[[nodiscard]] QStringList tabStopsOf(const QList<UiStop> &stops);
//! For each, the name of the control to which it leads by its number; nothing for all others, nor where several have
//! that name.
[[nodiscard]] QStringList buddiesOf(const QList<UiStop> &stops);
//! The numbers that the list and the buddies of a .ui file come to; none, when the order of the file will do.
[[nodiscard]] QList<std::optional<int>> toldTabIndexes(QList<UiStop> stops, const QStringList &tabStops);

} // namespace kor
