// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/listsuite.h"
#include "support/eventlog.h"
#include "support/runtimeerrors.h"
#include "support/settings.h"

#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

#include <limits>

using namespace kor;
using namespace kor::test;

namespace {

const QString abc = QStringLiteral("LIST a;Alfa|b;Beta|c;Celina");

} // namespace

//! What the check boxes add; everything else is the list's and tested there.
class tst_KorListCheck : public ListSuite<KorListCheck>
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void everyCheckedKeyIsFollowedByTheSeparator();
    void separatorOfTheForm();
    void lastKeyNeedsItsSeparator();
    void keyInsideAnotherIsNotChecked();
    void keysAreWrittenByTheLocale();
    void keysOfSixteenDigitsAreToldApart();
    void keysBeyondADoubleAreToldApart();
    void unknownKeysAreIgnored();
    void orderAndRepetitionDoNotMatter();
    void emptyListKeepsItsSet();
    void textCheckedListsNames();
    void selectedIsTheCurrentEntry();
    void selectedWithoutAnEntryIsAnError();
    void selCountFollowsEveryChange();
    void allEntriesAreCheckedOrNone();
    void separatorIsFixedAtRunTime();
    void everyMemberIsReachedByName();

    void itemCheckIsRaisedForEveryChangeAndNoOther();
    void blockClickWithholdsItemCheck();
    void checkingDoesNotTouchDataChanged();
    void refreshKeepsTheChecksOfKeysStillThere();
    void refreshRaisesInOrder();
    void earlyEndsOfRefreshPutNothingBack_data();
    void earlyEndsOfRefreshPutNothingBack();
    void checksOfTheNullEntry();

    void spaceToggles();
    void clickOnTheBoxToggles();
    void clickOnTheBoxOfAnotherEntrySelectsItToo();
    void clickOnTheNameDoesNotToggle();
    void doubleClickOnTheBoxTogglesTwice();
    void boxLeftBeforeTheReleaseIsNotToggled();
    void mouseMovesAreRaised();
    void disabledListTogglesNothing();
    void toolkitSeesTheChecks();

    void handlersMayClearAndRefreshWhileChecking();
    void handlersSeeEachCheckAsItIsMade();
    void manyEntriesAreCheckedAtOnce();

private:
    [[nodiscard]] QPoint nameOf(int row) const { return rect(row).center(); }
    [[nodiscard]] QPoint boxOf(int row) const { return {rect(row).left() + 8, rect(row).center().y()}; }
    void click(const QPoint &place) const { QTest::mouseClick(m_box->viewport(), Qt::LeftButton, {}, place); }
};

void tst_KorListCheck::init() { setUp("CheckList"); }
void tst_KorListCheck::cleanup() { tearDown(); }

// --- sets

void tst_KorListCheck::everyCheckedKeyIsFollowedByTheSeparator()
{
    load(QStringLiteral("SELECT 1, 'a' UNION ALL SELECT 3, 'b' UNION ALL SELECT 5, 'c' UNION ALL SELECT 7, 'd'"));
    QCOMPARE(m_list->ValueChecked(), QString());
    for (int index : {3, 0, 2}) {
        m_list->setListIndex(index);
        m_list->setSelected(true);
    }
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("1;5;7;"));
    QCOMPARE(m_list->SelCount(), 3);
}

void tst_KorListCheck::separatorOfTheForm()
{
    PropertyBag bag;
    bag.append(QStringLiteral("Separator"), QStringLiteral(","));
    m_list->readProperties(bag);
    load(abc);
    m_list->setValueChecked(QStringLiteral("b,c,"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("b,c,"));
    m_list->setValueChecked(QStringLiteral("c,a,"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("a,c,"));
    QCOMPARE(m_list->TextChecked(), QStringLiteral("Alfa,Celina,"));
}

void tst_KorListCheck::lastKeyNeedsItsSeparator()
{
    load(QStringLiteral("LIST 1;a|5;b"));
    m_list->setValueChecked(QStringLiteral("1;5"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("1;"));
}

void tst_KorListCheck::keyInsideAnotherIsNotChecked()
{
    load(QStringLiteral("LIST 1;a|11;b"));
    m_list->setValueChecked(QStringLiteral("11;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("11;"));
    m_list->AddEntry(QStringLiteral("1;11"), QStringLiteral("c")); // has the separator inside
    m_list->setValueChecked(QStringLiteral("1;11;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("1;11;1;11;"));
    m_list->setValueChecked(QStringLiteral("11;1;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("1;11;"));
}

void tst_KorListCheck::keysAreWrittenByTheLocale()
{
    m_list->AddEntry(std::numeric_limits<int>::min(), QStringLiteral("najmniejsza"));
    m_list->AddEntry(2.5, QStringLiteral("ułamek"));
    m_list->AddEntry(QDate(2024, 2, 29), QStringLiteral("data"));
    m_list->AddEntry(QVariant(), QStringLiteral("pusty"));
    m_list->AddEntry(QStringLiteral(" x "), QStringLiteral("tekst"));
    m_list->setValueChecked(QStringLiteral("-2147483648;2,5;29.02.2024;; x ;"));
    QCOMPARE(m_list->SelCount(), 5);
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("-2147483648;2,5;29.02.2024;; x ;"));
    m_list->setValueChecked(QStringLiteral("2.5;x;"));
    QCOMPARE(m_list->SelCount(), 0);
    m_list->Clear();
    m_list->AddEntry(missing(), QStringLiteral("brak")); // like Null
    m_list->AddEntry(QDate(99999, 1, 1), QStringLiteral("rok poza kalendarzem"));
    m_list->CheckAll();
    QCOMPARE(m_list->ValueChecked(), QStringLiteral(";;"));
}

void tst_KorListCheck::keysOfSixteenDigitsAreToldApart()
{
    load(QStringLiteral("SELECT 1234567890123457, 'dolny' UNION ALL SELECT 1234567890123458, 'górny'"));
    QCOMPARE(m_list->Exists(1'234'567'890'123'457.0), QVariant(true));
    m_list->setValueChecked(QStringLiteral("1234567890123458;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("1234567890123458;"));
    QCOMPARE(m_list->TextChecked(), QStringLiteral("górny;"));
}

void tst_KorListCheck::keysBeyondADoubleAreToldApart()
{
    m_list->AddEntry(qlonglong(9'007'199'254'740'993), QStringLiteral("dolny"));
    m_list->AddEntry(qlonglong(9'007'199'254'740'994), QStringLiteral("górny"));
    m_list->setValueChecked(QStringLiteral("9007199254740994;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("9007199254740994;"));
    QCOMPARE(m_list->TextChecked(), QStringLiteral("górny;"));
    QCOMPARE(m_list->Exists(qlonglong(9'007'199'254'740'993)), QVariant(true));
    QCOMPARE(m_list->Exists(qlonglong(9'007'199'254'740'995)), QVariant(false));
    QCOMPARE(m_list->Exists(9'007'199'254'740'992.0), QVariant(false));
}

void tst_KorListCheck::unknownKeysAreIgnored()
{
    load(abc);
    m_list->setValueChecked(QStringLiteral("x;b;y;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("b;"));
}

void tst_KorListCheck::orderAndRepetitionDoNotMatter()
{
    load(abc);
    m_list->setValueChecked(QStringLiteral("c;a;c;a;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("a;c;"));
    m_list->setValueChecked(QStringLiteral("A;B;"));
    QCOMPARE(m_list->ValueChecked(), QString());
}

void tst_KorListCheck::emptyListKeepsItsSet()
{
    PropertyBag bag;
    bag.append(QStringLiteral("ValueChecked"), QStringLiteral("a;"));
    m_list->readProperties(bag);
    m_list->setValueChecked(QStringLiteral("b;")); // without entries nothing changes
    const PropertyBag again = settingsOf(*m_list);
    QCOMPARE(again, bag);
    QCOMPARE(m_list->ValueChecked(), QString()); // asking for it does: nothing is checked
    QVERIFY(settingsOf(*m_list).isEmpty());
}

void tst_KorListCheck::textCheckedListsNames()
{
    load(QStringLiteral("LIST 1;Tak|0;Nie|2;Może"));
    QCOMPARE(m_list->TextChecked(), QString());
    m_list->setValueChecked(QStringLiteral("0;1;"));
    QCOMPARE(m_list->TextChecked(), QStringLiteral("Tak;Nie;"));
}

void tst_KorListCheck::selectedIsTheCurrentEntry()
{
    load(abc);
    m_list->setValueChecked(QStringLiteral("b;"));
    m_list->setListIndex(0);
    QVERIFY(!m_list->Selected());
    m_list->setListIndex(1);
    QVERIFY(m_list->Selected());
    m_list->setSelected(false);
    m_list->setListIndex(2);
    m_list->setSelected(true);
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("c;"));
}

void tst_KorListCheck::selectedWithoutAnEntryIsAnError()
{
    load(abc);
    m_list->setListIndex(-1);
    QVERIFY(!m_list->Selected());
    QCOMPARE(errorOf([this] { m_list->setSelected(true); }), 381);
    QCOMPARE(errorOf([this] { m_list->setSelected(false); }), 381);
    QCOMPARE(m_list->SelCount(), 0);
}

void tst_KorListCheck::selCountFollowsEveryChange()
{
    load(abc);
    m_list->setValueChecked(QStringLiteral("a;b;c;"));
    QCOMPARE(m_list->SelCount(), 3);
    m_list->setListIndex(0);
    m_list->setSelected(true);
    QCOMPARE(m_list->SelCount(), 3);
    m_list->setSelected(false);
    m_list->setSelected(false);
    QCOMPARE(m_list->SelCount(), 2);
    m_list->AddEntry(QStringLiteral("d"), QStringLiteral("Daria"));
    QCOMPARE(m_list->SelCount(), 2);
    m_list->Clear();
    QCOMPARE(m_list->SelCount(), 0);
    m_list->AddEntry(QStringLiteral("b"), QStringLiteral("Beta"));
    QCOMPARE(m_list->SelCount(), 0);
    QCOMPARE(m_list->ValueChecked(), QString());
}

void tst_KorListCheck::allEntriesAreCheckedOrNone()
{
    load(abc);
    m_list->setValueChecked(QStringLiteral("b;"));
    EventLog log(m_list);
    m_list->CheckAll();
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("a;b;c;"));
    QCOMPARE(log.take(), QStringLiteral("ItemCheck(0) ItemCheck(2)"));
    QVERIFY(QMetaObject::invokeMethod(m_list, "CheckAll", Q_ARG(bool, false)));
    QCOMPARE(m_list->SelCount(), 0);
    m_list->Clear();
    m_list->CheckAll();
    QCOMPARE(m_list->ValueChecked(), QString());
}

void tst_KorListCheck::separatorIsFixedAtRunTime()
{
    QCOMPARE(m_list->Separator(), QStringLiteral(";"));
    QCOMPARE(errorOf([this] { m_list->setSeparator(QStringLiteral(",")); }), 382);
    QCOMPARE(m_list->Separator(), QStringLiteral(";"));
    UserControl::setUserMode(m_stage.get(), false);
    QStringList reported;
    connect(m_list, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    m_list->setSeparator(QStringLiteral(","));
    QCOMPARE(m_list->Separator(), QStringLiteral(","));
    QCOMPARE(reported, QStringList{QStringLiteral("Separator")});
}

void tst_KorListCheck::everyMemberIsReachedByName()
{
    QObject *control = m_list;
    load(abc);
    QVERIFY(control->setProperty("ListIndex", 1));
    QVERIFY(control->setProperty("Selected", true));
    QCOMPARE(control->property("ValueChecked"), QVariant(QStringLiteral("b;")));
    QCOMPARE(control->property("TextChecked"), QVariant(QStringLiteral("Beta;")));
    QCOMPARE(control->property("SelCount"), QVariant(1));
    QVERIFY(control->setProperty("ValueChecked", QStringLiteral("a;")));
    QCOMPARE(control->property("Selected"), QVariant(false));
    QCOMPARE(errorOf([control] { control->setProperty("Separator", QStringLiteral(",")); }), 382);
    for (const char *name :
         {"Value", "Text", "SQL", "NullString", "Slownik", "DataChanged", "CanBeNull", "BackColor", "ForeColor", "Font",
          "Appearance", "BorderStyle", "ToolTipText", "Enabled", "BlockUpDown", "BlockClick"}) {
        const QVariant value = control->property(name);
        QVERIFY2(value.isValid() && control->setProperty(name, value), name);
    }
    QStringList events;
    for (int i = control->metaObject()->methodOffset(); i < control->metaObject()->methodCount(); ++i) {
        if (control->metaObject()->method(i).methodType() == QMetaMethod::Signal)
            events << QString::fromLatin1(control->metaObject()->method(i).methodSignature());
    }
    QCOMPARE(events.join(QLatin1Char(' ')),
             QStringLiteral("Click() DblClick() KeyDown(int&,int&) ItemCheck(int&) Refreshed() "
                            "MouseDown(int&,int&,float&,float&) MouseMove(int&,int&,float&,float&) "
                            "MouseUp(int&,int&,float&,float&)"));
}

// --- events

void tst_KorListCheck::itemCheckIsRaisedForEveryChangeAndNoOther()
{
    load(abc);
    EventLog log(m_list);
    m_list->setValueChecked(QStringLiteral("a;c;"));
    QCOMPARE(log.take(), QStringLiteral("ItemCheck(0) ItemCheck(2)"));
    m_list->setValueChecked(QStringLiteral("b;c;"));
    QCOMPARE(log.take(), QStringLiteral("ItemCheck(0) ItemCheck(1)"));
    m_list->setValueChecked(QStringLiteral("b;c;"));
    QCOMPARE(log.take(), QString());
    m_list->setSelected(true); // entry 0 is the current one
    QCOMPARE(log.take(), QStringLiteral("ItemCheck(0)"));
    m_list->setSelected(true);
    QCOMPARE(log.take(), QString());
    m_list->Clear();
    QCOMPARE(log.take(), QString());
}

void tst_KorListCheck::blockClickWithholdsItemCheck()
{
    load(abc);
    m_list->setBlockClick(true);
    EventLog log(m_list);
    m_list->setValueChecked(QStringLiteral("a;"));
    m_list->setSelected(false);
    m_list->setListIndex(2);
    QCOMPARE(log.take(), QString());
    QVERIFY(m_list->DataChanged()); // by the selection
}

void tst_KorListCheck::checkingDoesNotTouchDataChanged()
{
    QVERIFY(enter(abc));
    m_list->setDataChanged(false);
    m_list->setValueChecked(QStringLiteral("a;"));
    QTest::keyClick(m_box, Qt::Key_Space);
    click(boxOf(0));
    QVERIFY(!m_list->DataChanged());
}

void tst_KorListCheck::refreshKeepsTheChecksOfKeysStillThere()
{
    load(abc);
    m_list->setValueChecked(QStringLiteral("a;c;"));
    load(QStringLiteral("LIST x;X|c;C|a;A"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("c;a;"));
    load(QStringLiteral("LIST x;X|a;A"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("a;"));
    load(abc);
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("a;")); // the lost one does not come back
}

void tst_KorListCheck::refreshRaisesInOrder()
{
    load(abc);
    m_list->setValueChecked(QStringLiteral("b;c;"));
    m_list->setValue(QStringLiteral("c"));
    EventLog log(m_list);
    load(QStringLiteral("LIST a;A|b;B|d;D"));
    QCOMPARE(log.take(), QStringLiteral("Click ItemCheck(1) Refreshed"));
    m_list->setValue(QStringLiteral("b"));
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QVERIFY(m_stage->open());
    m_list->setFocus();
    settle();
    QTest::keyClick(m_box, Qt::Key_F5);
    QCOMPARE(log.take(), QStringLiteral("ItemCheck(1) Refreshed"));
    QVERIFY(!m_list->DataChanged());
}

void tst_KorListCheck::earlyEndsOfRefreshPutNothingBack_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("hasDatabase");
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QString>("warning");
    // clang-format off
    QTest::newRow("no database leaves all as it is") << "SELECT 'a', 'A'"         << false << "Refreshed" << "a;" << "";
    QTest::newRow("no rows")                         << "SELECT 'a', 'A' WHERE 0" << true  << ""          << ""   << "";
    QTest::newRow("statement that fails")            << "SELECT * FROM nie_ma"    << true  << ""          << ""   << "no such table: nie_ma";
    QTest::newRow("failing in mid-read")             << "SELECT 'a', 'A' UNION ALL SELECT 'b', json('{')" << true << "" << "" << "malformed JSON";
    // clang-format on
}

void tst_KorListCheck::earlyEndsOfRefreshPutNothingBack()
{
    QFETCH(QString, source);
    QFETCH(bool, hasDatabase);
    QFETCH(QString, warning);
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    load(abc);
    m_list->setValueChecked(QStringLiteral("a;"));
    if (!hasDatabase)
        m_list->setdatabase(nullptr);
    EventLog log(m_list);
    load(source);
    QTEST(log.take(), "events");
    QTEST(m_list->ValueChecked(), "checked");
}

void tst_KorListCheck::checksOfTheNullEntry()
{
    load(abc, true);
    m_list->setListIndex(0);
    m_list->setSelected(true);
    QCOMPARE(m_list->ValueChecked(), QStringLiteral(";"));
    QCOMPARE(m_list->TextChecked(), QStringLiteral("...;"));
    m_list->setValueChecked(QStringLiteral("a;"));
    QVERIFY(!m_list->Selected());
    m_list->setValueChecked(QStringLiteral("a;;"));
    QVERIFY(m_list->Selected());
}

// --- keys and mouse

void tst_KorListCheck::spaceToggles()
{
    QVERIFY(enter(abc));
    m_list->setListIndex(1);
    EventLog log(m_list);
    QTest::keyClick(m_box, Qt::Key_Space);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(32,0) ItemCheck(1)"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("b;"));
    QTest::keyClick(m_box, Qt::Key_Space);
    QCOMPARE(m_list->ValueChecked(), QString());
    QTest::keyClick(m_box, 'c');
    QTest::keyClick(m_box, Qt::Key_Space); // also right behind a letter
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("c;"));
    m_list->setListIndex(-1);
    EventLog unselected(m_list);
    QTest::keyClick(m_box, Qt::Key_Space);
    QCOMPARE(unselected.take(), QStringLiteral("KeyDown(32,0)"));
    connect(m_list, &KorListCheck::KeyDown, this, [](int &code, int &) { code = 0; });
    m_list->setListIndex(0);
    QTest::keyClick(m_box, Qt::Key_Space);
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("c;"));
}

void tst_KorListCheck::clickOnTheBoxToggles()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    log.ignore({QStringLiteral("MouseMove")});
    click(boxOf(0));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) ItemCheck(0)"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("a;"));
    click(boxOf(0));
    QCOMPARE(m_list->ValueChecked(), QString());
    QTest::mouseClick(m_box->viewport(), Qt::RightButton, {}, boxOf(0));
    QCOMPARE(m_list->ValueChecked(), QString());
}

void tst_KorListCheck::clickOnTheBoxOfAnotherEntrySelectsItToo()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    log.ignore({QStringLiteral("MouseMove")});
    bool sawItsOwn = false;
    connect(m_list, &KorListCheck::ItemCheck, this,
            [&] { sawItsOwn = m_list->ListIndex() == 2 && m_list->Selected(); });
    click(boxOf(2));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) ItemCheck(2) Click"));
    QVERIFY(sawItsOwn);
}

void tst_KorListCheck::clickOnTheNameDoesNotToggle()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    log.ignore({QStringLiteral("MouseMove")});
    click(nameOf(1));
    click(nameOf(1));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click MouseDown(1,0) MouseUp(1,0)"));
    QCOMPARE(m_list->SelCount(), 0);
}

void tst_KorListCheck::doubleClickOnTheBoxTogglesTwice()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    log.ignore({QStringLiteral("MouseMove")});
    doubleClick(m_box->viewport(), boxOf(0));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) ItemCheck(0) DblClick MouseUp(1,0) ItemCheck(0)"));
    QCOMPARE(m_list->SelCount(), 0);
}

void tst_KorListCheck::boxLeftBeforeTheReleaseIsNotToggled()
{
    QVERIFY(enter(abc));
    QTest::mousePress(m_box->viewport(), Qt::LeftButton, {}, boxOf(0));
    QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, nameOf(0));
    QTest::mousePress(m_box->viewport(), Qt::LeftButton, {}, boxOf(0));
    QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, boxOf(1));
    QTest::mousePress(m_box->viewport(), Qt::LeftButton, {}, nameOf(0));
    QTest::mouseRelease(m_box->viewport(), Qt::LeftButton, {}, boxOf(0));
    QCOMPARE(m_list->SelCount(), 0);
}

void tst_KorListCheck::mouseMovesAreRaised()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    const QPoint place = nameOf(1);
    QMouseEvent move(QEvent::MouseMove, place, m_box->viewport()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(m_box->viewport(), &move);
    QCOMPARE(log.take(), QStringLiteral("MouseMove(0,0)"));
    QCOMPARE(m_list->ListIndex(), 0);
}

void tst_KorListCheck::disabledListTogglesNothing()
{
    QVERIFY(enter(abc));
    m_list->setEnabled(false);
    EventLog log(m_list);
    click(boxOf(0));
    QTest::keyClick(m_box, Qt::Key_Space);
    QCOMPARE(log.take(), QString());
    QCOMPARE(m_list->SelCount(), 0);
}

void tst_KorListCheck::toolkitSeesTheChecks()
{
    QVERIFY(enter(abc));
    const QModelIndex beta = m_box->model()->index(1, 0);
    QVERIFY(beta.flags().testFlag(Qt::ItemIsUserCheckable));
    m_list->setValueChecked(QStringLiteral("b;"));
    QCOMPARE(beta.data(Qt::CheckStateRole), QVariant(int(Qt::Checked)));
    const QImage checked = m_box->grab().toImage();
    EventLog log(m_list);
    QVERIFY(m_box->model()->setData(beta, int(Qt::Unchecked), Qt::CheckStateRole)); // an assistive tool's way
    QCOMPARE(log.take(), QStringLiteral("ItemCheck(1)"));
    QCOMPARE(m_list->SelCount(), 0);
    QVERIFY(m_box->grab().toImage() != checked);
}

// --- handlers

void tst_KorListCheck::handlersMayClearAndRefreshWhileChecking()
{
    load(abc);
    const auto clearing = connect(m_list, &KorListCheck::ItemCheck, m_list, &KorListCheck::Clear);
    m_list->setValueChecked(QStringLiteral("a;b;c;"));
    QVERIFY(!m_list->HasValues());
    QCOMPARE(m_list->SelCount(), 0);
    disconnect(clearing);
    load(abc);
    int raised = 0;
    connect(m_list, &KorListCheck::ItemCheck, m_list, [&] {
        if (++raised == 1)
            load(QStringLiteral("LIST x;X|y;Y"));
    });
    m_list->setValueChecked(QStringLiteral("a;b;c;"));
    QCOMPARE(raised, 1); // the entries that it was about are gone
    QCOMPARE(m_list->SelCount(), 0);
}

void tst_KorListCheck::handlersSeeEachCheckAsItIsMade()
{
    load(abc);
    connect(m_list, &KorListCheck::ItemCheck, m_list, [this](int item) { // one at a time
        const QString own = QStringLiteral("abc").mid(item, 1) + QLatin1Char(';');
        if (m_list->SelCount() > 1)
            m_list->setValueChecked(own);
    });
    m_list->setValueChecked(QStringLiteral("a;b;c;"));
    QCOMPARE(m_list->ValueChecked(), QStringLiteral("c;"));
}

void tst_KorListCheck::manyEntriesAreCheckedAtOnce()
{
    load(QStringLiteral("SELECT x, 'Odbiorca ' || x FROM (WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 "
                        "FROM i WHERE x < 20000) SELECT x FROM i)"));
    QString every;
    QString half;
    for (int i = 1; i <= 20'000; ++i) {
        every += QString::number(i) + QLatin1Char(';');
        if (i % 2 == 0)
            half += QString::number(i) + QLatin1Char(';');
    }
    m_list->setValueChecked(every);
    QCOMPARE(m_list->SelCount(), 20'000);
    QCOMPARE(m_list->ValueChecked(), every);
    m_list->setValueChecked(half);
    QCOMPARE(m_list->SelCount(), 10'000);
    QCOMPARE(m_list->ValueChecked(), half);
    m_list->Refresh();
    QCOMPARE(m_list->SelCount(), 10'000);
}

QTEST_MAIN(tst_KorListCheck)
#include "tst_korlistcheck.moc"
