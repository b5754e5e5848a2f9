// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridvalues.h"
#include "support/runtimeerrors.h"

#include <KorDaoUC/Variant>

#include <QtTest/QtTest>

#include <limits>

using namespace kor;

//! How values and the texts of cells stand for each other.
class tst_GridValues : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void valueIsReadFromTheTexts_data();
    void valueIsReadFromTheTexts();
    void valueIsWrittenAsTexts_data();
    void valueIsWrittenAsTexts();
    void whatIsNoValueOfTheColumnIsRefused_data();
    void whatIsNoValueOfTheColumnIsRefused();
    void whatIsWrittenIsReadBack();

private:
    const Locale m_locale = Locale::polish();
    const NumberSigns m_signs = NumberSigns::of(m_locale);
    const ValueRules m_rules{m_signs, QDate(2026, 5, 17)};
};

void tst_GridValues::valueIsReadFromTheTexts_data()
{
    QTest::addColumn<ColumnType>("type");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("raw"); // a null one: no value column
    QTest::addColumn<QVariant>("value");
    const QString none;
    const QString empty = QLatin1String("");
    const auto text = [](const char *t) { return QString::fromUtf8(t); };
    // clang-format off
    QTest::newRow("number: formatted")                << ColumnType::Number << text("1\u00a0234,50") << none         << QVariant(1234.5);
    QTest::newRow("number: raw one has all decimals") << ColumnType::Number << text("1,23")          << text("1,2345") << QVariant(1.2345);
    QTest::newRow("number: empty raw is Null")        << ColumnType::Number << text("1,23")          << empty        << null();
    QTest::newRow("number: emptied, raw one stays")   << ColumnType::Number << empty                 << text("12,5")  << null();
    QTest::newRow("date: emptied, raw one stays")     << ColumnType::Date   << empty                 << text("02.01.2026") << null();
    QTest::newRow("click: emptied, raw one stays")    << ColumnType::Click  << empty                 << text("17")    << null();
    QTest::newRow("number: empty is Null")            << ColumnType::Number << empty                 << none         << null();
    QTest::newRow("number: words are Null")           << ColumnType::Number << text("abc")           << none         << null();
    QTest::newRow("number: a fill is Null")           << ColumnType::Number << text("####")          << none         << null();
    QTest::newRow("number: a fill with its raw one")  << ColumnType::Number << text("####")          << text("12345") << QVariant(12345.0);
    QTest::newRow("number: negative")                 << ColumnType::Number << text("-7,00")         << none         << QVariant(-7.0);
    QTest::newRow("number: too large for any")        << ColumnType::Number << text("1e400")         << none         << null();
    QTest::newRow("date")                             << ColumnType::Date   << text("02.01.2026")    << none         << QVariant(QDate(2026, 1, 2));
    QTest::newRow("date: raw one")                    << ColumnType::Date   << text("2 stycznia")    << text("02.01.2026") << QVariant(QDate(2026, 1, 2));
    QTest::newRow("date: six digits")                 << ColumnType::Date   << text("020126")        << none         << QVariant(QDate(2026, 1, 2));
    QTest::newRow("date: empty is Null")              << ColumnType::Date   << empty                 << none         << null();
    QTest::newRow("date: words are Null")             << ColumnType::Date   << text("jutro")         << none         << null();
    QTest::newRow("date: 30 February is Null")        << ColumnType::Date   << text("30.02.2026")    << none         << null();
    QTest::newRow("text")                             << ColumnType::Text   << text("Łódź")          << none         << QVariant(text("Łódź"));
    QTest::newRow("text: what is shown counts")       << ColumnType::Text   << text("Łódź")          << text("7")    << QVariant(text("Łódź"));
    QTest::newRow("text: empty is Null")              << ColumnType::Text   << empty                 << none         << null();
    QTest::newRow("text: digits stay text")           << ColumnType::Text   << text("007")           << none         << QVariant(text("007"));
    QTest::newRow("click: raw one")                   << ColumnType::Click  << text("Młotek")        << text("17")   << QVariant(text("17"));
    QTest::newRow("click: without value column")      << ColumnType::Click  << text("Młotek")        << none         << QVariant(text("Młotek"));
    QTest::newRow("combo: raw one")                   << ColumnType::Combo  << text("sztuka")        << text("S")    << QVariant(text("S"));
    // clang-format on
}

void tst_GridValues::valueIsReadFromTheTexts()
{
    QFETCH(ColumnType, type);
    QFETCH(QString, shown);
    QFETCH(QString, raw);
    QFETCH(QVariant, value);
    const auto kept = raw.isNull() ? std::nullopt : std::optional(raw);
    const QVariant read = valueOfCell(type, {shown, kept}, m_rules);
    QCOMPARE(variantType(read), variantType(value));
    QCOMPARE(read, value);
}

void tst_GridValues::valueIsWrittenAsTexts_data()
{
    QTest::addColumn<ColumnType>("type");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("raw");
    const auto text = [](const char *t) { return QString::fromUtf8(t); };
    const QString two = QStringLiteral("#,##0.00");
    // clang-format off
    QTest::newRow("number by its format")     << ColumnType::Number << two                       << QVariant(1234.5)             << text("1\u00a0234,50") << text("1234,5");
    QTest::newRow("number keeps its decimals in raw") << ColumnType::Number << two               << QVariant(1.23456)            << text("1,23")    << text("1,23456");
    QTest::newRow("whole number")             << ColumnType::Number << QStringLiteral("0")       << QVariant(7)                  << text("7")       << text("7");
    QTest::newRow("number from its text")     << ColumnType::Number << two                       << QVariant(text("12,5"))       << text("12,50")   << text("12,5");
    QTest::newRow("number from a formatted text") << ColumnType::Number << two                   << QVariant(text("1\u00a0234,50")) << text("1\u00a0234,50") << text("1234,5");
    QTest::newRow("number: Null")             << ColumnType::Number << two                       << null()                       << QString()       << QString();
    QTest::newRow("number: Empty")            << ColumnType::Number << two                       << QVariant()                   << QString()       << QString();
    QTest::newRow("number: missing")          << ColumnType::Number << two                       << missing()                    << QString()       << QString();
    QTest::newRow("number: empty text")       << ColumnType::Number << two                       << QVariant(QString())          << QString()       << QString();
    QTest::newRow("zero is no empty cell")    << ColumnType::Number << two                       << QVariant(0)                  << text("0,00")    << text("0");
    QTest::newRow("date")                     << ColumnType::Date   << two                       << QVariant(QDate(2026, 1, 2))  << text("02.01.2026") << text("02.01.2026");
    QTest::newRow("date from its text")       << ColumnType::Date   << two                       << QVariant(text("2.1.26"))     << text("02.01.2026") << text("02.01.2026");
    QTest::newRow("date: Null")               << ColumnType::Date   << two                       << null()                       << QString()       << QString();
    QTest::newRow("text")                     << ColumnType::Text   << two                       << QVariant(text("Żółw"))       << text("Żółw")    << text("Żółw");
    QTest::newRow("text of a number")         << ColumnType::Text   << two                       << QVariant(2.5)                << text("2,5")     << text("2,5");
    QTest::newRow("click")                    << ColumnType::Click  << two                       << QVariant(17)                 << text("17")      << text("17");
    QTest::newRow("key without a name")       << ColumnType::Combo  << two                       << QVariant(17)                 << text("17")      << text("17");
    // clang-format on
}

void tst_GridValues::valueIsWrittenAsTexts()
{
    QFETCH(ColumnType, type);
    QFETCH(QString, format);
    QFETCH(QVariant, value);
    QFETCH(QString, shown);
    QFETCH(QString, raw);
    const CellTexts texts = textsOfValue(type, format, value, m_rules);
    QCOMPARE(texts.shown, shown);
    QCOMPARE(texts.raw.value_or(QStringLiteral("none")), raw);
}

void tst_GridValues::whatIsNoValueOfTheColumnIsRefused_data()
{
    QTest::addColumn<ColumnType>("type");
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("a word for a number")          << ColumnType::Number << QVariant(QStringLiteral("abc"));
    QTest::newRow("a fill for a number")          << ColumnType::Number << QVariant(QStringLiteral("###"));
    QTest::newRow("no finite number")             << ColumnType::Number << QVariant(std::numeric_limits<double>::infinity());
    QTest::newRow("a word for a date")            << ColumnType::Date   << QVariant(QStringLiteral("jutro"));
    QTest::newRow("a day that there is not")      << ColumnType::Date   << QVariant(QStringLiteral("30.02.2026"));
    // clang-format on
}

void tst_GridValues::whatIsNoValueOfTheColumnIsRefused()
{
    QFETCH(ColumnType, type);
    QFETCH(QVariant, value);
    QCOMPARE(errorOf([&] { return textsOfValue(type, QStringLiteral("0"), value, m_rules).shown; }), 13);
}

void tst_GridValues::whatIsWrittenIsReadBack()
{
    for (int i = -2000; i <= 2000; ++i) {
        const double number = i * 1234.0625; // few enough digits for CStr to write them all
        const CellTexts texts = textsOfValue(ColumnType::Number, QStringLiteral("#,##0.00"), number, m_rules);
        QCOMPARE(valueOfCell(ColumnType::Number, texts, m_rules), QVariant(number));
        const QDate day = QDate(2000, 1, 1).addDays(i * 7);
        const CellTexts dates = textsOfValue(ColumnType::Date, QString(), day, m_rules);
        QCOMPARE(valueOfCell(ColumnType::Date, dates, m_rules), QVariant(day));
        QCOMPARE(valueOfCell(ColumnType::Date, {dates.shown, std::nullopt}, m_rules), QVariant(day));
    }
}

QTEST_APPLESS_MAIN(tst_GridValues)
#include "tst_gridvalues.moc"
