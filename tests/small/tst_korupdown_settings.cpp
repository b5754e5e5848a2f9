// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/settings.h"
#include "support/stage.h"

#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {

void setEverything(KorUpDown &spin)
{
    spin.setBackColor(0x00C0FFFF);
    spin.setForeColor(0x00800000);
    spin.setEnabled(false);
    QFont font = spin.Font();
    font.setPointSize(15);
    spin.setFont(font);
    spin.setBackStyle(0);
    spin.setBorderStyle(BorderStyleType::None);
    spin.setMax(500);
    spin.setValue(7);
    spin.setMaxLength(4);
    spin.setIncrement(5);
}

} // namespace

//! What the spin field saves with its form, and how it is read back.
class tst_KorUpDownSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void settingsAreWrittenInTheirOrder();
    void settingsRoundTrip();
    void theRangeIsNotSaved();
    void aStoredValueOutOfRangeIsIgnored();
    void aStoredValueOfTheWrongKindIsAnError();
    void aStoredTextStaysWhenTheValueAgrees();
    void everyLetReportsItsProperty();

private:
    std::unique_ptr<KorUpDown> m_spin;
};

void tst_KorUpDownSettings::init()
{
    failOnWarnings();
    m_spin = std::make_unique<KorUpDown>();
}

void tst_KorUpDownSettings::settingsAreWrittenInTheirOrder()
{
    setEverything(*m_spin);
    const PropertyBag bag = settingsOf(*m_spin);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Font BackStyle BorderStyle Text Value MaxLength Increment"));
    QCOMPARE(bag.ReadProperty(QStringLiteral("BackStyle")).typeId(), int(QMetaType::Short));
    QCOMPARE(bag.ReadProperty(QStringLiteral("MaxLength")).typeId(), int(QMetaType::Int));
}

void tst_KorUpDownSettings::settingsRoundTrip()
{
    setEverything(*m_spin);
    const PropertyBag bag = settingsOf(*m_spin);
    KorUpDown loaded;
    QStringList order;
    connect(&loaded, &UserControl::PropertyChanged, this, [&](const QString &name) { order << name; });
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
    QCOMPARE(order.join(QLatin1Char(' ')),
             QStringLiteral(
                 "BackColor ForeColor Enabled Enabled Font BackStyle BorderStyle Text Value Increment MaxLength"));
}

void tst_KorUpDownSettings::theRangeIsNotSaved()
{
    m_spin->setMin(-3);
    m_spin->setMax(500);
    QVERIFY(settingsOf(*m_spin).isEmpty());
}

void tst_KorUpDownSettings::aStoredValueOutOfRangeIsIgnored()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("250"));
    bag.append(QStringLiteral("Value"), 250);
    m_spin->readProperties(bag);
    QCOMPARE(m_spin->Text(), QStringLiteral("250"));
    QCOMPARE(m_spin->Value(), 0);
}

void tst_KorUpDownSettings::aStoredValueOfTheWrongKindIsAnError()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Value"), QStringLiteral("dużo"));
    try {
        m_spin->readProperties(bag);
        QFAIL("no error");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 13);
    }
}

void tst_KorUpDownSettings::aStoredTextStaysWhenTheValueAgrees()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("007"));
    bag.append(QStringLiteral("Value"), 7);
    EventLog log(m_spin.get());
    m_spin->readProperties(bag);
    QCOMPARE(m_spin->Text(), QStringLiteral("007"));
    QCOMPARE(m_spin->Value(), 7);
    QCOMPARE(log.take(), QStringLiteral("Change"));
}

void tst_KorUpDownSettings::everyLetReportsItsProperty()
{
    QStringList changed;
    connect(m_spin.get(), &UserControl::PropertyChanged, this, [&](const QString &name) { changed << name; });
    setEverything(*m_spin);
    m_spin->setMin(3);
    m_spin->setText(QStringLiteral("4"));
    QCOMPARE(changed.join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Font BackStyle BorderStyle Max Value MaxLength Increment Min "
                            "Text"));
}

QTEST_MAIN(tst_KorUpDownSettings)
#include "tst_korupdown_settings.moc"
