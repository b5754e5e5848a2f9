// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace kor {

//! A text as an editor keeps it: each line break, however it was written, is one line feed.
[[nodiscard]] QString toEditorText(const QString &text);

//! The edited text with the line breaks of the one it came from: what was not touched comes back as it came in, and
//! new breaks are written like the first one of the old text (a line feed if there was none).
[[nodiscard]] QString fromEditorText(const QString &edited, const QString &original);

//! How new line breaks are written in a text.
[[nodiscard]] QString lineBreakOf(const QString &text);

//! As much of an editor's text, from its beginning, as there is room for when its line breaks are written like this.
[[nodiscard]] QString fittingText(const QString &edited, const QString &lineBreak, qsizetype room);

//! The place in the editor of a place in the text, and back. A place inside a line break is the place before it.
[[nodiscard]] int toEditorPosition(const QString &text, int position);
[[nodiscard]] int fromEditorPosition(const QString &text, int position);

} // namespace kor
