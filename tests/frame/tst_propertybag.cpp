// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Currency>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

using kor::PropertyBag;

namespace {

QString shown(const PropertyBag &bag)
{
    QStringList lines;
    for (const auto &[key, value] : bag.entries())
        lines << key + u'=' + value.toString();
    return lines.join(u' ');
}

} // namespace

class tst_PropertyBag : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writePropertyStoresWhatDiffersFromTheDefault_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("defaultValue");
        QTest::addColumn<bool>("stored");

        const QVariant none;
        // clang-format off
        QTest::newRow("a text equal to its default is not stored")      << QVariant(QStringLiteral("...")) << QVariant(QStringLiteral("...")) << false;
        QTest::newRow("another text is stored")                         << QVariant(QStringLiteral(""))    << QVariant(QStringLiteral("...")) << true;
        QTest::newRow("texts are compared with their case")             << QVariant(QStringLiteral("Tak")) << QVariant(QStringLiteral("tak")) << true;
        QTest::newRow("True is not stored over True")                   << QVariant(true)                  << QVariant(true)                  << false;
        QTest::newRow("False is stored over True")                      << QVariant(false)                 << QVariant(true)                  << true;
        QTest::newRow("a Long equal to its default is not stored")      << QVariant(5)                     << QVariant(5)                     << false;
        QTest::newRow("the same number as Double is stored")            << QVariant(5.0)                   << QVariant(5)                     << true;
        QTest::newRow("the same number as Single is stored over Double")<< QVariant(0.5F)                  << QVariant(0.5)                   << true;
        QTest::newRow("the same number as Integer is stored over Long") << QVariant::fromValue<short>(5)   << QVariant(5)                     << true;
        QTest::newRow("a number is stored over its text")               << QVariant(5)                     << QVariant(QStringLiteral("5"))   << true;
        QTest::newRow("Null is not stored over Null")                   << kor::null()                     << kor::null()                     << false;
        QTest::newRow("no number is not stored over no number")         << QVariant(qQNaN())               << QVariant(qQNaN())              << false;
        QTest::newRow("neither is a Single")                            << QVariant(float(qQNaN()))        << QVariant(float(qQNaN()))       << false;
        QTest::newRow("no number is stored over a number")              << QVariant(qQNaN())               << QVariant(1.0)                  << true;
        QTest::newRow("an empty text is stored over Null")              << QVariant(QString())             << kor::null()                     << true;
        QTest::newRow("Null is stored over an empty text")              << kor::null()                     << QVariant(QString())             << true;
        QTest::newRow("0 is stored over Null")                          << QVariant(0)                     << kor::null()                     << true;
        QTest::newRow("Empty is stored over Null")                      << QVariant()                      << kor::null()                     << true;
        QTest::newRow("without a default everything is stored")         << QVariant(QString())             << none                            << true;
        QTest::newRow("without a default Empty is stored")              << QVariant()                      << none                            << true;
        QTest::newRow("an equal amount is not stored")                  << QVariant::fromValue(kor::Currency::fromTenThousandths(15000)) << QVariant::fromValue(kor::Currency::fromTenThousandths(15000)) << false;
        QTest::newRow("an equal date is not stored")                    << QVariant(QDate(2026, 11, 21))   << QVariant(QDate(2026, 11, 21))   << false;
        QTest::newRow("another date is stored")                         << QVariant(QDate(2026, 11, 22))   << QVariant(QDate(2026, 11, 21))   << true;
        // clang-format on
    }
    void writePropertyStoresWhatDiffersFromTheDefault()
    {
        QFETCH(const QVariant, value);
        QFETCH(const QVariant, defaultValue);
        QFETCH(const bool, stored);
        PropertyBag bag;
        bag.WriteProperty(QStringLiteral("Key"), value, defaultValue);
        QCOMPARE(bag.contains(QStringLiteral("Key")), stored);
        QCOMPARE(bag.isEmpty(), !stored);
        QVERIFY(kor::isSameSetting(bag.ReadProperty(QStringLiteral("Key"), defaultValue), value) ||
                !defaultValue.isValid());
    }

    void keepsTheOrderInWhichSettingsWereWritten()
    {
        PropertyBag bag;
        bag.WriteProperty(QStringLiteral("Text"), QStringLiteral("b"));
        bag.WriteProperty(QStringLiteral("BackColor"), 5);
        bag.WriteProperty(QStringLiteral("Alignment"), 1);
        QCOMPARE(shown(bag), QStringLiteral("Text=b BackColor=5 Alignment=1"));
        QCOMPARE(bag.count(), 3);
        QCOMPARE(bag.keyAt(1), QStringLiteral("BackColor"));
        QCOMPARE(bag.valueAt(2), QVariant(1));
        for (const int place : {-1, 3}) {
            QVERIFY_THROWS_EXCEPTION(kor::RunTimeError, (void)bag.keyAt(place));
            QVERIFY_THROWS_EXCEPTION(kor::RunTimeError, (void)bag.valueAt(place));
        }
    }

    void aKeyWrittenTwiceStandsTwice()
    {
        PropertyBag bag;
        bag.WriteProperty(QStringLiteral("MaxLength"), 7, 0);
        bag.WriteProperty(QStringLiteral("MaxLength"), 7, 0);
        QCOMPARE(shown(bag), QStringLiteral("MaxLength=7 MaxLength=7"));
    }

    void readingARepeatedKeyGivesTheLastOne()
    {
        PropertyBag bag;
        bag.append(QStringLiteral("Enabled"), true);
        bag.append(QStringLiteral("Enabled"), false);
        QCOMPARE(bag.ReadProperty(QStringLiteral("Enabled"), true), QVariant(false));
    }

    void readingAMissingKeyGivesTheDefault()
    {
        const PropertyBag bag;
        QCOMPARE(bag.ReadProperty(QStringLiteral("NullString"), QStringLiteral("...")),
                 QVariant(QStringLiteral("...")));
        QVERIFY(!bag.ReadProperty(QStringLiteral("NullString")).isValid());
    }

    void keysAreToldApartByCase()
    {
        PropertyBag bag;
        bag.append(QStringLiteral("Database"), 1);
        QVERIFY(!bag.contains(QStringLiteral("database")));
    }

    void bagsAreEqualInOrderTypeAndValue()
    {
        PropertyBag bag;
        bag.append(QStringLiteral("A"), 1);
        bag.append(QStringLiteral("B"), kor::null());
        PropertyBag same = bag;
        QVERIFY(bag == same);

        PropertyBag otherOrder;
        otherOrder.append(QStringLiteral("B"), kor::null());
        otherOrder.append(QStringLiteral("A"), 1);
        QVERIFY(bag != otherOrder);

        PropertyBag otherType;
        otherType.append(QStringLiteral("A"), 1.0);
        otherType.append(QStringLiteral("B"), kor::null());
        QVERIFY(bag != otherType);

        same.append(QStringLiteral("B"), kor::null());
        QVERIFY(bag != same);
    }

    void isReachableByNameAlone()
    {
        // A host without the header holds the bag in a QVariant and calls through the meta-object.
        QVariant held = QVariant::fromValue(PropertyBag());
        const QMetaObject *type = held.metaType().metaObject();
        QVERIFY(type);
        const QMetaMethod append = type->method(type->indexOfMethod("append(QString,QVariant)"));
        QVERIFY(append.invokeOnGadget(held.data(), Q_ARG(QString, QStringLiteral("Text")),
                                      Q_ARG(QVariant, QVariant(QStringLiteral("ą")))));
        const QMetaMethod valueAt = type->method(type->indexOfMethod("valueAt(int)"));
        QVariant value;
        QVERIFY(valueAt.invokeOnGadget(held.data(), Q_RETURN_ARG(QVariant, value), Q_ARG(int, 0)));
        QCOMPARE(value, QVariant(QStringLiteral("ą")));
    }
};

QTEST_GUILESS_MAIN(tst_PropertyBag)
#include "tst_propertybag.moc"
