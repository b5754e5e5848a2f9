// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "export/csv.h"
#include "export/pace.h"
#include "export/workbook.h"

#include <KorDaoUC/gridexport.h>
#include <KorDaoUC/korgrid.h>
#include <KorDaoUC/variant.h>
#include <KorDaoUC/wholefile.h>

#include <QtCore/QPointer>

#include <algorithm>

namespace kor {

namespace {

//! A column of the grid that is exported.
struct Source {
    int number;
    ExportColumn column;
};

ExportColumn::Kind kindOf(const QString &type)
{
    if (type == u"NUMBER")
        return ExportColumn::Kind::Number;
    return type == u"DATE" ? ExportColumn::Kind::Date : ExportColumn::Kind::Text;
}

Source sourceOf(const KorGrid &grid, int number)
{
    const ColumnDescription told = grid.columnDescription(number);
    return {number,
            {told.col_title, kindOf(told.col_type), told.col_format, told.col_width, told.col_align, told.col_wrap}};
}

//! A running number as a row of the fixed column has it.
std::optional<int> runningNumber(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && QString::number(number) == text ? std::optional(number) : std::nullopt;
}

//! The fixed column, which has no description: with running numbers or texts, where it has any.
std::optional<Source> fixedColumn(const KorGrid &grid)
{
    Source fixed = sourceOf(grid, 0);
    bool isUsed = !fixed.column.title.isEmpty();
    bool isOfNumbers = true;
    for (int row = 1; row < grid.Rows(); ++row) {
        const QString text = grid.TextMatrix(row, 0);
        isUsed = isUsed || !text.isEmpty();
        isOfNumbers = isOfNumbers && (text.isEmpty() || runningNumber(text));
    }
    if (!isUsed || fixed.column.width < 1)
        return std::nullopt;
    if (isOfNumbers) {
        fixed.column.kind = ExportColumn::Kind::Number;
        fixed.column.format = QStringLiteral("0");
        fixed.column.alignment = 1;
    }
    return fixed;
}

QList<Source> sourcesOf(const KorGrid &grid)
{
    QList<Source> sources;
    if (const auto fixed = fixedColumn(grid))
        sources << *fixed;
    for (int number = 1; number < grid.Cols(); ++number) {
        const Source source = sourceOf(grid, number);
        if (source.column.width > 0)
            sources << source;
    }
    return sources;
}

//! What a cell shows, as a value where it is one.
QVariant shownIn(const KorGrid &grid, int row, const Source &source)
{
    const QString text = grid.TextMatrix(row, source.number);
    if (text.isEmpty())
        return null();
    if (source.column.kind == ExportColumn::Kind::Text)
        return text;
    if (source.number == 0)
        return *runningNumber(text);
    const QVariant value = grid.Value(row, source.number);
    return isNull(value) ? QVariant(text) : value;
}

bool isBlank(const QVariantList &values) { return std::all_of(values.begin(), values.end(), isNull); }

//! Reads row by row. False when it was stopped, or the grid became another one meanwhile.
bool readRows(const KorGrid &grid, const QList<Source> &sources, const ExportProgress &mayGoOn, ExportTable &table)
{
    const QPointer<const KorGrid> self = &grid;
    const int rows = grid.Rows();
    const int columns = grid.Cols();
    Pace pace(mayGoOn, wholeWork(rows));
    for (int row = 1; row < rows; ++row) {
        if (!pace.goesOn(row * readingARow) || !self || grid.Rows() != rows || grid.Cols() != columns)
            return false;
        QVariantList values;
        values.reserve(sources.size());
        for (const Source &source : sources)
            values << shownIn(grid, row, source);
        table.rows << values;
    }
    while (!table.rows.isEmpty() && isBlank(table.rows.last()))
        table.rows.removeLast();
    return true;
}

} // namespace

std::optional<ExportKind> exportKindOf(const QString &fileName)
{
    if (fileName.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive))
        return ExportKind::Csv;
    if (fileName.endsWith(QStringLiteral(".xlsx"), Qt::CaseInsensitive))
        return ExportKind::Xlsx;
    return std::nullopt;
}

std::optional<ExportTable> exportTableOf(const KorGrid &grid, const ExportSettings &settings)
{
    ExportTable table;
    table.name = settings.name;
    const QList<Source> sources = sourcesOf(grid);
    for (const Source &source : sources) {
        table.columns << source.column;
        if (!settings.totals.isEmpty())
            table.totals << settings.totals.value(source.number, null());
    }
    return readRows(grid, sources, settings.mayGoOn, table) ? std::optional(table) : std::nullopt;
}

ExportResult exportTable(const ExportTable &table, const QString &fileName, ExportKind kind,
                         const ExportSettings &settings)
{
    Workbook file;
    if (kind == ExportKind::Xlsx)
        file = workbookOf(table, settings);
    else if (const auto bytes = csvOf(table, settings))
        file.bytes = *bytes;
    else
        file.result.outcome = ExportResult::Outcome::Stopped;
    if (!file.result.isWritten())
        return file.result;
    if (const auto failure = tryWriteWhole(fileName, file.bytes))
        return {ExportResult::Outcome::NotWritten, failure->error, failure->reason, 0, 0};
    return {};
}

ExportResult exportGrid(const KorGrid &grid, const QString &fileName, ExportKind kind, const ExportSettings &settings)
{
    if (const auto table = exportTableOf(grid, settings))
        return exportTable(*table, fileName, kind, settings);
    return {ExportResult::Outcome::Stopped, {}, {}, 0, 0};
}

} // namespace kor
