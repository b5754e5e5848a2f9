// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pagestage.h"
#include "pages/recordingcontrols.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>

#include <QtTest/QtTest>

using namespace kor;
using namespace kor::test;

//! Mask and range of a number.
class tst_PagKorNumber : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        Locale::setSystemDefault(Locale::polish());
        m_stage = std::make_unique<PageStage>("pagKorNumber");
        QVERIFY(m_stage->open());
    }
    void cleanup() { m_stage.reset(); }

    void theFieldsShowTheControl();
    void rangeCheckIsItsLowestBit_data();
    void rangeCheckIsItsLowestBit();
    void everyFieldMarksThePageChanged();
    void readingMarksNothing();
    void membersAreReadAndWrittenInTheirOrder();
    void onlyTheFirstOfSeveralIsReadAndWritten();
    void aBoundIsReadByTheLocale_data();
    void aBoundIsReadByTheLocale();
    void aBoundThatIsNoNumberEndsApplyWhereItIs();
    void sevenDigitsOfASingleAreShownAndWritten();
    void aMaskIsNotChecked();

private:
    std::unique_ptr<PageStage> m_stage;
};

void tst_PagKorNumber::theFieldsShowTheControl()
{
    KorNumber number;
    number.setCheckRange(true);
    number.setMaskPicture(QStringLiteral("0.000"));
    number.setMinValue(-0.5F);
    number.setMaxValue(1000);
    m_stage->page->setSelectedControls({&number});
    QVERIFY(m_stage->isChecked("chkCheckRange"));
    QCOMPARE(m_stage->text("txtMaska"), QStringLiteral("0.000"));
    QCOMPARE(m_stage->text("txtMinValue"), QStringLiteral("-0,5"));
    QCOMPARE(m_stage->text("txtMaxValue"), QStringLiteral("1000"));
    number.setCheckRange(false);
    m_stage->page->SelectionChanged();
    QVERIFY(!m_stage->isChecked("chkCheckRange"));
}

void tst_PagKorNumber::rangeCheckIsItsLowestBit_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("checked");
    QTest::newRow("True") << QVariant(true) << true;
    QTest::newRow("False") << QVariant(false) << false;
    QTest::newRow("-1") << QVariant(-1) << true;
    QTest::newRow("2 has none") << QVariant(2) << false;
}

void tst_PagKorNumber::rangeCheckIsItsLowestBit()
{
    QFETCH(QVariant, value);
    RecordedNumber number;
    number.setCheckRange(value);
    m_stage->page->setSelectedControls({&number});
    QTEST(m_stage->isChecked("chkCheckRange"), "checked");
}

void tst_PagKorNumber::everyFieldMarksThePageChanged()
{
    RecordedNumber number;
    m_stage->page->setSelectedControls({&number});
    const QStringList fields{QStringLiteral("chkCheckRange"), QStringLiteral("txtMaska"), QStringLiteral("txtMinValue"),
                             QStringLiteral("txtMaxValue")};
    QCOMPARE(m_stage->marking(fields), fields);
    m_stage->page->setChanged(false);
    m_stage->click("chkCheckRange");
    QVERIFY(m_stage->page->Changed());
}

void tst_PagKorNumber::readingMarksNothing()
{
    RecordedNumber number;
    QSignalSpy due(m_stage->page, &PropertyPage::applyDue);
    m_stage->page->setSelectedControls({&number});
    QVERIFY(!m_stage->page->Changed());
    number.setMaskPicture(QStringLiteral("0"));
    m_stage->page->SelectionChanged();
    QCOMPARE(m_stage->text("txtMaska"), QStringLiteral("0"));
    QVERIFY(!m_stage->page->Changed());
    QVERIFY(due.isEmpty());
}

void tst_PagKorNumber::membersAreReadAndWrittenInTheirOrder()
{
    RecordedNumber number;
    m_stage->page->setSelectedControls({&number});
    QCOMPARE(number.take(), QStringLiteral("CheckRange MaskPicture MinValue MaxValue"));
    m_stage->type("txtMinValue", QStringLiteral("0,5"));
    m_stage->click("chkCheckRange");
    QCOMPARE(number.take(), QString());
    m_stage->page->ApplyChanges();
    QCOMPARE(number.take(), QStringLiteral("CheckRange=False MaskPicture=\"0.0\" MinValue=\"0,5\" MaxValue=\"20\""));
    QVERIFY(!m_stage->page->Changed());
}

void tst_PagKorNumber::onlyTheFirstOfSeveralIsReadAndWritten()
{
    KorNumber first;
    first.setMinValue(1);
    KorNumber second;
    second.setMinValue(2);
    m_stage->page->setSelectedControls({&first, &second});
    QCOMPARE(m_stage->text("txtMinValue"), QStringLiteral("1"));
    m_stage->type("txtMinValue", QStringLiteral("7"));
    m_stage->page->ApplyChanges();
    QCOMPARE(first.MinValue(), QVariant(7.0F));
    QCOMPARE(second.MinValue(), QVariant(2.0F));
}

void tst_PagKorNumber::aBoundIsReadByTheLocale_data()
{
    QTest::addColumn<bool>("comma");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("error");
    QTest::addColumn<float>("bound");
    // clang-format off
    QTest::newRow("0,5 where the comma separates")  << true  << "0,5"  << 0  << 0.5F;
    QTest::newRow("0,5 where the point separates")  << false << "0,5"  << 13 << 0.0F;
    QTest::newRow("0.5 where the point separates")  << false << "0.5"  << 0  << 0.5F;
    QTest::newRow("nothing is no number")           << true  << ""     << 13 << 0.0F;
    // clang-format on
}

void tst_PagKorNumber::aBoundIsReadByTheLocale()
{
    QFETCH(bool, comma);
    QFETCH(QString, text);
    QFETCH(int, error);
    QFETCH(float, bound);
    Locale::setSystemDefault(comma ? Locale::polish() : Locale::english());
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    m_stage->type("txtMinValue", text);
    QCOMPARE(errorOfCall(m_stage->page, "ApplyChanges"), error);
    QCOMPARE(number.MinValue(), QVariant(bound));
    QCOMPARE(m_stage->page->Changed(), error != 0);
}

void tst_PagKorNumber::aBoundThatIsNoNumberEndsApplyWhereItIs()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    m_stage->click("chkCheckRange");
    m_stage->type("txtMaska", QStringLiteral("0.0"));
    m_stage->type("txtMinValue", QStringLiteral("x"));
    m_stage->type("txtMaxValue", QStringLiteral("5"));
    QCOMPARE(errorOf([&] {
                 m_stage->page->ApplyChanges();
                 return 0;
             }),
             13);
    QVERIFY(number.CheckRange());
    QCOMPARE(number.MaskPicture(), QStringLiteral("0.0"));
    QCOMPARE(number.MaxValue(), QVariant(0.0F));
    QVERIFY(m_stage->page->Changed());
    QCOMPARE(m_stage->text("txtMinValue"), QStringLiteral("x"));
    m_stage->type("txtMinValue", QStringLiteral("1"));
    m_stage->page->ApplyChanges();
    QCOMPARE(number.MinValue(), QVariant(1.0F));
    QCOMPARE(number.MaxValue(), QVariant(5.0F));
    QVERIFY(m_stage->takeUnhandled().empty()); // it went to the caller
}

void tst_PagKorNumber::sevenDigitsOfASingleAreShownAndWritten()
{
    KorNumber number;
    number.setMaxValue(16777216);
    m_stage->page->setSelectedControls({&number});
    QCOMPARE(m_stage->text("txtMaxValue"), QStringLiteral("1,677722E+07"));
    m_stage->page->ApplyChanges();
    QCOMPARE(number.MaxValue(), QVariant(16777220.0F));
}

void tst_PagKorNumber::aMaskIsNotChecked()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    m_stage->type("txtMaska", QStringLiteral("\"bez konca"));
    m_stage->page->ApplyChanges();
    QCOMPARE(number.MaskPicture(), QStringLiteral("\"bez konca"));
}

QTEST_MAIN(tst_PagKorNumber)

#include "tst_pagkornumber.moc"
