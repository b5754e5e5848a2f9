// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/formbuilder.h>

#include <QtCore/QHash>

namespace kor {

//! What form files hold besides the controls: `Label`, `CommandButton` and `Frame`.
[[nodiscard]] QHash<QString, FormItemKind> readyMadeItems();

//! The form itself: its caption and its font, on a window that exists already.
void readForm(QWidget &window, const PropertyBag &settings);
void writeForm(const QWidget &window, PropertyBag &settings);
[[nodiscard]] QStringList formKeys();

} // namespace kor
