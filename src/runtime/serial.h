// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDate>
#include <QtCore/QTime>
#include <QtCore/QVariant>

#include <optional>

namespace kor {

//! A point in time without a zone: what a Date variant holds.
struct Moment {
    QDate date;
    QTime time{0, 0};
    [[nodiscard]] bool isMidnight() const { return time.msecsSinceStartOfDay() == 0; }
};

//! 30 December 1899, the day with the number 0. A time alone belongs to it.
[[nodiscard]] QDate dayZero();
//! Whether the date lies within the years 100 to 9999.
[[nodiscard]] bool isInCalendar(QDate date);

//! Of a Date variant. The date is invalid when the variant holds an invalid one.
[[nodiscard]] Moment momentOf(const QVariant &date);
//! A QDate at midnight, otherwise a QDateTime.
[[nodiscard]] QVariant dateVariant(const Moment &moment);

//! Days since day zero; the fraction is the time. Before day zero the fraction still counts forward in its day:
//! -1.25 is 29 December 1899 at 6 o'clock.
[[nodiscard]] double serialOf(const Moment &moment);
//! To the nearest second. Nothing when the number is out of the calendar.
[[nodiscard]] std::optional<Moment> momentOfSerial(double serial);

} // namespace kor
