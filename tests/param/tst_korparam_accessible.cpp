// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"

#include <QtGui/QAccessible>

using namespace kor;
using namespace kor::test;

//! What a screen reader is told of a sheet.
class tst_KorParam_Accessible : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        setUp();
        report();
    }
    void cleanup() { tearDown(); }

    void eachRowIsReadWithNameAndValue();
    void theClosedValueIsReadWithItsName();
    void theOpenEditorIsReadWithNameAndValue_data();
    void theOpenEditorIsReadWithNameAndValue();
    void theButtonOfAClickFieldHasAName();
};

void tst_KorParam_Accessible::eachRowIsReadWithNameAndValue()
{
    QAccessibleInterface *surface = QAccessible::queryAccessibleInterface(view());
    QVERIFY(surface && surface->tableInterface());
    QAccessibleTableInterface *table = surface->tableInterface();
    QCOMPARE(table->rowCount(), 6);
    QCOMPARE(table->columnDescription(0), QStringLiteral("Nazwa parametru"));
    QCOMPARE(table->columnDescription(1), QStringLiteral("Wartość"));
    QCOMPARE(table->cellAt(1, 0)->text(QAccessible::Name), QStringLiteral("Kwota od"));
    QCOMPARE(table->cellAt(1, 1)->text(QAccessible::Name), QStringLiteral("Kwota od: 1\u00a0234,50"));
    QCOMPARE(table->cellAt(4, 1)->text(QAccessible::Name), QStringLiteral("Magazyn: Gdynia"));
    QCOMPARE(table->cellAt(5, 1)->text(QAccessible::Name), QStringLiteral("Uwaga: "));
    QCOMPARE(table->cellAt(1, 1)->text(QAccessible::Value), QStringLiteral("1\u00a0234,50"));
    QVERIFY(table->cellAt(1, 0)->state().readOnly && table->cellAt(1, 1)->state().editable);
    for (int column = 2; column < table->columnCount(); ++column)
        QVERIFY(table->cellAt(1, column)->state().invisible); // what belongs to the program
}

void tst_KorParam_Accessible::theClosedValueIsReadWithItsName()
{
    click(Date);
    press(Qt::Key_Escape);
    QAccessibleInterface *cell = QAccessible::queryAccessibleInterface(view())->focusChild();
    QVERIFY(cell && cell->tableCellInterface());
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("Od dnia: 01.11.2026"));
}

void tst_KorParam_Accessible::theOpenEditorIsReadWithNameAndValue_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("text") << int(Text) << QStringLiteral("Tytuł") << QStringLiteral("Zestawienie");
    QTest::newRow("number") << int(Number) << QStringLiteral("Kwota od") << QStringLiteral("1234,50");
    QTest::newRow("date") << int(Date) << QStringLiteral("Od dnia") << QStringLiteral("01.11.2026");
    QTest::newRow("list") << int(Combo) << QStringLiteral("Klient") << QStringLiteral("Bartek");
    QTest::newRow("click field") << int(Click) << QStringLiteral("Magazyn") << QStringLiteral("Gdynia");
}

void tst_KorParam_Accessible::theOpenEditorIsReadWithNameAndValue()
{
    QFETCH(int, row);
    click(row);
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    QVERIFY(box && box->state().focused);
    QFETCH(QString, name);
    QCOMPARE(box->text(QAccessible::Name), name);
    QTEST(box->text(QAccessible::Value), "value");
}

void tst_KorParam_Accessible::theButtonOfAClickFieldHasAName()
{
    click(Click);
    QCOMPARE(QAccessible::queryAccessibleInterface(editor("cmdClick"))->text(QAccessible::Name),
             QStringLiteral("Wybierz"));
}

QTEST_MAIN(tst_KorParam_Accessible)
#include "tst_korparam_accessible.moc"
