// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "fuzzinput.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Date>
#include <KorDaoUC/Format>
#include <KorDaoUC/RunTimeError>

namespace {

void checkRoundTrips(const QVariant &date, const kor::Locale &locale)
{
    const QString general = kor::CStr(date, locale);
    require(kor::IsDate(general, locale), "a date's text is a date", general);
    require(kor::CDate(general, locale) == date, "CDate reads what CStr writes", general);
    const QString iso = kor::Format(date, u"yyyy-mm-dd hh:nn:ss", locale);
    // Years of three digits have no four-digit form; then the text may be read in another order.
    if (iso.size() == 19)
        require(kor::CDate(iso, locale) == date, "CDate reads the year-first form", iso);
    require(kor::CDate(kor::CDbl(date, locale), locale) == date, "a day number gives the date back", general);
}

void checkText(const QString &text, const kor::Locale &locale)
{
    const bool isDate = kor::IsDate(text, locale);
    try {
        const QDate day = kor::DateValue(text, locale);
        require(isDate, "what DateValue reads is a date", text);
        require(day.year() >= 100 && day.year() <= 9999, "dates stay in the calendar", text);
        checkRoundTrips(kor::CDate(text, locale), locale);
    } catch (const kor::RunTimeError &error) {
        require(error.number() == 13 && !isDate, "DateValue refuses what is no date", text);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    kor::Clock::setSource([] { return QDate(2026, 3, 14); });
    FuzzInput input(data, size);
    const kor::Locale locale = input.takeLocale();
    const auto serial = input.take<double>();
    checkText(input.takeText(), locale);
    try {
        checkRoundTrips(kor::CDate(serial, locale), locale);
    } catch (const kor::RunTimeError &error) {
        require(error.number() == 6, "a day number out of the calendar overflows");
    }
    return 0;
}
