// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/compiledmask.h"
#include "runtime/datereading.h"
#include "runtime/held.h"
#include "runtime/numberreading.h"
#include "runtime/numbertext.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/format.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace kor {

namespace {

//! Whether a text is one number with a point or comma that the locale does not part decimals with. Between day and
//! month it might stand just as well, but nobody who wrote "1234.5" meant the May of that year.
bool isForeignNumber(QStringView text)
{
    const QStringView digits = text.trimmed();
    const auto isPart = [](QChar c) { return isDigit(c.unicode()) || c == u'.' || c == u','; };
    return std::all_of(digits.cbegin(), digits.cend(), isPart) && digits.count(u'.') + digits.count(u',') == 1;
}

//! What a text is as a number: its digits, a truth value or the serial number of a date. Nothing when it is none.
std::optional<Decimal> numberOfText(const QString &text, const Locale &locale)
{
    const NumberReading reading = readNumber(text, locale);
    if (reading.isNumber()) {
        const double number = reading.toDouble();
        return std::isfinite(number) ? std::optional(Decimal::fromDouble(number)) : std::nullopt;
    }
    if (const auto truth = readBoolean(text, locale))
        return Decimal::fromInteger(*truth ? -1 : 0);
    const auto moment = isForeignNumber(text) ? std::nullopt : readDate(text, locale);
    if (moment)
        return Decimal::fromDouble(serialOf(*moment));
    return std::nullopt;
}

//! The value as a number; nothing for a text that is none.
std::optional<Decimal> numberOf(const QVariant &value, const Locale &locale)
{
    switch (variantType(value)) {
    case VariantType::Double: return Decimal::fromDouble(held<double>(value));
    case VariantType::Single: return Decimal::fromSingle(held<float>(value));
    case VariantType::Currency: return Decimal::fromCurrency(held<Currency>(value));
    case VariantType::Long: return Decimal::fromInteger(held<int>(value));
    case VariantType::LongLong: return Decimal::fromInteger(held<qint64>(value));
    case VariantType::String: return numberOfText(held<QString>(value), locale);
    default: return Decimal::fromDouble(CDbl(value, locale));
    }
}

//! The value as a date; nothing for a text that is none. Error 6 for a number beyond the calendar.
std::optional<Moment> dateOf(const QVariant &value, const Locale &locale)
{
    if (variantType(value) == VariantType::Date)
        return momentOf(value);
    double serial = 0;
    if (variantType(value) == VariantType::String) {
        const QString &text = held<QString>(value);
        const NumberReading reading = readNumber(text, locale);
        if (!reading.isNumber() || !reading.isFinite())
            return readDate(text, locale);
        serial = reading.toDouble();
    } else {
        serial = CDbl(value, locale);
    }
    const auto moment = momentOfSerial(serial);
    if (!moment)
        throw RunTimeError(ErrorNumber::Overflow);
    return moment;
}

//! Where the number stands in a currency pattern: at the letter n that is no part of the symbol ("n kn").
qsizetype placeOfNumber(const QString &pattern, const QString &symbol)
{
    const qsizetype symbolAt = symbol.isEmpty() ? -1 : pattern.indexOf(symbol);
    const qsizetype place = pattern.indexOf(u'n');
    const bool isInSymbol = symbolAt >= 0 && place >= symbolAt && place < symbolAt + symbol.size();
    return isInSymbol ? pattern.indexOf(u'n', symbolAt + symbol.size()) : place;
}

void writeCurrency(const Decimal &number, const Locale &locale, MaskOutput &out)
{
    static const NumberMask amount = NumberMask::fromPicture(u"#,##0.00");
    Decimal magnitude = number;
    magnitude.keepPlaces(2);
    const bool negative = magnitude.negative && !magnitude.isZero();
    magnitude.negative = false;
    const QString &pattern = negative ? locale.currencyNegative : locale.currencyPositive;
    const qsizetype place = placeOfNumber(pattern, locale.currencySymbol);
    if (place < 0)
        return appendText(pattern, out);
    appendText(QStringView(pattern).first(place), out);
    amount.write(magnitude, locale, out);
    appendText(QStringView(pattern).sliced(place + 1), out);
}

//! Writes one value through one kind of mask; a text that is nothing to the mask stays as it is.
class Writer
{
public:
    Writer(const QVariant &value, const Locale &locale) : m_value(value), m_locale(locale) {}

    QString operator()(std::monostate) const { return CStr(m_value, m_locale); }

    QString operator()(NamedFormat format) const
    {
        const auto number = numberOf(m_value, m_locale);
        if (!number)
            return CStr(m_value, m_locale);
        switch (format) {
        case NamedFormat::GeneralNumber: return generalNumber(*number);
        case NamedFormat::YesNo: return number->isZero() ? m_locale.noText : m_locale.yesText;
        case NamedFormat::TrueFalse: return number->isZero() ? m_locale.falseText : m_locale.trueText;
        case NamedFormat::OnOff: return number->isZero() ? m_locale.offText : m_locale.onText;
        case NamedFormat::Currency: break;
        }
        MaskOutput out;
        writeCurrency(*number, m_locale, out);
        return textOf(out);
    }

    QString operator()(const NumberMask &mask) const
    {
        const auto number = numberOf(m_value, m_locale);
        if (!number)
            return CStr(m_value, m_locale);
        MaskOutput out;
        mask.write(*number, m_locale, out);
        return textOf(out);
    }

    QString operator()(const LiteralMask &mask) const { return (*this)(mask.text); }

    QString operator()(const DateMask &mask) const
    {
        if (variantType(m_value) != VariantType::String)
            return writtenDate(mask);
        // A date without its year asks for today's, and a host's clock may format something of its own meanwhile: the
        // mask would lose its place in the cache.
        return writtenDate(DateMask(mask));
    }

    QString operator()(const TextMask &mask) const
    {
        MaskOutput out;
        mask.write(CStr(m_value, m_locale), out);
        return textOf(out);
    }

private:
    [[nodiscard]] QString writtenDate(const DateMask &mask) const
    {
        const auto moment = dateOf(m_value, m_locale);
        if (!moment)
            return CStr(m_value, m_locale);
        MaskOutput out;
        mask.write(*moment, m_locale, out);
        return textOf(out);
    }

    [[nodiscard]] QString generalNumber(const Decimal &number) const
    {
        switch (variantType(m_value)) {
        case VariantType::Single:
        case VariantType::LongLong: return CStr(m_value, m_locale);
        case VariantType::Currency: return CStr(m_value, m_locale);
        default: return numberText(number, Decimal::doubleDigits, m_locale.decimalSeparator);
        }
    }

    const QVariant &m_value;
    const Locale &m_locale;
};

QString formatNull(const CompiledMask &mask, const Locale &locale)
{
    MaskOutput out;
    if (const auto *number = std::get_if<NumberMask>(&mask))
        number->writeNull(locale, out);
    else if (const auto *text = std::get_if<TextMask>(&mask))
        text->writeNull(out);
    else if (const auto *literal = std::get_if<LiteralMask>(&mask))
        literal->text.writeNull(locale, out);
    return textOf(out);
}

} // namespace

QString Format(const QVariant &value, QStringView mask, const Locale &locale)
{
    const CompiledMask &compiled = compiledMask(mask);
    switch (variantType(value)) {
    case VariantType::Null:
    case VariantType::Missing: return formatNull(compiled, locale);
    case VariantType::Empty:
        return std::holds_alternative<TextMask>(compiled) ? Format(QString(), mask, locale) : QString();
    case VariantType::Other: return Format(normalized(value), mask, locale);
    default: return std::visit(Writer(value, locale), compiled);
    }
}

} // namespace kor
