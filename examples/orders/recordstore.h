// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "record.h"

#include <QtSql/QSqlDatabase>

namespace orders {

//! What became of a change of a record.
struct RecordOutcome {
    enum class Kind { Done, ChangedMeanwhile, DeletedMeanwhile, Refused };
    Kind kind = Kind::Done;
    Record record;           //!< as it stands in the table now; as it was given when it does not stand there
    RecordProblem problem{}; //!< why it was refused
};

//! The records of one table, in a file or on a server. Every change is one transaction, in which it is seen first what
//! other desks have saved meanwhile. All calls raise StoreError.
class RecordStore
{
public:
    RecordStore(QSqlDatabase connection, RecordTable table);

    [[nodiscard]] const RecordTable &table() const { return m_table; }
    //! The record, or nothing when it is no longer there.
    [[nodiscard]] std::optional<Record> record(qint64 id) const;
    //! Saves a new record, or a changed one if it still stands in the table as it was loaded. Refuses what another
    //! record has already and may stand once only.
    [[nodiscard]] RecordOutcome save(const Record &record, const Record &loaded);
    //! Removes a record if it still stands in the table as it was loaded, and nothing names it. One that is gone is as
    //! wished.
    [[nodiscard]] RecordOutcome remove(const Record &loaded);

private:
    [[nodiscard]] std::optional<RecordProblem> takenIn(const Record &record, const QString &doing) const;
    [[nodiscard]] qint64 write(const Record &record, const QString &doing) const;
    [[nodiscard]] Record recordIn(const QSqlQuery &query, qint64 id) const;

    QSqlDatabase m_connection;
    RecordTable m_table;
    QStringList m_columns;
};

} // namespace orders
