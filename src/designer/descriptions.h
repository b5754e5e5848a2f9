// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>

namespace kor {

//! What the form designer tells of a control, and the size of one that is dropped on a form.
struct Description {
    QString toolTip;
    QString help;
    QSize size;
};

[[nodiscard]] Description descriptionOf(const QString &control);

} // namespace kor
