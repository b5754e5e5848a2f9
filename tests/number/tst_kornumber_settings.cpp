// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/settings.h"
#include "support/stage.h"

#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>

using namespace kor;
using namespace kor::test;

namespace {

void setEverything(KorNumber &number)
{
    number.setBackColor(0x00C0FFFF);
    number.setForeColor(0x00800000);
    number.setEnabled(false);
    QFont font = number.Font();
    font.setBold(true);
    font.setPointSize(13);
    number.setFont(font);
    number.setLocked(true);
    number.setValue(12.5);
    number.setMaxLength(9);
    number.setWhatsThisHelpID(77);
    number.setBorderStyle(BorderStyleType::None);
    number.setAlignment(AlignmentType::Center);
    number.setMaskPicture(QStringLiteral("0.000"));
    number.setMaxValue(100);
    number.setMinValue(-1);
    number.setCheckRange(true);
    number.setAppearance(AppearanceType::Flat);
    number.setBlockChange(true);
    number.setToolTipText(QStringLiteral("Zaliczka"));
}

} // namespace

//! What the numeric field saves with its form, and how it is read back.
class tst_KorNumberSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void aFreshFieldStoresNothing();
    void settingsAreWrittenInTheirOrder();
    void maxLengthIsWrittenTwice();
    void loadingRaisesChangeOnceAndClearsTheFlag();
    void loadedValueIsReplacedByTheLoadedText();
    void settingsRoundTrip();
    void typeIsKeptUnchanged_data();
    void typeIsKeptUnchanged();
    void wrongKindsAreRefused();
    void everyLetReportsItsProperty();
    void aNegativeMaxLengthIsRefused();
};

void tst_KorNumberSettings::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
}

void tst_KorNumberSettings::aFreshFieldStoresNothing()
{
    KorNumber fresh;
    const PropertyBag bag = settingsOf(fresh);
    QCOMPARE(keysOf(bag), QStringList());
    KorNumber loaded;
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
}

void tst_KorNumberSettings::settingsAreWrittenInTheirOrder()
{
    KorNumber number;
    number.resize(160, 26);
    setEverything(number);
    const PropertyBag bag = settingsOf(number);
    const QString order =
        QStringLiteral("BackColor ForeColor Enabled Font Locked Value Text MaxLength MaxLength "
                       "WhatsThisHelpID BorderStyle Alignment MaskPicture MaxValue MinValue CheckRange "
                       "Appearance BlockChange ToolTipText");
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')), order);
    QCOMPARE(bag.ReadProperty(QStringLiteral("Value")), QVariant(12.5));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Text")), QVariant(QStringLiteral("12,50")));
    QCOMPARE(bag.ReadProperty(QStringLiteral("MaxValue")).typeId(), int(QMetaType::Float));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Alignment")).typeId(), int(QMetaType::Short));
}

void tst_KorNumberSettings::maxLengthIsWrittenTwice()
{
    KorNumber number;
    number.setMaxLength(5);
    const PropertyBag bag = settingsOf(number);
    QCOMPARE(keysOf(bag), (QStringList{QStringLiteral("MaxLength"), QStringLiteral("MaxLength")}));
}

void tst_KorNumberSettings::loadingRaisesChangeOnceAndClearsTheFlag()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("12,50"));
    KorNumber number;
    EventLog log(&number);
    number.readProperties(bag);
    QCOMPARE(log.take(), QStringLiteral("Change"));
    QVERIFY(!number.DataChanged());
    QCOMPARE(number.Value(), QVariant(12.5));
    QCOMPARE(number.Text(), QStringLiteral("12,50"));
}

void tst_KorNumberSettings::loadedValueIsReplacedByTheLoadedText()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Value"), 7.0);
    KorNumber valueOnly;
    valueOnly.readProperties(bag);
    QCOMPARE(valueOnly.Value(), QVariant(7.0)); // stored, and not shown
    QCOMPARE(valueOnly.Text(), QString());
    bag.append(QStringLiteral("Text"), QStringLiteral("9,00"));
    KorNumber both;
    both.readProperties(bag);
    QCOMPARE(both.Value(), QVariant(9.0));
}

void tst_KorNumberSettings::settingsRoundTrip()
{
    KorNumber number;
    number.resize(160, 26);
    setEverything(number);
    const PropertyBag bag = settingsOf(number);
    KorNumber loaded;
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
}

void tst_KorNumberSettings::typeIsKeptUnchanged_data()
{
    QTest::addColumn<QVariant>("type");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("the Integer 0 is the default") << QVariant::fromValue(short(0)) << false;
    QTest::newRow("another Integer") << QVariant::fromValue(short(2)) << true;
    QTest::newRow("the Long 0 is of another type") << QVariant(0) << true;
    QTest::newRow("text") << QVariant(QStringLiteral("N")) << true;
}

void tst_KorNumberSettings::typeIsKeptUnchanged()
{
    QFETCH(QVariant, type);
    QFETCH(bool, isStored);
    PropertyBag bag;
    bag.append(QStringLiteral("Type"), type);
    KorNumber number;
    number.readProperties(bag);
    const PropertyBag again = settingsOf(number);
    QCOMPARE(keysOf(again), isStored ? QStringList{QStringLiteral("Type")} : QStringList());
    if (isStored)
        QVERIFY(isSameSetting(again.ReadProperty(QStringLiteral("Type")), type));
}

void tst_KorNumberSettings::wrongKindsAreRefused()
{
    PropertyBag bag;
    bag.append(QStringLiteral("MaxLength"), QStringLiteral("long"));
    KorNumber number;
    try {
        number.readProperties(bag);
        QFAIL("read");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 13);
    }
}

void tst_KorNumberSettings::everyLetReportsItsProperty()
{
    KorNumber number;
    QStringList reported;
    connect(&number, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    setEverything(number);
    number.setText(QStringLiteral("3"));
    const QStringList expected{
        QStringLiteral("BackColor"),   QStringLiteral("ForeColor"),       QStringLiteral("Enabled"),
        QStringLiteral("Font"),        QStringLiteral("Locked"),          QStringLiteral("Value"),
        QStringLiteral("MaxLength"),   QStringLiteral("WhatsThisHelpID"), QStringLiteral("BorderStyle"),
        QStringLiteral("Alignment"),   QStringLiteral("MaskPicture"),     QStringLiteral("MaxValue"),
        QStringLiteral("MinValue"),    QStringLiteral("CheckRange"),      QStringLiteral("Appearance"),
        QStringLiteral("BlockChange"), QStringLiteral("ToolTipText"),     QStringLiteral("Value"),
        QStringLiteral("Text")};
    QCOMPARE(reported, expected);
}

void tst_KorNumberSettings::aNegativeMaxLengthIsRefused()
{
    KorNumber number;
    QVERIFY_THROWS_EXCEPTION(RunTimeError, number.setMaxLength(-1));
}

QTEST_MAIN(tst_KorNumberSettings)
#include "tst_kornumber_settings.moc"
