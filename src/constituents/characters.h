// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace kor {

//! The character of a text that begins at a place: one unit, or the two halves of one outside the basic plane.
[[nodiscard]] QString characterAt(const QString &text, qsizetype at);

//! The beginning of a text, at most so many units long, that cuts nothing in two which a reader takes for one
//! character: no letter is parted from its accents, no emoji from its parts.
[[nodiscard]] QString wholeCharacters(const QString &text, qsizetype length);

//! A place in a text; between the two halves of a character it is the place before them.
[[nodiscard]] qsizetype placeOfCharacter(const QString &text, qsizetype place);

} // namespace kor
