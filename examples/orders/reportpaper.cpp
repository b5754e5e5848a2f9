// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "reportpaper.h"

#include "barchart.h"
#include "paper.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Format>

#include <QtGui/QPagedPaintDevice>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <algorithm>

namespace orders {

namespace {

constexpr double chartPart = 0.4; // of the height of a page, at most

//! On paper dark is dark, whatever the screen looks like.
QPalette paperColors()
{
    QPalette colors;
    colors.setColor(QPalette::WindowText, Qt::black);
    colors.setColor(QPalette::Highlight, QColor(0x3b, 0x6e, 0xa8));
    return colors;
}

bool paintReport(QPagedPaintDevice &device, const ReportHeading &heading, const Report &report)
{
    Paper paper(device);
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
        const double wanted = heightOfBars(paper.metrics(), bars.size());
        paper.draw(std::min(wanted + 1, paper.room() * chartPart),
                   [bars](QPainter &painter, const QRectF &place) { paintBars(painter, place, bars, paperColors()); });
        paper.skip();
    }
    const QList<PaperColumn> columns{{0.07, Qt::AlignRight},
                                     {0.55, Qt::AlignLeft},
                                     {0.67, Qt::AlignRight},
                                     {0.87, Qt::AlignRight},
                                     {1, Qt::AlignRight}};
    paper.beginTable(columns, {QStringLiteral("Lp."), QStringLiteral("Nazwa"), QStringLiteral("Zamówień"),
                               QStringLiteral("Wartość [zł]"), QStringLiteral("Udział")});
    qsizetype number = 0;
    for (const ReportRow &row : report.rows)
        paper.row({QString::number(++number), row.name, countText(row.orders), amountText(row.total),
                   shareText(row.total, report.total)});
    paper.line();
    paper.setFont(9, true);
    paper.text(totalText(report));
    return paper.paint(kor::Format(kor::Clock::today(), u"Short Date"));
}

} // namespace

QString amountText(qint64 grosze) { return kor::Format(static_cast<double>(grosze) / 100, u"#,##0.00"); }

QString countText(qint64 count) { return kor::Format(static_cast<double>(count), u"#,##0"); }

QString shareText(qint64 part, qint64 whole)
{
    return whole > 0 ? kor::Format(static_cast<double>(part) / static_cast<double>(whole), u"0.0%") : QString();
}

QString totalText(const Report &report)
{
    QString text =
        QStringLiteral("Razem zamówień: %1, wartość: %2 zł").arg(countText(report.orders), amountText(report.total));
    if (report.unknown > 0)
        text += QStringLiteral(" (bez podanej wartości: %1)").arg(report.unknown);
    return text;
}

QByteArray reportPdf(const ReportHeading &heading, const Report &report)
{
    return pdfOf(heading.title, [&](QPagedPaintDevice &device) { return paintReport(device, heading, report); });
}

} // namespace orders
