// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/latebound.h"
#include "pages/recordingcontrols.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/Locale>

#include <QtTest/QtTest>

using namespace kor;
using namespace kor::test;

namespace {

//! Members of all kinds.
class Thing : public QObject
{
    Q_OBJECT
    Q_PROPERTY(float Single MEMBER m_single)
    Q_PROPERTY(double Double MEMBER m_double)
    Q_PROPERTY(int Long MEMBER m_long)
    Q_PROPERTY(short Integer MEMBER m_integer)
    Q_PROPERTY(bool Boolean MEMBER m_boolean)
    Q_PROPERTY(QString Text MEMBER m_text)
    Q_PROPERTY(Side Enumeration MEMBER m_side)
    Q_PROPERTY(QObject *Object MEMBER m_object)
    Q_PROPERTY(int ReadOnly READ readOnly)
public:
    enum class Side : int { Left = 3, Right = 4 };
    Q_ENUM(Side)
    [[nodiscard]] int readOnly() const { return 5; }
    Q_INVOKABLE QString Title() const { return QStringLiteral("tytuł"); }
    Q_INVOKABLE void Clear() { m_text.clear(); }
    Q_INVOKABLE QString Joined(int number, const QString &text) { return QString::number(number) + text; }

    float m_single = 1.5F;
    double m_double = 2;
    int m_long = 3;
    short m_integer = 4;
    bool m_boolean = true;
    QString m_text = QStringLiteral("tekst");
    Side m_side = Side::Right;
    QObject *m_object = nullptr;
};

} // namespace

//! Members by their names.
class tst_LateBound : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void membersAreRead_data();
    void membersAreRead();
    void whatIsNoMemberIsError438_data();
    void whatIsNoMemberIsError438();
    void aTextBecomesANumberByTheLocale_data();
    void aTextBecomesANumberByTheLocale();
    void whatAPropertyCannotHoldIsError13();
    void anEnumerationIsANumber();
    void aPropertyAddedAtRunTimeIsAMember();
    void aMethodIsCalledByItsSignature();
};

void tst_LateBound::membersAreRead_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("Single property")                 << QByteArray("Single")      << QVariant(1.5F);
    QTest::newRow("text property")                   << QByteArray("Text")        << QVariant(QStringLiteral("tekst"));
    QTest::newRow("enumeration, as a number")        << QByteArray("Enumeration") << QVariant(4);
    QTest::newRow("read-only property")              << QByteArray("ReadOnly")    << QVariant(5);
    QTest::newRow("method that gives something")     << QByteArray("Title")       << QVariant(QStringLiteral("tytuł"));
    // clang-format on
}

void tst_LateBound::membersAreRead()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    Thing thing;
    QVERIFY(hasMember(thing, name));
    const QVariant read = readMember(thing, name);
    QCOMPARE(read, value);
    QCOMPARE(read.metaType(), value.metaType());
}

void tst_LateBound::whatIsNoMemberIsError438_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("unknown") << QByteArray("Width");
    QTest::newRow("other case") << QByteArray("text");
    QTest::newRow("method that gives nothing") << QByteArray("Clear");
    QTest::newRow("method with arguments") << QByteArray("Joined");
}

void tst_LateBound::whatIsNoMemberIsError438()
{
    QFETCH(QByteArray, name);
    Thing thing;
    QVERIFY(!hasMember(thing, name));
    QCOMPARE(errorOf([&] { return readMember(thing, name); }), 438);
    QCOMPARE(errorOf([&] {
                 writeMember(thing, name, 1);
                 return 0;
             }),
             438);
    QCOMPARE(errorOf([&] {
                 writeMember(thing, "ReadOnly", 1);
                 return 0;
             }),
             438);
    QCOMPARE(errorOf([&] { return callMember(thing, "Retrive()"); }), 438);
    try {
        (void)readMember(thing, name);
    } catch (const RunTimeError &error) {
        QVERIFY(error.description().endsWith(QLatin1String(name)));
    }
}

void tst_LateBound::aTextBecomesANumberByTheLocale_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("comma");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("error");
    // clang-format off
    QTest::newRow("half with a comma")               << QByteArray("Single")  << "0,5"   << true  << QVariant(0.5F)   << 0;
    QTest::newRow("half with a point")               << QByteArray("Double")  << "0.5"   << false << QVariant(0.5)    << 0;
    QTest::newRow("point where the comma separates") << QByteArray("Single")  << "0.5"   << true  << QVariant(1.5F)   << 13;
    QTest::newRow("no number")                       << QByteArray("Long")    << "x"     << true  << QVariant(3)      << 13;
    QTest::newRow("halves to even")                  << QByteArray("Long")    << "2,5"   << true  << QVariant(2)      << 0;
    QTest::newRow("too large for an Integer")        << QByteArray("Integer") << "40000" << true  << QVariant(4)      << 6;
    QTest::newRow("Boolean in words")                << QByteArray("Boolean") << "False" << true  << QVariant(false)  << 0;
    QTest::newRow("text stays text")                 << QByteArray("Text")    << "0,5"   << true  << QVariant(QStringLiteral("0,5")) << 0;
    // clang-format on
}

void tst_LateBound::aTextBecomesANumberByTheLocale()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, text);
    QFETCH(bool, comma);
    QFETCH(QVariant, value);
    QFETCH(int, error);
    Locale::setSystemDefault(comma ? Locale::polish() : Locale::english());
    Thing thing;
    QCOMPARE(errorOf([&] {
                 writeMember(thing, name, text);
                 return 0;
             }),
             error);
    QCOMPARE(readMember(thing, name).toString(), value.toString());
}

void tst_LateBound::whatAPropertyCannotHoldIsError13()
{
    Thing thing;
    QCOMPARE(errorOf([&] {
                 writeMember(thing, "Object", 5);
                 return 0;
             }),
             13);
    QCOMPARE(thing.m_object, nullptr);
}

void tst_LateBound::anEnumerationIsANumber()
{
    Thing thing;
    writeMember(thing, "Enumeration", 3);
    QVERIFY(thing.m_side == Thing::Side::Left);
}

void tst_LateBound::aPropertyAddedAtRunTimeIsAMember()
{
    Thing thing;
    thing.setProperty("Slownik", QStringLiteral("miasta"));
    QVERIFY(hasMember(thing, "Slownik"));
    writeMember(thing, "Slownik", QStringLiteral("towary"));
    QCOMPARE(readMember(thing, "Slownik"), QVariant(QStringLiteral("towary")));
}

void tst_LateBound::aMethodIsCalledByItsSignature()
{
    Thing thing;
    QCOMPARE(callMember(thing, "Joined(int,QString)", Q_ARG(int, 7), Q_ARG(QString, QStringLiteral("a"))),
             QVariant(QStringLiteral("7a")));
    QCOMPARE(callMember(thing, "Clear()"), QVariant());
    QVERIFY(thing.m_text.isEmpty());
    RecordedGrid grid;
    QCOMPARE(callMember(grid, "ReadColProperty(int,QString)", Q_ARG(int, 2), Q_ARG(QString, QStringLiteral("Title"))),
             QVariant(QStringLiteral("Kolumna 2")));
}

QTEST_GUILESS_MAIN(tst_LateBound)

#include "tst_latebound.moc"
