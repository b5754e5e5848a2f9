// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

#include <QtGui/QAccessible>

using namespace kor;
using namespace kor::test;

//! What a screen reader is told of a grid.
class tst_KorGrid_Accessible : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        orderColumns();
    }
    void cleanup() { tearDown(); }

    void rowsColumnsAndTitlesAreRead();
    void theCurrentCellIsTheFocusedOne();
    void theOpenEditorIsReadWithItsText();
};

void tst_KorGrid_Accessible::rowsColumnsAndTitlesAreRead()
{
    grid->setTextMatrix(2, Product, QStringLiteral("deska"));
    QAccessibleInterface *surface = QAccessible::queryAccessibleInterface(view());
    QVERIFY(surface && surface->tableInterface());
    QAccessibleTableInterface *table = surface->tableInterface();
    QCOMPARE(table->rowCount(), 5);
    QCOMPARE(table->columnCount(), 8);
    QCOMPARE(table->columnDescription(0), QStringLiteral("Towar"));
    QCOMPARE(table->columnDescription(1), QStringLiteral("Cena"));
    QCOMPARE(table->cellAt(1, 0)->text(QAccessible::Name), QStringLiteral("deska"));
}

void tst_KorGrid_Accessible::theCurrentCellIsTheFocusedOne()
{
    click(3, Number); // locked: no editor
    QAccessibleInterface *cell = QAccessible::queryAccessibleInterface(view())->focusChild();
    QVERIFY(cell && cell->tableCellInterface());
    QCOMPARE(cell->tableCellInterface()->rowIndex(), 2);
    QCOMPARE(cell->tableCellInterface()->columnIndex(), Number - 1);
}

void tst_KorGrid_Accessible::theOpenEditorIsReadWithItsText()
{
    grid->setTextMatrix(2, Product, QStringLiteral("deska"));
    click(2, Product);
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    QVERIFY(box);
    QCOMPARE(box->role(), QAccessible::EditableText);
    QCOMPARE(box->text(QAccessible::Value), QStringLiteral("deska"));
    QVERIFY(box->state().focused);
    QCOMPARE(box->text(QAccessible::Name), QStringLiteral("Towar")); // the title says what is typed
    press(Qt::Key_Tab);
    QAccessibleInterface *price = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    QCOMPARE(price->text(QAccessible::Name), QStringLiteral("Cena"));
}

QTEST_MAIN(tst_KorGrid_Accessible)
#include "tst_korgrid_accessible.moc"
