// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "gridsuite.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

using namespace kor;
using namespace kor::test;

//! An open editor when its window closes, and when the mouse moves the lines of the grid.
class tst_KorGrid_Window : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        orderColumns();
    }
    void cleanup() { tearDown(); }

    void closingTheWindowKeepsWhatWasTyped_data();
    void closingTheWindowKeepsWhatWasTyped();
    void aButtonOfTheFormFindsTheFormattedValue();
    void draggingALineMovesTheOpenEditor();
    void draggingALineOfAnotherColumnKeepsTheEditor();
    void draggingTheScrollBarKeepsWhatIsBeingTyped();
    void aDoubleClickOnALineFitsTheTextsInSight();
    void aClickOnATitleSelectsItsColumn();

private:
    [[nodiscard]] QHeaderView *titles() const { return view()->horizontalHeader(); }
    //! On the line to the right of a column's title.
    [[nodiscard]] QPoint lineOf(int column) const
    {
        return {titles()->sectionViewportPosition(column - 1) + titles()->sectionSize(column - 1) - 1,
                titles()->height() / 2};
    }
    void dragLine(int column, int pixels)
    {
        QWidget *area = titles()->viewport();
        const QPoint from = lineOf(column);
        QTest::mouseMove(area, from);
        QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(area, from + QPoint(pixels / 2, 0));
        QTest::mouseMove(area, from + QPoint(pixels, 0));
        QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, from + QPoint(pixels, 0));
        settle();
    }
};

void tst_KorGrid_Window::closingTheWindowKeepsWhatWasTyped_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("a text") << int(Product) << QStringLiteral("deska") << QStringLiteral("deska");
    QTest::newRow("half a date") << int(Delivery) << QStringLiteral("99") << QStringLiteral("99");
    QTest::newRow("an entry") << int(Unit) << QStringLiteral("k") << QStringLiteral("karton");
    QTest::newRow("a text that wraps") << int(Remark) << QStringLiteral("pilne") << QStringLiteral("pilne");
}

void tst_KorGrid_Window::closingTheWindowKeepsWhatWasTyped()
{
    QFETCH(int, column);
    QFETCH(QString, typed);
    click(2, column);
    type(typed);
    stage->close();
    settle();
    QTEST(grid->TextMatrix(2, column), "kept");
    stage->show();
    settle();
    QTEST(grid->TextMatrix(2, column), "kept");
}

void tst_KorGrid_Window::aButtonOfTheFormFindsTheFormattedValue()
{
    QVariant found;
    connect(stage->button(), &QPushButton::clicked, this, [&] { found = grid->Value(2, Price); });
    click(2, Price);
    type(QStringLiteral("1234,5"));
    QTest::mouseClick(stage->button(), Qt::LeftButton);
    settle();
    QCOMPARE(found, QVariant(1234.5));
    QCOMPARE(grid->TextMatrix(2, Price), QStringLiteral("1\u00a0234,50"));
    QCOMPARE(openEditor(), QString());
}

void tst_KorGrid_Window::draggingALineMovesTheOpenEditor()
{
    click(2, Price);
    type(QStringLiteral("12"));
    const QRect before = editor("KorNum")->geometry();
    dragLine(Price, 40);
    const QRect after = editor("KorNum")->geometry();
    QCOMPARE(after.topLeft(), before.topLeft());
    QCOMPARE(after.width(), before.width() + 40);
    QCOMPARE(openEditor(), QStringLiteral("KorNum"));
    type(QStringLiteral("5"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("125"));
}

void tst_KorGrid_Window::draggingALineOfAnotherColumnKeepsTheEditor()
{
    click(2, Price);
    type(QStringLiteral("12"));
    const QRect before = editor("KorNum")->geometry();
    dragLine(Product, -30);
    QCOMPARE(editor("KorNum")->geometry(), before.translated(-30, 0));
    QCOMPARE(place(), QStringLiteral("2,2"));
    type(QStringLiteral("5"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("125"));
}

void tst_KorGrid_Window::draggingTheScrollBarKeepsWhatIsBeingTyped()
{
    grid->setRows(50);
    click(2, Price);
    type(QStringLiteral("12"));
    QScrollBar *bar = view()->verticalScrollBar();
    QVERIFY(bar->isVisible());
    const QPoint top(bar->width() / 2, bar->width() + 6);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, top);
    QTest::mouseMove(bar, top + QPoint(0, 30));
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, top + QPoint(0, 30));
    settle();
    QVERIFY(bar->value() > 0);
    bar->setValue(0);
    type(QStringLiteral("5"));
    QCOMPARE(grid->TextMatrix(2, Exact), QStringLiteral("125"));
}

void tst_KorGrid_Window::aDoubleClickOnALineFitsTheTextsInSight()
{
    const QString wide = QStringLiteral("Deska sosnowa heblowana czterostronnie");
    grid->setTextMatrix(3, Product, wide);
    const int before = titles()->sectionSize(Product - 1);
    const int needed = view()->fontMetrics().horizontalAdvance(wide);
    QVERIFY(before < needed);
    QTest::mouseDClick(titles()->viewport(), Qt::LeftButton, Qt::NoModifier, lineOf(Product));
    settle();
    const int after = titles()->sectionSize(Product - 1);
    QVERIFY2(after >= needed && after < needed + 40, qPrintable(QString::number(after)));
}

void tst_KorGrid_Window::aClickOnATitleSelectsItsColumn()
{
    click(2, Product);
    type(QStringLiteral("deska"));
    QStringList pressed;
    connect(grid, &KorGrid::MouseDownRow, this, [&](int &, int &, int &row) { pressed << QString::number(row); });
    QTest::mouseClick(titles()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(titles()->sectionViewportPosition(Delivery - 1) + 20, titles()->height() / 2));
    settle();
    QCOMPARE(pressed, QStringList{QStringLiteral("0")});
    QCOMPARE(grid->TextMatrix(2, Product), QStringLiteral("deska"));
    QCOMPARE(grid->Col(), int(Delivery));
    QCOMPARE(openEditor(), QString());
}

QTEST_MAIN(tst_KorGrid_Window)
#include "tst_korgrid_window.moc"
