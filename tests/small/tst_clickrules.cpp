// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/clickrules.h"

#include <QtTest/QtTest>

using namespace kor;

//! What a click field does with a key, for every key, shift state and setting.
class tst_ClickRules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keysAreAnswered_data();
    void keysAreAnswered();
    void everyOtherKeyIsPassedOn();
};

namespace {

//! One letter for each answer: the tables below stay in line.
char letterOf(ClickKeyAnswer answer)
{
    switch (answer) {
    case ClickKeyAnswer::PassOn: return '.';
    case ClickKeyAnswer::ReportAndSwallow: return 'r';
    case ClickKeyAnswer::AskHost: return '!';
    case ClickKeyAnswer::ClearAndPassOn: return 'c';
    }
    return '?';
}

} // namespace

void tst_ClickRules::keysAreAnswered_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("blockUpDown");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<QByteArray>("answers"); // for shift states 0 to 7: none, S, C, SC, A, SA, CA, SCA
    // clang-format off
    QTest::newRow("Up")                           << 38  << false << false << QByteArray("........");
    QTest::newRow("Down")                         << 40  << false << false << QByteArray("....!...");
    QTest::newRow("Up, blocked")                  << 38  << true  << false << QByteArray("r.r.....");
    QTest::newRow("Down, blocked")                << 40  << true  << false << QByteArray("r.r.!...");
    QTest::newRow("Up, blocked and locked")       << 38  << true  << true  << QByteArray("r.r.....");
    QTest::newRow("Down, blocked and locked")     << 40  << true  << true  << QByteArray("r.r.!...");
    QTest::newRow("Down, locked")                 << 40  << false << true  << QByteArray("....!...");
    QTest::newRow("Left")                         << 37  << false << false << QByteArray("....!...");
    QTest::newRow("Left, blocked")                << 37  << true  << false << QByteArray("....!...");
    QTest::newRow("Right")                        << 39  << true  << false << QByteArray("........");
    QTest::newRow("F4")                           << 115 << false << false << QByteArray("!!!!....");
    QTest::newRow("F4, blocked and locked")       << 115 << true  << true  << QByteArray("!!!!....");
    QTest::newRow("F3")                           << 114 << true  << true  << QByteArray("........");
    QTest::newRow("F5")                           << 116 << true  << true  << QByteArray("........");
    QTest::newRow("Delete")                       << 46  << false << false << QByteArray("........");
    QTest::newRow("Delete, blocked")              << 46  << true  << false << QByteArray("........");
    QTest::newRow("Delete, locked")               << 46  << false << true  << QByteArray("cccccccc");
    QTest::newRow("Delete, blocked and locked")   << 46  << true  << true  << QByteArray("cccccccc");
    QTest::newRow("Backspace, locked")            << 8   << false << true  << QByteArray("........");
    QTest::newRow("Enter")                        << 13  << true  << true  << QByteArray("........");
    QTest::newRow("a letter")                     << 65  << true  << true  << QByteArray("........");
    // clang-format on
}

void tst_ClickRules::keysAreAnswered()
{
    QFETCH(int, key);
    QFETCH(bool, blockUpDown);
    QFETCH(bool, locked);
    QByteArray answers;
    for (int shift = 0; shift < 8; ++shift)
        answers += letterOf(judgeClickKey(key, shift, {blockUpDown, locked}));
    QTEST(answers, "answers");
}

void tst_ClickRules::everyOtherKeyIsPassedOn()
{
    const QList<int> answered{37, 38, 40, 46, 115};
    for (int key = 0; key < 256; ++key) {
        if (answered.contains(key))
            continue;
        for (int shift = 0; shift < 8; ++shift) {
            for (const bool set : {false, true})
                QCOMPARE(judgeClickKey(key, shift, {set, set}), ClickKeyAnswer::PassOn);
        }
    }
}

QTEST_APPLESS_MAIN(tst_ClickRules)
#include "tst_clickrules.moc"
