// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
//
// What must hold for every value, tried on many: the random numbers are the same in every run.

#include "support/runtimeerrors.h"

#include <KorDaoUC/Compare>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Date>
#include <KorDaoUC/Format>
#include <KorDaoUC/Like>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtTest/QTest>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>

using kor::Locale;

namespace {

std::vector<Locale> locales() { return {Locale::polish(), Locale::english(), Locale::german()}; }

//! Amounts, small and large numbers, and any bit pattern that is a number.
std::vector<double> numbers(std::size_t count)
{
    std::mt19937_64 random(20031128);
    std::vector<double> made = {0, 1, -1, 0.5, 0.005, 1.005, 99.995, 1e15, 1e-5, 5e-324, 1.7976931348623157e308};
    while (made.size() < count) {
        const quint64 bits = random();
        double any = 0;
        std::memcpy(&any, &bits, sizeof any);
        if (std::isfinite(any))
            made.push_back(any);
        made.push_back(static_cast<double>(static_cast<qint64>(bits) >> 30) / 100);
        made.push_back(static_cast<double>(static_cast<qint64>(bits) >> 20) / 1e7);
        made.push_back(std::ldexp(static_cast<double>(bits), static_cast<int>(bits % 100) - 100));
    }
    return made;
}

} // namespace

class tst_RuntimeProperties : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void textsHaveFifteenDigits();
    void conversionsReadWhatTheyWrote();
    void twoDecimalsReadBack();
    void roundingIsThatOfTheWrittenDigits();
    void currencyIsExact();
    void everyDayReadsBack();
    void everySecondReadsBack();
    void comparisonIsAnOrder();
    void wholesAreOrderedAndWrittenExactly();
    void equalitiesAgree();
    void textsMatchThemselves();
};

void tst_RuntimeProperties::textsHaveFifteenDigits()
{
    for (const double number : numbers(40'000)) {
        const double expected = QString::number(number, 'g', 15).toDouble();
        const QString text = kor::CStr(number, Locale::english());
        QVERIFY2(text.toDouble() == expected || std::isinf(expected),
                 qPrintable(text + u' ' + QString::number(number, 'g', 17) + u' ' + QString::number(number, 'g', 15)));
        qsizetype digits = 0;
        for (const QChar c : text.section(u'E', 0, 0))
            digits += c.isDigit() ? 1 : 0;
        QVERIFY2(digits <= 16, qPrintable(text)); // the leading zero of 0.123456789012345 is the sixteenth
    }
}

void tst_RuntimeProperties::conversionsReadWhatTheyWrote()
{
    for (const Locale &locale : locales()) {
        for (const double number : numbers(10'000)) {
            const QString text = kor::CStr(number, locale);
            if (std::fabs(number) > 1.7976931348623e308)
                continue; // rounded up to fifteen digits, the largest numbers do not fit
            QVERIFY2(kor::IsNumeric(text, locale), qPrintable(text));
            QCOMPARE(kor::CStr(kor::CDbl(text, locale), locale), text);
            if (locale.decimalSeparator == u'.')
                QCOMPARE(kor::Val(text), kor::CDbl(text, locale));
        }
    }
}

void tst_RuntimeProperties::twoDecimalsReadBack()
{
    for (const Locale &locale : locales()) {
        for (const double number : numbers(10'000)) {
            if (std::fabs(number) >= 1e15)
                continue;
            const QString text = kor::Format(number, u"#,##0.00", locale);
            const double read = kor::CDbl(text, locale);
            QVERIFY2(std::fabs(read - number) <= 0.005 + std::fabs(number) * 1e-14, qPrintable(text));
            QCOMPARE(kor::Format(text, u"#,##0.00", locale), text);
            QCOMPARE(kor::Format(number, u"Standard", locale), text);
        }
    }
}

void tst_RuntimeProperties::roundingIsThatOfTheWrittenDigits()
{
    // With all fifteen digits written out, cutting a text by hand must give what the mask gives.
    for (int thousandths = -20'000; thousandths <= 20'000; ++thousandths) {
        const int cents = (qAbs(thousandths) + 5) / 10;
        QString expected = QStringLiteral("%1,%2").arg(cents / 100).arg(cents % 100, 2, 10, QLatin1Char('0'));
        if (thousandths < 0 && cents > 0)
            expected.prepend(u'-');
        QCOMPARE(kor::Format(thousandths / 1000.0, u"0.00", Locale::polish()), expected);
    }
}

void tst_RuntimeProperties::currencyIsExact()
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 5000; ++i) {
        const auto amount = kor::Currency::fromTenThousandths(static_cast<qint64>(random()));
        const QVariant value = QVariant::fromValue(amount);
        const QString text = kor::Format(value, u"#,##0.0000", Locale::polish());
        QCOMPARE(kor::CCur(text, Locale::polish()), amount);
        QCOMPARE(kor::CCur(kor::CStr(value, Locale::polish()), Locale::polish()), amount);
    }
}

void tst_RuntimeProperties::everyDayReadsBack()
{
    Locale iso = Locale::polish();
    iso.shortDatePattern = QStringLiteral("yyyy-MM-dd");
    iso.dateSeparator = u'-';
    std::vector<Locale> all = locales();
    all.push_back(iso);
    const QDate last(9999, 12, 31);
    for (QDate day(100, 1, 1); day <= last; day = day.addDays(53)) {
        const int number = kor::CLng(day);
        QCOMPARE(kor::CDate(number), QVariant(day));
        QCOMPARE(kor::DateSerial(day.year(), day.month(), day.day()), day);
        for (const Locale &locale : all) {
            const QString text = kor::Format(day, u"Short Date", locale);
            QCOMPARE(kor::DateValue(text, locale), day);
            QCOMPARE(kor::DateValue(kor::Format(day, u"d mmmm yyyy", locale), locale), day);
        }
        QCOMPARE(kor::DateValue(kor::Format(day, u"Long Date", iso), iso), day);
    }
}

void tst_RuntimeProperties::everySecondReadsBack()
{
    for (int second = 0; second < 86'400; second += 7) {
        const QDateTime moment(QDate(2003, 9, 28), QTime(0, 0).addSecs(second), Qt::UTC);
        const QVariant value = kor::normalized(moment);
        for (const Locale &locale : {Locale::polish(), Locale::english()})
            QCOMPARE(kor::CDate(kor::CStr(value, locale), locale), value);
        QCOMPARE(kor::CDate(kor::CDbl(value)), value);
    }
}

void tst_RuntimeProperties::comparisonIsAnOrder()
{
    const std::vector<QVariant> values = {QVariant(),
                                          true,
                                          false,
                                          QVariant::fromValue(short(5)),
                                          5.0,
                                          -1,
                                          1.5F,
                                          QVariant::fromValue(kor::Currency::fromDouble(2.25)),
                                          QDate(2000, 1, 1),
                                          QString(),
                                          QStringLiteral("5"),
                                          QStringLiteral("a"),
                                          QStringLiteral("B"),
                                          QStringLiteral("ą")};
    for (const QVariant &left : values) {
        for (const QVariant &right : values) {
            for (const auto mode : {kor::TextComparison::Binary, kor::TextComparison::Text}) {
                const auto order = kor::compare(left, right, mode);
                const auto mirrored = kor::compare(right, left, mode);
                QVERIFY(order && mirrored);
                QCOMPARE(std::is_lt(*order), std::is_gt(*mirrored));
                QCOMPARE(std::is_eq(*order), std::is_eq(*mirrored));
            }
        }
    }
}

void tst_RuntimeProperties::equalitiesAgree()
{
    const Locale polish = Locale::polish();
    for (const double number : numbers(2000)) {
        const QString text = kor::CStr(number, polish);
        const double shown = std::fabs(number) > 1.7976931348623e308 ? 0 : kor::CDbl(text, polish);
        QVERIFY(kor::strictlyEqual(number, number) && kor::looselyEqual(number, number, polish));
        QVERIFY(!kor::strictlyEqual(text, shown));
        QVERIFY(std::fabs(number) > 1.7976931348623e308 || kor::looselyEqual(text, shown, polish));
    }
}

//! 64-bit integers around the borders of the types and anywhere, beside each other and beside Doubles.
void tst_RuntimeProperties::wholesAreOrderedAndWrittenExactly()
{
    std::mt19937_64 random(53);
    std::vector<qint64> wholes;
    const qint64 borders[] = {0,
                              qint64(1) << 31,
                              qint64(1) << 53,
                              (qint64(1) << 53) + 1000,
                              qint64(1) << 62,
                              std::numeric_limits<qint64>::max() - 2};
    for (const qint64 border : borders) {
        for (qint64 step = -2; step <= 2; ++step) {
            wholes.push_back(border + step);
            wholes.push_back(-border + step);
        }
    }
    wholes.push_back(std::numeric_limits<qint64>::min());
    for (int i = 0; i < 200; ++i)
        wholes.push_back(static_cast<qint64>(random()) >> (random() % 12));
    const Locale polish = Locale::polish();
    for (const qint64 left : wholes) {
        const QVariant value = kor::normalized(left);
        const bool isBeyond = kor::variantType(value) == kor::VariantType::LongLong;
        QCOMPARE(isBeyond, left > (qint64(1) << 53) || left < -(qint64(1) << 53));
        const QString written = kor::CStr(value, polish);
        QVERIFY(!isBeyond || written == QString::number(left));
        for (const qint64 right : wholes) {
            const auto order = kor::compare(value, right);
            QVERIFY(order && *order == (left <=> right));
            QVERIFY(kor::strictlyEqual(value, right) == (left == right));
            QVERIFY(!isBeyond || kor::looselyEqual(written, right, polish) == (left == right));
            const auto number = static_cast<double>(right);
            const auto exact = static_cast<long double>(left) <=> static_cast<long double>(number);
            QVERIFY(*kor::compare(value, number) == exact);
        }
    }
}

void tst_RuntimeProperties::textsMatchThemselves()
{
    std::mt19937 random(11);
    const QString letters = QStringLiteral("ab1*?#[]!-ąŻ ");
    for (int i = 0; i < 5000; ++i) {
        QString text;
        QString literal;
        QString masked;
        for (unsigned length = random() % 12; length > 0; --length) {
            const QChar c = letters[static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size()))];
            text += c;
            literal += QStringLiteral("*?#[").contains(c) ? u'[' + QString(c) + u']' : QString(c);
            masked += random() % 3 == 0 ? QStringLiteral("*") : QStringLiteral("?");
        }
        QVERIFY(kor::Like(text, literal));
        QVERIFY(kor::Like(text, masked));
        QVERIFY(!kor::Like(text + u'x', literal));
        QVERIFY(kor::Like(text.toUpper(), literal.toLower(), kor::TextComparison::Text));
    }
}

QTEST_GUILESS_MAIN(tst_RuntimeProperties)
#include "tst_runtimeproperties.moc"
