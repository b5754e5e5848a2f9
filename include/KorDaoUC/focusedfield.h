// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

class QWidget;

namespace kor {

//! For commands that run while the user stays in a field, as a menu key's do (save, next record): what leaving the
//! field and coming back would do to it, without the focus going anywhere.
//!
//! leaveFocusedField() reads, checks and formats the field of the window that has the focus, as if it were left, so
//! that the command meets what the user has typed so far. False when the field refused it: the message was shown and
//! the command should not run.
[[nodiscard]] KORDAOUC_EXPORT bool leaveFocusedField(QWidget *window);

//! The field of the window that has the focus shows and selects what it would if the user came into it now. To be
//! called when the command is done, whether it worked or not: the next key replaces what stands there. The window need
//! not be the active one.
KORDAOUC_EXPORT void enterFocusedField(QWidget *window);

} // namespace kor
