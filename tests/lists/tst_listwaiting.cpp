// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/slowdatabase.h"
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/DictionaryControl>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/Locale>
#include <KorDaoUC/Variant>

#include <QtCore/QPointer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <functional>
#include <utility>

using namespace kor;
using namespace kor::test;

namespace {

const QString statement = QStringLiteral("SELECT id, nazwa FROM slownik");

using Place = SlowDatabase::Place;

} // namespace

//! What happens to the lists while a host's own database keeps them waiting.
class tst_ListWaiting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void laterRefreshWins_data() { everywhere(); }
    void laterRefreshWins();
    void laterRefreshThatFailsWinsToo_data() { everywhere(); }
    void laterRefreshThatFailsWinsToo();
    void refreshByKeyWinsToo_data() { everywhere(); }
    void refreshByKeyWinsToo();
    void clearLeavesTheListEmpty_data() { everywhere(); }
    void clearLeavesTheListEmpty();
    void newSourceIsForTheNextRefresh_data() { everywhere(); }
    void newSourceIsForTheNextRefresh();
    void newDatabaseIsForTheNextRefresh_data() { everywhere(); }
    void newDatabaseIsForTheNextRefresh();
    void deletionEndsTheRefresh_data() { everywhere(); }
    void deletionEndsTheRefresh();
    void selectionMadeMeanwhileStays_data() { everywhere(); }
    void selectionMadeMeanwhileStays();
    void checksSurviveTheOvertakenRefresh_data();
    void checksSurviveTheOvertakenRefresh();

private:
    void everywhere();
    //! Loads the list of three, selects the second entry, and lets something happen in the next Refresh.
    void prepare(std::function<void()> happens);

    std::unique_ptr<SlowDatabase> m_database;
    std::unique_ptr<Stage> m_stage;
    QPointer<DictionaryControl> m_list;
};

void tst_ListWaiting::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
    m_database = std::make_unique<SlowDatabase>();
    m_stage = std::make_unique<Stage>();
}

void tst_ListWaiting::cleanup() { m_stage.reset(); }

void tst_ListWaiting::everywhere()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Place>("place");
    for (const char *name : {"KorCombo", "KorList", "KorListCheck"}) {
        const QString control = QString::fromLatin1(name);
        QTest::addRow("%s, in OpenRecordset", name) << control << Place::OpenRecordset;
        QTest::addRow("%s, in MoveNext", name) << control << Place::MoveNext;
    }
}

void tst_ListWaiting::prepare(std::function<void()> happens)
{
    QFETCH(QString, name);
    QFETCH(Place, place);
    m_list = m_stage->place(qobject_cast<DictionaryControl *>(ControlRegistry::create(name)), 160, 100);
    m_list->setdatabase(m_database.get());
    m_list->setSQL(statement);
    m_list->setCanBeNull(true);
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 4);
    m_list->setListIndex(2);
    m_list->setDataChanged(false);
    m_database->asked.clear();
    m_database->once(place, std::move(happens));
}

void tst_ListWaiting::laterRefreshWins()
{
    prepare([this] {
        m_database->rows = 5;
        m_list->Refresh();
    });
    EventLog log(m_list);
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 6);
    QCOMPARE(m_list->Value(), QVariant(2)); // what was selected before either of them
    QVERIFY(!m_list->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 6);
    QCOMPARE(m_list->Value(), QVariant(2));
}

void tst_ListWaiting::laterRefreshThatFailsWinsToo()
{
    prepare([this] {
        m_database->breaks = true;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("przerwane")));
        m_list->Refresh();
        m_database->breaks = false;
    });
    EventLog log(m_list);
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 3); // two rows and the null entry
    QCOMPARE(m_list->ListIndex(), -1);
    QCOMPARE(log.take(), QString());
}

void tst_ListWaiting::refreshByKeyWinsToo()
{
    prepare([this] {
        m_list->setFocus();
        settle();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
    });
    QVERIFY(m_stage->open());
    EventLog log(m_list);
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 4);
    QCOMPARE(m_list->Value(), QVariant(2));
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    QCOMPARE(m_database->asked.size(), 2);
}

void tst_ListWaiting::clearLeavesTheListEmpty()
{
    prepare([this] { m_list->Clear(); });
    EventLog log(m_list);
    m_list->Refresh();
    QVERIFY(!m_list->HasValues());
    QCOMPARE(m_list->ListCount(), 0);
    QCOMPARE(log.take(), QString());
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 4);
    QCOMPARE(m_list->ListIndex(), 0);
}

void tst_ListWaiting::newSourceIsForTheNextRefresh()
{
    prepare([this] { m_list->setSQL(QStringLiteral("LIST x;X") + QString(100, u'x')); });
    EventLog log(m_list);
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 4);
    QCOMPARE(m_list->Value(), QVariant(2));
    QCOMPARE(m_database->asked, QStringList{statement});
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 2);
}

void tst_ListWaiting::newDatabaseIsForTheNextRefresh()
{
    SlowDatabase other;
    other.rows = 1;
    prepare([&] { m_list->setdatabase(&other); });
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 4);
    QCOMPARE(m_list->Value(), QVariant(2));
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 2);
}

void tst_ListWaiting::deletionEndsTheRefresh()
{
    prepare([this] { delete m_list.data(); });
    m_list->Refresh();
    QVERIFY(!m_list);
    QCOMPARE(m_database->asked, QStringList{statement});
}

void tst_ListWaiting::selectionMadeMeanwhileStays()
{
    prepare([this] { m_list->setListIndex(0); }); // the null entry is there already
    EventLog log(m_list);
    m_list->Refresh();
    QCOMPARE(m_list->ListCount(), 4);
    QCOMPARE(m_list->ListIndex(), 0);
    QVERIFY(isNull(m_list->Value()));
    QVERIFY(m_list->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Click Refreshed"));
}

void tst_ListWaiting::checksSurviveTheOvertakenRefresh_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Place>("place");
    QTest::newRow("in OpenRecordset") << QStringLiteral("KorListCheck") << Place::OpenRecordset;
    QTest::newRow("in MoveNext") << QStringLiteral("KorListCheck") << Place::MoveNext;
}

void tst_ListWaiting::checksSurviveTheOvertakenRefresh()
{
    prepare([this] { m_list->Refresh(); });
    auto *checkList = qobject_cast<KorListCheck *>(m_list.data());
    QVERIFY(checkList);
    checkList->setValueChecked(QStringLiteral("1;3;"));
    checkList->Refresh();
    QCOMPARE(checkList->ValueChecked(), QStringLiteral("1;3;"));
}

QTEST_MAIN(tst_ListWaiting)
#include "tst_listwaiting.moc"
