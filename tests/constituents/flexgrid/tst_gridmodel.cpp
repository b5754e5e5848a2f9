// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/gridmodel.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

#include <map>
#include <random>
#include <utility>

using namespace kor;

//! The cells of a grid, as its program writes them and as the toolkit reads them.
class tst_GridModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void titlesAreTheHeaders();
    void rowsWithoutTextsAreEmpty();
    void lostColumnsComeBackEmpty();
    void textsAreShared();
    void onlyChangesAreTold();
    void quietModelTellsOnceAtTheEnd();
    void clearKeepsRowsAndColumns();
    void agreesWithPlainCells_data();
    void agreesWithPlainCells();
};

void tst_GridModel::titlesAreTheHeaders()
{
    GridModel model(3, 3);
    const QAbstractItemModelTester tester(&model);
    model.setText(0, 0, QStringLiteral("corner"));
    model.setText(0, 2, QStringLiteral("title"));
    model.setText(2, 0, QStringLiteral("fixed"));
    model.setText(2, 2, QStringLiteral("cell"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("title"));
    QCOMPARE(model.headerData(1, Qt::Vertical, Qt::DisplayRole).toString(), QStringLiteral("fixed"));
    QCOMPARE(model.index(1, 1).data().toString(), QStringLiteral("cell"));
    QCOMPARE(model.index(0, 0).data().toString(), QString());
    QVERIFY(!model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(-1, Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(!model.index(1, 1).flags().testFlag(Qt::ItemIsEditable));
}

void tst_GridModel::rowsWithoutTextsAreEmpty()
{
    CellStore cells(1'000'000'000, 10); // takes no memory until something is written
    QCOMPARE(cells.text(999'999'999, 9), QString());
    QVERIFY(!cells.setText(999'999'999, 9, QString()));
    QVERIFY(cells.setText(7, 9, QStringLiteral("x")));
    cells.removeRows(8, 999'999'992);
    QCOMPARE(cells.rows(), 8);
    QCOMPARE(cells.text(7, 9), QStringLiteral("x"));
    cells.insertRows(2, 3);
    QCOMPARE(cells.text(10, 9), QStringLiteral("x"));
    QCOMPARE(cells.text(7, 9), QString());
}

void tst_GridModel::lostColumnsComeBackEmpty()
{
    GridModel model(2, 4);
    const QAbstractItemModelTester tester(&model);
    model.setText(1, 3, QStringLiteral("x"));
    model.setFormat(1, 3, {CellAlignmentType::RightTop, 255});
    model.setColumns(2);
    model.setColumns(4);
    QCOMPARE(model.cells().text(1, 3), QString());
    QCOMPARE(model.cells().format(1, 3), CellFormat());
}

void tst_GridModel::textsAreShared()
{
    GridModel model(2, 2);
    const QString text = QStringLiteral("shared").repeated(3);
    model.setText(1, 1, text);
    QVERIFY(model.cells().text(1, 1).isSharedWith(text));
}

void tst_GridModel::onlyChangesAreTold()
{
    GridModel model(3, 3);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy titled(&model, &QAbstractItemModel::headerDataChanged);
    QVERIFY(model.setText(2, 1, QStringLiteral("x")));
    QVERIFY(!model.setText(2, 1, QStringLiteral("x")));
    QVERIFY(!model.setText(1, 1, QString()));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed[0][0].toModelIndex(), model.index(1, 0));
    QCOMPARE(titled.count(), 0);
    model.setText(0, 0, QStringLiteral("corner"));
    QCOMPARE(titled.count(), 0);
    model.setText(0, 2, QStringLiteral("title"));
    QCOMPARE(titled.count(), 1);
    QCOMPARE(titled[0][0].value<Qt::Orientation>(), Qt::Horizontal);
    QCOMPARE(titled[0][1].toInt(), 1);
    QCOMPARE(changed.count(), 1);
}

void tst_GridModel::quietModelTellsOnceAtTheEnd()
{
    GridModel model(3, 3);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setQuiet(true);
    model.setText(1, 1, QStringLiteral("x"));
    model.setText(2, 2, QStringLiteral("y"));
    QCOMPARE(changed.count(), 0);
    model.setQuiet(false);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed[0][0].toModelIndex(), model.index(0, 0));
    QCOMPARE(changed[0][1].toModelIndex(), model.index(1, 1));
    model.setQuiet(true);
    model.setQuiet(false);
    QCOMPARE(changed.count(), 1);
}

void tst_GridModel::clearKeepsRowsAndColumns()
{
    GridModel model(3, 3);
    const QAbstractItemModelTester tester(&model);
    model.setText(0, 1, QStringLiteral("title"));
    model.setText(2, 2, QStringLiteral("x"));
    model.setFormat(2, 2, {CellAlignmentType::RightTop, 255});
    model.clear();
    QCOMPARE(model.rows(), 3);
    QCOMPARE(model.columns(), 3);
    QCOMPARE(model.cells().text(0, 1), QString());
    QCOMPARE(model.cells().text(2, 2), QString());
    QCOMPARE(model.cells().format(2, 2), CellFormat());
}

void tst_GridModel::agreesWithPlainCells_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 2U, 3U, 4U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_GridModel::agreesWithPlainCells()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    GridModel model(3, 3);
    const QAbstractItemModelTester tester(&model);
    int rows = 3;
    int columns = 3;
    std::map<std::pair<int, int>, QString> plain;
    const auto moveRows = [&](int from, int by) {
        std::map<std::pair<int, int>, QString> shifted;
        for (const auto &[cell, text] : plain) {
            if (cell.first < from || (by < 0 && cell.first < from - by)) {
                if (cell.first < from)
                    shifted[cell] = text;
                continue;
            }
            shifted[{cell.first + by, cell.second}] = text;
        }
        plain = std::move(shifted);
    };
    for (int step = 0; step < 2000; ++step) {
        const int row = below(rows);
        const int column = below(columns);
        switch (below(8)) {
        case 0: {
            const int number = 1 + below(3);
            const int first = 1 + below(rows);
            model.addRows(first, number);
            moveRows(first, number);
            rows += number;
            break;
        }
        case 1: {
            const int number = std::min(1 + below(4), rows - row);
            if (row == 0)
                break;
            model.dropRows(row, number);
            moveRows(row, -number);
            rows -= number;
            break;
        }
        case 2: {
            columns = 1 + below(6);
            model.setColumns(columns);
            std::erase_if(plain, [&](const auto &cell) { return cell.first.second >= columns; });
            break;
        }
        default: {
            const QString text = below(4) == 0 ? QString() : QString::number(step);
            model.setText(row, column, text);
            plain[{row, column}] = text;
        }
        }
        QCOMPARE(model.rows(), rows);
        QCOMPARE(model.columns(), columns);
        const std::pair<int, int> probe(below(rows), below(columns));
        QCOMPARE(model.cells().text(probe.first, probe.second), plain[probe]);
    }
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            QCOMPARE(model.cells().text(row, column), (plain[{row, column}]));
    }
}

QTEST_GUILESS_MAIN(tst_GridModel)
#include "tst_gridmodel.moc"
