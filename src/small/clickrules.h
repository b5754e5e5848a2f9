// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

namespace kor {

//! What a click field does with one key.
enum class ClickKeyAnswer {
    PassOn,           //!< the host hears of it, then it acts as usual
    ReportAndSwallow, //!< the host hears of it, the field does not act
    AskHost,          //!< it stands for the button: the host hears of the button, not of the key
    ClearAndPassOn,   //!< text and value are cleared, then as PassOn
};

//! How the field is set up while the key comes.
struct ClickKeyRules {
    bool blockUpDown = false;
    bool locked = false;
};

//! Judges a key pressed in the text. Shift is the sum of 1 Shift, 2 Ctrl and 4 Alt.
[[nodiscard]] ClickKeyAnswer judgeClickKey(int keyCode, int shift, ClickKeyRules rules);

} // namespace kor
