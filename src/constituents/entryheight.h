// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionViewItem>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace kor {

//! The height of an entry in the lists: the style's own, but never without room above and below the line of text and
//! its check box, which several styles put edge to edge.
[[nodiscard]] inline int entryHeight(const QStyleOptionViewItem &entry, const QWidget *list)
{
    const QStyle *style = list->style();
    const int own = style->sizeFromContents(QStyle::CT_ItemViewItem, &entry, {}, list).height();
    const bool hasBox = entry.features.testFlag(QStyleOptionViewItem::HasCheckIndicator);
    const int box = hasBox ? style->pixelMetric(QStyle::PM_IndicatorHeight, &entry, list) : 0;
    const int room = 2 * std::max(1, style->pixelMetric(QStyle::PM_FocusFrameVMargin, &entry, list));
    return std::max(own, std::max(entry.fontMetrics.height(), box) + room);
}

} // namespace kor
