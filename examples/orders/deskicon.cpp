// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "deskicon.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>

namespace orders {

namespace {

// The picture brings its own white ground, and edges that are seen on light and on dark.
const QColor paper(0xff, 0xff, 0xff);
const QColor edge(0x6b, 0x84, 0x9c);
const QColor ink(0x24, 0x36, 0x4b);
const QColor faint(0x9f, 0xb0, 0xc0);
const QColor accent(0x1f, 0x74, 0xc9);

//! Draws on a square of 16 by 16.
void draw(QPainter &painter)
{
    painter.setPen(QPen(edge, 1));
    painter.setBrush(paper);
    painter.drawRect(QRectF(2.5, 0.5, 10, 14));
    painter.fillRect(QRectF(4, 3, 7, 2), ink);
    for (const double top : {6.0, 8.0, 10.0, 12.0})
        painter.fillRect(QRectF(4, top, 7, 1), faint);
    painter.setPen(QPen(paper, 1));
    painter.setBrush(accent);
    painter.drawEllipse(QPointF(11, 11), 4.5, 4.5);
    painter.setPen(QPen(paper, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{9, 11.2}, {10.4, 12.6}, {13, 9.6}});
}

} // namespace

QIcon deskIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 16.0, size / 16.0);
        draw(painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace orders
