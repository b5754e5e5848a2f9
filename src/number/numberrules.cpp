// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "number/numberrules.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/format.h>
#include <KorDaoUC/like.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <algorithm>
#include <cmath>

namespace kor {

namespace {

constexpr int backspace = 8;
constexpr int fullStop = 46; // shares its code with the Delete key, and so escapes the length limit
constexpr int noPosition = -1;

[[nodiscard]] bool isMatch(int keyAscii, const QString &pattern)
{
    return keyAscii > 0 && Like(QString(QChar(static_cast<char16_t>(keyAscii))), pattern);
}

//! The place just behind the first such character, where the caret goes when it is typed again.
[[nodiscard]] int placeBehind(const Entry &entry, QChar character)
{
    const auto at = entry.text.indexOf(character);
    return at < 0 ? noPosition : static_cast<int>(at) + 1;
}

[[nodiscard]] Keystroke swallow(Keystroke key, bool beeps)
{
    key.keyAscii = 0;
    key.beeps = beeps;
    return key;
}

[[nodiscard]] Keystroke onlyMove(Keystroke key, int caret)
{
    key.entry.selStart = caret;
    key.entry.selLength = 0;
    return swallow(std::move(key), false);
}

enum class Width { Fits, AcceptedUnasked, Refused };

//! Whether a digit, separator or minus still has room. The character is tried at the end of the text, wherever the
//! caret is; behind the separator it is let through, since the mask rounds the decimals away.
[[nodiscard]] Width judgeWidth(const Keystroke &key, const TypingRules &rules)
{
    const Entry &entry = key.entry;
    const Width byReplacing = entry.selLength < 1 ? Width::Refused : Width::Fits;
    if (!rules.fits(entry.text))
        return byReplacing;
    const QString candidate = entry.text + QChar(static_cast<char16_t>(key.keyAscii));
    if (rules.fits(formatForDisplay(candidate, rules.mask, rules.signs)))
        return Width::Fits;
    const int behindSeparator = placeBehind(entry, rules.signs.decimalSeparator);
    if (behindSeparator == noPosition)
        return byReplacing;
    return behindSeparator > entry.selStart ? Width::AcceptedUnasked : Width::Fits;
}

} // namespace

NumberSigns NumberSigns::of(const Locale &locale)
{
    const QString amount = Format(1, u"Currency", locale);
    const auto belongsToNumber = [&](QChar c) { return c.isDigit() || c == locale.decimalSeparator; };
    QString currencyText = amount.mid(4);
    if (std::any_of(currencyText.cbegin(), currencyText.cend(), belongsToNumber)) {
        // The sign stands in front, and behind four characters there are digits of the amount itself; removing those
        // would spoil every number.
        const auto first = std::find_if(amount.cbegin(), amount.cend(), belongsToNumber);
        const auto last = std::find_if(amount.crbegin(), amount.crend(), belongsToNumber).base();
        currencyText = QString(amount.cbegin(), static_cast<int>(first - amount.cbegin())) +
                       QString(last, static_cast<int>(amount.cend() - last));
    }
    currencyText.remove(locale.groupSeparator);
    return {locale.decimalSeparator, locale.groupSeparator, Format(1, u"Percent", locale).right(1), currencyText,
            locale};
}

QString toRawText(const QString &shown, const NumberSigns &signs)
{
    QString raw = shown;
    raw.remove(signs.thousandsSeparator);
    raw.replace(signs.decimalSeparator, u'.');
    if (!signs.percentSymbol.isEmpty())
        raw.remove(signs.percentSymbol);
    if (!signs.currencyText.isEmpty())
        raw.remove(signs.currencyText);
    return raw;
}

QString toEditText(const QString &shown, const NumberSigns &signs)
{
    return toRawText(shown, signs).replace(u'.', signs.decimalSeparator);
}

QString formatForDisplay(const QString &text, const QString &mask, const NumberSigns &signs)
{
    const QString edited = toEditText(text, signs);
    if (isHashFill(edited))
        return edited;
    return IsNumeric(edited, signs.locale) ? Format(edited, mask, signs.locale) : QString();
}

std::optional<double> numberShown(const QString &shown, const NumberSigns &signs)
{
    return leadingNumber(toRawText(shown, signs));
}

std::optional<double> numberSet(const QString &text, const NumberSigns &signs)
{
    const QString raw = toRawText(text, signs);
    const QString edited = QString(raw).replace(u'.', signs.decimalSeparator);
    return IsNumeric(raw, signs.locale) || IsNumeric(edited, signs.locale) ? leadingNumber(raw) : std::nullopt;
}

bool saysValue(const QString &shown, const QVariant &value, const QString &mask, const NumberSigns &signs)
{
    return isHashFill(shown) || (Format(value, mask, signs.locale) == shown && shown != u"-");
}

std::optional<double> numberGiven(const QVariant &given, const NumberSigns &signs)
{
    if (isNoNumber(given))
        return std::nullopt;
    const QVariant value = normalized(given);
    switch (variantType(value)) {
    case VariantType::Byte:
    case VariantType::Integer:
    case VariantType::Long:
    case VariantType::LongLong:
    case VariantType::Single:
    case VariantType::Double:
    case VariantType::Currency: {
        const double number = CDbl(value, signs.locale);
        return std::isfinite(number) ? std::optional(number) : std::nullopt; // as a database's 0/0 is not
    }
    default: break;
    }
    const QString text = toEditText(CStr(value, signs.locale), signs);
    return IsNumeric(text, signs.locale) ? std::optional(CDbl(text, signs.locale)) : std::nullopt;
}

bool isNoNumber(const QVariant &given)
{
    const QVariant value = normalized(given);
    return isEmpty(value) || isNull(value) || isMissing(value) ||
           (variantType(value) == VariantType::String && CStr(value).isEmpty());
}

namespace {

[[nodiscard]] bool isGroupedByThree(const QString &text, QChar group)
{
    for (auto at = text.indexOf(group); at >= 0; at = text.indexOf(group, at + 1)) {
        qsizetype digits = 0;
        while (at + 1 + digits < text.size() && text.at(at + 1 + digits).isDigit())
            ++digits;
        if (digits != 3)
            return false;
    }
    return true;
}

} // namespace

float boundGiven(const QVariant &given, const NumberSigns &signs)
{
    const QVariant bound = normalized(given);
    if (variantType(bound) == VariantType::String && !isGroupedByThree(CStr(bound).trimmed(), signs.thousandsSeparator))
        throw RunTimeError(ErrorNumber::TypeMismatch);
    const float single = CSng(given, signs.locale);
    if (std::isnan(single))
        throw RunTimeError(ErrorNumber::TypeMismatch); // no number is above or below it
    return single;
}

std::optional<float> NumberRange::bound(double number) const
{
    if (!isChecked)
        return std::nullopt;
    const auto single = static_cast<float>(number);
    const float raised = single < min ? min : single;
    if (raised > max)
        return max;
    return raised != single ? std::optional(raised) : std::nullopt;
}

bool NumberRange::isOutside(const QVariant &number) const
{
    if (!isChecked || isNull(number))
        return false;
    const auto single = static_cast<float>(CDbl(number));
    return single < min || single > max;
}

bool NumberRange::refuses(const QString &formatted) const
{
    const auto number = leadingNumber(formatted);
    return number ? isOutside(*number) : isChecked;
}

QString NumberRange::message(const Locale &locale) const
{
    return QStringLiteral("Przekroczony zakres liczby. Wprowadź liczbę z zakresu: [%1...%2].")
        .arg(CStr(min, locale), CStr(max, locale));
}

QString hashFill(QString text, const FitTest &fits)
{
    const auto isFilled = [](QChar c) { return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'P'); };
    std::replace_if(text.begin(), text.end(), isFilled, QChar(u'#'));
    while (text.size() > 1 && !fits(text))
        text.remove(0, 1);
    return text;
}

Keystroke judgeKey(Keystroke key, const TypingRules &rules, const std::function<void(int &)> &raiseKeyPress)
{
    const QChar separator = rules.signs.decimalSeparator;
    if (isMatch(key.keyAscii, QStringLiteral("[.,]")))
        key.keyAscii = separator.unicode();

    if (key.keyAscii == separator.unicode()) {
        if (!key.entry.isWhollySelected()) {
            if (const int behind = placeBehind(key.entry, separator); behind != noPosition)
                return onlyMove(std::move(key), behind);
            raiseKeyPress(key.keyAscii);
            return key;
        }
        raiseKeyPress(key.keyAscii); // Kept: raised once more below, as hosts of the field count on
    }

    if (key.keyAscii == u'-') {
        if (key.entry.isWhollySelected()) {
            raiseKeyPress(key.keyAscii); // Kept: raised once more below
        } else if (const int behind = placeBehind(key.entry, u'-'); behind != noPosition) {
            return onlyMove(std::move(key), behind);
        } else {
            key.entry.selStart = 0;
            key.entry.selLength = 0;
        }
    }

    const bool isCounted = key.keyAscii != backspace && key.keyAscii != fullStop;
    if (key.entry.selLength == 0 && rules.maxLength >= 1 && isCounted && key.entry.text.size() + 1 > rules.maxLength)
        return swallow(std::move(key), false);

    if (isMatch(key.keyAscii, QStringLiteral("[-01234567890%1]").arg(separator))) {
        switch (judgeWidth(key, rules)) {
        case Width::Fits: break;
        case Width::AcceptedUnasked: return key;
        case Width::Refused: return swallow(std::move(key), true);
        }
    } else if (key.keyAscii != backspace) {
        return swallow(std::move(key), true);
    }
    raiseKeyPress(key.keyAscii);
    return key;
}

bool isKeyUpForwarded(int keyCode)
{
    constexpr int deleteKey = 46;
    return keyCode == backspace || keyCode == deleteKey || isMatch(keyCode, QStringLiteral("[-01234567890]"));
}

} // namespace kor
