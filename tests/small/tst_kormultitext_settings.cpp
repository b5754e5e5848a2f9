// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/runtimeerrors.h"
#include "support/settings.h"
#include "support/stage.h"

#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>

#include <memory>

using namespace kor;
using namespace kor::test;

namespace {

void setEverything(KorMultiText &text)
{
    text.setBackColor(0x00C0FFFF);
    text.setForeColor(0x00800000);
    text.setEnabled(false);
    QFont font = text.Font();
    font.setPointSize(15);
    text.setFont(font);
    text.setBorderStyle(BorderStyleType::None);
    text.setAlignment(AlignmentType::Right_Justify);
    text.setOpenDrection(OpenDirectionType::Up);
    text.setEnabledClick(false);
    text.setText(QStringLiteral("jeden\r\ndwa"));
    text.setMaxLength(2000);
    text.setOpenLines(12);
    text.setDataChanged(true);
}

} // namespace

//! What the multi-line text field saves with its form, and how it is read back.
class tst_KorMultiTextSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void settingsAreWrittenInTheirOrder();
    void settingsRoundTrip();
    void defaultsAreStoredNowhere();
    void storedFlagWinsOverTheLoadedText();
    void everyLetReportsItsProperty();
    void outOfRangeIsRefused();

private:
    std::unique_ptr<KorMultiText> m_text;
};

void tst_KorMultiTextSettings::init()
{
    failOnWarnings();
    m_text = std::make_unique<KorMultiText>();
}

void tst_KorMultiTextSettings::settingsAreWrittenInTheirOrder()
{
    setEverything(*m_text);
    const PropertyBag bag = settingsOf(*m_text);
    QCOMPARE(keysOf(bag).join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Font BorderStyle Alignment OpenDrection EnabledClick "
                            "Text MaxLength OpenLines DataChanged"));
}

void tst_KorMultiTextSettings::settingsRoundTrip()
{
    setEverything(*m_text);
    const PropertyBag bag = settingsOf(*m_text);
    KorMultiText loaded;
    loaded.readProperties(bag);
    QCOMPARE(settingsOf(loaded), bag);
    loaded.readProperties(PropertyBag());
    QVERIFY(settingsOf(loaded).isEmpty());
}

void tst_KorMultiTextSettings::defaultsAreStoredNowhere()
{
    QVERIFY(settingsOf(*m_text).isEmpty());
    QCOMPARE(m_text->OpenLines(), 5);
    QCOMPARE(m_text->OpenDrection(), OpenDirectionType::Down);
    QVERIFY(m_text->EnabledClick());
}

void tst_KorMultiTextSettings::storedFlagWinsOverTheLoadedText()
{
    PropertyBag bag;
    bag.append(QStringLiteral("DataChanged"), false);
    bag.append(QStringLiteral("Text"), QStringLiteral("abc"));
    m_text->readProperties(bag);
    QVERIFY(!m_text->DataChanged());
    bag.append(QStringLiteral("DataChanged"), true);
    m_text->readProperties(bag);
    QVERIFY(m_text->DataChanged());
}

void tst_KorMultiTextSettings::everyLetReportsItsProperty()
{
    QStringList changed;
    connect(m_text.get(), &UserControl::PropertyChanged, this, [&](const QString &name) { changed << name; });
    setEverything(*m_text);
    QCOMPARE(changed.join(QLatin1Char(' ')),
             QStringLiteral("BackColor ForeColor Enabled Font BorderStyle Alignment OpenDrection EnabledClick "
                            "Text MaxLength OpenLines DataChanged"));
}

void tst_KorMultiTextSettings::outOfRangeIsRefused()
{
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_text->setOpenDrection(static_cast<OpenDirectionType>(2)));
    QCOMPARE(errorOf([&] { m_text->setOpenLines(-1); }), 380);
    QCOMPARE(errorOf([&] { m_text->setOpenLines(32768); }), 6);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_text->setAlignment(static_cast<AlignmentType>(3)));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_text->setMaxLength(-1));
    QCOMPARE(m_text->OpenDrection(), OpenDirectionType::Down);
    QCOMPARE(m_text->OpenLines(), 5);
}

QTEST_MAIN(tst_KorMultiTextSettings)
#include "tst_kormultitext_settings.moc"
