// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "longwork.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

#include <functional>

class QPagedPaintDevice;
class QPainter;
class QRectF;

namespace orders {

//! A column of a table on paper: where it ends, as a part of the width, and how its texts lie.
struct PaperColumn {
    double end = 1;
    Qt::Alignment alignment = Qt::AlignLeft;
};

//! What is to be painted, as lines down the pages of a device. Nothing is painted before the end, since only then it is
//! known how many pages there are.
class Paper
{
public:
    explicit Paper(QPagedPaintDevice &device);

    void setFont(int points, bool isBold = false);
    [[nodiscard]] QFontMetricsF metrics() const;
    [[nodiscard]] double width() const { return m_width; }
    [[nodiscard]] double lineHeight() const { return metrics().height() * 1.3; }
    //! What is left of the page.
    [[nodiscard]] double room() const { return m_bottom - m_y; }

    //! One line, shortened where it is too long.
    void text(const QString &text);
    //! As many lines as it takes.
    void paragraph(const QString &text);
    void cells(const QList<PaperColumn> &columns, const QStringList &texts);
    void line();
    void skip();
    void newPage();
    void draw(double height, std::function<void(QPainter &, const QRectF &)> paint);

    //! A table begins, with titles that are repeated on every page that it goes on to.
    void beginTable(const QList<PaperColumn> &columns, const QStringList &titles);
    //! A row of it. The texts wrap; a row that finds no room goes to the next page as a whole, unless it is longer than
    //! a page.
    void row(const QStringList &texts);

    //! Paints all pages, their numbers and a text below. False when the device would not, or when it was stopped.
    [[nodiscard]] bool paint(const QString &footer, const MayGoOn &mayGoOn = {});

private:
    using Stroke = std::function<void(QPainter &)>;

    void add(const Stroke &stroke) { m_pages.last() << stroke; }
    void putText(const QRectF &place, Qt::Alignment alignment, const QString &text);
    void putTitles();
    [[nodiscard]] QStringList wrapped(const QString &text, double width) const;
    [[nodiscard]] QRectF cellPlace(const QList<PaperColumn> &columns, qsizetype column) const;

    QPagedPaintDevice &m_device;
    QFont m_font;
    double m_width = 0;
    double m_height = 0;
    double m_bottom = 0;
    double m_y = 0;
    QList<QList<Stroke>> m_pages;
    QList<PaperColumn> m_columns;
    QStringList m_titles;
};

//! A4, upright, with the margins of the desk's papers.
void setUpPages(QPagedPaintDevice &device);

//! What paints on a device, as a PDF. Nothing when it could not.
[[nodiscard]] QByteArray pdfOf(const QString &title, const std::function<bool(QPagedPaintDevice &)> &paint);

} // namespace orders
