// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fuzzinput.h"

#include <KorDaoUC/Compare>
#include <KorDaoUC/Convert>
#include <KorDaoUC/RunTimeError>

#include <cmath>
#include <optional>

namespace {

//! The result of a conversion, or nothing when it raised an error that it may raise.
template <typename Convert>
auto attempt(Convert convert, const QString &text) -> std::optional<decltype(convert())>
{
    try {
        return convert();
    } catch (const kor::RunTimeError &error) {
        require(error.number() == 6 || error.number() == 13, "only overflow and mismatch are raised", text);
    }
    return std::nullopt;
}

void checkText(const QString &text, const kor::Locale &locale)
{
    const bool numeric = kor::IsNumeric(text, locale);
    const auto number = attempt([&] { return kor::CDbl(text, locale); }, text);
    require(numeric == number.has_value(), "IsNumeric tells whether CDbl succeeds", text);
    (void)attempt([&] { return kor::CInt(text, locale); }, text);
    (void)attempt([&] { return kor::CBool(text, locale); }, text);
    const auto single = attempt([&] { return kor::CSng(text, locale); }, text);
    require(!single || numeric, "what CSng reads is numeric", text);
    const auto whole = attempt([&] { return kor::CLng(text, locale); }, text);
    require(!whole || text.contains(u'&') || std::fabs(*whole - *number) <= 0.5, "CLng rounds", text);
    const auto amount = attempt([&] { return kor::CCur(text, locale); }, text);
    if (amount) {
        const QString written = kor::CStr(QVariant::fromValue(*amount), locale);
        require(kor::CCur(written, locale) == *amount, "CCur reads what CStr writes", written);
    }
    if (number)
        require(kor::looselyEqual(text, *number, locale), "a numeric text equals its number", text);
}

void checkNumber(double number, const kor::Locale &locale)
{
    if (!std::isfinite(number))
        return;
    const QString written = kor::CStr(number, locale);
    const auto read = attempt([&] { return kor::CDbl(written, locale); }, written);
    // The largest Double has no text of fifteen digits that fits.
    if (std::fabs(number) < 1.79769313486231e308)
        require(read && kor::CStr(*read, locale) == written, "CDbl reads what CStr writes", written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const kor::Locale locale = input.takeLocale();
    const auto number = input.take<double>();
    checkText(input.takeText(), locale);
    checkNumber(number, locale);
    return 0;
}
