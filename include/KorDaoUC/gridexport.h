// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/locale.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <optional>
#include <system_error>

class KorGrid;

namespace kor {

//! What kind of file is written.
enum class ExportKind {
    Csv, //!< texts between separators, for other programs
    Xlsx //!< a workbook with typed cells, for people
};

//! The kind that a file's name asks for, by its ending.
[[nodiscard]] KORDAOUC_SHEET_EXPORT std::optional<ExportKind> exportKindOf(const QString &fileName);

//! How a column is written.
struct ExportColumn {
    //! What its cells hold; what a cell can't be is a text.
    enum class Kind { Text, Number, Date };

    QString title = {};     //!< the first line of the file
    Kind kind = Kind::Text; //!< of its cells
    QString format = {};    //!< of numbers, as `Format` takes it
    int width = 1440;       //!< twips
    int alignment = 0;      //!< 0 left, 1 right, 2 centred
    bool wraps = false;     //!< texts with line breaks wrap anyway
};

//! What is exported, apart from where it came from.
struct ExportTable {
    QString name = {};           //!< of the sheet
    QList<ExportColumn> columns; //!< as many as every row has values
    //! Null for an empty cell. In a column of numbers or dates, what is neither is a text.
    QList<QVariantList> rows;
    QVariantList totals; //!< a last line, empty for none
};

//! Asked every now and then, from the thread that called: so much of so much is done. False stops the export.
using ExportProgress = std::function<bool(qint64 done, qint64 all)>;

//! What becomes of texts in a CSV file that a spreadsheet would take for formulas: those that begin with =, +, - or @,
//! a tab or a blank before them.
enum class CsvFormulas {
    Guard, //!< an apostrophe in front keeps them texts; numbers stay as they are
    Keep   //!< as they are, for programs that read the file to the letter
};

//! What a program may say of an export.
struct ExportSettings {
    QString name;                              //!< of the sheet
    QHash<int, QVariant> totals;               //!< by number of the grid's column: a last line
    ExportProgress mayGoOn = {};               //!< none goes on
    CsvFormulas formulas = CsvFormulas::Guard; //!< of CSV files only
    Locale locale = Locale::systemDefault();   //!< whose separators CSV files have, and what texts are read by
};

//! How an export ended. Unless it was written, the file is as it was before.
struct ExportResult {
    //! The ends that it may come to.
    enum class Outcome {
        Written,
        Stopped,
        TooManyRows,    //!< 1,048,576 fit into a sheet, the titles included
        TooManyColumns, //!< 16,384
        TextTooLong,    //!< 32,767 characters fit into a cell of a sheet
        NotWritten      //!< the system would not; error and reason say why
    };
    Outcome outcome = Outcome::Written; //!< what it was
    std::error_code error;              //!< the system's
    QString reason;                     //!< the system's
    qsizetype row = 0;                  //!< of the text that is too long, from 0
    qsizetype column = 0;               //!< likewise

    //! Whether the file holds the table now.
    [[nodiscard]] bool isWritten() const { return outcome == Outcome::Written; }
};

//! What a grid shows: its columns that are not hidden, the fixed one too where anything stands in it, and its rows as
//! far as anything stands in them. Lists give the names that the user sees. Nothing when it was stopped, or the grid
//! ended meanwhile. What is open in a cell is there as far as it was typed: leave the field before.
[[nodiscard]] KORDAOUC_SHEET_EXPORT std::optional<ExportTable> exportTableOf(const KorGrid &grid,
                                                                             const ExportSettings &settings = {});

//! Writes a table, all or nothing.
[[nodiscard]] KORDAOUC_SHEET_EXPORT ExportResult exportTable(const ExportTable &table, const QString &fileName,
                                                             ExportKind kind, const ExportSettings &settings = {});

//! Writes what a grid shows, all or nothing.
[[nodiscard]] KORDAOUC_SHEET_EXPORT ExportResult exportGrid(const KorGrid &grid, const QString &fileName,
                                                            ExportKind kind, const ExportSettings &settings = {});

} // namespace kor
