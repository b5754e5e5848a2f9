// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

#include <KorDaoUC/RunTimeError>

#include <algorithm>

using namespace kor;
using namespace kor::test;

//! Columns as a program describes them.
class tst_KorGrid_Columns : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void theFirstColumnReusesTheOneThatAFreshGridHas();
    void aTitleWrittenByTheProgramMakesTheFirstColumnAppend();
    void anEmptyTitleIsReusedOnlyForTheFirstColumn();
    void keywordsAreTakenExactly_data();
    void keywordsAreTakenExactly();
    void aColumnWithoutWidthIsLocked_data();
    void aColumnWithoutWidthIsLocked();
    void addingAColumnOpensNothingAndRaisesNothing();
    void moreColumnsThanAnIntegerCountsAreRefused();
    void anAlignmentBeyondAnIntegerChangesNothing();
    void cellsTakeAlignmentAndColourOfTheirColumn();
    void rowSelIsZeroUnlessWholeRowsAreSelected();
    void slownikIsThatOfTheOpenListAlone();
    void cellsOfAColumnWithoutDescriptionAreTexts();
    void theLetsOfTheGridReportTheirProperty();
};

void tst_KorGrid_Columns::theFirstColumnReusesTheOneThatAFreshGridHas()
{
    QCOMPARE(grid->Cols(), 2);
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0), 1);
    QCOMPARE(grid->Cols(), 2);
    QCOMPARE(grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1200, 1), 2);
    QCOMPARE(grid->Cols(), 3);
    QCOMPARE(grid->TextMatrix(0, 1), QStringLiteral("Towar"));
    QCOMPARE(grid->TextMatrix(0, 2), QStringLiteral("Cena"));
    QCOMPARE(view()->columnWidth(0), 100); // 1500 twips
    QCOMPARE(view()->columnWidth(1), 80);
}

void tst_KorGrid_Columns::aTitleWrittenByTheProgramMakesTheFirstColumnAppend()
{
    grid->setTextControl(0, 1, QStringLiteral("Towar"));
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Cena"), 1500, 0), 2);
    QCOMPARE(grid->Cols(), 3);
    QCOMPARE(grid->TextMatrix(0, 1), QStringLiteral("Towar"));
}

void tst_KorGrid_Columns::anEmptyTitleIsReusedOnlyForTheFirstColumn()
{
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QString(), 1500, 0), 1);
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0), 1); // still without a title
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QString(), 1500, 0), 2);
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QString(), 1500, 0), 3);
}

void tst_KorGrid_Columns::keywordsAreTakenExactly_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("editor");
    // clang-format off
    QTest::newRow("text")              << QStringLiteral("TEXT")    << QStringLiteral("TxtBox");
    QTest::newRow("number")            << QStringLiteral("NUMBER")  << QStringLiteral("KorNum");
    QTest::newRow("click field")       << QStringLiteral("CLICK")   << QStringLiteral("KorClick");
    QTest::newRow("list")              << QStringLiteral("COMBO")   << QStringLiteral("KorCmb");
    QTest::newRow("date")              << QStringLiteral("DATE")    << QStringLiteral("KorDate");
    QTest::newRow("small letters: a text") << QStringLiteral("number") << QStringLiteral("TxtBox");
    QTest::newRow("blank behind: a text")  << QStringLiteral("DATE ")  << QStringLiteral("TxtBox");
    QTest::newRow("nothing: a text")   << QString()                 << QStringLiteral("TxtBox");
    // clang-format on
}

void tst_KorGrid_Columns::keywordsAreTakenExactly()
{
    QFETCH(QString, keyword);
    grid->AddColumn(keyword, QStringLiteral("A"), 1500, 0);
    click(1, 1);
    QTEST(openEditor(), "editor");
}

void tst_KorGrid_Columns::aColumnWithoutWidthIsLocked_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isLocked");
    QTest::newRow("no width") << 0 << true;
    QTest::newRow("negative width") << -1500 << true;
    QTest::newRow("one twip") << 1 << false;
    QTest::newRow("a usual width") << 1500 << false;
}

void tst_KorGrid_Columns::aColumnWithoutWidthIsLocked()
{
    QFETCH(int, width);
    QFETCH(bool, isLocked);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("A"), 1500, 0);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("B"), width, 0, false);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("C"), 1500, 0);
    click(1, 1);
    press(Qt::Key_Tab);
    QCOMPARE(grid->Col(), isLocked ? 3 : 2);
    if (isLocked) {
        grid->setCol(2);
        settle();
        QCOMPARE(openEditor(), QString());
    }
}

void tst_KorGrid_Columns::addingAColumnOpensNothingAndRaisesNothing()
{
    grid->setFocus();
    settle();
    press(Qt::Key_Escape);
    (void)log->take();
    QStringList reported;
    connect(grid, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("A"), 1500, 0);
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("B"), 1500, 0);
    settle();
    QCOMPARE(openEditor(), QString());
    QCOMPARE(log->take(), QString());
    QCOMPARE(reported, QStringList());
}

void tst_KorGrid_Columns::moreColumnsThanAnIntegerCountsAreRefused()
{
    grid->setTextControl(0, 1, QStringLiteral("A"));
    grid->setCols(32766);
    QCOMPARE(grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("B"), 1500, 0), 32766);
    QCOMPARE(grid->Cols(), 32767);
    try {
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("C"), 1500, 0);
        QFAIL("one too many");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 6);
    }
    QCOMPARE(grid->Cols(), 32767);
}

void tst_KorGrid_Columns::anAlignmentBeyondAnIntegerChangesNothing()
{
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("A"), 1500, 0);
    try {
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("B"), 1500, 40000);
        QFAIL("no Integer");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 6);
    }
    QCOMPARE(grid->Cols(), 2);
}

void tst_KorGrid_Columns::cellsTakeAlignmentAndColourOfTheirColumn()
{
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("A"), 1500, 0, false, QString(), 0x000000FF);
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("B"), 1500, 1);
    grid->AddColumn(QStringLiteral("DATE"), QStringLiteral("C"), 1500, 2);
    grid->setRows(3);
    grid->setBackColor(0x00FFFFFF);
    for (int column = 1; column <= 3; ++column)
        grid->setTextControl(2, column, QStringLiteral("11"));
    grid->setRow(1);
    settle();
    const QImage image = view()->viewport()->grab().toImage();
    // What is written in a cell: its place and its colour.
    const auto ink = [&](int column) {
        const QRect cell = cellRect(2, column);
        int left = cell.right();
        int right = cell.left();
        bool isRed = false;
        for (int y = cell.top(); y <= cell.bottom(); ++y) {
            for (int x = cell.left(); x <= cell.right(); ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.green() > 200)
                    continue;
                left = std::min(left, x);
                right = std::max(right, x);
                isRed = isRed || color == QColor(Qt::red);
            }
        }
        const int before = left - cell.left();
        const int behind = cell.right() - right;
        return QStringLiteral("%1%2").arg(isRed ? u"red "_qs : QString(), before < behind / 2   ? u"left"_qs
                                                                          : behind < before / 2 ? u"right"_qs
                                                                                                : u"centred"_qs);
    };
    QCOMPARE(ink(1), QStringLiteral("red left"));
    QCOMPARE(ink(2), QStringLiteral("right"));
    QCOMPARE(ink(3), QStringLiteral("centred"));
}

void tst_KorGrid_Columns::rowSelIsZeroUnlessWholeRowsAreSelected()
{
    orderColumns();
    grid->setRow(3);
    QCOMPARE(grid->RowSel(), 0);
}

void tst_KorGrid_Columns::slownikIsThatOfTheOpenListAlone()
{
    orderColumns();
    QCOMPARE(grid->Slownik(), QString());
    click(2, Unit);
    QCOMPARE(grid->Slownik(), QStringLiteral("jednostki"));
    press(Qt::Key_Tab);
    QCOMPARE(grid->Slownik(), QString());
    grid->setCol(Unit);
    QCOMPARE(grid->Slownik(), QStringLiteral("jednostki"));
    press(Qt::Key_Escape);
    QCOMPARE(grid->Slownik(), QString());
}

void tst_KorGrid_Columns::cellsOfAColumnWithoutDescriptionAreTexts()
{
    grid->setCols(4);
    click(1, 3);
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    type(QStringLiteral("abc"));
    QCOMPARE(grid->TextMatrix(1, 3), QStringLiteral("abc"));
}

void tst_KorGrid_Columns::theLetsOfTheGridReportTheirProperty()
{
    QStringList reported;
    connect(grid, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    grid->setCols(4);
    grid->setRows(5);
    grid->setRowHeightMin(400);
    grid->setWordWrap(true);
    grid->setBackStyle(0);
    grid->setBorderStyle(BorderStyleType::FixedSingle);
    grid->setRow(2);
    grid->setCol(2);
    QCOMPARE(reported,
             (QStringList{QStringLiteral("Cols"), QStringLiteral("Rows"), QStringLiteral("RowHeightMin"),
                          QStringLiteral("WordWrap"), QStringLiteral("BackStyle"), QStringLiteral("BorderStyle")}));
}

QTEST_MAIN(tst_KorGrid_Columns)
#include "tst_korgrid_columns.moc"
