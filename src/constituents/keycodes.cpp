// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/keycodes.h"

#include <QtGui/QKeyEvent>

#include <algorithm>
#include <array>

namespace kor {

namespace {

struct KeyPair {
    int toolkit;
    int code;
};

// clang-format off
constexpr std::array keyPairs{
    KeyPair{Qt::Key_Backspace, 8}, KeyPair{Qt::Key_Tab, 9},       KeyPair{Qt::Key_Backtab, 9},
    KeyPair{Qt::Key_Clear, 12},    KeyPair{Qt::Key_Return, 13},   KeyPair{Qt::Key_Enter, 13},
    KeyPair{Qt::Key_Shift, 16},    KeyPair{Qt::Key_Control, 17},  KeyPair{Qt::Key_Alt, 18},
    KeyPair{Qt::Key_AltGr, 18},    KeyPair{Qt::Key_Pause, 19},    KeyPair{Qt::Key_CapsLock, 20},
    KeyPair{Qt::Key_Escape, 27},   KeyPair{Qt::Key_Space, 32},    KeyPair{Qt::Key_PageUp, 33},
    KeyPair{Qt::Key_PageDown, 34}, KeyPair{Qt::Key_End, 35},      KeyPair{Qt::Key_Home, 36},
    KeyPair{Qt::Key_Left, 37},     KeyPair{Qt::Key_Up, 38},       KeyPair{Qt::Key_Right, 39},
    KeyPair{Qt::Key_Down, 40},     KeyPair{Qt::Key_Print, 44},    KeyPair{Qt::Key_Insert, 45},
    KeyPair{Qt::Key_Delete, 46},   KeyPair{Qt::Key_Help, 47},     KeyPair{Qt::Key_Meta, 91},
    KeyPair{Qt::Key_Super_L, 91},  KeyPair{Qt::Key_Super_R, 92},  KeyPair{Qt::Key_Menu, 93},
    KeyPair{Qt::Key_NumLock, 144}, KeyPair{Qt::Key_ScrollLock, 145},
};

// The keys of a plain keyboard that type something else than a letter or digit, with what they type.
struct CharacterKey {
    int code;
    char16_t plain;
    char16_t shifted;
};
constexpr std::array characterKeys{
    CharacterKey{32, u' ', u' '},    CharacterKey{48, u'0', u')'},   CharacterKey{49, u'1', u'!'},
    CharacterKey{50, u'2', u'@'},    CharacterKey{51, u'3', u'#'},   CharacterKey{52, u'4', u'$'},
    CharacterKey{53, u'5', u'%'},    CharacterKey{54, u'6', u'^'},   CharacterKey{55, u'7', u'&'},
    CharacterKey{56, u'8', u'*'},    CharacterKey{57, u'9', u'('},   CharacterKey{106, u'*', u'*'},
    CharacterKey{107, u'+', u'+'},   CharacterKey{109, u'-', u'-'},  CharacterKey{110, u'.', u'.'},
    CharacterKey{111, u'/', u'/'},   CharacterKey{186, u';', u':'},  CharacterKey{187, u'=', u'+'},
    CharacterKey{188, u',', u'<'},   CharacterKey{189, u'-', u'_'},  CharacterKey{190, u'.', u'>'},
    CharacterKey{191, u'/', u'?'},   CharacterKey{192, u'`', u'~'},  CharacterKey{219, u'[', u'{'},
    CharacterKey{220, u'\\', u'|'},  CharacterKey{221, u']', u'}'},  CharacterKey{222, u'\'', u'"'},
};
// clang-format on

constexpr int keypadZero = 96;

int keypadCode(int key)
{
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return keypadZero + (key - Qt::Key_0);
    switch (key) {
    case Qt::Key_Asterisk: return 106;
    case Qt::Key_Plus: return 107;
    case Qt::Key_Minus: return 109;
    case Qt::Key_Period:
    case Qt::Key_Comma: return 110;
    case Qt::Key_Slash: return 111;
    default: return 0;
    }
}

int characterCode(char16_t character)
{
    const char16_t upper = QChar::toUpper(character);
    if (upper >= u'A' && upper <= u'Z')
        return upper;
    // The keypad's codes come after the main keyboard's for the same character; the main keyboard's is meant here.
    const auto found =
        std::find_if(characterKeys.crbegin(), characterKeys.crend(), [character](const CharacterKey &key) {
            return (key.plain == character || key.shifted == character) && (key.code < 106 || key.code > 111);
        });
    return found != characterKeys.crend() ? found->code : 0;
}

} // namespace

int keyCode(const QKeyEvent &event)
{
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (const int code = keypadCode(key))
            return code;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return 112 + (key - Qt::Key_F1);
    const auto found =
        std::find_if(keyPairs.cbegin(), keyPairs.cend(), [key](const KeyPair &pair) { return pair.toolkit == key; });
    if (found != keyPairs.cend())
        return found->code;
    if (key > 0 && key < 0x10000) {
        if (const int code = characterCode(static_cast<char16_t>(key)))
            return code;
        // ą, ś and their like sit on the key of their base letter.
        const QString base = QChar(static_cast<char16_t>(key)).decomposition();
        if (!base.isEmpty()) {
            if (const int code = characterCode(base.front().unicode()))
                return code;
        }
        if (key == 0x141 || key == 0x142) // Ł has no decomposition
            return 'L';
    }
    return event.text().isEmpty() ? Key::None : Key::Packet;
}

int shiftState(const QKeyEvent &event)
{
    // Platforms differ in whether the press of Ctrl itself already counts as Ctrl being down; here it does, and its
    // release no longer.
    Qt::KeyboardModifiers modifiers = event.modifiers();
    const bool isDown = event.type() != QEvent::KeyRelease;
    if (event.key() == Qt::Key_Shift)
        modifiers.setFlag(Qt::ShiftModifier, isDown);
    else if (event.key() == Qt::Key_Control)
        modifiers.setFlag(Qt::ControlModifier, isDown);
    else if (event.key() == Qt::Key_Alt)
        modifiers.setFlag(Qt::AltModifier, isDown);
    return shiftState(modifiers);
}

int shiftState(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftState::Shift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? ShiftState::Ctrl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? ShiftState::Alt : 0);
}

Qt::KeyboardModifiers modifiersOf(int shiftState)
{
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, shiftState & ShiftState::Shift);
    modifiers.setFlag(Qt::ControlModifier, shiftState & ShiftState::Ctrl);
    modifiers.setFlag(Qt::AltModifier, shiftState & ShiftState::Alt);
    return modifiers;
}

Qt::Key toolkitKey(int code)
{
    if (code >= 112 && code <= 135)
        return static_cast<Qt::Key>(Qt::Key_F1 + (code - 112));
    const auto found =
        std::find_if(keyPairs.cbegin(), keyPairs.cend(), [code](const KeyPair &pair) { return pair.code == code; });
    if (found != keyPairs.cend())
        return static_cast<Qt::Key>(found->toolkit);
    if (const char16_t character = plainCharacter(code, ShiftState::Shift); character >= u'A' && character <= u'Z')
        return static_cast<Qt::Key>(character);
    if (const char16_t character = plainCharacter(code, ShiftState::None))
        return static_cast<Qt::Key>(character);
    return Qt::Key_unknown;
}

char16_t plainCharacter(int code, int shiftState)
{
    const bool shifted = shiftState & ShiftState::Shift;
    if (code >= 'A' && code <= 'Z')
        return static_cast<char16_t>(shifted ? code : code + ('a' - 'A'));
    if (code >= keypadZero && code <= keypadZero + 9)
        return static_cast<char16_t>(u'0' + (code - keypadZero));
    const auto found = std::find_if(characterKeys.cbegin(), characterKeys.cend(),
                                    [code](const CharacterKey &key) { return key.code == code; });
    if (found == characterKeys.cend())
        return 0;
    return shifted ? found->shifted : found->plain;
}

QString plainText(int code, int shiftState)
{
    const char16_t character = (shiftState & ~ShiftState::Shift) ? 0 : plainCharacter(code, shiftState);
    return character ? QString(QChar(character)) : QString();
}

bool isKeyOfInputMethods(const QKeyEvent &event)
{
    const auto isFrom = [key = event.key()](Qt::Key first, Qt::Key last) { return key >= first && key <= last; };
    return isFrom(Qt::Key_Shift, Qt::Key_ScrollLock) || isFrom(Qt::Key_Super_L, Qt::Key_Hyper_R) ||
           isFrom(Qt::Key_AltGr, Qt::Key_Dead_Longsolidusoverlay);
}

int keyAscii(const QKeyEvent &event)
{
    const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    if (ctrl != alt) // both together are AltGr on some systems
        return 0;
    switch (event.key()) {
    case Qt::Key_Backspace: return Key::Backspace;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Key::Enter;
    case Qt::Key_Escape: return Key::Escape;
    default: break;
    }
    const QString text = event.text();
    return !text.isEmpty() && isTyped(text.front()) ? text.front().unicode() : 0;
}

QKeyEvent pressOf(int code, int shiftState)
{
    return QKeyEvent(QEvent::KeyPress, toolkitKey(code), modifiersOf(shiftState), plainText(code, shiftState));
}

QKeyEvent withoutText(const QKeyEvent &event)
{
    return QKeyEvent(event.type(), event.key(), event.modifiers(), QString(), event.isAutoRepeat());
}

bool isTyped(QChar unit)
{
    // Joiners and the halves of emoji are no printing characters by themselves.
    return unit.isPrint() || unit.isSurrogate() || unit.category() == QChar::Other_Format ||
           unit.category() == QChar::Other_PrivateUse;
}

int mouseButtons(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) | (buttons.testFlag(Qt::RightButton) ? 2 : 0) |
           (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

} // namespace kor
