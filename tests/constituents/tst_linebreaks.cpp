// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/linebreaks.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

using namespace kor;

//! Line breaks on their way into an editor and back.
class tst_LineBreaks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void breaksComeBack_data();
    void breaksComeBack();
    void positionsAreTranslated_data();
    void positionsAreTranslated();
    void whatIsNotTouchedComesBackAsItCameIn();
    void anyEditGivesTheEditedText();
    void textIsCutToTheRoom_data();
    void textIsCutToTheRoom();
};

void tst_LineBreaks::breaksComeBack_data()
{
    QTest::addColumn<QString>("original");
    QTest::addColumn<QString>("edited");
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("untouched")                     << QStringLiteral("a\r\nb")       << QStringLiteral("a\nb")     << QStringLiteral("a\r\nb");
    QTest::newRow("untouched, mixed")              << QStringLiteral("a\r\nb\nc\rd") << QStringLiteral("a\nb\nc\nd") << QStringLiteral("a\r\nb\nc\rd");
    QTest::newRow("typed at the end")              << QStringLiteral("a\r\nb")       << QStringLiteral("a\nbX")    << QStringLiteral("a\r\nbX");
    QTest::newRow("typed at the beginning")        << QStringLiteral("a\r\nb")       << QStringLiteral("Xa\nb")    << QStringLiteral("Xa\r\nb");
    QTest::newRow("new break like the first")      << QStringLiteral("a\r\nb")       << QStringLiteral("a\nb\nc")  << QStringLiteral("a\r\nb\r\nc");
    QTest::newRow("new break in plain text")       << QStringLiteral("ab")           << QStringLiteral("a\nb")     << QStringLiteral("a\nb");
    QTest::newRow("break removed")                 << QStringLiteral("a\r\nb")       << QStringLiteral("ab")       << QStringLiteral("ab");
    QTest::newRow("everything replaced")           << QStringLiteral("a\r\nb")       << QStringLiteral("x\ny")     << QStringLiteral("x\r\ny");
    QTest::newRow("emptied")                       << QStringLiteral("a\r\nb")       << QString()                  << QString();
    QTest::newRow("from empty")                    << QString()                      << QStringLiteral("a\nb")     << QStringLiteral("a\nb");
    QTest::newRow("change between mixed breaks")   << QStringLiteral("a\nb\r\nc")    << QStringLiteral("a\nX\nc")  << QStringLiteral("a\nX\r\nc");
    // clang-format on
}

void tst_LineBreaks::breaksComeBack()
{
    QFETCH(QString, original);
    QFETCH(QString, edited);
    QTEST(fromEditorText(edited, original), "text");
}

void tst_LineBreaks::positionsAreTranslated_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("inEditor"); // for each place of the text
    // clang-format off
    QTest::newRow("plain")        << QStringLiteral("abc")        << QList<int>{0, 1, 2, 3};
    QTest::newRow("line feed")    << QStringLiteral("a\nb")       << QList<int>{0, 1, 2, 3};
    QTest::newRow("two together") << QStringLiteral("a\r\nb")     << QList<int>{0, 1, 1, 2, 3};
    QTest::newRow("at the end")   << QStringLiteral("a\r\n")      << QList<int>{0, 1, 1, 2};
    QTest::newRow("several")      << QStringLiteral("\r\n\r\n\n") << QList<int>{0, 0, 1, 1, 2, 3};
    // clang-format on
}

void tst_LineBreaks::positionsAreTranslated()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, inEditor);
    for (int place = 0; place <= text.size(); ++place) {
        QCOMPARE(toEditorPosition(text, place), inEditor.at(place));
        const int back = fromEditorPosition(text, inEditor.at(place));
        QVERIFY(back <= place);
        QCOMPARE(toEditorPosition(text, back), inEditor.at(place));
    }
    QCOMPARE(toEditorPosition(text, 99), inEditor.last());
    QCOMPARE(fromEditorPosition(text, 99), static_cast<int>(text.size()));
    QCOMPARE(toEditorPosition(text, -1), 0);
}

namespace {

QString randomText(QRandomGenerator &random)
{
    const QStringList pieces{QStringLiteral("a"),  QStringLiteral("ż"),     QStringLiteral("\r\n"),
                             QStringLiteral("\n"), QStringLiteral("\r"),    QStringLiteral("\u00A0"),
                             QStringLiteral("\t"), QStringLiteral("\uFDD0")};
    QString text;
    for (int count = random.bounded(12); count > 0; --count)
        text += pieces.at(random.bounded(static_cast<int>(pieces.size())));
    return text;
}

} // namespace

void tst_LineBreaks::whatIsNotTouchedComesBackAsItCameIn()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 5000; ++round) {
        const QString text = randomText(random);
        QCOMPARE(fromEditorText(toEditorText(text), text), text);
    }
}

void tst_LineBreaks::anyEditGivesTheEditedText()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 5000; ++round) {
        const QString original = randomText(random);
        const QString edited = toEditorText(randomText(random));
        QCOMPARE(toEditorText(fromEditorText(edited, original)), edited);
    }
}

void tst_LineBreaks::textIsCutToTheRoom_data()
{
    QTest::addColumn<QString>("edited");
    QTest::addColumn<QString>("lineBreak");
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("text");
    const QString two = QStringLiteral("\r\n");
    const QString one = QStringLiteral("\n");
    // clang-format off
    QTest::newRow("all of it")                  << QStringLiteral("a\nb")   << one << 3 << QStringLiteral("a\nb");
    QTest::newRow("cut")                        << QStringLiteral("a\nb")   << one << 2 << QStringLiteral("a\n");
    QTest::newRow("breaks of two, all of it")   << QStringLiteral("a\nb")   << two << 4 << QStringLiteral("a\nb");
    QTest::newRow("breaks of two, cut")         << QStringLiteral("a\nb")   << two << 3 << QStringLiteral("a\n");
    QTest::newRow("no half of a break")         << QStringLiteral("a\nb")   << two << 2 << QStringLiteral("a");
    QTest::newRow("no half of an emoji")        << QStringLiteral("a😀b")   << one << 2 << QStringLiteral("a");
    QTest::newRow("a whole emoji")              << QStringLiteral("a😀b")   << one << 3 << QStringLiteral("a😀");
    QTest::newRow("no room")                    << QStringLiteral("abc")    << one << 0 << QString();
    QTest::newRow("nothing")                    << QString()                << one << 5 << QString();
    // clang-format on
}

void tst_LineBreaks::textIsCutToTheRoom()
{
    QFETCH(QString, edited);
    QFETCH(QString, lineBreak);
    QFETCH(int, room);
    QTEST(fittingText(edited, lineBreak, room), "text");
}

QTEST_APPLESS_MAIN(tst_LineBreaks)
#include "tst_linebreaks.moc"
