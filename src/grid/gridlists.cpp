// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridlists.h"

#include "lists/dictionaryloader.h"
#include "lists/dictionarysource.h"

namespace kor {

// By its value, and into the lists that it was asked of: what stood there may be gone when it is read.
std::shared_ptr<const GridLists::List> GridLists::list(QString source)
{
    const auto lists = m_lists;
    if (const auto found = lists->find(source); found != lists->end())
        return found->second;
    DictionaryRows rows;
    bool isRead = true;
    switch (sourceKind(source)) {
    case SourceKind::List: rows = parseInlineList(source); break;
    case SourceKind::Select:
        if (const auto database = m_database.share()) {
            DictionaryLoad load = loadDictionary(*database, source, Locale::systemDefault());
            isRead = load.outcome != LoadOutcome::Failed;
            rows = std::move(load.rows);
        } else {
            isRead = false;
        }
        break;
    case SourceKind::Other: break;
    }
    const auto made = std::make_shared<List>();
    made->keys.append(rows.keys);
    made->names = std::move(rows.names);
    for (int place = static_cast<int>(made->names.size()); place-- > 0;)
        made->places.insert(made->names.at(place), place);
    if (isRead)
        (*lists)[source] = made;
    return made;
}

std::optional<QString> GridLists::nameOf(const QVariant &key, const QString &source)
{
    const auto entries = list(source);
    const int place = entries->keys.indexOf(key);
    return place < 0 ? std::nullopt : std::optional(entries->names.at(place));
}

std::optional<QVariant> GridLists::keyOf(const QString &name, const QString &source)
{
    const auto entries = list(source);
    const int place = entries->places.value(name, -1);
    return place < 0 ? std::nullopt : std::optional(entries->keys.key(place));
}

std::optional<QVariant> GridLists::keyWritten(const QString &text, const QString &source)
{
    const auto entries = list(source);
    const int place = entries->keys.indexOf(text);
    return place < 0 ? std::nullopt : std::optional(entries->keys.key(place));
}

} // namespace kor
