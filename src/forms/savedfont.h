// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <optional>

namespace kor {

// Fonts pass through the toolkit's own description of a font, which Qt Core can convert when Qt Gui is loaded, so that
// form files are read and written by programs without a screen too.

//! What stands between the brackets of Font(...): the family as a text and the rest as words.
struct FontWords {
    QString family;
    QStringList words; //!< the size in points, then Bold, Italic, Underline, Strikeout as they apply; empty when
                       //!< `family` is the toolkit's whole description
};

//! The words of a font, or nothing when the value is none. A font with more to it than the words can say gives the
//! toolkit's whole description.
[[nodiscard]] std::optional<FontWords> fontWords(const QVariant &value);
//! The font of the words: a QFont, or a SavedFont without Qt Gui. Nothing when a word is none that fonts know.
[[nodiscard]] std::optional<QVariant> fontFromWords(const FontWords &words);

} // namespace kor
