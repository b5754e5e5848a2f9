// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/cellstore.h"

#include <algorithm>
#include <iterator>

namespace kor {

namespace {

//! The element of a row, as far as the row reaches.
template <class Value>
Value elementAt(const std::vector<Value> &row, int column)
{
    const auto place = static_cast<std::size_t>(column);
    return place < row.size() ? row[place] : Value();
}

template <class Value>
Value &elementToWrite(std::vector<Value> &row, int column, int columns)
{
    const auto place = static_cast<std::size_t>(column);
    if (place >= row.size()) {
        row.reserve(static_cast<std::size_t>(columns)); // no more than that
        row.resize(static_cast<std::size_t>(columns));
    }
    return row[place];
}

} // namespace

void CellStore::setColumns(int columns)
{
    const auto limit = static_cast<std::size_t>(columns);
    const bool isFewer = columns < m_columnCount;
    m_columnCount = columns;
    if (!isFewer)
        return;
    for (const auto &row : m_rows) {
        if (row && row->texts.size() > limit)
            row->texts.resize(limit);
        if (row && row->formats.size() > limit)
            row->formats.resize(limit);
    }
}

void CellStore::insertRows(int first, int number)
{
    m_rowCount += number;
    if (static_cast<std::size_t>(first) >= m_rows.size())
        return;
    std::vector<std::unique_ptr<Row>> added(static_cast<std::size_t>(number));
    m_rows.insert(m_rows.begin() + first, std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
}

void CellStore::removeRows(int first, int number)
{
    m_rowCount -= number;
    const auto begin = std::min(static_cast<std::size_t>(first), m_rows.size());
    const auto end = std::min(static_cast<std::size_t>(first + number), m_rows.size());
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(begin),
                 m_rows.begin() + static_cast<std::ptrdiff_t>(end));
}

QString CellStore::text(int row, int column) const
{
    const Row *cells = written(row);
    return cells ? elementAt(cells->texts, column) : QString();
}

bool CellStore::setText(int row, int column, const QString &text)
{
    const Row *cells = written(row);
    const bool isWritten = cells && static_cast<std::size_t>(column) < cells->texts.size();
    if (isWritten ? cells->texts[static_cast<std::size_t>(column)] == text : text.isEmpty())
        return false;
    elementToWrite(toWrite(row).texts, column, m_columnCount) = text;
    return true;
}

CellFormat CellStore::format(int row, int column) const
{
    const Row *cells = written(row);
    return cells ? elementAt(cells->formats, column) : CellFormat();
}

void CellStore::setFormat(int row, int column, const CellFormat &format)
{
    if (format != this->format(row, column))
        elementToWrite(toWrite(row).formats, column, m_columnCount) = format;
}

const CellStore::Row *CellStore::written(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place < m_rows.size() ? m_rows[place].get() : nullptr;
}

CellStore::Row &CellStore::toWrite(int row)
{
    const auto place = static_cast<std::size_t>(row);
    if (place >= m_rows.size())
        m_rows.resize(place + 1);
    if (!m_rows[place])
        m_rows[place] = std::make_unique<Row>();
    return *m_rows[place];
}

} // namespace kor
