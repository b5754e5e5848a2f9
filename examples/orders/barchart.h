// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

class QFontMetricsF;
class QPainter;

namespace orders {

struct Bar {
    QString name;
    double value = 0;
    QString text; //!< the value as it is written beside the bar

    bool operator==(const Bar &) const = default;
};

//! Paints bars with their names and values, one below the other, in a rectangle. Those that find no room are left out,
//! and a last line says how many. The same on the screen and on paper.
//!
//! Painted here: what is wanted is a dozen rectangles with two texts each, for which a library of charts would be one
//! more thing to install, and its pictures would not print in the font of the report.
void paintBars(QPainter &painter, const QRectF &area, const QList<Bar> &bars, const QPalette &colors);

//! The height that so many bars take in a font.
[[nodiscard]] double heightOfBars(const QFontMetricsF &metrics, qsizetype count);

//! The bars as a widget.
class BarChart : public QWidget
{
    Q_OBJECT

public:
    explicit BarChart(QWidget *parent = nullptr);

    [[nodiscard]] const QList<Bar> &bars() const { return m_bars; }
    void setBars(const QList<Bar> &bars);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<Bar> m_bars;
};

} // namespace orders
