// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "database/source.h"

#include <algorithm>
#include <array>

namespace kor {

namespace {

constexpr qsizetype excerptLength = 80;

// Words that begin a statement which can give rows. "Order Details" and "Set 1" are tables.
constexpr std::array<QStringView, 18> statementWords = {
    u"SELECT", u"WITH",  u"VALUES", u"TABLE",  u"PRAGMA", u"EXPLAIN", u"SHOW",  u"EXEC",      u"EXECUTE",
    u"CALL",   u"FETCH", u"INSERT", u"UPDATE", u"DELETE", u"REPLACE", u"MERGE", u"TRANSFORM", u"PARAMETERS"};

bool isWordCharacter(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

} // namespace

bool isTableName(QStringView source)
{
    const QStringView text = source.trimmed();
    if (text.isEmpty() || text.startsWith(u'(') || text.startsWith(u"--") || text.startsWith(u"/*"))
        return false;
    const auto wordEnd = std::find_if_not(text.begin(), text.end(), isWordCharacter);
    const QStringView word(text.begin(), wordEnd);
    const bool isWholeSource = wordEnd == text.end();
    const bool beginsStatement = std::any_of(statementWords.begin(), statementWords.end(), [word](QStringView keyword) {
        return word.compare(keyword, Qt::CaseInsensitive) == 0;
    });
    return isWholeSource || !beginsStatement;
}

std::optional<QString> findTable(QStringView name, const QStringList &tables)
{
    const QStringView wanted = name.trimmed();
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const auto found = std::find_if(tables.begin(), tables.end(),
                                        [&](const QString &table) { return wanted.compare(table, sensitivity) == 0; });
        if (found != tables.end())
            return *found;
    }
    return std::nullopt;
}

QString statementExcerpt(QStringView statement)
{
    const QString line = statement.toString().simplified();
    return line.size() <= excerptLength ? line : line.first(excerptLength - 1) + QChar(u'…');
}

} // namespace kor
