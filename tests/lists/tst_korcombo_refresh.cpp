// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/fieldsuite.h"
#include "support/sqlitefile.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/Locale>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>

using namespace kor;
using namespace kor::test;

namespace {

const QString yesNo = QStringLiteral("LIST 1;Tak|0;Nie");

} // namespace

//! Filling from inline lists and from statements, on a real database file.
class tst_KorComboRefresh : public FieldSuite<KorCombo, QComboBox>
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { tearDown(); }

    void lowerCaseSourceIsAccepted();
    void trailingBarIsOptional();
    void malformedEntryEndsTheList();
    void nullEntryStandsFirst();
    void numericZeroSelectsTheTextKeyZero();
    void firstFillSelectsAndClicks_data();
    void firstFillSelectsAndClicks();
    void otherSourcesLoadNothing();
    void selectFillsKeysAndNames();
    void nullKeysAreNull();
    void duplicateNamesStaySeparate();
    void furtherColumnsAreIgnored();
    void noRowsLeaveOnlyTheNullEntryAndRaiseNothing();
    void failingStatementEndsQuietly_data();
    void failingStatementEndsQuietly();
    void nullNameEndsQuietlyWithoutItsRow();
    void refreshKeepsTheSelectionSilently();
    void vanishedKeyFallsBackWithOneClick();
    void vanishedKeyUnderBlockClickRaisesNoClick();
    void nullSelectionIsKeptSilently();
    void refreshWithoutADatabaseLeavesTheList();
    void databaseIsLeftAloneAtDesignTime();
    void settingTheSourceReloadsNothing();
    void nullStringAndCanBeNullTakeEffectAtTheNextRefresh();
    void closingTheConnectionUnderALiveControl();
    void databaseMayEndBeforeTheControl();
    void databaseIsTakenByLateBinding();
    void handlersMayRefreshAndClear();

private:
    void run(const char *statement);
    void load(const QString &source, bool canBeNull = false);
    [[nodiscard]] QStringList names() const;

    SqliteFile m_file;
    std::unique_ptr<SqlDatabase> m_database;
    QPointer<KorCombo> &m_combo = m_control;
};

void tst_KorComboRefresh::initTestCase()
{
    run("CREATE TABLE kraje (id, nazwa, stolica)");
    run("INSERT INTO kraje VALUES (1, 'Polska', 'Warszawa'), (2, 'Łotwa', 'Ryga'), (3, 'Żuławy', NULL)");
    run("CREATE TABLE rozne (id, nazwa)");
    run("INSERT INTO rozne VALUES (7, 'liczba'), ('a7', 'tekst'), (2.5, 'ułamek'), (NULL, 'nic'), (5000000000, "
        "'duża')");
    run("CREATE TABLE puste (id, nazwa)");
}

void tst_KorComboRefresh::init()
{
    setUp("cmbCombo");
    m_database = std::make_unique<SqlDatabase>(m_file.connection());
    m_combo->setdatabase(m_database.get());
}

void tst_KorComboRefresh::run(const char *statement)
{
    QSqlQuery query(m_file.connection());
    QVERIFY2(query.exec(QString::fromUtf8(statement)), qPrintable(query.lastError().text()));
}

void tst_KorComboRefresh::load(const QString &source, bool canBeNull)
{
    m_combo->setSQL(source);
    m_combo->setCanBeNull(canBeNull);
    m_combo->Refresh();
}

QStringList tst_KorComboRefresh::names() const
{
    QStringList shown;
    for (int i = 0; i < m_box->count(); ++i)
        shown << m_box->itemText(i);
    return shown;
}

// --- inline lists

void tst_KorComboRefresh::lowerCaseSourceIsAccepted()
{
    load(QStringLiteral("list a;Alfa|b;Beta"));
    QCOMPARE(names(), (QStringList{QStringLiteral("Alfa"), QStringLiteral("Beta")}));
    m_combo->setText(QStringLiteral("Beta"));
    QCOMPARE(m_combo->Value(), QVariant(QStringLiteral("b")));
}

void tst_KorComboRefresh::trailingBarIsOptional()
{
    load(QStringLiteral("LIST 1;X"));
    const QStringList without = names();
    load(QStringLiteral("LIST 1;X|"));
    QCOMPARE(names(), without);
    QCOMPARE(without, QStringList{QStringLiteral("X")});
}

void tst_KorComboRefresh::malformedEntryEndsTheList()
{
    EventLog log(m_combo);
    load(QStringLiteral("LIST A;Alfa|B|C;Gamma"));
    QCOMPARE(names(), QStringList{QStringLiteral("Alfa")});
    QCOMPARE(log.take(), QStringLiteral("Click Refreshed"));
}

void tst_KorComboRefresh::nullEntryStandsFirst()
{
    load(yesNo, true);
    QCOMPARE(names(), (QStringList{QStringLiteral("..."), QStringLiteral("Tak"), QStringLiteral("Nie")}));
    m_combo->setListIndex(2);
    m_combo->setValue(null());
    QCOMPARE(m_combo->ListIndex(), 0);
    QVERIFY(isNull(m_combo->Value()));
    QCOMPARE(m_combo->Text(), QStringLiteral("..."));
}

void tst_KorComboRefresh::numericZeroSelectsTheTextKeyZero()
{
    load(yesNo, true);
    m_combo->setValue(0);
    QCOMPARE(m_combo->Text(), QStringLiteral("Nie"));
    QCOMPARE(m_combo->Value(), QVariant(QStringLiteral("0")));
}

void tst_KorComboRefresh::firstFillSelectsAndClicks_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("canBeNull");
    QTest::addColumn<QString>("events");
    QTest::addColumn<int>("index");
    // clang-format off
    QTest::newRow("first entry with a click")            << QStringLiteral("LIST 1;Tak|2;Nie")  << false << QStringLiteral("Click Refreshed") << 0;
    QTest::newRow("text 0 is not Empty")                 << QStringLiteral("LIST 1;Tak|0;Nie")  << false << QStringLiteral("Click Refreshed") << 0;
    QTest::newRow("empty text is Empty, silently")       << QStringLiteral("LIST 1;Tak|;Nic")   << false << QStringLiteral("Refreshed")       << 1;
    QTest::newRow("null entry, silently")                << QStringLiteral("LIST 1;Tak|2;Nie")  << true  << QStringLiteral("Refreshed")       << 0;
    QTest::newRow("nothing to select")                   << QStringLiteral("LIST")              << false << QStringLiteral("Refreshed")       << -1;
    QTest::newRow("number 0 is Empty, silently") << QStringLiteral("SELECT 5, 'pięć' UNION ALL SELECT 0, 'zero'") << false << QStringLiteral("Refreshed") << 1;
    // clang-format on
}

void tst_KorComboRefresh::firstFillSelectsAndClicks()
{
    QFETCH(QString, source);
    QFETCH(bool, canBeNull);
    QFETCH(QString, events);
    EventLog log(m_combo);
    load(source, canBeNull);
    QCOMPARE(log.take(), events);
    QTEST(m_combo->ListIndex(), "index");
    QCOMPARE(m_combo->DataChanged(), events.contains(QStringLiteral("Click")));
}

void tst_KorComboRefresh::otherSourcesLoadNothing()
{
    for (const QString &source : {QStringLiteral("kraje"), QString(), QStringLiteral(" SELECT id, nazwa FROM kraje"),
                                  QStringLiteral(" LIST 1;x")}) {
        load(yesNo);
        EventLog log(m_combo);
        for (int refresh = 0; source.startsWith(u' ') && refresh < 2; ++refresh)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("begins with a blank")));
        load(source, true);
        QCOMPARE(names(), QStringList{QStringLiteral("...")});
        QCOMPARE(m_combo->ListIndex(), 0);
        QCOMPARE(log.take(), QStringLiteral("Refreshed"));
        load(source, false);
        QVERIFY(!m_combo->HasValues());
        QCOMPARE(m_combo->ListIndex(), -1);
    }
}

// --- statements

void tst_KorComboRefresh::selectFillsKeysAndNames()
{
    load(QStringLiteral("select id, nazwa from kraje order by id"));
    QCOMPARE(names(), (QStringList{QStringLiteral("Polska"), QStringLiteral("Łotwa"), QStringLiteral("Żuławy")}));
    m_combo->setText(QStringLiteral("Łotwa"));
    QCOMPARE(m_combo->Value(), QVariant(2));
    load(QStringLiteral("SELECT id, nazwa FROM rozne"));
    const QVariantList keys{7, QStringLiteral("a7"), 2.5, null(), 5e9};
    for (int i = 0; i < keys.size(); ++i) {
        m_combo->setListIndex(i);
        QCOMPARE(m_combo->Value(), keys[i]);
        QCOMPARE(m_combo->Value().metaType(), keys[i].metaType());
    }
}

void tst_KorComboRefresh::nullKeysAreNull()
{
    load(QStringLiteral("SELECT id, nazwa FROM rozne WHERE id IS NULL OR id = 7"));
    m_combo->setText(QStringLiteral("nic"));
    QVERIFY(isNull(m_combo->Value()));
    QCOMPARE(m_combo->ListIndex(), 1);
    m_combo->setValue(null());
    QCOMPARE(m_combo->ListIndex(), 0);
}

void tst_KorComboRefresh::duplicateNamesStaySeparate()
{
    load(QStringLiteral("SELECT 1, 'Kowalski' UNION ALL SELECT 2, 'Kowalski'"));
    m_combo->setValue(2);
    QCOMPARE(m_combo->ListIndex(), 1);
    QCOMPARE(m_combo->Text(), QStringLiteral("Kowalski"));
    m_combo->setText(QStringLiteral("Kowalski"));
    QCOMPARE(m_combo->ListIndex(), 0);
}

void tst_KorComboRefresh::furtherColumnsAreIgnored()
{
    load(QStringLiteral("SELECT id, nazwa, stolica FROM kraje"));
    QCOMPARE(m_combo->ListCount(), 3);
}

void tst_KorComboRefresh::noRowsLeaveOnlyTheNullEntryAndRaiseNothing()
{
    load(yesNo);
    EventLog log(m_combo);
    m_combo->setDataChanged(true);
    load(QStringLiteral("SELECT id, nazwa FROM puste"), true);
    QCOMPARE(names(), QStringList{QStringLiteral("...")});
    QCOMPARE(m_combo->ListIndex(), -1);
    QVERIFY(m_combo->DataChanged());
    load(QStringLiteral("SELECT id, nazwa FROM puste"), false);
    QVERIFY(!m_combo->HasValues());
    QCOMPARE(log.take(), QString());
}

void tst_KorComboRefresh::failingStatementEndsQuietly_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("warning");
    // clang-format off
    QTest::newRow("unknown table")    << QStringLiteral("SELECT id, nazwa FROM nie_ma")   << QStringList{QStringLiteral("...")} << QStringLiteral("no such table: nie_ma");
    QTest::newRow("no statement")     << QStringLiteral("SELECTION")                      << QStringList{QStringLiteral("...")} << QStringLiteral("no such table: SELECTION");
    QTest::newRow("only one column")  << QStringLiteral("SELECT id FROM kraje")           << QStringList{QStringLiteral("...")} << QStringLiteral("3265: ");
    QTest::newRow("fails in mid-read") << QStringLiteral("SELECT id, CASE id WHEN 3 THEN json('{') ELSE nazwa END FROM kraje ORDER BY rowid")
                                       << QStringList{QStringLiteral("..."), QStringLiteral("Polska"), QStringLiteral("Łotwa")} << QStringLiteral("malformed JSON");
    // clang-format on
}

void tst_KorComboRefresh::failingStatementEndsQuietly()
{
    QFETCH(QString, source);
    QFETCH(QString, warning);
    load(yesNo);
    EventLog log(m_combo);
    Messages messages;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    load(source, true);
    settle();
    QTEST(names(), "entries");
    QCOMPARE(m_combo->ListIndex(), -1);
    QCOMPARE(log.take(), QString());
    QCOMPARE(messages.take(), QStringList());
    load(yesNo);
    QCOMPARE(m_combo->ListCount(), 2);
}

void tst_KorComboRefresh::nullNameEndsQuietlyWithoutItsRow()
{
    EventLog log(m_combo);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("94: Invalid use of Null")));
    load(QStringLiteral("SELECT id, CASE id WHEN 2 THEN NULL ELSE nazwa END FROM kraje ORDER BY id"));
    QCOMPARE(names(), QStringList{QStringLiteral("Polska")});
    QCOMPARE(m_combo->Exists(2), QVariant(false));
    QCOMPARE(log.take(), QString());
    m_combo->AddEntry(9, QStringLiteral("dziewięć"));
    m_combo->setValue(9);
    QCOMPARE(m_combo->Text(), QStringLiteral("dziewięć"));
}

// --- restoring the selection

void tst_KorComboRefresh::refreshKeepsTheSelectionSilently()
{
    load(yesNo);
    m_combo->setValue(0);
    EventLog log(m_combo);
    load(QStringLiteral("LIST 0;Nie|1;Tak"));
    QCOMPARE(m_combo->Text(), QStringLiteral("Nie"));
    QCOMPARE(m_combo->ListIndex(), 0);
    QVERIFY(!m_combo->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    load(QStringLiteral("SELECT 1, 'Tak' UNION ALL SELECT 0, 'Nie'"));
    QCOMPARE(m_combo->Value(), QVariant(0));
    QVERIFY(!m_combo->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
}

void tst_KorComboRefresh::vanishedKeyFallsBackWithOneClick()
{
    load(yesNo);
    m_combo->setValue(0);
    m_combo->setDataChanged(false);
    EventLog log(m_combo);
    load(QStringLiteral("LIST 1;Tak|2;Może"));
    QCOMPARE(m_combo->ListIndex(), 0);
    QVERIFY(m_combo->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Click Refreshed"));
}

void tst_KorComboRefresh::vanishedKeyUnderBlockClickRaisesNoClick()
{
    load(yesNo);
    m_combo->setValue(0);
    m_combo->setBlockClick(true);
    EventLog log(m_combo);
    load(QStringLiteral("LIST 1;Tak|2;Może"));
    QVERIFY(m_combo->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
}

void tst_KorComboRefresh::nullSelectionIsKeptSilently()
{
    load(yesNo, true);
    m_combo->setListIndex(0);
    EventLog log(m_combo);
    m_combo->Refresh();
    QCOMPARE(m_combo->ListIndex(), 0);
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    load(yesNo, false); // the null entry is gone, and Null differs from nothing
    QCOMPARE(m_combo->ListIndex(), 0);
    QVERIFY(!m_combo->DataChanged());
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
}

void tst_KorComboRefresh::refreshWithoutADatabaseLeavesTheList()
{
    load(yesNo);
    m_combo->setValue(0);
    m_combo->setdatabase(nullptr);
    EventLog log(m_combo);
    for (const QString &source : {QStringLiteral("SELECT id, nazwa FROM kraje"), QStringLiteral("kraje"), QString()}) {
        load(source, true);
        QCOMPARE(names(), (QStringList{QStringLiteral("Tak"), QStringLiteral("Nie")}));
        QCOMPARE(m_combo->ListIndex(), 1);
        QCOMPARE(log.take(), QStringLiteral("Refreshed"));
    }
    load(QStringLiteral("LIST 5;pięć"));
    QCOMPARE(names(), QStringList{QStringLiteral("pięć")});
}

void tst_KorComboRefresh::databaseIsLeftAloneAtDesignTime()
{
    UserControl::setUserMode(m_stage.get(), false);
    EventLog log(m_combo);
    load(QStringLiteral("SELECT id, nazwa FROM kraje"));
    QCOMPARE(names(), QStringList());
    QVERIFY(log.lines().contains(QStringLiteral("Refreshed")));
    load(yesNo); // needs no database
    QCOMPARE(names(), (QStringList{QStringLiteral("Tak"), QStringLiteral("Nie")}));
}

void tst_KorComboRefresh::settingTheSourceReloadsNothing()
{
    load(yesNo);
    EventLog log(m_combo);
    m_combo->setSQL(QStringLiteral("SELECT id, nazwa FROM kraje"));
    m_combo->setSlownik(QStringLiteral("Kraje"));
    m_combo->setdatabase(m_database.get());
    QCOMPARE(m_combo->ListCount(), 2);
    QCOMPARE(log.take(), QString());
}

void tst_KorComboRefresh::nullStringAndCanBeNullTakeEffectAtTheNextRefresh()
{
    load(yesNo, true);
    m_combo->setNullString(QStringLiteral("(brak)"));
    QCOMPARE(names().front(), QStringLiteral("..."));
    m_combo->Refresh();
    QCOMPARE(names().front(), QStringLiteral("(brak)"));
    m_combo->setCanBeNull(false);
    QCOMPARE(m_combo->ListCount(), 3);
    m_combo->Refresh();
    QCOMPARE(m_combo->ListCount(), 2);
}

// --- the database, and handlers

void tst_KorComboRefresh::closingTheConnectionUnderALiveControl()
{
    load(QStringLiteral("SELECT id, nazwa FROM kraje"));
    QSqlDatabase connection = m_file.connection();
    connection.close();
    EventLog log(m_combo);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("connection is not open")));
    m_combo->Refresh();
    QVERIFY(!m_combo->HasValues());
    QCOMPARE(log.take(), QString());
    QVERIFY(connection.open());
    m_combo->Refresh();
    QCOMPARE(m_combo->ListCount(), 3);
}

void tst_KorComboRefresh::databaseMayEndBeforeTheControl()
{
    load(QStringLiteral("SELECT id, nazwa FROM kraje"));
    m_database.reset();
    EventLog log(m_combo);
    m_combo->Refresh();
    QCOMPARE(m_combo->ListCount(), 3);
    QCOMPARE(log.take(), QStringLiteral("Refreshed"));
}

void tst_KorComboRefresh::databaseIsTakenByLateBinding()
{
    QObject *control = m_combo;
    control->setProperty("SQL", QStringLiteral("SELECT id, nazwa FROM kraje"));
    const auto reloaded = [&] {
        m_combo->Clear();
        return QMetaObject::invokeMethod(control, "Refresh") ? m_combo->ListCount() : -1;
    };
    m_combo->setdatabase(nullptr);
    QCOMPARE(reloaded(), 0);
    QVERIFY(QMetaObject::invokeMethod(control, "setdatabase", Q_ARG(kor::Database *, m_database.get())));
    QCOMPARE(reloaded(), 3);
    m_combo->setdatabase(nullptr);
    QVERIFY(QMetaObject::invokeMethod(control, "setdatabase", Q_ARG(QObject *, m_database.get())));
    QCOMPARE(reloaded(), 3);
    QVERIFY(QMetaObject::invokeMethod(control, "setdatabase", Q_ARG(QObject *, this))); // no database: ignored
    QCOMPARE(reloaded(), 3);
    m_combo->setdatabase(nullptr);
    QVERIFY(QMetaObject::invokeMethod(control, "setdatabase", Q_ARG(QString, m_file.connection().connectionName())));
    QCOMPARE(reloaded(), 3);
    QVERIFY(QMetaObject::invokeMethod(control, "setdatabase", Q_ARG(QString, QStringLiteral("nie ma"))));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("connection is not open")));
    QCOMPARE(reloaded(), 0);
}

void tst_KorComboRefresh::handlersMayRefreshAndClear()
{
    load(yesNo);
    const auto refreshing = connect(m_combo, &KorCombo::Click, m_combo, [this] {
        m_combo->setSQL(QStringLiteral("LIST 0;Nie"));
        m_combo->Refresh();
    });
    m_combo->setValue(0);
    QCOMPARE(m_combo->ListCount(), 1);
    QCOMPARE(m_combo->Text(), QStringLiteral("Nie"));
    disconnect(refreshing);
    load(yesNo);
    m_combo->setListIndex(1);
    connect(m_combo, &KorCombo::Click, m_combo, &KorCombo::Clear);
    m_combo->setText(QStringLiteral("Tak"));
    QVERIFY(!m_combo->HasValues());
    QCOMPARE(m_combo->ListIndex(), -1);
}

QTEST_MAIN(tst_KorComboRefresh)
#include "tst_korcombo_refresh.moc"
