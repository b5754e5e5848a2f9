// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/multitextrules.h"

#include "constituents/keycodes.h"

#include <cstdlib>

namespace kor {

QPoint placeTextPopup(const QRect &control, const QSize &popup, const QRect &screen)
{
    const int bottom = control.y() + control.height();
    const bool isAbove = bottom + popup.height() > screen.y() + screen.height();
    const bool isShifted = control.x() + popup.width() > screen.x() + screen.width();
    return {isShifted ? control.x() - std::abs(popup.width() - control.width()) : control.x(),
            isAbove ? control.y() - popup.height() : bottom};
}

PopupKeyAnswer judgePopupKey(int keyCode, int shift)
{
    const bool isAltArrow = shift == ShiftState::Alt && isUpOrDown(keyCode);
    if (keyCode == Key::Tab || isOpeningF4(keyCode, shift) || isAltArrow)
        return PopupKeyAnswer::HandBack;
    return keyCode == Key::Escape ? PopupKeyAnswer::Close : PopupKeyAnswer::Edit;
}

} // namespace kor
