// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"
#include "support/settings.h"

#include <KorDaoUC/Color>
#include <KorDaoUC/PropertyBag>

using namespace kor;
using namespace kor::test;

//! What a form keeps of a grid. The rows that all controls share are the contract suite's.
class tst_KorGrid_Settings : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aFreshGridStoresItsNullValueAlone();
    void keysStandInTheirOrder();
    void theSavedCellIsTheFirstOneWhereverTheGridStood();
    void theCurrentCellIsWhatIsSaved();
    void aGridWithoutDataTakesTheSavedText();
    void theSavedValueIsGivenBackAsItWas();
    void columnsAreNotSaved();

private:
    [[nodiscard]] PropertyBag saved() const { return settingsOf(*grid); }
};

void tst_KorGrid_Settings::aFreshGridStoresItsNullValueAlone()
{
    QCOMPARE(keysOf(saved()), QStringList{QStringLiteral("Value")});
    QVERIFY(isNull(saved().ReadProperty(QStringLiteral("Value"))));
    grid->readProperties(PropertyBag()); // "" is the default of a saved form
    QCOMPARE(keysOf(saved()), QStringList());
    grid->initProperties();
    QCOMPARE(keysOf(saved()), QStringList{QStringLiteral("Value")});
}

void tst_KorGrid_Settings::keysStandInTheirOrder()
{
    grid->setWordWrap(true);
    grid->setRowHeightMin(400);
    grid->setRows(4);
    grid->setCols(5);
    grid->setTextControl(1, 1, QStringLiteral("deska"));
    grid->setBorderStyle(BorderStyleType::FixedSingle);
    grid->setBackStyle(0);
    QFont font = grid->Font();
    font.setPointSize(17);
    grid->setFont(font);
    grid->setEnabled(false);
    grid->setForeColor(0x000000FF);
    grid->setBackColor(0x00FFFFFF);
    QCOMPARE(keysOf(saved()).join(u' '), QStringLiteral("BackColor ForeColor Enabled Font BackStyle BorderStyle Cols "
                                                        "Rows 0TextMatrix Value RowHeightMin WordWrap"));
}

void tst_KorGrid_Settings::theSavedCellIsTheFirstOneWhereverTheGridStood()
{
    grid->setCols(4);
    grid->setRows(4);
    grid->setRow(3);
    grid->setCol(2);
    PropertyBag bag;
    bag.append(QStringLiteral("Cols"), 4);
    bag.append(QStringLiteral("Rows"), 4);
    bag.append(QStringLiteral("0TextMatrix"), QStringLiteral("deska"));
    grid->readProperties(bag);
    QCOMPARE(grid->TextMatrix(1, 1), QStringLiteral("deska"));
    QCOMPARE(grid->TextMatrix(3, 2), QString());
}

void tst_KorGrid_Settings::theCurrentCellIsWhatIsSaved()
{
    grid->setRows(4);
    grid->setTextControl(1, 1, QStringLiteral("pierwsza"));
    grid->setTextControl(3, 1, QStringLiteral("trzecia"));
    QCOMPARE(saved().ReadProperty(QStringLiteral("0TextMatrix")), QVariant(QStringLiteral("pierwsza")));
    grid->setRow(3);
    QCOMPARE(saved().ReadProperty(QStringLiteral("0TextMatrix")), QVariant(QStringLiteral("trzecia")));
}

void tst_KorGrid_Settings::aGridWithoutDataTakesTheSavedText()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Rows"), 1);
    bag.append(QStringLiteral("0TextMatrix"), QStringLiteral("Towar"));
    grid->readProperties(bag);
    QCOMPARE(grid->Rows(), 1);
    QCOMPARE(grid->TextMatrix(0, 1), QStringLiteral("Towar"));
    QCOMPARE(saved().ReadProperty(QStringLiteral("0TextMatrix")), QVariant(QStringLiteral("Towar")));
}

void tst_KorGrid_Settings::theSavedValueIsGivenBackAsItWas()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Value"), 12);
    grid->readProperties(bag);
    QCOMPARE(saved().ReadProperty(QStringLiteral("Value")), QVariant(12));
}

void tst_KorGrid_Settings::columnsAreNotSaved()
{
    orderColumns();
    KorGrid loaded;
    loaded.readProperties(saved());
    QCOMPARE(loaded.Cols(), grid->Cols());
    QCOMPARE(loaded.Rows(), grid->Rows());
    QCOMPARE(loaded.TextMatrix(0, 1), QString());
    QCOMPARE(loaded.AddColumn(QStringLiteral("TEXT"), QStringLiteral("A"), 1500, 0), 1);
    QCOMPARE(loaded.Cols(), 2); // the first description cuts the grid to its column
}

QTEST_MAIN(tst_KorGrid_Settings)
#include "tst_korgrid_settings.moc"
