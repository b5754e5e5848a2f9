// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/stage.h"

#include <KorDaoUC/Database>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/Locale>
#include <KorDaoUC/Recordset>
#include <KorDaoUC/RunTimeError>

#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>

#include <optional>
#include <utility>

using namespace kor;
using namespace kor::test;

namespace {

const QString abc = QStringLiteral("LIST a;Alfa|b;Beta|c;Celina");
const QString xyz = QStringLiteral("LIST x;X|y;Y|z;Z");

void send(QListView *box, QEvent::Type type, const QPoint &place)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent mouse(type, place, box->viewport()->mapToGlobal(place), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box->viewport(), &mouse);
}

void commit(QListView *box, const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(box, &event);
}

} // namespace

//! What a host, a timer or an assistive tool does to the two lists while the user is in the middle of something.
class tst_ListHandlers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void refreshWhileTheMouseIsDownLosesNoClick();
    void refreshWhileTheMouseIsDownInventsNoClick();
    void clearWhileTheMouseIsDownRaisesNoClick();
    void refillBeforeTheReleaseTogglesNoOtherEntry();
    void refreshInItemCheckEndsAndKeepsEveryCheck();
    void refreshInItemCheckTakesANewSource();
    void scrollingEndsWhenTheReleaseCannotBeSeen_data();
    void scrollingEndsWhenTheReleaseCannotBeSeen();
    void doubleClickMeansTheEntryUnderTheMouse();
    void positionsAreTwips();
    void assistiveToolsSelect();
    void selectionMadeWhileHiddenIsSeenOnceShown();
    void checksAreTheSameWhoeverListens_data();
    void checksAreTheSameWhoeverListens();
    void errorsOfHandlersLeaveTheListInOrder();
    void deletionWhileTheDatabaseReadsIsSafe();
    void whatAnInputMethodFinishesFindsAName();

private:
    [[nodiscard]] bool enter(DictionaryControl *list, const QString &source);
    [[nodiscard]] static QPoint nameOf(const QListView *box, int row)
    {
        return box->visualRect(box->model()->index(row, 0)).center();
    }
    [[nodiscard]] static QPoint boxOf(const QListView *box, int row) { return {8, nameOf(box, row).y()}; }

    std::unique_ptr<Stage> m_stage;
    KorList *m_list = nullptr;
    KorListCheck *m_checkList = nullptr;
    QListView *m_box = nullptr;
    QListView *m_checkBox = nullptr;
};

void tst_ListHandlers::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
    m_stage = std::make_unique<Stage>();
    m_list = m_stage->place(new KorList, 160, 80);
    m_checkList = m_stage->place(new KorListCheck, 160, 80);
    m_box = m_list->findChild<QListView *>(QStringLiteral("Lista"));
    m_checkBox = m_checkList->findChild<QListView *>(QStringLiteral("CheckList"));
}

void tst_ListHandlers::cleanup() { m_stage.reset(); }

bool tst_ListHandlers::enter(DictionaryControl *list, const QString &source)
{
    list->setSQL(source);
    list->Refresh();
    if (!m_stage->open())
        return false;
    list->setFocus();
    settle();
    return list->isAncestorOf(QApplication::focusWidget());
}

// --- mouse

void tst_ListHandlers::refreshWhileTheMouseIsDownLosesNoClick()
{
    QVERIFY(enter(m_list, abc));
    EventLog log(m_list);
    send(m_box, QEvent::MouseButtonPress, nameOf(m_box, 2));
    m_list->Refresh(); // a timer's
    m_list->Refresh();
    send(m_box, QEvent::MouseButtonRelease, nameOf(m_box, 2));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) Refreshed Refreshed MouseUp(1,0) Click"));
    QCOMPARE(m_list->Value(), QVariant(QStringLiteral("c")));
    QVERIFY(m_list->DataChanged());

    QVERIFY(enter(m_checkList, abc));
    EventLog checkLog(m_checkList);
    int refreshes = 0;
    connect(m_checkList, &KorListCheck::ItemCheck, this, [&] {
        if (++refreshes == 1)
            m_checkList->Refresh();
    });
    send(m_checkBox, QEvent::MouseButtonPress, boxOf(m_checkBox, 1));
    send(m_checkBox, QEvent::MouseButtonRelease, boxOf(m_checkBox, 1));
    QCOMPARE(checkLog.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) ItemCheck(1) ItemCheck(1) Refreshed Click"));
    QCOMPARE(m_checkList->ValueChecked(), QStringLiteral("b;"));
}

void tst_ListHandlers::refreshWhileTheMouseIsDownInventsNoClick()
{
    QVERIFY(enter(m_list, abc));
    m_list->setListIndex(1);
    EventLog log(m_list);
    send(m_box, QEvent::MouseButtonPress, nameOf(m_box, 1));
    m_list->Refresh();
    send(m_box, QEvent::MouseButtonRelease, nameOf(m_box, 1));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) Refreshed MouseUp(1,0)"));
    QVERIFY(!m_list->DataChanged());
}

void tst_ListHandlers::clearWhileTheMouseIsDownRaisesNoClick()
{
    QVERIFY(enter(m_list, abc));
    EventLog log(m_list);
    send(m_box, QEvent::MouseButtonPress, nameOf(m_box, 2));
    m_list->Clear();
    send(m_box, QEvent::MouseButtonRelease, {20, 5});
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0)"));
    m_list->AddEntry(1, QStringLiteral("jeden"));
    send(m_box, QEvent::MouseButtonPress, {20, m_box->viewport()->height() - 2});
    send(m_box, QEvent::MouseButtonRelease, {20, m_box->viewport()->height() - 2});
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0)")); // and none is left over
}

void tst_ListHandlers::refillBeforeTheReleaseTogglesNoOtherEntry()
{
    QVERIFY(enter(m_checkList, abc));
    connect(m_checkList, &KorListCheck::MouseUp, this, [this] {
        m_checkList->setSQL(xyz);
        m_checkList->Refresh();
    });
    send(m_checkBox, QEvent::MouseButtonPress, boxOf(m_checkBox, 2));
    send(m_checkBox, QEvent::MouseButtonRelease, boxOf(m_checkBox, 2));
    QCOMPARE(m_checkList->ListCount(), 3);
    QCOMPARE(m_checkList->ValueChecked(), QString());
}

void tst_ListHandlers::scrollingEndsWhenTheReleaseCannotBeSeen_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::newRow("disabled") << QByteArray("enabled");
    QTest::newRow("hidden") << QByteArray("visible");
}

void tst_ListHandlers::scrollingEndsWhenTheReleaseCannotBeSeen()
{
    QFETCH(QByteArray, property);
    QVERIFY(enter(m_list, QString()));
    for (int i = 0; i < 1'000; ++i)
        m_list->AddEntry(i, QString::number(i));
    settle();
    send(m_box, QEvent::MouseButtonPress, nameOf(m_box, 0));
    send(m_box, QEvent::MouseMove, {20, m_box->viewport()->height() + 30});
    const int start = m_list->ListIndex();
    QTRY_VERIFY(m_list->ListIndex() > start);
    m_list->setProperty(property, false);
    const int reached = m_list->ListIndex();
    QTest::qWait(150); // three steps
    QCOMPARE(m_list->ListIndex(), reached);
}

void tst_ListHandlers::doubleClickMeansTheEntryUnderTheMouse()
{
    QVERIFY(enter(m_list, abc));
    EventLog log(m_list);
    QVariant opened;
    connect(m_list, &KorList::DblClick, this, [&] { opened = m_list->Value(); });
    // Two quick clicks at the border of two entries.
    send(m_box, QEvent::MouseButtonPress, nameOf(m_box, 1));
    send(m_box, QEvent::MouseButtonRelease, nameOf(m_box, 1));
    send(m_box, QEvent::MouseButtonDblClick, nameOf(m_box, 2));
    send(m_box, QEvent::MouseButtonRelease, nameOf(m_box, 2));
    QCOMPARE(opened, QVariant(QStringLiteral("c")));
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,0) MouseUp(1,0) Click DblClick MouseUp(1,0) Click"));
}

void tst_ListHandlers::positionsAreTwips()
{
    QVERIFY(enter(m_list, abc));
    QPointF down;
    QPointF up;
    connect(m_list, &KorList::MouseDown, this, [&](int, int, float x, float y) { down = {x, y}; });
    connect(m_list, &KorList::MouseUp, this, [&](int, int, float x, float y) { up = {x, y}; });
    send(m_box, QEvent::MouseButtonPress, {10, 20});
    send(m_box, QEvent::MouseButtonRelease, {30, 40});
    const double perPixel = 1440.0 / m_box->logicalDpiX();
    QCOMPARE(down, QPointF(10, 20) * perPixel);
    QCOMPARE(up, QPointF(30, 40) * perPixel);
}

// --- checks

void tst_ListHandlers::refreshInItemCheckEndsAndKeepsEveryCheck()
{
    QVERIFY(enter(m_checkList, abc));
    m_checkList->setValueChecked(QStringLiteral("a;c;"));
    m_checkList->setListIndex(1);
    EventLog log(m_checkList);
    connect(m_checkList, &KorListCheck::ItemCheck, m_checkList, &KorListCheck::Refresh);
    QTest::keyClick(m_checkBox, Qt::Key_Space);
    QCOMPARE(m_checkList->ValueChecked(), QStringLiteral("a;b;c;"));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(32,0) ItemCheck(1) ItemCheck(0) Refreshed Refreshed"));
    QTest::keyClick(m_checkBox, Qt::Key_Space); // and again
    QCOMPARE(m_checkList->ValueChecked(), QStringLiteral("a;c;"));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(32,0) ItemCheck(1) ItemCheck(0) Refreshed Refreshed"));
}

void tst_ListHandlers::refreshInItemCheckTakesANewSource()
{
    QVERIFY(enter(m_checkList, abc));
    m_checkList->setValueChecked(QStringLiteral("a;b;"));
    connect(m_checkList, &KorListCheck::ItemCheck, m_checkList, [this] {
        m_checkList->setSQL(QStringLiteral("LIST d;Daria|b;Beata|a;Anna"));
        m_checkList->Refresh();
    });
    m_checkList->Refresh();
    QCOMPARE(m_checkList->ListCount(), 3);
    QCOMPARE(m_checkList->TextChecked(), QStringLiteral("Beata;Anna;"));
}

// --- assistive tools

void tst_ListHandlers::assistiveToolsSelect()
{
    QVERIFY(enter(m_list, abc));
    EventLog log(m_list);
    QAccessibleInterface *tool = QAccessible::queryAccessibleInterface(m_box);
    QVERIFY(tool && tool->tableInterface());
    QVERIFY(tool->tableInterface()->selectRow(2));
    QCOMPARE(m_list->Value(), QVariant(QStringLiteral("c")));
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QCOMPARE(m_box->selectionModel()->selectedIndexes().size(), 1);
    m_box->setCurrentIndex(m_box->model()->index(1, 0));
    QCOMPARE(m_list->Value(), QVariant(QStringLiteral("b")));
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_ListHandlers::selectionMadeWhileHiddenIsSeenOnceShown()
{
    for (int i = 0; i < 1'000; ++i)
        m_list->AddEntry(i, QString::number(i));
    m_list->setValue(700);
    QVERIFY(m_stage->open());
    settle();
    QVERIFY(m_box->viewport()->rect().contains(nameOf(m_box, 700)));
}

// --- handlers

void tst_ListHandlers::checksAreTheSameWhoeverListens_data()
{
    QTest::addColumn<bool>("listens");
    QTest::addColumn<bool>("blocks");
    QTest::addColumn<QString>("events");
    QTest::newRow("a host that listens") << true << false << "ItemCheck(0) ItemCheck(1) ItemCheck(2) ItemCheck(0)";
    QTest::newRow("one that blocks the event") << true << true << "";
    QTest::newRow("nobody") << false << false << "";
}

void tst_ListHandlers::checksAreTheSameWhoeverListens()
{
    QFETCH(bool, listens);
    QFETCH(bool, blocks);
    QVERIFY(enter(m_checkList, abc));
    std::optional<EventLog> log;
    if (listens)
        log.emplace(m_checkList);
    m_checkList->setBlockClick(blocks);
    m_checkList->setValueChecked(QStringLiteral("b;a;"));
    QCOMPARE(m_checkList->SelCount(), 2);
    QCOMPARE(m_checkList->TextChecked(), QStringLiteral("Alfa;Beta;"));
    m_checkList->CheckAll();
    QCOMPARE(m_checkList->SelCount(), 3);
    m_checkList->setValueChecked(QStringLiteral("c;b;"));
    QCOMPARE(m_checkList->ValueChecked(), QStringLiteral("b;c;"));
    m_checkList->AddEntry(QStringLiteral("d"), QStringLiteral("Daria"));
    QCOMPARE(m_checkList->ValueChecked(), QStringLiteral("b;c;"));
    if (listens)
        QTEST(log->take(), "events");
}

void tst_ListHandlers::errorsOfHandlersLeaveTheListInOrder()
{
    QVERIFY(enter(m_checkList, abc));
    m_checkList->setListIndex(2);
    m_checkList->setSQL(xyz);
    QStringList errors;
    connect(m_checkList, &UserControl::Error, this, [&](int number, const QString &, bool &handled) {
        errors << QString::number(number);
        handled = true;
    });
    const auto failing =
        connect(m_checkList, &KorListCheck::Click, this, [] { throw RunTimeError(ErrorNumber::InvalidProcedureCall); });
    QTest::keyClick(m_checkBox, Qt::Key_F5); // the selected key is gone
    QTest::keyClick(m_checkBox, Qt::Key_Down);
    QTest::mouseClick(m_checkBox->viewport(), Qt::LeftButton, {}, nameOf(m_checkBox, 2));
    QCOMPARE(errors, QStringList(3, QStringLiteral("5")));
    disconnect(failing);
    QCOMPARE(m_checkList->Value(), QVariant(QStringLiteral("z")));
    EventLog log(m_checkList);
    QTest::keyClick(m_checkBox, Qt::Key_Up);
    m_checkList->Refresh();
    m_checkList->setSelected(true);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(38,0) Click Refreshed ItemCheck(1)"));
}

void tst_ListHandlers::deletionWhileTheDatabaseReadsIsSafe()
{
    struct Closing final : Database { // a host's own, which lets the user close the window while it waits
        std::unique_ptr<Recordset> OpenRecordset(const QString &, int) override
        {
            delete std::exchange(control, nullptr);
            return nullptr;
        }
        DictionaryControl *control = nullptr;
    } database;
    for (DictionaryControl *control :
         {static_cast<DictionaryControl *>(m_list), static_cast<DictionaryControl *>(m_checkList)}) {
        database.control = control;
        control->setdatabase(&database);
        control->setSQL(QStringLiteral("SELECT id, nazwa FROM slownik"));
        control->Refresh();
        QVERIFY(!database.control);
    }
}

void tst_ListHandlers::whatAnInputMethodFinishesFindsAName()
{
    QVERIFY(enter(m_list, abc));
    EventLog log(m_list);
    commit(m_box, QStringLiteral("ce"));
    QCOMPARE(m_list->Value(), QVariant(QStringLiteral("c")));
    QCOMPARE(log.take(), QStringLiteral("Click"));

    QStringList errors;
    connect(m_list, &UserControl::Error, this, [&](int number, const QString &, bool &handled) {
        errors << QString::number(number);
        handled = true;
    });
    const auto failing =
        connect(m_list, &KorList::Click, this, [] { throw RunTimeError(ErrorNumber::InvalidProcedureCall); });
    QTest::qWait(QApplication::keyboardInputInterval()); // the next letter begins another name
    commit(m_box, QStringLiteral("b"));
    QCOMPARE(errors, QStringList(QStringLiteral("5")));
    QCOMPARE(m_list->Value(), QVariant(QStringLiteral("b")));
    disconnect(failing);

    const QPointer<KorList> list = m_list;
    connect(m_list, &KorList::Click, this, [this] { delete std::exchange(m_list, nullptr); });
    QTest::qWait(QApplication::keyboardInputInterval());
    commit(m_box, QStringLiteral("a"));
    QVERIFY(!list);
}

QTEST_MAIN(tst_ListHandlers)
#include "tst_listhandlers.moc"
