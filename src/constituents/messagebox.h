// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class QWidget;

namespace kor {

//! Shows a message with the exclamation icon and waits until the user has closed it. The text is shown as it is.
void exclaim(QWidget *parent, const QString &text, const QString &title);

} // namespace kor
