// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/testconnection.h"

#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtTest/QtTest>

using kor::RunTimeError;

//! A file of SQLite read through ODBC: what the toolkit's ODBC driver does in its own way. That ODBC driver knows the
//! types of declared columns only, so the suite of the other drivers does not fit it.
class tst_OdbcDatabase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void cleanupTestCase();

    void declaredColumnsKeepTheirTypes();
    void nullOfEveryTypeIsNull();
    void opensATableByItsName();
    void refusedStatementCarriesTheDriversText();

private:
    std::unique_ptr<TestConnection> m_file;
    std::unique_ptr<kor::SqlDatabase> m_database;
};

void tst_OdbcDatabase::initTestCase()
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QODBC")))
        QFAIL("the toolkit's ODBC driver is not installed: tools/install-deps test");
    m_file = std::make_unique<TestConnection>(TestConnection::Engine::Sqlite);
    m_file->run({"CREATE TABLE towary (id INTEGER, nazwa TEXT, cena DOUBLE, od DATE)",
                 "INSERT INTO towary VALUES (1, 'Łożysko', 12.5, '2026-03-29'), (NULL, NULL, NULL, NULL)"});
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QODBC"), QStringLiteral("odbc"));
    connection.setDatabaseName(QStringLiteral("DRIVER=SQLite3;Database=") + m_file->fileName());
    if (!connection.open())
        QFAIL(qPrintable(QStringLiteral("no ODBC driver for SQLite: ") + connection.lastError().text()));
    m_database = std::make_unique<kor::SqlDatabase>(connection);
}

void tst_OdbcDatabase::cleanupTestCase()
{
    m_database.reset();
    QSqlDatabase::removeDatabase(QStringLiteral("odbc"));
}

void tst_OdbcDatabase::declaredColumnsKeepTheirTypes()
{
    const auto rows = m_database->OpenRecordset(QStringLiteral("SELECT id, nazwa, cena, od FROM towary"));
    QCOMPARE(rows->FieldValue(0), QVariant(1));
    QCOMPARE(rows->FieldValue(1), QVariant(QStringLiteral("Łożysko")));
    QCOMPARE(rows->FieldValue(2), QVariant(12.5));
    QCOMPARE(rows->FieldValue(3), QVariant(QDate(2026, 3, 29)));
}

void tst_OdbcDatabase::nullOfEveryTypeIsNull()
{
    const auto rows = m_database->OpenRecordset(QStringLiteral("SELECT id, nazwa, cena, od FROM towary"));
    rows->MoveNext();
    for (int i = 0; i < rows->FieldCount(); ++i)
        QVERIFY2(kor::isNull(rows->FieldValue(i)), qPrintable(rows->FieldName(i)));
    rows->MoveNext();
    QVERIFY(rows->Eof());
}

void tst_OdbcDatabase::opensATableByItsName()
{
    QCOMPARE(m_database->OpenRecordset(QStringLiteral("Towary"))->FieldCount(), 4);
}

void tst_OdbcDatabase::refusedStatementCarriesTheDriversText()
{
    try {
        (void)m_database->OpenRecordset(QStringLiteral("SELECT * FROM brak"));
        QFAIL("a table that does not exist was opened");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.number(), 3146);
        QVERIFY2(error.description().contains(QStringLiteral("no such table: brak")), error.what());
    }
}

QTEST_GUILESS_MAIN(tst_OdbcDatabase)
#include "tst_odbcdatabase.moc"
