// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "longwork.h"
#include "orderlimits.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

namespace orders {

//! What the orders of a report are put together by.
enum class ReportGroup { Month, Customer, CustomerGroup, City, Terms };

//! All of them, in the order in which they are offered.
[[nodiscard]] QList<ReportGroup> reportGroups();
//! "Klient": what is said of a group to the clerk.
[[nodiscard]] QString nameOf(ReportGroup group);

//! Which orders a report is about. What was not entered leaves none out.
struct ReportQuestion : OrderLimits {
    ReportGroup group = ReportGroup::Customer;
    QString remarks; //!< a part of them, without regard to case and accents
};

struct ReportRow {
    QString name;
    qint64 orders = 0;
    qint64 total = 0; //!< grosze

    bool operator==(const ReportRow &) const = default;
};

//! Orders put together. Months come one after the other, all else by its amount, the greatest first.
struct Report {
    QList<ReportRow> rows;
    qint64 orders = 0;
    qint64 total = 0;   //!< grosze
    qint64 unknown = 0; //!< so many orders have no amount yet
};

//! Reads the orders one by one and adds them up here rather than in the database, so that a long report can be stopped
//! at any time. Nothing when it was. Raises StoreError.
[[nodiscard]] std::optional<Report> readReport(const QSqlDatabase &connection, const ReportQuestion &question,
                                               const MayGoOn &mayGoOn);

} // namespace orders
