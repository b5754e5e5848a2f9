// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/keyoffer.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

namespace kor {

//! Whether the toolkit gives the widget that gets this press its context menu event right afterwards. It does so
//! without a look whether a handler of the press has deleted the widget.
[[nodiscard]] bool isContextMenuDue(const QMouseEvent &press);
//! Runs the action at the beginning of the surface's next event, such as the context menu's: an action that ends the
//! surface then ends the event, too. Without such an event it runs soon.
void actBeforeNextEvent(QWidget *surface, std::function<void()> action);

//! Runs what a press of a mouse button does to a box; the surface is the widget that got it.
template <class Box, class Body>
void onPress(Box *box, QWidget *surface, QMouseEvent *event, Body body)
{
    if (isContextMenuDue(*event)) {
        const std::shared_ptr<QMouseEvent> press(event->clone());
        actBeforeNextEvent(surface, [=] { onInput(box, press.get(), [&] { body(press.get()); }); });
    } else {
        onInput(box, event, [&] { body(event); });
    }
    event->accept();
}

} // namespace kor
