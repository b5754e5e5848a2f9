// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/listsuite.h"
#include "support/eventlog.h"

#include <KorDaoUC/KorList>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>

using namespace kor;
using namespace kor::test;

namespace {

const QString abc = QStringLiteral("LIST a;Alfa|b;Beta|c;Celina");

} // namespace

//! Entries, keys and mouse.
class tst_KorList : public ListSuite<KorList>
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void trailingBarIsOptional();
    void anyOtherTextLoadsNothingAndStillRefreshes();
    void nullEntryIsReadAsNullAndNeverFound();
    void numberDoesNotFindATextKey();
    void keptValueIsSilentAndAVanishedOneClicks();
    void f5RefreshesWithoutKeyDown_data();
    void f5RefreshesWithoutKeyDown();
    void emptyResultLeavesTheListCleared();
    void listIndexOutOfRangeIsRefused_data();
    void listIndexOutOfRangeIsRefused();
    void everyMemberIsReachedByName();

    void nothingIsSelectedByFillingOrByTheFocus();
    void keysMove_data();
    void keysMove();
    void keysMoveInAListWithoutASelection();
    void pageKeysMoveByWhatIsSeen();
    void typingFindsByTheBeginning_data();
    void typingFindsByTheBeginning();
    void typingGoesOnThroughBlanks();
    void hostSwallowsAndChangesKeys();
    void keysOfTheFormAreLeftToIt();

    void handlersMayRefreshAndClear();
    void entriesAddedWhileTheListIsSeenAreLaidOut();
    void manyEntriesAreReachedAtOnce();
    void delegateOfTheHostIsUsed();

private:
    [[nodiscard]] QPoint middleOf(int row) const { return rect(row).center(); }
    [[nodiscard]] QStringList names() const;
};

void tst_KorList::init() { setUp("Lista"); }
void tst_KorList::cleanup() { tearDown(); }

QStringList tst_KorList::names() const
{
    QStringList shown;
    for (int i = 0; i < m_box->model()->rowCount(); ++i)
        shown << m_box->model()->index(i, 0).data().value<QString>();
    return shown;
}

// --- entries

void tst_KorList::trailingBarIsOptional()
{
    for (const QString &source : {QStringLiteral("LIST a;A|b;B"), QStringLiteral("LIST a;A|b;B|")}) {
        load(source);
        QCOMPARE(names(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
        m_list->setText(QStringLiteral("B"));
        QCOMPARE(m_list->Value(), QVariant(QStringLiteral("b")));
    }
}

void tst_KorList::anyOtherTextLoadsNothingAndStillRefreshes()
{
    load(QStringLiteral("list x;X"));
    QCOMPARE(names(), QStringList{QStringLiteral("X")});
    load(QStringLiteral("sElEcT 1, 'jeden'"));
    QCOMPARE(m_list->Value(), QVariant(1));
    EventLog log(m_list);
    load(QStringLiteral("kraje"));
    QVERIFY(!m_list->HasValues());
    load(QStringLiteral("kraje"), true);
    QCOMPARE(names(), QStringList{QStringLiteral("...")});
    QCOMPARE(m_list->ListIndex(), 0);
    QCOMPARE(log.take(), QStringLiteral("Refreshed Refreshed"));
}

void tst_KorList::nullEntryIsReadAsNullAndNeverFound()
{
    load(QStringLiteral("LIST 1;One"), true);
    QCOMPARE(names(), (QStringList{QStringLiteral("..."), QStringLiteral("One")}));
    m_list->setListIndex(1);
    QCOMPARE(m_list->Value(), QVariant(QStringLiteral("1")));
    m_list->setListIndex(0);
    QVERIFY(isNull(m_list->Value()));
    QCOMPARE(m_list->Exists(null()), QVariant(false));
}

void tst_KorList::numberDoesNotFindATextKey()
{
    load(QStringLiteral("LIST 2;dwa|1;jeden"));
    m_list->setValue(QStringLiteral("1"));
    QCOMPARE(m_list->Text(), QStringLiteral("jeden"));
    m_list->setValue(1);
    QCOMPARE(m_list->Text(), QStringLiteral("dwa"));
    load(QStringLiteral("SELECT 2, 'dwa' UNION ALL SELECT 1, 'jeden'"));
    m_list->setValue(1);
    QCOMPARE(m_list->Text(), QStringLiteral("jeden"));
}

void tst_KorList::keptValueIsSilentAndAVanishedOneClicks()
{
    load(abc);
    m_list->setValue(QStringLiteral("b"));
    EventLog log(m_list);
    load(QStringLiteral("LIST c;Celina|b;Beta"));
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    QCOMPARE(m_list->ListIndex(), 1);
    QVERIFY(!m_list->DataChanged());
    load(QStringLiteral("LIST c;Celina|d;Daria"));
    QCOMPARE(log.take(), QStringLiteral("Click Refreshed"));
    QCOMPARE(m_list->ListIndex(), 0);
    QVERIFY(m_list->DataChanged());
    m_list->setBlockClick(true);
    load(abc);
    load(QStringLiteral("LIST x;X"));
    QCOMPARE(log.take(), QStringLiteral("Refreshed Refreshed"));
    QVERIFY(m_list->DataChanged());
}

void tst_KorList::f5RefreshesWithoutKeyDown_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::newRow("alone") << 0;
    QTest::newRow("Shift") << int(Qt::ShiftModifier);
    QTest::newRow("Ctrl") << int(Qt::ControlModifier);
}

void tst_KorList::f5RefreshesWithoutKeyDown()
{
    QFETCH(int, modifiers);
    QVERIFY(enter(abc));
    m_list->setSQL(QStringLiteral("LIST d;Daria|a;Alfa"));
    EventLog log(m_list);
    press(Qt::Key_F5, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    QCOMPARE(m_list->ListIndex(), 1);
    QCOMPARE(names(), (QStringList{QStringLiteral("Daria"), QStringLiteral("Alfa")}));
}

void tst_KorList::emptyResultLeavesTheListCleared()
{
    load(abc);
    EventLog log(m_list);
    load(QStringLiteral("SELECT 1, 'x' WHERE 0"), true);
    QCOMPARE(names(), QStringList{QStringLiteral("...")});
    QCOMPARE(m_list->ListIndex(), -1);
    QCOMPARE(log.take(), QString());
}

void tst_KorList::listIndexOutOfRangeIsRefused_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("behind the last") << 3;
    QTest::newRow("below none") << -2;
}

void tst_KorList::listIndexOutOfRangeIsRefused()
{
    QFETCH(int, index);
    load(abc);
    m_list->setListIndex(1);
    EventLog log(m_list);
    try {
        m_list->setListIndex(index);
        QFAIL("no error was raised");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 380);
    }
    QCOMPARE(m_list->ListIndex(), 1);
    QCOMPARE(log.take(), QString());
    m_list->setListIndex(-1);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QVERIFY(isNull(m_list->Value()));
    QCOMPARE(m_list->Text(), QString());
}

void tst_KorList::everyMemberIsReachedByName()
{
    QObject *control = m_list;
    QVERIFY(QMetaObject::invokeMethod(control, "AddEntry", Q_ARG(QVariant, 5), Q_ARG(QString, QStringLiteral("pięć"))));
    QVERIFY(control->setProperty("Value", 5));
    QCOMPARE(control->property("Text"), QVariant(QStringLiteral("pięć")));
    QVariant exists;
    QVERIFY(QMetaObject::invokeMethod(control, "Exists", Q_RETURN_ARG(QVariant, exists), Q_ARG(QVariant, 5)));
    QCOMPARE(exists, QVariant(true));
    QVERIFY(QMetaObject::invokeMethod(control, "setdatabase", Q_ARG(QString, QStringLiteral("lists"))));
    QVERIFY(QMetaObject::invokeMethod(control, "Refresh"));
    QVERIFY(QMetaObject::invokeMethod(control, "Clear"));
    QCOMPARE(control->property("HasValues"), QVariant(false));
    QCOMPARE(control->property("ListCount"), QVariant(0));
    QVERIFY(m_stage->open());
    QVERIFY(control->property("hWnd").value<int>() != 0);
    for (const char *name :
         {"ListIndex", "SQL", "NullString", "Slownik", "DataChanged", "CanBeNull", "BackColor", "ForeColor", "Font",
          "Appearance", "BorderStyle", "ToolTipText", "Enabled", "BlockUpDown", "BlockClick"}) {
        const QVariant value = control->property(name);
        QVERIFY2(value.isValid() && control->setProperty(name, value), name);
    }
    QCOMPARE(QByteArray(control->metaObject()->userProperty().name()), QByteArray("Value"));
    QStringList events;
    for (int i = control->metaObject()->methodOffset(); i < control->metaObject()->methodCount(); ++i) {
        if (control->metaObject()->method(i).methodType() == QMetaMethod::Signal)
            events << QString::fromLatin1(control->metaObject()->method(i).methodSignature());
    }
    QCOMPARE(events.join(QLatin1Char(' ')),
             QStringLiteral("Click() DblClick() KeyDown(int&,int&) MouseDown(int&,int&,float&,float&) "
                            "MouseUp(int&,int&,float&,float&) Refreshed()"));
}

// --- keys and wheel

void tst_KorList::nothingIsSelectedByFillingOrByTheFocus()
{
    EventLog log(m_list);
    m_list->AddEntry(1, QStringLiteral("jeden"));
    m_list->AddEntry(2, QStringLiteral("dwa"));
    QVERIFY(m_stage->open());
    m_list->setFocus();
    settle();
    m_stage->button()->setFocus();
    settle();
    m_list->setFocus();
    settle();
    QCOMPARE(m_list->ListIndex(), -1);
    QVERIFY(m_box->selectionModel()->selectedIndexes().isEmpty());
    QCOMPARE(log.take(), QString());
}

void tst_KorList::keysMove_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("events");
    QTest::addColumn<int>("index");
    constexpr int shift = Qt::ShiftModifier;
    constexpr int ctrl = Qt::ControlModifier;
    constexpr int alt = Qt::AltModifier;
    // clang-format off
    QTest::newRow("Down")                     << 0 << int(Qt::Key_Down)  << 0     << "KeyDown(40,0) Click" << 1;
    QTest::newRow("Up")                       << 1 << int(Qt::Key_Up)    << 0     << "KeyDown(38,0) Click" << 0;
    QTest::newRow("Down at the last")         << 2 << int(Qt::Key_Down)  << 0     << "KeyDown(40,0)"       << 2;
    QTest::newRow("Up at the first")          << 0 << int(Qt::Key_Up)    << 0     << "KeyDown(38,0)"       << 0;
    QTest::newRow("Right is Down")            << 0 << int(Qt::Key_Right) << 0     << "KeyDown(39,0) Click" << 1;
    QTest::newRow("Left is Up")               << 1 << int(Qt::Key_Left)  << 0     << "KeyDown(37,0) Click" << 0;
    QTest::newRow("Ctrl+Down moves too")      << 0 << int(Qt::Key_Down)  << ctrl  << "KeyDown(40,2) Click" << 1;
    QTest::newRow("Shift+Down moves too")     << 0 << int(Qt::Key_Down)  << shift << "KeyDown(40,1) Click" << 1;
    QTest::newRow("Alt+Up moves too")         << 1 << int(Qt::Key_Up)    << alt   << "KeyDown(38,4) Click" << 0;
    QTest::newRow("End")                      << 0 << int(Qt::Key_End)   << 0     << "KeyDown(35,0) Click" << 2;
    QTest::newRow("End at the last")          << 2 << int(Qt::Key_End)   << 0     << "KeyDown(35,0)"       << 2;
    QTest::newRow("Home")                     << 2 << int(Qt::Key_Home)  << 0     << "KeyDown(36,0) Click" << 0;
    QTest::newRow("Ctrl+Home")                << 2 << int(Qt::Key_Home)  << ctrl  << "KeyDown(36,2) Click" << 0;
    QTest::newRow("Space keeps the selection") << 1 << int(Qt::Key_Space) << 0    << "KeyDown(32,0)"       << 1;
    QTest::newRow("Ctrl+Space keeps it")      << 1 << int(Qt::Key_Space) << ctrl  << "KeyDown(32,2)"       << 1;
    QTest::newRow("Insert is KeyDown only")   << 1 << int(Qt::Key_Insert) << 0    << "KeyDown(45,0)"       << 1;
    // clang-format on
}

void tst_KorList::keysMove()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(enter(abc));
    m_list->setListIndex(from);
    m_list->setDataChanged(false);
    EventLog log(m_list);
    press(key, Qt::KeyboardModifiers(modifiers));
    const QString events = log.take();
    QTEST(events, "events");
    QTEST(m_list->ListIndex(), "index");
    QCOMPARE(m_list->DataChanged(), events.contains(QStringLiteral("Click")));
}

void tst_KorList::keysMoveInAListWithoutASelection()
{
    QVERIFY(enter(abc));
    const auto from = [this](int key) {
        m_list->setListIndex(-1);
        press(key);
        return m_list->ListIndex();
    };
    QCOMPARE(from(Qt::Key_Down), 0);
    QCOMPARE(from(Qt::Key_Up), 0);
    QCOMPARE(from(Qt::Key_End), 2);
    QCOMPARE(from(Qt::Key_Home), 0);
    m_list->Clear();
    EventLog log(m_list);
    press(Qt::Key_Down);
    press(Qt::Key_End);
    QTest::keyClick(m_box, 'x');
    QCOMPARE(m_list->ListIndex(), -1);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(40,0) KeyDown(35,0) KeyDown(88,0)"));
}

void tst_KorList::pageKeysMoveByWhatIsSeen()
{
    QVERIFY(enter(QString()));
    for (int i = 0; i < 100; ++i)
        m_list->AddEntry(i, QString::number(i));
    settle();
    const int seen = m_box->viewport()->height() / m_box->visualRect(m_box->model()->index(0, 0)).height();
    QVERIFY(seen > 2);
    m_list->setListIndex(0);
    press(Qt::Key_PageDown);
    QCOMPARE(m_list->ListIndex(), seen - 1);
    press(Qt::Key_PageDown);
    QCOMPARE(m_list->ListIndex(), 2 * (seen - 1));
    QVERIFY(m_box->viewport()->rect().contains(middleOf(m_list->ListIndex())));
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    QCOMPARE(m_list->ListIndex(), 0);
    m_list->setListIndex(98);
    press(Qt::Key_PageDown);
    QCOMPARE(m_list->ListIndex(), 99);
}

void tst_KorList::typingFindsByTheBeginning_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    // clang-format off
    QTest::newRow("first letter")            << "b"     << "Bytom";
    QTest::newRow("another case")            << "B"     << "Bytom";
    QTest::newRow("several letters")         << "kra"   << "Kraków";
    QTest::newRow("without accents")         << "lodz"  << "Łódź";
    QTest::newRow("with accents")            << "łód"   << "Łódź";
    QTest::newRow("part in the middle is none") << "owice" << "Alwernia";
    QTest::newRow("nothing begins so")       << "x"     << "Alwernia";
    // clang-format on
}

void tst_KorList::typingFindsByTheBeginning()
{
    QFETCH(QString, typed);
    QVERIFY(enter(QStringLiteral("LIST 1;Alwernia|2;Bytom|3;Katowice|4;Kraków|5;Łódź")));
    for (const QChar character : typed) {
        QKeyEvent event(QEvent::KeyPress, character.toUpper().unicode(), Qt::NoModifier, QString(character));
        QApplication::sendEvent(m_box, &event);
        QVERIFY(event.isAccepted());
    }
    QTEST(m_list->Text(), "found");
}

void tst_KorList::typingGoesOnThroughBlanks()
{
    QVERIFY(enter(QStringLiteral("LIST 1;Nowak Adam|2;Nowak Zofia|3;Nowak-Lis Ewa")));
    QTest::keyClicks(m_box, QStringLiteral("nowak z"));
    QCOMPARE(m_list->ListIndex(), 1);
}

void tst_KorList::hostSwallowsAndChangesKeys()
{
    QVERIFY(enter(abc));
    int becomes = 0;
    connect(m_list, &KorList::KeyDown, this, [&](int &code, int &) { code = becomes; });
    press(Qt::Key_Down);
    QTest::keyClick(m_box, 'c');
    QCOMPARE(m_list->ListIndex(), 0);
    QKeyEvent swallowed(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(m_box, &swallowed);
    QVERIFY(swallowed.isAccepted()); // not offered to the form
    becomes = 35;
    press(Qt::Key_F9);
    QCOMPARE(m_list->ListIndex(), 2);
    becomes = 'B';
    press(Qt::Key_Down);
    QCOMPARE(m_list->ListIndex(), 1);
}

void tst_KorList::keysOfTheFormAreLeftToIt()
{
    QVERIFY(enter(abc));
    EventLog log(m_list);
    const auto isTaken = [this](int key, Qt::KeyboardModifiers modifiers, const QString &typed) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, typed);
        QApplication::sendEvent(m_box, &event);
        return event.isAccepted();
    };
    QVERIFY(!isTaken(Qt::Key_Return, {}, QStringLiteral("\r")));
    QVERIFY(!isTaken(Qt::Key_Escape, {}, QStringLiteral("\x1b")));
    QVERIFY(!isTaken(Qt::Key_C, Qt::AltModifier, QStringLiteral("c")));
    QVERIFY(!isTaken(Qt::Key_C, Qt::ControlModifier, QStringLiteral("\x03")));
    QVERIFY(!isTaken(Qt::Key_F1, {}, QString()));
    QCOMPARE(log.take(), QStringLiteral("KeyDown(13,0) KeyDown(27,0) KeyDown(67,4) KeyDown(67,2) KeyDown(112,0)"));
    press(Qt::Key_Tab);
    settle();
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
}

// --- mouse

// --- handlers

void tst_KorList::handlersMayRefreshAndClear()
{
    QVERIFY(enter(abc));
    const auto clearing = connect(m_list, &KorList::Click, m_list, &KorList::Clear);
    press(Qt::Key_Down);
    QVERIFY(!m_list->HasValues());
    disconnect(clearing);
    load(abc);
    const auto refreshing = connect(m_list, &KorList::MouseDown, m_list, [this] { load(QStringLiteral("LIST z;Z")); });
    QTest::mouseClick(m_box->viewport(), Qt::LeftButton, {}, middleOf(2));
    QCOMPARE(m_list->ListCount(), 1);
    disconnect(refreshing);
    load(abc);
    connect(m_list, &KorList::KeyDown, m_list, [this] { load(QStringLiteral("LIST y;Y|x;X")); });
    press(Qt::Key_End);
    QCOMPARE(m_list->Text(), QStringLiteral("X"));
}

void tst_KorList::entriesAddedWhileTheListIsSeenAreLaidOut()
{
    QVERIFY(enter(abc));
    for (int round = 0; round < 3; ++round) {
        const int before = m_list->ListCount();
        for (int i = 0; i < 20; ++i)
            m_list->AddEntry(i, QStringLiteral("Odbiorca %1").arg(i));
        const QRect last = m_box->visualRect(m_box->model()->index(before + 19, 0));
        QCOMPARE(last.top(), (before + 19) * last.height() - m_box->verticalScrollBar()->value());
        settle();
        press(Qt::Key_End);
        QCOMPARE(m_list->ListIndex(), before + 19);
        settle();
        QVERIFY(m_box->viewport()->rect().contains(middleOf(before + 19)));
        press(Qt::Key_Home);
    }
}

void tst_KorList::manyEntriesAreReachedAtOnce()
{
    QVERIFY(enter(QStringLiteral("WITH RECURSIVE")));
    load(QStringLiteral("SELECT x, 'Odbiorca ' || x FROM (WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 "
                        "FROM i WHERE x < 100000) SELECT x FROM i)"));
    QCOMPARE(m_list->ListCount(), 100'000);
    press(Qt::Key_End);
    settle();
    QCOMPARE(m_list->ListIndex(), 99'999);
    QVERIFY(m_box->viewport()->rect().contains(middleOf(99'999)));
    m_list->setValue(50'000);
    QCOMPARE(m_list->ListIndex(), 49'999);
    QTest::keyClicks(m_box, QStringLiteral("odbiorca 77777"));
    QCOMPARE(m_list->Value(), QVariant(77'777));
}

void tst_KorList::delegateOfTheHostIsUsed()
{
    load(abc);
    const QModelIndex entry = m_box->model()->index(1, 0);
    const QAbstractItemDelegate *const own = m_box->itemDelegateForIndex(entry);
    QVERIFY(own);
    QStyledItemDelegate hosts;
    m_box->setItemDelegate(&hosts);
    QCOMPARE(m_box->itemDelegateForIndex(entry), &hosts);
    QVERIFY(own != &hosts);
}

QTEST_MAIN(tst_KorList)
#include "tst_korlist.moc"
