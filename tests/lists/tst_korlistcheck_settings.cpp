// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/listsuite.h"
#include "support/settings.h"

#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/PropertyBag>

#include <QtTest/QtTest>

using namespace kor;
using namespace kor::test;

namespace {

const QString abc = QStringLiteral("LIST a;Alfa|b;Beta|c;Celina");

} // namespace

//! What the check list saves with its form beyond the plain list, and how it is read back.
class tst_KorListCheckSettings : public ListSuite<KorListCheck>
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp("CheckList"); }
    void cleanup() { tearDown(); }

    void settingsAreWrittenInTheirOrder();
    void aFreshListStoresNothing();
    void loadedSetsAreKeptAsTheyAre();
    void separatorIsLoadedAtRunTime();
    void databasePlaceholderTouchesNothing();
};

void tst_KorListCheckSettings::settingsAreWrittenInTheirOrder()
{
    UserControl::setUserMode(m_stage.get(), false);
    m_list->setBackColor(0x00C0FFFF);
    m_list->setForeColor(0x00FF0000);
    m_list->setEnabled(false);
    m_box->setToolTip(QStringLiteral("Wybierz"));
    QFont font = m_list->Font();
    font.setBold(true);
    m_list->setFont(font);
    m_list->setSlownik(QStringLiteral("Grupy"));
    m_list->setNullString(QStringLiteral("(brak)"));
    m_list->setAppearance(AppearanceType::Flat);
    m_list->setBorderStyle(BorderStyleType::FixedSingle);
    m_list->setBlockUpDown(true);
    m_list->setToolTipText(QStringLiteral("grupy"));
    m_list->setSeparator(QStringLiteral(","));
    load(abc, true);
    m_list->setBlockClick(true);
    m_list->setValueChecked(QStringLiteral("a,b,"));
    QCOMPARE(m_list->TextChecked(), QStringLiteral("Alfa,Beta,"));
    const PropertyBag bag = settingsOf(*m_list);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled HelpText Font SQL Slownik CanBeNull NullString "
                            "BackColor Appearance BorderStyle BlockUpDown ToolTipText BlockClick "
                            "ValueChecked Separator TextChecked"));
    QCOMPARE(bag.ReadProperty(QStringLiteral("ValueChecked")), QVariant(QStringLiteral(",a,b,"))); // as it was set
    QCOMPARE(bag.ReadProperty(QStringLiteral("TextChecked")), QVariant(QStringLiteral("Alfa,Beta,")));
    KorListCheck loaded;
    QStringList applied;
    connect(&loaded, &UserControl::PropertyChanged, this, [&](const QString &name) { applied << name; });
    loaded.readProperties(bag);
    QCOMPARE(applied.join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Font SQL Slownik CanBeNull NullString BackColor Appearance "
                            "BorderStyle BlockUpDown ToolTipText BlockClick Separator"));
    QCOMPARE(settingsOf(loaded), bag);
}

void tst_KorListCheckSettings::aFreshListStoresNothing()
{
    KorListCheck fresh;
    const PropertyBag bag = settingsOf(fresh);
    QVERIFY(bag.isEmpty());
    KorListCheck loaded;
    loaded.readProperties(bag);
    const PropertyBag again = settingsOf(loaded);
    QVERIFY(again.isEmpty());
    QCOMPARE(loaded.Separator(), QStringLiteral(";"));
}

void tst_KorListCheckSettings::loadedSetsAreKeptAsTheyAre()
{
    PropertyBag bag;
    bag.append(QStringLiteral("CanBeNull"), true);
    bag.append(QStringLiteral("ValueChecked"), QStringLiteral(";a;b;"));
    bag.append(QStringLiteral("TextChecked"), QStringLiteral("Alfa;Beta;"));
    m_list->readProperties(bag);
    const PropertyBag again = settingsOf(*m_list);
    QCOMPARE(again, bag);
    QCOMPARE(m_list->SelCount(), 0);
    QCOMPARE(m_list->ListCount(), 1);
}

void tst_KorListCheckSettings::separatorIsLoadedAtRunTime()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Separator"), QStringLiteral(", "));
    m_list->readProperties(bag);
    QCOMPARE(m_list->Separator(), QStringLiteral(", "));
    QVERIFY(m_list->setProperty("SavedSeparator", QStringLiteral("|"))); // a loader of the toolkit's own forms
    QCOMPARE(m_list->Separator(), QStringLiteral("|"));
}

void tst_KorListCheckSettings::databasePlaceholderTouchesNothing()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Database"), QVariant::fromValue(short(7)));
    m_list->readProperties(bag);
    load(QStringLiteral("SELECT 1, 'jeden'"));
    QCOMPARE(m_list->ListCount(), 1); // the database is still there
    const PropertyBag again = settingsOf(*m_list);
    QVERIFY(!again.contains(QStringLiteral("Database")));
}

QTEST_MAIN(tst_KorListCheckSettings)
#include "tst_korlistcheck_settings.moc"
