// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/sqliterecordset.h"

#include "database/forwardrecordset.h"

#include <KorDaoUC/variant.h>

#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlResult>

#include <cstring>
#include <limits>
#include <sqlite3.h>

namespace kor {

namespace {

bool wraps(const QVariant &handle, const char *typeName)
{
    return handle.isValid() && std::strcmp(handle.typeName(), typeName) == 0;
}

//! The pointer in a handle that wraps() one of this type.
template <typename Pointee>
Pointee *pointerIn(const QVariant &handle)
{
    return *static_cast<Pointee *const *>(handle.constData());
}

QVariant integerValue(sqlite3_int64 value)
{
    const bool fits = value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    return fits ? QVariant(static_cast<int>(value)) : QVariant(static_cast<double>(value));
}

QString textOf(sqlite3_stmt *row, int index)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, index));
    return QString::fromUtf8(text, sqlite3_column_bytes(row, index));
}

QByteArray blobOf(sqlite3_stmt *row, int index)
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(row, index));
    return {bytes, sqlite3_column_bytes(row, index)};
}

class SqliteRecordset final : public ForwardRecordset
{
public:
    SqliteRecordset(QSqlDriver &driver, const QString &statement)
        : ForwardRecordset(statement), m_query(driver.createResult())
    {
        m_query.setForwardOnly(true);
        if (!m_query.prepare(statement)) {
            throw databaseFailure(m_query.lastError(), DatabaseTask::Open, statement);
        }
        m_row = currentRow();
        const int columns = sqlite3_column_count(m_row);
        if (columns == 0) {
            throw databaseFailure(QStringLiteral("The statement gives no rows"), DatabaseTask::Open, statement);
        }
        begin(columns);
    }

private:
    //! The driver's statement; null as soon as the host has closed or removed the connection.
    sqlite3_stmt *currentRow() const { return pointerIn<sqlite3_stmt>(m_query.result()->handle()); }

    bool isConnected() const override
    {
        m_row = currentRow();
        return m_row != nullptr;
    }

    bool fetch() override
    {
        switch (sqlite3_step(m_row)) {
        case SQLITE_ROW: return true;
        case SQLITE_DONE: return false;
        default:
            const char *const text = sqlite3_errmsg(sqlite3_db_handle(m_row));
            throw databaseFailure(QString::fromUtf8(text), DatabaseTask::Read, statement());
        }
    }

    QVariant valueAt(int index) const override
    {
        switch (sqlite3_column_type(m_row, index)) {
        case SQLITE_INTEGER: return integerValue(sqlite3_column_int64(m_row, index));
        case SQLITE_FLOAT: return sqlite3_column_double(m_row, index);
        case SQLITE_TEXT: return textOf(m_row, index);
        case SQLITE_BLOB: return normalized(blobOf(m_row, index));
        default: return null();
        }
    }

    QString nameAt(int index) const override { return QString::fromUtf8(sqlite3_column_name(m_row, index)); }

    void release() override { m_query.clear(); }

    QSqlQuery m_query;
    mutable sqlite3_stmt *m_row = nullptr; // asked of the toolkit by isConnected(), before every look at a row
};

} // namespace

bool sharesSqlite(QSqlDriver &driver)
{
    const QVariant handle = driver.handle();
    if (!driver.isOpen() || !wraps(handle, "sqlite3*")) {
        return false;
    }
    QSqlQuery version(driver.createResult());
    if (!version.exec(QStringLiteral("SELECT sqlite_source_id()")) || !version.next() ||
        version.value(0).toString() != QLatin1String(sqlite3_sourceid()) ||
        !wraps(version.result()->handle(), "sqlite3_stmt*")) {
        return false;
    }
    // Two copies of one version each keep a table of file systems: only ours knows the very object that we registered.
    sqlite3_vfs *files = nullptr;
    sqlite3_file_control(pointerIn<sqlite3>(handle), "main", SQLITE_FCNTL_VFS_POINTER, &files);
    return files && sqlite3_vfs_find(files->zName) == files;
}

std::unique_ptr<Recordset> openThroughSqlite(QSqlDriver &driver, const QString &statement)
{
    return std::make_unique<SqliteRecordset>(driver, statement);
}

} // namespace kor
