// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/RunTimeError>

using namespace kor;
using namespace kor::test;

//! Parameters as the program adds them and reads them back.
class tst_KorParam_Rows : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void titlesAreThoseOfTheRecord();
    void theFirstParameterTakesTheEmptyRow();
    void aParameterIsReadBackByItsRow();
    void argumentsThatAreLeftOutAreEmpty();
    void valuesAreShownAsTheirEditorsWriteThem_data();
    void valuesAreShownAsTheirEditorsWriteThem();
    void aDateIsReadBackAsADate();
    void aKindInLowerCaseShowsNothing();
    void valuesAreAlignedLeft();
    void afterAddingTheCurrentRowIsTheTitles();
    void theResultIsAlwaysFalse();
    void theTitlesRowIsReadToo();
    void aParameterWithoutANameIsOverwritten();

    void settingAValueLeavesTheShownText();
    void aValueBeyondTheListIsEmpty();
    void atDesignTimeAValueCannotBeSet();
    void rowsOutOfRangeAreRefused();
    void aLengthThatIsNoIntegerIsRefused();

    void clearKeepsRowsAndValues();
    void afterClearTheLastRowIsFilled();
    void titlesOutliveClear();
    void rowsMayBeCutAndGrow();

    void aClickTextSeedsTheEditor();
    void aNumberTooWideForItsColumnIsShownWithItsDigits();
    void anErrorInAddParamLeavesTheSheetInOrder();
};

void tst_KorParam_Rows::titlesAreThoseOfTheRecord()
{
    QStringList titles;
    for (int column = 1; column < 14; ++column)
        titles << cell(0, column);
    QCOMPARE(titles.join(u'|'),
             QStringLiteral("Nazwa parametru|Wartość|Symbol|ControlType|TextLength|ValueType|FieldName|ComboSQL|"
                            "ComboNullValue|MinValue|MaxValue|Slownik|NumFormat"));
    QCOMPARE(view()->model()->columnCount(), 13);
    QCOMPARE(view()->columnWidth(0), 200); // 3000 twips
    QCOMPARE(view()->verticalHeader()->width(), 21);
    for (int column = 2; column < 13; ++column)
        QVERIFY(view()->isColumnHidden(column));
}

void tst_KorParam_Rows::theFirstParameterTakesTheEmptyRow()
{
    QCOMPARE(sheet->Rows(), 2);
    add("TEXT", "Pierwszy");
    QCOMPARE(sheet->Rows(), 2);
    QCOMPARE(cell(1, 1), QStringLiteral("Pierwszy"));
    add("TEXT", "Drugi");
    QCOMPARE(sheet->Rows(), 3);
    QCOMPARE(cell(2, 1), QStringLiteral("Drugi"));
}

void tst_KorParam_Rows::aParameterIsReadBackByItsRow()
{
    report();
    sheet->setRow(Number);
    QCOMPARE(sheet->Row(), int(Number));
    QCOMPARE(sheet->ParName(), QStringLiteral("Kwota od"));
    QCOMPARE(sheet->ParSymbol(), QStringLiteral("kwota"));
    QCOMPARE(sheet->ParType(), QStringLiteral("Double"));
    QCOMPARE(sheet->ParField(), QStringLiteral("z.kwota"));
    QCOMPARE(sheet->ParText(), QStringLiteral("1\u00a0234,50"));
    QCOMPARE(sheet->ParValue(), QVariant(1234.5));
    sheet->setRow(Combo);
    QCOMPARE(sheet->ParText(), QStringLiteral("Bartek"));
    QCOMPARE(sheet->ParValue(), QVariant(7));
    sheet->setRow(Click);
    QCOMPARE(sheet->ParText(), QStringLiteral("Gdynia"));
    QCOMPARE(sheet->ParValue(), QVariant(3));
}

void tst_KorParam_Rows::argumentsThatAreLeftOutAreEmpty()
{
    sheet->AddParam(QStringLiteral("Nazwa"), QStringLiteral("s"), QStringLiteral("TEXT"));
    QStringList cells;
    for (int column = 1; column < 14; ++column)
        cells << cell(1, column);
    QCOMPARE(cells.join(u'|'), QStringLiteral("Nazwa||s|TEXT|0|||||0|0||"));
    sheet->setRow(1);
    QVERIFY(isMissing(sheet->ParValue()));
    sheet->AddParam(QStringLiteral("Liczba"), QStringLiteral("l"), QStringLiteral("NUMBER"), 1, QStringLiteral("Long"),
                    7, QStringLiteral("pole"), QStringLiteral("LIST"), QStringLiteral("(nic)"), 0.5F, 1234.25F,
                    QStringLiteral("nie zapisany"), QStringLiteral("slow"), QStringLiteral("0.0"));
    cells.clear();
    for (int column = 1; column < 14; ++column)
        cells << cell(2, column);
    QCOMPARE(cells.join(u'|'), QStringLiteral("Liczba|1,0|l|NUMBER|7|Long|pole|LIST|(nic)|0,5|1234,25|slow|0.0"));
}

void tst_KorParam_Rows::valuesAreShownAsTheirEditorsWriteThem_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");
    const QString text = QStringLiteral("TEXT");
    const QString number = QStringLiteral("NUMBER");
    const QString date = QStringLiteral("DATE");
    const QString combo = QStringLiteral("COMBO");
    // clang-format off
    QTest::newRow("text")                       << text   << QVariant(QStringLiteral("abc")) << QString() << QStringLiteral("abc");
    QTest::newRow("text of a number")           << text   << QVariant(1.5)   << QString() << QStringLiteral("1,5");
    QTest::newRow("text of Null")               << text   << null()          << QString() << QString();
    QTest::newRow("text left out")              << text   << missing()       << QString() << QString();
    QTest::newRow("number, General Number")     << number << QVariant(1234.5) << QString() << QStringLiteral("1234,5");
    QTest::newRow("number by its mask")         << number << QVariant(1234.5) << QStringLiteral("#,##0.00") << QStringLiteral("1\u00a0234,50");
    QTest::newRow("number of a text")           << number << QVariant(QStringLiteral("12,5")) << QString() << QStringLiteral("12,5");
    QTest::newRow("number of Null")             << number << null()          << QString() << QString();
    QTest::newRow("number left out")            << number << missing()       << QString() << QString();
    QTest::newRow("date")                       << date   << QVariant(QDate(2026, 3, 5)) << QString() << QStringLiteral("05.03.2026");
    QTest::newRow("date of Null")               << date   << null()          << QString() << QString();
    QTest::newRow("date left out")              << date   << missing()       << QString() << QString();
    QTest::newRow("key of an entry")            << combo  << QVariant(2)     << QString() << QStringLiteral("dwa");
    QTest::newRow("key that no entry has: the first entry") << combo << QVariant(9) << QString() << QStringLiteral("jeden");
    QTest::newRow("key left out: the first entry")          << combo << missing()   << QString() << QStringLiteral("jeden");
    // clang-format on
}

void tst_KorParam_Rows::valuesAreShownAsTheirEditorsWriteThem()
{
    QFETCH(QString, kind);
    QFETCH(QVariant, value);
    QFETCH(QString, format);
    sheet->AddParam(QStringLiteral("Nazwa"), QStringLiteral("s"), kind, value, QString(), 0, QString(),
                    QStringLiteral("LIST 1;jeden|2;dwa"), QString(), 0, 0, QString(), QString(), format);
    QTEST(shown(1), "text");
    QCOMPARE(valueOf(1), value); // as it was given
    QCOMPARE(openEditor(), QString());
}

void tst_KorParam_Rows::aDateIsReadBackAsADate()
{
    add("DATE", "Od dnia", QDate(2026, 11, 1));
    sheet->setRow(1);
    QCOMPARE(sheet->ParValue(), QVariant(QDate(2026, 11, 1)));
    QCOMPARE(sheet->ParText(), QStringLiteral("01.11.2026"));
    QCOMPARE(sheet->ParSymbol(), QStringLiteral("od "));
}

void tst_KorParam_Rows::aKindInLowerCaseShowsNothing()
{
    add("text", "Nazwa", QStringLiteral("wartość"));
    QCOMPARE(cell(1, 1), QStringLiteral("Nazwa"));
    QCOMPARE(cell(1, 4), QStringLiteral("text"));
    QCOMPARE(shown(1), QString());
    QCOMPARE(valueOf(1), QVariant(QStringLiteral("wartość")));
    click(1);
    QCOMPARE(openEditor(), QString());
}

void tst_KorParam_Rows::valuesAreAlignedLeft()
{
    add("NUMBER", "Liczba", 12);
    QImage row = view()->viewport()->grab(cellRect(1, 2)).toImage();
    const QColor ground = row.pixelColor(row.width() - 4, row.height() / 2);
    bool isWrittenLeft = false;
    for (int x = 2; x < 20; ++x)
        isWrittenLeft |= row.pixelColor(x, row.height() / 2) != ground;
    QVERIFY(isWrittenLeft);
}

void tst_KorParam_Rows::afterAddingTheCurrentRowIsTheTitles()
{
    add("TEXT", "Pierwszy");
    QCOMPARE(sheet->Row(), 0);
    sheet->setRow(1);
    add("COMBO", "Drugi");
    QCOMPARE(sheet->Row(), 0);
}

void tst_KorParam_Rows::theResultIsAlwaysFalse()
{
    QVERIFY(!sheet->AddParam(QStringLiteral("a"), QString(), QStringLiteral("TEXT")));
    QVERIFY(!sheet->AddParam(QStringLiteral("b"), QString(), QStringLiteral("?")));
}

void tst_KorParam_Rows::theTitlesRowIsReadToo()
{
    add("TEXT", "Pierwszy", 1);
    QCOMPARE(sheet->ParName(), QStringLiteral("Nazwa parametru"));
    QCOMPARE(sheet->ParText(), QStringLiteral("Wartość"));
    QCOMPARE(sheet->ParSymbol(), QStringLiteral("Symbol"));
    QCOMPARE(sheet->ParField(), QStringLiteral("FieldName"));
    QCOMPARE(sheet->ParType(), QStringLiteral("ValueType"));
    QCOMPARE(sheet->ParValue(), QVariant());
    sheet->setParValue(5);
    QCOMPARE(sheet->ParValue(), QVariant(5));
}

void tst_KorParam_Rows::aParameterWithoutANameIsOverwritten()
{
    add("TEXT", "", QStringLiteral("a"));
    add("TEXT", "Nazwa", QStringLiteral("b"));
    QCOMPARE(sheet->Rows(), 2);
    QCOMPARE(shown(1), QStringLiteral("b"));
    QCOMPARE(valueOf(1), QVariant(QStringLiteral("b")));
}

// --- values by program

void tst_KorParam_Rows::settingAValueLeavesTheShownText()
{
    report();
    sheet->setRow(Date);
    sheet->setParValue(QDate(2027, 1, 1));
    QCOMPARE(sheet->ParValue(), QVariant(QDate(2027, 1, 1)));
    QCOMPARE(sheet->ParText(), QStringLiteral("01.11.2026"));
    click(Date); // the editor shows the value
    QCOMPARE(editor<KorDate>("KorDat")->Text(), QStringLiteral("01.01.2027"));
    leave();
    QCOMPARE(shown(Date), QStringLiteral("01.01.2027"));
}

void tst_KorParam_Rows::aValueBeyondTheListIsEmpty()
{
    sheet->setRows(6);
    sheet->setRow(5);
    QCOMPARE(sheet->ParValue(), QVariant());
    sheet->setParValue(QStringLiteral("piąta"));
    QCOMPARE(valueOf(5), QVariant(QStringLiteral("piąta")));
    QCOMPARE(valueOf(4), QVariant());
}

void tst_KorParam_Rows::atDesignTimeAValueCannotBeSet()
{
    add("TEXT", "Nazwa", QStringLiteral("a"));
    sheet->setRow(1);
    UserControl::setUserMode(stage.get(), false);
    QCOMPARE(errorOf([&] { sheet->setParValue(1); }), 387);
    QCOMPARE(sheet->ParValue(), QVariant(QStringLiteral("a")));
    UserControl::setUserMode(stage.get(), true);
}

void tst_KorParam_Rows::rowsOutOfRangeAreRefused()
{
    report();
    sheet->setRow(2);
    QCOMPARE(errorOf([&] { sheet->setRow(7); }), 380);
    QCOMPARE(errorOf([&] { sheet->setRow(-1); }), 380);
    QCOMPARE(sheet->Row(), 2);
    QCOMPARE(errorOf([&] { sheet->setRows(0); }), 380);
    QCOMPARE(sheet->Rows(), 7);
}

void tst_KorParam_Rows::aLengthThatIsNoIntegerIsRefused()
{
    const auto add = [&](int length) {
        sheet->AddParam(QStringLiteral("a"), QString(), QStringLiteral("TEXT"), QString(), QString(), length);
    };
    QCOMPARE(errorOf([&] { add(32768); }), 6);
    QCOMPARE(cell(1, 1), QString());
    add(-5); // limits nothing
    enter();
    type(QStringLiteral("abc"));
    QCOMPARE(shown(1), QStringLiteral("abc"));
}

// --- all rows

void tst_KorParam_Rows::clearKeepsRowsAndValues()
{
    report();
    sheet->Clear();
    QCOMPARE(sheet->Rows(), 7);
    for (int row = 0; row < 7; ++row) {
        for (int column = 1; column < 14; ++column)
            QCOMPARE(cell(row, column), QString());
    }
    QCOMPARE(valueOf(Number), QVariant(1234.5));
    QCOMPARE(valueOf(Date), QVariant(QDate(2026, 11, 1)));
}

void tst_KorParam_Rows::afterClearTheLastRowIsFilled()
{
    for (int i = 0; i < 4; ++i)
        add("TEXT", "stary", i);
    QCOMPARE(sheet->Rows(), 5);
    sheet->Clear();
    add("TEXT", "nowy", QStringLiteral("x"));
    QCOMPARE(sheet->Rows(), 5);
    QCOMPARE(cell(4, 1), QStringLiteral("nowy"));
    QCOMPARE(valueOf(4), QVariant(QStringLiteral("x")));
    QCOMPARE(valueOf(3), QVariant(2));
    add("TEXT", "następny");
    QCOMPARE(sheet->Rows(), 6);
    QCOMPARE(cell(5, 1), QStringLiteral("następny"));
}

void tst_KorParam_Rows::titlesOutliveClear()
{
    sheet->setColParTitle(QStringLiteral("Parametr"));
    sheet->Clear();
    QCOMPARE(cell(0, 1), QString());
    QCOMPARE(sheet->ColParTitle(), QStringLiteral("Parametr"));
    QCOMPARE(sheet->ColValTitle(), QStringLiteral("Wartość"));
    sheet->setColParTitle(sheet->ColParTitle());
    QCOMPARE(cell(0, 1), QStringLiteral("Parametr"));
}

void tst_KorParam_Rows::rowsMayBeCutAndGrow()
{
    report();
    sheet->setRow(Click);
    sheet->setRows(3);
    QCOMPARE(sheet->Rows(), 3);
    QCOMPARE(sheet->Row(), 2);
    sheet->setRows(6);
    QCOMPARE(cell(4, 1), QString());
    add("TEXT", "Nowy", QStringLiteral("n"));
    QCOMPARE(sheet->Rows(), 6);
    QCOMPARE(valueOf(5), QVariant(QStringLiteral("n")));
}

// --- what the editors are used for

void tst_KorParam_Rows::aClickTextSeedsTheEditor()
{
    report();
    QCOMPARE(sheet->ClickText(), QStringLiteral("Gdynia"));
    QCOMPARE(sheet->ClickValue(), QVariant(3));
    QCOMPARE(allShown(), QStringLiteral("Zestawienie|1\u00a0234,50|01.11.2026|Bartek|Gdynia|"));
}

void tst_KorParam_Rows::aNumberTooWideForItsColumnIsShownWithItsDigits()
{
    sheet->resize(60, 200);
    settle();
    add("NUMBER", "Suma", 123456789.0);
    QCOMPARE(shown(1), QStringLiteral("123456789"));
}

void tst_KorParam_Rows::anErrorInAddParamLeavesTheSheetInOrder()
{
    const QVariant noText = QVariant::fromValue(QRect(1, 2, 3, 4));
    const int error = errorOf([&] { add("TEXT", "Nazwa", noText); });
    QVERIFY(error == 0 || error == 13);
    add("TEXT", "Druga", QStringLiteral("b"));
    QCOMPARE(sheet->Row(), 0);
    enter(); // and cells open their editors again
    QCOMPARE(openEditor(), QStringLiteral("TxtBox"));
}

QTEST_MAIN(tst_KorParam_Rows)
#include "tst_korparam_rows.moc"
