// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "frame/settings.h"
#include "support/runtimeerrors.h"
#include "support/settings.h"

#include <QtTest/QtTest>

#include <functional>
#include <memory>

using kor::PropertyBag;
using kor::SettingUse;
using Keys = QStringList;

namespace {

enum class Side : int { Left = 0, Right = 1 };

//! The least that a table can be of.
class Thing : public QObject
{
public:
    [[nodiscard]] QString Name() const { return m_name; }
    void setName(const QString &name) { set("Name", m_name, name); }
    [[nodiscard]] int Size() const { return m_size; }
    void setSize(int size) { set("Size", m_size, size); }
    [[nodiscard]] Side Place() const { return m_place; }
    void setPlace(Side place) { set("Place", m_place, place); }
    [[nodiscard]] QVariant Value() const { return m_value; }
    void setValue(const QVariant &value) { set("Value", m_value, value); }

    //! What was set, in its order.
    [[nodiscard]] QString takeLog() { return std::exchange(m_log, {}).join(u' '); }
    void log(const QString &line) { m_log << line; }
    std::function<void(const char *)> onSet;

private:
    template <class Member, class New>
    void set(const char *name, Member &member, const New &value)
    {
        member = value;
        log(QString::fromLatin1(name));
        if (onSet)
            onSet(name);
    }

    QString m_name = QStringLiteral("bez nazwy");
    int m_size = 5;
    Side m_place = Side::Right;
    QVariant m_value;
    QStringList m_log;
};

using Table = kor::SettingsTable<Thing>;

const Table &ordinary()
{
    static const Table table{
        {"Name", &Thing::Name, &Thing::setName, QStringLiteral("bez nazwy")},
        {"Size", &Thing::Size, &Thing::setSize, 5},
        {"Place", &Thing::Place, &Thing::setPlace, kor::integer(1)},
        {"Value", &Thing::Value, &Thing::setValue, kor::null()},
    };
    return table;
}

PropertyBag bagOf(const QList<std::pair<QString, QVariant>> &entries)
{
    PropertyBag bag;
    for (const auto &[key, value] : entries)
        bag.append(key, value);
    return bag;
}

QStringList written(const Table &table, const Thing &thing)
{
    PropertyBag bag;
    table.write(thing, bag);
    return kor::test::keysOf(bag);
}

} // namespace

//! The table that a control's settings are written and read by.
class tst_Settings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatDiffersFromItsDefaultIsWrittenInTheTablesOrder();
    void everyKeyIsReadAndAMissingOneGivesItsDefault();
    void savedValuesBecomeTheSettersKind_data();
    void savedValuesBecomeTheSettersKind();
    void aValueOfTheWrongKindIsAnErrorAndKeepsTheOldOne_data();
    void aValueOfTheWrongKindIsAnErrorAndKeepsTheOldOne();
    void enumerationsAreSavedAsIntegers();
    void aRepeatedKeyIsWrittenAsOftenAsItStands();
    void rowsAreWrittenOnlyOrReadOnly();
    void readingFollowsTheRanksAndWritingDoesNot();
    void aStepIsTakenAtItsPlaceWhileReadingOnly();
    void aDefaultMayBeAskedOfTheControl();
    void readingEndsWithTheControl();
    void readingAgainChangesNothing();
    void aLongThatFitsIsSavedAsAnInteger_data();
    void aLongThatFitsIsSavedAsAnInteger();
};

void tst_Settings::whatDiffersFromItsDefaultIsWrittenInTheTablesOrder()
{
    Thing thing;
    thing.setValue(kor::null());
    QCOMPARE(written(ordinary(), thing), Keys());
    thing.setPlace(Side::Left);
    thing.setName(QStringLiteral("nazwa"));
    QCOMPARE(written(ordinary(), thing), (Keys{QStringLiteral("Name"), QStringLiteral("Place")}));
}

void tst_Settings::everyKeyIsReadAndAMissingOneGivesItsDefault()
{
    Thing thing;
    thing.setSize(70);
    thing.setValue(7);
    (void)thing.takeLog();
    ordinary().read(thing, bagOf({{QStringLiteral("Unknown"), 1}, {QStringLiteral("Name"), QStringLiteral("x")}}));
    QCOMPARE(thing.takeLog(), QStringLiteral("Name Size Place Value"));
    QCOMPARE(thing.Name(), QStringLiteral("x"));
    QCOMPARE(thing.Size(), 5);
    QCOMPARE(thing.Place(), Side::Right);
    QVERIFY(kor::isNull(thing.Value()));
}

void tst_Settings::savedValuesBecomeTheSettersKind_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("saved");
    QTest::addColumn<QVariant>("set");
    // clang-format off
    QTest::newRow("a Single for a Long is rounded to even")  << QStringLiteral("Size")  << QVariant(2.5F)                   << QVariant(2);
    QTest::newRow("a text for a Long is read")               << QStringLiteral("Size")  << QVariant(QStringLiteral("12"))   << QVariant(12);
    QTest::newRow("True for a Long is -1")                   << QStringLiteral("Size")  << QVariant(true)                   << QVariant(-1);
    QTest::newRow("a number for a text is written")          << QStringLiteral("Name")  << QVariant(12)                     << QVariant(QStringLiteral("12"));
    QTest::newRow("Empty for a text is the empty one")       << QStringLiteral("Name")  << QVariant()                       << QVariant(QString());
    QTest::newRow("a Long for an enumeration is its number") << QStringLiteral("Place") << QVariant(0)                      << QVariant::fromValue<short>(0);
    QTest::newRow("a variant stays what it is")              << QStringLiteral("Value") << QVariant(2.5F)                   << QVariant(2.5F);
    // clang-format on
}

void tst_Settings::savedValuesBecomeTheSettersKind()
{
    QFETCH(QString, key);
    QFETCH(QVariant, saved);
    QFETCH(QVariant, set);
    Thing thing;
    ordinary().read(thing, bagOf({{key, saved}}));
    PropertyBag bag;
    ordinary().write(thing, bag);
    QCOMPARE(bag.ReadProperty(key, QVariant()), set);
}

void tst_Settings::aValueOfTheWrongKindIsAnErrorAndKeepsTheOldOne_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("saved");
    QTest::addColumn<int>("number");
    QTest::newRow("a word for a number") << QStringLiteral("Size") << QVariant(QStringLiteral("dwa")) << 13;
    QTest::newRow("a word for an enumeration") << QStringLiteral("Place") << QVariant(QStringLiteral("dwa")) << 13;
    QTest::newRow("Null for a number") << QStringLiteral("Size") << kor::null() << 94;
    QTest::newRow("Null for a text") << QStringLiteral("Name") << kor::null() << 94;
    QTest::newRow("more than a Long holds") << QStringLiteral("Size") << QVariant(3e9) << 6;
}

void tst_Settings::aValueOfTheWrongKindIsAnErrorAndKeepsTheOldOne()
{
    QFETCH(QString, key);
    QFETCH(QVariant, saved);
    QFETCH(int, number);
    Thing thing;
    thing.setSize(70);
    thing.setName(QStringLiteral("nazwa"));
    thing.setPlace(Side::Left);
    PropertyBag before;
    ordinary().write(thing, before);
    PropertyBag bag = bagOf({{QStringLiteral("Name"), QStringLiteral("nazwa")},
                             {QStringLiteral("Size"), 70},
                             {QStringLiteral("Place"), 0}});
    PropertyBag wrong;
    for (const auto &[name, value] : bag.entries())
        wrong.append(name, name == key ? saved : value);
    QCOMPARE(errorOf([&] {
                 ordinary().read(thing, wrong);
                 return 0;
             }),
             number);
    PropertyBag after;
    ordinary().write(thing, after);
    QCOMPARE(after.ReadProperty(key, QVariant()), before.ReadProperty(key, QVariant()));
}

void tst_Settings::enumerationsAreSavedAsIntegers()
{
    Thing thing;
    thing.setPlace(Side::Left);
    PropertyBag bag;
    ordinary().write(thing, bag);
    QCOMPARE(bag.ReadProperty(QStringLiteral("Place"), QVariant()), QVariant::fromValue<short>(0));
}

void tst_Settings::aRepeatedKeyIsWrittenAsOftenAsItStands()
{
    const Table table{{"Size", &Thing::Size, &Thing::setSize, 5}, {"Size", &Thing::Size, &Thing::setSize, 5}};
    Thing thing;
    thing.setSize(6);
    QCOMPARE(written(table, thing), (Keys{QStringLiteral("Size"), QStringLiteral("Size")}));
    (void)thing.takeLog();
    table.read(thing, bagOf({{QStringLiteral("Size"), 8}}));
    QCOMPARE(thing.takeLog(), QStringLiteral("Size Size"));
}

void tst_Settings::rowsAreWrittenOnlyOrReadOnly()
{
    const Table table{
        {"Name", &Thing::Name, &Thing::setName, QString(), SettingUse::WriteOnly},
        {"Size", &Thing::Size, &Thing::setSize, 5, SettingUse::ReadOnly},
    };
    Thing thing;
    thing.setName(QStringLiteral("nazwa"));
    thing.setSize(6);
    QCOMPARE(written(table, thing), Keys{QStringLiteral("Name")});
    (void)thing.takeLog();
    table.read(thing, bagOf({{QStringLiteral("Name"), QStringLiteral("x")}, {QStringLiteral("Size"), 7}}));
    QCOMPARE(thing.takeLog(), QStringLiteral("Size"));
    QCOMPARE(thing.Name(), QStringLiteral("nazwa"));
}

void tst_Settings::readingFollowsTheRanksAndWritingDoesNot()
{
    const Table table{
        Table::Row("Name", &Thing::Name, &Thing::setName, QString()).readAt(2),
        Table::Row("Size", &Thing::Size, &Thing::setSize, 0).readAt(1),
        {"Place", &Thing::Place, &Thing::setPlace, kor::integer(0)},
        Table::Row("Value", &Thing::Value, &Thing::setValue, 0).readAt(1),
    };
    Thing thing;
    QCOMPARE(written(table, thing).join(u' '), QStringLiteral("Name Size Place Value"));
    table.read(thing, {});
    QCOMPARE(thing.takeLog(), QStringLiteral("Place Size Value Name"));
}

void tst_Settings::aStepIsTakenAtItsPlaceWhileReadingOnly()
{
    const Table table{
        {"Name", &Thing::Name, &Thing::setName, QString()},
        Table::Row::whileReading([](Thing &thing) { thing.log(QStringLiteral("step")); }),
        {"Size", &Thing::Size, &Thing::setSize, 0},
    };
    Thing thing;
    QCOMPARE(written(table, thing).join(u' '), QStringLiteral("Name Size"));
    QCOMPARE(thing.takeLog(), QString());
    table.read(thing, {});
    QCOMPARE(thing.takeLog(), QStringLiteral("Name step Size"));
}

void tst_Settings::aDefaultMayBeAskedOfTheControl()
{
    const Table table{
        {"Size", &Thing::Size, &Thing::setSize, 5},
        Table::Row("Value", &Thing::Value, &Thing::setValue, QVariant()).withDefault([](const Thing &thing) {
            return QVariant(thing.Size() * 2);
        }),
    };
    Thing thing;
    thing.setValue(10);
    QCOMPARE(written(table, thing), Keys());
    thing.setValue(11);
    QCOMPARE(written(table, thing), Keys{QStringLiteral("Value")});
    table.read(thing, bagOf({{QStringLiteral("Size"), 8}}));
    QCOMPARE(thing.Value(), QVariant(16)); // of what was read before it
}

void tst_Settings::readingEndsWithTheControl()
{
    auto thing = std::make_unique<Thing>();
    QStringList set;
    thing->onSet = [&](const char *name) {
        set << QString::fromLatin1(name);
        if (set.size() == 2) {
            const auto keepsTheHandlerAlive = std::move(thing->onSet);
            thing.reset();
        }
    };
    ordinary().read(*thing, {});
    QCOMPARE(set.join(u' '), QStringLiteral("Name Size"));
}

void tst_Settings::readingAgainChangesNothing()
{
    Thing thing;
    const PropertyBag saved = bagOf({{QStringLiteral("Name"), QStringLiteral("x")}, {QStringLiteral("Value"), 3}});
    ordinary().read(thing, saved);
    PropertyBag once;
    ordinary().write(thing, once);
    ordinary().read(thing, once);
    PropertyBag twice;
    ordinary().write(thing, twice);
    QCOMPARE(once.entries(), saved.entries());
    QCOMPARE(twice.entries(), saved.entries());
}

void tst_Settings::aLongThatFitsIsSavedAsAnInteger_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QVariant>("saved");
    QTest::newRow("the largest Integer") << 32767 << QVariant::fromValue<short>(32767);
    QTest::newRow("one more is a Long") << 32768 << QVariant(32768);
    QTest::newRow("the smallest Integer") << -32768 << QVariant::fromValue<short>(-32768);
    QTest::newRow("one less is a Long") << -32769 << QVariant(-32769);
}

void tst_Settings::aLongThatFitsIsSavedAsAnInteger()
{
    QFETCH(int, value);
    QFETCH(QVariant, saved);
    const Table table{{"Size", kor::asInteger(&Thing::Size), &Thing::setSize, kor::integer(0)}};
    Thing thing;
    thing.setSize(value);
    PropertyBag bag;
    table.write(thing, bag);
    QCOMPARE(bag.ReadProperty(QStringLiteral("Size"), QVariant()), saved);
}

QTEST_APPLESS_MAIN(tst_Settings)
#include "tst_settings.moc"
