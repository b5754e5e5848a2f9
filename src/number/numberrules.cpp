// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "number/numberrules.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/format.h>
#include <KorDaoUC/like.h>

#include <algorithm>

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
    NumberSigns signs{locale.decimalSeparator, locale.groupSeparator, Format(1, u"Percent", locale).right(1),
                      Format(1, u"Currency", locale).mid(4).remove(locale.groupSeparator), locale};
    // Where the sign stands in front of the amount, the tail is made of the amount's own digits, and removing those
    // would spoil every number.
    const bool spoilsNumbers =
        std::any_of(signs.currencyText.cbegin(), signs.currencyText.cend(),
                    [&](QChar character) { return character.isDigit() || character == locale.decimalSeparator; });
    if (spoilsNumbers) {
        const QString form = locale.currencyPositive;
        signs.currencyText = QString(form).replace(u'n', QString()).trimmed().isEmpty() ? QString() : locale.currencySymbol;
    }
    return signs;
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
