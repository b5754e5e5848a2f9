// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "barchart.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace orders {

namespace {

constexpr double barPart = 0.62;   // of the height of its line
constexpr double linePart = 1.9;   // of the height of the font
constexpr double widestName = 0.4; // of the width of the chart
constexpr int namesHeard = 5;      // by a screen reader

//! Where names, bars and values stand.
struct Columns {
    double nameWidth = 0;
    double valueWidth = 0;
    double gap = 0;
    double lineHeight = 0;
};

Columns columnsFor(const QFontMetricsF &metrics, double width, const QList<Bar> &bars)
{
    Columns columns;
    columns.gap = metrics.averageCharWidth();
    columns.lineHeight = heightOfBars(metrics, 1);
    for (const Bar &bar : bars) {
        columns.nameWidth = std::max(columns.nameWidth, metrics.horizontalAdvance(bar.name));
        columns.valueWidth = std::max(columns.valueWidth, metrics.horizontalAdvance(bar.text));
    }
    columns.nameWidth = std::min(columns.nameWidth + 1, width * widestName);
    return columns;
}

} // namespace

double heightOfBars(const QFontMetricsF &metrics, qsizetype count)
{
    return metrics.height() * linePart * static_cast<double>(count);
}

void paintBars(QPainter &painter, const QRectF &area, const QList<Bar> &bars, const QPalette &colors)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    const Columns columns = columnsFor(metrics, area.width(), bars);
    const auto room = static_cast<qsizetype>(area.height() / columns.lineHeight);
    const qsizetype shown = bars.size() <= room ? bars.size() : std::max<qsizetype>(room - 1, 0);
    double greatest = 0;
    for (const Bar &bar : bars)
        greatest = std::max(greatest, bar.value);
    const double left = area.left() + columns.nameWidth + columns.gap;
    const double longest = std::max(0.0, area.right() - columns.valueWidth - columns.gap - left);
    painter.setPen(colors.color(QPalette::WindowText));
    for (qsizetype at = 0; at < shown; ++at) {
        const Bar &bar = bars.at(at);
        const double top = area.top() + static_cast<double>(at) * columns.lineHeight;
        painter.drawText(QRectF(area.left(), top, columns.nameWidth, columns.lineHeight),
                         Qt::AlignRight | Qt::AlignVCenter,
                         metrics.elidedText(bar.name, Qt::ElideRight, columns.nameWidth));
        const double length = greatest > 0 ? longest * std::max(0.0, bar.value) / greatest : 0;
        const double height = columns.lineHeight * barPart;
        painter.fillRect(QRectF(left, top + (columns.lineHeight - height) / 2, std::max(length, 1.0), height),
                         colors.color(QPalette::Highlight));
        painter.drawText(QRectF(left + length + columns.gap, top, columns.valueWidth + 1, columns.lineHeight),
                         Qt::AlignLeft | Qt::AlignVCenter, bar.text);
    }
    if (shown < bars.size()) {
        const double top = area.top() + static_cast<double>(shown) * columns.lineHeight;
        painter.drawText(QRectF(left, top, area.right() - left, columns.lineHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         QStringLiteral("i %1 dalszych").arg(bars.size() - shown));
    }
}

BarChart::BarChart(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Wykres"));
}

void BarChart::setBars(const QList<Bar> &bars)
{
    m_bars = bars;
    QStringList heard;
    for (const Bar &bar : bars.first(std::min<qsizetype>(bars.size(), namesHeard)))
        heard << bar.name + u' ' + bar.text;
    setAccessibleDescription(heard.join(QStringLiteral("; ")));
    update();
}

QSize BarChart::sizeHint() const
{
    const QFontMetricsF metrics(font());
    return QSizeF(metrics.averageCharWidth() * 60, heightOfBars(metrics, 12)).toSize();
}

QSize BarChart::minimumSizeHint() const { return sizeHint() / 3; }

void BarChart::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const int margin = fontMetrics().averageCharWidth();
    paintBars(painter, QRectF(rect()).adjusted(margin, margin, -margin, -margin), m_bars, palette());
}

} // namespace orders
