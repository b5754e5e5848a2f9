// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderfiles.h"
#include "orders/recordstore.h"
#include "orders/recordtables.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace orders;
using Kind = RecordOutcome::Kind;

namespace {

RecordTable tableOf(const QString &name) { return name == u"customers" ? customersTable() : productsTable(8); }

qsizetype placeOf(const RecordTable &table, const QString &column)
{
    for (qsizetype at = 0; at < table.fields.size(); ++at) {
        if (table.fields.at(at).column == column)
            return at;
    }
    return -1;
}

//! A product that nobody has ordered.
Record product()
{
    return {0, {QStringLiteral("Ździebełko"), QStringLiteral("Z1"), qint64(1), qint64(2), qint64(1250), qint64(23)}};
}

} // namespace

//! Customers and products: what may be saved of them, and what two desks do to each other.
class tst_RecordStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        test::makeFile(m_folder->filePath(QStringLiteral("a.sqlite")));
        m_file = std::make_unique<OrderStore>(m_folder->filePath(QStringLiteral("a.sqlite")));
        m_store = std::make_unique<RecordStore>(m_file->connection(), productsTable(8));
    }
    void cleanup()
    {
        m_store.reset();
        m_file.reset();
    }

    void taxNumbersEndWithTheirCheckDigit_data()
    {
        QTest::addColumn<QString>("nine");
        QTest::addColumn<int>("digit"); // -1: none fits
        // clang-format off
        QTest::newRow("of the sample")           << "999002904" << 1;
        QTest::newRow("of an authority")         << "123456321" << 8;
        QTest::newRow("all the same")            << "111111111" << 1;
        QTest::newRow("ten is no digit")         << "100000016" << -1;
        // clang-format on
    }
    void taxNumbersEndWithTheirCheckDigit()
    {
        QFETCH(const QString, nine);
        QTEST(checkDigitOf(nine).value_or(-1), "digit");
    }

    void everySampleRecordMayBeSavedAsItIs()
    {
        for (const RecordTable &table : {customersTable(), productsTable(8)}) {
            const RecordStore store(m_file->connection(), table);
            int seen = 0;
            for (qint64 id = 1; const auto record = store.record(id); ++id, ++seen) {
                Record asNew = *record;
                asNew.id = 0;
                const auto problem = problemOf(table, asNew, {});
                QVERIFY2(!problem, qPrintable(problem ? problem->text : QString()));
            }
            QVERIFY(seen >= 240);
        }
    }

    void faultsAreTold_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("said"); // "": it may be saved
        const auto row = [](const char *name, const char *table, const char *column, const QVariant &value,
                            const char *said) {
            QTest::newRow(name) << QString::fromLatin1(table) << QString::fromLatin1(column) << value
                                << QString::fromUtf8(said);
        };
        // clang-format off
        row("a customer without a name",      "customers", "name", QString(),                "nazwę klienta");
        row("a customer of no group",         "customers", "group_id", QVariant(),           "Wybierz grupę");
        row("no tax number",                  "customers", "nip", QVariant(),                "");
        row("a tax number",                   "customers", "nip", QStringLiteral("1234563218"), "");
        row("a tax number too short",         "customers", "nip", QStringLiteral("123456321"), "10 cyfr");
        row("letters in a tax number",        "customers", "nip", QStringLiteral("12345632l8"), "10 cyfr");
        row("a wrong check digit",            "customers", "nip", QStringLiteral("1234563219"), "cyfra kontrolna");
        row("two digits changed round",       "customers", "nip", QStringLiteral("1234653218"), "cyfra kontrolna");
        row("one that no check digit fits",   "customers", "nip", QStringLiteral("1000000160"), "cyfra kontrolna");
        row("no street, as in a village",     "customers", "street", QString(),              "");
        row("a postal code",                  "customers", "postal_code", QStringLiteral("00-950"), "");
        row("a postal code of letters",       "customers", "postal_code", QStringLiteral("OO-950"), "00-000");
        row("no postal code",                 "customers", "postal_code", QString(),         "00-000");
        row("no city",                        "customers", "city", QString(),                "miejscowość");
        row("a product without a symbol",     "products", "symbol", QString(),               "symbol towaru");
        row("a product of no category",       "products", "category_id", QVariant(),         "kategorię");
        row("a product of no unit",           "products", "unit_id", QVariant(),             "jednostkę");
        row("the least price",                "products", "net_price", qint64(1),            "");
        row("no price",                       "products", "net_price", QVariant(),           "Podaj cenę");
        row("a price of nothing",             "products", "net_price", qint64(0),            "większa od zera");
        row("a negative price",               "products", "net_price", qint64(-1),           "większa od zera");
        row("a price beyond all",             "products", "net_price", qint64(1) << 50,      "za duża");
        row("no rate of VAT",                 "products", "vat", QVariant(),                 "VAT");
        // clang-format on
    }
    void faultsAreTold()
    {
        QFETCH(const QString, table);
        QFETCH(const QString, column);
        QFETCH(const QVariant, value);
        QFETCH(const QString, said);
        const RecordTable rules = tableOf(table);
        const RecordStore store(m_file->connection(), rules);
        const Record loaded = store.record(1).value();
        const qsizetype place = placeOf(rules, column);
        QVERIFY(place >= 0);
        Record record = loaded;
        record.values[place] = value;
        const std::optional<RecordProblem> problem = problemOf(rules, record, loaded);
        QCOMPARE(problem.has_value(), !said.isEmpty());
        if (!problem)
            return;
        QCOMPARE(problem->field, place);
        QVERIFY2(problem->text.contains(said), qPrintable(problem->text));
        // What stood there before is nobody's mistake of today.
        QVERIFY(!problemOf(rules, record, record));
    }

    void whatIsTypedIsTidied_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("tidied");
        // clang-format off
        QTest::newRow("a number with dashes")      << "nip" << "123-456-32-18"  << "1234563218";
        QTest::newRow("a number with blanks")      << "nip" << " 123 456 32 18" << "1234563218";
        QTest::newRow("a number of the Union")     << "nip" << "pl1234563218"   << "1234563218";
        QTest::newRow("letters are left alone")    << "nip" << "12A"            << "12A";
        QTest::newRow("a code without its dash")   << "postal_code" << "00950"  << "00-950";
        QTest::newRow("a code with its dash")      << "postal_code" << "00-950 " << "00-950";
        QTest::newRow("half a code is left alone") << "postal_code" << "0095"   << "0095";
        // clang-format on
    }
    void whatIsTypedIsTidied()
    {
        QFETCH(const QString, column);
        QFETCH(const QString, typed);
        const RecordTable table = customersTable();
        QTEST(table.fields.at(placeOf(table, column)).tidied(typed), "tidied");
    }

    void aNewProductTakesTheUsualVat()
    {
        const Record record = newRecord(productsTable(8));
        QCOMPARE(record.values.last(), QVariant(qint64(8)));
        QCOMPARE(newRecord(customersTable()).values.first(), QVariant(QString()));
    }

    void whatIsSavedIsRead()
    {
        const RecordOutcome added = m_store->save(product(), {});
        QCOMPARE(int(added.kind), int(Kind::Done));
        QVERIFY(added.record.id > 0);
        QVERIFY(m_store->record(added.record.id) == added.record);
        QCOMPARE(added.record.values, product().values);
        Record changed = added.record;
        changed.values[4] = qint64(99);
        QCOMPARE(int(m_store->save(changed, added.record).kind), int(Kind::Done));
        QVERIFY(m_store->record(changed.id) == changed);
    }

    void whatStandsOnceIsRefusedInWords_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("value");
        QTest::newRow("the name of another product") << "products"
                                                     << "name"
                                                     << "";
        QTest::newRow("the symbol of another product") << "products"
                                                       << "symbol"
                                                       << "";
        QTest::newRow("the same in small letters") << "products"
                                                   << "symbol"
                                                   << "t0002";
        QTest::newRow("the tax number of another customer") << "customers"
                                                            << "nip"
                                                            << "";
    }
    void whatStandsOnceIsRefusedInWords()
    {
        QFETCH(const QString, table);
        QFETCH(const QString, column);
        QFETCH(const QString, value);
        RecordStore store(m_file->connection(), tableOf(table));
        const qsizetype place = placeOf(store.table(), column);
        const Record loaded = store.record(1).value();
        const Record other = store.record(2).value();
        for (const bool isNew : {false, true}) {
            Record record = loaded;
            record.values[place] = value.isEmpty() ? other.values.at(place) : value;
            if (isNew) {
                record.id = 0;
                for (qsizetype at = 0; at < place; ++at)
                    record.values[at] = store.table().fields.at(at).isOnce ? QStringLiteral("inne") : record.values[at];
            }
            const RecordOutcome outcome = store.save(record, loaded);
            QCOMPARE(int(outcome.kind), int(Kind::Refused));
            QCOMPARE(outcome.problem.field, place);
            QVERIFY2(outcome.problem.text.contains(other.values.first().toString()), qPrintable(outcome.problem.text));
            QVERIFY(store.record(1) == loaded);
        }
    }

    void aTaxNumberMayBeMissingMoreThanOnce()
    {
        RecordStore store(m_file->connection(), customersTable());
        for (const qint64 id : {1, 2}) {
            const Record loaded = store.record(id).value();
            Record record = loaded;
            record.values[placeOf(store.table(), QStringLiteral("nip"))] = QVariant();
            QCOMPARE(int(store.save(record, loaded).kind), int(Kind::Done));
            QVERIFY(store.record(id) == record);
        }
    }

    void whatAnotherDeskSavedIsNotOverwritten()
    {
        const Record loaded = m_store->record(7).value();
        const OrderStore otherFile(m_folder->filePath(QStringLiteral("a.sqlite")));
        RecordStore other(otherFile.connection(), productsTable(8));
        Record theirs = loaded;
        theirs.values[4] = qint64(777);
        QCOMPARE(int(other.save(theirs, loaded).kind), int(Kind::Done));
        Record ours = loaded;
        ours.values[0] = QStringLiteral("nasza nazwa");
        const RecordOutcome outcome = m_store->save(ours, loaded);
        QCOMPARE(int(outcome.kind), int(Kind::ChangedMeanwhile));
        QVERIFY(outcome.record == theirs);
        QVERIFY(m_store->record(7) == theirs);
        QCOMPARE(differences(loaded, ours, theirs), QList<qsizetype>{4});
        QCOMPARE(int(m_store->remove(loaded).kind), int(Kind::ChangedMeanwhile));
    }

    void whatIsNamedElsewhereStays_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("said");
        QTest::newRow("a customer who has orders") << "customers"
                                                   << "Klient ma zamówienia (liczba zamówień: ";
        QTest::newRow("a product that was ordered") << "products"
                                                    << "Towar jest na zamówieniach (liczba pozycji: ";
    }
    void whatIsNamedElsewhereStays()
    {
        QFETCH(const QString, table);
        QFETCH(const QString, said);
        RecordStore store(m_file->connection(), tableOf(table));
        const Record loaded = store.record(1).value();
        const RecordOutcome outcome = store.remove(loaded);
        QCOMPARE(int(outcome.kind), int(Kind::Refused));
        QVERIFY2(outcome.problem.text.startsWith(said), qPrintable(outcome.problem.text));
        QVERIFY(store.record(1) == loaded);
    }

    void whatNobodyNamesIsRemoved()
    {
        const Record added = m_store->save(product(), {}).record;
        QCOMPARE(int(m_store->remove(added).kind), int(Kind::Done));
        QVERIFY(!m_store->record(added.id));
        QCOMPARE(int(m_store->remove(added).kind), int(Kind::Done)); // as wished
        QCOMPARE(int(m_store->save(added, added).kind), int(Kind::DeletedMeanwhile));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<OrderStore> m_file;
    std::unique_ptr<RecordStore> m_store;
};

QTEST_GUILESS_MAIN(tst_RecordStore)
#include "tst_recordstore.moc"
