// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace kor;
using namespace kor::test;

namespace {
const QString nbsp = QStringLiteral("\u00A0");
}

//! The numeric field in the hands of a program: the values that it gives, and what is shown of them.
class tst_KorNumber : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aFreshFieldIsNullAndEmpty();
    void valueShowsGroupedAndReadsRounded();
    void valueGivenAs_data();
    void valueGivenAs();
    void emptyTextGivesNullAndAnEmptyBox();
    void valueIsClampedSilentlyToTheRange();
    void aTooWideNumberShowsAFillAndKeepsItsFullValue();
    void theFillIsReplacedOnlyByAnotherNumber();
    void fitDependsOnWidthAndFont_data();
    void fitDependsOnWidthAndFont();
    void blockChangeKeepsValueAndEventsBack();
    void textIsReadInAnyForm_data();
    void textIsReadInAnyForm();
    void textThatIsNoNumberRaisesChangeOnceMore();
    void dataChangedIsSetByTheProgramOnly();
    void boundsAreSingles();
};

void tst_KorNumber::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
}

void tst_KorNumber::cleanup() { QGuiApplication::clipboard()->clear(); }

void tst_KorNumber::aFreshFieldIsNullAndEmpty()
{
    KorNumber number;
    QVERIFY(isNull(number.Value()));
    QCOMPARE(number.Text(), QString());
    QCOMPARE(number.MaskPicture(), QStringLiteral("#,##0.00"));
    QCOMPARE(number.Alignment(), AlignmentType::Right_Justify);
    QVERIFY(!number.DataChanged());
}

void tst_KorNumber::valueShowsGroupedAndReadsRounded()
{
    KorNumber number;
    number.resize(160, 26);
    number.setValue(1234.567);
    QCOMPARE(number.Text(), QStringLiteral("1") + nbsp + QStringLiteral("234,57"));
    QCOMPARE(number.Value(), QVariant(1234.57));
    QCOMPARE(number.Value().typeId(), int(QMetaType::Double));
    number.setValue(1234.569); // the same text, so no Change, but the same rule
    QCOMPARE(number.Value(), QVariant(1234.57));
}

void tst_KorNumber::valueGivenAs_data()
{
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("whole number")     << QVariant(5)                       << QStringLiteral("5,00")  << QVariant(5.0);
    QTest::newRow("integer")          << QVariant::fromValue<short>(5)     << QStringLiteral("5,00")  << QVariant(5.0);
    QTest::newRow("single")           << QVariant(0.7F)                    << QStringLiteral("0,70")  << QVariant(0.7);
    QTest::newRow("negative")         << QVariant(-0.5)                    << QStringLiteral("-0,50") << QVariant(-0.5);
    QTest::newRow("Polish text")      << QVariant(QStringLiteral("12,5"))  << QStringLiteral("12,50") << QVariant(12.5);
    QTest::newRow("text with a stop") << QVariant(QStringLiteral("12.5"))  << QStringLiteral("12,50") << QVariant(12.5);
    QTest::newRow("Null")             << null()                            << QString()               << null();
    QTest::newRow("missing argument") << missing()                         << QString()               << null();
    QTest::newRow("Empty")            << QVariant()                        << QString()               << null();
    QTest::newRow("letters")          << QVariant(QStringLiteral("abc"))   << QString()               << null();
    // clang-format on
}

void tst_KorNumber::valueGivenAs()
{
    QFETCH(QVariant, given);
    QFETCH(QVariant, value);
    KorNumber number;
    number.resize(160, 26);
    number.setValue(99);
    number.setValue(given);
    QTEST(number.Text(), "text");
    QVERIFY(isSameSetting(number.Value(), value));
}

void tst_KorNumber::emptyTextGivesNullAndAnEmptyBox()
{
    KorNumber number;
    number.setValue(5);
    number.setValue(QString());
    QVERIFY(isNull(number.Value()));
    QCOMPARE(number.Text(), QString());
}

void tst_KorNumber::valueIsClampedSilentlyToTheRange()
{
    Messages messages;
    KorNumber number;
    number.resize(160, 26);
    number.setMinValue(0);
    number.setMaxValue(10);
    number.setCheckRange(true);
    number.setValue(11);
    QCOMPARE(number.Text(), QStringLiteral("10,00"));
    QCOMPARE(number.Value(), QVariant(10.0F));
    QCOMPARE(number.Value().typeId(), int(QMetaType::Float));
    number.setValue(-3);
    QCOMPARE(number.Value(), QVariant(0.0F));
    QVERIFY(messages.take().isEmpty());
}

void tst_KorNumber::aTooWideNumberShowsAFillAndKeepsItsFullValue()
{
    KorNumber number;
    number.resize(50, 26);
    number.setValue(123456789.125);
    QVERIFY(!number.Text().isEmpty());
    QCOMPARE(number.Text().count(QLatin1Char('#')), number.Text().remove(QLatin1Char(',')).remove(nbsp).size());
    QCOMPARE(number.Value(), QVariant(123456789.125));
}

void tst_KorNumber::theFillIsReplacedOnlyByAnotherNumber()
{
    KorNumber number;
    number.resize(50, 26);
    EventLog log(&number);
    number.setValue(123456789.125);
    QCOMPARE(log.take(), QStringLiteral("Change"));
    number.resize(400, 26);
    number.resize(40, 26);
    number.setValue(123456789.125); // not new: the text stays as it was
    QCOMPARE(log.take(), QString());
    number.setValue(987654321);
    QCOMPARE(number.Value(), QVariant(987654321.0));
}

void tst_KorNumber::fitDependsOnWidthAndFont_data()
{
    QTest::addColumn<int>("pointSize");
    for (const int size : {8, 10, 14, 20})
        QTest::addRow("%d points", size) << size;
}

void tst_KorNumber::fitDependsOnWidthAndFont()
{
    QFETCH(int, pointSize);
    KorNumber number;
    QFont font = number.Font();
    font.setPointSize(pointSize);
    number.setFont(font);
    const QString shown = QStringLiteral("1") + nbsp + QStringLiteral("234,50");
    // The text needs less than the width, with a margin of 22 percent.
    const double needed = QFontMetrics(number.Font()).horizontalAdvance(shown) * 1.22;
    const int enough = static_cast<int>(needed) + 1;
    number.resize(enough, 40);
    number.setValue(1234.5);
    QCOMPARE(number.Text(), shown);
    number.setValue(0);
    number.resize(enough - 1, 40);
    number.setValue(1234.5);
    QVERIFY2(number.Text().contains(QLatin1Char('#')), qPrintable(number.Text()));
    QCOMPARE(number.Value(), QVariant(1234.5));
}

void tst_KorNumber::blockChangeKeepsValueAndEventsBack()
{
    KorNumber number;
    number.resize(160, 26);
    number.setValue(1);
    EventLog log(&number);
    number.setBlockChange(true);
    number.setValue(2.346);
    QCOMPARE(number.Text(), QStringLiteral("2,35"));
    QCOMPARE(number.Value(), QVariant(2.346)); // not read back from the text
    number.setValue(null());
    QCOMPARE(number.Text(), QString());
    QCOMPARE(number.Value(), QVariant(2.346));
    QCOMPARE(log.take(), QString());
}

void tst_KorNumber::textIsReadInAnyForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("comma")         << QStringLiteral("12,5")              << QVariant(12.5);
    QTest::newRow("full stop")     << QStringLiteral("12.5")              << QVariant(12.5);
    QTest::newRow("grouped")       << QStringLiteral("1\u00A0234,5")      << QVariant(1234.5);
    QTest::newRow("percent sign")  << QStringLiteral("50%")               << QVariant(50.0);
    QTest::newRow("currency")      << QStringLiteral("12,50 zł")          << QVariant(12.5);
    QTest::newRow("letters")       << QStringLiteral("abc")               << null();
    QTest::newRow("empty")         << QString()                           << null();
    // clang-format on
}

void tst_KorNumber::textIsReadInAnyForm()
{
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    KorNumber number;
    number.resize(160, 26);
    number.setText(text);
    QVERIFY(isSameSetting(number.Value(), value));
    QVERIFY(number.DataChanged());
}

void tst_KorNumber::textThatIsNoNumberRaisesChangeOnceMore()
{
    KorNumber number;
    number.resize(160, 26);
    number.setValue(5);
    EventLog log(&number);
    number.setText(QStringLiteral("abc"));
    QCOMPARE(log.take(), QStringLiteral("Change Change"));
    number.setText(QStringLiteral("abc"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
    number.setBlockChange(true);
    number.setText(QString());
    QCOMPARE(log.take(), QStringLiteral("Change"));
    number.setBlockChange(false);
    number.setText(QStringLiteral("7"));
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorNumber::dataChangedIsSetByTheProgramOnly()
{
    Stage stage;
    auto *number = stage.place(new KorNumber);
    QVERIFY(stage.open());
    number->setFocus();
    settle();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("12"));
    QCOMPARE(number->Value(), QVariant(12.0));
    QVERIFY(!number->DataChanged());
    number->setValue(3);
    QVERIFY(number->DataChanged());
}

void tst_KorNumber::boundsAreSingles()
{
    KorNumber number;
    number.setMaxValue(QStringLiteral("0,5"));
    QCOMPARE(number.MaxValue(), QVariant(0.5F));
    QCOMPARE(number.MaxValue().typeId(), int(QMetaType::Float));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, number.setMaxValue(QStringLiteral("abc")));
    QCOMPARE(number.MaxValue(), QVariant(0.5F));
}

QTEST_MAIN(tst_KorNumber)
#include "tst_kornumber.moc"
