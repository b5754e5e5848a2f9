// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridblock.h"

#include <QtTest/QtTest>

using namespace kor;
using namespace Qt::Literals::StringLiterals;

class tst_GridBlock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void textsAreRead_data();
    void textsAreRead();
    void whatIsWrittenIsReadBack_data();
    void whatIsWrittenIsReadBack();
    void thousandsAreTold_data();
    void thousandsAreTold();
};

void tst_GridBlock::textsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QStringList>>("rows");
    using Rows = QList<QStringList>;
    // clang-format off
    QTest::newRow("one cell")                       << "a"                  << Rows{{u"a"_qs}};
    QTest::newRow("break at the end is the row's")  << "a\n"                << Rows{{u"a"_qs}};
    QTest::newRow("Windows' breaks")                << "a\tb\r\nc\td\r\n"   << Rows{{u"a"_qs, u"b"_qs}, {u"c"_qs, u"d"_qs}};
    QTest::newRow("old breaks")                     << "a\rb"               << Rows{{u"a"_qs}, {u"b"_qs}};
    QTest::newRow("empty cells")                    << "\ta\t"              << Rows{{u""_qs, u"a"_qs, u""_qs}};
    QTest::newRow("empty row between")              << "a\n\nb"             << Rows{{u"a"_qs}, {u""_qs}, {u"b"_qs}};
    QTest::newRow("nothing is one empty cell")      << ""                   << Rows{{u""_qs}};
    QTest::newRow("break in quotes")                << "\"a\nb\"\tc"        << Rows{{u"a\nb"_qs, u"c"_qs}};
    QTest::newRow("doubled quotes")                 << "\"a \"\"b\"\"\"\tc" << Rows{{u"a \"b\""_qs, u"c"_qs}};
    QTest::newRow("tab in quotes")                  << "\"a\tb\""           << Rows{{u"a\tb"_qs}};
    QTest::newRow("inches")                         << "3\"\ta"             << Rows{{u"3\""_qs, u"a"_qs}};
    QTest::newRow("a quote in front alone")         << "\"a\tb"             << Rows{{u"\"a"_qs, u"b"_qs}};
    QTest::newRow("quotes around a word stay")      << "\"Gdynia\"\tb"      << Rows{{u"\"Gdynia\""_qs, u"b"_qs}};
    // clang-format on
}

void tst_GridBlock::textsAreRead()
{
    QFETCH(const QString, text);
    QTEST(blockOfText(text), "rows");
}

void tst_GridBlock::whatIsWrittenIsReadBack_data()
{
    QTest::addColumn<QString>("cell");
    for (const char *cell : {"", "a", "a\tb", "a\nb", "\"", "\"\"", "\"a\"", "3\"", "\"a\"\tb", " a ", "=1+1"})
        QTest::addRow("%s", qPrintable(QString::fromLatin1(cell).replace(u'\t', u'^').replace(u'\n', u'/')))
            << QString::fromLatin1(cell);
}

void tst_GridBlock::whatIsWrittenIsReadBack()
{
    QFETCH(const QString, cell);
    const QList<QStringList> rows{{cell, QStringLiteral("x")}, {QStringLiteral("y"), cell}};
    QCOMPARE(blockOfText(textOfBlock(rows)), rows);
}

void tst_GridBlock::thousandsAreTold_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<bool>("isGrouped");
    // clang-format off
    QTest::newRow("no blanks")            << "1234,50"           << true;
    QTest::newRow("thousands")            << "1 234 567,50"      << true;
    QTest::newRow("hard blanks")          << "1\u00a0234,50"     << true;
    QTest::newRow("blank before a unit")  << "1 234,50 zł"       << true;
    QTest::newRow("blanks outside")       << " 12 "              << true;
    QTest::newRow("two numbers")          << "12 34"             << false;
    QTest::newRow("four digits behind")   << "1 2345"            << false;
    // clang-format on
}

void tst_GridBlock::thousandsAreTold()
{
    QFETCH(const QString, number);
    QTEST(isGroupedByThousands(number), "isGrouped");
}

QTEST_APPLESS_MAIN(tst_GridBlock)
#include "tst_gridblock.moc"
