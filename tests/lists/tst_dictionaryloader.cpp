// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/dictionaryloader.h"

#include <KorDaoUC/Database>
#include <KorDaoUC/Recordset>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

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

QTEST_GUILESS_MAIN(tst_DictionaryLoader)
#include "tst_dictionaryloader.moc"
