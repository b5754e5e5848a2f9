// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/heard.h"
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/Locale>
#include <KorDaoUC/UserControl>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

#include <memory>
#include <vector>

using namespace kor;
using namespace kor::test;

//! What a screen reader is told of every control, and what it may do to it, through the toolkit's interface alone.
class tst_Accessible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aLabelNamesTheFieldItLeadsTo_data() { controls(); }
    void aLabelNamesTheFieldItLeadsTo();
    void aNameOfItsOwnComesFirst_data() { controls(); }
    void aNameOfItsOwnComesFirst();
    void oneObjectHasTheKeyboard_data() { controls(); }
    void oneObjectHasTheKeyboard();
    void roleAndShownTextAreTold_data();
    void roleAndShownTextAreTold();
    void nullIsReadAsNothing_data();
    void nullIsReadAsNothing();
    void aLockedFieldIsReadOnlyAndKeepsItsText_data();
    void aLockedFieldIsReadOnlyAndKeepsItsText();
    void aDisabledFieldIsSoAndKeepsItsText_data() { texts(); }
    void aDisabledFieldIsSoAndKeepsItsText();
    void whatIsWrittenIsTyped_data();
    void whatIsWrittenIsTyped();
    void aPartIsWrittenWhereTheKeyboardIs();
    void aFieldThatIsLeftHasItsSayFirst();
    void everyButtonHasANameAndIsPressed_data() { controls(); }
    void everyButtonHasANameAndIsPressed();
    void aRefusedValueIsInvalidAndSaysWhy_data();
    void aRefusedValueIsInvalidAndSaysWhy();
    void nothingForUseIsWithoutNameAndRole();
    void tabLeadsThroughAllOfThem();
    void whatIsDeletedIsForgotten_data() { controls(); }
    void whatIsDeletedIsForgotten();

private:
    static void controls();
    static void texts();
    UserControl *place(const QString &name);
    void open(const QString &name);
    [[nodiscard]] QWidget *box() const { return m_control->focusProxy(); }
    //! Gives the control so many properties, "Name=value" each.
    void set(const QString &settings);

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<Messages> m_messages;
    QPointer<UserControl> m_control;
};

void tst_Accessible::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
    Clock::setSource([] { return QDate(2026, 11, 22); });
    m_stage = std::make_unique<Stage>();
    m_messages = std::make_unique<Messages>();
}

void tst_Accessible::cleanup()
{
    m_messages.reset();
    m_stage.reset();
    Clock::setSource({});
}

void tst_Accessible::controls()
{
    QTest::addColumn<QString>("control");
    for (const QString &name : ControlRegistry::names())
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_Accessible::texts()
{
    QTest::addColumn<QString>("control");
    for (const char *name : {"KorNumber", "KorDate", "KorClick", "KorUpDown", "KorMultiText"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

UserControl *tst_Accessible::place(const QString &name)
{
    const bool isTall = name == u"KorGrid" || name == u"KorParam" || name.startsWith(u"KorList");
    return m_stage->place(ControlRegistry::create(name), 200, isTall ? 100 : 26);
}

void tst_Accessible::open(const QString &name)
{
    m_control = place(name);
    QVERIFY(m_stage->open());
}

void tst_Accessible::set(const QString &settings)
{
    for (const QString &setting : settings.split(u' ', Qt::SkipEmptyParts)) {
        const QString value = setting.section(u'=', 1).replace(u'_', u' ');
        m_control->setProperty(qPrintable(setting.section(u'=', 0, 0)), value);
    }
}

void tst_Accessible::aLabelNamesTheFieldItLeadsTo()
{
    QFETCH(QString, control);
    open(control);
    QLabel label(QStringLiteral("&Opis && uwagi"), m_stage.get());
    label.setBuddy(m_control);
    const QAccessibleInterface *field = heard(box());
    QCOMPARE(field->text(QAccessible::Name), QStringLiteral("Opis & uwagi"));
    QCOMPARE(field->text(QAccessible::Accelerator), QStringLiteral("Alt+O"));
    const auto labels = field->relations(QAccessible::Label);
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.first().first->object(), &label);
    QCOMPARE(nameOf(m_control), QStringLiteral("Opis & uwagi"));
    label.setText(QStringLiteral("Cena"));
    QCOMPARE(field->text(QAccessible::Name), QStringLiteral("Cena"));
    label.setBuddy(nullptr);
    QCOMPARE(field->text(QAccessible::Name), QString());
}

void tst_Accessible::aNameOfItsOwnComesFirst()
{
    QFETCH(QString, control);
    open(control);
    QLabel label(QStringLiteral("Opis"), m_stage.get());
    label.setBuddy(m_control);
    m_control->setAccessibleName(QStringLiteral("Własna"));
    QCOMPARE(nameOf(box()), QStringLiteral("Własna"));
    QCOMPARE(nameOf(m_control), QStringLiteral("Własna"));
    label.setBuddy(nullptr);
}

void tst_Accessible::oneObjectHasTheKeyboard()
{
    QFETCH(QString, control);
    open(control);
    m_control->setFocus();
    settle();
    closeCellEditor(m_control);
    QTRY_COMPARE(QApplication::focusWidget(), box());
    int focused = 0;
    walk(heard(m_stage.get()), [&](QAccessibleInterface *part) {
        if (part->object() && part->state().focused)
            ++focused;
    });
    QCOMPARE(focused, 1);
    QVERIFY(heard(box())->state().focusable && heard(box())->state().focused);
}

void tst_Accessible::roleAndShownTextAreTold_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("value");
    // clang-format off
    QTest::newRow("KorNumber, by its mask") << "KorNumber" << "Value=1234,5" << QAccessible::EditableText << QStringLiteral("1\u00a0234,50");
    QTest::newRow("KorDate")                << "KorDate" << "Text=15.02.2004" << QAccessible::EditableText << "15.02.2004";
    QTest::newRow("KorClick")               << "KorClick" << "Text=Gdynia" << QAccessible::EditableText << "Gdynia";
    QTest::newRow("KorUpDown, a spin box")  << "KorUpDown" << "Max=20 Text=7" << QAccessible::SpinBox << "7";
    QTest::newRow("KorMultiText")           << "KorMultiText" << "Text=Uwaga" << QAccessible::EditableText << "Uwaga";
    QTest::newRow("KorCombo")               << "KorCombo" << "SQL=LIST_1;Alfa|2;Beta Value=2" << QAccessible::ComboBox << "Beta";
    QTest::newRow("KorColor")               << "KorColor" << "" << QAccessible::ComboBox << "Jasnoczerwony";
    QTest::newRow("KorList")                << "KorList" << "SQL=LIST_1;Alfa|2;Beta Value=2" << QAccessible::List << "Beta";
    QTest::newRow("KorListCheck")           << "KorListCheck" << "SQL=LIST_1;Alfa|2;Beta Value=1" << QAccessible::List << "Alfa";
    QTest::newRow("KorParam")               << "KorParam" << "" << QAccessible::Table << "";
    QTest::newRow("KorGrid")                << "KorGrid" << "" << QAccessible::Table << "";
    // clang-format on
}

void tst_Accessible::roleAndShownTextAreTold()
{
    QFETCH(QString, control);
    QFETCH(QString, settings);
    open(control);
    for (const QString &setting : settings.split(u' ', Qt::SkipEmptyParts)) {
        if (setting.startsWith(u"Value") && settings.startsWith(u"SQL"))
            m_control->Refresh();
        set(setting);
    }
    QTEST(heard(box())->role(), "role");
    QTEST(valueOf(box()), "value");
}

void tst_Accessible::nullIsReadAsNothing_data()
{
    QTest::addColumn<QString>("control");
    for (const char *name : {"KorNumber", "KorDate", "KorClick", "KorCombo", "KorList", "KorListCheck"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_Accessible::nullIsReadAsNothing()
{
    QFETCH(QString, control);
    open(control);
    m_control->setProperty("Value", null());
    QVERIFY(m_control->property("Value").isNull());
    QCOMPARE(valueOf(box()), QString());
}

void tst_Accessible::aLockedFieldIsReadOnlyAndKeepsItsText_data()
{
    QTest::addColumn<QString>("control");
    for (const char *name : {"KorNumber", "KorDate", "KorClick"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_Accessible::aLockedFieldIsReadOnlyAndKeepsItsText()
{
    QFETCH(QString, control);
    open(control);
    QAccessibleInterface *field = heard(box());
    QVERIFY(field->state().editable && !field->state().readOnly);
    m_control->setProperty("Text", QStringLiteral("12"));
    const QString before = valueOf(box());
    QVERIFY(!before.isEmpty() || control == u"KorDate");
    m_control->setProperty("Locked", true);
    QVERIFY(!field->state().editable && field->state().readOnly);
    field->setText(QAccessible::Value, QStringLiteral("7"));
    field->editableTextInterface()->insertText(0, QStringLiteral("7"));
    field->editableTextInterface()->replaceText(0, 1, QStringLiteral("7"));
    field->editableTextInterface()->deleteText(0, 1);
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(valueOf(box()), before);
}

void tst_Accessible::aDisabledFieldIsSoAndKeepsItsText()
{
    QFETCH(QString, control);
    open(control);
    m_control->setProperty("Text", QStringLiteral("12"));
    const QString before = valueOf(box());
    m_control->setEnabled(false);
    QAccessibleInterface *field = heard(box());
    QVERIFY(field->state().disabled);
    field->setText(QAccessible::Value, QStringLiteral("7"));
    field->editableTextInterface()->deleteText(0, 1);
    QCOMPARE(valueOf(box()), before);
}

void tst_Accessible::whatIsWrittenIsTyped_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("shown"); // once the field is left
    // clang-format off
    QTest::newRow("a number gets its mask")             << "KorNumber" << "Text=1" << "12,5" << "12,50";
    QTest::newRow("letters are no number")              << "KorNumber" << "Text=1" << "abc" << "1,00";
    QTest::newRow("nothing is Null")                    << "KorNumber" << "Text=1" << "" << "";
    QTest::newRow("a date is completed")                << "KorDate" << "Text=15.02.2004" << "3.1.2005" << "03.01.2005";
    QTest::newRow("letters are no date")                << "KorDate" << "Text=15.02.2004" << "abc" << "15.02.2004";
    QTest::newRow("a text replaces a text")             << "KorClick" << "Text=Gdynia" << "Gdańsk" << "Gdańsk";
    QTest::newRow("a text as long as it may be")        << "KorClick" << "Text=a MaxLength=3" << "Gdańsk" << "Gda";
    QTest::newRow("a number beside arrows")             << "KorUpDown" << "Max=20 Text=3" << "7" << "7";
    QTest::newRow("lines end in a field of one")        << "KorMultiText" << "Text=a" << "Uwaga" << "Uwaga";
    QTest::newRow("an entry by its name")               << "KorCombo" << "SQL=LIST_1;Alfa|2;Beta" << "Beta" << "Beta";
    QTest::newRow("what no entry is called")            << "KorCombo" << "SQL=LIST_1;Alfa|2;Beta" << "Gama" << "Alfa";
    QTest::newRow("a colour by its name")               << "KorColor" << "" << "Czarny" << "Czarny";
    // clang-format on
}

void tst_Accessible::whatIsWrittenIsTyped()
{
    QFETCH(QString, control);
    QFETCH(QString, settings);
    QFETCH(QString, written);
    QFETCH(QString, shown);
    open(control);
    set(settings);
    if (settings.startsWith(u"SQL"))
        m_control->Refresh();
    const QString before = valueOf(box());
    EventLog log(m_control);
    heard(box())->setText(QAccessible::Value, written);
    QCOMPARE(QApplication::focusWidget(), box());
    const QString told = log.take();
    const bool isList = control == u"KorCombo" || control == u"KorColor";
    if (shown != before)
        QVERIFY2(told.contains(isList ? u"Click" : u"Change"), qPrintable(told));
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(valueOf(box()), shown);
    QCOMPARE(m_messages->take(), QStringList());
}

void tst_Accessible::aPartIsWrittenWhereTheKeyboardIs()
{
    open(QStringLiteral("KorClick"));
    m_control->setFocus();
    settle();
    m_control->setProperty("Text", QStringLiteral("Gdynia"));
    QAccessibleInterface *field = heard(box());
    QAccessibleEditableTextInterface *edit = field->editableTextInterface();
    QAccessibleTextInterface *text = field->textInterface();
    QCOMPARE(text->characterCount(), 6);
    QCOMPARE(text->text(1, 4), QStringLiteral("dyn"));
    edit->insertText(6, QStringLiteral(" 2"));
    QCOMPARE(valueOf(box()), QStringLiteral("Gdynia 2"));
    QCOMPARE(text->cursorPosition(), 8);
    edit->replaceText(0, 6, QStringLiteral("Port"));
    QCOMPARE(valueOf(box()), QStringLiteral("Port 2"));
    edit->deleteText(4, 6);
    QCOMPARE(valueOf(box()), QStringLiteral("Port"));
    text->setSelection(0, 1, 3);
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    QCOMPARE(text->selectionCount(), 1);
    QCOMPARE(start, 1);
    QCOMPARE(end, 3);
    QCOMPARE(m_control->property("SelText").toString(), QStringLiteral("or"));
    text->setCursorPosition(4);
    QCOMPARE(text->selectionCount(), 0);
    QVERIFY(text->characterRect(2).left() > text->characterRect(0).left());
    QCOMPARE(text->offsetAtPoint(text->characterRect(2).center()) / 2, 1); // before or behind it
    QCOMPARE(text->textAtOffset(2, QAccessible::WordBoundary, &start, &end), QStringLiteral("Port"));
}

void tst_Accessible::aFieldThatIsLeftHasItsSayFirst()
{
    open(QStringLiteral("KorClick"));
    UserControl *date = m_stage->place(ControlRegistry::create(QStringLiteral("KorDate")));
    date->show();
    date->setFocus();
    settle();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("99.99"));
    heard(box())->setText(QAccessible::Value, QStringLiteral("Gdynia"));
    QCOMPARE(m_messages->take().size(), 1);
    QCOMPARE(valueOf(box()), QString());
    QTRY_COMPARE(QApplication::focusWidget(), date->focusProxy());
}

void tst_Accessible::everyButtonHasANameAndIsPressed()
{
    QFETCH(QString, control);
    open(control);
    if (control == u"KorUpDown")
        set(QStringLiteral("Max=20 Text=3"));
    for (QAbstractButton *button : m_control->findChildren<QAbstractButton *>()) {
        if (!button->isVisible())
            continue; // those of editors, until a cell is edited
        QAccessibleInterface *part = heard(button);
        QVERIFY2(!part->text(QAccessible::Name).isEmpty(), qPrintable(button->objectName()));
        QCOMPARE(part->role(), QAccessible::PushButton);
        QVERIFY(part->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }
    if (control == u"KorUpDown") {
        heard(m_control->findChild<QAbstractButton *>(QStringLiteral("cmdUp")))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(valueOf(box()), QStringLiteral("4"));
        heard(box())->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        QCOMPARE(valueOf(box()), QStringLiteral("3"));
        QAccessibleValueInterface *value = heard(box())->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->currentValue().toInt(), 3);
        QCOMPARE(value->maximumValue().toInt(), 20);
        QCOMPARE(value->minimumStepSize().toInt(), 1);
        value->setCurrentValue(9);
        QCOMPARE(m_control->property("Value").toInt(), 9);
        value->setCurrentValue(21);
        QCOMPARE(m_control->property("Value").toInt(), 9);
    }
}

void tst_Accessible::aRefusedValueIsInvalidAndSaysWhy_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("why");
    QTest::newRow("a number out of its range")
        << "KorNumber"
        << "MinValue=1 MaxValue=5 CheckRange=1"
        << "9" << QStringLiteral("Przekroczony zakres liczby. Wprowadź liczbę z zakresu: [");
    QTest::newRow("no date") << "KorDate"
                             << ""
                             << "99.99" << QStringLiteral("Błędna data. Wprowadź datę w formacie: ");
}

void tst_Accessible::aRefusedValueIsInvalidAndSaysWhy()
{
    QFETCH(QString, control);
    QFETCH(QString, settings);
    QFETCH(QString, typed);
    QFETCH(QString, why);
    open(control);
    set(settings);
    m_control->setToolTip(QStringLiteral("Podpowiedź"));
    m_control->setFocus();
    settle();
    const QAccessibleInterface *field = heard(box());
    Notices notices;
    QTest::keyClicks(QApplication::focusWidget(), typed);
    QVERIFY(!field->state().invalid);
    QCOMPARE(descriptionOf(box()), QStringLiteral("Podpowiedź"));
    m_stage->button()->setFocus();
    settle();
    QCOMPARE(m_messages->take().size(), 1);
    QVERIFY(field->state().invalid);
    QVERIFY2(descriptionOf(box()).startsWith(why), qPrintable(descriptionOf(box())));
    const QString told = notices.take().join(u',');
    if (Notices::areHeard())
        QVERIFY2(told.contains(u"DescriptionChanged") && told.contains(u"StateChanged"), qPrintable(told));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    QVERIFY(!field->state().invalid);
    QCOMPARE(descriptionOf(box()), QStringLiteral("Podpowiedź"));
}

void tst_Accessible::nothingForUseIsWithoutNameAndRole()
{
    std::vector<std::unique_ptr<QLabel>> labels;
    for (const QString &name : ControlRegistry::names()) {
        UserControl *control = place(name);
        labels.push_back(std::make_unique<QLabel>(name, m_stage.get()));
        labels.back()->setBuddy(control);
    }
    QVERIFY(m_stage->open());
    m_stage->button()->setText(QStringLiteral("Zamknij"));
    m_stage->setWindowTitle(QStringLiteral("Formularz"));
    QCOMPARE(faultsIn(heard(m_stage.get())), QString());
    int visited = 0;
    walk(heard(m_stage.get()), [&](QAccessibleInterface *) { ++visited; });
    QVERIFY(visited > 40); // controls, boxes, buttons, labels, cells
    labels.clear();
}

void tst_Accessible::tabLeadsThroughAllOfThem()
{
    for (const QString &name : ControlRegistry::names())
        place(name)->setObjectName(name);
    QVERIFY(m_stage->open());
    m_stage->button()->setFocus();
    settle();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QStringList reached;
        for (int presses = 0; presses < 40; ++presses) {
            QTest::keyClick(QApplication::focusWidget(), key);
            settle();
            const QWidget *place = QApplication::focusWidget();
            QVERIFY2(!nameOf(QApplication::focusWidget()).isEmpty() ||
                         heard(QApplication::focusWidget())->role() != QAccessible::PushButton,
                     "a button without a name");
            while (place && !qobject_cast<const UserControl *>(place))
                place = place->parentWidget();
            if (!place && !reached.isEmpty())
                break; // once around
            if (place && !reached.contains(place->objectName()))
                reached << place->objectName();
        }
        QStringList all = ControlRegistry::names();
        all.sort();
        reached.sort();
        QCOMPARE(reached, all);
    }
    QCOMPARE(m_messages->take(), QStringList());
}

void tst_Accessible::whatIsDeletedIsForgotten()
{
    QFETCH(QString, control);
    open(control);
    QList<QAccessible::Id> known;
    walk(heard(m_control), [&](QAccessibleInterface *part) { known << QAccessible::uniqueId(part); });
    QVERIFY(known.size() > 1);
    delete m_control;
    for (const QAccessible::Id id : known)
        QCOMPARE(QAccessible::accessibleInterface(id), nullptr);
}

QTEST_MAIN(tst_Accessible)
#include "tst_accessible.moc"
