// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/keycodes.h"

#include <QtGui/QKeyEvent>
#include <QtTest/QtTest>

using namespace kor;

//! What hosts get to know of a key, and what a key becomes that they name.
class tst_KeyCodes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysHaveTheirCodes_data();
    void keysHaveTheirCodes();
    void modifiersAreShiftStates_data();
    void modifiersAreShiftStates();
    void charactersHaveTheirAscii_data();
    void charactersHaveTheirAscii();
    void codesBecomeKeysAgain();
    void codesTypeWhatAPlainKeyboardDoes_data();
    void codesTypeWhatAPlainKeyboardDoes();
    void aPressOfACodeIsThatKey();
    void withoutItsTextAPressTypesNothing();
    void inputMethodsHaveKeysOfTheirOwn_data();
    void inputMethodsHaveKeysOfTheirOwn();
    void buttonsAreSums();
};

namespace {
constexpr auto press = QEvent::KeyPress;
constexpr auto release = QEvent::KeyRelease;
} // namespace

void tst_KeyCodes::keysHaveTheirCodes_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isOnKeypad");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    // clang-format off
    QTest::newRow("letter")                      << int(Qt::Key_A)        << false << QStringLiteral("a") << 65;
    QTest::newRow("Polish letter")               << 0x104                 << false << QStringLiteral("ą") << 65;
    QTest::newRow("letter that has no base")     << 0x141                 << false << QStringLiteral("ł") << 76;
    QTest::newRow("digit")                       << int(Qt::Key_5)        << false << QStringLiteral("5") << 53;
    QTest::newRow("digit of the keypad")         << int(Qt::Key_5)        << true  << QStringLiteral("5") << 101;
    QTest::newRow("separator of the keypad")     << int(Qt::Key_Comma)    << true  << QStringLiteral(",") << 110;
    QTest::newRow("comma")                       << int(Qt::Key_Comma)    << false << QStringLiteral(",") << 188;
    QTest::newRow("minus")                       << int(Qt::Key_Minus)    << false << QStringLiteral("-") << 189;
    QTest::newRow("minus of the keypad")         << int(Qt::Key_Minus)    << true  << QStringLiteral("-") << 109;
    QTest::newRow("shifted digit")               << int(Qt::Key_Exclam)   << false << QStringLiteral("!") << 49;
    QTest::newRow("Enter of the keypad")         << int(Qt::Key_Enter)    << true  << QStringLiteral("\r") << 13;
    QTest::newRow("Shift+Tab")                   << int(Qt::Key_Backtab)  << false << QString()           << 9;
    QTest::newRow("F4")                          << int(Qt::Key_F4)       << false << QString()           << 115;
    QTest::newRow("F24")                         << int(Qt::Key_F24)      << false << QString()           << 135;
    QTest::newRow("AltGr")                       << int(Qt::Key_AltGr)    << false << QString()           << 18;
    QTest::newRow("character without a key")     << 0x20AC                << false << QStringLiteral("€") << 231;
    QTest::newRow("key without code or text")    << int(Qt::Key_VolumeUp) << false << QString()           << 0;
    // clang-format on
}

void tst_KeyCodes::keysHaveTheirCodes()
{
    QFETCH(int, key);
    QFETCH(bool, isOnKeypad);
    QFETCH(QString, text);
    QFETCH(int, code);
    const QKeyEvent event(press, key, isOnKeypad ? Qt::KeypadModifier : Qt::NoModifier, text);
    QCOMPARE(keyCode(event), code);
}

void tst_KeyCodes::modifiersAreShiftStates_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("shift");
    using Mods = Qt::KeyboardModifiers;
    // clang-format off
    QTest::newRow("none")                          << press   << int(Qt::Key_A)       << Mods()                       << 0;
    QTest::newRow("all")                           << press   << int(Qt::Key_A)       << Mods(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier) << 7;
    QTest::newRow("the keypad is none")            << press   << int(Qt::Key_5)       << Mods(Qt::KeypadModifier)     << 0;
    QTest::newRow("Ctrl counts on its press")      << press   << int(Qt::Key_Control) << Mods()                       << 2;
    QTest::newRow("and not on its release")        << release << int(Qt::Key_Control) << Mods(Qt::ControlModifier)    << 0;
    QTest::newRow("Shift beside Alt that goes up") << release << int(Qt::Key_Alt)     << Mods(Qt::ShiftModifier | Qt::AltModifier) << 1;
    // clang-format on
}

void tst_KeyCodes::modifiersAreShiftStates()
{
    QFETCH(QEvent::Type, type);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, shift);
    QCOMPARE(shiftState(QKeyEvent(type, key, modifiers)), shift);
    QCOMPARE(shiftState(modifiersOf(shift)), shift);
}

void tst_KeyCodes::charactersHaveTheirAscii_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("ascii");
    using Mods = Qt::KeyboardModifiers;
    // clang-format off
    QTest::newRow("letter")                 << int(Qt::Key_A)         << Mods()                    << QStringLiteral("a")    << 97;
    QTest::newRow("Polish letter by AltGr") << 0x104                  << Mods(Qt::ControlModifier | Qt::AltModifier) << QStringLiteral("ą") << 0x105;
    QTest::newRow("Ctrl+letter")            << int(Qt::Key_A)         << Mods(Qt::ControlModifier) << QStringLiteral("\x01") << 0;
    QTest::newRow("Alt+letter")             << int(Qt::Key_A)         << Mods(Qt::AltModifier)     << QStringLiteral("a")    << 0;
    QTest::newRow("Backspace")              << int(Qt::Key_Backspace) << Mods()                    << QStringLiteral("\b")   << 8;
    QTest::newRow("Enter of the keypad")    << int(Qt::Key_Enter)     << Mods(Qt::KeypadModifier)  << QStringLiteral("\r")   << 13;
    QTest::newRow("Escape")                 << int(Qt::Key_Escape)    << Mods()                    << QStringLiteral("\x1b") << 27;
    QTest::newRow("Delete")                 << int(Qt::Key_Delete)    << Mods()                    << QStringLiteral("\x7f") << 0;
    QTest::newRow("arrow")                  << int(Qt::Key_Up)        << Mods()                    << QString()              << 0;
    // clang-format on
}

void tst_KeyCodes::charactersHaveTheirAscii()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QFETCH(int, ascii);
    QCOMPARE(keyAscii(QKeyEvent(press, key, modifiers, text)), ascii);
}

void tst_KeyCodes::codesBecomeKeysAgain()
{
    for (int code = 1; code < 256; ++code) {
        const Qt::Key key = toolkitKey(code);
        const bool isKeypad = code >= 96 && code <= 111;
        if (key == Qt::Key_unknown || isKeypad) // the keypad's keys are told apart by their modifier only
            continue;
        QCOMPARE(keyCode(QKeyEvent(press, key, Qt::NoModifier)), code);
    }
    QCOMPARE(toolkitKey(250), Qt::Key_unknown);
}

void tst_KeyCodes::codesTypeWhatAPlainKeyboardDoes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("shift");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("letter")              << 65  << 0 << QStringLiteral("a");
    QTest::newRow("capital")             << 65  << 1 << QStringLiteral("A");
    QTest::newRow("digit of the keypad") << 101 << 0 << QStringLiteral("5");
    QTest::newRow("shifted digit")       << 49  << 1 << QStringLiteral("!");
    QTest::newRow("with Ctrl nothing")   << 65  << 2 << QString();
    QTest::newRow("arrow")               << 38  << 0 << QString();
    // clang-format on
}

void tst_KeyCodes::codesTypeWhatAPlainKeyboardDoes()
{
    QFETCH(int, code);
    QFETCH(int, shift);
    QFETCH(QString, text);
    QCOMPARE(plainText(code, shift), text);
}

void tst_KeyCodes::aPressOfACodeIsThatKey()
{
    const QKeyEvent event = pressOf('A', ShiftState::Shift);
    QCOMPARE(event.type(), press);
    QCOMPARE(event.key(), int(Qt::Key_A));
    QCOMPARE(event.modifiers(), Qt::ShiftModifier);
    QCOMPARE(event.text(), QStringLiteral("A"));
}

void tst_KeyCodes::withoutItsTextAPressTypesNothing()
{
    const QKeyEvent event = withoutText(QKeyEvent(press, Qt::Key_A, Qt::AltModifier, QStringLiteral("a"), true));
    QCOMPARE(event.key(), int(Qt::Key_A));
    QCOMPARE(event.modifiers(), Qt::AltModifier);
    QCOMPARE(event.text(), QString());
    QVERIFY(event.isAutoRepeat());
}

void tst_KeyCodes::inputMethodsHaveKeysOfTheirOwn_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isTheirs");
    // clang-format off
    QTest::newRow("Shift, held for the next letter")   << int(Qt::Key_Shift)      << true;
    QTest::newRow("AltGr, held for the next letter")   << int(Qt::Key_AltGr)      << true;
    QTest::newRow("CapsLock")                          << int(Qt::Key_CapsLock)   << true;
    QTest::newRow("the system's own modifier")         << int(Qt::Key_Super_L)    << true;
    QTest::newRow("the key that begins a composition") << int(Qt::Key_Multi_key)  << true;
    QTest::newRow("a dead key")                        << int(Qt::Key_Dead_Acute) << true;
    QTest::newRow("a letter")                          << int(Qt::Key_A)          << false;
    QTest::newRow("a letter beyond Latin-1")           << 0x142                   << false;
    QTest::newRow("an arrow")                          << int(Qt::Key_Left)       << false;
    QTest::newRow("a function key")                    << int(Qt::Key_F4)         << false;
    QTest::newRow("Enter of the keypad")               << int(Qt::Key_Enter)      << false;
    // clang-format on
}

void tst_KeyCodes::inputMethodsHaveKeysOfTheirOwn()
{
    QFETCH(int, key);
    QTEST(isKeyOfInputMethods(QKeyEvent(press, key, {})), "isTheirs");
}

void tst_KeyCodes::buttonsAreSums()
{
    QCOMPARE(mouseButtons(Qt::NoButton), 0);
    QCOMPARE(mouseButtons(Qt::LeftButton | Qt::MiddleButton), 5);
    QCOMPARE(mouseButtons(Qt::RightButton), 2);
}

QTEST_MAIN(tst_KeyCodes)
#include "tst_keycodes.moc"
