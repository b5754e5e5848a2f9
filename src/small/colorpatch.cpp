// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/colorpatch.h"

#include "constituents/entryheight.h"
#include "small/colorlist.h"

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QRegion>

#include <array>

namespace kor {

namespace {

constexpr int leastCut = 8; // pixels of height below which a cut corner is a speck

//! An empty corner, which tells the colour that stands for none in particular from the black that it looks like.
void paintCutCorner(QPainter &painter, const QRect &area, const QColor &empty, const QColor &edge)
{
    const QPointF corner = area.topLeft();
    const qreal leg = area.height() * 0.75;
    const std::array cut{corner, corner + QPointF(leg, 0), corner + QPointF(0, leg)};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(empty);
    painter.drawPolygon(cut.data(), static_cast<int>(cut.size()));
    painter.setPen(edge);
    painter.drawLine(cut[1], cut[2]);
}

void paintPatch(QPainter &painter, const QRect &area, OLE_COLOR color, const QPalette &palette)
{
    // The edge tells a white patch from a light form and a black one from a dark form. Filled, not drawn as lines,
    // which would fall between the pixels of a screen that is scaled by a fraction.
    QColor edge = palette.color(QPalette::Active, QPalette::Text);
    edge.setAlphaF(0.45F);
    painter.fillRect(area, toQColor(color, palette));
    if (color == ColorList::defaultColor && area.height() >= leastCut)
        paintCutCorner(painter, area, palette.color(QPalette::Active, QPalette::Base), edge);
    for (const QRect &side : QRegion(area) - QRegion(area.adjusted(1, 1, -1, -1)))
        painter.fillRect(side, edge);
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

QSize ColorDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem entry = option;
    initStyleOption(&entry, index);
    return {QStyledItemDelegate::sizeHint(option, index).width(),
            entryHeight(entry, qobject_cast<QWidget *>(parent()))};
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
