// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fuzzinput.h"

#include <KorDaoUC/Arithmetic>
#include <KorDaoUC/Compare>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Format>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

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
    // At 2^53 a text may say the next integer, of which there is no Double.
    if (number && std::fabs(*number) != 0x1p53)
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

//! A 64-bit integer beside others: a text that reads back, and an order that is the integers' own.
void checkWholes(qint64 left, qint64 right, double number, const kor::Locale &locale)
{
    const auto orderOf = [](const QVariant &a, const QVariant &b) { return *kor::compare(a, b); };
    const QVariant leftValue(left);
    const QVariant rightValue(right);
    require(orderOf(leftValue, rightValue) == (left <=> right), "integers compare as integers");
    require(kor::strictlyEqual(leftValue, rightValue) == (left == right), "integers are equal as integers");
    if (kor::variantType(kor::normalized(leftValue)) == kor::VariantType::LongLong) {
        const QString written = kor::CStr(leftValue, locale);
        require(written == QString::number(left), "CStr writes all digits", written);
        require(kor::Format(leftValue, u"0", locale) == written, "so does a mask", written);
        require(kor::looselyEqual(written, leftValue, locale), "the text equals its integer", written);
        require(left == right || !kor::looselyEqual(written, rightValue, locale), "and no other", written);
    }
    if (std::isnan(number))
        return;
    // What lies between two values in the order lies between them as numbers.
    const auto beside = orderOf(leftValue, number);
    require(beside == (static_cast<long double>(left) <=> static_cast<long double>(number)), "exact beside a Double");
    if (orderOf(leftValue, rightValue) <= 0 && orderOf(rightValue, number) <= 0)
        require(beside <= 0, "the order is transitive");
    try {
        const QVariant sum = kor::add(leftValue, rightValue, locale);
        qint64 exact = 0;
        if (!qAddOverflow(left, right, &exact) && kor::variantType(sum) == kor::VariantType::LongLong)
            require(sum.toLongLong() == exact, "sums of integers are exact");
    } catch (const kor::RunTimeError &) {
        require(false, "sums of integers raise nothing");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const kor::Locale locale = input.takeLocale();
    const auto number = input.take<double>();
    checkText(input.takeText(), locale);
    checkNumber(number, locale);
    const auto left = input.take<qint64>();
    const auto right = input.take<qint64>();
    checkWholes(left, right, number, locale);
    checkWholes(left, left + (left < right ? 1 : 0), static_cast<double>(left), locale); // the closest there are
    return 0;
}
