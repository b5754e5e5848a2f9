// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <utility>

namespace kor {

//! Entries on their way into a list: key i belongs to name i.
struct DictionaryRows {
    QList<QVariant> keys;
    QStringList names;

    void append(QVariant key, QString name)
    {
        keys.append(std::move(key));
        names.append(std::move(name));
    }
};

enum class SourceKind {
    Select, //!< a statement for the database
    List,   //!< the entries themselves: LIST 1;Tak|0;Nie
    Other,  //!< anything else, an empty text among it: no entries
};

//! Judges a source by its very first characters, in either case; a blank before them makes it Other.
[[nodiscard]] SourceKind sourceKind(QStringView source);

//! The entries of an inline list, whose keys are always texts. An entry without ";" ends the list.
[[nodiscard]] DictionaryRows parseInlineList(QStringView source);

} // namespace kor
