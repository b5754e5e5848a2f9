// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/Qt>

class QKeyEvent;

namespace kor {

//! The classic virtual-key codes that the controls look at.
namespace Key {
enum Code : int {
    None = 0,
    Backspace = 8,
    Tab = 9,
    Enter = 13,
    Escape = 27,
    Space = 32,
    PageUp = 33,
    PageDown = 34,
    End = 35,
    Home = 36,
    Left = 37,
    Up = 38,
    Right = 39,
    Down = 40,
    Insert = 45,
    Delete = 46,
    C = 67,
    V = 86,
    X = 88,
    F2 = 113,
    F4 = 115,
    F5 = 116,
    F6 = 117,
    Packet = 231, //!< a character that no key of a plain keyboard has
};
} // namespace Key

//! The Shift argument of key and mouse events: bit 1 Shift, bit 2 Ctrl, bit 4 Alt.
namespace ShiftState {
enum Code : int { None = 0, Shift = 1, Ctrl = 2, Alt = 4 };
} // namespace ShiftState

[[nodiscard]] constexpr bool isUpOrDown(int keyCode) { return keyCode == Key::Up || keyCode == Key::Down; }
//! Whether the key is one that moves between rows: the arrow up or down, plain or with Ctrl.
[[nodiscard]] constexpr bool isRowKey(int keyCode, int shiftState)
{
    return isUpOrDown(keyCode) && (shiftState == ShiftState::None || shiftState == ShiftState::Ctrl);
}
//! Whether the key is the F4 that opens what a field offers; Alt+F4 belongs to the window system.
[[nodiscard]] constexpr bool isOpeningF4(int keyCode, int shiftState)
{
    return keyCode == Key::F4 && !(shiftState & ShiftState::Alt);
}

//! The virtual-key code of a key press or release.
[[nodiscard]] int keyCode(const QKeyEvent &event);
//! The Shift argument of a key press or release.
[[nodiscard]] int shiftState(const QKeyEvent &event);
[[nodiscard]] int shiftState(Qt::KeyboardModifiers modifiers);
[[nodiscard]] Qt::KeyboardModifiers modifiersOf(int shiftState);

//! The toolkit's key of a virtual-key code, Qt::Key_unknown for a code without a key.
[[nodiscard]] Qt::Key toolkitKey(int keyCode);
//! The character that a plain key types (letters small unless shifted), 0 for a key that types none.
[[nodiscard]] char16_t plainCharacter(int keyCode, int shiftState);
//! The same as a text, "" for none; with Ctrl or Alt a key types none.
[[nodiscard]] QString plainText(int keyCode, int shiftState);

//! Whether the key belongs to what an input method is at: held for the next key, or one of its own. No text ends by it.
[[nodiscard]] bool isKeyOfInputMethods(const QKeyEvent &event);

//! The KeyAscii of a key press: the UTF-16 code of the character, 8, 13 and 27 for Backspace, Enter and Escape; 0 when
//! the press is no character (Ctrl+letter, Alt+letter, Delete, an arrow). AltGr characters are characters.
[[nodiscard]] int keyAscii(const QKeyEvent &event);

//! A press of a key by its code, with the text that a plain keyboard gives it.
[[nodiscard]] QKeyEvent pressOf(int keyCode, int shiftState);
//! The press as a plain key, for the toolkit to act on: it would type the letter of an Alt+letter.
[[nodiscard]] QKeyEvent withoutText(const QKeyEvent &event);
//! Whether a unit of text is what a key may type: not a control character.
[[nodiscard]] bool isTyped(QChar unit);

//! The Button argument of mouse events: 1 left, 2 right, 4 middle; a sum for the buttons held down.
[[nodiscard]] int mouseButtons(Qt::MouseButtons buttons);

} // namespace kor
