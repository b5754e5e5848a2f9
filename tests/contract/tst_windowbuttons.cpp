// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/deletion.h"
#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/UserControl>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPlainTextEdit>

#include <memory>

using namespace kor;
using namespace kor::test;

//! Enter and Escape in the fields of a window that has a default and a cancel button.
class tst_WindowButtons : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void enterPressesTheDefaultButton_data() { controls(); }
    void enterPressesTheDefaultButton();
    void escapePressesTheCancelButton_data() { controls(); }
    void escapePressesTheCancelButton();
    void aHostThatSwallowsTheKeyKeepsIt_data() { controls(); }
    void aHostThatSwallowsTheKeyKeepsIt();
    void aKeyThatBecomesEnterPressesToo();
    void escapeRejectsADialogWithoutCancelButton();
    void otherShiftStatesAreTheFieldsOwn();
    void aWindowWithoutSuchButtonsLeavesTheKeysToTheField_data() { controls(); }
    void aWindowWithoutSuchButtonsLeavesTheKeysToTheField();

    void aRefusedNumberKeepsTheWindow();
    void aRefusedDateKeepsTheWindow();
    void escapeAsksNobody();
    void theButtonMeetsTheCheckedValue();
    void aWindowThatStaysShowsTheFieldAsEntered();
    void aButtonMayCloseAndDeleteEverything();

    void anOpenListTakesThemFirst_data();
    void anOpenListTakesThemFirst();
    void theCalendarTakesThemFirst();
    void thePopupEditorKeepsItsKeys();

private:
    static void controls();
    template <class Control>
    Control *open(Control *control);
    UserControl *open(const QString &name) { return open(ControlRegistry::create(name, nullptr)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }

    std::unique_ptr<QDialog> m_dialog;
    QDialogButtonBox *m_buttons = nullptr;
    int m_okays = 0;
    int m_cancels = 0;
    std::unique_ptr<Messages> m_messages;
    std::unique_ptr<Beeps> m_beeps;
};

void tst_WindowButtons::init()
{
    failOnWarnings();
    m_okays = 0;
    m_cancels = 0;
    m_messages = std::make_unique<Messages>();
    m_beeps = std::make_unique<Beeps>();
    m_dialog = std::make_unique<QDialog>();
    m_dialog->resize(320, 260);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, m_dialog.get());
    m_buttons->move(10, 220);
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] { ++m_okays; });
    connect(m_buttons, &QDialogButtonBox::rejected, this, [this] { ++m_cancels; });
}

void tst_WindowButtons::cleanup()
{
    m_dialog.reset();
    m_messages.reset();
    m_beeps.reset();
}

void tst_WindowButtons::controls()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ControlRegistry::names())
        QTest::newRow(qPrintable(name)) << name;
}

template <class Control>
Control *tst_WindowButtons::open(Control *control)
{
    if (auto *grid = qobject_cast<KorGrid *>(control)) // an open cell editor takes both keys first
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Lp."), 1000, 0, true);
    control->setParent(m_dialog.get());
    control->setGeometry(10, 10, 200, 26);
    m_dialog->show();
    m_dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(m_dialog.get()))
        return nullptr;
    control->setFocus();
    settle();
    return control;
}

// --- every control

void tst_WindowButtons::enterPressesTheDefaultButton()
{
    QFETCH(QString, name);
    UserControl *control = open(name);
    QVERIFY(control);
    EventLog log(control);
    press(Qt::Key_Return);
    const QString events = log.take();
    QVERIFY2(events.startsWith(QLatin1String("KeyDown(13,0)")), qPrintable(events));
    QVERIFY2(!events.contains(QLatin1String("KeyPress")), qPrintable(events));
    QCOMPARE(m_okays, 1);
    press(Qt::Key_Enter);
    QCOMPARE(m_okays, 2);
    QCOMPARE(m_cancels, 0);
    QCOMPARE(m_beeps->take(), 0);
}

void tst_WindowButtons::escapePressesTheCancelButton()
{
    QFETCH(QString, name);
    UserControl *control = open(name);
    QVERIFY(control);
    EventLog log(control);
    press(Qt::Key_Escape);
    const QString events = log.take();
    QVERIFY2(events.startsWith(QLatin1String("KeyDown(27,0)")), qPrintable(events));
    QVERIFY2(!events.contains(QLatin1String("KeyPress")), qPrintable(events));
    QCOMPARE(m_okays, 0);
    QCOMPARE(m_cancels, 1);
    QCOMPARE(m_beeps->take(), 0);
}

namespace {

//! A host that turns every key into another one.
class KeyChanger : public QObject
{
public:
    KeyChanger(QObject *control, int code) : m_code(code)
    {
        const int event = control->metaObject()->indexOfSignal("KeyDown(int&,int&)");
        QMetaObject::connect(control, event, this, QObject::staticMetaObject.methodCount(), Qt::DirectConnection);
    }
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id == 0 && call == QMetaObject::InvokeMetaMethod)
            *static_cast<int *>(arguments[1]) = m_code;
        return -1;
    }

private:
    int m_code;
};

} // namespace

void tst_WindowButtons::aHostThatSwallowsTheKeyKeepsIt()
{
    QFETCH(QString, name);
    UserControl *control = open(name);
    QVERIFY(control);
    const KeyChanger swallow(control, 0);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    QCOMPARE(m_okays, 0);
    QCOMPARE(m_cancels, 0);
    QVERIFY(m_dialog->isVisible());
}

void tst_WindowButtons::aKeyThatBecomesEnterPressesToo()
{
    UserControl *control = open(QStringLiteral("KorClick"));
    const KeyChanger enter(control, 13);
    press(Qt::Key_F9);
    QCOMPARE(m_okays, 1);
}

void tst_WindowButtons::escapeRejectsADialogWithoutCancelButton()
{
    delete m_buttons;
    UserControl *control = open(QStringLiteral("KorNumber"));
    QVERIFY(control);
    press(Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

void tst_WindowButtons::otherShiftStatesAreTheFieldsOwn()
{
    UserControl *control = open(QStringLiteral("KorClick"));
    QVERIFY(control);
    press(Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_okays, 0);
}

void tst_WindowButtons::aWindowWithoutSuchButtonsLeavesTheKeysToTheField()
{
    QFETCH(QString, name);
    Stage stage;
    auto *control = stage.place(ControlRegistry::create(name, nullptr));
    QVERIFY(stage.open());
    control->setFocus();
    settle();
    closeCellEditor(control);
    EventLog log(control);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    const QString events = log.take();
    QVERIFY(events.contains(QLatin1String("KeyDown(13,0)")));
    QVERIFY(events.contains(QLatin1String("KeyDown(27,0)")));
    const bool passesCharacters = name == QLatin1String("KorClick") || name == QLatin1String("KorMultiText") ||
                                  name == QLatin1String("KorUpDown") || name == QLatin1String("KorColor");
    if (passesCharacters)
        QVERIFY2(events.contains(QLatin1String("KeyPress(13)")), qPrintable(events));
}

// --- the field is asked

void tst_WindowButtons::aRefusedNumberKeepsTheWindow()
{
    auto *number = open(new KorNumber);
    QVERIFY(number);
    number->setCheckRange(true);
    number->setMaxValue(10);
    press(Qt::Key_7);
    press(Qt::Key_7);
    press(Qt::Key_Return);
    QCOMPARE(m_okays, 0);
    QCOMPARE(m_messages->take().size(), 1);
    QCOMPARE(number->Value(), QVariant(77.0));
    QVERIFY(number->isAncestorOf(QApplication::focusWidget()));
}

void tst_WindowButtons::aRefusedDateKeepsTheWindow()
{
    auto *date = open(new KorDate);
    QVERIFY(date);
    date->setText(QString());
    press(Qt::Key_9);
    press(Qt::Key_9);
    press(Qt::Key_Return);
    QCOMPARE(m_okays, 0);
    QCOMPARE(m_messages->take().size(), 1);
    QCOMPARE(date->Text(), QStringLiteral("99"));
}

void tst_WindowButtons::escapeAsksNobody()
{
    auto *number = open(new KorNumber);
    QVERIFY(number);
    number->setCheckRange(true);
    number->setMaxValue(10);
    press(Qt::Key_7);
    press(Qt::Key_7);
    press(Qt::Key_Escape);
    QCOMPARE(m_cancels, 1);
    QCOMPARE(m_messages->take(), QStringList());
}

void tst_WindowButtons::theButtonMeetsTheCheckedValue()
{
    auto *date = open(new KorDate);
    QVERIFY(date);
    date->setFormatMask(QStringLiteral("dd.mm.yyyy"));
    QString met;
    connect(m_buttons, &QDialogButtonBox::accepted, this, [&] { met = date->Text(); });
    date->setText(QString());
    for (const Qt::Key key : {Qt::Key_0, Qt::Key_3, Qt::Key_0, Qt::Key_4, Qt::Key_2, Qt::Key_5})
        press(key);
    press(Qt::Key_Return);
    QCOMPARE(m_okays, 1);
    QCOMPARE(met, QStringLiteral("03.04.2025"));
}

void tst_WindowButtons::aWindowThatStaysShowsTheFieldAsEntered()
{
    auto *number = open(new KorNumber);
    QVERIFY(number);
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4})
        press(key);
    QString met;
    connect(m_buttons, &QDialogButtonBox::accepted, this, [&] { met = number->Text(); });
    press(Qt::Key_Return);
    QVERIFY(met.size() > 4); // shown through the mask, as the button meets it
    const auto *box = number->findChild<QLineEdit *>();
    QCOMPARE(box->text().left(4), QStringLiteral("1234"));
    QCOMPARE(box->selectedText(), box->text());
}

void tst_WindowButtons::aButtonMayCloseAndDeleteEverything()
{
    UserControl *control = open(QStringLiteral("KorNumber"));
    QVERIFY(control);
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] { delete m_dialog->findChild<UserControl *>(); });
    press(Qt::Key_Return);
    QCOMPARE(m_okays, 1);
    QVERIFY(!m_dialog->findChild<UserControl *>());
    QVERIFY(m_dialog->isVisible());
}

// --- what is open takes them first

void tst_WindowButtons::anOpenListTakesThemFirst_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("KorCombo") << QStringLiteral("KorCombo");
    QTest::newRow("KorColor") << QStringLiteral("KorColor");
}

void tst_WindowButtons::anOpenListTakesThemFirst()
{
    QFETCH(QString, name);
    UserControl *control = open(name);
    QVERIFY(control);
    auto *box = control->findChild<QComboBox *>();
    control->setProperty("SQL", QStringLiteral("LIST 1;Tak|0;Nie"));
    control->Refresh();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        box->showPopup();
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), key);
        settle();
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }
    QCOMPARE(m_okays, 0);
    QCOMPARE(m_cancels, 0);
}

void tst_WindowButtons::theCalendarTakesThemFirst()
{
    auto *date = open(new KorDate);
    QVERIFY(date);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTest::keyClick(date->findChild<QLineEdit *>(), Qt::Key_F4);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), key);
        settle();
        QVERIFY(!QApplication::activePopupWidget());
    }
    QCOMPARE(m_okays, 0);
    QCOMPARE(m_cancels, 0);
    QVERIFY(m_dialog->isVisible());
}

void tst_WindowButtons::thePopupEditorKeepsItsKeys()
{
    auto *text = open(new KorMultiText);
    QVERIFY(text);
    QTest::mouseClick(text->findChild<QPushButton *>(), Qt::LeftButton);
    QTRY_VERIFY(QApplication::activePopupWidget());
    auto *editor = QApplication::activePopupWidget()->findChild<QPlainTextEdit *>();
    QTest::keyClicks(editor, QStringLiteral("a"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(editor->toPlainText(), QStringLiteral("a\n"));
    QTest::keyClick(editor, Qt::Key_Escape);
    settle();
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(m_okays, 0);
    QCOMPARE(m_cancels, 0);
}

QTEST_MAIN(tst_WindowButtons)
#include "tst_windowbuttons.moc"
