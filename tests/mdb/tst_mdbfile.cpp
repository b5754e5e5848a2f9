// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/runtimeerrors.h"

#include <KorDaoUC/MdbFile>

#include <QtCore/QCryptographicHash>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

using namespace kor;

//! Files: a real one, where there is one, and what is none.
class tst_MdbFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aRealFile();
    void textsAreReadByTheCodePageOfTheFile();
    void aRealFileIsOnlyRead();
    void readingCanBeStopped();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();
    void aFileThatIsCutIsRefused();

private:
    [[nodiscard]] static QString file() { return QStringLiteral(KOR_MDB_FILE); }
    [[nodiscard]] static QSqlDatabase target() { return QSqlDatabase::database(QStringLiteral("target")); }
    [[nodiscard]] QVariant value(const QString &statement) const
    {
        QSqlQuery query(target());
        if (!query.exec(statement))
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        return query.next() ? query.value(0) : QVariant();
    }

    QTemporaryDir folder;
};

void tst_MdbFile::init()
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("target"));
    connection.setDatabaseName(QStringLiteral(":memory:"));
    QVERIFY(connection.open());
}

void tst_MdbFile::cleanup()
{
    target().close();
    QSqlDatabase::removeDatabase(QStringLiteral("target"));
}

void tst_MdbFile::aRealFile()
{
    if (!QFile::exists(file()))
        QSKIP("no .mdb file here: set KORDAOUC_MDB_FILE to one");
    const MdbReading reading = readMdbFile(file(), target());
    QVERIFY(reading.isComplete);
    QCOMPARE(reading.tables, 9);
    QCOMPARE(reading.rows, 4032);
    QCOMPARE(reading.remarks, QStringList());
    const auto text = [this](const char *statement) { return value(QString::fromUtf8(statement)).toString(); };
    QCOMPARE(text("SELECT count(*) FROM Orders"), QStringLiteral("830"));
    QCOMPARE(text("SELECT count(*) FROM \"Umsätze\""), QStringLiteral("830"));
    QCOMPARE(text("SELECT group_concat(name) FROM pragma_table_info('Order Details') WHERE pk > 0"),
             QStringLiteral("OrderID,ProductID"));
    QCOMPARE(text("SELECT count(*) FROM pragma_foreign_key_check"), QStringLiteral("0"));
    QCOMPARE(text("SELECT count(*) FROM pragma_foreign_key_list('Order Details')"), QStringLiteral("2"));
    QCOMPARE(text("SELECT max(length(OrderDate)) FROM Orders"), QStringLiteral("10")); // days without a time
    QCOMPARE(text("SELECT printf('%.2f', sum(UnitPrice * Quantity * (1 - Discount))) FROM \"Order Details\""),
             text("SELECT printf('%.2f', total(round(UnitPrice * Quantity * (1 - round(Discount, 2)), 8))) "
                  "FROM \"Order Details\"")); // a Single has become the Double of its digits
    QVERIFY(text("SELECT max(length(Notes)) FROM Employees").toInt() > 255);
    QVERIFY(text("SELECT min(length(Picture)) FROM Categories").toInt() > 1000);
    QCOMPARE(text("SELECT CompanyName FROM Customers WHERE CustomerID = 'blauS'"),
             QStringLiteral("Blauer See Delikatessen"));
}

void tst_MdbFile::textsAreReadByTheCodePageOfTheFile()
{
    if (!QFile::exists(file()))
        QSKIP("no .mdb file here: set KORDAOUC_MDB_FILE to one");
    QFile western(file());
    QVERIFY(western.open(QIODevice::ReadOnly));
    QByteArray bytes = western.readAll();
    // As it would be on a Polish machine. The head is masked with the same bits in every file.
    constexpr qsizetype placeOfCodePage = 0x3c;
    constexpr int changed = 1252 ^ 1250;
    bytes[placeOfCodePage] = static_cast<char>(bytes.at(placeOfCodePage) ^ changed);
    QVERIFY(bytes.contains("Filtrowa"));
    bytes.replace("Filtrowa", "G\xea\x9clowa\xf1");
    const QString name = folder.filePath(QStringLiteral("polski.mdb"));
    QFile polish(name);
    QVERIFY(polish.open(QIODevice::WriteOnly));
    polish.write(bytes);
    polish.close();
    QVERIFY(readMdbFile(name, target()).isComplete);
    QCOMPARE(value(QStringLiteral("SELECT Address FROM Customers WHERE CustomerID = 'WOLZA'")).toString(),
             QStringLiteral("ul. Gęślowań 68"));
}

void tst_MdbFile::aRealFileIsOnlyRead()
{
    if (!QFile::exists(file()))
        QSKIP("no .mdb file here: set KORDAOUC_MDB_FILE to one");
    const QString copy = folder.filePath(QStringLiteral("żółty plik.mdb"));
    QVERIFY(QFile::copy(file(), copy));
    const auto hash = [&] {
        QFile bytes(copy);
        QCryptographicHash sum(QCryptographicHash::Sha256);
        return bytes.open(QIODevice::ReadOnly) && sum.addData(&bytes) ? sum.result() : QByteArray();
    };
    const QByteArray before = hash();
    QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner));
    QVERIFY(readMdbFile(copy, target()).isComplete);
    QCOMPARE(hash(), before);
}

void tst_MdbFile::readingCanBeStopped()
{
    if (!QFile::exists(file()))
        QSKIP("no .mdb file here: set KORDAOUC_MDB_FILE to one");
    const MdbReading reading = readMdbFile(file(), target(), [](const QString &, qint64, qint64) { return false; });
    if (!reading.isComplete) // on a fast machine it is done before anyone is asked
        QCOMPARE(value(QStringLiteral("SELECT count(*) FROM sqlite_schema")).toInt(), 0);
}

void tst_MdbFile::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("number");
    QTest::newRow("empty") << QByteArray("") << 3343;
    QTest::newRow("a text") << QByteArray("Standard Jet DB, or so it says") << 3343;
    QTest::newRow("only a head") << QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) << 3343;
    QTest::newRow("an SQLite file") << QByteArray("SQLite format 3\0", 16) << 3343;
    QTest::newRow("another version of the format")
        << QByteArray("\0\1\0\0Standard ACE DB\0\2\0\0\0", 24).leftJustified(4096, '\0') << 3343;
    QTest::newRow("no file at all") << QByteArray() << 3024;
}

void tst_MdbFile::whatIsNoFileIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, number);
    const QString name = folder.filePath(QStringLiteral("plik.mdb"));
    QFile::remove(name);
    if (!bytes.isNull()) {
        QFile made(name);
        QVERIFY(made.open(QIODevice::WriteOnly));
        made.write(bytes);
    }
    QCOMPARE(errorOf([&] { (void)readMdbFile(name, target()); }), number);
    QCOMPARE(value(QStringLiteral("SELECT count(*) FROM sqlite_schema")).toInt(), 0);
}

void tst_MdbFile::aFileThatIsCutIsRefused()
{
    if (!QFile::exists(file()))
        QSKIP("no .mdb file here: set KORDAOUC_MDB_FILE to one");
    QFile whole(file());
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    const QString name = folder.filePath(QStringLiteral("ucięty.mdb"));
    for (const qsizetype size : {qsizetype(4096), qsizetype(40960), bytes.size() / 4, bytes.size() / 2}) {
        QFile::remove(name);
        QFile cut(name);
        QVERIFY(cut.open(QIODevice::WriteOnly));
        cut.write(bytes.first(size));
        cut.close();
        QCOMPARE(errorOf([&] { (void)readMdbFile(name, target()); }), 3343);
        QCOMPARE(value(QStringLiteral("SELECT count(*) FROM sqlite_schema")).toInt(), 0);
        cleanup();
        init();
    }
}

QTEST_GUILESS_MAIN(tst_MdbFile)
#include "tst_mdbfile.moc"
