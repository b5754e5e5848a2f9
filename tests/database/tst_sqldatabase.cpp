// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/queryrecordset.h"
#include "database/testconnection.h"

#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtTest/QtTest>

using kor::Recordset;
using kor::RunTimeError;

namespace {

enum class Way { Sqlite, SqliteQuery, Postgres };

//! The toolkit's query over SQLite, the way of drivers that carry their own copy of SQLite.
class QueriedDatabase final : public kor::Database
{
public:
    explicit QueriedDatabase(const QSqlDatabase &connection) : m_driver(connection.driver()) {}

    std::unique_ptr<Recordset> OpenRecordset(const QString &source, int) override
    {
        return kor::openThroughQuery(*m_driver, source);
    }

private:
    QSqlDriver *m_driver;
};

template <typename Action>
std::pair<int, QString> failureOf(Action action)
{
    try {
        action();
    } catch (const RunTimeError &error) {
        return {error.number(), error.description()};
    }
    return {0, QStringLiteral("no error")};
}

template <typename Action>
int errorNumberOf(Action action)
{
    return failureOf(action).first;
}

QString allRows(Recordset &rows)
{
    QStringList lines;
    for (; !rows.Eof(); rows.MoveNext()) {
        QStringList line;
        for (int i = 0; i < rows.FieldCount(); ++i)
            line << rows.Fields(i).Value().toString();
        lines << line.join(u';');
    }
    return lines.join(u'|');
}

} // namespace

//! Everything that holds for every driver, once for each: SQLite both ways, PostgreSQL where a server is given.
class tst_SqlDatabase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void valuesKeepTheirTypes_data();
    void valuesKeepTheirTypes();
    void walksToTheEnd();
    void emptySetIsAtItsEnd();
    void oneRow();
    void namesOfFields();
    void opensATableByItsName_data();
    void opensATableByItsName();

    void refusedStatementCarriesTheDriversText();
    void statementWithParametersIsRefused();
    void statementWithoutRowsIsRefused();
    void emptySourceIsRefused();
    void otherRecordsetTypesAreRefused();
    void failureInMidReadIsNoEnd();
    void rowsBesideRowsOfTheSameConnection();
    void askingBesideTheRows();

    void closesTwice();
    void connectionClosedUnderRows();
    void connectionReopenedUnderRows();
    void connectionRemovedUnderRows();
    void databaseDeletedUnderRows();
    void unknownConnection();

private:
    bool isPostgres() const { return m_way == Way::Postgres; }
    std::unique_ptr<Recordset> open(const char *source) const
    {
        return m_database->OpenRecordset(QString::fromUtf8(source));
    }

    std::unique_ptr<TestConnection> m_connection;
    std::unique_ptr<kor::Database> m_database;
    Way m_way = Way::Sqlite;
};

void tst_SqlDatabase::initTestCase_data()
{
    QTest::addColumn<Way>("way");
    if (TestConnection::postgresFolder().isEmpty()) {
        QTest::newRow("SQLite stepped directly") << Way::Sqlite;
        QTest::newRow("SQLite through the toolkit's query") << Way::SqliteQuery;
    } else {
        QTest::newRow("PostgreSQL") << Way::Postgres;
    }
}

void tst_SqlDatabase::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QFETCH_GLOBAL(Way, way);
    m_way = way;
    m_connection = std::make_unique<TestConnection>(isPostgres() ? TestConnection::Engine::Postgres
                                                                 : TestConnection::Engine::Sqlite);
    m_connection->run({"CREATE TABLE towary (id INTEGER PRIMARY KEY, nazwa TEXT)",
                       "INSERT INTO towary VALUES (1, 'Łożysko'), (2, 'Śruba'), (3, NULL), (4, 'Klucz')",
                       "CREATE TABLE puste (id INTEGER, nazwa TEXT)", "CREATE TABLE \"Pozycje Zamówień\" (id INTEGER)",
                       "INSERT INTO \"Pozycje Zamówień\" VALUES (7)"});
    if (m_way == Way::SqliteQuery)
        m_database = std::make_unique<QueriedDatabase>(m_connection->connection());
    else
        m_database = std::make_unique<kor::SqlDatabase>(m_connection->connection());
}

void tst_SqlDatabase::cleanup()
{
    m_database.reset();
    m_connection.reset();
}

void tst_SqlDatabase::valuesKeepTheirTypes_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QVariant>("value");
    const QVariant null = kor::null();
    // clang-format off
    QTest::newRow("integer is a Long")               << "12"                                       << QVariant(12);
    QTest::newRow("largest Long")                    << "CAST(2147483647 AS BIGINT)"               << QVariant(2147483647);
    QTest::newRow("smallest Long")                   << "CAST(-2147483648 AS BIGINT)"              << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("one above the Longs is a Double") << "CAST(2147483648 AS BIGINT)"               << QVariant(2147483648.0);
    QTest::newRow("one below the Longs is a Double") << "CAST(-2147483649 AS BIGINT)"              << QVariant(-2147483649.0);
    QTest::newRow("last one that a Double holds")    << "CAST(9007199254740992 AS BIGINT)"         << QVariant(9007199254740992.0);
    QTest::newRow("beyond it 64 bits stay")          << "CAST(9007199254740993 AS BIGINT)"         << QVariant(qlonglong(9007199254740993));
    QTest::newRow("highest 64 bits")                 << "CAST(9223372036854775807 AS BIGINT)"      << QVariant(std::numeric_limits<qlonglong>::max());
    QTest::newRow("negative 64 bits beyond it")      << "CAST(-9007199254740993 AS BIGINT)"        << QVariant(qlonglong(-9007199254740993));
    QTest::newRow("fraction is a Double")            << "CAST(0.1 AS DOUBLE PRECISION)"            << QVariant(0.1);
    QTest::newRow("whole Double stays a Double")     << "CAST(3 AS DOUBLE PRECISION)"              << QVariant(3.0);
    QTest::newRow("decimal is a Double")             << "CAST('12.50' AS NUMERIC(10, 2))"          << QVariant(12.5);
    QTest::newRow("text is a String")                << "CAST('abc' AS TEXT)"                      << QVariant(QStringLiteral("abc"));
    QTest::newRow("digits in a text stay a text")    << "CAST('007' AS TEXT)"                      << QVariant(QStringLiteral("007"));
    QTest::newRow("empty text is not Null")          << "CAST('' AS TEXT)"                         << QVariant(QString(QLatin1String("")));
    QTest::newRow("Polish letters")                  << "CAST('Zażółć gęślą jaźń ĄĘ' AS TEXT)"     << QVariant(QStringLiteral("Zażółć gęślą jaźń ĄĘ"));
    QTest::newRow("letters beyond 16 bits")          << "CAST('𝄞' AS TEXT)"                        << QVariant(QStringLiteral("𝄞"));
    QTest::newRow("untyped NULL")                    << "NULL"                                     << null;
    QTest::newRow("NULL number")                     << "CAST(NULL AS INTEGER)"                    << null;
    QTest::newRow("NULL text")                       << "CAST(NULL AS TEXT)"                       << null;
    QTest::newRow("NULL double")                     << "CAST(NULL AS DOUBLE PRECISION)"           << null;
    // clang-format on
    QFETCH_GLOBAL(Way, way);
    if (way == Way::Postgres) { // types that SQLite does not have
        // clang-format off
        QTest::newRow("whole decimal is a Double")   << "7::numeric"                          << QVariant(7.0);
        QTest::newRow("whole decimal beyond a Double") << "9007199254740993::numeric(20, 0)"  << QVariant(qlonglong(9007199254740993));
        QTest::newRow("negative decimal beyond it")  << "(-9007199254740993)::numeric"        << QVariant(qlonglong(-9007199254740993));
        QTest::newRow("last whole decimal that a Double holds") << "9007199254740992::numeric" << QVariant(9007199254740992.0);
        QTest::newRow("decimal beyond 64 bits")      << "9223372036854775808::numeric"        << QVariant(9223372036854775808.0);
        QTest::newRow("fraction of a large decimal") << "9007199254740993.5::numeric"         << QVariant(9007199254740994.0);
        QTest::newRow("infinite decimal is Null")    << "'Infinity'::numeric"                 << null;
        QTest::newRow("NULL decimal")                << "NULL::numeric"                       << null;
        QTest::newRow("time of a day")               << "TIME '13:45:10'"                     << kor::normalized(QTime(13, 45, 10));
        QTest::newRow("16 bits are a Long")          << "12::smallint"                        << QVariant(12);
        QTest::newRow("negative 64 bits")            << "(-5)::bigint"                        << QVariant(-5);
        QTest::newRow("what is no number is Null")   << "'NaN'::float8"                       << null;
        QTest::newRow("infinity is Null")            << "'-Infinity'::float8"                 << null;
        QTest::newRow("single that is no number")    << "'NaN'::real"                         << null;
        QTest::newRow("decimal that is no number")   << "'NaN'::numeric"                      << null;
        QTest::newRow("single fraction is a Double") << "0.5::real"                           << QVariant(0.5);
        QTest::newRow("truth is a Boolean")          << "TRUE"                                << QVariant(true);
        QTest::newRow("date is a Date")              << "DATE '2026-03-29'"                   << QVariant(QDate(2026, 3, 29));
        QTest::newRow("NULL date")                   << "NULL::date"                          << null;
        QTest::newRow("date with a time")            << "TIMESTAMP '2026-03-28 13:45:10'"     << kor::normalized(QDateTime(QDate(2026, 3, 28), QTime(13, 45, 10), Qt::UTC));
        QTest::newRow("hour that the clocks skip")   << "TIMESTAMP '2026-03-29 02:30:00'"     << kor::normalized(QDateTime(QDate(2026, 3, 29), QTime(2, 30), Qt::UTC));
        QTest::newRow("midnight is a Date alone")    << "TIMESTAMP '2026-03-28 00:00:00'"     << QVariant(QDate(2026, 3, 28));
        QTest::newRow("NULL timestamp")              << "NULL::timestamp"                     << null;
        QTest::newRow("NULL truth")                  << "NULL::boolean"                       << null;
        // clang-format on
    }
}

void tst_SqlDatabase::valuesKeepTheirTypes()
{
    QFETCH(QString, expression);
    QFETCH(QVariant, value);
    const auto rows = m_database->OpenRecordset(QStringLiteral("SELECT ") + expression);
    const QVariant read = rows->Fields(0).Value();
    QCOMPARE(QLatin1String(read.typeName()), QLatin1String(value.typeName()));
    QCOMPARE(read, value);
}

void tst_SqlDatabase::walksToTheEnd()
{
    const auto rows = open("SELECT id, nazwa FROM towary ORDER BY id");
    QCOMPARE(rows->RecordCount(), 1);
    QCOMPARE(rows->FieldCount(), 2);
    QVERIFY(kor::variantType(rows->FieldValue(0)) == kor::VariantType::Long);
    QCOMPARE(allRows(*rows), QStringLiteral("1;Łożysko|2;Śruba|3;|4;Klucz"));
    QVERIFY(rows->Eof());
    QCOMPARE(rows->RecordCount(), 4);
}

void tst_SqlDatabase::emptySetIsAtItsEnd()
{
    const auto rows = open("SELECT id, nazwa FROM puste");
    QVERIFY(rows->Eof());
    QCOMPARE(rows->RecordCount(), 0);
    QCOMPARE(rows->FieldCount(), 2);
    QCOMPARE(errorNumberOf([&] { rows->MoveNext(); }), 3021);
    QCOMPARE(errorNumberOf([&] { (void)rows->FieldValue(0); }), 3021);
}

void tst_SqlDatabase::oneRow()
{
    const auto rows = open("SELECT nazwa FROM towary WHERE id = 4");
    QCOMPARE(rows->RecordCount(), 1);
    QVERIFY(!rows->Eof());
    QCOMPARE(rows->Fields(0).Value(), QVariant(QStringLiteral("Klucz")));
    rows->MoveNext();
    QVERIFY(rows->Eof());
    QCOMPARE(rows->RecordCount(), 1);
}

void tst_SqlDatabase::namesOfFields()
{
    const auto rows = open("SELECT id, nazwa AS \"Nazwa artykułu\" FROM towary");
    QCOMPARE(rows->Fields(0).Name(), QStringLiteral("id"));
    QCOMPARE(rows->Fields(1).Name(), QStringLiteral("Nazwa artykułu"));
}

void tst_SqlDatabase::opensATableByItsName_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("firstKey");
    QTest::newRow("bare name") << "towary" << 1;
    QTest::newRow("in other letters") << "Towary" << 1;
    QTest::newRow("blanks and national letters") << "Pozycje Zamówień" << 7;
    QTest::newRow("quoted already") << "\"Pozycje Zamówień\"" << 7;
}

void tst_SqlDatabase::opensATableByItsName()
{
    if (m_way == Way::SqliteQuery)
        return; // names are resolved before the way is chosen
    QFETCH(QString, source);
    const auto rows = m_database->OpenRecordset(source);
    QTEST(rows->Fields(0).Value().toInt(), "firstKey");
}

void tst_SqlDatabase::refusedStatementCarriesTheDriversText()
{
    const auto [number, text] = failureOf([this] { (void)open("SELECT id\n FROM brak_takiej"); });
    QCOMPARE(number, 3146);
    QVERIFY2(text.contains(isPostgres() ? QStringLiteral("relation \"brak_takiej\" does not exist")
                                        : QStringLiteral("no such table: brak_takiej")),
             qPrintable(text));
    QVERIFY2(text.endsWith(QStringLiteral("(while opening: SELECT id FROM brak_takiej)")), qPrintable(text));

    QCOMPARE(errorNumberOf([this] { (void)open("SELEC id"); }), 3146);
    QCOMPARE(errorNumberOf([this] { (void)open("SELECT 1 FROM"); }), 3146);
    QCOMPARE(open("SELECT 1")->FieldValue(0), QVariant(1)); // the connection is none the worse
}

void tst_SqlDatabase::statementWithParametersIsRefused()
{
    QCOMPARE(errorNumberOf([this] { (void)open("SELECT id FROM towary WHERE id = ?"); }), 3146);
    QCOMPARE(open("SELECT '?' FROM towary WHERE id = 1")->FieldValue(0), QVariant(QStringLiteral("?")));
    QCOMPARE(open("SELECT '10:30' FROM towary WHERE id = 1")->FieldValue(0), QVariant(QStringLiteral("10:30")));
}

void tst_SqlDatabase::statementWithoutRowsIsRefused()
{
    const auto [number, text] = failureOf([this] { (void)open("UPDATE towary SET nazwa = 'x'"); });
    QCOMPARE(number, 3146);
    QVERIFY2(text.startsWith(QStringLiteral("The statement gives no rows")), qPrintable(text));
    if (m_way == Way::Sqlite)
        QCOMPARE(open("SELECT nazwa FROM towary WHERE id = 4")->FieldValue(0), QVariant(QStringLiteral("Klucz")));
}

void tst_SqlDatabase::emptySourceIsRefused()
{
    if (m_way == Way::SqliteQuery)
        return; // looked at before the way is chosen
    const auto [number, text] = failureOf([this] { (void)m_database->OpenRecordset(QStringLiteral("  \n")); });
    QCOMPARE(number, 3146);
    QVERIFY2(text.startsWith(QStringLiteral("The source is empty")), qPrintable(text));
}

void tst_SqlDatabase::otherRecordsetTypesAreRefused()
{
    if (m_way == Way::SqliteQuery)
        return; // the type is looked at before the way is chosen
    QCOMPARE(errorNumberOf([this] { (void)m_database->OpenRecordset(QStringLiteral("SELECT 1"), 4); }), 5);
}

void tst_SqlDatabase::failureInMidReadIsNoEnd()
{
    const auto rows =
        open(isPostgres() ? "SELECT id, 10 / (id - 3) FROM towary"
                          : "SELECT id, CASE WHEN id = 3 THEN abs(-9223372036854775808) ELSE id END FROM towary");
    QCOMPARE(rows->FieldValue(0), QVariant(1));
    rows->MoveNext();
    QCOMPARE(rows->FieldValue(0), QVariant(2));
    const auto [number, text] = failureOf([&] { rows->MoveNext(); });
    QCOMPARE(number, 3146);
    QVERIFY2(text.contains(isPostgres() ? QStringLiteral("division by zero") : QStringLiteral("integer overflow")),
             qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("(while reading: SELECT id")), qPrintable(text));
    QCOMPARE(errorNumberOf([&] { (void)rows->Eof(); }), 3420);
    m_connection->run({"DROP TABLE towary"}); // a failed walk holds no lock
}

void tst_SqlDatabase::rowsBesideRowsOfTheSameConnection()
{
    const auto outer = open("SELECT id FROM towary ORDER BY id");
    const auto inner = open("SELECT id FROM towary ORDER BY id DESC");
    QCOMPARE(inner->FieldValue(0), QVariant(4));
    if (isPostgres()) { // its driver streams one statement at a time: what it threw away must not look like the end
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Query results lost")));
        QCOMPARE(errorNumberOf([&] { outer->MoveNext(); }), 3146);
        return;
    }
    outer->MoveNext();
    inner->MoveNext();
    QCOMPARE(outer->FieldValue(0), QVariant(2));
    QCOMPARE(inner->FieldValue(0), QVariant(3));
}

void tst_SqlDatabase::askingBesideTheRows()
{
    const auto rows = open("SELECT id FROM towary WHERE id = 1");
    QCOMPARE(errorNumberOf([&] { (void)rows->FieldValue(1); }), 3265);
    QCOMPARE(errorNumberOf([&] { (void)rows->FieldValue(-1); }), 3265);
    QCOMPARE(errorNumberOf([&] { (void)rows->Fields(1).Name(); }), 3265);
    rows->MoveNext();
    QCOMPARE(errorNumberOf([&] { (void)rows->Fields(0).Value(); }), 3021);
    QCOMPARE(errorNumberOf([&] { rows->MoveNext(); }), 3021);
    QVERIFY(rows->Eof());
    QCOMPARE(rows->Fields(0).Name(), QStringLiteral("id"));
}

void tst_SqlDatabase::closesTwice()
{
    const auto rows = open("SELECT id FROM towary");
    rows->Close();
    rows->Close();
    QCOMPARE(errorNumberOf([&] { (void)rows->Eof(); }), 3420);
    QCOMPARE(errorNumberOf([&] { rows->MoveNext(); }), 3420);
    QCOMPARE(errorNumberOf([&] { (void)rows->RecordCount(); }), 3420);
    QCOMPARE(errorNumberOf([&] { (void)rows->FieldValue(0); }), 3420);
    m_connection->run({"DROP TABLE towary"});
}

void tst_SqlDatabase::connectionClosedUnderRows()
{
    const auto rows = open("SELECT id FROM towary");
    m_connection->close();
    QVERIFY(!m_connection->connection().lastError().isValid()); // nothing of ours kept it from closing
    QCOMPARE(errorNumberOf([&] { (void)rows->FieldValue(0); }), 3146);
    const auto [number, text] = failureOf([&] { rows->MoveNext(); });
    QCOMPARE(number, 3146);
    QVERIFY2(text.startsWith(QStringLiteral("The database connection is not open")), qPrintable(text));
    rows->Close();
    if (m_way != Way::SqliteQuery) {
        QCOMPARE(errorNumberOf([this] { (void)open("SELECT 1"); }), 3146);
        QVERIFY(m_connection->reopen());
        QCOMPARE(open("SELECT 1")->FieldValue(0), QVariant(1));
    }
}

void tst_SqlDatabase::connectionReopenedUnderRows()
{
    const auto rows = open("SELECT id, nazwa, id + 10 FROM towary");
    QCOMPARE(rows->FieldValue(2), QVariant(11));
    m_connection->close();
    QVERIFY(m_connection->reopen());
    if (m_way == Way::Sqlite) {
        QCOMPARE(errorNumberOf([&] { (void)rows->FieldValue(2); }), 3146);
        QCOMPARE(errorNumberOf([&] { (void)rows->FieldName(0); }), 3146);
    }
    if (isPostgres())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Query results lost")));
    QCOMPARE(errorNumberOf([&] { rows->MoveNext(); }), 3146);
}

void tst_SqlDatabase::connectionRemovedUnderRows()
{
    const auto rows = open("SELECT id FROM towary");
    m_connection->remove(); // without the toolkit's warning that somebody still uses it
    QCOMPARE(errorNumberOf([&] { (void)rows->FieldValue(0); }), 3146);
    QCOMPARE(errorNumberOf([&] { rows->MoveNext(); }), 3146);
    if (m_way != Way::SqliteQuery)
        QCOMPARE(errorNumberOf([this] { (void)open("SELECT 1"); }), 3146);
}

void tst_SqlDatabase::databaseDeletedUnderRows()
{
    const auto rows = open("SELECT id, nazwa FROM towary ORDER BY id");
    m_database.reset();
    QCOMPARE(allRows(*rows), QStringLiteral("1;Łożysko|2;Śruba|3;|4;Klucz"));
}

void tst_SqlDatabase::unknownConnection()
{
    kor::SqlDatabase unknown(QStringLiteral("nie ma takiego"));
    QCOMPARE(errorNumberOf([&] { (void)unknown.OpenRecordset(QStringLiteral("SELECT 1")); }), 3146);
    kor::SqlDatabase named(m_connection->name());
    QCOMPARE(named.OpenRecordset(QStringLiteral("SELECT 1"))->FieldValue(0), QVariant(1));
}

QTEST_GUILESS_MAIN(tst_SqlDatabase)
#include "tst_sqldatabase.moc"
