// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"
#include "support/heard.h"

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
    void aCellSaysWhatItHoldsAndWhetherItMayBeChanged_data();
    void aCellSaysWhatItHoldsAndWhetherItMayBeChanged();
    void aCellKnowsItsTitlesAndItsPlace();
    void aCellIsChosenAsByAClick();
    void anEditorThatKeepsTheUserIsNotLeft();
    void rowsAndColumnsAreSelectedAsByTheirTitles();
    void writingIntoAClosedCellIsRefused();
    void countingCellsMakesNone();
    void cellsAreWhatTheirPlaceHolds();
    void theCellUnderTheKeyboardIsTold();

private:
    [[nodiscard]] QAccessibleTableInterface *table() const { return heard(view())->tableInterface(); }
    [[nodiscard]] QAccessibleInterface *cell(int row, int column) const { return table()->cellAt(row - 1, column - 1); }
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
    QCOMPARE(price->text(QAccessible::Description), QStringLiteral("Wiersz 2"));
    for (const auto &[column, role] :
         {std::pair(Unit, QAccessible::ComboBox), std::pair(Delivery, QAccessible::EditableText),
          std::pair(Store, QAccessible::EditableText), std::pair(Remark, QAccessible::EditableText)}) {
        click(3, column);
        QAccessibleInterface *editor = heard(QApplication::focusWidget());
        QCOMPARE(editor->role(), role);
        QCOMPARE(editor->text(QAccessible::Name), grid->TextMatrix(0, column));
        QCOMPARE(editor->text(QAccessible::Description), QStringLiteral("Wiersz 3"));
        QCOMPARE(editor->state().multiLine, column == Remark);
    }
}

void tst_KorGrid_Accessible::aCellSaysWhatItHoldsAndWhetherItMayBeChanged_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("isReadOnly");
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("a text") << int(Product) << false << false;
    QTest::newRow("a number") << int(Price) << false << false;
    QTest::newRow("one of a list") << int(Unit) << false << false;
    QTest::newRow("a hidden column, which the user cannot reach") << int(Exact) << true << true;
    QTest::newRow("a locked column") << int(Number) << true << false;
}

void tst_KorGrid_Accessible::aCellSaysWhatItHoldsAndWhetherItMayBeChanged()
{
    QFETCH(int, column);
    QFETCH(bool, isReadOnly);
    QFETCH(bool, isHidden);
    grid->setTextControl(2, column, QStringLiteral("12"));
    const QAccessibleInterface *part = cell(2, column);
    QVERIFY(part && part->isValid());
    QCOMPARE(part->role(), QAccessible::Cell);
    QCOMPARE(part->text(QAccessible::Name), QStringLiteral("12"));
    QCOMPARE(part->text(QAccessible::Value), QStringLiteral("12"));
    const QAccessible::State state = part->state();
    QVERIFY(state.focusable && state.selectable);
    QCOMPARE(bool(state.readOnly), isReadOnly);
    QCOMPARE(bool(state.editable), !isReadOnly);
    QCOMPARE(bool(state.invisible), isHidden);
    QVERIFY(!state.disabled);
    grid->setEnabled(false);
    QVERIFY(part->state().disabled);
}

void tst_KorGrid_Accessible::aCellKnowsItsTitlesAndItsPlace()
{
    grid->setTextControl(3, 0, QStringLiteral("trzeci"));
    QAccessibleInterface *part = cell(3, Price);
    QAccessibleTableCellInterface *place = part->tableCellInterface();
    QVERIFY(place);
    QCOMPARE(place->rowIndex(), 2);
    QCOMPARE(place->columnIndex(), Price - 1);
    QCOMPARE(place->columnHeaderCells().value(0)->text(QAccessible::Name), QStringLiteral("Cena"));
    QCOMPARE(place->columnHeaderCells().value(0)->role(), QAccessible::ColumnHeader);
    QCOMPARE(place->rowHeaderCells().value(0)->text(QAccessible::Name), QStringLiteral("trzeci"));
    QCOMPARE(place->rowHeaderCells().value(0)->role(), QAccessible::RowHeader);
    QCOMPARE(place->table(), heard(view()));
    QCOMPARE(part->parent(), heard(view()));
    QCOMPARE(heard(view())->child(heard(view())->indexOfChild(part)), part);
    const QRect shown = cellRect(3, Price);
    QVERIFY(part->rect().contains(QRect(view()->viewport()->mapToGlobal(shown.topLeft()), shown.size())));
    QCOMPARE(heard(view())->childAt(part->rect().center().x(), part->rect().center().y()), part);
}

void tst_KorGrid_Accessible::aCellIsChosenAsByAClick()
{
    QAccessibleActionInterface *action = cell(3, Price)->actionInterface();
    QVERIFY(action && action->actionNames().contains(QAccessibleActionInterface::pressAction()));
    action->doAction(QAccessibleActionInterface::pressAction());
    settle();
    QCOMPARE(place(), QStringLiteral("3,2"));
    QCOMPARE(openEditor(), QStringLiteral("KorNum"));
    QVERIFY(hasKeyboard("KorNum"));
    cell(4, Product)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    settle();
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
    grid->setEnabled(false);
    QVERIFY(cell(2, Product)->actionInterface()->actionNames().isEmpty());
    cell(2, Product)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(place(), QStringLiteral("4,1"));
}

void tst_KorGrid_Accessible::anEditorThatKeepsTheUserIsNotLeft()
{
    click(2, Delivery);
    type(QStringLiteral("99.99"));
    QVERIFY(!table()->selectRow(3));
    QCOMPARE(messages->take().size(), 1);
    QCOMPARE(place(), QStringLiteral("2,4"));
    QCOMPARE(openEditor(), QStringLiteral("KorDate"));
    QTRY_VERIFY(hasKeyboard("KorDate")); // again, once the message is gone
    QVERIFY(heard(QApplication::focusWidget())->state().invalid);
    press(Qt::Key_Escape);
    click(3, Delivery);
    QVERIFY(!heard(QApplication::focusWidget())->state().invalid); // that was another cell's
}

void tst_KorGrid_Accessible::rowsAndColumnsAreSelectedAsByTheirTitles()
{
    QVERIFY(table()->selectRow(1));
    settle();
    QCOMPARE(grid->Row(), 2);
    QVERIFY(table()->isRowSelected(1) && !table()->isRowSelected(2));
    QCOMPARE(table()->selectedRows(), QList<int>{1});
    QVERIFY(cell(2, Number)->state().selected);
    QVERIFY(table()->selectColumn(Unit - 1));
    settle();
    QVERIFY(table()->isColumnSelected(Unit - 1) && !table()->isRowSelected(1));
    QCOMPARE(table()->selectedCellCount(), 5);
    QVERIFY(!table()->selectRow(99));
}

void tst_KorGrid_Accessible::writingIntoAClosedCellIsRefused()
{
    cell(2, Price)->setText(QAccessible::Value, QStringLiteral("abc"));
    cell(2, Price)->setText(QAccessible::Name, QStringLiteral("abc"));
    QCOMPARE(grid->TextMatrix(2, Price), QString());
}

void tst_KorGrid_Accessible::countingCellsMakesNone()
{
    grid->setRows(20'001);
    const QAccessible::Id before = QAccessible::uniqueId(cell(2, Product));
    QCOMPARE(table()->rowCount(), 20'000);
    QCOMPARE(heard(view())->childCount(), 20'001 * 9);
    QCOMPARE(table()->selectedRowCount(), 0);
    QVERIFY(QAccessible::uniqueId(cell(3, Product)) - before < 50); // whoever listens asks for a few things of its own
    QCOMPARE(cell(3, Product), cell(3, Product));                   // and one is made once
}

void tst_KorGrid_Accessible::cellsAreWhatTheirPlaceHolds()
{
    grid->setTextControl(2, Product, QStringLiteral("deska"));
    grid->setTextControl(3, Product, QStringLiteral("farba"));
    const QAccessibleInterface *second = cell(2, Product);
    const QAccessibleInterface *last = cell(5, Product);
    grid->DelRow(2, 2);
    QCOMPARE(second->text(QAccessible::Name), QStringLiteral("farba"));
    QVERIFY(!last->isValid());
    QCOMPARE(last->text(QAccessible::Name), QString());
    QVERIFY(last->rect().isEmpty());
}

void tst_KorGrid_Accessible::theCellUnderTheKeyboardIsTold()
{
    if (!Notices::areHeard())
        QSKIP("nobody listens");
    grid->setTextControl(2, Number, QStringLiteral("17"));
    click(1, Number);
    Notices notices;
    press(Qt::Key_Down); // a locked column opens no editor
    QVERIFY(notices.take().contains(QStringLiteral("Focus 17")));
    stage->button()->setFocus();
    settle();
    (void)notices.take();
    grid->setFocus(Qt::OtherFocusReason);
    settle();
    QVERIFY(notices.take().contains(QStringLiteral("Focus 17")));
}

QTEST_MAIN(tst_KorGrid_Accessible)
#include "tst_korgrid_accessible.moc"
