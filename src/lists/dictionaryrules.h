// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "lists/keyindex.h"

#include <QtCore/QString>

namespace kor {

//! What `BlockUpDown` does to the arrow keys.
enum class BlockedArrows {
    KeepTheSelection, //!< KeyDown is raised and the key then swallowed, alone or with Ctrl
    WithholdTheEvent, //!< the selection moves and KeyDown is not raised, whatever is held down with it
};

//! Whether a program's ListIndex marks the form as changed.
enum class IndexReport { Silent, Reported };

//! In what the lists of keys and names differ. All else is the same in the three of them.
struct DictionaryRules {
    KeyEquality equality;
    BlockedArrows blockedArrows;
    IndexReport indexReport;
};

inline constexpr DictionaryRules comboRules{KeyEquality::Loose, BlockedArrows::KeepTheSelection, IndexReport::Silent};
inline constexpr DictionaryRules listRules{KeyEquality::Strict, BlockedArrows::WithholdTheEvent, IndexReport::Silent};
inline constexpr DictionaryRules checkListRules{KeyEquality::Strict, BlockedArrows::WithholdTheEvent,
                                                IndexReport::Reported};

//! By what name the null entry is shown until the form or the host gives another.
[[nodiscard]] inline QString initialNullString() { return QStringLiteral("..."); }

} // namespace kor
