// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace kor::test {

//! One thing that the random user, or the program under his hands, does.
//!
//! A step means something on every form, whatever was done before: that is why a failing day can be shortened by
//! leaving steps out.
struct Step {
    enum Kind : int {
        PressKey,     //!< a key, plain or with Shift, Ctrl and Alt
        TypeText,     //!< a text, key by key
        Compose,      //!< characters in the making: a dead key, an input method
        Commit,       //!< finished characters of an input method
        Paste,        //!< by one of its keys
        Drop,         //!< a text, dragged from elsewhere
        Click,        //!< a mouse button on a place of a control, once or twice
        ClickPopup,   //!< the same on what has popped up
        ClickOutside, //!< the same anywhere in the window
        Drag,         //!< a press here, a release there
        Wheel,
        Focus,  //!< the focus set by the program, or moved on with Tab
        Enter,  //!< the field entered and all of its text selected
        Show,   //!< a control, its panel or the whole form hidden, shown, disabled or enabled
        Set,    //!< a property, late-bound, to a value that may be refused
        Call,   //!< a method, late-bound, with arguments that may be refused
        Save,   //!< settings written and read into another control of the kind
        Handle, //!< from now on the next event of a name has a handler
        Serve,  //!< from now on the database answers, fails or waits
        Wait,   //!< until nothing is queued
    };
    static constexpr int kinds = Wait + 1;

    Kind kind = Wait;
    int control = 0;   //!< its place among the controls of the form
    unsigned what = 0; //!< which key, text, property...
    unsigned how = 0;  //!< with what

    bool operator==(const Step &) const = default;
};

//! The steps of one day: the same for the same seed.
[[nodiscard]] QList<Step> stepsOfDay(unsigned seed, int count);

//! Steps as they are printed and read back: "Set/3/17/2 Wait/0/0/0".
[[nodiscard]] QString written(const QList<Step> &steps);
[[nodiscard]] std::optional<QList<Step>> readSteps(const QString &text);

} // namespace kor::test
