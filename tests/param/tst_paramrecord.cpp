// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramrecord.h"

#include <KorDaoUC/Variant>

#include <QtCore/QDate>
#include <QtTest/QtTest>

#include <algorithm>

using namespace kor;

//! The record of a parameter as texts of its row, and its value beside them.
class tst_ParamRecord : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void kindsAreWrittenExactlySo_data();
    void kindsAreWrittenExactlySo();
    void aRecordIsWrittenIntoItsColumns();
    void hiddenColumnsHaveTitles();
    void valuesAreShownAsTexts_data();
    void valuesAreShownAsTexts();
    void lengthsAreReadFromTexts_data();
    void lengthsAreReadFromTexts();
    void anEmptyMaskIsTheGeneralOne();
    void valuesTakeWhatTheNamesLeave_data();
    void valuesTakeWhatTheNamesLeave();
    void valuesGrowWithTheirRows();
};

void tst_ParamRecord::kindsAreWrittenExactlySo_data()
{
    QTest::addColumn<QString>("controlType");
    QTest::addColumn<int>("kind");
    QTest::newRow("TEXT") << QStringLiteral("TEXT") << int(ParamKind::Text);
    QTest::newRow("NUMBER") << QStringLiteral("NUMBER") << int(ParamKind::Number);
    QTest::newRow("DATE") << QStringLiteral("DATE") << int(ParamKind::Date);
    QTest::newRow("COMBO") << QStringLiteral("COMBO") << int(ParamKind::Combo);
    QTest::newRow("CLICK") << QStringLiteral("CLICK") << int(ParamKind::Click);
    QTest::newRow("lower case") << QStringLiteral("number") << int(ParamKind::None);
    QTest::newRow("a blank behind it") << QStringLiteral("TEXT ") << int(ParamKind::None);
    QTest::newRow("another word") << QStringLiteral("LIST") << int(ParamKind::None);
    QTest::newRow("nothing") << QString() << int(ParamKind::None);
}

void tst_ParamRecord::kindsAreWrittenExactlySo()
{
    QFETCH(QString, controlType);
    QTEST(int(paramKind(controlType)), "kind");
}

void tst_ParamRecord::aRecordIsWrittenIntoItsColumns()
{
    const ParamRecord record{QStringLiteral("Kwota"),
                             QStringLiteral("kw"),
                             QStringLiteral("NUMBER"),
                             QStringLiteral("Double"),
                             12,
                             QStringLiteral("z.kwota"),
                             QStringLiteral("LIST"),
                             QStringLiteral("(brak)"),
                             0.5F,
                             -1234.25F,
                             QStringLiteral("slow"),
                             QStringLiteral("0.00")};
    QStringList written;
    for (const auto &[column, text] : cellsOf(record, Locale::polish()))
        written << QStringLiteral("%1=%2").arg(int(column)).arg(text);
    QCOMPARE(written, QStringLiteral("1=Kwota 3=kw 4=NUMBER 5=12 6=Double 7=z.kwota 8=LIST 9=(brak) 10=0,5 11=-1234,25 "
                                     "12=slow 13=0.00")
                          .split(u' '));
}

void tst_ParamRecord::hiddenColumnsHaveTitles()
{
    QStringList titles;
    for (int column = 0; column < ParamColumn::Count; ++column)
        titles << hiddenTitle(column);
    QCOMPARE(titles.join(u' '), QStringLiteral("   Symbol ControlType TextLength ValueType FieldName ComboSQL "
                                               "ComboNullValue MinValue MaxValue Slownik NumFormat"));
}

void tst_ParamRecord::valuesAreShownAsTexts_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("a text") << QVariant(QStringLiteral("abc")) << QStringLiteral("abc");
    QTest::newRow("a number has the locale's sign") << QVariant(1.5) << QStringLiteral("1,5");
    QTest::newRow("a date is short") << QVariant(QDate(2026, 11, 21)) << QStringLiteral("21.11.2026");
    QTest::newRow("True") << QVariant(true) << QStringLiteral("True");
    QTest::newRow("Null") << null() << QString();
    QTest::newRow("left out") << missing() << QString();
    QTest::newRow("Empty") << QVariant() << QString();
}

void tst_ParamRecord::valuesAreShownAsTexts()
{
    QFETCH(QVariant, value);
    QTEST(textShown(value, Locale::polish()), "text");
}

void tst_ParamRecord::lengthsAreReadFromTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");
    QTest::newRow("a number") << QStringLiteral("12") << 12;
    QTest::newRow("none") << QStringLiteral("0") << 0;
    QTest::newRow("below none") << QStringLiteral("-3") << 0;
    QTest::newRow("no text") << QString() << 0;
    QTest::newRow("no number") << QStringLiteral("TextLength") << 0;
    QTest::newRow("more than there is") << QStringLiteral("99999999999") << 0;
}

void tst_ParamRecord::lengthsAreReadFromTexts()
{
    QFETCH(QString, text);
    QTEST(lengthLimit(text), "length");
}

void tst_ParamRecord::anEmptyMaskIsTheGeneralOne()
{
    QCOMPARE(numberMask(QString()), QStringLiteral("General Number"));
    QCOMPARE(numberMask(QStringLiteral("0.00")), QStringLiteral("0.00"));
}

void tst_ParamRecord::valuesTakeWhatTheNamesLeave_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("names");
    QTest::addColumn<int>("width");
    QTest::newRow("wide: all the rest") << 9000 << 3000 << 6000;
    QTest::newRow("just the least") << 5000 << 3000 << 2000;
    QTest::newRow("too narrow for both: the least, and it scrolls") << 4000 << 3000 << 2000;
    QTest::newRow("no names") << 4000 << 0 << 4000;
    QTest::newRow("narrower than a value: all there is") << 1200 << 3000 << 1200;
    QTest::newRow("very narrow") << 100 << 3000 << 300;
    QTest::newRow("nothing at all") << 0 << 3000 << 300;
}

void tst_ParamRecord::valuesTakeWhatTheNamesLeave()
{
    QFETCH(int, room);
    QFETCH(int, names);
    QTEST(valueWidth(room, names), "width");
}

void tst_ParamRecord::valuesGrowWithTheirRows()
{
    ParamValues values;
    QCOMPARE(values.at(0), QVariant());
    QCOMPARE(values.at(7), QVariant());
    values.set(3, 1.5);
    values.set(1, QStringLiteral("a"));
    values.set(5, null());
    QCOMPARE(values.at(3), QVariant(1.5));
    QCOMPARE(values.at(1), QVariant(QStringLiteral("a")));
    QVERIFY(isNull(values.at(5)));
    QCOMPARE(values.at(2), QVariant());
    QCOMPARE(values.at(6), QVariant());
}

QTEST_MAIN(tst_ParamRecord)
#include "tst_paramrecord.moc"
