// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/eventlog.h"
#include "support/sqlitefile.h"
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/Currency>
#include <KorDaoUC/DictionaryControl>
#include <KorDaoUC/Locale>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtCore/QLoggingCategory>
#include <QtTest/QtTest>

#include <array>

using namespace kor;
using namespace kor::test;

namespace {

QString text(const char *value) { return QString::fromUtf8(value); }

const std::array controlNames{text("KorCombo"), text("KorList"), text("KorListCheck")};

} // namespace

//! The drop-down list, the list and the check list side by side: where they differ, and that nothing else does.
class tst_ListEquality : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void keysAreFound_data();
    void keysAreFound();
    void clicksOfTheProgram_data();
    void clicksOfTheProgram();
    void blockedArrows_data();
    void blockedArrows();
    void refresh_data();
    void refresh();
    void warningsAreSwitchedOffByTheirCategory();
    void changedSettingsAreReported_data();
    void changedSettingsAreReported();

private:
    [[nodiscard]] DictionaryControl *place(const QString &name);

    SqliteFile m_file;
    SqlDatabase m_database{m_file.connection()};
    std::unique_ptr<Stage> m_stage;
};

void tst_ListEquality::init()
{
    failOnWarnings();
    Locale::setSystemDefault(Locale::polish());
    m_stage = std::make_unique<Stage>();
}

void tst_ListEquality::cleanup() { m_stage.reset(); }

DictionaryControl *tst_ListEquality::place(const QString &name)
{
    auto *control = qobject_cast<DictionaryControl *>(ControlRegistry::create(name));
    return control ? m_stage->place(control, 160, 100) : nullptr;
}

// --- equality

void tst_ListEquality::keysAreFound_data()
{
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<bool>("byCombo");
    QTest::addColumn<bool>("byLists");
    const auto t = [](const char *value) { return QVariant(text(value)); };
    const QVariant date = QDate(2024, 2, 29);
    const QVariant money = QVariant::fromValue(Currency::fromTenThousandths(25'000));
    // clang-format off
    QTest::newRow("number in a text by a number")      << t("1")              << QVariant(1)                   << true  << false;
    QTest::newRow("number by a text")                  << QVariant(1)         << t("1")                        << true  << false;
    QTest::newRow("decimals in a text by a number")    << t("2,5")            << QVariant(2.5)                 << true  << false;
    QTest::newRow("another locale's decimals")         << t("2.5")            << QVariant(2.5)                 << false << false;
    QTest::newRow("zero in a text by a number")        << t("0")              << QVariant(0)                   << true  << false;
    QTest::newRow("blanks around a number in a text")  << t(" 1 ")            << QVariant(1)                   << true  << false;
    QTest::newRow("text that is no number")            << t("abc")            << QVariant(1)                   << false << false;
    QTest::newRow("empty text by zero")                << t("")               << QVariant(0)                   << false << false;
    QTest::newRow("Boolean by its number in a text")   << QVariant(true)      << t("-1")                       << true  << false;
    QTest::newRow("money by a text")                   << money               << t("2,5")                      << true  << false;
    QTest::newRow("text by the same text")             << t("abc")            << t("abc")                      << true  << true;
    QTest::newRow("text by another case")              << t("abc")            << t("ABC")                      << false << false;
    QTest::newRow("text by the text with a blank")     << t("abc")            << t("abc ")                     << false << false;
    QTest::newRow("digits by other digits of a value") << t("1")              << t("01")                       << false << false;
    QTest::newRow("accents")                           << t("Łódź")           << t("Lodz")                     << false << false;
    QTest::newRow("Long by a Long")                    << QVariant(1)         << QVariant(1)                   << true  << true;
    QTest::newRow("Long by an Integer")                << QVariant(1)         << QVariant::fromValue(short(1)) << true  << true;
    QTest::newRow("Long by a Double")                  << QVariant(1)         << QVariant(1.0)                 << true  << true;
    QTest::newRow("Double by a Single of it")          << QVariant(0.7)       << QVariant(0.7F)                << true  << true;
    QTest::newRow("money by a Double")                 << money               << QVariant(2.5)                 << true  << true;
    QTest::newRow("64 bits of the host")               << QVariant(7)         << QVariant(qlonglong(7))        << true  << true;
    QTest::newRow("True is -1")                        << QVariant(-1)        << QVariant(true)                << true  << true;
    QTest::newRow("True is not 1")                     << QVariant(1)         << QVariant(true)                << false << false;
    QTest::newRow("date by the date")                  << date                << date                          << true  << true;
    QTest::newRow("Empty is zero")                     << QVariant(0)         << QVariant()                    << true  << true;
    QTest::newRow("Empty is the empty text")           << t("")               << QVariant()                    << true  << true;
    QTest::newRow("Empty is no other number")          << QVariant(1)         << QVariant()                    << false << false;
    QTest::newRow("Empty is no other text")            << t("0")              << QVariant()                    << false << false;
    QTest::newRow("Empty key by zero")                 << QVariant()          << QVariant(0)                   << true  << true;
    QTest::newRow("Empty key by the empty text")       << QVariant()          << t("")                         << true  << true;
    QTest::newRow("Null by Null")                      << null()              << null()                        << false << false;
    QTest::newRow("Null by zero")                      << null()              << QVariant(0)                   << false << false;
    QTest::newRow("zero by Null")                      << QVariant(0)         << null()                        << false << false;
    QTest::newRow("missing argument counts as Null")   << null()              << missing()                     << false << false;
    // clang-format on
}

void tst_ListEquality::keysAreFound()
{
    QFETCH(QVariant, key);
    QFETCH(QVariant, wanted);
    QFETCH(bool, byCombo);
    QFETCH(bool, byLists);
    for (const QString &name : controlNames) {
        DictionaryControl *control = place(name);
        control->AddEntry(text("?"), text("pierwszy"));
        control->AddEntry(key, text("drugi"));
        const bool expected = name == controlNames.front() ? byCombo : byLists;
        QCOMPARE(control->Exists(wanted), QVariant(expected));
        control->setValue(wanted);
        QCOMPARE(control->ListIndex(), expected ? 1 : 0);
        for (int i = 0; i < 200; ++i) // as many as are found through an index
            control->AddEntry(text("x") + QString::number(i), text("x"));
        QCOMPARE(control->Exists(text("x199")), QVariant(true));
        QCOMPARE(control->Exists(wanted), QVariant(expected));
    }
}

// --- selection

void tst_ListEquality::clicksOfTheProgram_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("from");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<QString>("events");
    QTest::addColumn<int>("index");
    const QString ab = text("LIST a;Alfa|b;Beta");
    const QByteArray byKey("Value");
    const QByteArray byName("Text");
    // clang-format off
    QTest::newRow("key of the first entry from another one")  << ab << 1 << byKey  << QVariant(text("a"))    << "Click Click" << 0;
    QTest::newRow("key of the first entry from itself")       << ab << 0 << byKey  << QVariant(text("a"))    << "Click"       << 0;
    QTest::newRow("key of the first entry from none")         << ab << -1 << byKey << QVariant(text("a"))    << "Click Click" << 0;
    QTest::newRow("key of another entry")                     << ab << 0 << byKey  << QVariant(text("b"))    << "Click"       << 1;
    QTest::newRow("key of the selected entry")                << ab << 1 << byKey  << QVariant(text("b"))    << ""            << 1;
    QTest::newRow("unknown key from another entry")           << ab << 1 << byKey  << QVariant(text("A"))    << "Click"       << 0;
    QTest::newRow("unknown key from the first entry")         << ab << 0 << byKey  << QVariant(text("x"))    << ""            << 0;
    QTest::newRow("Null")                                     << ab << 1 << byKey  << null()                 << "Click"       << 0;
    QTest::newRow("missing argument")                         << ab << 1 << byKey  << missing()              << "Click"       << 0;
    QTest::newRow("name of the first entry from another one") << ab << 1 << byName << QVariant(text("Alfa")) << "Click Click" << 0;
    QTest::newRow("name of the first entry from itself")      << ab << 0 << byName << QVariant(text("Alfa")) << "Click"       << 0;
    QTest::newRow("name of another entry")                    << ab << 0 << byName << QVariant(text("Beta")) << "Click"       << 1;
    QTest::newRow("name in another case")                     << ab << 1 << byName << QVariant(text("beta")) << "Click"       << 0;
    QTest::newRow("key in an empty list")                     << "" << -1 << byKey << QVariant(text("a"))    << ""            << -1;
    QTest::newRow("name in an empty list")                    << "" << -1 << byName << QVariant(text("a"))   << ""            << -1;
    // clang-format on
}

void tst_ListEquality::clicksOfTheProgram()
{
    QFETCH(QString, source);
    QFETCH(int, from);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, wanted);
    QFETCH(QString, events);
    for (const QString &name : controlNames) {
        DictionaryControl *control = place(name);
        control->setSQL(source);
        control->Refresh();
        for (const bool isBlocked : {false, true}) {
            control->setListIndex(from);
            control->setDataChanged(false);
            control->setBlockClick(isBlocked);
            EventLog log(control);
            QVERIFY(control->setProperty(property, wanted));
            QCOMPARE(log.take(), isBlocked ? QString() : events);
            QCOMPARE(control->DataChanged(), !events.isEmpty());
            QTEST(control->ListIndex(), "index");
        }
    }
}

// --- keys

void tst_ListEquality::blockedArrows_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("ofCombo");
    QTest::addColumn<QString>("ofLists");
    constexpr int down = Qt::Key_Down;
    constexpr int up = Qt::Key_Up;
    constexpr int shift = Qt::ShiftModifier;
    constexpr int ctrl = Qt::ControlModifier;
    constexpr int alt = Qt::AltModifier;
    // clang-format off
    QTest::newRow("Down")                    << down << 0            << "KeyDown(40,0)"         << "Click";
    QTest::newRow("Up")                      << up   << 0            << "KeyDown(38,0)"         << "Click";
    QTest::newRow("Ctrl+Down")               << down << ctrl         << "KeyDown(40,2)"         << "Click";
    QTest::newRow("Ctrl+Up")                 << up   << ctrl         << "KeyDown(38,2)"         << "Click";
    QTest::newRow("Shift+Down")              << down << shift        << "KeyDown(40,1) Click"   << "Click";
    QTest::newRow("Shift+Up")                << up   << shift        << "KeyDown(38,1) Click"   << "Click";
    QTest::newRow("Shift+Ctrl+Down")         << down << shift + ctrl << "KeyDown(40,3) Click"   << "Click";
    QTest::newRow("Alt+Up")                  << up   << alt          << "KeyDown(38,4) Click"   << "Click";
    QTest::newRow("End is no blocked arrow") << int(Qt::Key_End) << 0 << "KeyDown(35,0) Click"  << "KeyDown(35,0) Click";
    // clang-format on
}

void tst_ListEquality::blockedArrows()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, ofCombo);
    QFETCH(QString, ofLists);
    for (const QString &name : controlNames) {
        DictionaryControl *control = place(name);
        control->setSQL(text("LIST a;A|b;B|c;C"));
        control->Refresh();
        control->setListIndex(1);
        control->setBlockUpDown(true);
        QVERIFY(m_stage->open());
        control->setFocus();
        settle();
        EventLog log(control);
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(log.take(), name == controlNames.front() ? ofCombo : ofLists);
        delete control;
    }
}

// --- filling

void tst_ListEquality::refresh_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("canBeNull");
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *behaviour, const char *before, const char *source, bool canBeNull,
                        const char *events, const char *selected, int count, const char *warning = "") {
        QTest::newRow(behaviour) << text(before) << text(source) << canBeNull << text(events) << text(selected) << count
                                 << text(warning);
    };
    // clang-format off
    row("first fill selects with a click",       "",   "LIST a;A|b;B",                     false, "Click Refreshed", "A",   2);
    row("first fill, null entry silently",       "",   "LIST a;A|b;B",                     true,  "Refreshed",       "...", 3);
    row("first fill, key equal to Empty",        "",   "LIST a;A|;B",                      false, "Refreshed",       "B",   2);
    row("kept key",                              "B",  "LIST b;B|a;A",                     false, "Refreshed",       "B",   2);
    row("vanished key",                          "B",  "LIST a;A|c;C",                     false, "Click Refreshed", "A",   2);
    row("vanished key with a null entry",        "B",  "LIST a;A|c;C",                     true,  "Refreshed",       "...", 3);
    row("statement",                             "B",  "SELECT 'b', 'B' UNION ALL SELECT 'a', 'A'", false, "Refreshed", "B", 2);
    row("statement in any case",                 "B",  "select 'b', 'B'",                  false, "Refreshed",       "B",   1);
    row("statement without rows",                "B",  "SELECT 'b', 'B' WHERE 0",          false, "",                "",    0);
    row("no rows beside a null entry",           "B",  "SELECT 'b', 'B' WHERE 0",          true,  "",                "",    1);
    row("statement that fails",                  "B",  "SELECT * FROM nie_ma",             false, "",                "",    0, "no such table: nie_ma .*SELECT \\* FROM nie_ma");
    row("failing beside a null entry",           "B",  "SELECT * FROM nie_ma",             true,  "",                "",    1, "no such table: nie_ma");
    row("only one column",                       "B",  "SELECT 'b'",                       false, "",                "",    0, "3265: .*SELECT 'b'");
    row("failing in mid-read keeps what it read", "B",
        "SELECT 'b', 'B' UNION ALL SELECT 'a', json('{')",                                 false, "",                "",    1, "malformed JSON");
    row("no name ends it quietly",               "B",  "SELECT 'b', 'B' UNION ALL SELECT 'a', NULL", false, "",      "",    1, "94: .*SELECT 'b', 'B' UNION ALL");
    row("no source",                             "B",  "",                                 false, "Refreshed",       "",    0);
    row("no source beside a null entry",         "B",  "kraje",                            true,  "Refreshed",       "...", 1);
    row("blank before the keyword",              "B",  " LIST a;A",                        false, "Refreshed",       "",    0, "begins with a blank.*: LIST a;A");
    row("malformed entry ends the list",         "B",  "LIST a;A|b|c;C",                   false, "Click Refreshed", "A",   1);
    row("last bar may be there",                 "B",  "list a;A|b;B|",                    false, "Refreshed",       "B",   2);
    // clang-format on
}

void tst_ListEquality::refresh()
{
    QFETCH(QString, before);
    QFETCH(QString, source);
    QFETCH(bool, canBeNull);
    QFETCH(QString, warning);
    for (const QString &name : controlNames) {
        DictionaryControl *control = place(name);
        control->setdatabase(&m_database);
        if (!before.isEmpty()) {
            control->setSQL(text("LIST a;A|b;B"));
            control->Refresh();
            control->setText(before);
        }
        control->setDataChanged(false);
        control->setSQL(source);
        control->setCanBeNull(canBeNull);
        control->setObjectName(QStringLiteral("lstKraje"));
        EventLog log(control);
        if (!warning.isEmpty()) // one, or the test fails
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(name + QStringLiteral(" lstKraje: .*") + warning));
        control->Refresh();
        const QString events = log.take();
        QTEST(events, "events");
        QTEST(control->Text(), "selected");
        QTEST(control->ListCount(), "count");
        QCOMPARE(control->DataChanged(), events.contains(QStringLiteral("Click")));
    }
}

void tst_ListEquality::warningsAreSwitchedOffByTheirCategory()
{
    QLoggingCategory::setFilterRules(text("kordaouc.lists.warning=false"));
    const auto done = qScopeGuard([] { QLoggingCategory::setFilterRules({}); });
    for (const QString &name : controlNames) {
        DictionaryControl *control = place(name);
        control->setdatabase(&m_database);
        for (const char *source : {"SELECT * FROM nie_ma", " LIST a;A"}) {
            control->setSQL(text(source));
            control->Refresh(); // a warning fails the test
        }
    }
}

// --- settings

void tst_ListEquality::changedSettingsAreReported_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("reported");
    QTest::newRow("drop-down list") << text("KorCombo") << text("");
    QTest::newRow("list") << text("KorList") << text("");
    QTest::newRow("check list") << text("KorListCheck") << text("ListIndex Selected ValueChecked");
}

void tst_ListEquality::changedSettingsAreReported()
{
    QFETCH(QString, control);
    DictionaryControl *list = place(control);
    list->AddEntry(1, text("a"));
    QStringList reported;
    connect(list, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    list->setListIndex(0);
    list->setValue(1);
    list->setText(text("a"));
    list->setDataChanged(false);
    list->setProperty("Selected", true); // the check list's alone
    list->setProperty("ValueChecked", text("1;"));
    QTEST(reported.join(QLatin1Char(' ')), "reported");
}

QTEST_MAIN(tst_ListEquality)
#include "tst_listequality.moc"
