// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/qnamespace.h>

class QLocale;

namespace kor {

//! What the run-time functions need to know of a country's habits: separators, currency, date patterns and names.
//!
//! A plain value. Date patterns use the system's tokens (d, dd, ddd, dddd, M to MMMM, yy, yyyy; H, h, m, s, tt).
struct KORDAOUC_RUNTIME_EXPORT Locale {
    QChar decimalSeparator = u'.';                         //!< parts whole digits from decimals
    QChar groupSeparator = u',';                           //!< U+00A0 in Polish
    QChar dateSeparator = u'/';                            //!< between day, month and year
    QChar timeSeparator = u':';                            //!< between hours, minutes and seconds
    QString currencySymbol = QStringLiteral("$");          //!< "zł" in Polish
    QString currencyPositive = QStringLiteral("$n");       //!< the n outside the symbol is the number
    QString currencyNegative = QStringLiteral("($n)");     //!< the same for amounts below 0
    QString shortDatePattern = QStringLiteral("M/d/yyyy"); //!< of "Short Date", and the order in which dates are read
    QString longDatePattern = QStringLiteral("dddd, MMMM dd, yyyy"); //!< of "Long Date"
    QString timePattern = QStringLiteral("h:mm:ss tt");              //!< of "Long Time"
    QString amText = QStringLiteral("AM");                           //!< before noon ("tt")
    QString pmText = QStringLiteral("PM");                           //!< after noon ("tt")
    QStringList monthNames;                                          //!< twelve, as they stand alone (styczeń)
    QStringList monthNamesGenitive;                                  //!< twelve, as they stand beside a day (stycznia)
    QStringList shortMonthNames;                                     //!< twelve (sty)
    QStringList dayNames;                                            //!< seven, Sunday first
    QStringList shortDayNames;                                       //!< seven, Sunday first
    Qt::DayOfWeek firstDayOfWeek = Qt::Sunday;                       //!< what the week number ("ww") goes by
    QString trueText = QStringLiteral("True");   //!< the words of the formats "True/False", "Yes/No" and "On/Off"
    QString falseText = QStringLiteral("False"); //!< as trueText
    QString yesText = QStringLiteral("Yes");     //!< as trueText
    QString noText = QStringLiteral("No");       //!< as trueText
    QString onText = QStringLiteral("On");       //!< as trueText
    QString offText = QStringLiteral("Off");     //!< as trueText

    //! Whether all habits are the same.
    bool operator==(const Locale &) const = default;

    //! pl-PL: 1 234,50 with U+00A0, dd.MM.yyyy, "n zł".
    [[nodiscard]] static Locale polish();
    //! en-US: 1,234.50, M/d/yyyy, "$n".
    [[nodiscard]] static Locale english();
    //! de-DE: 1.234,50, dd.MM.yyyy, "n €".
    [[nodiscard]] static Locale german();
    //! Of any locale the toolkit knows. Short dates have four-digit years; a short date, a time and an amount that
    //! are written in it are read back.
    [[nodiscard]] static Locale fromQLocale(const QLocale &locale);

    //! The process default: read once from the system, unless the host or a test has set one. Thread-safe.
    //! The reference stays valid until the process ends, also when the default is replaced.
    [[nodiscard]] static const Locale &systemDefault();
    //! Replaces the process default. Controls that exist already keep the separators they started with.
    static void setSystemDefault(const Locale &locale);
};

} // namespace kor
