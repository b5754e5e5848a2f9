// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/dictionaryloader.h"

#include "database/forwardrecordset.h"
#include "database/source.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/database.h>

#include <exception>
#include <memory>
#include <utility>

namespace kor {

namespace {

QString textOf(QVariant &&name, const Locale &locale)
{
    if (name.typeId() != QMetaType::QString)
        return CStr(name, locale);
    return std::move(*static_cast<QString *>(name.data()));
}

// In either way the name comes first: a row whose name can't be read leaves no key behind.
void readRows(Recordset &recordset, DictionaryLoad &load, const Locale &locale)
{
    if (auto *const own = dynamic_cast<ForwardRecordset *>(&recordset)) {
        own->giveEntries([&](QVariant &&key, QVariant &&name) {
            QString text = textOf(std::move(name), locale);
            load.rows.append(std::move(key), std::move(text));
        });
    } else {
        for (; !recordset.Eof(); recordset.MoveNext()) {
            QString text = CStr(recordset.FieldValue(1), locale);
            load.rows.append(recordset.FieldValue(0), std::move(text));
        }
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
