// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridpaste.h"

#include "constituents/flexgrid/flexgrid.h"
#include "grid/gridblock.h"

#include <KorDaoUC/variant.h>

#include <QtCore/QPointer>

#include <algorithm>

namespace kor {

QList<int> GridPaste::shownColumns(int first, int last) const
{
    QList<int> columns;
    for (int column = first; column <= last; ++column) {
        if (m_grid->ColWidth(column) != 0)
            columns << column;
    }
    return columns;
}

QString GridPaste::textOf(const CellRange &range) const
{
    const QList<int> columns = shownColumns(range.left, range.right);
    QList<QStringList> rows;
    for (int row = range.top; row <= range.bottom; ++row) {
        QStringList cells;
        for (const int column : columns)
            cells << m_grid->TextMatrix(row, column);
        rows << cells;
    }
    const auto isBlank = [](const QStringList &cells) {
        return std::all_of(cells.begin(), cells.end(), [](const QString &text) { return text.isEmpty(); });
    };
    while (rows.size() > 1 && isBlank(rows.last()))
        rows.removeLast();
    return textOfBlock(rows);
}

//! A locked cell refuses nothing where nothing would become of it: what is copied has locked columns, too.
bool GridPaste::isIdle(CellAddress cell, const QString &text) const
{
    const bool isThere = cell.row < m_grid->Rows() && m_grid->TextMatrix(cell.row, cell.column) == text;
    return m_cells.columns().isLocked(cell.column) && (text.isEmpty() || isThere);
}

GridPaste::Judged GridPaste::judged(CellAddress first, const QString &block) const
{
    Judged all;
    all.rows = m_grid->Rows();
    if (!m_cells.extent().hasDataCell(first))
        return all;
    const QList<int> columns = shownColumns(first.column, m_grid->Cols() - 1);
    const QPointer<const FlexGrid> grid = m_grid;
    int row = first.row;
    for (const QStringList &texts : blockOfText(block)) {
        for (qsizetype at = 0; at < texts.size(); ++at) {
            const QString &text = texts.at(at);
            const bool isBehind = at >= columns.size();
            const int column = isBehind ? m_grid->Cols() + static_cast<int>(at - columns.size()) : columns.at(at);
            if (isBehind || column >= m_grid->Cols()) { // or cut off while a list was read
                if (!text.isEmpty())
                    all.refused.append({row, column, text, Reason::Outside});
                continue;
            }
            if (isIdle({row, column}, text))
                continue;
            const auto verdict = judge(column, text);
            if (!grid)
                return all; // ended while a list was read
            if (const auto *accepted = std::get_if<CellTexts>(&verdict))
                all.accepted.append({{row, column}, *accepted});
            else
                all.refused.append({row, column, text, std::get<Reason>(verdict)});
        }
        ++row;
    }
    all.rows = std::max(all.rows, row);
    return all;
}

std::variant<CellTexts, GridPaste::Reason> GridPaste::judge(int column, const QString &text) const
{
    if (m_cells.columns().isLocked(column))
        return Reason::Locked;
    if (text.isEmpty() && m_cells.typeOf(column) != ColumnType::Click)
        return m_cells.textsOf(column, null());
    const GridColumn *described = m_cells.columns().find(column);
    if (text.contains(u'\n') && !(described && described->isWrapped))
        return Reason::LineBreak;
    switch (m_cells.typeOf(column)) {
    case ColumnType::Number:
        return isGroupedByThousands(text) ? judgeValue(column, text, Reason::NoNumber)
                                          : std::variant<CellTexts, Reason>(Reason::NoNumber);
    case ColumnType::Date: return judgeValue(column, text, Reason::NoDate);
    case ColumnType::Combo: {
        const CellTexts texts = m_cells.textsTyped(column, text.trimmed());
        return texts.raw && !texts.raw->isEmpty() ? std::variant<CellTexts, Reason>(texts) : Reason::NotListed;
    }
    case ColumnType::Text:
    case ColumnType::Click: break;
    }
    if (described && described->maxLength > 0 && text.size() > described->maxLength)
        return Reason::TooLong;
    return m_cells.textsTyped(column, text);
}

//! Where the column reads the text as a number or a date, that is written into it.
std::variant<CellTexts, GridPaste::Reason> GridPaste::judgeValue(int column, const QString &text,
                                                                 Reason otherwise) const
{
    const QVariant value = m_cells.valueTyped(column, text.trimmed());
    const bool isTime = value.userType() == QMetaType::QDateTime || value.userType() == QMetaType::QTime;
    if (isNull(value) || isTime)
        return otherwise;
    return m_cells.textsOf(column, value);
}

} // namespace kor
