// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

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
          X(static_cast<float>(event.position().x() * twipsPerPixelX(surface))),
          Y(static_cast<float>(event.position().y() * twipsPerPixelY(surface)))
    {
    }
};

} // namespace kor
