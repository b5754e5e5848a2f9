// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/dictionaryloader.h"

#include "database/source.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/database.h>

#include <exception>
#include <memory>
#include <utility>

namespace kor {

namespace {

void readRows(Recordset &recordset, DictionaryLoad &load, const Locale &locale)
{
    for (; !recordset.Eof(); recordset.MoveNext()) {
        // The name first: a row whose name can't be read leaves no key behind.
        QString name = CStr(recordset.FieldValue(1), locale);
        load.rows.append(recordset.FieldValue(0), std::move(name));
    }
    load.outcome = LoadOutcome::Loaded;
}

void fail(DictionaryLoad &load, const std::exception &error, const QString &statement)
{
    load.outcome = LoadOutcome::Failed;
    load.failure = QString::fromUtf8(error.what());
    if (const QString excerpt = statementExcerpt(statement); !load.failure.contains(excerpt))
        load.failure += QStringLiteral(" (while reading: ") + excerpt + u')';
}

//! Closes the recordset; one that does not even close has failed.
void close(Recordset &recordset, DictionaryLoad &load, const QString &statement)
{
    try {
        recordset.Close();
    } catch (const std::exception &error) {
        fail(load, error, statement);
    }
}

} // namespace

DictionaryLoad loadDictionary(Database &database, const QString &statement, const Locale &locale)
{
    DictionaryLoad load;
    std::unique_ptr<Recordset> recordset;
    try {
        recordset = database.OpenRecordset(statement, OpenForwardOnly);
        if (recordset && recordset->RecordCount() >= 1)
            readRows(*recordset, load, locale);
    } catch (const std::exception &error) {
        fail(load, error, statement);
    }
    if (recordset)
        close(*recordset, load, statement);
    return load;
}

} // namespace kor
