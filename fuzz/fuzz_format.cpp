// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fuzzinput.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/Currency>
#include <KorDaoUC/Format>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtCore/QDate>

#include <cmath>

namespace {

QVariant takeValue(FuzzInput &input)
{
    switch (input.take<uint8_t>() % 10) {
    case 0: return kor::null();
    case 1: return {};
    case 2: return input.take<uint8_t>() % 2 == 0;
    case 3: return input.take<int>();
    case 4: return input.take<float>();
    case 5: return QVariant::fromValue(kor::Currency::fromTenThousandths(input.take<qint64>()));
    case 6: return QDate::fromJulianDay(2'415'019 + input.take<int>() % 5'000'000);
    case 7: return input.takeText();
    case 8: return input.take<qint64>();
    default: return input.take<double>();
    }
}

void checkMask(const QVariant &value, const QString &mask, const kor::Locale &locale)
{
    QString first;
    try {
        first = kor::Format(value, mask, locale);
    } catch (const kor::RunTimeError &error) {
        require(error.number() == 6, "Format raises nothing but overflow", mask);
        return;
    }
    require(kor::Format(value, mask, locale) == first, "the compiled mask writes the same again", mask);
    // A number has up to 310 digits and a digit may bring a separator; one letter of a mask may write a whole date.
    const qsizetype own = value.typeId() == QMetaType::QString ? value.toString().size() : 0;
    require(first.size() <= 1000 + own + 64 * mask.size(), "the result is as long as mask and value call for", mask);
}

void checkRoundTrip(double number, const kor::Locale &locale)
{
    if (!std::isfinite(number) || std::fabs(number) >= 1e15)
        return;
    for (const QStringView mask : {QStringView(u"0.00"), QStringView(u"#,##0.00"), QStringView(u"Standard")}) {
        const QString written = kor::Format(number, mask, locale);
        const double read = kor::CDbl(written, locale);
        require(std::fabs(read - number) <= 0.005 + std::fabs(number) * 1e-14, "two decimals read back", written);
        require(kor::Format(written, mask, locale) == written, "formatting again changes nothing", written);
    }
    const QString scientific = kor::Format(number, u"0.00000000000000E+00", locale);
    require(kor::CStr(kor::CDbl(scientific, locale), locale) == kor::CStr(number, locale) || std::fabs(number) < 1e-300,
            "fifteen digits read back", scientific);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const kor::Locale locale = input.takeLocale();
    const auto number = input.take<double>();
    const QVariant value = takeValue(input);
    checkMask(value, input.takeText(), locale);
    checkRoundTrip(number, locale);
    return 0;
}
