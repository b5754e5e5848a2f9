// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/daterules.h"

#include "constituents/keycodes.h"
#include "runtime/datereading.h"

#include <KorDaoUC/arithmetic.h>
#include <KorDaoUC/compare.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/date.h>
#include <KorDaoUC/format.h>
#include <KorDaoUC/variant.h>

namespace kor {

namespace {

[[nodiscard]] bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

[[nodiscard]] QString withoutDigits(QString text)
{
    text.removeIf(isDigit);
    return text;
}

[[nodiscard]] QString withSeparators(QString text, QChar separator)
{
    for (const QChar other : {u'.', u',', u'/', u'-'})
        text.replace(other, separator);
    return text;
}

//! 010203 and 01021999 with their separators; other lengths as they are. The split is day first, whatever the mask
//! says: the places of the mask are read afterwards.
[[nodiscard]] QString splitBareDigits(const QString &text, QChar separator)
{
    if (text.size() != 6 && text.size() != 8)
        return text;
    return text.first(2) + separator + text.sliced(2, 2) + separator + text.sliced(4);
}

//! The text behind a mask, and how that text quotes what it writes as it stands.
struct Pattern {
    QString text;
    enum class Quoting { Picture, System } quoting = Quoting::Picture;
};

[[nodiscard]] Pattern patternOf(const QString &mask, const Locale &locale)
{
    const auto isNamed = [&mask](QStringView name) { return mask.compare(name, Qt::CaseInsensitive) == 0; };
    if (mask.isEmpty() || isNamed(u"Short Date") || isNamed(u"General Date") || isNamed(u"c") || isNamed(u"ddddd"))
        return {locale.shortDatePattern, Pattern::Quoting::System};
    if (isNamed(u"Long Date") || isNamed(u"dddddd"))
        return {locale.longDatePattern, Pattern::Quoting::System};
    if (isNamed(u"Medium Date"))
        return {QStringLiteral("dd-MMM-yy")};
    return {mask};
}

//! How many separators a pattern writes in front of the first run of a letter. Quoted text and an escaped character
//! are written as they stand, so they are never fields.
[[nodiscard]] std::optional<int> placeOf(QChar letter, const Pattern &pattern)
{
    const bool isPicture = pattern.quoting == Pattern::Quoting::Picture;
    const QString &text = pattern.text;
    int separators = 0;
    bool isQuoted = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        QChar c = text[at];
        if (c == (isPicture ? u'"' : u'\'')) {
            isQuoted = !isQuoted;
            continue;
        }
        bool isLiteral = isQuoted;
        if (isPicture && !isLiteral && c == u'\\' && at + 1 < text.size()) {
            c = text[++at];
            isLiteral = true;
        }
        if (!isLiteral && c == letter)
            return separators;
        if (isLiteral ? !isDigit(c) : !c.isLetterOrNumber())
            ++separators;
    }
    return std::nullopt;
}

//! The number in one place of a typed date, which holds digits only; what can't be a day, month or year for its size
//! is 0.
[[nodiscard]] int numberAt(std::optional<int> place, const QStringList &fields)
{
    constexpr int noNumber = 0;
    constexpr int largest = 9999;
    const int number = place ? fields.value(*place).toInt() : noNumber;
    return number <= largest ? number : noNumber;
}

[[nodiscard]] int yearTyped(int typed)
{
    if (typed < 50)
        return typed + 2000;
    return typed < 100 ? typed + 1900 : typed;
}

//! The date of a text whose numbers stand in the places of the mask.
[[nodiscard]] std::optional<QDate> readByPlaces(const QString &separated, const DateRules &rules)
{
    const QChar separator = rules.locale.dateSeparator;
    const QString written = withoutDigits(Format(rules.today, rules.mask, rules.locale));
    if (withoutDigits(separated) != QString(written.size(), separator))
        return std::nullopt;
    const QStringList fields = separated.split(separator);
    const DatePlaces places = placesOf(rules.mask, rules.locale);
    const int day = numberAt(places.day, fields);
    const int month = numberAt(places.month, fields);
    const int year = numberAt(places.year, fields);
    const QDate date(yearTyped(year), month, day);
    return year >= 1 && date.isValid() ? std::optional(date) : std::nullopt;
}

} // namespace

DateCheck checkDate(const QString &given, const DateRules &rules)
{
    if (given.isEmpty())
        return {true, std::nullopt, given};
    const DateCheck refused{false, std::nullopt, given};
    const QChar separator = rules.locale.dateSeparator;
    QString text = given;
    QString separated = withSeparators(text, separator);
    if (!separated.contains(separator))
        text = separated = splitBareDigits(separated, separator);
    const auto exact = readDate(separated, rules.locale);
    if (!exact)
        return refused; // Kept: what the run-time can't read at all is refused before the mask's places are tried
    if (Format(exact->date, rules.mask, rules.locale) == text)
        return {true, exact->date, text};
    if (const auto date = readByPlaces(separated, rules))
        return {true, date, Format(*date, rules.mask, rules.locale)};
    return refused;
}

DatePlaces placesOf(const QString &mask, const Locale &locale)
{
    const Pattern pattern = patternOf(mask, locale);
    const auto either = [&pattern](QChar usual, QChar other) {
        const auto place = placeOf(usual, pattern);
        return place ? place : placeOf(other, pattern);
    };
    return {either(u'd', u'D'), either(u'M', u'm'), either(u'y', u'Y')};
}

bool isDateCharacter(int keyAscii, const Locale &locale)
{
    const QChar c(static_cast<char16_t>(keyAscii));
    return isDigit(c) || c == u'.' || c == u',' || c == u'/' || c == locale.dateSeparator;
}

DateKey judgeDateKey(int keyCode, int shift, DateKeyRules rules)
{
    using Answer = DateKey::Answer;
    if (rules.blockUpDown && isRowKey(keyCode, shift))
        return {Answer::ReportAndSwallow};
    const bool isClipboard = shift == ShiftState::Shift || shift == ShiftState::Ctrl;
    switch (keyCode) {
    case Key::Up: return {Answer::Step, 1};
    case Key::Down: return {Answer::Step, -1};
    case Key::PageUp: return {Answer::Step, 7};
    case Key::PageDown: return {Answer::Step, -7};
    case Key::Insert: return {isClipboard ? Answer::PassOn : Answer::InsertToday};
    default: return {isOpeningF4(keyCode, shift) && rules.canOpen ? Answer::OpenCalendar : Answer::PassOn};
    }
}

QVariant stepped(const QVariant &value, int days, const Locale &locale)
{
    const QVariant date = CDate(value, locale);
    const QVariant further = add(date, days, locale); // a date as long as there is one so far away
    return variantType(further) == VariantType::Date ? further : date;
}

bool isNoDate(const QVariant &value)
{
    return isNull(value) || isMissing(value) || strictlyEqual(value, QStringLiteral("0")) ||
           strictlyEqual(value, QString()) || strictlyEqual(value, 0);
}

QString patternForMessage(const QString &mask, const Locale &locale)
{
    const bool isShort = mask.compare(QLatin1String("Short Date"), Qt::CaseInsensitive) == 0;
    return QString(isShort ? locale.shortDatePattern : mask).replace(u'y', u'r');
}

QDate calendarStart(const QString &text, const DateRules &rules)
{
    if (const DateCheck check = checkDate(text, rules); check.date)
        return *check.date;
    const auto said = readDate(text, rules.locale);
    return said ? said->date : rules.today;
}

} // namespace kor
