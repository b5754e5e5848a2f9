// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/clickrules.h"

#include "constituents/keycodes.h"

namespace kor {

ClickKeyAnswer judgeClickKey(int keyCode, int shift, ClickKeyRules rules)
{
    const bool isArrow = keyCode == Key::Up || keyCode == Key::Down;
    const bool arrowsPass = !(rules.blockUpDown && (shift == ShiftState::None || shift == ShiftState::Ctrl));
    if (isArrow && !arrowsPass)
        return ClickKeyAnswer::ReportAndSwallow;
    if (keyCode == Key::F4 && !(shift & ShiftState::Alt)) // Alt+F4 belongs to the window system
        return ClickKeyAnswer::AskHost;
    if (shift == ShiftState::Alt && (keyCode == Key::Left || keyCode == Key::Down))
        return ClickKeyAnswer::AskHost;
    if (keyCode == Key::Delete && rules.locked)
        return ClickKeyAnswer::ClearAndPassOn;
    return ClickKeyAnswer::PassOn;
}

} // namespace kor
