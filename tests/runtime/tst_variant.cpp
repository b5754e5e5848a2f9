// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/runtimeerrors.h"

#include <KorDaoUC/Arithmetic>
#include <KorDaoUC/Currency>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtTest/QTest>

#include <limits>

using kor::Locale;
using kor::VariantType;

namespace {

enum class Colour : quint8 { Red = 7 };

QVariant amount(qint64 tenThousandths)
{
    return QVariant::fromValue(kor::Currency::fromTenThousandths(tenThousandths));
}

} // namespace

class tst_Variant : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void types_data();
    void types();
    void nullAndEmpty();
    void sums_data();
    void sums();
    void sumErrors();
    void currency();
};

void tst_Variant::types_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<VariantType>("type");
    QTest::addColumn<VariantType>("normalizedType");
    QTest::addColumn<QVariant>("normalized");
    const auto same = [](const char *name, const QVariant &value, VariantType type) {
        QTest::newRow(name) << value << type << type << value;
    };
    const auto other = [](const char *name, const QVariant &value, VariantType type, const QVariant &normalized) {
        QTest::newRow(name) << value << VariantType::Other << type << normalized;
    };
    // clang-format off
    same("Empty",            QVariant(),                             VariantType::Empty);
    same("Null",             kor::null(),                            VariantType::Null);
    same("missing",          kor::missing(),                         VariantType::Missing);
    same("Boolean",          true,                                   VariantType::Boolean);
    same("Byte",             QVariant::fromValue(uchar(200)),        VariantType::Byte);
    same("Integer",          QVariant::fromValue(short(-5)),         VariantType::Integer);
    same("Long",             5,                                      VariantType::Long);
    same("64 bits beyond a Double",   qlonglong(9'007'199'254'740'993),  VariantType::LongLong);
    same("64 bits beyond it, negative", qlonglong(-9'007'199'254'740'993), VariantType::LongLong);
    same("highest 64 bits",           std::numeric_limits<qlonglong>::max(), VariantType::LongLong);
    same("lowest 64 bits",            std::numeric_limits<qlonglong>::min(), VariantType::LongLong);
    same("Single",           1.5F,                                   VariantType::Single);
    same("Double",           1.5,                                    VariantType::Double);
    same("Currency",         amount(15000),                          VariantType::Currency);
    same("date",             QDate(2000, 1, 1),                      VariantType::Date);
    same("String",           QStringLiteral("x"),                    VariantType::String);
    same("null text is an ordinary empty text", QString(),           VariantType::String);
    other("64 bits that fit a Long",  qlonglong(-5),                 VariantType::Long,    -5);
    other("64 bits that do not",      qlonglong(5'000'000'000),      VariantType::Double,  5e9);
    other("64 bits that a Double holds",  qlonglong(9'007'199'254'740'992), VariantType::Double, 9007199254740992.0);
    other("64 bits that it holds, negative", qlonglong(-9'007'199'254'740'992), VariantType::Double, -9007199254740992.0);
    other("unsigned beyond a Double",     qulonglong(9'007'199'254'740'993), VariantType::LongLong, qlonglong(9'007'199'254'740'993));
    other("unsigned 64 bits",         std::numeric_limits<qulonglong>::max(), VariantType::Double, 18446744073709551615.0);
    other("unsigned 32 bits",         uint(4'000'000'000),           VariantType::Double,  4e9);
    other("unsigned 16 bits",         QVariant::fromValue(ushort(60000)), VariantType::Long, 60000);
    other("signed char",              QVariant::fromValue(static_cast<signed char>(-3)), VariantType::Integer, QVariant::fromValue(short(-3)));
    other("bytes",                    QByteArray("żółw"),            VariantType::String,  QStringLiteral("żółw"));
    other("character",                QVariant::fromValue(QChar(u'ż')), VariantType::String, QStringLiteral("ż"));
    other("time",                     QTime(12, 0),                  VariantType::Date,    QDateTime(QDate(1899, 12, 30), QTime(12, 0), Qt::UTC));
    other("invalid date",             QDate(),                       VariantType::Null,    kor::null());
    other("date before the calendar", QDate(99, 12, 31),             VariantType::Null,    kor::null());
    other("date after the calendar",  QDate(10000, 1, 1),            VariantType::Null,    kor::null());
    other("enumeration",              QVariant::fromValue(Colour::Red), VariantType::Long, 7);
    other("list",                     QVariantList{1, 2},            VariantType::Empty,   QVariant());
    QTest::newRow("date with a time of midnight") << QVariant(QDateTime(QDate(2000, 1, 1), QTime(0, 0))) << VariantType::Date << VariantType::Date << QVariant(QDate(2000, 1, 1));
    QTest::newRow("a database's NULL number")     << QVariant(QMetaType(QMetaType::Int)) << VariantType::Null << VariantType::Null << kor::null();
    // clang-format on
}

void tst_Variant::types()
{
    QFETCH(QVariant, value);
    QFETCH(VariantType, type);
    QFETCH(VariantType, normalizedType);
    QFETCH(QVariant, normalized);
    QCOMPARE(kor::variantType(value), type);
    const QVariant got = kor::normalized(value);
    QCOMPARE(kor::variantType(got), normalizedType);
    QCOMPARE(got, normalized);
}

void tst_Variant::nullAndEmpty()
{
    QVERIFY(kor::isNull(kor::null()));
    QVERIFY(kor::isNull(QVariant(QMetaType(QMetaType::QString))));
    QVERIFY(!kor::isNull(QVariant()));
    QVERIFY(!kor::isNull(QString()));
    QVERIFY(kor::isEmpty(QVariant()));
    QVERIFY(!kor::isEmpty(kor::null()));
    QVERIFY(kor::isMissing(kor::missing()));
    QVERIFY(!kor::isMissing(kor::null()));
}

void tst_Variant::sums_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<QVariant>("expected");
    const auto row = [](const char *name, const QVariant &left, const QVariant &right, const QVariant &expected) {
        QTest::newRow(name) << left << right << expected;
    };
    const auto integer = [](int value) { return QVariant::fromValue(static_cast<short>(value)); };
    const QVariant huge = qlonglong(9'007'199'254'740'993);
    const auto byte = [](int value) { return QVariant::fromValue(static_cast<uchar>(value)); };
    // clang-format off
    row("Integers",                       integer(2),     integer(3),       integer(5));
    row("Integers widen to Long",         integer(32767), integer(1),       32768);
    row("Longs widen to Double",          2147483647,     1,                2147483648.0);
    row("Bytes",                          byte(1),        byte(2),          byte(3));
    row("Bytes widen to Integer",         byte(255),      byte(1),          integer(256));
    row("Boolean is an Integer",          true,           true,             integer(-2));
    row("Integer and Double",             integer(1),     0.5,              1.5);
    row("Integer and Single",             integer(1),     0.5F,             1.5F);
    row("Long and Single",                1,              0.5F,             1.5);
    row("Single and Double",              0.5F,           0.25,             0.75);
    row("Singles widen to Double",        3e38F,          3e38F,            double(3e38F) * 2);
    row("Currency is exact",              amount(1000),   amount(2000),     amount(3000));
    row("Currency and Long",              amount(15000),  2,                amount(35000));
    row("Currency and Double",            amount(15000),  0.25,             amount(17500));
    row("Single and Currency",            0.25F,          amount(15000),    amount(17500));
    row("date and number",                QDate(2000, 1, 1), 31,            QDate(2000, 2, 1));
    row("number and date",                0.5,            QDate(2000, 1, 1), QDateTime(QDate(2000, 1, 1), QTime(12, 0), Qt::UTC));
    row("date and Currency",              QDate(2000, 1, 1), amount(5000),  QDateTime(QDate(2000, 1, 1), QTime(12, 0), Qt::UTC));
    row("a day beyond the calendar is a Double", QDate(9999, 12, 31), 1,    2958466.0);
    row("Null and a number",              kor::null(),    1,                kor::null());
    row("text and Null",                  QStringLiteral("a"), kor::null(), kor::null());
    row("Empty and a number",             QVariant(),     1.5,              1.5);
    row("text and Empty",                 QStringLiteral("a"), QVariant(),  QStringLiteral("a"));
    row("Empty and Empty",                QVariant(),     QVariant(),       integer(0));
    row("texts are joined",               QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("12"));
    row("text and number add up",         QStringLiteral("1,5"), 2,         3.5);
    row("text and Currency add up",       amount(10000),  QStringLiteral("0,5"), amount(15000));
    row("64 bits",                        qlonglong(1),   2,                3);
    row("64 bits and Long are exact",     huge,           2,                qlonglong(9'007'199'254'740'995));
    row("64 bits down to a Double",       huge,           -1,               9007199254740992.0);
    row("64 bits twice",                  huge,           huge,             qlonglong(18'014'398'509'481'986));
    row("64 bits down to a Long",         huge,           qlonglong(-9'007'199'254'740'994), -1);
    row("64 bits widen to Double",        std::numeric_limits<qlonglong>::max(), 1, 9223372036854775808.0);
    row("64 bits and Double",             huge,           0.5,              9007199254740992.0);
    row("64 bits and Single",             huge,           0.5F,             9007199254740992.0);
    row("64 bits and Empty",              huge,           QVariant(),       huge);
    row("64 bits and Null",               huge,           kor::null(),      kor::null());
    row("64 bits and True",               huge,           true,             9007199254740992.0);
    row("64 bits and a date",             huge,           QDate(2000, 1, 1), 9007199254740992.0 + 36526);
    row("64 bits and a text",             huge,           QStringLiteral("1"), 9007199254740992.0);
    // clang-format on
}

void tst_Variant::sums()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QFETCH(QVariant, expected);
    const QVariant got = kor::add(left, right, Locale::polish());
    QCOMPARE(got.metaType(), expected.metaType());
    QCOMPARE(got, expected);
}

void tst_Variant::sumErrors()
{
    const auto error = [](const QVariant &left, const QVariant &right) {
        return errorOf([&] { return kor::add(left, right, Locale::polish()); });
    };
    QCOMPARE(error(QStringLiteral("abc"), 1), 13);
    QCOMPARE(error(qlonglong(9'007'199'254'740'993), amount(1)), 6);
    QCOMPARE(error(kor::missing(), 1), 13);
    QCOMPARE(error(1.7e308, 1.7e308), 6);
    QCOMPARE(error(amount(std::numeric_limits<qint64>::max()), 1), 6);
    QCOMPARE(error(amount(0), 1e15), 6);
    QCOMPARE(error(QDate(9999, 12, 31), std::numeric_limits<double>::infinity()), 6);
}

void tst_Variant::currency()
{
    using kor::Currency;
    QCOMPARE(Currency::fromDouble(0.1) + Currency::fromDouble(0.2), Currency::fromDouble(0.3));
    QCOMPARE(Currency::fromDouble(1) - Currency::fromDouble(1.5), Currency::fromDouble(-0.5));
    QVERIFY(Currency::fromDouble(-1) < Currency());
    QCOMPARE(Currency::fromDouble(1.5).toDouble(), 1.5);
    const auto highest = Currency::fromTenThousandths(std::numeric_limits<qint64>::max());
    const auto lowest = Currency::fromTenThousandths(std::numeric_limits<qint64>::min());
    QCOMPARE(errorOf([&] { return highest + Currency::fromTenThousandths(1); }), 6);
    QCOMPARE(errorOf([&] { return lowest - Currency::fromTenThousandths(1); }), 6);
    QCOMPARE(errorOf([] { return Currency::fromDouble(1e15); }), 6);
    QCOMPARE(errorOf([] { return Currency::fromDouble(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

QTEST_GUILESS_MAIN(tst_Variant)
#include "tst_variant.moc"
