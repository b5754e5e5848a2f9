// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/entrymodel.h"
#include "constituents/typeahead.h"

#include <QtTest/QtTest>

using namespace kor;

//! Finding a name while its beginning is typed.
class tst_Typeahead : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void beginsWithoutCaseAndAccents_data();
    void beginsWithoutCaseAndAccents();
    void everyPolishLetterIsFoundByItsBase();
    void modelFindsFromTheStartAndWraps_data();
    void modelFindsFromTheStartAndWraps();
    void otherSearchesAreTheToolkits();
    void manyNamesComeWithOneNotification();
};

void tst_Typeahead::beginsWithoutCaseAndAccents_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("begins");
    // clang-format off
    QTest::newRow("same letters")                  << QStringLiteral("Gdynia")       << QStringLiteral("Gdy")     << true;
    QTest::newRow("small letters")                 << QStringLiteral("Gdynia")       << QStringLiteral("gdy")     << true;
    QTest::newRow("capital letters")               << QStringLiteral("gdynia")       << QStringLiteral("GDY")     << true;
    QTest::newRow("whole name")                    << QStringLiteral("Gdynia")       << QStringLiteral("gdynia")  << true;
    QTest::newRow("more than the name")            << QStringLiteral("Gdynia")       << QStringLiteral("gdyniaa") << false;
    QTest::newRow("part inside the name")          << QStringLiteral("Gdynia")       << QStringLiteral("dynia")   << false;
    QTest::newRow("base letters")                  << QStringLiteral("Łódź")         << QStringLiteral("lodz")    << true;
    QTest::newRow("accents typed in full")         << QStringLiteral("Łódź")         << QStringLiteral("Łódź")    << true;
    QTest::newRow("accents typed too many")        << QStringLiteral("Lodz")         << QStringLiteral("łó")      << true;
    QTest::newRow("accent in pieces in the name")  << QStringLiteral("Ło\u0301dź")   << QStringLiteral("lod")     << true;
    QTest::newRow("accent in pieces typed")        << QStringLiteral("Łódź")         << QStringLiteral("lo\u0301d") << true;
    QTest::newRow("two accents on one letter")     << QStringLiteral("Ệ")            << QStringLiteral("e")       << true;
    QTest::newRow("other strokes")                 << QStringLiteral("Øđħŧ")         << QStringLiteral("odht")    << true;
    QTest::newRow("German")                        << QStringLiteral("Österreich")   << QStringLiteral("os")      << true;
    QTest::newRow("Greek in its case")             << QStringLiteral("Αθήνα")        << QStringLiteral("αθηνα")   << true;
    QTest::newRow("blank inside")                  << QStringLiteral("Jan Kowalski") << QStringLiteral("jan k")   << true;
    QTest::newRow("digits")                        << QStringLiteral("12 szt.")      << QStringLiteral("12 ")     << true;
    QTest::newRow("nothing typed")                 << QStringLiteral("Gdynia")       << QString()                 << true;
    QTest::newRow("empty name")                    << QString()                      << QStringLiteral("g")       << false;
    QTest::newRow("other letter")                  << QStringLiteral("Gdynia")       << QStringLiteral("k")       << false;
    // clang-format on
}

void tst_Typeahead::beginsWithoutCaseAndAccents()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    QTEST(beginsAsTyped(name, typed), "begins");
}

void tst_Typeahead::everyPolishLetterIsFoundByItsBase()
{
    const QString letters = QStringLiteral("ąćęłńóśźżĄĆĘŁŃÓŚŹŻ");
    const QString bases = QStringLiteral("acelnoszzACELNOSZZ");
    for (qsizetype i = 0; i < letters.size(); ++i) {
        QVERIFY(beginsAsTyped(letters.sliced(i, 1), bases.sliced(i, 1)));
        QVERIFY(beginsAsTyped(bases.sliced(i, 1), letters.sliced(i, 1).toLower()));
    }
}

void tst_Typeahead::modelFindsFromTheStartAndWraps_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("found");
    QTest::newRow("at the start itself") << 1 << QStringLiteral("lu") << 1;
    QTest::newRow("behind the start") << 1 << QStringLiteral("lo") << 2;
    QTest::newRow("wraps") << 2 << QStringLiteral("lu") << 1;
    QTest::newRow("nothing") << 0 << QStringLiteral("x") << -1;
}

void tst_Typeahead::modelFindsFromTheStartAndWraps()
{
    QFETCH(int, start);
    QFETCH(QString, typed);
    EntryModel model;
    model.append({QStringLiteral("Gdynia"), QStringLiteral("Lublin"), QStringLiteral("Łódź")});
    const auto found = model.match(model.index(start), Qt::DisplayRole, typed, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    QTEST(found.isEmpty() ? -1 : found.front().row(), "found");
}

void tst_Typeahead::otherSearchesAreTheToolkits()
{
    EntryModel model;
    model.append({QStringLiteral("Łódź"), QStringLiteral("Lodz")});
    QCOMPARE(model.match(model.index(0), Qt::DisplayRole, QStringLiteral("Lodz"), -1, Qt::MatchExactly).size(), 1);
    QCOMPARE(model.match(model.index(0), Qt::DisplayRole, QStringLiteral("od"), -1, Qt::MatchContains).size(), 1);
    QCOMPARE(model.match(model.index(0), Qt::DisplayRole, QStringLiteral("lodz"), -1, Qt::MatchStartsWith).size(), 2);
    QCOMPARE(model.indexOf(QStringLiteral("Lodz")), 1);
    QCOMPARE(model.indexOf(QStringLiteral("lodz")), -1);
    QCOMPARE(model.name(7), QString());
}

void tst_Typeahead::manyNamesComeWithOneNotification()
{
    EntryModel model;
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.append(QStringList(1000, QStringLiteral("x")));
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(model.rowCount(), 1000);
    model.append(QStringList());
    QCOMPARE(inserted.count(), 1);
    model.clear();
    model.clear();
    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.data(model.index(0), Qt::DisplayRole).isValid());
}

QTEST_GUILESS_MAIN(tst_Typeahead)
#include "tst_typeahead.moc"
