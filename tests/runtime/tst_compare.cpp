// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/runtimeerrors.h"

#include <KorDaoUC/Compare>
#include <KorDaoUC/Currency>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtTest/QTest>

#include <limits>

using kor::Locale;

namespace {

QString orderName(const std::optional<std::partial_ordering> &order)
{
    if (!order)
        return QStringLiteral("Null");
    return std::is_lt(*order) ? QStringLiteral("<") : std::is_gt(*order) ? QStringLiteral(">") : QStringLiteral("=");
}

QVariant amount(qint64 tenThousandths)
{
    return QVariant::fromValue(kor::Currency::fromTenThousandths(tenThousandths));
}

} // namespace

class tst_Compare : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void variants_data();
    void variants();
    void dictionaryOrder_data();
    void dictionaryOrder();
    void declared_data();
    void declared();
    void equalities_data();
    void equalities();
};

void tst_Compare::variants_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QVariant &left, const QVariant &right, const char *expected) {
        QTest::newRow(name) << left << right << QString::fromLatin1(expected);
    };
    const QString one = QStringLiteral("1");
    const QVariant huge = qlonglong(9'007'199'254'740'993);
    // clang-format off
    row("numbers of any type",                  short(1),          1.0,               "=");
    row("Byte and Currency",                    QVariant::fromValue(uchar(2)), amount(15000), ">");
    row("Currency is exact",                    amount(9'007'199'254'740'993), amount(9'007'199'254'740'992), ">");
    row("Double and Single in single precision", 0.7,              0.7F,              "=");
    row("Single and Double in single precision", 0.7F,             0.7,               "=");
    row("Double beyond every Single",           1e300,             std::numeric_limits<float>::max(), ">");
    row("two Doubles in double precision",      0.7,               0.7000000001,      "<");
    row("True is -1",                           true,              -1,                "=");
    row("True is less than False",              true,              false,             "<");
    row("date is its day number",               QDate(1899, 12, 31), 1,               "=");
    row("time counts",                          QDateTime(QDate(1899, 12, 31), QTime(12, 0), Qt::UTC), 1.5, "=");
    row("number is less than any text",         1000000,           QString(),         "<");
    row("text is greater than any number",      one,               2,                 ">");
    row("text that says the number as well",    one,               1,                 ">");
    row("date is less than a text",             QDate(2000, 1, 1), one,               "<");
    row("texts by code unit",                   QStringLiteral("Z"), QStringLiteral("a"), "<");
    row("digits of texts",                      QStringLiteral("10"), QStringLiteral("9"), "<");
    row("Empty is 0",                           QVariant(),        0,                 "=");
    row("Empty is less than 1",                 QVariant(),        1,                 "<");
    row("Empty is more than True",              QVariant(),        true,              ">");
    row("Empty is an empty text",               QVariant(),        QString(),         "=");
    row("Empty is less than a text",            QVariant(),        one,               "<");
    row("text is more than Empty",              one,               QVariant(),        ">");
    row("Empty is Empty",                       QVariant(),        QVariant(),        "=");
    row("Null on the left",                     kor::null(),       1,                 "Null");
    row("Null on the right",                    1,                 kor::null(),       "Null");
    row("Null on both sides",                   kor::null(),       kor::null(),       "Null");
    row("missing is Null",                      kor::missing(),    1,                 "Null");
    row("a database's NULL",                    QVariant(QMetaType(QMetaType::QString)), one, "Null");
    row("64 bits and Long",                     qlonglong(5),      5,                 "=");
    row("64 bits beyond a Double",              huge,              huge,              "=");
    row("their neighbour",                      huge,              qlonglong(9'007'199'254'740'994), "<");
    row("64 bits above the nearest Double",     huge,              9007199254740992.0, ">");
    row("64 bits below the next Double",        huge,              9007199254740994.0, "<");
    row("64 bits and the Double of the same value", qlonglong(9'007'199'254'740'994), 9007199254740994.0, "=");
    row("64 bits and a fraction",               huge,              0.5,               ">");
    row("64 bits and a larger Double",          huge,              1e300,             "<");
    row("64 bits and infinity",                 huge,              std::numeric_limits<double>::infinity(), "<");
    row("highest 64 bits below two to the 63",  std::numeric_limits<qlonglong>::max(), 0x1p63, "<");
    row("lowest 64 bits are minus that",        std::numeric_limits<qlonglong>::min(), -0x1p63, "=");
    row("lowest 64 bits above what is below",   std::numeric_limits<qlonglong>::min(), -0x1.0000000000001p63, ">");
    row("64 bits beside a Single are not rounded", huge,           9007199254740992.0F, ">");
    row("64 bits and the Single of the same value", qlonglong(9'007'200'328'482'816), 9'007'200'328'482'816.0F, "=");
    row("64 bits and Currency",                 huge,              amount(std::numeric_limits<qint64>::max()), ">");
    row("negative 64 bits and Currency",        qlonglong(-9'007'199'254'740'993), amount(std::numeric_limits<qint64>::min()), "<");
    row("64 bits and Long",                     huge,              2147483647,        ">");
    row("64 bits and True",                     huge,              true,              ">");
    row("64 bits and a date",                   huge,              QDate(9999, 12, 31), ">");
    row("64 bits and Empty",                    huge,              QVariant(),        ">");
    row("64 bits and a text",                   huge,              QString(),         "<");
    row("unsigned beyond them",                 huge,              std::numeric_limits<qulonglong>::max(), "<");
    row("bytes are a text",                     QByteArray("1"),   1,                 ">");
    // clang-format on
}

void tst_Compare::variants()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QFETCH(QString, expected);
    QCOMPARE(orderName(kor::compare(left, right)), expected);
    const QString mirrored = expected == QStringLiteral("<")   ? QStringLiteral(">")
                             : expected == QStringLiteral(">") ? QStringLiteral("<")
                                                               : expected;
    QCOMPARE(orderName(kor::compare(right, left)), mirrored);
}

void tst_Compare::dictionaryOrder_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char16_t *left, const char16_t *right, const char *expected) {
        QTest::newRow(name) << QString::fromUtf16(left) << QString::fromUtf16(right) << QString::fromLatin1(expected);
    };
    // clang-format off
    row("case makes no difference",           u"ABC",   u"abc",   "=");
    row("nor with marks",                     u"ŻÓŁW",  u"żółw",  "=");
    row("a letter with a mark is another one",u"ą",     u"a",     ">");
    row("it stands right behind the bare one",u"ą",     u"b",     "<");
    row("l with a stroke too",                u"łan",   u"lz",    ">");
    row("digits before letters",              u"9",     u"a",     "<");
    row("punctuation before digits",          u"_",     u"0",     "<");
    row("hyphens do not count",               u"co-op", u"coop1", "<");
    row("unless nothing else differs",        u"co-op", u"coop",  ">");
    row("the shorter first",                  u"ab",    u"abc",   "<");
    row("empty first",                        u"",      u"a",     "<");
    // clang-format on
}

void tst_Compare::dictionaryOrder()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(QString, expected);
    QCOMPARE(orderName(kor::compare(left, right, kor::TextComparison::Text)), expected);
}

void tst_Compare::declared_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<kor::Declared>("declared");
    QTest::addColumn<QString>("expected");
    const QString seven = QStringLiteral("7");
    // clang-format off
    QTest::newRow("declared number beside a text")  << QVariant(42)    << QVariant(seven) << kor::Declared::Left  << QStringLiteral(">");
    QTest::newRow("text beside a declared number")  << QVariant(seven) << QVariant(42)    << kor::Declared::Right << QStringLiteral("<");
    QTest::newRow("declared text beside a number")  << QVariant(seven) << QVariant(42)    << kor::Declared::Left  << QStringLiteral(">");
    QTest::newRow("number beside a declared text")  << QVariant(42)    << QVariant(seven) << kor::Declared::Right << QStringLiteral("<");
    QTest::newRow("both declared")                  << QVariant(seven) << QVariant(42)    << kor::Declared::Both  << QStringLiteral(">");
    QTest::newRow("text beside a declared date")    << QVariant(QStringLiteral("01.01.2000")) << QVariant(QDate(2000, 1, 1)) << kor::Declared::Right << QStringLiteral("=");
    QTest::newRow("text beside a declared Boolean") << QVariant(QStringLiteral("True")) << QVariant(true) << kor::Declared::Right << QStringLiteral("=");
    QTest::newRow("text beside declared 64 bits")   << QVariant(QStringLiteral("9007199254740992")) << QVariant(qlonglong(9'007'199'254'740'993)) << kor::Declared::Right << QStringLiteral("<");
    QTest::newRow("declared 64 bits beside a text") << QVariant(qlonglong(9'007'199'254'740'993)) << QVariant(QStringLiteral("9007199254740993")) << kor::Declared::Left << QStringLiteral("=");
    QTest::newRow("two numbers")                    << QVariant(1)     << QVariant(1.0)   << kor::Declared::Both  << QStringLiteral("=");
    QTest::newRow("Null")                           << kor::null()     << QVariant(seven) << kor::Declared::Right << QStringLiteral("Null");
    // clang-format on
}

void tst_Compare::declared()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QFETCH(kor::Declared, declared);
    QFETCH(QString, expected);
    const auto order = kor::compareDeclared(left, right, declared, kor::TextComparison::Binary, Locale::polish());
    QCOMPARE(orderName(order), expected);
    QCOMPARE(errorOf([&] { return kor::compareDeclared(QStringLiteral("x"), 1, kor::Declared::Right).has_value(); }),
             13);
}

void tst_Compare::equalities_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<bool>("strictly");
    QTest::addColumn<bool>("loosely");
    const auto row = [](const char *name, const QVariant &left, const QVariant &right, bool strictly, bool loosely) {
        QTest::newRow(name) << left << right << strictly << loosely;
    };
    const QString one = QStringLiteral("1");
    const QVariant huge = qlonglong(9'007'199'254'740'993);
    // clang-format off
    row("numbers of different types",       1,             1.0,                      true,  true);
    row("same texts",                       one,           one,                      true,  true);
    row("texts of different case",          QStringLiteral("a"), QStringLiteral("A"), false, false);
    row("texts that are equal as numbers",  one,           QStringLiteral("1,0"),    false, false);
    row("text and number",                  one,           1,                        false, true);
    row("text with decimals and number",    QStringLiteral("1,5"), 1.5,              false, true);
    row("text in another locale's form",    QStringLiteral("1.5"), 1.5,              false, false);
    row("text that is no number",           QStringLiteral("abc"), 1,                false, false);
    row("huge text and number",             QStringLiteral("1e999"), 1,              false, false);
    row("text and Currency",                QStringLiteral("2"), amount(20000),      false, true);
    row("text and True",                    QStringLiteral("-1"), true,              false, true);
    row("word and True",                    QStringLiteral("True"), true,            false, false);
    row("empty text and 0",                 QString(),     0,                        false, false);
    row("Empty and 0",                      QVariant(),    0,                        true,  true);
    row("Empty and an empty text",          QVariant(),    QString(),                true,  true);
    row("Empty and the text 0",             QVariant(),    QStringLiteral("0"),      false, false);
    row("Empty and Empty",                  QVariant(),    QVariant(),               true,  true);
    row("Null and Null",                    kor::null(),   kor::null(),              false, false);
    row("Null and Empty",                   kor::null(),   QVariant(),               false, false);
    row("Null and a text",                  kor::null(),   one,                      false, false);
    row("Null and an empty text",           kor::null(),   QString(),                false, false);
    row("missing and Null",                 kor::missing(), kor::null(),             false, false);
    row("date and its text",                QDate(2000, 1, 1), QStringLiteral("01.01.2000"), false, false);
    row("date and its day number",          QDate(2000, 1, 1), 36526,                true,  true);
    row("64 bits and Long",                 qlonglong(1),  1,                        true,  true);
    row("64 bits and text",                 qlonglong(1),  one,                      false, true);
    row("64 bits beyond a Double and text", huge,          QStringLiteral("9007199254740993"), false, true);
    row("the text of their neighbour",      huge,          QStringLiteral("9007199254740992"), false, false);
    row("their text with groups and decimals", huge,       QStringLiteral("9 007 199 254 740 993,0"), false, true);
    row("their text with an exponent",      huge,          QStringLiteral("9,007199254740993e15"), false, true);
    row("a text just above them",           huge,          QStringLiteral("9007199254740993,5"), false, false);
    row("a text with a digit too many",     huge,          QStringLiteral("9007199254740993,0000001"), false, false);
    row("lowest 64 bits and text",          std::numeric_limits<qlonglong>::min(), QStringLiteral("-9223372036854775808"), false, true);
    row("highest 64 bits and text",         std::numeric_limits<qlonglong>::max(), QStringLiteral("9223372036854775807"), false, true);
    row("a text beyond 64 bits",            std::numeric_limits<qlonglong>::max(), QStringLiteral("9223372036854775808"), false, false);
    row("a Double and a text told apart",   9007199254740992.0, QStringLiteral("9007199254740993"), false, false);
    row("a large Double and its own text",  9.12345678901235e18, QStringLiteral("9,12345678901235E+18"), false, true);
    row("a large Double and what is rounded to it", 1e18,   QStringLiteral("1000000000000000001"), false, true);
    row("not a number",                     std::numeric_limits<double>::quiet_NaN(), 1.0, false, false);
    // clang-format on
}

void tst_Compare::equalities()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QFETCH(bool, strictly);
    QFETCH(bool, loosely);
    const Locale polish = Locale::polish();
    QCOMPARE(kor::strictlyEqual(left, right), strictly);
    QCOMPARE(kor::strictlyEqual(right, left), strictly);
    QCOMPARE(kor::looselyEqual(left, right, polish), loosely);
    QCOMPARE(kor::looselyEqual(right, left, polish), loosely);
}

QTEST_GUILESS_MAIN(tst_Compare)
#include "tst_compare.moc"
