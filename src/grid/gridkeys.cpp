// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridkeys.h"

#include "constituents/keycodes.h"

namespace kor {

GridKey judgeGridKey(int keyCode, int shift, bool hasUse)
{
    const bool isPlain = shift == ShiftState::None;
    const bool isCtrl = shift == ShiftState::Ctrl;
    switch (keyCode) {
    case Key::Escape: return isPlain ? GridKey::Cancel : GridKey::None;
    case Key::F2: return isPlain ? GridKey::Close : GridKey::None;
    case Key::Enter:
        if (shift == ShiftState::Shift)
            return GridKey::Previous;
        return isPlain ? GridKey::Next : isCtrl ? GridKey::Break : GridKey::None;
    case Key::Up:
    case Key::Down:
    case Key::Left:
    case Key::Right:
    case Key::PageUp:
    case Key::PageDown: return isPlain && !hasUse ? GridKey::Move : GridKey::None;
    case Key::Home:
    case Key::End: return isCtrl ? GridKey::Move : GridKey::None;
    default: return GridKey::None;
    }
}

} // namespace kor
