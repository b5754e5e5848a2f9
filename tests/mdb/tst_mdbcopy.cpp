// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "mdb/mdbcopy.h"
#include "mdb/sqliteschema.h"
#include "support/runtimeerrors.h"

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

#include <map>

using namespace kor;
using namespace kor::mdb;

namespace {

//! Contents made up here.
class Made final : public Contents
{
public:
    QList<Table> allTables;
    QList<Relation> allRelations;
    std::map<QString, QList<Row>> rows;

    [[nodiscard]] QList<Table> tables() override { return allTables; }
    [[nodiscard]] QList<Relation> relations() override { return allRelations; }
    void read(const Table &table, const std::function<bool(const Row &)> &take) override
    {
        for (const Row &row : rows[table.name]) {
            if (!take(row))
                return;
        }
    }
};

} // namespace

//! The tables of a desktop database as SQLite gets them.
class tst_MdbCopy : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void everyTypeBecomesWhatSqliteCanCompare_data();
    void everyTypeBecomesWhatSqliteCanCompare();
    void bytesStayBytes();
    void namesMayHoldAnything();
    void textsAreComparedWithoutCase();
    void keysIndexesAndRelationsComeAlong();
    void aTargetThatHoldsRelationsTakesThemAll_data();
    void aTargetThatHoldsRelationsTakesThemAll();
    void aRelationToATableThatIsNotThereIsSaid();
    void anIndexThatIsUniqueNoLongerIsSaid();
    void aDateBeyondTheCalendarIsSaid();
    void aTableThatIsThereAlreadyRefusesAll();
    void whoStopsLeavesTheTargetAsItWas();
    void manyRowsComeInTheirOrder();
    void aTableWithFewerRowsThanItSaysIsBroken();

private:
    [[nodiscard]] QVariantList rowsOf(const QString &statement) const
    {
        QSqlQuery query(target());
        if (!query.exec(statement))
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        QVariantList values;
        while (query.next())
            values << query.value(0);
        return values;
    }
    [[nodiscard]] static QSqlDatabase target() { return QSqlDatabase::database(QStringLiteral("target")); }
    MdbReading copy() { return copyInto(target(), made, {}); }
    //! Lines that belong to orders, one of each.
    void makeRelated();

    Made made;
};

void tst_MdbCopy::init()
{
    made = {};
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("target"));
    connection.setDatabaseName(QStringLiteral(":memory:"));
    QVERIFY(connection.open());
}

void tst_MdbCopy::cleanup()
{
    target().close();
    QSqlDatabase::removeDatabase(QStringLiteral("target"));
}

void tst_MdbCopy::everyTypeBecomesWhatSqliteCanCompare_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("stored"); // its storage class, and itself
    const auto row = [](const char *name, Type type, const QVariant &value, const char *stored) {
        QTest::newRow(name) << int(type) << value << QString::fromUtf8(stored);
    };
    row("yes", Type::Boolean, true, "integer 1");
    row("no", Type::Boolean, false, "integer 0");
    row("whole number", Type::Integer, qint64(-2147483648), "integer -2147483648");
    row("currency, whole", Type::Currency, QStringLiteral("14.0000"), "integer 14");
    row("currency", Type::Currency, QStringLiteral("1234.5600"), "real 1234.56");
    row("currency of all digits", Type::Currency, QStringLiteral("922337203685477.5807"), "text 922337203685477.5807");
    row("negative currency", Type::Currency, QStringLiteral("-0.0001"), "real -0.0001");
    row("decimal of 28 digits", Type::Decimal, QStringLiteral("1234567890123456789012345.678"),
        "text 1234567890123456789012345.678");
    row("single", Type::Single, 0.15F, "real 0.15");
    row("double", Type::Double, 0.1, "real 0.1");
    row("date", Type::Date, 35250.0, "text 1996-07-04");
    row("date and time", Type::Date, 35250.75, "text 1996-07-04 18:00:00");
    row("time", Type::Date, 0.5, "text 12:00:00");
    row("before day 0", Type::Date, -1.25, "text 1899-12-29 06:00:00");
    row("first day", Type::Date, -657434.0, "text 0100-01-01");
    row("text", Type::Text, QStringLiteral("zażółć gęślą jaźń"), "text zażółć gęślą jaźń");
    row("empty text", Type::Text, QString(), "text ");
    row("quotes", Type::Text, QStringLiteral("O'Hara \"X\""), "text O'Hara \"X\"");
    row("memo", Type::Memo, QString(70000, u'ł'), qPrintable(QStringLiteral("text ") + QString(70000, u'ł')));
    row("guid", Type::Guid, QStringLiteral("{00112233-4455-6677-8899AABBCCDDEEFF}"),
        "text {00112233-4455-6677-8899AABBCCDDEEFF}");
    for (const Type type : {Type::Boolean, Type::Integer, Type::Currency, Type::Date, Type::Text, Type::Memo})
        QTest::addRow("nothing of type %d", int(type)) << int(type) << QVariant() << QStringLiteral("null ");
}

void tst_MdbCopy::everyTypeBecomesWhatSqliteCanCompare()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    made.allTables = {{QStringLiteral("t"), {{QStringLiteral("x"), static_cast<Type>(type)}}, {}, 1}};
    made.rows[QStringLiteral("t")] = {Row{value}};
    QVERIFY(copy().isComplete);
    QTEST(rowsOf(QStringLiteral("SELECT typeof(x) || ' ' || coalesce(CAST(x AS TEXT), '') FROM t")).first().toString(),
          "stored");
}

void tst_MdbCopy::bytesStayBytes()
{
    made.allTables = {{QStringLiteral("t"), {{QStringLiteral("x"), Type::Binary}}, {}, 1}};
    made.rows[QStringLiteral("t")] = {Row{QByteArray("a\0b", 3)}};
    QVERIFY(copy().isComplete);
    QCOMPARE(rowsOf(QStringLiteral("SELECT typeof(x) || ' ' || hex(x) FROM t")),
             QVariantList{QStringLiteral("blob 610062")});
}

void tst_MdbCopy::namesMayHoldAnything()
{
    const QString name = QStringLiteral("Pozycje \"zamówień\"; DROP");
    made.allTables = {
        {name, {{QStringLiteral("select"), Type::Integer}, {QStringLiteral("Nr [x]"), Type::Text}}, {}, 1}};
    made.rows[name] = {Row{qint64(7), QStringLiteral("a")}};
    QCOMPARE(copy().tables, 1);
    QCOMPARE(rowsOf(QStringLiteral("SELECT \"select\" FROM \"Pozycje \"\"zamówień\"\"; DROP\"")), QVariantList{7});
}

void tst_MdbCopy::textsAreComparedWithoutCase()
{
    made.allTables = {{QStringLiteral("t"), {{QStringLiteral("x"), Type::Text}}, {}, 3}};
    made.rows[QStringLiteral("t")] = {Row{QStringLiteral("beta")}, Row{QStringLiteral("Alfa")},
                                      Row{QStringLiteral("CYNA")}};
    QVERIFY(copy().isComplete);
    QCOMPARE(rowsOf(QStringLiteral("SELECT x FROM t WHERE x = 'BETA'")).size(), 1);
    QCOMPARE(rowsOf(QStringLiteral("SELECT x FROM t ORDER BY x")),
             (QVariantList{QStringLiteral("Alfa"), QStringLiteral("beta"), QStringLiteral("CYNA")}));
}

void tst_MdbCopy::makeRelated()
{
    const Column id{QStringLiteral("id"), Type::Integer};
    made.allTables = {
        {QStringLiteral("linie"),
         {id, {QStringLiteral("zam"), Type::Integer}},
         {{QStringLiteral("zam"), {QStringLiteral("zam")}, false, false}},
         1},
        {QStringLiteral("zamówienia"), {id}, {{QStringLiteral("PrimaryKey"), {QStringLiteral("id")}, true, true}}, 1}};
    made.allRelations = {
        {QStringLiteral("linie"), {QStringLiteral("zam")}, QStringLiteral("zamówienia"), {QStringLiteral("id")}}};
    made.rows[QStringLiteral("linie")] = {Row{qint64(1), qint64(5)}};
    made.rows[QStringLiteral("zamówienia")] = {Row{qint64(5)}};
}

void tst_MdbCopy::keysIndexesAndRelationsComeAlong()
{
    makeRelated();
    QCOMPARE(copy().remarks, QStringList());
    QCOMPARE(rowsOf(QStringLiteral("SELECT name FROM pragma_index_list('linie')")),
             QVariantList{QStringLiteral("linie zam")});
    QCOMPARE(rowsOf(QStringLiteral("SELECT name FROM pragma_table_info('zamówienia') WHERE pk = 1")),
             QVariantList{QStringLiteral("id")});
    QCOMPARE(rowsOf(QStringLiteral("SELECT \"table\" FROM pragma_foreign_key_list('linie')")),
             QVariantList{QStringLiteral("zamówienia")});
    (void)rowsOf(QStringLiteral("PRAGMA foreign_keys = ON"));
    QSqlQuery orphan(target());
    QVERIFY(!orphan.exec(QStringLiteral("INSERT INTO linie VALUES (2, 6)")));
}

void tst_MdbCopy::aTargetThatHoldsRelationsTakesThemAll_data()
{
    QTest::addColumn<qint64>("owner");
    QTest::addColumn<bool>("isBroken");
    QTest::newRow("rows before those they belong to") << qint64(5) << false;
    QTest::newRow("a row that belongs to none") << qint64(6) << false;
    QTest::newRow("a file that is broken") << qint64(5) << true;
}

void tst_MdbCopy::aTargetThatHoldsRelationsTakesThemAll()
{
    QFETCH(const qint64, owner);
    QFETCH(const bool, isBroken);
    makeRelated();
    made.rows[QStringLiteral("linie")] = {Row{qint64(1), owner}};
    if (isBroken)
        made.rows[QStringLiteral("zamówienia")].clear();
    (void)rowsOf(QStringLiteral("PRAGMA foreign_keys = ON"));
    if (isBroken) {
        QVERIFY_THROWS_EXCEPTION(RunTimeError, (void)copy());
    } else {
        QVERIFY(copy().isComplete);
        QCOMPARE(rowsOf(QStringLiteral("SELECT zam FROM linie")), QVariantList{owner});
    }
    QCOMPARE(rowsOf(QStringLiteral("PRAGMA foreign_keys")), QVariantList{1});
}

void tst_MdbCopy::aRelationToATableThatIsNotThereIsSaid()
{
    made.allTables = {{QStringLiteral("linie"), {{QStringLiteral("zam"), Type::Integer}}, {}, 0}};
    made.allRelations = {
        {QStringLiteral("linie"), {QStringLiteral("zam")}, QStringLiteral("dalekie"), {QStringLiteral("id")}}};
    const MdbReading reading = copy();
    QVERIFY(reading.isComplete);
    QCOMPARE(reading.remarks.size(), 1);
    QVERIFY(reading.remarks.first().contains(QStringLiteral("'dalekie'")));
}

void tst_MdbCopy::anIndexThatIsUniqueNoLongerIsSaid()
{
    made.allTables = {{QStringLiteral("t"),
                       {{QStringLiteral("x"), Type::Text}},
                       {{QStringLiteral("i"), {QStringLiteral("x")}, false, true}},
                       2}};
    made.rows[QStringLiteral("t")] = {Row{QStringLiteral("a")}, Row{QStringLiteral("A")}};
    const MdbReading reading = copy();
    QCOMPARE(reading.rows, 2);
    QCOMPARE(reading.remarks, QStringList{QStringLiteral("The index 'i' of 't' is not unique here")});
}

void tst_MdbCopy::aDateBeyondTheCalendarIsSaid()
{
    made.allTables = {{QStringLiteral("t"), {{QStringLiteral("d"), Type::Date}}, {}, 1}};
    made.rows[QStringLiteral("t")] = {Row{1e12}};
    QCOMPARE(copy().remarks.size(), 1);
    QCOMPARE(rowsOf(QStringLiteral("SELECT d IS NULL FROM t")), QVariantList{1});
}

void tst_MdbCopy::aTableThatIsThereAlreadyRefusesAll()
{
    (void)rowsOf(QStringLiteral("CREATE TABLE b (y)"));
    const Column column{QStringLiteral("x"), Type::Integer};
    made.allTables = {{QStringLiteral("a"), {column}, {}, 1}, {QStringLiteral("b"), {column}, {}, 0}};
    made.rows[QStringLiteral("a")] = {Row{qint64(1)}};
    QCOMPARE(errorOf([&] { (void)copy(); }), 3146);
    QCOMPARE(rowsOf(QStringLiteral("SELECT name FROM sqlite_schema")), QVariantList{QStringLiteral("b")});
}

void tst_MdbCopy::whoStopsLeavesTheTargetAsItWas()
{
    made.allTables = {{QStringLiteral("a"), {{QStringLiteral("x"), Type::Memo}}, {}, 3000}};
    made.rows[QStringLiteral("a")] = QList<Row>(3000, Row{QString(20000, u'x')});
    qint64 all = 0;
    const MdbReading reading = copyInto(target(), made, [&](const QString &table, qint64, qint64 rows) {
        all = rows;
        return table != QStringLiteral("a");
    });
    QVERIFY(!reading.isComplete);
    QCOMPARE(all, 3000);
    QCOMPARE(rowsOf(QStringLiteral("SELECT name FROM sqlite_schema")), QVariantList());
}

void tst_MdbCopy::manyRowsComeInTheirOrder()
{
    made.allTables = {{QStringLiteral("a"), {{QStringLiteral("x"), Type::Integer}}, {}, 2000}};
    for (qint64 at = 0; at < 2000; ++at)
        made.rows[QStringLiteral("a")] << Row{at * 7 % 2000};
    QCOMPARE(copy().rows, 2000);
    const QVariantList read = rowsOf(QStringLiteral("SELECT x FROM a ORDER BY rowid"));
    for (int at = 0; at < 2000; ++at)
        QCOMPARE(read.at(at).toInt(), at * 7 % 2000);
}

void tst_MdbCopy::aTableWithFewerRowsThanItSaysIsBroken()
{
    made.allTables = {{QStringLiteral("a"), {{QStringLiteral("x"), Type::Integer}}, {}, 2}};
    made.rows[QStringLiteral("a")] = {Row{qint64(1)}};
    QCOMPARE(errorOf([&] { (void)copy(); }), 3343);
    QCOMPARE(rowsOf(QStringLiteral("SELECT name FROM sqlite_schema")), QVariantList());
}

QTEST_GUILESS_MAIN(tst_MdbCopy)
#include "tst_mdbcopy.moc"
