// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class QWidget;

namespace kor {

//! Notes why a box was not let go with what it holds, for screen readers; empty when it is given up. The focus tracker
//! notes it with its message, and a box that holds something else forgets it.
void setRefusal(QWidget *box, const QString &why);
[[nodiscard]] QString refusalOf(const QWidget *box);

} // namespace kor
