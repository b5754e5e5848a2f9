// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class QLabel;
class QWidget;

namespace kor {

//! The control that a box is the keyboard's place of: the outermost widget around it whose focus it has, or the box.
[[nodiscard]] const QWidget *controlOf(const QWidget *box);
//! The label that belongs to a box or to its control; null for none.
[[nodiscard]] const QLabel *labelOf(const QWidget *box);
//! What a screen reader says of a box: its own name, its control's, the caption of its label, or the title of the group
//! it stands in.
[[nodiscard]] QString fieldName(const QWidget *box);

} // namespace kor
