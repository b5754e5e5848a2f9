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
    QChar decimalSeparator = u'.';
    QChar groupSeparator = u','; //!< U+00A0 in Polish
    QChar dateSeparator = u'/';
    QChar timeSeparator = u':';
    QString currencySymbol = QStringLiteral("$");
    QString currencyPositive = QStringLiteral("$n"); //!< the n outside the symbol is the number
    QString currencyNegative = QStringLiteral("($n)");
    QString shortDatePattern = QStringLiteral("M/d/yyyy");
    QString longDatePattern = QStringLiteral("dddd, MMMM dd, yyyy");
    QString timePattern = QStringLiteral("h:mm:ss tt");
    QString amText = QStringLiteral("AM");
    QString pmText = QStringLiteral("PM");
    QStringList monthNames;         //!< twelve, as they stand alone (styczeń)
    QStringList monthNamesGenitive; //!< twelve, as they stand beside a day (stycznia)
    QStringList shortMonthNames;
    QStringList dayNames; //!< seven, Sunday first
    QStringList shortDayNames;
    Qt::DayOfWeek firstDayOfWeek = Qt::Sunday; //!< what the week number ("ww") goes by
    QString trueText = QStringLiteral("True"); //!< the words of the formats "True/False", "Yes/No" and "On/Off"
    QString falseText = QStringLiteral("False");
    QString yesText = QStringLiteral("Yes");
    QString noText = QStringLiteral("No");
    QString onText = QStringLiteral("On");
    QString offText = QStringLiteral("Off");

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
