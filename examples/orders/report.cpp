// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "report.h"

#include "foldedtext.h"
#include "paymentterms.h"
#include "statement.h"

#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtSql/QSqlError>

#include <algorithm>

namespace orders {

namespace {

const QString reading = QStringLiteral("Przygotowanie zestawienia");

//! The columns that an order is put together by: its key and its name.
QString columnsOf(ReportGroup group)
{
    switch (group) {
    case ReportGroup::Month: return QStringLiteral("substr(o.order_date, 1, 7), NULL");
    case ReportGroup::Customer: return QStringLiteral("c.id, c.name");
    case ReportGroup::CustomerGroup: return QStringLiteral("g.id, g.name");
    case ReportGroup::City: return QStringLiteral("c.city, c.city");
    case ReportGroup::Terms: break;
    }
    return QStringLiteral("o.payment_terms, NULL");
}

QString monthName(const QString &key)
{
    const QDate month = QDate::fromString(key, QStringLiteral("yyyy-MM"));
    const QLocale polish(QLocale::Polish);
    return QStringLiteral("%1 %2").arg(polish.standaloneMonthName(month.month())).arg(month.year());
}

QString nameOf(ReportGroup group, const QString &key, const QString &name)
{
    switch (group) {
    case ReportGroup::Month: return monthName(key);
    case ReportGroup::Terms: return nameOfTerms(key);
    case ReportGroup::Customer:
    case ReportGroup::CustomerGroup:
    case ReportGroup::City: break;
    }
    return key.isEmpty() ? QStringLiteral("(bez klienta)") : name;
}

//! Orders while they are put together.
class Sums
{
public:
    explicit Sums(ReportGroup group) : m_group(group) {}

    void add(const QString &key, const QString &name, std::optional<qint64> total)
    {
        auto found = m_places.constFind(key);
        if (found == m_places.constEnd()) {
            found = m_places.insert(key, m_report.rows.size());
            m_report.rows.append({nameOf(m_group, key, name), 0, 0});
            m_keys << key;
        }
        ReportRow &row = m_report.rows[*found];
        ++row.orders;
        row.total += total.value_or(0);
        ++m_report.orders;
        m_report.total += total.value_or(0);
        m_report.unknown += total ? 0 : 1;
    }

    [[nodiscard]] Report finished() const
    {
        QList<qsizetype> order;
        for (qsizetype at = 0; at < m_keys.size(); ++at)
            order << at;
        std::sort(order.begin(), order.end(), [this](qsizetype left, qsizetype right) {
            const qint64 a = m_report.rows.at(left).total;
            const qint64 b = m_report.rows.at(right).total;
            return m_group == ReportGroup::Month || a == b ? m_keys.at(left) < m_keys.at(right) : a > b;
        });
        Report report = m_report;
        for (qsizetype at = 0; at < order.size(); ++at)
            report.rows[at] = m_report.rows.at(order.at(at));
        return report;
    }

private:
    ReportGroup m_group;
    Report m_report;
    QStringList m_keys; //!< of each row
    QHash<QString, qsizetype> m_places;
};

} // namespace

QList<ReportGroup> reportGroups()
{
    return {ReportGroup::Month, ReportGroup::Customer, ReportGroup::CustomerGroup, ReportGroup::City,
            ReportGroup::Terms};
}

QString nameOf(ReportGroup group)
{
    switch (group) {
    case ReportGroup::Month: return QStringLiteral("Miesiąc");
    case ReportGroup::Customer: return QStringLiteral("Klient");
    case ReportGroup::CustomerGroup: return QStringLiteral("Grupa klientów");
    case ReportGroup::City: return QStringLiteral("Miejscowość");
    case ReportGroup::Terms: break;
    }
    return QStringLiteral("Warunki płatności");
}

std::optional<Report> readReport(const QSqlDatabase &connection, const ReportQuestion &question, const MayGoOn &mayGoOn)
{
    const Condition condition = conditionOf(question);
    QSqlQuery count =
        run(connection, reading, QStringLiteral("SELECT count(*) FROM orders o WHERE ") + condition.text(),
            condition.values());
    const qint64 all = count.next() ? count.value(0).toLongLong() : 0;
    QSqlQuery query = run(connection, reading,
                          QStringLiteral("SELECT o.total, o.remarks, %1 FROM orders o "
                                         "LEFT JOIN customers c ON c.id = o.customer_id "
                                         "LEFT JOIN customer_groups g ON g.id = c.group_id WHERE %2")
                              .arg(columnsOf(question.group), condition.text()),
                          condition.values());
    const QString needle = folded(question.remarks.trimmed());
    Sums sums(question.group);
    LongWork work(mayGoOn, all);
    while (query.next()) {
        if (needle.isEmpty() || folded(query.value(1).toString()).contains(needle)) {
            const std::optional<qint64> total =
                query.isNull(0) ? std::nullopt : std::optional(query.value(0).toLongLong());
            const QString key = query.isNull(2) ? QString() : query.value(2).toString();
            sums.add(key, query.value(3).toString(), total);
        }
        if (!work.step())
            return std::nullopt;
    }
    if (query.lastError().isValid())
        throw StoreError(reading, query.lastError());
    return sums.finished();
}

} // namespace orders
