// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/sqliterecordset.h"

#include "database/forwardrecordset.h"

#include <KorDaoUC/variant.h>

#include <QtCore/QPointer>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlResult>

#include <algorithm>
#include <array>
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
    return fits ? QVariant(static_cast<int>(value)) : normalized(QVariant::fromValue(qint64(value)));
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

QVariant valueOf(sqlite3_stmt *row, int index)
{
    switch (sqlite3_column_type(row, index)) {
    case SQLITE_INTEGER: return integerValue(sqlite3_column_int64(row, index));
    case SQLITE_FLOAT: return finiteOrNull(sqlite3_column_double(row, index));
    case SQLITE_TEXT: return textOf(row, index);
    case SQLITE_BLOB: return normalized(blobOf(row, index));
    default: return null();
    }
}

class SqliteRecordset final : public ForwardRecordset
{
public:
    SqliteRecordset(QSqlDriver &driver, const QString &statement)
        : ForwardRecordset(statement), m_driver(&driver), m_query(driver.createResult())
    {
        m_query.setForwardOnly(true);
        if (!m_query.prepare(statement))
            throw databaseFailure(m_query.lastError(), DatabaseTask::Open, statement);
        const int columns = sqlite3_column_count(currentRow());
        if (columns == 0)
            throw databaseFailure(QStringLiteral("The statement gives no rows"), DatabaseTask::Open, statement);
        if (sqlite3_bind_parameter_count(currentRow()) > 0) // SQLite itself would read them as NULL
            throw databaseFailure(QStringLiteral("The statement has parameters"), DatabaseTask::Open, statement);
        begin(columns);
    }

private:
    bool isConnected() const override { return m_driver && m_driver->isOpen(); }

    //! The driver's statement, asked for anew at each use: it is gone as soon as the host closes the connection, and
    //! stays so when the host opens it again.
    sqlite3_stmt *currentRow() const
    {
        auto *const row = pointerIn<sqlite3_stmt>(m_query.result()->handle());
        if (!row)
            throw connectionLost(DatabaseTask::Read, statement());
        return row;
    }

    //! Whether there is another row.
    bool step(sqlite3_stmt *row) const
    {
        switch (sqlite3_step(row)) {
        case SQLITE_ROW: return true;
        case SQLITE_DONE: return false;
        default:
            const char *const text = sqlite3_errmsg(sqlite3_db_handle(row));
            throw databaseFailure(QString::fromUtf8(text), DatabaseTask::Read, statement());
        }
    }

    bool fetch() override
    {
        sqlite3_stmt *const row = currentRow();
        if (!step(row))
            return false;
        const int held = std::min(sqlite3_column_count(row), int(m_dictionaryEntry.size()));
        for (int i = 0; i < held; ++i)
            m_dictionaryEntry[std::size_t(i)] = valueOf(row, i);
        return true;
    }

    void giveRest(const EntryTaker &take) override
    {
        requireConnection();
        sqlite3_stmt *const row = currentRow(); // nobody comes in between who could take it away
        while (step(row))
            take(valueOf(row, 0), valueOf(row, 1));
    }

    QVariant valueAt(int index) const override
    {
        const auto place = std::size_t(index);
        return place < m_dictionaryEntry.size() ? m_dictionaryEntry[place] : valueOf(currentRow(), index);
    }

    QString nameAt(int index) const override { return QString::fromUtf8(sqlite3_column_name(currentRow(), index)); }

    void release() override { m_query.clear(); }

    QPointer<QSqlDriver> m_driver;
    QSqlQuery m_query;
    // Nearly all rows are entries of a dictionary, key and name: read at once, with one question for the statement.
    std::array<QVariant, 2> m_dictionaryEntry;
};

} // namespace

bool sharesSqlite(QSqlDriver &driver)
{
    const QVariant handle = driver.handle();
    if (!driver.isOpen() || !wraps(handle, "sqlite3*"))
        return false;
    QSqlQuery version(driver.createResult());
    if (!version.exec(QStringLiteral("SELECT sqlite_source_id()")) || !version.next() ||
        version.value(0).toString() != QLatin1String(sqlite3_sourceid()) ||
        !wraps(version.result()->handle(), "sqlite3_stmt*"))
        return false;
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
