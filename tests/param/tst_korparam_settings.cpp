// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramsuite.h"
#include "support/runtimeerrors.h"
#include "support/settings.h"

#include <KorDaoUC/Color>
#include <KorDaoUC/PropertyBag>

using namespace kor;
using namespace kor::test;

//! What a form keeps of a sheet. The rows that all controls share are the contract suite's.
class tst_KorParam_Settings : public ParamSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void keysStandInTheirOrder();
    void keysHaveTheirTypes();
    void settingsAreReadBack();
    void aMissingKeyIsTheDefault();
    void parametersAreNotSaved();
    void theColourBehindTheRowsIsSeen();
    void theWidthOfTheNamesMovesTheValues();
    void aWidthBelowNothingIsRefused();
    void theUsersOwnWidthIsTold();
    void theButtonsSettingReachesBothEditors();
    void initialSettingsBlockTheArrowsAgain();

private:
    [[nodiscard]] PropertyBag saved() const { return settingsOf(*sheet); }
    void changeAll()
    {
        sheet->setEnabledClick(false);
        sheet->setColValTitle(QStringLiteral("Treść"));
        sheet->setColParTitle(QStringLiteral("Pole"));
        sheet->setRows(5);
        sheet->setColNameWidth(1800);
        sheet->setBorderStyle(BorderStyleType::FixedSingle);
        QFont font = sheet->Font();
        font.setPointSize(17);
        sheet->setFont(font);
        sheet->setEnabled(false);
        sheet->setForeColor(0x000000FF);
        sheet->setBackColorBkg(0x0000FF00);
        sheet->setBackColor(0x00FFFFC0);
    }
};

void tst_KorParam_Settings::keysStandInTheirOrder()
{
    QCOMPARE(keysOf(saved()), QStringList());
    changeAll();
    QCOMPARE(keysOf(saved()).join(u' '), QStringLiteral("BackColor BackColorBkg ForeColor Enabled Font BorderStyle "
                                                        "ColNameWidth Rows ColParTitle ColValTitle EnabledClick"));
    QStringList listed;
    for (const SavedSetting &setting : sheet->savedSettings())
        listed << setting.key;
    QCOMPARE(listed, keysOf(saved()));
}

void tst_KorParam_Settings::keysHaveTheirTypes()
{
    changeAll();
    const PropertyBag bag = saved();
    const auto typeOf = [&](const char *key) { return variantType(bag.ReadProperty(QString::fromLatin1(key))); };
    QCOMPARE(typeOf("BackColorBkg"), VariantType::Long);
    QCOMPARE(typeOf("BorderStyle"), VariantType::Integer);
    QCOMPARE(typeOf("ColNameWidth"), VariantType::Integer);
    QCOMPARE(typeOf("Rows"), VariantType::Integer);
    QCOMPARE(typeOf("ColParTitle"), VariantType::String);
    QCOMPARE(typeOf("EnabledClick"), VariantType::Boolean);
}

void tst_KorParam_Settings::settingsAreReadBack()
{
    changeAll();
    KorParam loaded;
    loaded.readProperties(saved());
    QCOMPARE(loaded.BackColorBkg(), 0x0000FF00);
    QCOMPARE(loaded.BorderStyle(), BorderStyleType::FixedSingle);
    QCOMPARE(loaded.ColNameWidth(), 1800);
    QCOMPARE(loaded.Rows(), 5);
    QCOMPARE(loaded.ColParTitle(), QStringLiteral("Pole"));
    QCOMPARE(loaded.ColValTitle(), QStringLiteral("Treść"));
    QVERIFY(!loaded.EnabledClick());
    const PropertyBag again = settingsOf(loaded);
    QVERIFY(again == saved());
}

void tst_KorParam_Settings::aMissingKeyIsTheDefault()
{
    changeAll();
    sheet->readProperties(PropertyBag());
    QCOMPARE(keysOf(saved()), QStringList());
    QCOMPARE(sheet->BackColorBkg(), int(WindowBackground));
    QCOMPARE(sheet->BorderStyle(), BorderStyleType::None);
    QCOMPARE(sheet->ColNameWidth(), 3000);
    QCOMPARE(sheet->Rows(), 2);
    QCOMPARE(cell(0, 1), QStringLiteral("Nazwa parametru"));
    QCOMPARE(cell(0, 2), QStringLiteral("Wartość"));
    QVERIFY(sheet->EnabledClick());
}

void tst_KorParam_Settings::parametersAreNotSaved()
{
    report();
    KorParam loaded;
    loaded.readProperties(saved());
    QCOMPARE(loaded.Rows(), 7);
    loaded.setRow(1);
    QCOMPARE(loaded.ParName(), QString());
    QCOMPARE(loaded.ParValue(), QVariant());
}

void tst_KorParam_Settings::theColourBehindTheRowsIsSeen()
{
    const auto behind = [&] {
        const QImage picture = view()->viewport()->grab().toImage();
        return picture.pixelColor(picture.width() / 2, picture.height() - 3);
    };
    sheet->setBackColorBkg(0x0000FF00);
    QCOMPARE(behind(), QColor(0, 255, 0));
    sheet->setBackColorBkg(WindowBackground);
    QPalette palette = stage->palette();
    palette.setColor(QPalette::Base, QColor(20, 30, 40));
    stage->setPalette(palette);
    settle();
    QCOMPARE(behind(), QColor(20, 30, 40)); // the theme's
}

void tst_KorParam_Settings::theWidthOfTheNamesMovesTheValues()
{
    const int room = view()->viewport()->width();
    QCOMPARE(view()->columnWidth(0) + view()->columnWidth(1), room);
    sheet->setColNameWidth(1500);
    settle();
    QCOMPARE(view()->columnWidth(0), 100);
    QCOMPARE(view()->columnWidth(1), room - 100);
    sheet->resize(600, 240);
    settle();
    QCOMPARE(view()->columnWidth(1), view()->viewport()->width() - 100);
    sheet->setRows(100); // and a scroll bar
    settle();
    QCOMPARE(view()->columnWidth(1), view()->viewport()->width() - 100);
    QVERIFY(view()->viewport()->width() < 579);
}

void tst_KorParam_Settings::aWidthBelowNothingIsRefused()
{
    QCOMPARE(errorOf([&] { sheet->setColNameWidth(-1); }), 380);
    QCOMPARE(sheet->ColNameWidth(), 3000);
}

void tst_KorParam_Settings::theUsersOwnWidthIsTold()
{
    const int room = view()->viewport()->width();
    view()->horizontalHeader()->resizeSection(0, 120);
    settle();
    QCOMPARE(sheet->ColNameWidth(), 1800);
    QCOMPARE(view()->columnWidth(1), room - 120);
}

void tst_KorParam_Settings::theButtonsSettingReachesBothEditors()
{
    PropertyBag bag;
    bag.append(QStringLiteral("EnabledClick"), false);
    sheet->readProperties(bag);
    QVERIFY(!editor<KorClick>("KorClk")->EnabledClick());
    QVERIFY(!editor<KorDate>("KorDat")->EnabledClick());
}

void tst_KorParam_Settings::initialSettingsBlockTheArrowsAgain()
{
    editor<KorCombo>("KorCmb")->setBlockUpDown(false);
    editor<KorDate>("KorDat")->setBlockUpDown(false);
    editor<KorClick>("KorClk")->setBlockUpDown(false);
    sheet->setColNameWidth(700);
    sheet->setColParTitle(QStringLiteral("x"));
    sheet->initProperties();
    QVERIFY(editor<KorCombo>("KorCmb")->BlockUpDown());
    QVERIFY(editor<KorDate>("KorDat")->BlockUpDown());
    QVERIFY(editor<KorClick>("KorClk")->BlockUpDown());
    QCOMPARE(sheet->ColNameWidth(), 3000);
    QCOMPARE(cell(0, 1), QStringLiteral("Nazwa parametru"));
}

QTEST_MAIN(tst_KorParam_Settings)
#include "tst_korparam_settings.moc"
