// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridblock.h"

#include <optional>

namespace kor {

namespace {

constexpr QChar quote = u'"';
constexpr QChar tab = u'\t';
constexpr QChar lineBreak = u'\n';

QString textOfCell(const QString &text)
{
    const bool isQuoted =
        text.contains(tab) || text.contains(lineBreak) || text.contains(u'\r') || text.startsWith(quote);
    return isQuoted ? quote + QString(text).replace(quote, QStringLiteral("\"\"")) + quote : text;
}

bool endsCell(const QString &text, qsizetype place)
{
    return place >= text.size() || text.at(place) == tab || text.at(place) == lineBreak;
}

//! The place behind a quoted cell that begins here; nothing where the quotes are the cell's own.
std::optional<qsizetype> endOfQuoted(const QString &text, qsizetype begin)
{
    bool isNeeded = false;
    for (qsizetype at = begin + 1; at < text.size(); ++at) {
        if (text.at(at) != quote) {
            isNeeded = isNeeded || text.at(at) == tab || text.at(at) == lineBreak;
        } else if (at + 1 < text.size() && text.at(at + 1) == quote) {
            isNeeded = true;
            ++at;
        } else {
            return isNeeded && endsCell(text, at + 1) ? std::optional(at + 1) : std::nullopt;
        }
    }
    return std::nullopt;
}

//! Reads a cell and goes behind it.
QString takeCell(const QString &text, qsizetype &at)
{
    const qsizetype begin = at;
    if (at < text.size() && text.at(at) == quote) {
        if (const auto end = endOfQuoted(text, at)) {
            at = *end;
            return text.mid(begin + 1, *end - begin - 2).replace(QStringLiteral("\"\""), QString(quote));
        }
    }
    while (!endsCell(text, at))
        ++at;
    return text.mid(begin, at - begin);
}

} // namespace

QString textOfBlock(const QList<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells << textOfCell(cell);
        text += cells.join(tab) + lineBreak;
    }
    return text;
}

QList<QStringList> blockOfText(const QString &text)
{
    QString whole = text;
    whole.replace(QStringLiteral("\r\n"), QString(lineBreak)).replace(u'\r', lineBreak);
    if (whole.endsWith(lineBreak))
        whole.chop(1);
    QList<QStringList> rows{QStringList{}};
    for (qsizetype at = 0; at <= whole.size(); ++at) {
        rows.last() << takeCell(whole, at);
        if (at < whole.size() && whole.at(at) == lineBreak)
            rows << QStringList{};
    }
    return rows;
}

bool isGroupedByThousands(const QString &number)
{
    constexpr int thousands = 3;
    const QString text = number.trimmed();
    const auto isDigit = [&](qsizetype place) { return place < text.size() && text.at(place).isDigit(); };
    for (qsizetype at = 1; at + 1 < text.size(); ++at) {
        if (!text.at(at).isSpace() || !isDigit(at - 1) || !isDigit(at + 1))
            continue;
        qsizetype digits = 1;
        while (isDigit(at + 1 + digits))
            ++digits;
        if (digits != thousands)
            return false;
    }
    return true;
}

} // namespace kor
