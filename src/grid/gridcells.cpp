// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridcells.h"

#include "constituents/flexgrid/flexgrid.h"
#include "lists/keytext.h"

#include <KorDaoUC/clock.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <utility>

namespace kor {

GridCells::GridCells(FlexGrid *grid) : m_grid(grid)
{
    using Cells = QAbstractItemModel;
    const Cells *cells = grid->model();
    const auto changed = [this](int row) { m_greatest.changed(row); };
    QObject::connect(cells, &Cells::dataChanged, grid, [=](const QModelIndex &upper) { changed(upper.row() + 1); });
    for (const auto rowsMoved : {&Cells::rowsInserted, &Cells::rowsRemoved})
        QObject::connect(cells, rowsMoved, grid, [=](const QModelIndex &, int first) { changed(first + 1); });
    for (const auto columnsMoved : {&Cells::columnsInserted, &Cells::columnsRemoved})
        QObject::connect(cells, columnsMoved, grid, [=] { changed(1); });
}

void GridCells::describe(int column, GridColumn description)
{
    m_grid->setColReadOnly(column, description.isLocked);
    m_columns.store(column, std::move(description));
    m_greatest.changed(1);
}

GridExtent GridCells::extent() const { return {m_grid->Rows(), m_grid->Cols()}; }
ColumnType GridCells::typeOf(int column) const { return static_cast<ColumnType>(m_grid->ColData(column)); }
ValueRules GridCells::rules() const { return {m_signs, Clock::today()}; }

int GridCells::valueColumnOf(int column) const
{
    const GridColumn *described = m_columns.find(column);
    const int valueColumn = described ? described->valueColumn : 0;
    return valueColumn > 0 && valueColumn < m_grid->Cols() ? valueColumn : 0;
}

// --- texts

CellTexts GridCells::textsAt(CellAddress cell) const
{
    CellTexts texts{m_grid->TextMatrix(cell.row, cell.column), std::nullopt};
    if (const int valueColumn = valueColumnOf(cell.column))
        texts.raw = m_grid->TextMatrix(cell.row, valueColumn);
    return texts;
}

void GridCells::write(CellAddress cell, const CellTexts &texts)
{
    m_grid->setTextMatrix(cell.row, cell.column, texts.shown);
    if (const int valueColumn = valueColumnOf(cell.column); valueColumn && texts.raw)
        m_grid->setTextMatrix(cell.row, valueColumn, *texts.raw);
}

bool GridCells::holds(CellAddress cell, const CellTexts &texts) const
{
    const CellTexts there = textsAt(cell);
    return there.shown == texts.shown && (!there.raw || !texts.raw || there.raw == texts.raw);
}

// --- values

QVariant GridCells::valueAt(CellAddress cell) const
{
    const ColumnType type = typeOf(cell.column);
    const CellTexts texts = textsAt(cell);
    const GridColumn *column = m_columns.find(cell.column);
    QVariant value = valueOfCell(type, texts, rules());
    if (type == ColumnType::Combo && column) { // last, since reading the list may end the grid
        const bool isRaw = texts.raw && !texts.shown.isEmpty();
        const auto key =
            isRaw ? m_lists.keyWritten(*texts.raw, column->source) : m_lists.keyOf(texts.shown, column->source);
        if (key)
            value = *key;
    }
    return value;
}

CellTexts GridCells::textsOf(int column, const QVariant &given) const
{
    const GridColumn *described = m_columns.find(column);
    const GridColumn plain;
    const GridColumn &used = described ? *described : plain;
    CellTexts texts = textsOfValue(typeOf(column), used.format, given, rules());
    if (typeOf(column) == ColumnType::Combo) {
        if (const auto name = m_lists.nameOf(normalized(given), used.source))
            texts.shown = *name;
    }
    return texts;
}

CellTexts GridCells::textsTyped(int column, const QString &text) const
{
    switch (typeOf(column)) {
    case ColumnType::Click: return {text, std::nullopt}; // its raw value is the host's to write
    case ColumnType::Combo: {
        const Locale locale = m_signs.locale; // reading the list may end the grid
        const auto key = m_lists.keyOf(text, m_columns.find(column)->source);
        return {text, key && !isNull(*key) ? textOfKey(*key, locale) : QString()};
    }
    case ColumnType::Text:
    case ColumnType::Number:
    case ColumnType::Date: break;
    }
    const QVariant read = valueTyped(column, text);
    return isNull(read) ? CellTexts{text, QString()} : textsOf(column, read);
}

QVariant GridCells::valueTyped(int column, const QString &text) const
{
    return valueOfCell(typeOf(column), {text, std::nullopt}, rules());
}

// --- columns of numbers

QVariant GridCells::valueStillAt(const QPointer<FlexGrid> &grid, CellAddress cell) const
{
    return grid && extent().hasDataCell(cell) ? valueAt(cell) : null();
}

float GridCells::sum(int column) const
{
    const QPointer<FlexGrid> grid = m_grid;
    const Locale locale = m_signs.locale;
    return sumOfRows(
        m_grid->Rows() - 1,
        [&](int row) {
            return valueStillAt(grid, {row, column});
        },
        locale);
}

float GridCells::greatest(int column) const
{
    const GridExtent all = extent();
    const QPointer<FlexGrid> grid = m_grid;
    const Locale locale = m_signs.locale;
    const auto valueIn = [&](int row) {
        // The fixed column has no type of its own; running numbers in it count.
        if (column == 0)
            return valueOfCell(ColumnType::Number, {m_grid->TextMatrix(row, 0), std::nullopt}, rules());
        return valueStillAt(grid, {row, column});
    };
    if (all.hasDataCell({1, column}) && typeOf(column) == ColumnType::Number)
        return m_greatest.of(column, all.rows - 1, valueIn, locale);
    return greatestOfRows(all.rows - 1, valueIn, locale);
}

QString GridCells::numberText(float number) const { return CStr(number, m_signs.locale); }

} // namespace kor
