// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class QWidget;

namespace kor {

//! Shows a message with the exclamation icon and waits until the user has closed it. The texts are shown as they are;
//! more is what stands below the text, to be marked and copied.
void exclaim(QWidget *parent, const QString &text, const QString &title, const QString &more = {});

} // namespace kor
