// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/dictionary.h"

#include <KorDaoUC/Currency>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtTest/QtTest>

#include <limits>

using namespace kor;

namespace {

QVariant text(const char *value) { return QString::fromUtf8(value); }
QVariant integer(int value) { return QVariant::fromValue(static_cast<short>(value)); }
QVariant byte(int value) { return QVariant::fromValue(static_cast<uchar>(value)); }
QVariant currency(qint64 tenThousandths) { return QVariant::fromValue(Currency::fromTenThousandths(tenThousandths)); }

//! One of each kind of key that a database or a host may give, and its neighbours.
QList<QVariant> manyKinds()
{
    return {QVariant(),
            null(),
            missing(),
            0,
            1,
            -1,
            7,
            16'777'216,
            16'777'217,
            std::numeric_limits<int>::max(),
            std::numeric_limits<int>::min(),
            integer(0),
            integer(1),
            byte(1),
            byte(255),
            0.0,
            -0.0,
            0.1,
            0.7,
            1.0,
            2.5,
            16'777'217.0,
            5'000'000'000.0,
            5'000'000'001.0,
            1e15,
            1e15 + 1,
            1e300,
            1e-300,
            0.0F,
            0.1F,
            0.7F,
            1.0F,
            2.5F,
            16'777'216.0F,
            5e9F,
            true,
            false,
            currency(0),
            currency(10'000),
            currency(25'000),
            currency(7'000),
            currency(std::numeric_limits<qint64>::max()),
            currency(std::numeric_limits<qint64>::max() - 1),
            QDate(1899, 12, 30),
            QDate(1899, 12, 31),
            QDate(2024, 2, 29),
            QDateTime(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC),
            text(""),
            text("0"),
            text("1"),
            text("01"),
            text("1,0"),
            text("1.0"),
            text(" 1 "),
            text("-1"),
            text("2,5"),
            text("2.5"),
            text("0,7"),
            text("1e3"),
            text("&H10"),
            text("16777217"),
            text("5000000001"),
            text("a"),
            text("A"),
            text("ą"),
            text("a "),
            text("True"),
            text("2024-02-29"),
            1000,
            16,
            qlonglong(7),
            qlonglong(5'000'000'000),
            quint8(3),
            9'007'199'254'740'991.0,
            9'007'199'254'740'992.0,
            qlonglong(9'007'199'254'740'992),
            qlonglong(9'007'199'254'740'993),
            qlonglong(9'007'199'254'740'994),
            9'007'199'254'740'994.0,
            qlonglong(-9'007'199'254'740'993),
            std::numeric_limits<qlonglong>::max(),
            std::numeric_limits<qlonglong>::max() - 1,
            std::numeric_limits<qlonglong>::min(),
            9'223'372'036'854'775'807.0,
            -9'223'372'036'854'775'808.0,
            9'007'199'254'740'992.0F,
            9'223'372'036'854'775'807.0F,
            text("9007199254740992"),
            text("9007199254740993"),
            text("9 007 199 254 740 993"),
            text("9007199254740993,0"),
            text("9007199254740993,5"),
            text("9223372036854775807"),
            text("-9223372036854775808"),
            text("9223372036854775808"),
            text("9,223372036854775807e18"),
            QByteArrayLiteral("bajty"),
            QVariant(QMetaType::fromType<int>()),
            QVariant(QMetaType::fromType<QString>())};
}

const char *nameOf(KeyEquality equality) { return equality == KeyEquality::Loose ? "loose" : "strict"; }

//! A dictionary with so many other keys before the given ones that it keeps an index, and has made it.
Dictionary indexed(const QList<QVariant> &keys, KeyEquality equality)
{
    Dictionary dictionary(equality, Locale::polish());
    for (int i = 0; i < 100; ++i)
        dictionary.append(text(qPrintable(QStringLiteral("inny %1").arg(i))));
    dictionary.append(keys);
    (void)dictionary.indexOf(text("nie ma"));
    (void)dictionary.indexOf(text("nie ma"));
    return dictionary;
}

} // namespace

//! Finding keys, by both equalities, by walking and by the index.
class tst_Dictionary : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void equalitiesSideBySide_data();
    void equalitiesSideBySide();
    void indexFindsWhatAWalkFinds_data();
    void indexFindsWhatAWalkFinds();
    void firstOfEqualKeysIsFound_data();
    void firstOfEqualKeysIsFound();
    void indexGrowsWithTheKeys();
    void clearForgetsTheIndex();
    void keysKeepTheirTypes();
    void differentNeedsTwoValues_data();
    void differentNeedsTwoValues();
    void localeDecidesWhatIsNumeric();
    void everyKeyIsFoundAmongMany_data();
    void everyKeyIsFoundAmongMany();
};

void tst_Dictionary::equalitiesSideBySide_data()
{
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<bool>("loosely");
    QTest::addColumn<bool>("strictly");
    // clang-format off
    QTest::newRow("number and number")                     << QVariant(1)          << QVariant(1)          << true  << true;
    QTest::newRow("number and other number")               << QVariant(1)          << QVariant(2)          << false << false;
    QTest::newRow("Long and Integer")                      << QVariant(1)          << integer(1)           << true  << true;
    QTest::newRow("Long and Byte")                         << QVariant(1)          << byte(1)              << true  << true;
    QTest::newRow("Long and Double")                       << QVariant(1)          << QVariant(1.0)        << true  << true;
    QTest::newRow("Long and Single")                       << QVariant(1)          << QVariant(1.0F)       << true  << true;
    QTest::newRow("Long and Currency")                     << QVariant(1)          << currency(10'000)     << true  << true;
    QTest::newRow("Double and Single of 0,7")              << QVariant(0.7)        << QVariant(0.7F)       << true  << true;
    QTest::newRow("Single and Double of 0,7")              << QVariant(0.7F)       << QVariant(0.7)        << true  << true;
    QTest::newRow("Single rounds its neighbour")           << QVariant(16777216.F) << QVariant(16777217.0) << true  << true;
    QTest::newRow("but not a Long")                        << QVariant(16777216.F) << QVariant(16777217)   << false << false;
    QTest::newRow("Double and Long of the same")           << QVariant(16777217.0) << QVariant(16777217)   << true  << true;
    QTest::newRow("True is -1")                            << QVariant(true)       << QVariant(-1)         << true  << true;
    QTest::newRow("True is not 1")                         << QVariant(true)       << QVariant(1)          << false << false;
    QTest::newRow("False is 0")                            << QVariant(false)      << QVariant(0)          << true  << true;
    QTest::newRow("Date and its number")                   << QVariant(QDate(1899, 12, 31)) << QVariant(1) << true  << true;
    QTest::newRow("Date and Date")                         << QVariant(QDate(2024, 2, 29)) << QVariant(QDate(2024, 2, 29)) << true << true;
    QTest::newRow("Date at noon is another")               << QVariant(QDateTime(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC)) << QVariant(QDate(2024, 2, 29)) << false << false;
    QTest::newRow("text and text")                         << text("a")            << text("a")            << true  << true;
    QTest::newRow("texts differ in case")                  << text("a")            << text("A")            << false << false;
    QTest::newRow("texts differ in accents")               << text("a")            << text("ą")            << false << false;
    QTest::newRow("texts differ in a blank")               << text("a")            << text("a ")           << false << false;
    QTest::newRow("texts of the same number")              << text("1")            << text("01")           << false << false;
    QTest::newRow("text key, number wanted")               << text("1")            << QVariant(1)          << true  << false;
    QTest::newRow("number key, text wanted")               << QVariant(1)          << text("1")            << true  << false;
    QTest::newRow("text with zeros")                       << text("007")          << QVariant(7)          << true  << false;
    QTest::newRow("text with the comma")                   << text("2,5")          << QVariant(2.5)        << true  << false;
    QTest::newRow("text with blanks")                      << text(" 1 ")          << QVariant(1)          << true  << false;
    QTest::newRow("text with an exponent")                 << text("1e3")          << QVariant(1000)       << true  << false;
    QTest::newRow("text in base 16")                       << text("&H10")         << QVariant(16)         << true  << false;
    QTest::newRow("text 0 and number 0")                   << text("0")            << QVariant(0)          << true  << false;
    QTest::newRow("negative text")                         << text("-1")           << QVariant(true)       << true  << false;
    QTest::newRow("text of 0,7 and Single")                << text("0,7")          << QVariant(0.7F)       << true  << false;
    QTest::newRow("text that is no number")                << text("abc")          << QVariant(0)          << false << false;
    QTest::newRow("empty text and 0")                      << text("")             << QVariant(0)          << false << false;
    QTest::newRow("word True and True")                    << text("True")         << QVariant(true)       << false << false;
    QTest::newRow("Empty and 0")                           << QVariant()           << QVariant(0)          << true  << true;
    QTest::newRow("0 and Empty")                           << QVariant(0)          << QVariant()           << true  << true;
    QTest::newRow("Empty and False")                       << QVariant()           << QVariant(false)      << true  << true;
    QTest::newRow("Empty and empty text")                  << QVariant()           << text("")             << true  << true;
    QTest::newRow("empty text and Empty")                  << text("")             << QVariant()           << true  << true;
    QTest::newRow("Empty and Empty")                       << QVariant()           << QVariant()           << true  << true;
    QTest::newRow("Empty and text 0")                      << QVariant()           << text("0")            << false << false;
    QTest::newRow("text 0 and Empty")                      << text("0")            << QVariant()           << false << false;
    QTest::newRow("Empty and 1")                           << QVariant()           << QVariant(1)          << false << false;
    QTest::newRow("Empty and the day zero")                << QVariant()           << QVariant(QDate(1899, 12, 30)) << true << true;
    QTest::newRow("Null and Null")                         << null()               << null()               << false << false;
    QTest::newRow("Null and Empty")                        << null()               << QVariant()           << false << false;
    QTest::newRow("Empty and Null")                        << QVariant()           << null()               << false << false;
    QTest::newRow("Null and 0")                            << null()               << QVariant(0)          << false << false;
    QTest::newRow("Null and empty text")                   << null()               << text("")             << false << false;
    QTest::newRow("Null of a type is Null")                << QVariant(QMetaType::fromType<int>()) << QVariant(0) << false << false;
    QTest::newRow("missing and missing")                   << missing()            << missing()            << false << false;
    QTest::newRow("missing and Empty")                     << missing()            << QVariant()           << false << false;
    QTest::newRow("64 bits that fit")                      << QVariant(7)          << QVariant(qlonglong(7)) << true << true;
    QTest::newRow("64 bits that don't")                    << QVariant(5e9)        << QVariant(qlonglong(5'000'000'000)) << true << true;
    QTest::newRow("64 bits beyond a Double")               << QVariant(qlonglong(9'007'199'254'740'993)) << QVariant(qlonglong(9'007'199'254'740'993)) << true << true;
    QTest::newRow("their neighbour below")                 << QVariant(qlonglong(9'007'199'254'740'993)) << QVariant(9'007'199'254'740'992.0) << false << false;
    QTest::newRow("their neighbour above")                 << QVariant(qlonglong(9'007'199'254'740'993)) << QVariant(qlonglong(9'007'199'254'740'994)) << false << false;
    QTest::newRow("the Double of the same value")          << QVariant(qlonglong(9'007'199'254'740'994)) << QVariant(9'007'199'254'740'994.0) << true << true;
    QTest::newRow("their text")                            << QVariant(qlonglong(9'007'199'254'740'993)) << text("9007199254740993") << true << false;
    QTest::newRow("their neighbour's text")                << QVariant(qlonglong(9'007'199'254'740'993)) << text("9007199254740992") << false << false;
    QTest::newRow("64 bits as a key")                      << QVariant(qlonglong(7)) << QVariant(7)        << true  << true;
    QTest::newRow("-0 and 0")                              << QVariant(-0.0)       << QVariant(0)          << true  << true;
    QTest::newRow("large neighbours")                      << QVariant(1e15)       << QVariant(1e15 + 1)   << false << false;
    // clang-format on
}

void tst_Dictionary::equalitiesSideBySide()
{
    QFETCH(QVariant, key);
    QFETCH(QVariant, wanted);
    QFETCH(bool, loosely);
    QFETCH(bool, strictly);
    for (const KeyEquality equality : {KeyEquality::Loose, KeyEquality::Strict}) {
        const bool expected = equality == KeyEquality::Loose ? loosely : strictly;
        Dictionary walked(equality, Locale::polish());
        walked.append(key);
        QVERIFY2(walked.contains(wanted) == expected, nameOf(equality));
        QVERIFY2((indexed({key}, equality).indexOf(wanted) == 100) == expected, nameOf(equality));
    }
}

void tst_Dictionary::indexFindsWhatAWalkFinds_data()
{
    QTest::addColumn<KeyEquality>("equality");
    QTest::addColumn<int>("wanted");
    const QList<QVariant> kinds = manyKinds();
    for (const KeyEquality equality : {KeyEquality::Loose, KeyEquality::Strict}) {
        for (int i = 0; i < kinds.size(); ++i) {
            const QString name = QStringLiteral("%1 %2 %3")
                                     .arg(QLatin1String(nameOf(equality)))
                                     .arg(i)
                                     .arg(QLatin1String(kinds[i].isValid() ? kinds[i].typeName() : "Empty"));
            QTest::newRow(qPrintable(name)) << equality << i;
        }
    }
}

void tst_Dictionary::indexFindsWhatAWalkFinds()
{
    QFETCH(KeyEquality, equality);
    QFETCH(int, wanted);
    const QList<QVariant> kinds = manyKinds();
    const Locale polish = Locale::polish();
    // Each kind alone, and all of them forwards and backwards, so that every one comes to stand first.
    for (const QVariant &key : kinds) {
        const bool isSame = areSameKey(normalized(key), normalized(kinds[wanted]), equality, polish);
        QCOMPARE(indexed({key}, equality).contains(kinds[wanted]), isSame);
    }
    const QList<QVariant> backwards(kinds.crbegin(), kinds.crend());
    for (const QList<QVariant> &keys : {kinds, backwards}) {
        int expected = -1;
        for (int i = 0; i < keys.size() && expected < 0; ++i) {
            if (areSameKey(normalized(keys[i]), normalized(kinds[wanted]), equality, polish))
                expected = i;
        }
        Dictionary walked(equality, polish);
        walked.append(keys);
        QCOMPARE(walked.indexOf(kinds[wanted]), expected);
        QCOMPARE(indexed(keys, equality).indexOf(kinds[wanted]), expected < 0 ? expected : expected + 100);
    }
}

void tst_Dictionary::firstOfEqualKeysIsFound_data()
{
    QTest::addColumn<QVariantList>("keys");
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<int>("loose");
    QTest::addColumn<int>("strict");
    // clang-format off
    QTest::newRow("text before number")    << QVariantList{text("1"), 1, 1.0}           << QVariant(1)       << 100 << 101;
    QTest::newRow("number before text")    << QVariantList{1, text("1")}                << text("1")         << 100 << 101;
    QTest::newRow("Empty before 0")        << QVariantList{5, QVariant(), 0}            << QVariant(0)       << 101 << 101;
    QTest::newRow("0 before Empty")        << QVariantList{5, 0, QVariant(), text("")}  << QVariant()        << 101 << 101;
    QTest::newRow("empty text first")      << QVariantList{text(""), 0}                 << QVariant()        << 100 << 100;
    QTest::newRow("Null is passed over")   << QVariantList{null(), missing(), 0}        << QVariant(0)       << 102 << 102;
    QTest::newRow("Single before Double")  << QVariantList{0.7F, 0.7}                   << QVariant(0.7)     << 100 << 100;
    QTest::newRow("Double before Single")  << QVariantList{0.7, 0.7F}                   << QVariant(0.7F)    << 100 << 100;
    QTest::newRow("many spellings")        << QVariantList{text("01"), text("1,0"), text("1")} << QVariant(1) << 100 << -1;
    QTest::newRow("exact spelling")        << QVariantList{text("01"), text("1,0"), text("1")} << text("1")  << 102 << 102;
    // clang-format on
}

void tst_Dictionary::firstOfEqualKeysIsFound()
{
    QFETCH(QVariantList, keys);
    QFETCH(QVariant, wanted);
    QTEST(indexed(keys, KeyEquality::Loose).indexOf(wanted), "loose");
    QTEST(indexed(keys, KeyEquality::Strict).indexOf(wanted), "strict");
}

void tst_Dictionary::indexGrowsWithTheKeys()
{
    Dictionary dictionary = indexed({}, KeyEquality::Loose);
    dictionary.append(7);
    QCOMPARE(dictionary.indexOf(text("7")), 100);
    dictionary.append({8, text("9")});
    QCOMPARE(dictionary.indexOf(9), 102);
    QCOMPARE(dictionary.indexOf(8), 101);
    QCOMPARE(dictionary.indexOf(10), -1);
}

void tst_Dictionary::clearForgetsTheIndex()
{
    Dictionary dictionary = indexed({7}, KeyEquality::Loose);
    dictionary.clear();
    QVERIFY(dictionary.isEmpty());
    QCOMPARE(dictionary.indexOf(7), -1);
    dictionary.append(8);
    QCOMPARE(dictionary.indexOf(8), 0);
    QCOMPARE(dictionary.indexOf(7), -1);
    QCOMPARE(dictionary.count(), 1);
}

void tst_Dictionary::keysKeepTheirTypes()
{
    const QList<QVariant> kinds = manyKinds();
    const Dictionary dictionary = indexed(kinds, KeyEquality::Loose);
    for (int i = 0; i < kinds.size(); ++i)
        QCOMPARE(dictionary.key(100 + i).metaType(), kinds[i].metaType());
    QVERIFY(isNull(dictionary.key(-1)));
    QVERIFY(isNull(dictionary.key(dictionary.count())));
}

void tst_Dictionary::differentNeedsTwoValues_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<bool>("loose");
    QTest::addColumn<bool>("strict");
    // clang-format off
    QTest::newRow("equal")                << QVariant(1)  << QVariant(1)  << false << false;
    QTest::newRow("different")            << QVariant(1)  << QVariant(2)  << true  << true;
    QTest::newRow("text and number")      << text("1")    << QVariant(1)  << false << true;
    QTest::newRow("Empty and 0")          << QVariant()   << QVariant(0)  << false << false;
    QTest::newRow("Empty and text 0")     << QVariant()   << text("0")    << true  << true;
    QTest::newRow("Null and 1")           << null()       << QVariant(1)  << false << false;
    QTest::newRow("1 and Null")           << QVariant(1)  << null()       << false << false;
    QTest::newRow("Null and Null")        << null()       << null()       << false << false;
    QTest::newRow("Null and Empty")       << null()       << QVariant()   << false << false;
    QTest::newRow("Null of a type and 1") << QVariant(QMetaType::fromType<int>()) << QVariant(1) << false << false;
    QTest::newRow("missing and 1")        << missing()    << QVariant(1)  << false << false;
    // clang-format on
}

void tst_Dictionary::differentNeedsTwoValues()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QTEST(Dictionary(KeyEquality::Loose, Locale::polish()).isDifferent(left, right), "loose");
    QTEST(Dictionary(KeyEquality::Strict, Locale::polish()).isDifferent(left, right), "strict");
}

void tst_Dictionary::localeDecidesWhatIsNumeric()
{
    Dictionary polish(KeyEquality::Loose, Locale::polish());
    Dictionary english(KeyEquality::Loose, Locale::english());
    polish.append(2.5);
    english.append(2.5);
    QVERIFY(polish.contains(text("2,5")));
    QVERIFY(!english.contains(text("2,5")));
    QVERIFY(english.contains(text("2.5")));
}

void tst_Dictionary::everyKeyIsFoundAmongMany_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("numbers") << 0;
    QTest::newRow("large numbers, which are one Single") << 1;
    QTest::newRow("texts") << 2;
    QTest::newRow("numeric texts") << 3;
}

void tst_Dictionary::everyKeyIsFoundAmongMany()
{
    QFETCH(int, kind);
    const auto key = [kind](int i) {
        switch (kind) {
        case 0: return QVariant(i);
        case 1: return QVariant(5e12 + i);
        case 2: return QVariant(QStringLiteral("klucz %1").arg(i));
        default: return QVariant(QString::number(i));
        }
    };
    constexpr int many = 100'000;
    Dictionary dictionary(KeyEquality::Loose, Locale::polish());
    for (int i = 0; i < many; ++i)
        dictionary.append(key(i));
    for (int i = 0; i < many; i += 10)
        QCOMPARE(dictionary.indexOf(key(i)), i);
}

QTEST_GUILESS_MAIN(tst_Dictionary)
#include "tst_dictionary.moc"
