// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/flexgrid/cellstore.h"

#include <QtCore/Qt>

class QFontMetrics;
class QPainter;
class QRect;

namespace kor {

// How a grid's texts are drawn and measured.

//! A text as it stands in its cell.
struct CellText {
    QString text;
    CellAlignmentType alignment = CellAlignmentType::General;
    bool wraps = false;
    bool fillsNarrow = false; //!< a number, instead of ending in dots
};

//! Where a text stands; a left alignment is the right one in a mirrored grid.
[[nodiscard]] Qt::Alignment textPlace(CellAlignmentType alignment, const QString &text);
//! Draws with the painter's pen and font. A text that does not fit ends in dots, wraps at blanks, or,
//! being a number, is a run of "#".
void drawCellText(QPainter &painter, const QRect &cell, const CellText &content);
//! The pixels that a cell needs to show its text in one line.
[[nodiscard]] int neededWidth(const QFontMetrics &metrics, const QString &text);
//! The pixels of height that a cell of a width needs to show its text wrapped.
[[nodiscard]] int neededHeight(const QFontMetrics &metrics, const QString &text, int cellWidth);

} // namespace kor
