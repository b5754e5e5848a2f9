// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/queryrecordset.h"
#include "database/sqliterecordset.h"
#include "lists/dictionaryloader.h"

#include <KorDaoUC/Database>
#include <KorDaoUC/Recordset>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtTest/QtTest>

#include <optional>
#include <stdexcept>
#include <utility>

using namespace kor;

namespace {

using Row = QVariantList;

//! A recordset over rows in memory, as a host would feed the lists from something that is no database; it can break
//! at any step.
class RowsInMemory final : public Recordset
{
public:
    enum class Breaks { Never, AtMoveNext, AtClose, WithAForeignException };

    RowsInMemory(QList<Row> rows, Breaks breaks, int *open) : m_rows(std::move(rows)), m_breaks(breaks), m_open(open)
    {
        ++*m_open;
    }

    int RecordCount() const override { return m_rows.isEmpty() ? 0 : 1; }
    bool Eof() const override { return m_at >= m_rows.size(); }
    void MoveNext() override
    {
        if (++m_at < 2)
            return;
        if (m_breaks == Breaks::AtMoveNext)
            throw RunTimeError(ErrorNumber::DatabaseFailed, QStringLiteral("dysk"));
        if (m_breaks == Breaks::WithAForeignException)
            throw std::runtime_error("foreign");
    }
    int FieldCount() const override { return 2; }
    QVariant FieldValue(int index) const override
    {
        if (index >= m_rows[m_at].size())
            throw RunTimeError(ErrorNumber::ItemNotFoundInCollection);
        return m_rows[m_at][index];
    }
    QString FieldName(int) const override { return {}; }
    void Close() override
    {
        --*m_open;
        if (m_breaks == Breaks::AtClose)
            throw RunTimeError(ErrorNumber::DatabaseFailed, QStringLiteral("zamek"));
    }

private:
    QList<Row> m_rows;
    Breaks m_breaks;
    int *m_open;
    int m_at = 0;
};

class DatabaseInMemory final : public Database
{
public:
    std::unique_ptr<Recordset> OpenRecordset(const QString &source, int type) override
    {
        asked = source;
        askedType = type;
        if (refuses)
            throw RunTimeError(ErrorNumber::DatabaseFailed, QStringLiteral("odmowa"));
        return std::make_unique<RowsInMemory>(rows, breaks, &open);
    }

    QList<Row> rows;
    RowsInMemory::Breaks breaks = RowsInMemory::Breaks::Never;
    bool refuses = false;
    QString asked;
    int askedType = 0;
    int open = 0;
};

//! The recordset of a database, as one that the library knows nothing of.
class Unknown final : public Recordset
{
public:
    explicit Unknown(std::unique_ptr<Recordset> rows) : m_rows(std::move(rows)) {}

    int RecordCount() const override { return m_rows->RecordCount(); }
    bool Eof() const override { return m_rows->Eof(); }
    void MoveNext() override { m_rows->MoveNext(); }
    int FieldCount() const override { return m_rows->FieldCount(); }
    QVariant FieldValue(int index) const override { return m_rows->FieldValue(index); }
    QString FieldName(int index) const override { return m_rows->FieldName(index); }
    void Close() override { m_rows->Close(); }

private:
    std::unique_ptr<Recordset> m_rows;
};

enum class Way { Stepped, Queried };
enum class Known { Yes, No };

//! SQLite in memory, read in one of the library's ways.
class SqliteInMemory final : public Database
{
public:
    SqliteInMemory(QSqlDriver *driver, Way way, Known known) : m_driver(driver), m_way(way), m_known(known) {}

    std::unique_ptr<Recordset> OpenRecordset(const QString &source, int) override
    {
        auto rows = m_way == Way::Stepped ? openThroughSqlite(*m_driver, source) : openThroughQuery(*m_driver, source);
        return m_known == Known::Yes ? std::move(rows) : std::make_unique<Unknown>(std::move(rows));
    }

private:
    QSqlDriver *m_driver;
    Way m_way;
    Known m_known;
};

const QString statement = QStringLiteral("SELECT id, nazwa FROM slownik");

} // namespace

//! Reading a statement's rows, to the end or to a failure.
class tst_DictionaryLoader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksForTheWholeStatementForwardOnly();
    void readsKeyAndName();
    void namesAreTexts_data();
    void namesAreTexts();
    void endsAreToldApart_data();
    void endsAreToldApart();
    void ownRowsAreReadAsAnyOthers_data();
    void ownRowsAreReadAsAnyOthers();
};

void tst_DictionaryLoader::asksForTheWholeStatementForwardOnly()
{
    DatabaseInMemory database;
    QVERIFY(loadDictionary(database, statement, Locale::polish()).outcome == LoadOutcome::NoRows);
    QCOMPARE(database.asked, statement);
    QCOMPARE(database.askedType, 8);
    QCOMPARE(database.open, 0);
}

void tst_DictionaryLoader::readsKeyAndName()
{
    DatabaseInMemory database;
    database.rows = {
        {1, QStringLiteral("a"), QStringLiteral("więcej")}, {null(), QStringLiteral("b")}, {2.5, QString()}};
    const DictionaryLoad load = loadDictionary(database, statement, Locale::polish());
    QVERIFY(load.outcome == LoadOutcome::Loaded);
    QCOMPARE(load.rows.keys, (QVariantList{1, null(), 2.5}));
    QCOMPARE(load.rows.names, (QStringList{QStringLiteral("a"), QStringLiteral("b"), QString()}));
    QCOMPARE(load.failure, QString());
    QCOMPARE(database.open, 0);
}

void tst_DictionaryLoader::namesAreTexts_data()
{
    QTest::addColumn<QVariant>("field");
    QTest::addColumn<QString>("name");
    QTest::newRow("Long") << QVariant(12) << QStringLiteral("12");
    QTest::newRow("Double with the locale's comma") << QVariant(2.5) << QStringLiteral("2,5");
    QTest::newRow("Date in the short pattern") << QVariant(QDate(2024, 2, 29)) << QStringLiteral("29.02.2024");
    QTest::newRow("Boolean") << QVariant(true) << QStringLiteral("True");
    QTest::newRow("Empty") << QVariant() << QString();
    QTest::newRow("text as it stands") << QVariant(QStringLiteral("  Łódź ")) << QStringLiteral("  Łódź ");
}

void tst_DictionaryLoader::namesAreTexts()
{
    QFETCH(QVariant, field);
    DatabaseInMemory database;
    database.rows = {{1, field}};
    const DictionaryLoad load = loadDictionary(database, statement, Locale::polish());
    QCOMPARE(load.rows.names.size(), 1);
    QTEST(load.rows.names.front(), "name");
}

void tst_DictionaryLoader::endsAreToldApart_data()
{
    QTest::addColumn<QList<QVariantList>>("rows");
    QTest::addColumn<int>("breaks");
    QTest::addColumn<LoadOutcome>("outcome");
    QTest::addColumn<int>("read");
    QTest::addColumn<QString>("failure");
    using Breaks = RowsInMemory::Breaks;
    const Row a{1, QStringLiteral("a")};
    const Row b{2, QStringLiteral("b")};
    const Row c{3, QStringLiteral("c")};
    const Row noName{2, null()};
    const Row oneColumn{2};
    constexpr int refuses = -1;
    // clang-format off
    QTest::newRow("all rows")                   << QList<Row>{a, b, c}      << int(Breaks::Never)                 << LoadOutcome::Loaded << 3 << QString();
    QTest::newRow("no rows")                    << QList<Row>{}             << int(Breaks::Never)                 << LoadOutcome::NoRows << 0 << QString();
    QTest::newRow("refused")                    << QList<Row>{a, b, c}      << refuses                            << LoadOutcome::Failed << 0 << QStringLiteral("odmowa");
    QTest::newRow("breaks in mid-read")         << QList<Row>{a, b, c}      << int(Breaks::AtMoveNext)            << LoadOutcome::Failed << 2 << QStringLiteral("dysk");
    QTest::newRow("foreign exception")          << QList<Row>{a, b, c}      << int(Breaks::WithAForeignException) << LoadOutcome::Failed << 2 << QStringLiteral("foreign");
    QTest::newRow("does not close")             << QList<Row>{a, b, c}      << int(Breaks::AtClose)               << LoadOutcome::Failed << 3 << QStringLiteral("zamek");
    QTest::newRow("Null name")                  << QList<Row>{a, noName, c} << int(Breaks::Never)                 << LoadOutcome::Failed << 1 << QStringLiteral("94");
    QTest::newRow("Null name in the first row") << QList<Row>{noName, a}    << int(Breaks::Never)                 << LoadOutcome::Failed << 0 << QStringLiteral("94");
    QTest::newRow("no second column")           << QList<Row>{oneColumn}    << int(Breaks::Never)                 << LoadOutcome::Failed << 0 << QStringLiteral("3265");
    // clang-format on
}

void tst_DictionaryLoader::endsAreToldApart()
{
    QFETCH(QList<QVariantList>, rows);
    QFETCH(int, breaks);
    QFETCH(LoadOutcome, outcome);
    QFETCH(int, read);
    QFETCH(QString, failure);
    DatabaseInMemory database;
    database.rows = rows;
    database.refuses = breaks < 0;
    database.breaks = database.refuses ? RowsInMemory::Breaks::Never : RowsInMemory::Breaks(breaks);
    const DictionaryLoad load = loadDictionary(database, statement, Locale::polish());
    QVERIFY(load.outcome == outcome);
    QCOMPARE(load.rows.keys.size(), read);
    QCOMPARE(load.rows.names.size(), read);
    QVERIFY2(load.failure.contains(failure), qPrintable(load.failure));
    QCOMPARE(database.open, 0); // closed on every way out
}

void tst_DictionaryLoader::ownRowsAreReadAsAnyOthers_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("way");
    QTest::addColumn<LoadOutcome>("outcome");
    QTest::addColumn<int>("read");
    const auto row = [](const char *behaviour, const char *source, LoadOutcome outcome, int read) {
        for (const auto &[way, name] : {std::pair(Way::Stepped, "stepped"), std::pair(Way::Queried, "queried")})
            QTest::addRow("%s, %s", behaviour, name) << QString::fromUtf8(source) << int(way) << outcome << read;
    };
    // clang-format off
    row("keys of every type",        "VALUES (1, 'a'), (NULL, 'b'), (2.5, 'c'), ('t', 'd'), (x'00ff', 'e'), (9007199254740993, 'f'), (9e999, 'g')", LoadOutcome::Loaded, 7);
    row("names of every type",       "VALUES (1, 'żółć'), (2, ''), (3, 12), (4, 2.5), (5, x'41'), (6, 9007199254740993)", LoadOutcome::Loaded, 6);
    row("more columns",              "VALUES (1, 'a', 'x'), (2, 'b', 'y')",             LoadOutcome::Loaded, 2);
    row("one row",                   "VALUES (1, 'a')",                                 LoadOutcome::Loaded, 1);
    row("no rows",                   "SELECT 1, 'a' WHERE 0",                           LoadOutcome::NoRows, 0);
    row("Null name",                 "VALUES (1, 'a'), (2, NULL), (3, 'c')",            LoadOutcome::Failed, 1);
    row("Null name first",           "VALUES (1, NULL), (2, 'b')",                      LoadOutcome::Failed, 0);
    row("no second column",          "VALUES (1), (2)",                                 LoadOutcome::Failed, 0);
    row("breaks in mid-read",        "SELECT abs(column1), column2 FROM (VALUES (1, 'a'), (-2, 'b'), (-9223372036854775808, 'c'), (4, 'd'))", LoadOutcome::Failed, 2);
    row("breaks behind the first",   "SELECT abs(column1), column2 FROM (VALUES (1, 'a'), (-9223372036854775808, 'b'))", LoadOutcome::Failed, 1);
    // clang-format on
}

//! All at once, or each by itself.
void tst_DictionaryLoader::ownRowsAreReadAsAnyOthers()
{
    QFETCH(QString, source);
    QFETCH(int, way);
    QFETCH(int, read);
    const QString name = QStringLiteral("rows");
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        connection.setDatabaseName(QStringLiteral(":memory:"));
        QVERIFY(connection.open());
        SqliteInMemory own(connection.driver(), Way(way), Known::Yes);
        SqliteInMemory others(connection.driver(), Way(way), Known::No);
        const DictionaryLoad all = loadDictionary(own, source, Locale::polish());
        const DictionaryLoad oneByOne = loadDictionary(others, source, Locale::polish());
        QTEST(all.outcome, "outcome");
        QVERIFY(oneByOne.outcome == all.outcome);
        QCOMPARE(all.rows.keys.size(), read);
        QCOMPARE(all.rows.keys, oneByOne.rows.keys);
        for (qsizetype i = 0; i < all.rows.keys.size(); ++i)
            QCOMPARE(variantType(all.rows.keys[i]), variantType(oneByOne.rows.keys[i]));
        QCOMPARE(all.rows.names, oneByOne.rows.names);
        QCOMPARE(all.failure, oneByOne.failure);
    }
    QSqlDatabase::removeDatabase(name);
}

QTEST_GUILESS_MAIN(tst_DictionaryLoader)
#include "tst_dictionaryloader.moc"
