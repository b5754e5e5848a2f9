// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pagestage.h"
#include "support/runtimeerrors.h"
#include "support/settings.h"

#include <KorDaoUC/Color>
#include <KorDaoUC/Enumerations>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/PropertyBag>

#include <QtGui/QIcon>
#include <QtTest/QtTest>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFontDialog>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTabWidget>

#include <cstdlib>

using namespace kor;
using namespace kor::test;

namespace {

//! Does something with the next dialog that opens.
class AnyDialogUser : public QObject
{
public:
    explicit AnyDialogUser(std::function<void(QDialog &)> use) : m_use(std::move(use))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || isUsed)
                return;
            isUsed = true;
            m_use(*dialog);
        });
        m_timer.start(10);
    }
    bool isUsed = false;

private:
    std::function<void(QDialog &)> m_use;
    QTimer m_timer;
};

} // namespace

//! The look of any control.
class tst_PagAppearance : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_stage = std::make_unique<PageStage>("pagAppearance");
        QVERIFY(m_stage->open());
    }
    void cleanup() { m_stage.reset(); }

    void everyControlHasAFieldForEachMember_data();
    void everyControlHasAFieldForEachMember();
    void theFieldsShowTheControl();
    void onlyWhatWasEditedIsWritten();
    void editsMeantForOthersAreNotWrittenToOneThatCannotBeRead();
    void editsGoToAllThatHaveTheMember();
    void aSystemColourIsChosenFromTheList();
    void aSwatchIsSeenOnItsGroundAndKeepsItsColourWhenSelected_data();
    void aSwatchIsSeenOnItsGroundAndKeepsItsColourWhenSelected();
    void anotherColourIsChosenInItsDialog();
    void aClosedDialogChangesNothing_data();
    void aClosedDialogChangesNothing();
    void aFontIsChosenInItsDialog();
    void thePageMayGoWhileADialogIsOpen();

private:
    std::unique_ptr<PageStage> m_stage;
};

void tst_PagAppearance::everyControlHasAFieldForEachMember_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ControlRegistry::names())
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_PagAppearance::everyControlHasAFieldForEachMember()
{
    QFETCH(QString, name);
    QVERIFY(ControlRegistry::pagesOf(name).contains(QStringLiteral("pagAppearance")));
    const std::unique_ptr<UserControl> control(ControlRegistry::create(name));
    m_stage->page->setSelectedControls({control.get()});
    for (const char *member :
         {"BackColor", "BackColorBkg", "ForeColor", "Font", "BorderStyle", "Appearance", "Alignment", "BackStyle"}) {
        const bool isList = !QByteArray(member).contains("Color") && qstrcmp(member, "Font") != 0;
        const auto *field = m_stage->find<QWidget>(QByteArray(isList ? "cmb" : "cmd").append(member));
        QVERIFY2(field, member);
        QCOMPARE(!field->isHidden(), control->metaObject()->indexOfProperty(member) >= 0);
    }
    m_stage->page->setChanged(true);
    const QStringList before = keysOf(settingsOf(*control));
    m_stage->page->ApplyChanges();
    QCOMPARE(keysOf(settingsOf(*control)), before);
}

void tst_PagAppearance::theFieldsShowTheControl()
{
    KorNumber number;
    number.setBackColor(WindowBackground);
    number.setForeColor(0x0000FF);
    number.setFont(QFont(QStringLiteral("DejaVu Sans"), 14, QFont::Bold));
    number.setAlignment(AlignmentType::Center);
    number.setBorderStyle(BorderStyleType::None);
    m_stage->page->setSelectedControls({&number});
    const auto text = [this](const char *name) { return m_stage->find<QPushButton>(name)->text(); };
    QCOMPARE(text("cmdBackColor"), QStringLiteral("Tło okna"));
    QCOMPARE(text("cmdForeColor"), QStringLiteral("#FF0000"));
    QCOMPARE(text("cmdFont"), QStringLiteral("DejaVu Sans, 14, pogrubiona"));
    QCOMPARE(m_stage->find<QComboBox>("cmbAlignment")->currentText(), QStringLiteral("Do środka"));
    QCOMPARE(m_stage->find<QComboBox>("cmbBorderStyle")->currentText(), QStringLiteral("Brak"));
    QVERIFY(!m_stage->page->Changed());
}

void tst_PagAppearance::onlyWhatWasEditedIsWritten()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    auto *list = m_stage->find<QComboBox>("cmbAlignment");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Up);
    QVERIFY(m_stage->page->Changed());
    m_stage->page->ApplyChanges();
    QCOMPARE(number.Alignment(), AlignmentType::Left_Justify);
    QVERIFY(number.usesAmbientFont());
    QCOMPARE(keysOf(settingsOf(number)), QStringList{QStringLiteral("Alignment")});
    number.setAlignment(AlignmentType::Center);
    m_stage->page->setChanged(true);
    m_stage->page->ApplyChanges(); // that edit is over
    QCOMPARE(number.Alignment(), AlignmentType::Center);
}

void tst_PagAppearance::editsMeantForOthersAreNotWrittenToOneThatCannotBeRead()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    auto *list = m_stage->find<QComboBox>("cmbAlignment");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentIndex(), 2);
    QObject next;
    next.setProperty("BorderStyle", 9); // there is no such border
    next.setProperty("Alignment", 0);
    QCOMPARE(errorOf([&] {
                 m_stage->page->setSelectedControls({&next});
                 return 0;
             }),
             380);
    m_stage->page->ApplyChanges();
    QCOMPARE(next.property("Alignment"), QVariant(0));
}

void tst_PagAppearance::editsGoToAllThatHaveTheMember()
{
    KorNumber number;
    KorCombo combo;
    KorNumber other;
    other.setAlignment(AlignmentType::Center);
    m_stage->page->setSelectedControls({&number, &combo, &other});
    auto *border = m_stage->find<QComboBox>("cmbBorderStyle");
    border->setFocus();
    QTest::keyClick(border, Qt::Key_Up);
    m_stage->page->ApplyChanges();
    QCOMPARE(number.BorderStyle(), BorderStyleType::None);
    QCOMPARE(other.BorderStyle(), BorderStyleType::None);
    QCOMPARE(other.Alignment(), AlignmentType::Center); // which differs, and was not edited
    QVERIFY(keysOf(settingsOf(combo)).isEmpty());
}

void tst_PagAppearance::aSystemColourIsChosenFromTheList()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    QStringList offered;
    QString current;
    const AnyDialogUser user([&](QDialog &dialog) {
        auto *list = dialog.findChild<QListWidget *>(QStringLiteral("lstSystem"));
        for (int row = 0; row < list->count(); ++row)
            offered << list->item(row)->text();
        current = list->currentItem()->text();
        list->setFocus();
        QTest::keyClicks(list, QStringLiteral("Przycisk"));
        QTest::keyClick(list, Qt::Key_Return);
    });
    m_stage->click("cmdBackColor");
    QVERIFY(user.isUsed);
    QCOMPARE(offered.size(), 25);
    QCOMPARE(current, QStringLiteral("Tło okna"));
    QVERIFY(m_stage->page->Changed());
    QCOMPARE(number.BackColor(), WindowBackground); // until Apply
    m_stage->page->ApplyChanges();
    QCOMPARE(number.BackColor(), ButtonFace);
}

void tst_PagAppearance::aSwatchIsSeenOnItsGroundAndKeepsItsColourWhenSelected_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light theme") << QColor(0xefefef) << QColor(Qt::black);
    QTest::newRow("dark theme") << QColor(0x31363b) << QColor(Qt::white);
}

void tst_PagAppearance::aSwatchIsSeenOnItsGroundAndKeepsItsColourWhenSelected()
{
    QFETCH(QColor, ground);
    QFETCH(QColor, text);
    QPalette theme(ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        theme.setColor(role, text);
    for (const auto role : {QPalette::Base, QPalette::Button, QPalette::Mid, QPalette::Dark, QPalette::Light})
        theme.setColor(role, ground);
    m_stage->page->window()->setPalette(theme);
    KorNumber number;
    number.setBackColor(ButtonFace); // as the ground of the button that shows it
    m_stage->page->setSelectedControls({&number});
    const auto picture = [](const QIcon &icon, QIcon::Mode mode) {
        return icon.pixmap(icon.availableSizes().constFirst(), mode).toImage();
    };
    const QImage swatch = picture(m_stage->find<QPushButton>("cmdBackColor")->icon(), QIcon::Normal);
    QCOMPARE(swatch.pixelColor(swatch.rect().center()), ground);
    QVERIFY(std::abs(qGray(swatch.pixel(swatch.width() / 2, 0)) - qGray(ground.rgb())) > 60);
    QImage shown;
    QImage selected;
    const AnyDialogUser user([&](QDialog &dialog) {
        const QIcon icon = dialog.findChild<QListWidget *>(QStringLiteral("lstSystem"))->currentItem()->icon();
        shown = picture(icon, QIcon::Normal);
        selected = picture(icon, QIcon::Selected);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    m_stage->click("cmdBackColor");
    QVERIFY(user.isUsed);
    QVERIFY(!shown.isNull());
    QCOMPARE(selected, shown);
}

void tst_PagAppearance::anotherColourIsChosenInItsDialog()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    const AnyDialogUser user([](QDialog &dialog) {
        auto *tabs = dialog.findChild<QTabWidget *>();
        tabs->setCurrentIndex(1);
        dialog.findChild<QColorDialog *>()->setCurrentColor(QColor(0x12, 0x34, 0x56));
        QTest::keyClick(dialog.findChild<QColorDialog *>()->findChild<QLineEdit *>(), Qt::Key_Return);
    });
    m_stage->click("cmdForeColor");
    QVERIFY(user.isUsed);
    QCOMPARE(m_stage->find<QPushButton>("cmdForeColor")->text(), QStringLiteral("#123456"));
    m_stage->page->ApplyChanges();
    QCOMPARE(number.ForeColor(), 0x563412);
}

void tst_PagAppearance::aClosedDialogChangesNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("colour") << QByteArray("cmdBackColor");
    QTest::newRow("font") << QByteArray("cmdFont");
}

void tst_PagAppearance::aClosedDialogChangesNothing()
{
    QFETCH(QByteArray, button);
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    const QString shown = m_stage->find<QPushButton>(button)->text();
    const AnyDialogUser user([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    m_stage->click(button);
    QVERIFY(user.isUsed);
    QVERIFY(!m_stage->page->Changed());
    QCOMPARE(m_stage->find<QPushButton>(button)->text(), shown);
}

void tst_PagAppearance::aFontIsChosenInItsDialog()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    const AnyDialogUser user([](QDialog &dialog) {
        qobject_cast<QFontDialog *>(&dialog)->setCurrentFont(QFont(QStringLiteral("DejaVu Sans"), 17));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    m_stage->click("cmdFont");
    QVERIFY(user.isUsed);
    m_stage->page->ApplyChanges();
    QCOMPARE(number.Font().pointSize(), 17);
    QVERIFY(!number.usesAmbientFont());
}

void tst_PagAppearance::thePageMayGoWhileADialogIsOpen()
{
    KorNumber number;
    m_stage->page->setSelectedControls({&number});
    const AnyDialogUser user([this](QDialog &) { delete m_stage->page.data(); });
    m_stage->click("cmdBackColor");
    QVERIFY(user.isUsed);
    QVERIFY(m_stage->page.isNull());
}

QTEST_MAIN(tst_PagAppearance)

#include "tst_pagappearance.moc"
