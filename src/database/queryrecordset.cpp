// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/queryrecordset.h"

#include "database/forwardrecordset.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QPointer>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

namespace kor {

namespace {

class QueryRecordset final : public ForwardRecordset
{
public:
    QueryRecordset(QSqlDriver &driver, const QString &statement)
        : ForwardRecordset(statement), m_driver(&driver), m_query(driver.createResult())
    {
        m_query.setForwardOnly(true);
        m_query.setNumericalPrecisionPolicy(QSql::LowPrecisionDouble);
        if (!m_query.exec(statement))
            throw databaseFailure(m_query.lastError(), DatabaseTask::Open, statement);
        if (!m_query.isSelect())
            throw databaseFailure(QStringLiteral("The statement gives no rows"), DatabaseTask::Open, statement);
        begin(m_query.record().count());
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
        const QVariant known = normalized(value);
        return variantType(known) == VariantType::Double ? finiteOrNull(CDbl(known)) : known;
    }

    QString nameAt(int index) const override { return m_query.record().fieldName(index); }
    void release() override { m_query.clear(); }

    QPointer<QSqlDriver> m_driver;
    QSqlQuery m_query;
};

} // namespace

std::unique_ptr<Recordset> openThroughQuery(QSqlDriver &driver, const QString &statement)
{
    return std::make_unique<QueryRecordset>(driver, statement);
}

} // namespace kor
