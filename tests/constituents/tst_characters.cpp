// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/characters.h"

#include <QtTest/QtTest>

using namespace kor;

//! Where a text may be cut, and where a caret may stand.
class tst_Characters : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsCutInTwo_data();
    void nothingIsCutInTwo();
    void everyCutOfATextIsWhole();
    void aPlaceIsBesideACharacter();
    void aCharacterIsOneUnitOrAPair();
};

void tst_Characters::nothingIsCutInTwo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("kept");
    // clang-format off
    QTest::newRow("all of it")                      << u"abc"_qs            << 3  << u"abc"_qs;
    QTest::newRow("more than all")                  << u"abc"_qs            << 9  << u"abc"_qs;
    QTest::newRow("letters")                        << u"abc"_qs            << 2  << u"ab"_qs;
    QTest::newRow("none")                           << u"abc"_qs            << 0  << QString();
    QTest::newRow("no room at all")                 << u"abc"_qs            << -1 << QString();
    QTest::newRow("empty text")                     << QString()            << 4  << QString();
    QTest::newRow("inside a pair")                  << u"a😀b"_qs           << 2  << u"a"_qs;
    QTest::newRow("behind a pair")                  << u"a😀b"_qs           << 3  << u"a😀"_qs;
    QTest::newRow("a pair that has no room")        << u"😀"_qs             << 1  << QString();
    QTest::newRow("a letter and its accent")        << u"xe\u0301y"_qs      << 2  << u"x"_qs;
    QTest::newRow("an accent that has room")        << u"xe\u0301y"_qs      << 3  << u"xe\u0301"_qs;
    QTest::newRow("a family of three")              << u"a👨‍👩‍👧"_qs   << 5  << u"a"_qs;
    QTest::newRow("a flag")                         << u"a🇵🇱"_qs           << 3  << u"a"_qs;
    QTest::newRow("between two flags")              << u"🇵🇱🇵🇱"_qs         << 4  << u"🇵🇱"_qs;
    // clang-format on
}

void tst_Characters::nothingIsCutInTwo()
{
    QFETCH(QString, text);
    QFETCH(int, length);
    QTEST(wholeCharacters(text, length), "kept");
}

void tst_Characters::everyCutOfATextIsWhole()
{
    const QString text = u"zażółć 😀 gęślą e\u0301 🇵🇱 jaźń 👩‍🚀 \r\n koniec 𝔘𝔫𝔦"_qs;
    for (qsizetype length = 0; length <= text.size(); ++length) {
        const QString kept = wholeCharacters(text, length);
        QVERIFY(kept.size() <= length);
        QVERIFY(text.startsWith(kept));
        QVERIFY(kept.isValidUtf16());
        QVERIFY(text.mid(kept.size()).isValidUtf16());
    }
}

void tst_Characters::aPlaceIsBesideACharacter()
{
    const QString text = u"a😀b"_qs;
    QList<int> places;
    for (int place = 0; place <= text.size(); ++place)
        places << static_cast<int>(placeOfCharacter(text, place));
    QCOMPARE(places, (QList<int>{0, 1, 1, 3, 4}));
    QCOMPARE(placeOfCharacter(QString(QChar(0xDE00)), 0), 0);
}

void tst_Characters::aCharacterIsOneUnitOrAPair()
{
    const QString text = u"a😀"_qs + QChar(0xD83D);
    QCOMPARE(characterAt(text, 0), u"a"_qs);
    QCOMPARE(characterAt(text, 1), u"😀"_qs);
    QCOMPARE(characterAt(text, 2), QString(QChar(0xDE00)));
    QCOMPARE(characterAt(text, 3), QString(QChar(0xD83D)));
}

QTEST_APPLESS_MAIN(tst_Characters)
#include "tst_characters.moc"
