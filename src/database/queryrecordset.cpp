// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/queryrecordset.h"

#include "database/forwardrecordset.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QPointer>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <limits>
#include <vector>

namespace kor {

namespace {

//! A decimal is a Double, but for a whole number that no Double holds: as a key it would become its neighbour.
QVariant valueOfDecimal(const QString &digits)
{
    constexpr qint64 furthestOfDoubles = Q_INT64_C(1) << std::numeric_limits<double>::digits;
    bool isWhole = false;
    const qint64 whole = digits.toLongLong(&isWhole);
    if (isWhole && (whole > furthestOfDoubles || whole < -furthestOfDoubles))
        return normalized(whole);
    bool isNumber = false;
    const double number = digits.toDouble(&isNumber);
    return isNumber ? finiteOrNull(number) : null();
}

class QueryRecordset final : public ForwardRecordset
{
public:
    QueryRecordset(QSqlDriver &driver, const QString &statement)
        : ForwardRecordset(statement), m_driver(&driver), m_query(driver.createResult())
    {
        m_query.setForwardOnly(true);
        // PostgreSQL's driver gives the digits of its decimals alone for this; others would give Doubles as texts, too.
        const bool givesDigits = driver.dbmsType() == QSqlDriver::PostgreSQL;
        m_query.setNumericalPrecisionPolicy(givesDigits ? QSql::HighPrecision : QSql::LowPrecisionDouble);
        if (!m_query.exec(statement))
            throw databaseFailure(m_query.lastError(), DatabaseTask::Open, statement);
        if (!m_query.isSelect())
            throw databaseFailure(QStringLiteral("The statement gives no rows"), DatabaseTask::Open, statement);
        const QSqlRecord columns = m_query.record();
        for (int i = 0; i < columns.count(); ++i)
            m_isDecimal.push_back(givesDigits && columns.field(i).metaType().id() == QMetaType::Double);
        begin(columns.count());
    }

private:
    bool isConnected() const override { return m_driver && m_driver->isOpen(); }

    bool fetch() override
    {
        if (m_query.next())
            return true;
        if (m_query.lastError().isValid())
            throw databaseFailure(m_query.lastError(), DatabaseTask::Read, statement());
        return false;
    }

    QVariant valueAt(int index) const override
    {
        const QVariant value = m_query.value(index);
        if (!value.isValid())
            return null(); // the ODBC driver gives a NULL text without a type
        if (m_isDecimal[std::size_t(index)] && value.typeId() == QMetaType::QString && !value.isNull())
            return valueOfDecimal(value.toString());
        const QVariant known = normalized(value);
        return variantType(known) == VariantType::Double ? finiteOrNull(CDbl(known)) : known;
    }

    QString nameAt(int index) const override { return m_query.record().fieldName(index); }
    void release() override { m_query.clear(); }

    QPointer<QSqlDriver> m_driver;
    QSqlQuery m_query;
    std::vector<bool> m_isDecimal; //!< columns that the driver may give the digits of
};

} // namespace

std::unique_ptr<Recordset> openThroughQuery(QSqlDriver &driver, const QString &statement)
{
    return std::make_unique<QueryRecordset>(driver, statement);
}

} // namespace kor
