// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/colordialog.h"
#include "support/deletion.h"
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorColor>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/UserControl>
#include <KorDaoUC/Variant>

#include <QtCore/QDate>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QPlainTextEdit>

#include <functional>
#include <memory>
#include <vector>

using namespace kor;
using namespace kor::test;

namespace {

//! A control on its window, and what in it has the keyboard.
struct Scene {
    Stage *stage = nullptr;
    QPointer<UserControl> control;
    QPointer<QWidget> box;

    template <class Control>
    [[nodiscard]] Control *as() const
    {
        return qobject_cast<Control *>(control.data());
    }
    template <class Part>
    [[nodiscard]] Part *part(const char *name) const
    {
        return control->findChild<Part *>(QString::fromLatin1(name));
    }
};

using Deed = std::function<void(Scene &)>;

//! One way in which an event of a control comes about: what is done before the control is entered, once it is, and
//! with its host listening.
struct Row {
    const char *control;
    const char *event;
    const char *by;
    Deed act;
    Deed entered = {};
    Deed before = {};
};
using Rows = std::vector<Row>;

Deed key(Qt::Key code, Qt::KeyboardModifiers modifiers = {})
{
    return [=](Scene &on) {
        QTest::keyPress(on.box, code, modifiers);
        if (on.box)
            QTest::keyRelease(on.box, code, modifiers);
    };
}

//! A movement, a click and a double click, sent one by one as the window system does: what they are sent to may be
//! gone after each.
void sendMouse(QPointer<QWidget> target, const QPointF &at)
{
    Qt::MouseButtons held;
    for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                            QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        if (!target)
            return;
        if (type != QEvent::MouseMove)
            held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent mouse(type, at, target->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          held, Qt::NoModifier);
        QApplication::sendEvent(target, &mouse);
    }
}

void mouseOnBox(Scene &on) { sendMouse(on.box, {5, 5}); }
void mouseOnSurface(Scene &on) { sendMouse(on.control.data(), {1, 1}); }
void mouseOnRow(Scene &on)
{
    const auto *list = qobject_cast<QListView *>(on.box);
    sendMouse(list->viewport(), list->visualRect(list->model()->index(2, 0)).center());
}
void mouseOnCheck(Scene &on)
{
    const auto *list = qobject_cast<QListView *>(on.box);
    sendMouse(list->viewport(), {8.0, double(list->visualRect(list->model()->index(2, 0)).center().y())});
}

void rightPress(Scene &on)
{
    // To the window, as the window system does it: the context menu comes right after the press.
    QTest::mouseClick(on.stage->windowHandle(), Qt::RightButton, {}, on.control->geometry().topLeft() + QPoint(3, 12));
}

Deed wheel(int angle, bool onBox)
{
    return [=](Scene &on) {
        QWidget *target = onBox ? on.box.data() : on.control.data();
        const QPointF at = onBox ? QPointF(target->rect().center()) : QPointF(3, 3);
        QWheelEvent event(at, target->mapToGlobal(at), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &event);
    };
}

void leave(Scene &on)
{
    on.stage->button()->setFocus();
    settle();
}

template <class Control>
Deed with(std::function<void(Control &)> deed)
{
    return [deed](Scene &on) { deed(*on.as<Control>()); };
}

Rows ofUpDown()
{
    const char *name = "KorUpDown";
    const auto arrow = [](Scene &on) {
        sendMouse(on.part<QWidget>("cmdUpDown")->findChild<QWidget *>(QStringLiteral("cmdUp")), {2, 2});
    };
    const auto clamped = [](Scene &on) { qobject_cast<QLineEdit *>(on.box)->setText(QStringLiteral("99")); };
    return {
        {name, "Change", "typing", key(Qt::Key_3)},
        {name, "Change", "arrow", arrow},
        {name, "Change", "key", key(Qt::Key_Up)},
        {name, "Change", "wheel", wheel(120, false)},
        {name, "Change", "leaving", leave, clamped},
        {name, "Change", "Value", with<KorUpDown>([](KorUpDown &spin) { spin.setValue(3); })},
        {name, "Click", "mouse", mouseOnBox},
        {name, "KeyDown", "typing", key(Qt::Key_3)},
        {name, "KeyPress", "typing", key(Qt::Key_3)},
        {name, "KeyUp", "typing", key(Qt::Key_3)},
        {name, "MouseDown", "mouse", mouseOnSurface},
        {name, "MouseUp", "mouse", mouseOnSurface},
    };
}

Rows ofClick()
{
    const char *name = "KorClick";
    const auto filled = [](Scene &on) { setField(qobject_cast<QLineEdit *>(on.box), QStringLiteral("12|")); };
    const auto locked = [=](Scene &on) {
        filled(on);
        on.as<KorClick>()->setLocked(true);
    };
    const auto blocked = [=](Scene &on) {
        filled(on);
        on.as<KorClick>()->setBlockUpDown(true);
    };
    const auto onButton = [](Scene &on) {
        on.part<QWidget>("cmdClick")->setFocus();
        settle();
    };
    const auto press = [](Scene &on) { sendMouse(on.part<QWidget>("cmdClick"), {3, 3}); };
    const auto text = with<KorClick>([](KorClick &click) { click.setText(QStringLiteral("inny")); });
    return {
        {name, "Change", "typing", key(Qt::Key_3), filled},
        {name, "Change", "Delete", key(Qt::Key_Delete), locked},
        {name, "Change", "Text", text, filled},
        {name, "CmdLostFocus", "leaving", leave, onButton},
        {name, "Click", "button", press, filled},
        {name, "Click", "F4", key(Qt::Key_F4), filled},
        {name, "DblClick", "mouse", mouseOnBox, filled},
        {name, "KeyDown", "typing", key(Qt::Key_3), filled},
        {name, "KeyDown", "blocked arrow", key(Qt::Key_Down), blocked},
        {name, "KeyPress", "typing", key(Qt::Key_3), filled},
        {name, "KeyUp", "typing", key(Qt::Key_3), filled},
        {name, "MouseDown", "mouse", mouseOnBox, filled},
        {name, "MouseUp", "mouse", mouseOnBox, filled},
    };
}

Rows ofColor()
{
    const char *name = "KorColor";
    const auto list = [](const Scene &on) { return on.part<QComboBox>("cmbColor"); };
    const auto open = [=](Scene &on) {
        list(on)->showPopup();
        settle();
    };
    const auto moved = [=](Scene &on) {
        open(on);
        QTest::keyClick(list(on)->view(), Qt::Key_Up);
    };
    const auto accept = [=](Scene &on) { QTest::keyPress(list(on)->view(), Qt::Key_Return); };
    const auto keyInTheList = [](Scene &) {
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_F9);
    };
    const auto dialog = [](Scene &on) {
        const DialogUser user(choose("#0000ff"));
        on.part<QAbstractButton>("cmdColor")->click();
    };
    const auto f6 = [](Scene &on) {
        const DialogUser user(choose("#0000ff"));
        QTest::keyPress(on.box, Qt::Key_F6);
    };
    return {
        {name, "Click", "key", key(Qt::Key_Up)},
        {name, "Click", "list", accept, moved},
        {name, "Click", "Value", with<KorColor>([](KorColor &color) { color.setValue(0); })},
        {name, "Click", "Value of no entry", with<KorColor>([](KorColor &color) { color.setValue(0x112233); })},
        {name, "Click", "dialog", dialog},
        {name, "Click", "F6", f6},
        {name, "KeyDown", "typing", key(Qt::Key_Q)},
        {name, "KeyPress", "typing", key(Qt::Key_Q)},
        {name, "KeyUp", "typing", key(Qt::Key_Q)},
        {name, "KeyUp", "key in the open list", keyInTheList, open},
        {name, "MouseDown", "mouse", mouseOnSurface},
        {name, "MouseUp", "mouse", mouseOnSurface},
    };
}

Rows ofMultiText()
{
    const char *name = "KorMultiText";
    const auto editor = [](const Scene &on) { return on.part<QPlainTextEdit>("txtMulti"); };
    const auto opened = [=](const QString &text) {
        return [=](Scene &on) {
            on.part<QAbstractButton>("cmdClick")->click();
            settle();
            editor(on)->insertPlainText(text);
        };
    };
    const auto used = [=](Scene &on) { // and closed again
        on.part<QAbstractButton>("cmdClick")->click();
        settle();
        QTest::keyClick(editor(on), Qt::Key_Escape);
        settle();
    };
    const auto close = [=](Qt::Key code) { return [=](Scene &on) { QTest::keyPress(editor(on), code); }; };
    const auto clickOutside = [](Scene &on) {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(-50, -90), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(on.part<QWidget>("frmText"), &press);
    };
    return {
        {name, "Change", "Tab", close(Qt::Key_Tab), opened(QStringLiteral("x"))},
        {name, "Change", "Escape", close(Qt::Key_Escape), opened(QStringLiteral("x"))},
        {name, "Change", "tab dropped", close(Qt::Key_Escape), opened(QStringLiteral("\t"))},
        {name, "Change", "outside click", clickOutside, opened(QStringLiteral("x"))},
        {name, "Change", "typing", key(Qt::Key_3), used},
        {name, "KeyDown", "typing", key(Qt::Key_3), used},
        {name, "KeyPress", "typing", key(Qt::Key_3), used},
        {name, "KeyUp", "typing", key(Qt::Key_3), used},
        {name, "MouseDown", "mouse", mouseOnBox, used},
        {name, "MouseUp", "mouse", mouseOnBox, used},
        {name, "DblClick", "mouse", mouseOnBox, used},
    };
}

Rows ofNumber()
{
    const char *name = "KorNumber";
    const auto typed = [](Scene &on) { QTest::keyClicks(on.box, QStringLiteral("12")); };
    Rows rows{
        {name, "Change", "typing", key(Qt::Key_3), typed}, {name, "KeyDown", "typing", key(Qt::Key_3), typed},
        {name, "KeyPress", "digit", key(Qt::Key_5)},       {name, "KeyPress", "typing", key(Qt::Key_3), typed},
        {name, "KeyUp", "typing", key(Qt::Key_3), typed},  {name, "MouseDown", "mouse", mouseOnBox, typed},
        {name, "MouseUp", "mouse", mouseOnBox, typed},     {name, "Click", "mouse", mouseOnBox, typed},
        {name, "DblClick", "mouse", mouseOnBox, typed},
    };
    const auto five = with<KorNumber>([](KorNumber &number) {
        number.setValue(5);
        number.setMaxValue(10);
        number.setCheckRange(true);
    });
    const std::vector<std::pair<const char *, std::function<void(KorNumber &)>>> lets{
        {"Value", [](KorNumber &number) { number.setValue(7); }},
        {"clamped Value", [](KorNumber &number) { number.setValue(70); }},
        {"Null", [](KorNumber &number) { number.setValue(null()); }},
        {"Text", [](KorNumber &number) { number.setText(QStringLiteral("7")); }},
        {"Text without a number", [](KorNumber &number) { number.setText(QStringLiteral("abc")); }},
        {"loading",
         [](KorNumber &number) {
             PropertyBag bag;
             bag.append(QStringLiteral("Text"), QStringLiteral("7,00"));
             number.readProperties(bag);
         }},
    };
    for (const char *event : {"Change", "PropertyChanged"}) {
        for (const auto &[by, let] : lets)
            rows.push_back({name, event, by, with<KorNumber>(let), leave, five});
    }
    return rows;
}

QWidget *calendarsFocus() { return QApplication::activePopupWidget()->focusWidget(); }

Rows ofDate()
{
    const char *name = "KorDate";
    const auto before = with<KorDate>([](KorDate &date) {
        date.setValue(QDate(2003, 2, 1));
        date.setDataChanged(false);
    });
    const auto blocked = with<KorDate>([](KorDate &date) { date.setBlockUpDown(true); });
    const auto openCalendar = key(Qt::Key_F4);
    const auto inCalendar = [](Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
        return [=](Scene &) { QTest::keyPress(calendarsFocus(), code, modifiers); };
    };
    const auto clickInCalendar = [](Scene &) {
        QWidget *days = qobject_cast<QAbstractScrollArea *>(calendarsFocus())->viewport();
        QTest::mouseClick(days, Qt::LeftButton, {}, days->rect().center());
    };
    const auto enterInCalendar = [](Scene &on) {
        qobject_cast<QLineEdit *>(on.box)->setCursorPosition(0);
        on.as<KorDate>()->setFormatMask(QStringLiteral("yyyy"));
        QTest::keyPress(calendarsFocus(), Qt::Key_Escape);
        settle();
        QTest::keyPress(on.box, Qt::Key_F4);
        QTest::keyPress(calendarsFocus(), Qt::Key_Return);
    };
    const auto button = [](Scene &on) { on.part<QAbstractButton>("cmdDate")->click(); };
    Rows rows{
        {name, "Change", "typing", key(Qt::Key_3), {}, before},
        {name, "Change", "step", key(Qt::Key_Up), {}, before},
        {name, "Change", "step back", key(Qt::Key_Down), {}, before},
        {name, "Change", "today", key(Qt::Key_Insert), {}, before},
        {name, "Change", "cutting", key(Qt::Key_X, Qt::ControlModifier), {}, before},
        {name, "Change", "Value", with<KorDate>([](KorDate &date) { date.setValue(null()); }), {}, before},
        {name,
         "Change",
         "Text",
         with<KorDate>([](KorDate &date) { date.setText(QStringLiteral("02.02.2003")); }),
         {},
         before},
        {name, "Change", "leaving", key(Qt::Key_Tab), {}, before},
        {name,
         "Change",
         "loading",
         with<KorDate>([](KorDate &date) { date.readProperties(PropertyBag()); }),
         {},
         before},
        {name, "Change", "initialising", with<KorDate>([](KorDate &date) { date.initProperties(); }), {}, before},
        {name, "KeyDown", "typing", key(Qt::Key_3), {}, before},
        {name, "KeyPress", "typing", key(Qt::Key_3), {}, before},
        {name, "KeyUp", "typing", key(Qt::Key_3), {}, before},
        {name, "KeyDown", "blocked arrow", key(Qt::Key_Up), blocked, before},
        {name, "KeyDown", "F4", key(Qt::Key_F4), {}, before},
        {name, "MouseDown", "mouse", mouseOnBox, {}, before},
        {name, "MouseMove", "mouse", mouseOnBox, {}, before},
        {name, "MouseUp", "mouse", mouseOnBox, {}, before},
        {name, "Click", "mouse", mouseOnBox, {}, before},
        {name, "DblClick", "mouse", mouseOnBox, {}, before},
        {name, "Click", "button", button, {}, before},
        {name, "Click", "F4", key(Qt::Key_F4), {}, before},
        {name, "Change", "arrow in the calendar", inCalendar(Qt::Key_Right), openCalendar, before},
        {name, "Change", "Enter in the calendar", enterInCalendar, openCalendar, before},
        {name, "Change", "year in the calendar", inCalendar(Qt::Key_PageUp, Qt::ControlModifier), openCalendar, before},
        {name, "Change", "click in the calendar", clickInCalendar, openCalendar, before},
    };
    for (const char *property : {"BorderStyle", "Text", "Value", "WhatsThisHelpID", "Locked", "CurrentDate",
                                 "BlockUpDown", "Appearance", "EnabledClick", "FormatMask", "ToolTipText"})
        rows.push_back({name, "PropertyChanged", property,
                        [=](Scene &on) { on.control->setProperty(property, on.control->property(property)); }});
    return rows;
}

void load(Scene &on, const char *source)
{
    on.control->setProperty("SQL", QString::fromLatin1(source));
    QMetaObject::invokeMethod(on.control, "Refresh");
}

void loadTall(Scene &on)
{
    on.control->resize(200, 100);
    load(on, "LIST a;Alfa|b;Beta|c;Celina");
}

Rows ofLists()
{
    const char *plain = "KorList";
    const char *name = "KorListCheck";
    const auto two = with<KorListCheck>([](KorListCheck &list) {
        list.setBlockClick(true);
        list.setValueChecked(QStringLiteral("a;b;"));
        list.setBlockClick(false);
    });
    const auto valueChecked =
        with<KorListCheck>([](KorListCheck &list) { list.setValueChecked(QStringLiteral("a;b;")); });
    const auto selected = with<KorListCheck>([](KorListCheck &list) { list.setSelected(true); });
    const auto refresh = with<KorListCheck>([](KorListCheck &list) { list.Refresh(); });
    return {
        {plain, "Click", "key", key(Qt::Key_Down), {}, loadTall},
        {plain, "Click", "mouse", mouseOnRow, {}, loadTall},
        {plain, "DblClick", "mouse", mouseOnRow, {}, loadTall},
        {plain, "KeyDown", "key", key(Qt::Key_Down), {}, loadTall},
        {plain, "MouseDown", "mouse", mouseOnRow, {}, loadTall},
        {plain, "MouseUp", "mouse", mouseOnRow, {}, loadTall},
        {plain, "Refreshed", "F5", key(Qt::Key_F5), {}, loadTall},
        {name, "Click", "mouse", mouseOnCheck, {}, loadTall},
        {name, "DblClick", "mouse", mouseOnCheck, {}, loadTall},
        {name, "KeyDown", "key", key(Qt::Key_Up), {}, loadTall},
        {name, "Refreshed", "F5", key(Qt::Key_F5), {}, loadTall},
        {name, "MouseDown", "mouse", mouseOnCheck, {}, loadTall},
        {name, "MouseMove", "mouse", mouseOnCheck, {}, loadTall},
        {name, "MouseUp", "mouse", mouseOnCheck, {}, loadTall},
        {name, "ItemCheck", "mouse", mouseOnCheck, {}, loadTall},
        {name, "ItemCheck", "ValueChecked", valueChecked, {}, loadTall},
        {name, "ItemCheck", "Selected", selected, {}, loadTall},
        {name, "ItemCheck", "Refresh", refresh, two, loadTall},
        {name, "ItemCheck", "Space", key(Qt::Key_Space), {}, loadTall},
    };
}

Rows ofCombo()
{
    const char *name = "KorCombo";
    const auto before = [](Scene &on) { load(on, "LIST 1;a|2;b|3;c"); };
    const auto list = [](const Scene &on) { return on.part<QComboBox>("cmbCombo")->view(); };
    const auto dropped = [=](Scene &on) {
        on.part<QComboBox>("cmbCombo")->showPopup();
        QTRY_VERIFY(list(on)->isVisible());
        list(on)->setCurrentIndex(list(on)->model()->index(1, 0));
    };
    const auto inList = [=](Qt::Key code) { return [=](Scene &on) { QTest::keyPress(list(on), code); }; };
    const auto clickInList = [=](Scene &on) { // through the window system, as a real click comes
        QAbstractItemView *view = list(on);
        const QPoint second = view->visualRect(view->model()->index(1, 0)).center();
        const QPoint at = view->viewport()->mapTo(view->window(), second);
        QWindow *window = view->window()->windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, at);
        QTest::mouseRelease(window, Qt::LeftButton, {}, at);
        QTRY_VERIFY(!on.control);
    };
    const auto no = [](Scene &on) {
        load(on, "LIST 1;Tak|0;Nie");
        on.as<KorCombo>()->setListIndex(1);
    };
    const auto let = [](std::function<void(KorCombo &)> deed) { return with<KorCombo>(std::move(deed)); };
    return {
        {name, "KeyDown", "key", key(Qt::Key_Down), {}, before},
        {name, "Click", "arrow", key(Qt::Key_Down), {}, before},
        {name, "Click", "typing", key(Qt::Key_C), {}, before},
        {name, "Click", "wheel", wheel(-120, true), {}, before},
        {name, "Refreshed", "F5", key(Qt::Key_F5), {}, before},
        {name, "Click", "Enter in the list", inList(Qt::Key_Return), dropped, before},
        {name, "Click", "Tab in the list", inList(Qt::Key_Tab), dropped, before},
        {name, "Click", "mouse in the list", clickInList, dropped, before},
        {name, "Refreshed", "F5 in the list", inList(Qt::Key_F5), dropped, before},
        {name, "Click", "ListIndex", let([](KorCombo &combo) { combo.setListIndex(0); }), {}, no},
        {name, "Click", "Value", let([](KorCombo &combo) { combo.setValue(99); }), {}, no},
        {name, "Click", "Value of the first", let([](KorCombo &combo) { combo.setValue(1); }), {}, no},
        {name, "Click", "Text", let([](KorCombo &combo) { combo.setText(QStringLiteral("Tak")); }), {}, no},
        {name, "Click", "Refresh", [](Scene &on) { load(on, "LIST 3;trzy"); }, {}, no},
        {name, "Refreshed", "Refresh", let([](KorCombo &combo) { combo.Refresh(); }), {}, no},
    };
}

const Rows &table()
{
    static const Rows rows = [] {
        Rows all;
        for (const Rows &some :
             {ofUpDown(), ofClick(), ofColor(), ofMultiText(), ofNumber(), ofDate(), ofLists(), ofCombo()})
            all.insert(all.end(), some.begin(), some.end());
        for (const char *name :
             {"KorNumber", "KorDate", "KorClick", "KorMultiText", "KorList", "KorListCheck", "KorColor"})
            all.push_back({name, "MouseDown", "right press", rightPress});
        return all;
    }();
    return rows;
}

} // namespace

//! A host's handler may close its form, and the control with it, in every event and by whatever way that comes.
class tst_Deletions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    static void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init();
    void cleanup() { m_stage.reset(); }

    void deletionInsideKeyDownIsSafe_data();
    void deletionInsideKeyDownIsSafe();
    void deletionInsideAHandlerIsSafe_data();
    void deletionInsideAHandlerIsSafe();

private:
    void run(const Row &row);
    std::unique_ptr<Stage> m_stage;
};

void tst_Deletions::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
    Clock::setSource([] { return QDate(2024, 3, 5); });
    m_stage = std::make_unique<Stage>();
}

void tst_Deletions::run(const Row &row)
{
    auto *control = m_stage->place(ControlRegistry::create(QString::fromLatin1(row.control)), 200);
    QVERIFY(control);
    Scene on{m_stage.get(), control, {}};
    if (row.before)
        row.before(on);
    QVERIFY(m_stage->open());
    control->setFocus();
    settle();
    on.box = QApplication::focusWidget();
    QVERIFY(control->isAncestorOf(on.box));
    if (row.entered)
        row.entered(on);
    QVERIFY(on.control);
    const DeletionOn deletion(control, QString::fromLatin1(row.event));
    QVERIFY(deletion.isListening());
    row.act(on);
    settle();
    QVERIFY(deletion.isDone());
}

void tst_Deletions::deletionInsideKeyDownIsSafe_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const QString &name : ControlRegistry::names())
        QTest::newRow(qPrintable(name)) << name.toLatin1();
}

void tst_Deletions::deletionInsideKeyDownIsSafe()
{
    QFETCH(QByteArray, name);
    run({name.constData(), "KeyDown", "a key that no control takes for itself", [](const Scene &on) {
             closeCellEditor(on.control);
             QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
         }});
}

void tst_Deletions::deletionInsideAHandlerIsSafe_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Row &row : table())
        QTest::addRow("%s: %s by %s", row.control, row.event, row.by) << index++;
}

void tst_Deletions::deletionInsideAHandlerIsSafe()
{
    QFETCH(int, index);
    run(table().at(static_cast<std::size_t>(index)));
}

QTEST_MAIN(tst_Deletions)
#include "tst_deletions.moc"
