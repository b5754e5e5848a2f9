// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/datesuite.h"
#include "support/eventlog.h"
#include "support/settings.h"

#include <KorDaoUC/KorDate>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

using namespace kor;
using namespace kor::test;

namespace {

void setEverything(KorDate &date)
{
    date.setBackColor(0x00C0FFFF);
    date.setForeColor(0x00800000);
    date.setEnabled(false);
    QFont font = date.Font();
    font.setBold(true);
    font.setPointSize(13);
    date.setFont(font);
    date.setBorderStyle(BorderStyleType::None);
    date.setText(QStringLiteral("15.03.1999"));
    date.setWhatsThisHelpID(77);
    date.setLocked(true);
    date.setCurrentDate(false);
    date.setBlockUpDown(true);
    date.setAppearance(AppearanceType::Flat);
    date.setEnabledClick(false);
    date.setFormatMask(QStringLiteral("yyyy-MM-dd"));
    date.setToolTipText(QStringLiteral("Data dostawy"));
}

} // namespace

//! What the date field saves with its form, and how it is read back.
class tst_KorDateSettings : public DateSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aFreshFieldStoresTodayOnly();
    void anEmptyFieldOfDefaultsStoresNothing();
    void settingsAreWrittenInTheirOrder();
    void settingsRoundTrip();
    void loadingRewritesNeitherTextNorValue();
    void loadingRaisesChangeOnceAndClearsTheFlag();
    void currentDateIsWrittenOnLoadingWithTheMaskHeldSoFar();
    void currentDateIsTakenOnTheFirstShowing();
    void nullIsSavedAndLoadedAsNull();
    void initPropertiesWritesTodayWithTheMaskHeldBefore();
    void everyLetReportsItsProperty();
};

void tst_KorDateSettings::aFreshFieldStoresTodayOnly()
{
    KorDate fresh;
    const PropertyBag bag = settingsOf(fresh);
    QCOMPARE(keysOf(bag), (QStringList{QStringLiteral("Text"), QStringLiteral("Value")}));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Value")), QVariant(today));
}

void tst_KorDateSettings::anEmptyFieldOfDefaultsStoresNothing()
{
    KorDate loaded;
    loaded.readProperties(PropertyBag());
    QVERIFY(isNull(loaded.Value()));
    QCOMPARE(loaded.Text(), QString());
    QCOMPARE(keysOf(settingsOf(loaded)), QStringList());
}

void tst_KorDateSettings::settingsAreWrittenInTheirOrder()
{
    KorDate date;
    setEverything(date);
    date.setCurrentDate(true);
    const PropertyBag bag = settingsOf(date);
    QCOMPARE(
        keysOf(bag).join(QLatin1Char(' ')),
        QStringLiteral("BackColor ForeColor Enabled Font BorderStyle Text Value WhatsThisHelpID Locked CurrentDate "
                       "BlockUpDown Appearance EnabledClick FormatMask ToolTipText"));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Value")), QVariant(QDate(1999, 3, 15)));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Text")), QVariant(QStringLiteral("15.03.1999")));
    QCOMPARE(bag.ReadProperty(QStringLiteral("BorderStyle")).typeId(), int(QMetaType::Short));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Appearance")).typeId(), int(QMetaType::Short));
}

void tst_KorDateSettings::settingsRoundTrip()
{
    KorDate date;
    setEverything(date);
    const PropertyBag bag = settingsOf(date);
    KorDate loaded;
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
    QCOMPARE(loaded.Text(), QStringLiteral("15.03.1999"));
    QVERIFY(!loaded.EnabledClick());
}

void tst_KorDateSettings::loadingRewritesNeitherTextNorValue()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("kiedyś"));
    bag.append(QStringLiteral("Value"), QDate(1999, 3, 15));
    bag.append(QStringLiteral("FormatMask"), QStringLiteral("yyyy-MM-dd"));
    KorDate date;
    date.readProperties(bag);
    QCOMPARE(date.Text(), QStringLiteral("kiedyś"));
    QCOMPARE(date.Value(), QVariant(QDate(1999, 3, 15)));
}

void tst_KorDateSettings::loadingRaisesChangeOnceAndClearsTheFlag()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("15.03.1999"));
    bag.append(QStringLiteral("Value"), QDate(1999, 3, 15));
    KorDate date;
    EventLog log(&date);
    date.readProperties(bag);
    QCOMPARE(log.take(), QStringLiteral("Change"));
    QVERIFY(!date.DataChanged());
}

void tst_KorDateSettings::currentDateIsWrittenOnLoadingWithTheMaskHeldSoFar()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("15.03.1999"));
    bag.append(QStringLiteral("Value"), QDate(1999, 3, 15));
    bag.append(QStringLiteral("CurrentDate"), true);
    bag.append(QStringLiteral("FormatMask"), QStringLiteral("yyyy-MM-dd"));
    KorDate date;
    date.readProperties(bag);
    QCOMPARE(date.Value(), QVariant(today));
    QCOMPARE(date.Text(), QStringLiteral("05.03.2024")); // the saved mask is read only later
    QCOMPARE(date.FormatMask(), QStringLiteral("yyyy-MM-dd"));
    date.readProperties(bag);
    QCOMPARE(date.Text(), QStringLiteral("2024-03-05"));
}

void tst_KorDateSettings::currentDateIsTakenOnTheFirstShowing()
{
    PropertyBag bag;
    bag.append(QStringLiteral("CurrentDate"), true);
    m_date->readProperties(bag);
    m_date->setValue(QDate(1999, 3, 15));
    m_date->setDataChanged(false);
    EventLog log(m_date);
    QVERIFY(m_stage->open());
    QCOMPARE(m_date->Value(), QVariant(today));
    QCOMPARE(m_date->Text(), QStringLiteral("15.03.1999")); // not rewritten here
    QVERIFY(m_date->DataChanged());
    QCOMPARE(log.take(), QString());
    m_date->setValue(QDate(1999, 3, 15));
    m_date->setDataChanged(false);
    m_stage->hide();
    m_stage->show();
    QCOMPARE(m_date->Value(), QVariant(QDate(1999, 3, 15)));
    QVERIFY(!m_date->DataChanged());
}

void tst_KorDateSettings::nullIsSavedAndLoadedAsNull()
{
    KorDate date;
    date.setValue(null());
    const PropertyBag bag = settingsOf(date);
    QCOMPARE(keysOf(bag), QStringList());
    KorDate loaded;
    loaded.readProperties(bag);
    QVERIFY(isNull(loaded.Value()));
}

void tst_KorDateSettings::initPropertiesWritesTodayWithTheMaskHeldBefore()
{
    KorDate date;
    date.setFormatMask(QStringLiteral("yyyy-MM-dd"));
    date.setCurrentDate(true);
    date.setBlockUpDown(true);
    date.setValue(QDate(1999, 3, 15));
    date.initProperties();
    QCOMPARE(date.Text(), QStringLiteral("2024-03-05"));
    QCOMPARE(date.FormatMask(), QStringLiteral("Short Date"));
    QVERIFY(!date.CurrentDate());
    QVERIFY(!date.BlockUpDown());
}

void tst_KorDateSettings::everyLetReportsItsProperty()
{
    KorDate date;
    QStringList reported;
    connect(&date, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    setEverything(date);
    date.setValue(null());
    QCOMPARE(reported.join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Font BorderStyle Text WhatsThisHelpID Locked CurrentDate "
                            "BlockUpDown Appearance EnabledClick FormatMask ToolTipText Value"));
}

QTEST_MAIN(tst_KorDateSettings)
#include "tst_kordate_settings.moc"
