// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/windowbuttons.h"

#include "constituents/focustracker.h"
#include "constituents/keycodes.h"

#include <KorDaoUC/focusedfield.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace kor {

namespace {

//! The window around a box, or the dialog that is laid out inside one.
QWidget *formAround(QWidget *box)
{
    QWidget *place = box;
    while (!place->isWindow() && !qobject_cast<QDialog *>(place))
        place = place->parentWidget();
    return place;
}

QPushButton *defaultButton(const QWidget *form)
{
    const auto buttons = form->findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [](const QPushButton *button) {
        return button->isDefault() && button->isVisible();
    });
    return found != buttons.cend() ? *found : nullptr;
}

QAbstractButton *cancelButton(const QWidget *form)
{
    for (const QDialogButtonBox *row : form->findChildren<QDialogButtonBox *>()) {
        for (QAbstractButton *button : row->buttons()) {
            if (row->buttonRole(button) == QDialogButtonBox::RejectRole && button->isVisible())
                return button;
        }
    }
    return nullptr;
}

bool confirm(QWidget *box)
{
    const QPointer<QPushButton> button = defaultButton(formAround(box));
    if (!button)
        return false;
    const QPointer<QWidget> asked = box;
    if (!FocusTracker::instance().askToLeave(box))
        return true;
    const auto goOn = qScopeGuard([&] { // where the window stays open
        if (asked && asked->isVisible() && asked->window()->focusWidget() == asked)
            enterFocusedField(asked->window());
    });
    if (button)
        button->click();
    return true;
}

bool cancel(QWidget *box)
{
    QWidget *form = formAround(box);
    if (QAbstractButton *button = cancelButton(form))
        button->click();
    else if (auto *dialog = qobject_cast<QDialog *>(form))
        dialog->reject();
    else
        return false;
    return true;
}

} // namespace

bool pressWindowButton(QWidget *box, int keyCode, int shift)
{
    if (shift != ShiftState::None)
        return false;
    if (keyCode == Key::Enter)
        return confirm(box);
    return keyCode == Key::Escape && cancel(box);
}

} // namespace kor
