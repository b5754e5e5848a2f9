// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <optional>

namespace kor {

//! The signs of one country that the numeric field reads and writes.
struct NumberSigns {
    QChar decimalSeparator = u'.';
    QChar thousandsSeparator = u',';
    QString percentSymbol;
    QString currencyText; //!< what stands behind a plain amount, such as " zł"
    Locale locale;

    [[nodiscard]] static NumberSigns of(const Locale &locale);
};

//! The bare number in a shown text, with "." as its decimal point: grouping, percent sign and currency removed.
[[nodiscard]] QString toRawText(const QString &shown, const NumberSigns &signs);
//! The bare number as it is edited: with the locale's separator.
[[nodiscard]] QString toEditText(const QString &shown, const NumberSigns &signs);
//! The number in a text written through the mask. A "#" fill stays as it is; what is no number gives "".
[[nodiscard]] QString formatForDisplay(const QString &text, const QString &mask, const NumberSigns &signs);

//! The number that a text in the field says, by what it begins with. Nothing for one that no Double holds.
[[nodiscard]] std::optional<double> numberShown(const QString &shown, const NumberSigns &signs);
//! The number in a text that a program sets, with "." or the locale's separator; nothing for what is no number.
[[nodiscard]] std::optional<double> numberSet(const QString &text, const NumberSigns &signs);
//! Whether a text formatted on leaving still says the number that the field holds.
[[nodiscard]] bool saysValue(const QString &shown, const QVariant &value, const QString &mask,
                             const NumberSigns &signs);

//! The number that a program's value stands for; nothing for Null, a missing argument, "" and what is no number.
[[nodiscard]] std::optional<double> numberGiven(const QVariant &given, const NumberSigns &signs);
//! Whether a program's value says by itself that there is no number: Null, Empty, a missing argument or "".
[[nodiscard]] bool isNoNumber(const QVariant &given);

//! A bound as a program or a property page gives it, by the locale's rules. Error 13 for what is no number, and for a
//! grouping character without three digits behind it, so that 0,5 is never read as 5; error 94 for Null.
[[nodiscard]] float boundGiven(const QVariant &given, const NumberSigns &signs);

//! The range of a field. Numbers are compared with the bounds in single precision, as the bounds are kept, so that 0,7
//! lies inside a range that ends at 0,7.
struct NumberRange {
    bool isChecked = false;
    float min = 0;
    float max = 0;

    //! The bound that stands in for a number outside the range.
    [[nodiscard]] std::optional<float> bound(double number) const;
    //! Whether a number lies outside a checked range. Null lies nowhere.
    [[nodiscard]] bool isOutside(const QVariant &number) const;
    //! Whether a formatted text lies outside, as Val reads it. What no Double holds lies outside every checked range.
    [[nodiscard]] bool refuses(const QString &formatted) const;
    //! What the user is told of a number outside.
    [[nodiscard]] QString message(const Locale &locale) const;
};

//! Whether a text fits the field. Given to the rules, because measuring needs a font.
using FitTest = std::function<bool(const QString &)>;

//! The text as a run of "#" that fits: digits and letters A to P become "#", then the front is cut.
[[nodiscard]] QString hashFill(QString text, const FitTest &fits);
//! Whether a text is such a fill: the number is not in it.
[[nodiscard]] inline bool isHashFill(const QString &text) { return text.contains(u'#'); }

//! A field while it is typed into.
struct Entry {
    QString text;
    int selStart = 0;
    int selLength = 0;

    [[nodiscard]] bool isWhollySelected() const { return selLength == text.size(); }
    bool operator==(const Entry &) const = default;
};

//! What one field allows.
struct TypingRules {
    const NumberSigns &signs;
    const QString &mask;
    int maxLength = 0; //!< 0 is no limit
    FitTest fits;
};

//! One key on its way through the filter.
struct Keystroke {
    int keyAscii = 0; //!< 0: swallowed
    Entry entry;      //!< the caret as the filter has moved it
    bool beeps = false;
};

//! Judges one typed character, raising KeyPress where the host has its say; a code that the host changes carries on.
//! KeyPress is raised twice for a separator or a minus that replaces a fully selected text.
[[nodiscard]] Keystroke judgeKey(Keystroke key, const TypingRules &rules,
                                 const std::function<void(int &)> &raiseKeyPress);

//! Whether the release of a key is passed on to the host: Backspace, Delete, Insert and the digits.
[[nodiscard]] bool isKeyUpForwarded(int keyCode);

} // namespace kor
