// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/serial.h"

#include "runtime/held.h"

#include <QtCore/QDateTime>

#include <cmath>

namespace kor {

namespace {

constexpr qint64 dayZeroJulian = 2'415'019;
constexpr double secondsPerDay = 86'400;
constexpr double firstDay = -657'434; // 1 January 100
constexpr double lastDay = 2'958'465; // 31 December 9999

} // namespace

QDate dayZero() { return QDate::fromJulianDay(dayZeroJulian); }

bool isInCalendar(QDate date)
{
    if (!date.isValid())
        return false;
    const auto day = static_cast<double>(date.toJulianDay() - dayZeroJulian);
    return day >= firstDay && day <= lastDay;
}

Moment momentOf(const QVariant &date)
{
    if (date.typeId() == QMetaType::QDate)
        return {held<QDate>(date)};
    const auto &both = held<QDateTime>(date);
    return {both.date(), both.time()};
}

QVariant dateVariant(const Moment &moment)
{
    if (moment.isMidnight())
        return moment.date;
    // Universal time has every hour of every day, so no value is moved by a change to summer time.
    return QDateTime(moment.date, moment.time, Qt::UTC);
}

double serialOf(const Moment &moment)
{
    const auto day = static_cast<double>(moment.date.toJulianDay() - dayZeroJulian);
    const double time = moment.time.msecsSinceStartOfDay() / (secondsPerDay * 1000);
    return day < 0 ? day - time : day + time;
}

std::optional<Moment> momentOfSerial(double serial)
{
    if (!(serial > firstDay - 1 && serial < lastDay + 1))
        return std::nullopt;
    double day = std::trunc(serial);
    double seconds = std::round(std::fabs(serial - day) * secondsPerDay);
    if (seconds >= secondsPerDay) {
        day += 1;
        seconds = 0;
    }
    if (day > lastDay)
        return std::nullopt;
    return Moment{QDate::fromJulianDay(dayZeroJulian + static_cast<qint64>(day)),
                  QTime::fromMSecsSinceStartOfDay(static_cast<int>(seconds) * 1000)};
}

} // namespace kor
