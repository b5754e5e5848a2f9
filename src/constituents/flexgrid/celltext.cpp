// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/celltext.h"

#include <KorDaoUC/convert.h>

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>

#include <algorithm>

namespace kor {

namespace {

constexpr int sideMargin = 3;
constexpr int topMargin = 1;
constexpr int unlimited = 1 << 20;
constexpr int gridLine = 1; // which the last pixels of a cell are

// Most texts begin with a letter, and are none without a closer look.
bool isNumber(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar unit) { return unit.isDigit(); }) &&
           !text.front().isLetter() && IsNumeric(text);
}

} // namespace

Qt::Alignment textPlace(CellAlignmentType alignment, const QString &text)
{
    switch (alignment) {
    case CellAlignmentType::LeftTop: return Qt::AlignLeft | Qt::AlignTop;
    case CellAlignmentType::LeftCenter: return Qt::AlignLeft | Qt::AlignVCenter;
    case CellAlignmentType::LeftBottom: return Qt::AlignLeft | Qt::AlignBottom;
    case CellAlignmentType::CenterTop: return Qt::AlignHCenter | Qt::AlignTop;
    case CellAlignmentType::CenterCenter: return Qt::AlignCenter;
    case CellAlignmentType::CenterBottom: return Qt::AlignHCenter | Qt::AlignBottom;
    case CellAlignmentType::RightTop: return Qt::AlignRight | Qt::AlignTop;
    case CellAlignmentType::RightCenter: return Qt::AlignRight | Qt::AlignVCenter;
    case CellAlignmentType::RightBottom: return Qt::AlignRight | Qt::AlignBottom;
    case CellAlignmentType::General: break;
    }
    return (isNumber(text) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

void drawCellText(QPainter &painter, const QRect &cell, const CellText &content)
{
    if (content.text.isEmpty())
        return;
    const QRect room = cell.adjusted(sideMargin, topMargin, -sideMargin - gridLine, -topMargin - gridLine);
    const int place = static_cast<int>(textPlace(content.alignment, content.text));
    if (content.wraps) {
        // What is too high for the row shows its beginning.
        const bool isTooHigh = neededHeight(painter.fontMetrics(), content.text, cell.width()) > cell.height();
        const int vertical = isTooHigh ? static_cast<int>(Qt::AlignTop) : place & Qt::AlignVertical_Mask;
        painter.drawText(room, (place & Qt::AlignHorizontal_Mask) | vertical | Qt::TextWordWrap, content.text);
        return;
    }
    const QFontMetrics metrics = painter.fontMetrics();
    QString text = content.text;
    std::replace_if(
        text.begin(), text.end(), [](QChar unit) { return unit == u'\n' || unit == u'\r'; }, QLatin1Char(' '));
    if (content.fillsNarrow && isNumber(text) && metrics.horizontalAdvance(text) > room.width())
        text = QString(std::max(1, room.width() / metrics.horizontalAdvance(u'#')), u'#');
    else if (text.size() * metrics.maxWidth() > room.width())
        text = metrics.elidedText(text, Qt::ElideRight, room.width());
    painter.drawText(room, place | Qt::TextSingleLine, text);
}

int neededWidth(const QFontMetrics &metrics, const QString &text)
{
    return metrics.size(Qt::TextSingleLine, text).width() + 2 * sideMargin + gridLine;
}

int neededHeight(const QFontMetrics &metrics, const QString &text, int cellWidth)
{
    const int width = std::max(1, cellWidth - 2 * sideMargin - gridLine);
    const int height = metrics.boundingRect(QRect(0, 0, width, unlimited), Qt::TextWordWrap, text).height();
    return height + 2 * topMargin + gridLine;
}

} // namespace kor
