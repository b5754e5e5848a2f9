// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "reportpaper.h"

#include "barchart.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Format>

#include <QtCore/QBuffer>
#include <QtGui/QPageLayout>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <algorithm>

namespace orders {

namespace {

constexpr int dotsPerInch = 300;
constexpr double margin = 15;     // millimetres
constexpr double chartPart = 0.4; // of the height of a page, at most
const QString fontName = QStringLiteral("DejaVu Sans");

//! On paper dark is dark, whatever the screen looks like.
QPalette paperColors()
{
    QPalette colors;
    colors.setColor(QPalette::WindowText, Qt::black);
    colors.setColor(QPalette::Highlight, QColor(0x3b, 0x6e, 0xa8));
    return colors;
}

//! Lines of text down the pages.
class Paper
{
public:
    Paper(QPdfWriter &writer, QPainter &painter) : m_writer(writer), m_painter(painter)
    {
        setFont(9);
        m_bottom = m_painter.viewport().height() - lineHeight();
        startPage();
    }

    void setFont(int points, bool isBold = false)
    {
        QFont font(fontName, points);
        font.setBold(isBold);
        m_painter.setFont(font);
    }
    [[nodiscard]] double width() const { return m_painter.viewport().width(); }
    [[nodiscard]] double room() const { return m_bottom - m_y; }
    [[nodiscard]] double lineHeight() const { return QFontMetricsF(m_painter.font(), &m_writer).height() * 1.3; }

    //! A line of the table, or of nothing but its first text. False when the page is full: it has to begin anew.
    [[nodiscard]] bool hasRoom(double height) const { return m_y + height <= m_bottom; }
    void text(const QString &text)
    {
        if (!hasRoom(lineHeight()))
            newPage();
        const QFontMetricsF metrics(m_painter.font(), &m_writer);
        m_painter.drawText(QRectF(0, m_y, width(), lineHeight()), Qt::AlignLeft | Qt::AlignVCenter,
                           metrics.elidedText(text, Qt::ElideRight, width()));
        m_y += lineHeight();
    }
    void cells(const QStringList &texts)
    {
        // Number, name, orders, amount, share: parts of the width.
        static const QList<double> edges{0, 0.07, 0.55, 0.67, 0.87, 1};
        const QFontMetricsF metrics(m_painter.font(), &m_writer);
        for (qsizetype at = 0; at < texts.size(); ++at) {
            const double left = edges.at(at) * width();
            const double room = (edges.at(at + 1) - edges.at(at)) * width() - metrics.averageCharWidth();
            m_painter.drawText(QRectF(left, m_y, room, lineHeight()),
                               (at == 1 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter,
                               metrics.elidedText(texts.at(at), Qt::ElideRight, room));
        }
        m_y += lineHeight();
    }
    void line()
    {
        m_painter.setPen(QPen(Qt::black, dotsPerInch / 150.0));
        m_painter.drawLine(QPointF(0, m_y), QPointF(width(), m_y));
        m_y += lineHeight() / 4;
    }
    void skip() { m_y += lineHeight(); }
    void newPage()
    {
        m_writer.newPage();
        startPage();
    }
    void bars(const QList<Bar> &bars, double height)
    {
        paintBars(m_painter, QRectF(0, m_y, width(), height), bars, paperColors());
        m_y += height;
    }

private:
    void startPage()
    {
        m_y = 0;
        ++m_page;
        const QFont font = m_painter.font();
        setFont(8);
        m_painter.setPen(Qt::black);
        m_painter.drawText(
            QRectF(0, m_bottom, width(), m_painter.viewport().height() - m_bottom), Qt::AlignRight | Qt::AlignBottom,
            QStringLiteral("%1, strona %2").arg(kor::Format(kor::Clock::today(), u"Short Date")).arg(m_page));
        m_painter.setFont(font);
    }

    QPdfWriter &m_writer;
    QPainter &m_painter;
    double m_y = 0;
    double m_bottom = 0;
    int m_page = 0;
};

void writeTitles(Paper &paper)
{
    paper.setFont(9, true);
    paper.cells({QStringLiteral("Lp."), QStringLiteral("Nazwa"), QStringLiteral("Zamówień"),
                 QStringLiteral("Wartość [zł]"), QStringLiteral("Udział")});
    paper.line();
    paper.setFont(9);
}

//! The pages end with the writer.
void writePages(QIODevice &device, const ReportHeading &heading, const Report &report)
{
    QPdfWriter writer(&device);
    writer.setResolution(dotsPerInch);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter));
    writer.setTitle(heading.title);
    QPainter painter(&writer);
    Paper paper(writer, painter);
    paper.setFont(14, true);
    paper.text(heading.title);
    paper.setFont(9);
    for (const QString &parameter : heading.parameters)
        paper.text(parameter);
    paper.skip();
    if (!report.rows.isEmpty()) {
        QList<Bar> bars;
        for (const ReportRow &row : report.rows)
            bars.append({row.name, static_cast<double>(row.total), amountText(row.total)});
        const double wanted = heightOfBars(QFontMetricsF(painter.font(), &writer), bars.size());
        paper.bars(bars, std::min(wanted + 1, paper.room() * chartPart));
        paper.skip();
    }
    writeTitles(paper);
    qsizetype number = 0;
    for (const ReportRow &row : report.rows) {
        if (!paper.hasRoom(paper.lineHeight())) {
            paper.newPage();
            writeTitles(paper);
        }
        paper.cells({QString::number(++number), row.name, QString::number(row.orders), amountText(row.total),
                     shareText(row.total, report.total)});
    }
    paper.line();
    paper.setFont(9, true);
    paper.text(totalText(report));
}

} // namespace

QString amountText(qint64 grosze) { return kor::Format(static_cast<double>(grosze) / 100, u"#,##0.00"); }

QString shareText(qint64 part, qint64 whole)
{
    return whole > 0 ? kor::Format(static_cast<double>(part) / static_cast<double>(whole), u"0.0%") : QString();
}

QString totalText(const Report &report)
{
    QString text = QStringLiteral("Razem zamówień: %1, wartość: %2 zł")
                       .arg(kor::Format(static_cast<double>(report.orders), u"#,##0"), amountText(report.total));
    if (report.unknown > 0)
        text += QStringLiteral(" (bez podanej wartości: %1)").arg(report.unknown);
    return text;
}

QByteArray reportPdf(const ReportHeading &heading, const Report &report)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    writePages(bytes, heading, report);
    return bytes.data();
}

} // namespace orders
