// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramkeys.h"

#include "constituents/keycodes.h"

#include <algorithm>

namespace kor {

namespace {

//! The rows that a key goes on by, down or up; nothing for a key that does not move.
std::optional<int> stepOfKey(int keyCode, int shift, ParamPlace place)
{
    const bool isPlain = shift == ShiftState::None;
    const bool isCtrl = shift == ShiftState::Ctrl;
    switch (keyCode) {
    case Key::Up: return isPlain ? std::optional(-1) : std::nullopt;
    case Key::Down: return isPlain ? std::optional(1) : std::nullopt;
    case Key::PageUp: return isPlain ? std::optional(-place.page) : isCtrl ? std::optional(-place.rows) : std::nullopt;
    case Key::PageDown: return isPlain ? std::optional(place.page) : isCtrl ? std::optional(place.rows) : std::nullopt;
    case Key::Home: return isCtrl ? std::optional(-place.rows) : std::nullopt;
    case Key::End: return isCtrl ? std::optional(place.rows) : std::nullopt;
    default: return std::nullopt;
    }
}

} // namespace

std::optional<int> rowAfterKey(int keyCode, int shift, ParamPlace place)
{
    const auto step = stepOfKey(keyCode, shift, place);
    if (!step)
        return std::nullopt;
    const int first = std::min(1, place.row);
    return std::clamp(place.row + *step, first, std::max(first, place.rows - 1));
}

ParamEnd endOfKey(int keyCode, int shift)
{
    if (shift != ShiftState::None)
        return ParamEnd::None;
    if (keyCode == Key::Escape)
        return ParamEnd::GiveUp;
    return keyCode == Key::Enter || keyCode == Key::F2 ? ParamEnd::Take : ParamEnd::None;
}

bool clearsChoice(int keyCode) { return keyCode == Key::Backspace || keyCode == Key::Delete; }

} // namespace kor
