// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/placement.h"
#include "support/runtimeerrors.h"

#include <QtTest/QtTest>

#include <limits>

using namespace kor;

namespace {

QString said(const std::optional<EditorBox> &box)
{
    if (!box)
        return QStringLiteral("none");
    return QStringLiteral("%1 %2 %3 %4")
        .arg(box->left)
        .arg(box->top)
        .arg(box->width)
        .arg(box->height ? QString::number(*box->height) : QStringLiteral("own"));
}

} // namespace

//! Where an editor lies over its cell.
class tst_CellPlacement : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void liesExactlyOverTheCell();
    void liesInsideTheLinesOfTheCell_data();
    void liesInsideTheLinesOfTheCell();
    void sizesBeyondALongOverflow();
};

void tst_CellPlacement::liesExactlyOverTheCell()
{
    QCOMPARE(said(placeOver({3330, 300, 2000, 285}, {60, 15})), QStringLiteral("3390 315 2000 own"));
    QCOMPARE(said(placeOver({-10, -300, 5, 285}, {})), QStringLiteral("-10 -300 5 own"));
}

void tst_CellPlacement::liesInsideTheLinesOfTheCell_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("isOfDate");
    QTest::addColumn<int>("rowHeightMin");
    QTest::addColumn<QString>("place");
    // clang-format off
    QTest::newRow("less 30 each way")                          << 1000 << 285 << false << 285 << QStringLiteral("145 270 970 255");
    QTest::newRow("high row: as high as the cell")             << 1000 << 600 << false << 316 << QStringLiteral("145 270 970 570");
    QTest::newRow("date: as any other")                        << 1000 << 285 << true  << 285 << QStringLiteral("145 270 970 255");
    QTest::newRow("date at 315: fills a high cell")            << 1000 << 600 << true  << 315 << QStringLiteral("145 270 970 570");
    QTest::newRow("date at 316: one line")                     << 1000 << 600 << true  << 316 << QStringLiteral("145 270 970 255");
    QTest::newRow("date in a higher row: one line")            << 1000 << 900 << true  << 900 << QStringLiteral("145 270 970 255");
    QTest::newRow("date at 316 in a low cell: one line still") << 1000 << 200 << true  << 316 << QStringLiteral("145 270 970 255");
    QTest::newRow("just wide enough")                          << 31   << 285 << false << 285 << QStringLiteral("145 270 1 255");
    QTest::newRow("too narrow")                                << 30   << 285 << false << 285 << QStringLiteral("none");
    QTest::newRow("too low")                                   << 1000 << 30  << false << 285 << QStringLiteral("none");
    QTest::newRow("too low for a date")                        << 1000 << 29  << true  << 400 << QStringLiteral("none");
    QTest::newRow("no width")                                  << 0    << 285 << false << 285 << QStringLiteral("none");
    // clang-format on
}

void tst_CellPlacement::liesInsideTheLinesOfTheCell()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(bool, isOfDate);
    QFETCH(int, rowHeightMin);
    QTEST(said(placeInside({100, 200, width, height}, {15, 40}, {isOfDate, rowHeightMin})), "place");
}

void tst_CellPlacement::sizesBeyondALongOverflow()
{
    constexpr int least = std::numeric_limits<int>::min();
    QCOMPARE(errorOf([] { return placeInside({0, 0, 1000, least + 29}, {}, {}); }), 6);
    QCOMPARE(errorOf([] { return placeInside({0, 0, least, 285}, {}, {}); }), 6);
    QCOMPARE(said(placeInside({0, 0, 1000, least + 30}, {}, {})), QStringLiteral("none"));
}

QTEST_APPLESS_MAIN(tst_CellPlacement)
#include "tst_cellplacement.moc"
