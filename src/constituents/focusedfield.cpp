// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/focustracker.h"
#include "constituents/popupform.h"

#include <KorDaoUC/focusedfield.h>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

namespace kor {

namespace {

//! The control of the window whose pop-up has the keyboard, though the window's own is in another one: a program or a
//! tool has opened it.
QWidget *controlPoppedUp(const QWidget *window)
{
    const auto *popup = qobject_cast<PopupForm *>(QApplication::activePopupWidget());
    QWidget *control = popup ? popup->parentWidget() : nullptr;
    const bool isOther = control && control->window() == window->window() && control != window->focusWidget() &&
                         !control->isAncestorOf(window->focusWidget());
    return isOther ? control : nullptr;
}

} // namespace

bool leaveFocusedField(QWidget *window)
{
    const QPointer<QWidget> form = window;
    FocusTracker &tracker = FocusTracker::instance();
    if (!tracker.leaveInPlace(window->focusWidget()))
        return false;
    QWidget *control = form ? controlPoppedUp(form) : nullptr;
    return !control || tracker.leaveInPlace(control);
}

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
