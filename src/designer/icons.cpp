// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/icons.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include <algorithm>
#include <array>

namespace kor {

namespace {

// Pictures bring their own white ground, and an edge that is seen on light and on dark.
const QColor paper(0xff, 0xff, 0xff);
const QColor edge(0x6b, 0x84, 0x9c);
const QColor ink(0x24, 0x36, 0x4b);
const QColor faint(0x9f, 0xb0, 0xc0);
const QColor accent(0x1f, 0x74, 0xc9);
const QColor red(0xd6, 0x3b, 0x3b);
const QColor green(0x2f, 0x9e, 0x4f);

// All pictures are drawn on a square of 16 by 16.
void box(QPainter &painter, const QRectF &area)
{
    painter.setPen(QPen(edge, 1));
    painter.setBrush(paper);
    painter.drawRect(area);
}

void lines(QPainter &painter, const QColor &color, double width, std::initializer_list<QPolygonF> all)
{
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    for (const QPolygonF &line : all)
        painter.drawPolyline(line);
}

void shape(QPainter &painter, const QColor &color, const QPolygonF &corners)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(corners);
}

void field(QPainter &painter) { box(painter, {0.5, 3.5, 15, 9}); }

//! A field whose right third is a button.
void buttonField(QPainter &painter)
{
    field(painter);
    painter.fillRect(QRectF(10, 4, 5, 8), QColor(0xdc, 0xe6, 0xf0));
    lines(painter, edge, 1, {{{9.5, 4}, {9.5, 12}}});
}

void number(QPainter &painter)
{
    field(painter);
    lines(
        painter, ink, 1.2,
        {{{4.2, 6.6}, {5.6, 5.6}, {5.6, 10.6}}, {{8.2, 6.1}, {10.8, 6.1}, {10.8, 8}, {8.7, 8}, {8.7, 10}, {11.4, 10}}});
    lines(painter, accent, 1, {{{13.5, 5}, {13.5, 11}}});
}

void date(QPainter &painter)
{
    box(painter, {1.5, 2.5, 13, 12});
    painter.fillRect(QRectF(1, 2, 14, 4), red);
    lines(painter, ink, 1.4, {{{4.5, 0.6}, {4.5, 4}}, {{11.5, 0.6}, {11.5, 4}}});
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column)
            painter.fillRect(QRectF(3 + 2.75 * column, 7.2 + 2.4 * row, 1.7, 1.4),
                             row == 1 && column == 2 ? accent : faint);
    }
}

void combo(QPainter &painter)
{
    buttonField(painter);
    lines(painter, ink, 1.2, {{{2.5, 8}, {7.5, 8}}});
    shape(painter, ink, QPolygonF({{10.6, 6.9}, {14.4, 6.9}, {12.5, 9.4}}));
}

void click(QPainter &painter)
{
    buttonField(painter);
    lines(painter, ink, 1.2, {{{2.5, 8}, {7.5, 8}}});
    for (const double x : {10.7, 12.0, 13.3})
        painter.fillRect(QRectF(x - 0.1, 8.6, 0.9, 1.3), ink);
}

void list(QPainter &painter)
{
    box(painter, {1.5, 1.5, 13, 13});
    painter.fillRect(QRectF(2, 5.2, 12, 3), accent);
    lines(painter, ink, 1.2, {{{3.5, 3.6}, {10.5, 3.6}}, {{3.5, 9.8}, {11.5, 9.8}}, {{3.5, 12.4}, {9, 12.4}}});
    lines(painter, paper, 1.2, {{{3.5, 6.7}, {12, 6.7}}});
}

void listCheck(QPainter &painter)
{
    box(painter, {1.5, 1.5, 13, 13});
    for (int row = 0; row < 3; ++row) {
        const double y = 3.2 + 3.8 * row;
        painter.setPen(QPen(edge, 0.8));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(3.2, y, 2.6, 2.6));
        lines(painter, ink, 1.2, {{{7.5, y + 1.3}, {12.8 - row, y + 1.3}}});
        if (row != 1)
            lines(painter, green, 1.4, {{{3, y + 1}, {4.3, y + 2.2}, {6.4, y - 0.6}}});
    }
}

void color(QPainter &painter)
{
    buttonField(painter);
    const std::array colors{red, green, accent};
    for (std::size_t i = 0; i < colors.size(); ++i)
        painter.fillRect(QRectF(1.8 + 2.5 * static_cast<double>(i), 5.5, 2.1, 5), colors[i]);
    shape(painter, ink, QPolygonF({{10.6, 6.9}, {14.4, 6.9}, {12.5, 9.4}}));
}

void upDown(QPainter &painter)
{
    buttonField(painter);
    lines(painter, edge, 1, {{{10, 8}, {15, 8}}});
    lines(painter, ink, 1.2, {{{3.4, 6.6}, {5, 5.6}, {5, 10.6}}});
    shape(painter, ink, QPolygonF({{10.9, 7.1}, {14.1, 7.1}, {12.5, 4.9}}));
    shape(painter, ink, QPolygonF({{10.9, 8.9}, {14.1, 8.9}, {12.5, 11.1}}));
}

void multiText(QPainter &painter)
{
    box(painter, {0.5, 0.5, 15, 5});
    lines(painter, ink, 1.2, {{{2.5, 3}, {8.5, 3}}});
    shape(painter, ink, QPolygonF({{11, 2.1}, {14, 2.1}, {12.5, 4.2}}));
    box(painter, {2.5, 5.5, 13, 10});
    lines(painter, faint, 1.2, {{{4.5, 8}, {13.5, 8}}, {{4.5, 10.5}, {13.5, 10.5}}, {{4.5, 13}, {9.5, 13}}});
}

void grid(QPainter &painter)
{
    box(painter, {0.5, 1.5, 15, 13});
    painter.fillRect(QRectF(1, 2, 14, 3), QColor(0xdc, 0xe6, 0xf0));
    painter.fillRect(QRectF(6, 9, 5, 3), accent);
    lines(painter, edge, 1,
          {{{1, 5.5}, {15, 5.5}},
           {{1, 8.5}, {15, 8.5}},
           {{1, 11.5}, {15, 11.5}},
           {{5.5, 2}, {5.5, 14}},
           {{10.5, 2}, {10.5, 14}}});
}

//! Names on the left, and the one value that is being edited on the right.
void param(QPainter &painter)
{
    box(painter, {0.5, 1.5, 15, 13});
    painter.fillRect(QRectF(1, 2, 14, 3), QColor(0xdc, 0xe6, 0xf0));
    painter.fillRect(QRectF(8, 6, 7, 3.5), accent);
    lines(painter, edge, 1, {{{1, 5.5}, {15, 5.5}}, {{1, 10}, {15, 10}}, {{7.5, 2}, {7.5, 14}}});
    lines(painter, ink, 1.2, {{{2.5, 7.8}, {6, 7.8}}, {{2.5, 12.2}, {5.5, 12.2}}});
    lines(painter, paper, 1.2, {{{9.5, 7.8}, {13, 7.8}}});
    lines(painter, faint, 1.2, {{{9.5, 12.2}, {12.5, 12.2}}});
}

struct Picture {
    const char *control;
    void (*draw)(QPainter &);
};

constexpr std::array pictures{
    Picture{"KorNumber", number}, Picture{"KorDate", date},     Picture{"KorCombo", combo},
    Picture{"KorClick", click},   Picture{"KorList", list},     Picture{"KorListCheck", listCheck},
    Picture{"KorColor", color},   Picture{"KorUpDown", upDown}, Picture{"KorMultiText", multiText},
    Picture{"KorGrid", grid},     Picture{"KorParam", param},
};

QPixmap drawn(const Picture &picture, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 16.0, side / 16.0);
    picture.draw(painter);
    return pixmap;
}

} // namespace

QIcon controlIcon(const QString &control)
{
    const auto *picture = std::find_if(pictures.begin(), pictures.end(),
                                       [&](const Picture &one) { return control == QLatin1String(one.control); });
    QIcon icon;
    if (picture != pictures.end()) {
        for (const int side : {16, 22, 24, 32, 48, 64, 128})
            icon.addPixmap(drawn(*picture, side));
    }
    return icon;
}

} // namespace kor
