// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/focustracker.h"

#include <KorDaoUC/focusedfield.h>

#include <QtWidgets/QLineEdit>

namespace kor {

bool leaveFocusedField(QWidget *window) { return FocusTracker::instance().leaveInPlace(window->focusWidget()); }

void enterFocusedField(QWidget *window)
{
    const QPointer<QWidget> box = window->focusWidget();
    if (!box)
        return;
    FocusTracker::instance().enterInPlace(box);
    // As the Tab key does; the tracker's clients have written their text by now.
    if (auto *line = qobject_cast<QLineEdit *>(box.data()))
        line->selectAll();
}

} // namespace kor
