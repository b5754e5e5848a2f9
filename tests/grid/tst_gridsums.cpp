// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsums.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/Variant>

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

using namespace kor;

Q_DECLARE_METATYPE(QVariantList)

namespace {

RowValues valuesOf(const QVariantList &values)
{
    return [values](int row) { return values.at(row - 1); };
}

} // namespace

//! Sum and greatest value of a column.
class tst_GridSums : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sumAndGreatest_data();
    void sumAndGreatest();
    void everyStepIsRoundedToASingle();
    void moreRowsThanAnIntegerCountsOverflowBeforeReading();
    void theGreatestHasNoLimitOfRows();
    void aSumThatNoSingleHoldsOverflows();
    void theRememberedGreatestIsTheGreatest();
    void rowsThatComeBehindAreLookedAtAlone();
};

void tst_GridSums::sumAndGreatest_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<float>("sum");
    QTest::addColumn<float>("greatest");
    // clang-format off
    QTest::newRow("no rows")                      << QVariantList{}                             << 0.0F    << 0.0F;
    QTest::newRow("numbers")                      << QVariantList{1.5, 2, 3.25}                 << 6.75F   << 3.25F;
    QTest::newRow("negative ones: not below 0")   << QVariantList{-3.0, -1.0}                   << -4.0F   << 0.0F;
    QTest::newRow("Null is passed over")          << QVariantList{1.0, null(), 2.0}             << 3.0F    << 2.0F;
    QTest::newRow("texts are passed over")        << QVariantList{1.0, QStringLiteral("9")}     << 1.0F    << 1.0F;
    QTest::newRow("words are passed over")        << QVariantList{QStringLiteral("abc"), 2.0}   << 2.0F    << 2.0F;
    QTest::newRow("dates count as day numbers")   << QVariantList{QDate(1900, 1, 1)}            << 2.0F    << 2.0F;
    QTest::newRow("the greatest as a Single")     << QVariantList{16777217.0}                   << 16777216.0F << 16777216.0F;
    QTest::newRow("the first of equals")          << QVariantList{2.0, 2.0}                     << 4.0F    << 2.0F;
    // clang-format on
}

void tst_GridSums::sumAndGreatest()
{
    QFETCH(QVariantList, values);
    const int count = static_cast<int>(values.size());
    QTEST(sumOfRows(count, valuesOf(values), Locale::systemDefault()), "sum");
    QTEST(greatestOfRows(count, valuesOf(values), Locale::systemDefault()), "greatest");
}

void tst_GridSums::everyStepIsRoundedToASingle()
{
    // Summed in double precision and rounded once, the last ones would not be lost.
    const QVariantList values{16777216.0, 1.0, 1.0, 1.0, 1.0};
    QCOMPARE(sumOfRows(5, valuesOf(values), Locale::systemDefault()), 16777216.0F);
}

void tst_GridSums::moreRowsThanAnIntegerCountsOverflowBeforeReading()
{
    int reads = 0;
    const auto one = [&reads](int) {
        ++reads;
        return QVariant(1.0);
    };
    QCOMPARE(sumOfRows(32767, one, Locale::systemDefault()), 32767.0F);
    QCOMPARE(reads, 32767);
    reads = 0;
    QCOMPARE(errorOf([&] { return sumOfRows(32768, one, Locale::systemDefault()); }), 6);
    QCOMPARE(reads, 0);
}

void tst_GridSums::theGreatestHasNoLimitOfRows()
{
    const auto number = [](int row) { return QVariant(double(row)); };
    QCOMPARE(greatestOfRows(40000, number, Locale::systemDefault()), 40000.0F);
}

void tst_GridSums::aSumThatNoSingleHoldsOverflows()
{
    QCOMPARE(errorOf([] {
                 return sumOfRows(
                     2, [](int) { return QVariant(3e38); }, Locale::systemDefault());
             }),
             6);
}

void tst_GridSums::theRememberedGreatestIsTheGreatest()
{
    QRandomGenerator random(2026);
    QVariantList values;
    GreatestInColumn remembered;
    const auto valueIn = [&](int row) { return values.at(row - 1); };
    for (int round = 0; round < 2000; ++round) {
        const int count = static_cast<int>(values.size());
        const QVariant value = random.bounded(4) == 0 ? null() : QVariant(double(random.bounded(1000)) - 100);
        switch (const int row = count ? random.bounded(count) : 0; random.bounded(count ? 4 : 1)) {
        case 0: values << value; break;
        case 1:
            values[row] = value;
            remembered.changed(row + 1);
            break;
        case 2:
            values.removeAt(row);
            remembered.changed(row + 1);
            break;
        default: // another column was asked for meanwhile
            (void)remembered.of(2, count, valueIn, Locale::systemDefault());
            break;
        }
        const int rows = static_cast<int>(values.size());
        QCOMPARE(remembered.of(1, rows, valueIn, Locale::systemDefault()),
                 greatestOfRows(rows, valueIn, Locale::systemDefault()));
    }
}

void tst_GridSums::rowsThatComeBehindAreLookedAtAlone()
{
    GreatestInColumn remembered;
    QList<int> read;
    const auto valueIn = [&](int row) {
        read << row;
        return QVariant(double(row));
    };
    QCOMPARE(remembered.of(1, 3, valueIn, Locale::systemDefault()), 3.0F);
    read.clear();
    QCOMPARE(remembered.of(1, 5, valueIn, Locale::systemDefault()), 5.0F);
    QCOMPARE(read, (QList<int>{4, 5}));
    remembered.changed(6);
    read.clear();
    QCOMPARE(remembered.of(1, 5, valueIn, Locale::systemDefault()), 5.0F);
    QCOMPARE(read, QList<int>{});
}

QTEST_APPLESS_MAIN(tst_GridSums)
#include "tst_gridsums.moc"
