// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/clickrules.h"

#include "constituents/keycodes.h"

namespace kor {

ClickKeyAnswer judgeClickKey(int keyCode, int shift, ClickKeyRules rules)
{
    if (rules.blockUpDown && isRowKey(keyCode, shift))
        return ClickKeyAnswer::ReportAndSwallow;
    if (isOpeningF4(keyCode, shift))
        return ClickKeyAnswer::AskHost;
    if (shift == ShiftState::Alt && (keyCode == Key::Left || keyCode == Key::Down))
        return ClickKeyAnswer::AskHost;
    if (keyCode == Key::Delete && rules.locked)
        return ClickKeyAnswer::ClearAndPassOn;
    return ClickKeyAnswer::PassOn;
}

} // namespace kor
