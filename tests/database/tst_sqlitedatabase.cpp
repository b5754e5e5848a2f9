// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/queryrecordset.h"
#include "database/sqliterecordset.h"
#include "database/testconnection.h"

#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtCore/QFile>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtTest/QtTest>

using kor::Recordset;
using kor::RunTimeError;

//! What only SQLite has: values without a column type, damaged and locked files, and two ways of reading that must
//! agree.
class tst_SqliteDatabase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_connection.reset(); }

    void packagedDriverIsSteppedDirectly();
    void bothWaysGiveTheSame_data();
    void bothWaysGiveTheSame();
    void damagedPageIsAFailure();
    void lockedFileIsAFailure();
    void finishedRowsHoldNoLock();

private:
    std::unique_ptr<TestConnection> m_connection;
};

void tst_SqliteDatabase::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    m_connection = std::make_unique<TestConnection>(TestConnection::Engine::Sqlite);
}

void tst_SqliteDatabase::packagedDriverIsSteppedDirectly()
{
    QVERIFY(kor::sharesSqlite(*m_connection->connection().driver()));
    m_connection->close();
    QVERIFY(!kor::sharesSqlite(*m_connection->connection().driver()));
    QVERIFY(m_connection->reopen());
}

void tst_SqliteDatabase::bothWaysGiveTheSame_data()
{
    QTest::addColumn<QString>("expression");
    // clang-format off
    QTest::newRow("integer")                  << "5";
    QTest::newRow("64 bits")                  << "-9223372036854775807";
    QTest::newRow("fraction")                 << "1e300";
    QTest::newRow("64 bits of a Double")      << "9007199254740992";
    QTest::newRow("64 bits beyond a Double")  << "9007199254740993";
    QTest::newRow("infinity")                 << "9e999";
    QTest::newRow("text")                     << "'zażółć'";
    QTest::newRow("empty text")               << "''";
    QTest::newRow("text with a zero inside")  << "CAST(x'410042' AS TEXT)";
    QTest::newRow("text that is no UTF-8")    << "CAST(x'41FF42' AS TEXT)";
    QTest::newRow("blob")                     << "x'C581C3B364C5BA'";
    QTest::newRow("empty blob")               << "x''";
    QTest::newRow("NULL")                     << "NULL";
    QTest::newRow("date stays a text")        << "date('2026-03-29')";
    QTest::newRow("truth is an integer")      << "1 = 1";
    // clang-format on
}

void tst_SqliteDatabase::bothWaysGiveTheSame()
{
    QFETCH(QString, expression);
    QSqlDriver &driver = *m_connection->connection().driver();
    const QString statement = QStringLiteral("SELECT ") + expression;
    const QVariant direct = kor::openThroughSqlite(driver, statement)->FieldValue(0);
    const QVariant queried = kor::openThroughQuery(driver, statement)->FieldValue(0);
    QCOMPARE(QLatin1String(direct.typeName()), QLatin1String(queried.typeName()));
    QCOMPARE(direct, queried);
    QVERIFY(kor::variantType(direct) != kor::VariantType::Other);
}

void tst_SqliteDatabase::damagedPageIsAFailure()
{
    m_connection->run({"PRAGMA page_size = 512", "CREATE TABLE t (id INTEGER PRIMARY KEY, n TEXT)",
                       "WITH RECURSIVE i(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM i WHERE x < 2000) "
                       "INSERT INTO t SELECT x, 'pozycja ' || x FROM i"});
    m_connection->close();
    QFile file(m_connection->fileName());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(file.size() / 2 / 512 * 512));
    QCOMPARE(file.write(QByteArray(10 * 512, '\xff')), 10 * 512);
    file.close();
    QVERIFY(m_connection->reopen());

    kor::SqlDatabase database(m_connection->connection());
    const auto rows = database.OpenRecordset(QStringLiteral("SELECT id, n FROM t"));
    try {
        for (; !rows->Eof(); rows->MoveNext()) {
        }
        QFAIL("a damaged page was taken for the end");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 3146);
        QVERIFY2(error.description().startsWith(QStringLiteral("database disk image is malformed")), error.what());
    }
}

void tst_SqliteDatabase::lockedFileIsAFailure()
{
    m_connection->run({"CREATE TABLE t (id INTEGER)", "INSERT INTO t VALUES (1)"});
    const QString readerName = QStringLiteral("reader");
    {
        QSqlDatabase reader = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), readerName);
        reader.setDatabaseName(m_connection->fileName());
        reader.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
        QVERIFY(reader.open());
    }
    kor::SqlDatabase database(readerName);
    QCOMPARE(database.OpenRecordset(QStringLiteral("SELECT id FROM t"))->RecordCount(), 1);
    m_connection->run({"BEGIN EXCLUSIVE"});
    try {
        (void)database.OpenRecordset(QStringLiteral("SELECT id FROM t"));
        QFAIL("a locked file was read");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 3146);
        QVERIFY2(error.description().startsWith(QStringLiteral("database is locked")), error.what());
    }
    m_connection->run({"COMMIT"});
    QSqlDatabase::removeDatabase(readerName);
}

void tst_SqliteDatabase::finishedRowsHoldNoLock()
{
    m_connection->run({"CREATE TABLE t (id INTEGER)", "INSERT INTO t VALUES (1), (2)"});
    kor::SqlDatabase database(m_connection->connection());
    const auto rows = database.OpenRecordset(QStringLiteral("SELECT id FROM t"));
    while (!rows->Eof())
        rows->MoveNext();
    m_connection->run({"DROP TABLE t"}); // refused while a statement reads it
}

QTEST_GUILESS_MAIN(tst_SqliteDatabase)
#include "tst_sqlitedatabase.moc"
