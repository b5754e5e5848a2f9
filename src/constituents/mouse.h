// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/contextpress.h"
#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/twips.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

namespace kor {

//! The arguments of a mouse event as the host gets them; X and Y are twips from the upper left corner.
struct MouseArguments {
    int Button;
    int Shift;
    float X;
    float Y;

    //! Of a press or release, whose Button is the one that changed, or of a move, whose Button is all that are down.
    MouseArguments(const QWidget *surface, const QMouseEvent &event)
        : Button(event.type() == QEvent::MouseMove ? mouseButtons(event.buttons()) : mouseButtons(event.button())),
          Shift(shiftState(event.modifiers())),
          X(static_cast<float>(toTwipsX(surface, event.position().x()).count())),
          Y(static_cast<float>(toTwipsY(surface, event.position().y()).count()))
    {
    }
};

//! Raises a mouse event of a control's own surface.
template <class Control>
void raiseMouse(Control *control, QMouseEvent *event, void (Control::*raise)(int &, int &, float &, float &))
{
    const auto tell = [control, raise](QMouseEvent *told) {
        guarded(control, [&] {
            MouseArguments mouse(control, *told);
            (control->*raise)(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
        });
    };
    if (event->type() == QEvent::MouseButtonPress)
        onPress(control, control, event, tell);
    else
        tell(event);
    event->accept();
}

} // namespace kor
