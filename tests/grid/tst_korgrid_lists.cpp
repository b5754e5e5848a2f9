// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "gridsuite.h"
#include "support/sqlitefile.h"

#include <KorDaoUC/SqlDatabase>

#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtWidgets/QComboBox>

using namespace kor;
using namespace kor::test;

//! Columns whose lists are read from a real database file, through the keyboard.
class tst_KorGrid_Lists : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void everyColumnHasItsOwnStatement();
    void theListIsReadAtEachOpening();
    void aChosenEntryPutsItsKeyIntoTheValueColumn();
    void longKeysAreKept_data();
    void longKeysAreKept();
    void valuesAreReadAndWrittenByKey();
    void aNameThatIsGoneStaysUntilTheUserChooses();
    void aStatementThatFailsLeavesTheCell();
    void aDatabaseThatEndsUnderAnOpenEditorLosesNothing_data();
    void aDatabaseThatEndsUnderAnOpenEditorLosesNothing();
    void refreshReadsTheOpenListAnew();
    void refreshLeavesANameAloneThatTheListDoesNotHave_data();
    void refreshLeavesANameAloneThatTheListDoesNotHave();
    void withoutADatabaseTheCellIsLeftAlone();

private:
    enum ListColumn { Name = 1, UnitOf, Key, Group };
    void run(const QString &statement)
    {
        QSqlQuery query(file->connection());
        QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    }
    [[nodiscard]] KorCombo *list() const { return editor<KorCombo>("KorCmb"); }

    std::unique_ptr<SqliteFile> file;
    std::unique_ptr<SqlDatabase> database;
};

void tst_KorGrid_Lists::init()
{
    setUp();
    file = std::make_unique<SqliteFile>();
    run(QStringLiteral("CREATE TABLE jm (id INTEGER PRIMARY KEY, nazwa TEXT)"));
    run(QStringLiteral("INSERT INTO jm VALUES (1, 'sztuka'), (2, 'karton'), (9007199254740993, 'źdźbło')"));
    run(QStringLiteral("CREATE TABLE grupa (kod TEXT PRIMARY KEY, nazwa TEXT)"));
    run(QStringLiteral("INSERT INTO grupa VALUES ('A', 'artykuły'), ('U', 'usługi')"));
    database = std::make_unique<SqlDatabase>(file->connection());
    grid->setdatabase(database.get());
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
    grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 1500, 0, false, QString(), 0, 0,
                    QStringLiteral("SELECT id, nazwa FROM jm ORDER BY nazwa"), QStringLiteral("jm"), Key);
    grid->AddColumn(QStringLiteral("TEXT"), QString(), 0, 0);
    grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("Grupa"), 1500, 0, false, QString(), 0, 0,
                    QStringLiteral("SELECT kod, nazwa FROM grupa ORDER BY kod"), QStringLiteral("grupy"));
    grid->setRows(5);
    settle();
    (void)log->take();
}

void tst_KorGrid_Lists::cleanup()
{
    tearDown();
    database.reset();
    file.reset();
}

void tst_KorGrid_Lists::everyColumnHasItsOwnStatement()
{
    click(1, UnitOf);
    QCOMPARE(list()->ListCount(), 3);
    QCOMPARE(list()->findChild<QComboBox *>()->itemText(0), QStringLiteral("karton"));
    QCOMPARE(grid->Slownik(), QStringLiteral("jm"));
    press(Qt::Key_Tab); // over the locked key
    QCOMPARE(place(), QStringLiteral("1,4"));
    QCOMPARE(list()->ListCount(), 2);
    QCOMPARE(list()->findChild<QComboBox *>()->itemText(1), QStringLiteral("usługi"));
    QCOMPARE(grid->Slownik(), QStringLiteral("grupy"));
}

void tst_KorGrid_Lists::theListIsReadAtEachOpening()
{
    click(1, Group);
    QCOMPARE(list()->ListCount(), 2);
    run(QStringLiteral("INSERT INTO grupa VALUES ('Z', 'zestawy')"));
    press(Qt::Key_Down);
    QCOMPARE(place(), QStringLiteral("2,4"));
    QCOMPARE(list()->ListCount(), 3);
    type(QStringLiteral("z"));
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(2, Group), QStringLiteral("zestawy"));
    QCOMPARE(grid->Value(2, Group), QVariant(QStringLiteral("Z")));
}

void tst_KorGrid_Lists::aChosenEntryPutsItsKeyIntoTheValueColumn()
{
    click(1, UnitOf);
    type(QStringLiteral("s"));
    QCOMPARE(row(1), QStringLiteral("|sztuka|1|"));
    QCOMPARE(grid->Value(1, UnitOf).toInt(), 1);
    press(Qt::Key_Escape);
    QCOMPARE(row(1), QStringLiteral("|||"));
    click(2, UnitOf);
    type(QStringLiteral("k"));
    press(Qt::Key_Tab);
    QCOMPARE(row(2), QStringLiteral("|karton|2|"));
}

void tst_KorGrid_Lists::longKeysAreKept_data()
{
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("digits");

    // clang-format off
    QTest::newRow("of sixteen digits")          << QVariant(1'234'567'890'123'457.0)        << "para"   << "1234567890123457";
    QTest::newRow("the next one to it")         << QVariant(1'234'567'890'123'458.0)        << "tuzin"  << "1234567890123458";
    QTest::newRow("beyond what a Double holds") << QVariant(qint64(9'007'199'254'740'993)) << "źdźbło" << "9007199254740993";
    // clang-format on
}

void tst_KorGrid_Lists::longKeysAreKept()
{
    QFETCH(const QVariant, key);
    QFETCH(const QString, name);
    QFETCH(const QString, digits);

    run(QStringLiteral("INSERT INTO jm VALUES (1234567890123457, 'para'), (1234567890123458, 'tuzin')"));
    const QString whole = QStringLiteral("|%1|%2|").arg(name, digits);
    grid->setValue(2, UnitOf, key);
    QCOMPARE(row(2), whole);
    QCOMPARE(grid->Value(2, UnitOf), key);
    click(2, UnitOf);
    press(Qt::Key_Tab);
    QCOMPARE(row(2), whole);

    click(3, UnitOf);
    type(name.left(1));
    press(Qt::Key_Tab);
    QCOMPARE(row(3), whole);
    QCOMPARE(grid->Value(3, UnitOf), key);

    grid->setTextMatrix(4, UnitOf, name);
    QCOMPARE(row(4), whole);
}

void tst_KorGrid_Lists::valuesAreReadAndWrittenByKey()
{
    grid->setValue(1, Group, QStringLiteral("U"));
    QCOMPARE(grid->TextMatrix(1, Group), QStringLiteral("usługi"));
    grid->setTextMatrix(1, Group, QStringLiteral("artykuły"));
    QCOMPARE(grid->Value(1, Group), QVariant(QStringLiteral("A")));
    grid->setTextMatrix(2, UnitOf, QStringLiteral("karton"));
    QCOMPARE(row(2), QStringLiteral("|karton|2|"));
}

void tst_KorGrid_Lists::aNameThatIsGoneStaysUntilTheUserChooses()
{
    grid->setValue(1, UnitOf, 2);
    run(QStringLiteral("DELETE FROM jm WHERE id = 2"));
    click(1, UnitOf);
    press(Qt::Key_Down);
    QCOMPARE(row(1), QStringLiteral("|karton|2|"));
    press(Qt::Key_Up);
    type(QStringLiteral("s"));
    QCOMPARE(row(1), QStringLiteral("|sztuka|1|"));
}

void tst_KorGrid_Lists::aStatementThatFailsLeavesTheCell()
{
    grid->setValue(1, UnitOf, 2);
    run(QStringLiteral("DROP TABLE jm"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("KorCmb.*jm")));
    click(1, UnitOf);
    QCOMPARE(openEditor(), QStringLiteral("KorCmb"));
    press(Qt::Key_Tab);
    QCOMPARE(row(1), QStringLiteral("|karton|2|"));
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorGrid_Lists::aDatabaseThatEndsUnderAnOpenEditorLosesNothing_data()
{
    QTest::addColumn<bool>("ends");
    QTest::newRow("the database ends") << true;
    QTest::newRow("its connection is closed") << false;
}

void tst_KorGrid_Lists::aDatabaseThatEndsUnderAnOpenEditorLosesNothing()
{
    QFETCH(bool, ends);
    click(1, UnitOf);
    if (ends)
        database.reset();
    else
        file->connection().close();
    // What was read is still there to choose from.
    type(QStringLiteral("k"));
    QCOMPARE(row(1), QStringLiteral("|karton|2|"));
    if (!ends)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("KorCmb")));
    press(Qt::Key_Down);
    QCOMPARE(row(1), QStringLiteral("|karton|2|"));
    QCOMPARE(place(), QStringLiteral("2,2"));
    QCOMPARE(messages->take(), QStringList());
}

void tst_KorGrid_Lists::refreshReadsTheOpenListAnew()
{
    click(1, Group);
    type(QStringLiteral("u"));
    run(QStringLiteral("INSERT INTO grupa VALUES ('Z', 'zestawy')"));
    grid->CmbRefresh();
    QCOMPARE(list()->ListCount(), 3);
    QCOMPARE(grid->TextMatrix(1, Group), QStringLiteral("usługi"));
    QCOMPARE(list()->Text(), QStringLiteral("usługi"));
    grid->setValue(3, Group, QStringLiteral("Z"));
    QCOMPARE(grid->TextMatrix(3, Group), QStringLiteral("zestawy"));
}

void tst_KorGrid_Lists::refreshLeavesANameAloneThatTheListDoesNotHave_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("byKey");
    QTest::newRow("no name, F5") << QString() << true;
    QTest::newRow("a name of its own, F5") << QStringLiteral("kopa") << true;
    QTest::newRow("a name of its own, by the program") << QStringLiteral("kopa") << false;
}

void tst_KorGrid_Lists::refreshLeavesANameAloneThatTheListDoesNotHave()
{
    QFETCH(QString, name);
    QFETCH(bool, byKey);
    grid->setTextControl(1, Group, name);
    click(1, Group);
    (void)log->take();
    if (byKey)
        press(Qt::Key_F5);
    else
        grid->CmbRefresh();
    QCOMPARE(list()->Text(), QString());
    press(Qt::Key_Tab);
    QCOMPARE(grid->TextMatrix(1, Group), name);
    QVERIFY(!log->take().contains(QStringLiteral("Change(1,%1)").arg(Group)));
}

void tst_KorGrid_Lists::withoutADatabaseTheCellIsLeftAlone()
{
    grid->setValue(1, UnitOf, 2);
    grid->setdatabase(nullptr);
    click(1, UnitOf);
    press(Qt::Key_Tab);
    QCOMPARE(row(1), QStringLiteral("|karton|2|"));
}

QTEST_MAIN(tst_KorGrid_Lists)
#include "tst_korgrid_lists.moc"
