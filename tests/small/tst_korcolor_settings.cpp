// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/settings.h"
#include "support/stage.h"

#include <KorDaoUC/KorColor>
#include <KorDaoUC/PropertyBag>

#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {

void setEverything(KorColor &color)
{
    color.setBackColor(0x00C0FFFF);
    color.setForeColor(0x00800000);
    color.setEnabled(false);
    QFont font = color.Font();
    font.setPointSize(15);
    color.setFont(font);
    color.setValue(65535);
    color.setToolTipText(QStringLiteral("Kolor etykiety"));
}

} // namespace

//! What the colour field saves with its form, and how it is read back.
class tst_KorColorSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void settingsAreWrittenInTheirOrder();
    void savedValueIsTheColorLastSet();
    void valueIsWrittenAndNeverReadBack();
    void everyLetReportsItsProperty();

private:
    std::unique_ptr<KorColor> m_color;
    QComboBox *m_box = nullptr;
};

void tst_KorColorSettings::init()
{
    failOnWarnings();
    m_color = std::make_unique<KorColor>();
    m_box = m_color->findChild<QComboBox *>(QStringLiteral("cmbColor"));
}

void tst_KorColorSettings::settingsAreWrittenInTheirOrder()
{
    setEverything(*m_color);
    const PropertyBag bag = settingsOf(*m_color);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')), QStringLiteral("BackColor ForeColor Enabled Font Value ToolTipText"));
    QCOMPARE(bag.ReadProperty(QStringLiteral("Value")), QVariant(65535));
}

void tst_KorColorSettings::savedValueIsTheColorLastSet()
{
    const auto saved = [this] {
        const PropertyBag bag = settingsOf(*m_color);
        return bag.isEmpty() ? QVariant() : bag.ReadProperty(QStringLiteral("Value"));
    };
    m_color->setValue(0x123456);
    QCOMPARE(saved(), QVariant(0x123456)); // though another one is shown
    m_box->setCurrentIndex(3);
    QCOMPARE(saved(), QVariant(0x123456));
    m_color->setValue(static_cast<int>(0x8000000FU));
    QCOMPARE(saved(), QVariant());
    QCOMPARE(m_color->Value(), 0); // a system colour is none of the list
}

void tst_KorColorSettings::valueIsWrittenAndNeverReadBack()
{
    setEverything(*m_color);
    const PropertyBag bag = settingsOf(*m_color);
    KorColor loaded;
    EventLog log(&loaded);
    loaded.readProperties(bag);
    QCOMPARE(loaded.Value(), 255);
    QCOMPARE(loaded.ToolTipText(), QStringLiteral("Kolor etykiety"));
    QCOMPARE(log.take(), QString());
    const PropertyBag again = settingsOf(loaded);
    QCOMPARE(keysOf(again).join(QLatin1Char(' ')), QStringLiteral("BackColor ForeColor Enabled Font ToolTipText"));
    m_color->readProperties(bag);
    QCOMPARE(m_color->Value(), 255); // also after another entry was shown
}

void tst_KorColorSettings::everyLetReportsItsProperty()
{
    QStringList changed;
    connect(m_color.get(), &UserControl::PropertyChanged, this, [&](const QString &name) { changed << name; });
    setEverything(*m_color);
    QCOMPARE(changed.join(QLatin1Char(' ')), QStringLiteral("BackColor ForeColor Enabled Font Color ToolTipText"));
}

QTEST_MAIN(tst_KorColorSettings)
#include "tst_korcolor_settings.moc"
