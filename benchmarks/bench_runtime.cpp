// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
//
// The run-time functions against what else could do the work: the toolkit's own formatting, ICU's and the bare C and
// C++ functions. Cold means a mask that this thread has not compiled yet, or a formatter made anew.

#include <KorDaoUC/Convert>
#include <KorDaoUC/Format>
#include <KorDaoUC/Like>
#include <KorDaoUC/Locale>

#include <QtCore/QDate>
#include <QtCore/QLocale>

#include <array>
#include <benchmark/benchmark.h>
#include <charconv>
#include <cstdio>
#include <memory>
#include <unicode/datefmt.h>
#include <unicode/decimfmt.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

namespace {

constexpr std::size_t valueCount = 256;

//! Amounts as a form holds them: two decimals, up to millions, both signs.
const std::array<double, valueCount> &amounts()
{
    static const auto values = [] {
        std::array<double, valueCount> made;
        unsigned seed = 12345;
        for (double &value : made) {
            seed = seed * 1664525 + 1013904223;
            value = static_cast<double>(static_cast<int>(seed) / 10) / 100;
        }
        return made;
    }();
    return values;
}

const std::array<QDate, valueCount> &dates()
{
    static const auto values = [] {
        std::array<QDate, valueCount> made;
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i] = QDate(1980, 1, 1).addDays(static_cast<qint64>(i) * 67);
        return made;
    }();
    return values;
}

const kor::Locale &polish()
{
    static const kor::Locale locale = kor::Locale::polish();
    return locale;
}

const QLocale &toolkitPolish()
{
    static const QLocale locale(QLocale::Polish, QLocale::Poland);
    return locale;
}

//! Masks of one length that are new to the cache every time: each ends in another ordinary character.
std::vector<QString> newMasks(QStringView picture)
{
    std::vector<QString> masks;
    for (char16_t last = 0x4e00; last < 0x5e00; ++last)
        masks.push_back(picture.toString() + QChar(last));
    return masks;
}

void numberKorWarm(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::Format(amounts()[i++ % valueCount], u"#,##0.00", polish()));
    state.SetLabel("goal toolkit 1; icu 1; snprintf 3");
}
BENCHMARK(numberKorWarm)->Name("FormatNumber/warm/kor");

void numberToolkit(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(toolkitPolish().toString(amounts()[i++ % valueCount], 'f', 2));
}
BENCHMARK(numberToolkit)->Name("FormatNumber/warm/peer:toolkit");

void numberIcu(benchmark::State &state)
{
    const auto formatter = icu::number::NumberFormatter::withLocale(icu::Locale("pl_PL"))
                               .precision(icu::number::Precision::fixedFraction(2));
    std::size_t i = 0;
    for (auto _ : state) {
        UErrorCode status = U_ZERO_ERROR;
        benchmark::DoNotOptimize(formatter.formatDouble(amounts()[i++ % valueCount], status).toString(status));
    }
}
BENCHMARK(numberIcu)->Name("FormatNumber/warm/peer:icu");

//! No grouping, no locale, no 16-bit text: the bare minimum.
void numberSnprintf(benchmark::State &state)
{
    std::array<char, 64> buffer;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::snprintf(buffer.data(), buffer.size(), "%.2f", amounts()[i++ % valueCount]));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(numberSnprintf)->Name("FormatNumber/warm/peer:snprintf");

void numberKorCold(benchmark::State &state)
{
    const std::vector<QString> masks = newMasks(u"#,##0.00");
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kor::Format(amounts()[i % valueCount], masks[i % masks.size()], polish()));
        ++i;
    }
    state.SetLabel("goal toolkit 1; icu 1");
}
BENCHMARK(numberKorCold)->Name("FormatNumber/cold/kor");

void numberToolkitCold(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state) {
        const QLocale locale(QLocale::Polish, QLocale::Poland);
        benchmark::DoNotOptimize(locale.toString(amounts()[i++ % valueCount], 'f', 2));
    }
}
BENCHMARK(numberToolkitCold)->Name("FormatNumber/cold/peer:toolkit");

void numberIcuCold(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::DecimalFormat formatter(u"#,##0.00", icu::DecimalFormatSymbols(icu::Locale("pl_PL"), status),
                                           status);
        icu::UnicodeString text;
        benchmark::DoNotOptimize(formatter.format(amounts()[i++ % valueCount], text));
    }
}
BENCHMARK(numberIcuCold)->Name("FormatNumber/cold/peer:icu");

void dateKorWarm(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::Format(dates()[i++ % valueCount], u"Short Date", polish()));
    state.SetLabel("goal toolkit 1; icu 1; snprintf 3");
}
BENCHMARK(dateKorWarm)->Name("FormatDate/warm/kor");

void dateToolkit(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(toolkitPolish().toString(dates()[i++ % valueCount], QStringView(u"dd.MM.yyyy")));
}
BENCHMARK(dateToolkit)->Name("FormatDate/warm/peer:toolkit");

void dateIcu(benchmark::State &state)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::SimpleDateFormat formatter(u"dd.MM.yyyy", icu::Locale("pl_PL"), status);
    std::size_t i = 0;
    for (auto _ : state) {
        icu::UnicodeString text;
        const auto day = static_cast<double>(dates()[i++ % valueCount].toJulianDay() - 2'440'588) * 86'400'000.0;
        benchmark::DoNotOptimize(formatter.format(day, text));
    }
}
BENCHMARK(dateIcu)->Name("FormatDate/warm/peer:icu");

void dateSnprintf(benchmark::State &state)
{
    std::array<char, 64> buffer;
    std::size_t i = 0;
    for (auto _ : state) {
        int year = 0;
        int month = 0;
        int day = 0;
        dates()[i++ % valueCount].getDate(&year, &month, &day);
        benchmark::DoNotOptimize(std::snprintf(buffer.data(), buffer.size(), "%02d.%02d.%04d", day, month, year));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(dateSnprintf)->Name("FormatDate/warm/peer:snprintf");

void dateKorCold(benchmark::State &state)
{
    const std::vector<QString> masks = newMasks(u"dd.mm.yyyy");
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kor::Format(dates()[i % valueCount], masks[i % masks.size()], polish()));
        ++i;
    }
    state.SetLabel("goal toolkit 1; icu 1");
}
BENCHMARK(dateKorCold)->Name("FormatDate/cold/kor");

void dateToolkitCold(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state) {
        const QLocale locale(QLocale::Polish, QLocale::Poland);
        benchmark::DoNotOptimize(locale.toString(dates()[i++ % valueCount], QStringView(u"dd.MM.yyyy")));
    }
}
BENCHMARK(dateToolkitCold)->Name("FormatDate/cold/peer:toolkit");

void dateIcuCold(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::SimpleDateFormat formatter(u"dd.MM.yyyy", icu::Locale("pl_PL"), status);
        icu::UnicodeString text;
        const auto day = static_cast<double>(dates()[i++ % valueCount].toJulianDay() - 2'440'588) * 86'400'000.0;
        benchmark::DoNotOptimize(formatter.format(day, text));
    }
}
BENCHMARK(dateIcuCold)->Name("FormatDate/cold/peer:icu");

//! The amounts as texts, with the decimal point or comma.
template <char16_t separator>
const std::array<QString, valueCount> &amountTexts()
{
    static const auto texts = [] {
        std::array<QString, valueCount> made;
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i] = QString::number(amounts()[i], 'f', 2).replace(u'.', QChar(separator));
        return made;
    }();
    return texts;
}

void valKor(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::Val(amountTexts<u'.'>()[i++ % valueCount]));
    state.SetLabel("goal from_chars 2; toolkit 1");
}
BENCHMARK(valKor)->Name("Val/kor");

void isNumericKor(benchmark::State &state)
{
    std::vector<QVariant> values;
    for (const QString &text : amountTexts<u','>())
        values.emplace_back(text);
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::IsNumeric(values[i++ % valueCount], polish()));
    state.SetLabel("goal from_chars 2; toolkit 1");
}
BENCHMARK(isNumericKor)->Name("IsNumeric/kor");

void fromChars(benchmark::State &state)
{
    std::vector<std::string> texts;
    for (const QString &text : amountTexts<u'.'>())
        texts.push_back(text.toStdString());
    std::size_t i = 0;
    for (auto _ : state) {
        const std::string &text = texts[i++ % valueCount];
        double value = 0;
        benchmark::DoNotOptimize(std::from_chars(text.data(), text.data() + text.size(), value));
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(fromChars)->Name("Val/peer:from_chars");
BENCHMARK(fromChars)->Name("IsNumeric/peer:from_chars");

void toolkitToDouble(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(toolkitPolish().toDouble(amountTexts<u','>()[i++ % valueCount]));
}
BENCHMARK(toolkitToDouble)->Name("Val/peer:toolkit");
BENCHMARK(toolkitToDouble)->Name("IsNumeric/peer:toolkit");

void textKor(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::CStr(amounts()[i++ % valueCount], polish()));
    state.SetLabel("goal toolkit 1");
}
BENCHMARK(textKor)->Name("CStr/kor");

void textToolkit(benchmark::State &state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(QString::number(amounts()[i++ % valueCount], 'g', 15));
}
BENCHMARK(textToolkit)->Name("CStr/peer:toolkit");

void likeKor(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(kor::Like(u"12345,67", u"*[!0-9.,-]*"));
}
BENCHMARK(likeKor)->Name("Like/kor");

} // namespace

BENCHMARK_MAIN();
