// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/settingsmerge.h"

#include <QtTest/QtTest>

using kor::PropertyBag;

namespace {

//! "A=1 B=2" as a bag, and back.
PropertyBag bag(const QString &text)
{
    PropertyBag result;
    for (const QString &entry : text.split(u' ', Qt::SkipEmptyParts))
        result.append(entry.section(u'=', 0, 0), entry.section(u'=', 1));
    return result;
}

QString shown(const PropertyBag &settings)
{
    QStringList entries;
    for (const auto &[key, value] : settings.entries())
        entries << key + u'=' + value.toString();
    return entries.join(u' ');
}

} // namespace

class tst_SettingsMerge : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void merges_data()
    {
        QTest::addColumn<QString>("loaded");
        QTest::addColumn<QString>("taken");
        QTest::addColumn<QString>("present");
        QTest::addColumn<QString>("merged");

        // clang-format off
        QTest::newRow("nothing stays nothing")                        << ""                << ""            << ""            << "";
        QTest::newRow("what did not change stays")                    << "A=1 B=2"         << "A=1 B=2"     << "A=1 B=2"     << "A=1 B=2";
        QTest::newRow("a changed setting changes in place")           << "A=1 B=2 C=3"     << "A=1 B=2 C=3" << "A=1 B=9 C=3" << "A=1 B=9 C=3";
        QTest::newRow("a setting back at its default goes")           << "A=1 B=2 C=3"     << "A=1 B=2 C=3" << "A=1 C=3"     << "A=1 C=3";
        QTest::newRow("an unknown key stays at its place")            << "A=1 X=0 B=2"     << "A=1 B=2"     << "A=7 B=8"     << "A=7 X=0 B=8";
        QTest::newRow("unknown keys alone stay")                      << "X=0 Y=0 X=1"     << ""            << ""            << "X=0 Y=0 X=1";
        QTest::newRow("a line that repeats a default stays")          << "A=0 B=2"         << "B=2"         << "B=2"         << "A=0 B=2";
        QTest::newRow("a default written out takes the new value")    << "A=0 B=2"         << "B=2"         << "A=5 B=2"     << "A=5 B=2";
        QTest::newRow("a new setting comes behind its forerunner")    << "A=1 C=3"         << "A=1 C=3"     << "A=1 B=2 C=3" << "A=1 B=2 C=3";
        QTest::newRow("a new first setting comes first")              << "B=2"             << "B=2"         << "A=1 B=2"     << "A=1 B=2";
        QTest::newRow("a new last setting comes last")                << "A=1 X=0"         << "A=1"         << "A=1 B=2"     << "A=1 X=0 B=2";
        QTest::newRow("settings of a fresh control")                  << ""                << ""            << "A=1 B=2"     << "A=1 B=2";
        QTest::newRow("an order put in by hand is kept")              << "C=3 B=2 A=1"     << "A=1 B=2 C=3" << "A=1 B=2 C=9" << "C=9 B=2 A=1";
        QTest::newRow("a new setting in an order put in by hand")     << "C=3 A=1"         << "A=1 C=3"     << "A=1 B=2 C=3" << "B=2 C=3 A=1";
        QTest::newRow("a key written twice stays twice")              << "A=1 A=1 B=2"     << "A=1 A=1 B=2" << "A=5 A=5 B=2" << "A=5 A=5 B=2";
        QTest::newRow("a key written twice was once in the file")     << "A=1 B=2"         << "A=1 A=1 B=2" << "A=1 A=1 B=2" << "A=1 A=1 B=2";
        QTest::newRow("a key too often in the file loses the rest")   << "A=1 A=1 A=1"     << "A=1 A=1"     << "A=1 A=1"     << "A=1 A=1";
        QTest::newRow("a doubled key back at its default goes twice") << "A=1 A=1 X=0"     << "A=1 A=1"     << ""            << "X=0";
        // clang-format on
    }
    void merges()
    {
        QFETCH(const QString, loaded);
        QFETCH(const QString, taken);
        QFETCH(const QString, present);
        QFETCH(const QString, merged);
        const PropertyBag result = kor::mergeSettings(bag(loaded), bag(taken), bag(present));
        QCOMPARE(shown(result), merged);
        // Saving once more changes nothing.
        QCOMPARE(shown(kor::mergeSettings(result, bag(present), bag(present))), merged);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsMerge)
#include "tst_settingsmerge.moc"
