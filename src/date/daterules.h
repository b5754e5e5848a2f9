// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QDate>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace kor {

//! What a date is read and written by. Everything is handed in, so the rules below know no clock and no system.
struct DateRules {
    const QString &mask;
    const Locale &locale;
    QDate today;
};

//! What the check made of a text.
struct DateCheck {
    bool isValid = false;
    std::optional<QDate> date; //!< none for an empty text, which is valid, and for an invalid one
    QString text;              //!< what the field shows from now on; an invalid text is kept for correction
};

//! Checks and completes a text as a clerk types it: with any of the separators . , / - or the locale's, or as six or
//! eight bare digits, day first. A text that is written exactly as the mask writes its date stands for that date;
//! any other must have as many separators as the mask writes and nothing else but digits. Years 1 to 49 are 2001 to
//! 2049, years 50 to 99 are 1950 to 1999. Total: nothing is thrown.
[[nodiscard]] DateCheck checkDate(const QString &text, const DateRules &rules);

//! Where day, month and year stand in what a mask writes: how many separators are in front of each.
struct DatePlaces {
    std::optional<int> day;
    std::optional<int> month;
    std::optional<int> year;

    bool operator==(const DatePlaces &) const = default;
};

//! The places of a mask; those of a named mask follow from the locale's pattern.
[[nodiscard]] DatePlaces placesOf(const QString &mask, const Locale &locale);

//! Whether a character may be typed: a digit, one of . , / or the locale's separator.
[[nodiscard]] bool isDateCharacter(int keyAscii, const Locale &locale);

//! What a key does in the date field.
struct DateKey {
    enum class Answer {
        PassOn,           //!< the host hears of it, then it acts as usual
        ReportAndSwallow, //!< the host hears of it, the field does not act
        Step,             //!< it moves the date; nobody hears of it
        InsertToday,      //!< it writes today's date; nobody hears of it
        OpenCalendar,     //!< it opens the calendar; the host hears of it, the field does not act
    };
    Answer answer = Answer::PassOn;
    int days = 0; //!< that it moves the date

    bool operator==(const DateKey &) const = default;
};

//! How the field is set up while the key comes.
struct DateKeyRules {
    bool blockUpDown = false;
    bool canOpen = true; //!< the button is enabled
};

//! Judges a key pressed in the field. Shift is the sum of 1 Shift, 2 Ctrl and 4 Alt.
[[nodiscard]] DateKey judgeDateKey(int keyCode, int shift, DateKeyRules rules);

//! A date so many days further. At the ends of the calendar there is no further day, and the date stays.
//! Error 13 for a value that is no date.
[[nodiscard]] QVariant stepped(const QVariant &date, int days, const Locale &locale);

//! Whether a stored value stands for no date: Null, a missing argument, Empty, "", "0" and the number 0.
[[nodiscard]] bool isNoDate(const QVariant &value);

//! The pattern that a message asks for: the mask, or the locale's short pattern for the short date, with the "r" that
//! Polish users expect in place of every "y".
[[nodiscard]] QString patternForMessage(const QString &mask, const Locale &locale);

//! The day on which a calendar opens for a text: the one that the check reads, else the one that the text says in
//! another way, else today.
[[nodiscard]] QDate calendarStart(const QString &text, const DateRules &rules);

} // namespace kor
