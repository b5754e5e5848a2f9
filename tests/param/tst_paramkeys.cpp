// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/keycodes.h"
#include "param/paramkeys.h"

#include <QtTest/QtTest>

using namespace kor;

//! What a key does in an open editor of the sheet.
class tst_ParamKeys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysLeadToARow_data();
    void keysLeadToARow();
    void keysEndTheEditing_data();
    void keysEndTheEditing();
    void twoKeysClearAChoice();
};

void tst_ParamKeys::keysLeadToARow_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("shift");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("leadsTo"); // -1 for no move
    const int plain = ShiftState::None;
    const int ctrl = ShiftState::Ctrl;
    // Ten rows with the titles, four of them seen at a time.
    // clang-format off
    QTest::newRow("Down: the next row")                 << int(Key::Down)     << plain << 3 << 4;
    QTest::newRow("Down in the last row: stays")        << int(Key::Down)     << plain << 9 << 9;
    QTest::newRow("Up: the row above")                  << int(Key::Up)       << plain << 3 << 2;
    QTest::newRow("Up in the first row: stays")         << int(Key::Up)       << plain << 1 << 1;
    QTest::newRow("Down with Shift: no move")           << int(Key::Down)     << int(ShiftState::Shift) << 3 << -1;
    QTest::newRow("Down with Ctrl: no move")            << int(Key::Down)     << ctrl  << 3 << -1;
    QTest::newRow("Down with Alt: no move")             << int(Key::Down)     << int(ShiftState::Alt) << 3 << -1;
    QTest::newRow("Up with Shift: no move")             << int(Key::Up)       << int(ShiftState::Shift) << 3 << -1;
    QTest::newRow("Up with Ctrl: no move")              << int(Key::Up)       << ctrl  << 3 << -1;
    QTest::newRow("Page Down: a page")                  << int(Key::PageDown) << plain << 3 << 7;
    QTest::newRow("Page Down near the end: the last")   << int(Key::PageDown) << plain << 7 << 9;
    QTest::newRow("Page Up: a page")                    << int(Key::PageUp)   << plain << 6 << 2;
    QTest::newRow("Page Up near the start: the first")  << int(Key::PageUp)   << plain << 3 << 1;
    QTest::newRow("Ctrl+Page Down: the last")           << int(Key::PageDown) << ctrl  << 2 << 9;
    QTest::newRow("Ctrl+Page Up: the first")            << int(Key::PageUp)   << ctrl  << 8 << 1;
    QTest::newRow("Page Down with Shift: no move")      << int(Key::PageDown) << int(ShiftState::Shift) << 2 << -1;
    QTest::newRow("Ctrl+End: the last")                 << int(Key::End)      << ctrl  << 2 << 9;
    QTest::newRow("Ctrl+Home: the first")               << int(Key::Home)     << ctrl  << 9 << 1;
    QTest::newRow("Home: the editor's")                 << int(Key::Home)     << plain << 9 << -1;
    QTest::newRow("End with Shift: the editor's")       << int(Key::End)      << int(ShiftState::Shift) << 9 << -1;
    QTest::newRow("Left: the editor's")                 << int(Key::Left)     << plain << 3 << -1;
    QTest::newRow("no key at all")                      << int(Key::None)     << plain << 3 << -1;
    // clang-format on
}

void tst_ParamKeys::keysLeadToARow()
{
    QFETCH(int, code);
    QFETCH(int, shift);
    QFETCH(int, row);
    QFETCH(int, leadsTo);
    QCOMPARE(rowAfterKey(code, shift, {row, 10, 4}).value_or(-1), leadsTo);
}

void tst_ParamKeys::keysEndTheEditing_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("shift");
    QTest::addColumn<int>("end");
    QTest::newRow("Escape gives up") << int(Key::Escape) << 0 << int(ParamEnd::GiveUp);
    QTest::newRow("Enter takes") << int(Key::Enter) << 0 << int(ParamEnd::Take);
    QTest::newRow("F2 takes") << int(Key::F2) << 0 << int(ParamEnd::Take);
    QTest::newRow("Ctrl+Enter is the editor's") << int(Key::Enter) << int(ShiftState::Ctrl) << int(ParamEnd::None);
    QTest::newRow("Shift+Escape is the editor's") << int(Key::Escape) << int(ShiftState::Shift) << int(ParamEnd::None);
    QTest::newRow("Down only moves") << int(Key::Down) << 0 << int(ParamEnd::None);
}

void tst_ParamKeys::keysEndTheEditing()
{
    QFETCH(int, code);
    QFETCH(int, shift);
    QTEST(int(endOfKey(code, shift)), "end");
}

void tst_ParamKeys::twoKeysClearAChoice()
{
    QVERIFY(clearsChoice(8));
    QVERIFY(clearsChoice(46));
    QVERIFY(!clearsChoice(Key::Space) && !clearsChoice(Key::None) && !clearsChoice(Key::Insert));
}

QTEST_MAIN(tst_ParamKeys)
#include "tst_paramkeys.moc"
