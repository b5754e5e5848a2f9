// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "lists/dictionarysource.h"

#include <KorDaoUC/locale.h>

#include <QtCore/QString>

namespace kor {

class Database;

enum class LoadOutcome {
    Loaded, //!< all rows are there
    NoRows, //!< the statement gives none
    Failed, //!< the database refused or broke off, or a row has no name; the rows before that are there
};

struct DictionaryLoad {
    LoadOutcome outcome = LoadOutcome::NoRows;
    DictionaryRows rows;
    QString failure; //!< the driver's text and the statement, for the log; empty unless it failed
};

//! Reads key and name from the first two columns of a statement's rows. Raises nothing; the recordset is closed on
//! every way out. The arguments have to outlive the call, whatever a host's database does meanwhile.
[[nodiscard]] DictionaryLoad loadDictionary(Database &database, const QString &statement, const Locale &locale);

} // namespace kor
