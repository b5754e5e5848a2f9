// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/color.h>

#include <QtCore/QString>

#include <memory>
#include <optional>
#include <vector>

namespace kor {

//! Where a text stands in its cell, by its classic code.
enum class CellAlignmentType : int {
    LeftTop = 0,
    LeftCenter = 1,
    LeftBottom = 2,
    CenterTop = 3,
    CenterCenter = 4,
    CenterBottom = 5,
    RightTop = 6,
    RightCenter = 7,
    RightBottom = 8,
    General = 9, //!< numbers to the right, other texts to the left
};

//! What a cell has of its own; what it has not is its column's.
struct CellFormat {
    std::optional<CellAlignmentType> alignment;
    OLE_COLOR foreColor = 0; //!< 0 for none of its own
    bool operator==(const CellFormat &) const = default;
};

//! The texts and formats of a grid's cells, titles included.
//!
//! A row takes memory when something is written in it, a format where one is set, and a text is shared with whoever
//! wrote it. Rows are added at the end in constant time.
class CellStore
{
public:
    CellStore(int rows, int columns) : m_rowCount(rows), m_columnCount(columns) {}

    [[nodiscard]] int rows() const { return m_rowCount; }
    [[nodiscard]] int columns() const { return m_columnCount; }
    //! Cells of columns that go away are lost.
    void setColumns(int columns);
    void insertRows(int first, int number);
    void removeRows(int first, int number);

    [[nodiscard]] QString text(int row, int column) const;
    //! Whether the text is another one than before.
    bool setText(int row, int column, const QString &text);
    [[nodiscard]] CellFormat format(int row, int column) const;
    void setFormat(int row, int column, const CellFormat &format);
    //! Takes all texts and formats away, and keeps the rows and columns.
    void clear() { m_rows.clear(); }

private:
    struct Row {
        std::vector<QString> texts;
        std::vector<CellFormat> formats;
    };
    //! Null for a row in which nothing was ever written.
    [[nodiscard]] const Row *written(int row) const;
    [[nodiscard]] Row &toWrite(int row);

    int m_rowCount;
    int m_columnCount;
    std::vector<std::unique_ptr<Row>> m_rows; //!< no longer than up to the last row that was written
};

} // namespace kor
