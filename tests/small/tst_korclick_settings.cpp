// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/settings.h"
#include "support/stage.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/PropertyBag>

#include <QtTest/QtTest>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {

void setEverything(KorClick &click)
{
    click.setBackColor(0x00C0FFFF);
    click.setForeColor(0x00800000);
    click.setEnabled(false);
    QFont font = click.Font();
    font.setItalic(true);
    font.setPointSize(13);
    click.setFont(font);
    click.setBorderStyle(BorderStyleType::None);
    click.setAppearance(AppearanceType::Flat);
    click.setBlockUpDown(true);
    click.setText(QStringLiteral("Hurtownia"));
    click.setSelStart(2);
    click.setSelLength(4);
    click.setLocked(true);
    click.setValue(QStringLiteral("H7"));
    click.setMaxLength(30);
    click.setEnabledClick(false);
    click.setToolButText(QStringLiteral("..."));
}

} // namespace

//! What the click field saves with its form, and how it is read back.
class tst_KorClickSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void settingsAreWrittenInTheirOrder();
    void settingsRoundTrip();
    void settingsAreReadInTheirOrder();
    void selectionIsLoadedStartFirst();
    void selTextIsReadAndNotApplied();
    void lockedIsStoredAsLockedText();
    void loadingRaisesChangeOnceAndClearsTheFlag();
    void everyLetButDataChangedReportsItsProperty();

private:
    std::unique_ptr<KorClick> m_click;
    QLineEdit *m_box = nullptr;
};

void tst_KorClickSettings::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    m_click = std::make_unique<KorClick>();
    m_box = m_click->findChild<QLineEdit *>(QStringLiteral("txtClick"));
}

void tst_KorClickSettings::settingsAreWrittenInTheirOrder()
{
    KorClick click;
    setEverything(click);
    const PropertyBag bag = settingsOf(click);
    QCOMPARE(
        keysOf(bag).join(QLatin1Char(' ')),
        QStringLiteral("BackColor ForeColor Enabled Font BorderStyle Appearance BlockUpDown Text SelLength SelText "
                       "SelStart LockedText Value MaxLength EnabledClick ToolButText"));
    for (const char *key : {"BorderStyle", "Appearance", "SelLength", "SelStart", "MaxLength"})
        QCOMPARE(bag.ReadProperty(QString::fromLatin1(key)).typeId(), int(QMetaType::Short));
}

void tst_KorClickSettings::settingsRoundTrip()
{
    KorClick click;
    setEverything(click);
    const PropertyBag bag = settingsOf(click);
    KorClick loaded;
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
    loaded.readProperties(PropertyBag());
    QVERIFY(settingsOf(loaded).isEmpty());
}

void tst_KorClickSettings::settingsAreReadInTheirOrder()
{
    KorClick click;
    QStringList order;
    connect(&click, &UserControl::PropertyChanged, this, [&](const QString &name) { order << name; });
    click.readProperties(PropertyBag());
    order.removeAll(QStringLiteral("Font")); // the form's own, which needs no setting
    QCOMPARE(order.join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Enabled BorderStyle Appearance BlockUpDown Text SelStart "
                            "Locked Value MaxLength EnabledClick ToolButText SelLength"));
}

void tst_KorClickSettings::selectionIsLoadedStartFirst()
{
    PropertyBag bag;
    bag.append(QStringLiteral("SelLength"), 3);
    bag.append(QStringLiteral("SelStart"), 1);
    bag.append(QStringLiteral("Text"), QStringLiteral("abcdef"));
    m_click->readProperties(bag);
    QCOMPARE(field(m_box), QStringLiteral("a[bcd]ef"));
}

void tst_KorClickSettings::selTextIsReadAndNotApplied()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("abcdef"));
    bag.append(QStringLiteral("SelLength"), 2);
    bag.append(QStringLiteral("SelText"), QStringLiteral("XYZ"));
    m_click->readProperties(bag);
    QCOMPARE(field(m_box), QStringLiteral("[ab]cdef"));
}

void tst_KorClickSettings::lockedIsStoredAsLockedText()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Locked"), true);
    m_click->readProperties(bag);
    QVERIFY(!m_click->Locked());
    bag.append(QStringLiteral("LockedText"), true);
    m_click->readProperties(bag);
    QVERIFY(m_click->Locked());
}

void tst_KorClickSettings::loadingRaisesChangeOnceAndClearsTheFlag()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("abc"));
    EventLog log(m_click.get());
    m_click->readProperties(bag);
    QCOMPARE(log.take(), QStringLiteral("Change"));
    QVERIFY(!m_click->DataChanged());
}

void tst_KorClickSettings::everyLetButDataChangedReportsItsProperty()
{
    QStringList changed;
    connect(m_click.get(), &UserControl::PropertyChanged, this, [&](const QString &name) { changed << name; });
    m_click->setDataChanged(true);
    QVERIFY(changed.isEmpty());
    setEverything(*m_click);
    QCOMPARE(
        changed.join(QLatin1Char(' ')),
        QStringLiteral("BackColor ForeColor Enabled Font BorderStyle Appearance BlockUpDown Text SelStart SelLength "
                       "Locked Value MaxLength EnabledClick ToolButText"));
    changed.clear();
    m_click->setSelText(QStringLiteral("x"));
    QCOMPARE(changed, QStringList{QStringLiteral("SelText")});
}

QTEST_MAIN(tst_KorClickSettings)
#include "tst_korclick_settings.moc"
