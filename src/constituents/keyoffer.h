// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/errorguard.h"
#include "constituents/focustracker.h"
#include "constituents/keycodes.h"
#include "constituents/windowbuttons.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

namespace kor {

//! Runs what a key or a click does to a box, once the box knows whether it has the focus. What was not meant for the
//! place where the focus is by then, and what comes after the box's end, is dropped. The event counts as used unless
//! the body says otherwise.
template <class Box, class Body>
void onInput(Box *box, QEvent *event, Body &&body) noexcept
{
    event->accept();
    guarded(box, [&] {
        const QPointer<Box> self = box;
        if (FocusTracker::instance().settle() && self)
            body();
    });
}

//! A key as the host's handlers of KeyDown have left it.
struct KeyOffer {
    enum class Answer {
        Act,     //!< as the key that it is
        ActAs,   //!< as another key, or with another shift state
        Swallow, //!< it was set to 0, or has done its work; the box may be gone
    };
    Answer answer = Answer::Act;
    int code = Key::None;
    int shift = ShiftState::None;
    bool isOtherKey = false; //!< another code, be the shift state what it may
};

//! Raises KeyDown, and gives what the handlers made of the key. A press that is no key at all, such as a finished
//! character, raises nothing.
template <class Box>
[[nodiscard]] KeyOffer raiseKeyDown(Box *box, const QKeyEvent &event)
{
    const QPointer<Box> self = box;
    const int ownCode = keyCode(event);
    const int ownShift = shiftState(event);
    KeyOffer offer{KeyOffer::Answer::Act, ownCode, ownShift};
    if (ownCode == Key::None)
        return offer;
    Q_EMIT box->KeyDown(offer.code, offer.shift);
    offer.isOtherKey = offer.code != ownCode;
    if (!self || offer.code == Key::None)
        offer.answer = KeyOffer::Answer::Swallow;
    else if (offer.isOtherKey || offer.shift != ownShift)
        offer.answer = KeyOffer::Answer::ActAs;
    return offer;
}

//! Offers a key to the host, and then to the buttons of the window: a dialog's Enter and Escape are theirs.
template <class Box>
[[nodiscard]] KeyOffer offerKey(Box *box, const QKeyEvent &event)
{
    KeyOffer offer = raiseKeyDown(box, event);
    if (offer.answer != KeyOffer::Answer::Swallow && pressWindowButton(box, offer.code, offer.shift))
        offer.answer = KeyOffer::Answer::Swallow;
    return offer;
}

//! Offers a press and lets the box act on what has become of it: on the press itself, or on one of another key.
template <class Box, class Act>
void pressKey(Box *box, QKeyEvent *event, Act &&act)
{
    const KeyOffer key = offerKey(box, *event);
    if (key.answer == KeyOffer::Answer::Swallow)
        return;
    if (key.answer == KeyOffer::Answer::Act) {
        act(event);
        return;
    }
    QKeyEvent other = pressOf(key.code, key.shift);
    other.setTimestamp(event->timestamp());
    act(&other);
    event->setAccepted(other.isAccepted());
}

//! Raises KeyUp for the release of a key.
template <class Box>
void raiseKeyUp(Box *box, const QKeyEvent &event)
{
    int code = keyCode(event);
    int shift = shiftState(event);
    if (code != Key::None && !event.isAutoRepeat())
        Q_EMIT box->KeyUp(code, shift);
}

} // namespace kor
