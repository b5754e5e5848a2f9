// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/linescroll.h"
#include "constituents/flexgrid/linesizes.h"

#include <QtTest/QtTest>

#include <limits>
#include <numeric>
#include <random>
#include <vector>

using namespace kor;

//! Heights of rows and widths of columns, and where each of them begins.
class tst_LineSizes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void takesWholePixels_data();
    void takesWholePixels();
    void findsTheLineAtAPlace_data();
    void findsTheLineAtAPlace();
    void changesMoveWhatLiesBehind();
    void defaultChangesLinesWithoutASizeOfTheirOwn();
    void measuredSizesAreForgottenGivenOnesKept();
    void addsUpTheSizesOfTheMostLines_data();
    void addsUpTheSizesOfTheMostLines();
    void findsWhatIsShown_data();
    void findsWhatIsShown();
    void scrollsAsFarAsNeeded_data();
    void scrollsAsFarAsNeeded();
    void agreesWithPlainSums_data();
    void agreesWithPlainSums();
};

void tst_LineSizes::takesWholePixels_data()
{
    QTest::addColumn<int>("twips");
    QTest::addColumn<double>("twipsPerPixel");
    QTest::addColumn<int>("pixels");
    QTest::newRow("usual row") << 285 << 15.0 << 19;
    QTest::newRow("half a pixel counts whole") << 285 << 10.0 << 29;
    QTest::newRow("less than half a pixel is dropped") << 307 << 15.0 << 20;
    QTest::newRow("a twip is seen") << 1 << 15.0 << 1;
    QTest::newRow("nothing is not seen") << 0 << 15.0 << 0;
    QTest::newRow("no more than can be painted") << std::numeric_limits<int>::max() << 15.0 << 32767;
}

void tst_LineSizes::takesWholePixels()
{
    QFETCH(int, twips);
    QFETCH(double, twipsPerPixel);
    LineSizes lines(3, twips);
    lines.setTwipsPerPixel(twipsPerPixel);
    QTEST(lines.pixels(1), "pixels");
    QCOMPARE(lines.offset(3), 3 * lines.pixels(1));
    lines.setSize(1, twips);
    QTEST(lines.pixels(1), "pixels");
    QCOMPARE(lines.offset(3), 3 * lines.pixels(1));
    QCOMPARE(lines.size(1), twips);
}

void tst_LineSizes::findsTheLineAtAPlace_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("line");
    // lines of 20, 30, 0, 20 and 20 pixels
    QTest::newRow("first pixel") << 0 << 0;
    QTest::newRow("last pixel of a line") << 19 << 0;
    QTest::newRow("first pixel of the next") << 20 << 1;
    QTest::newRow("line without a size is passed over") << 50 << 3;
    QTest::newRow("last line") << 89 << 4;
    QTest::newRow("behind the last line") << 90 << 5;
    QTest::newRow("far behind the last line") << 100000 << 5;
}

void tst_LineSizes::findsTheLineAtAPlace()
{
    QFETCH(int, offset);
    LineSizes lines(5, 300);
    lines.setSize(1, 450);
    lines.setSize(2, 0);
    QTEST(lines.lineAt(offset), "line");
}

void tst_LineSizes::changesMoveWhatLiesBehind()
{
    LineSizes lines(5, 300);
    lines.setSize(3, 600);
    QCOMPARE(lines.offset(5), 120);
    lines.insert(1, 2);
    QCOMPARE(lines.size(5), 600);
    QCOMPARE(lines.offset(6), 140);
    lines.remove(0, 1);
    QCOMPARE(lines.size(4), 600);
    QVERIFY(lines.origin(4) == SizeOrigin::Given);
    lines.remove(4, 1);
    QCOMPARE(lines.count(), 5);
    QCOMPARE(lines.offset(5), 100);
    lines.setSize(4, 150);
    lines.insert(5, 3);
    QCOMPARE(lines.offset(8), 150);
    lines.resetSize(4);
    QCOMPARE(lines.offset(8), 160);
    QVERIFY(lines.origin(4) == SizeOrigin::Default);
}

void tst_LineSizes::defaultChangesLinesWithoutASizeOfTheirOwn()
{
    LineSizes lines(4, 300);
    lines.setSize(1, 150);
    lines.setDefaultSize(600);
    QCOMPARE(lines.offset(4), 130);
    QCOMPARE(lines.lineAt(40), 1);
    lines.setTwipsPerPixel(10.0);
    QCOMPARE(lines.offset(4), 195);
}

void tst_LineSizes::measuredSizesAreForgottenGivenOnesKept()
{
    LineSizes lines(4, 300);
    lines.forgetMeasured();
    lines.setSize(1, 150);
    lines.setSize(2, 600, SizeOrigin::Measured);
    QCOMPARE(lines.offset(4), 90);
    lines.forgetMeasured();
    QCOMPARE(lines.size(2), 300);
    QVERIFY(lines.origin(2) == SizeOrigin::Default);
    QCOMPARE(lines.size(1), 150);
    QCOMPARE(lines.offset(4), 70);
}

void tst_LineSizes::addsUpTheSizesOfTheMostLines_data()
{
    QTest::addColumn<bool>("hasOwnSize");
    QTest::newRow("all alike") << false;
    QTest::newRow("one of its own size") << true;
}

void tst_LineSizes::addsUpTheSizesOfTheMostLines()
{
    QFETCH(bool, hasOwnSize);
    constexpr int most = 16777216;
    LineSizes lines(most, std::numeric_limits<int>::max());
    if (hasOwnSize)
        lines.setSize(0, 15);
    const std::int64_t expected = most * std::int64_t{32767} - (hasOwnSize ? 32766 : 0);
    QCOMPARE(lines.offset(most), expected);
    QCOMPARE(lines.lineAt(expected - 1), most - 1);
    QCOMPARE(lines.lineAt(expected), most);
    QCOMPARE(lines.distance(most - 2, most - 1), 32767);
    QCOMPARE(lines.distance(most - 1, most - 2), -32767);
    QCOMPARE(lines.distance(1, most), 1 << 26);
    QCOMPARE(lines.distance(most, 1), -(1 << 26));
}

void tst_LineSizes::findsWhatIsShown_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("behindShown");
    QTest::addColumn<int>("whole");
    QTest::addColumn<int>("lastFirst");
    // lines of 20, 20, 30, 0, 20 and 20 pixels; line 0 holds the titles
    QTest::newRow("all fit") << 1 << 90 << 6 << 5 << 1;
    QTest::newRow("all fit with room to spare") << 1 << 500 << 6 << 5 << 1;
    QTest::newRow("last one is cut off") << 1 << 89 << 6 << 4 << 2;
    QTest::newRow("a pixel of a line counts as shown") << 1 << 21 << 3 << 1 << 5;
    QTest::newRow("none fits whole") << 2 << 29 << 3 << 1 << 5;
    QTest::newRow("from a hidden line on") << 3 << 40 << 6 << 3 << 4;
    QTest::newRow("blank space behind the last") << 5 << 90 << 6 << 1 << 1;
    QTest::newRow("no room") << 1 << 0 << 1 << 1 << 5;
}

void tst_LineSizes::findsWhatIsShown()
{
    QFETCH(int, first);
    QFETCH(int, room);
    LineSizes lines(6, 300);
    lines.setSize(2, 450);
    lines.setSize(3, 0);
    QTEST(shownEnd(lines, first, room), "behindShown");
    QTEST(wholeLines(lines, first, room), "whole");
    QTEST(lastFirst(lines, room), "lastFirst");
}

void tst_LineSizes::scrollsAsFarAsNeeded_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("newFirst");
    // lines of 20 pixels, line 5 of 50, in a room of 65
    QTest::newRow("shown") << 1 << 3 << 1;
    QTest::newRow("cut off below") << 1 << 4 << 2;
    QTest::newRow("above") << 4 << 2 << 2;
    QTest::newRow("far below") << 1 << 10 << 8;
    QTest::newRow("higher one below") << 1 << 5 << 5;
    QTest::newRow("behind the higher one") << 1 << 6 << 6;
}

void tst_LineSizes::scrollsAsFarAsNeeded()
{
    QFETCH(int, first);
    QFETCH(int, line);
    LineSizes lines(20, 300);
    lines.setSize(5, 750);
    QTEST(firstToShow(lines, first, line, 65), "newFirst");
}

void tst_LineSizes::agreesWithPlainSums_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 2U, 3U, 4U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_LineSizes::agreesWithPlainSums()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    LineSizes lines(3, 285);
    std::vector<int> plain(3, 19);
    for (int step = 0; step < 2000; ++step) {
        const int count = static_cast<int>(plain.size());
        const int line = below(count);
        switch (below(5)) {
        case 0: {
            const int first = below(3) == 0 ? line : count;
            lines.insert(first, 4);
            plain.insert(plain.begin() + first, 4, 19);
            break;
        }
        case 1: {
            const int number = std::min(1 + below(3), count - line);
            if (number == count)
                break;
            lines.remove(line, number);
            plain.erase(plain.begin() + line, plain.begin() + line + number);
            break;
        }
        default: {
            const int pixels = below(40);
            lines.setSize(line, pixels * 15);
            plain[static_cast<std::size_t>(line)] = pixels;
        }
        }
        QCOMPARE(lines.count(), static_cast<int>(plain.size()));
        const int probe = below(lines.count() + 1);
        QCOMPARE(lines.offset(probe), std::accumulate(plain.begin(), plain.begin() + probe, 0));
        if (probe < lines.count() && plain[static_cast<std::size_t>(probe)] > 0) {
            QCOMPARE(lines.lineAt(lines.offset(probe)), probe);
            QCOMPARE(lines.lineAt(lines.offset(probe + 1) - 1), probe);
        }
    }
}

QTEST_GUILESS_MAIN(tst_LineSizes)
#include "tst_linesizes.moc"
