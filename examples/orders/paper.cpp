// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "paper.h"

#include <QtCore/QBuffer>
#include <QtGui/QPageLayout>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace orders {

namespace {

constexpr int dotsPerInch = 300;
constexpr double margin = 15; // millimetres
constexpr int bodySize = 9;   // points
constexpr int footerSize = 8;
const QString fontName = QStringLiteral("DejaVu Sans");

} // namespace

Paper::Paper(QPagedPaintDevice &device) : m_device(device)
{
    const QRect page = device.pageLayout().paintRectPixels(device.logicalDpiX());
    m_width = page.width();
    m_height = page.height();
    setFont(bodySize);
    m_bottom = m_height - 2 * lineHeight();
    m_pages << QList<Stroke>{};
}

void Paper::setFont(int points, bool isBold)
{
    m_font = QFont(fontName, points);
    m_font.setBold(isBold);
}

QFontMetricsF Paper::metrics() const { return QFontMetricsF(m_font, &m_device); }

void Paper::putText(const QRectF &place, Qt::Alignment alignment, const QString &text)
{
    if (text.isEmpty())
        return;
    const QString shown = metrics().elidedText(text, Qt::ElideRight, place.width());
    add([font = m_font, place, alignment, shown](QPainter &painter) {
        painter.setFont(font);
        painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter | Qt::TextSingleLine), shown);
    });
}

void Paper::text(const QString &text)
{
    if (room() < lineHeight())
        newPage();
    putText(QRectF(0, m_y, m_width, lineHeight()), Qt::AlignLeft, text);
    m_y += lineHeight();
}

void Paper::paragraph(const QString &whole)
{
    for (const QString &line : wrapped(whole, m_width))
        text(line);
}

QRectF Paper::cellPlace(const QList<PaperColumn> &columns, qsizetype column) const
{
    const double begin = column > 0 ? columns.at(column - 1).end : 0;
    const double gap = metrics().averageCharWidth();
    return {begin * m_width, m_y, (columns.at(column).end - begin) * m_width - gap, lineHeight()};
}

void Paper::cells(const QList<PaperColumn> &columns, const QStringList &texts)
{
    for (qsizetype column = 0; column < texts.size(); ++column)
        putText(cellPlace(columns, column), columns.at(column).alignment, texts.at(column));
    m_y += lineHeight();
}

void Paper::line()
{
    add([y = m_y, width = m_width, thickness = m_device.logicalDpiX() / 150.0](QPainter &painter) {
        painter.setPen(QPen(Qt::black, thickness));
        painter.drawLine(QPointF(0, y), QPointF(width, y));
    });
    m_y += lineHeight() / 4;
}

void Paper::skip() { m_y += lineHeight(); }

void Paper::newPage()
{
    m_pages << QList<Stroke>{};
    m_y = 0;
}

void Paper::draw(double height, std::function<void(QPainter &, const QRectF &)> paint)
{
    add([place = QRectF(0, m_y, m_width, height), font = m_font, paint = std::move(paint)](QPainter &painter) {
        painter.setFont(font);
        paint(painter, place);
        painter.setPen(Qt::black);
    });
    m_y += height;
}

// --- tables

QStringList Paper::wrapped(const QString &text, double width) const
{
    QStringList lines;
    for (const QString &part : text.split(u'\n')) {
        QTextLayout layout(part, m_font, &m_device);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines << part.mid(line.textStart(), line.textLength()).trimmed();
        }
        layout.endLayout();
    }
    return lines;
}

void Paper::putTitles()
{
    const QFont font = m_font;
    m_font.setBold(true);
    cells(m_columns, m_titles);
    line();
    m_font = font;
}

void Paper::beginTable(const QList<PaperColumn> &columns, const QStringList &titles)
{
    m_columns = columns;
    m_titles = titles;
    constexpr int least = 3; // the titles and a row below them
    if (room() < least * lineHeight())
        newPage();
    putTitles();
}

void Paper::row(const QStringList &texts)
{
    QList<QStringList> columns;
    qsizetype lines = 1;
    for (qsizetype column = 0; column < texts.size(); ++column) {
        columns << wrapped(texts.at(column), cellPlace(m_columns, column).width());
        lines = std::max(lines, columns.last().size());
    }
    const double height = static_cast<double>(lines) * lineHeight();
    const bool fitsOnAPage = height <= m_bottom - 2 * lineHeight();
    for (qsizetype at = 0; at < lines; ++at) {
        if (room() < (fitsOnAPage && at == 0 ? height : lineHeight())) {
            newPage();
            putTitles();
        }
        QStringList line;
        for (const QStringList &column : columns)
            line << column.value(at);
        cells(m_columns, line);
    }
}

// --- pages

bool Paper::paint(const QString &footer, const MayGoOn &mayGoOn)
{
    QPainter painter;
    if (!painter.begin(&m_device))
        return false;
    setFont(footerSize);
    for (qsizetype page = 0; page < m_pages.size(); ++page) {
        if ((mayGoOn && !mayGoOn(page, m_pages.size())) || (page > 0 && !m_device.newPage()))
            return false;
        painter.setPen(Qt::black);
        for (const Stroke &stroke : m_pages.at(page))
            stroke(painter);
        painter.setFont(m_font);
        painter.setPen(Qt::black);
        const QRectF place(0, m_bottom, m_width, m_height - m_bottom);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom, footer);
        painter.drawText(place, Qt::AlignRight | Qt::AlignBottom,
                         QStringLiteral("strona %1 z %2").arg(page + 1).arg(m_pages.size()));
    }
    return painter.end();
}

void setUpPages(QPagedPaintDevice &device)
{
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter));
}

QByteArray pdfOf(const QString &title, const std::function<bool(QPagedPaintDevice &)> &paint)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    bool isPainted = false;
    {
        QPdfWriter writer(&bytes); // the pages end with the writer
        writer.setResolution(dotsPerInch);
        writer.setTitle(title);
        setUpPages(writer);
        isPainted = paint(writer);
    }
    return isPainted ? bytes.data() : QByteArray();
}

} // namespace orders
