// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/colorpatch.h"

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

namespace kor {

namespace {

void paintPatch(QPainter &painter, const QRect &area, OLE_COLOR color, const QPalette &palette)
{
    painter.setPen(palette.color(QPalette::Active, QPalette::Mid));
    painter.setBrush(toQColor(color, palette));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

} // namespace

ColorPatch::ColorPatch(OLE_COLOR color, QWidget *parent) : QWidget(parent), m_color(color)
{
    setMouseTracking(true); // what it does not use goes to the surface it lies on
}

void ColorPatch::setBackColor(OLE_COLOR color)
{
    m_color = color;
    update();
}

void ColorPatch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintPatch(painter, rect(), m_color, palette());
}

QSize ColorDelegate::patchSize(const QFontMetrics &metrics)
{
    const int height = metrics.ascent();
    return {height * 3 / 2, height};
}

void ColorDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QSize size = patchSize(option->fontMetrics);
    const qreal ratio = option->widget ? option->widget->devicePixelRatioF() : 1.0;
    QPixmap patch(size * ratio);
    patch.setDevicePixelRatio(ratio);
    patch.fill(Qt::transparent);
    QPainter painter(&patch);
    paintPatch(painter, QRect(QPoint(0, 0), size), m_colorOf(index.row()), option->palette);
    painter.end();
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = size;
    QIcon icon(patch);
    icon.addPixmap(patch, QIcon::Selected); // a chosen entry's colour must not be tinted
    option->icon = icon;
}

} // namespace kor
