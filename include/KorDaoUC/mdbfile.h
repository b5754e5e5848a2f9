// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QSqlDatabase;
QT_END_NAMESPACE

namespace kor {

//! Asked every now and then while a file is read: which table, and so many rows of so many in all of them. False stops.
using MdbProgress = std::function<bool(const QString &table, qint64 done, qint64 all)>;

//! What became of the reading of an .mdb file.
struct MdbReading {
    bool isComplete = false; //!< false: it was stopped, and the target is as it was before
    int tables = 0;          //!< that were read
    qint64 rows = 0;         //!< of all tables
    QStringList remarks;     //!< what could not be taken over as it was, and why; a line each
};

//! Reads the tables of an .mdb file (Jet 3 and 4) into an SQLite database, so that the host's statements run there,
//! ORDER BY and all. The file is only read. All tables come in one transaction, or none.
//!
//! The target is an open connection to SQLite, as a rule to ":memory:" or to an empty file; a table that it has already
//! is an error. Texts are compared without regard to the case of A to Z. Yes/No becomes 1 and 0; a Single the Double of
//! the same digits; Currency and Decimal keep all of their digits, as texts beyond fifteen; a date is "1996-07-04",
//! with a time "1996-07-04 12:30:00", a time alone "12:30:00"; an OLE field is a blob, a GUID its text. Primary keys,
//! indexes and relations come along; where the target holds relations (PRAGMA foreign_keys), it does so again
//! afterwards, and the rows that are read are not held against them. Queries, forms, reports, linked tables and those
//! of the system do not.
//!
//! Raises RunTimeError 3024 for a file that is not there or cannot be read, 3343 for one that is no .mdb file or a
//! broken one, and 3146 when the target refuses; it is then as it was before.
KORDAOUC_MDB_EXPORT MdbReading readMdbFile(const QString &fileName, const QSqlDatabase &target,
                                           const MdbProgress &mayGoOn = {});

} // namespace kor
