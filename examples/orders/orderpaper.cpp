// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderpaper.h"

#include "paper.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Format>

#include <QtGui/QPagedPaintDevice>

#include <algorithm>

namespace orders {

namespace {

//! The customer on the left, and what was agreed on the right of it.
void putHeading(Paper &paper, const OrderPaper &order)
{
    const QList<PaperColumn> columns{{0.55, Qt::AlignLeft}, {0.75, Qt::AlignLeft}, {1, Qt::AlignRight}};
    paper.setFont(9, true);
    paper.cells(columns, {QStringLiteral("Zamawiający")});
    paper.setFont(9);
    for (qsizetype at = 0; at < std::max(order.customer.size(), order.facts.size()); ++at) {
        const PaperFact fact = order.facts.value(at);
        paper.cells(columns, {order.customer.value(at), fact.name, fact.text});
    }
    paper.skip();
}

void putLines(Paper &paper, const OrderPaper &order)
{
    const QList<PaperColumn> columns{{0.05, Qt::AlignRight}, {0.13, Qt::AlignLeft}, {0.46, Qt::AlignLeft},
                                     {0.55, Qt::AlignRight}, {0.62, Qt::AlignLeft}, {0.73, Qt::AlignRight},
                                     {0.84, Qt::AlignRight}, {1, Qt::AlignRight}};
    paper.setFont(8);
    paper.beginTable(columns, {QStringLiteral("Lp."), QStringLiteral("Towar"), QStringLiteral("Nazwa"),
                               QStringLiteral("Ilość"), QStringLiteral("J.m."), QStringLiteral("Cena netto"),
                               QStringLiteral("Dostawa"), QStringLiteral("Wartość netto")});
    for (const OrderPaper::Line &line : order.lines)
        paper.row(
            {line.number, line.symbol, line.name, line.quantity, line.unit, line.price, line.delivery, line.amount});
    paper.line();
}

//! The totals keep together.
void putTotals(Paper &paper, const OrderPaper &order)
{
    const QList<PaperColumn> columns{{0.76, Qt::AlignRight}, {1, Qt::AlignRight}};
    paper.setFont(9, true);
    if (paper.room() < static_cast<double>(order.totals.size()) * paper.lineHeight())
        paper.newPage();
    for (const PaperFact &total : order.totals)
        paper.cells(columns, {total.name, total.text});
    if (order.remarks.isEmpty())
        return;
    paper.skip();
    paper.text(QStringLiteral("Uwagi"));
    paper.setFont(9);
    paper.paragraph(order.remarks);
}

} // namespace

bool printOrder(QPagedPaintDevice &device, const OrderPaper &order)
{
    Paper paper(device);
    paper.setFont(9);
    for (const QString &line : order.seller)
        paper.paragraph(line);
    if (!order.seller.isEmpty())
        paper.skip();
    paper.setFont(14, true);
    paper.text(order.title);
    paper.skip();
    putHeading(paper, order);
    putLines(paper, order);
    putTotals(paper, order);
    return paper.paint(
        QStringLiteral("%1, wydruk z dnia %2").arg(order.title, kor::Format(kor::Clock::today(), u"Short Date")));
}

QByteArray orderPdf(const OrderPaper &order)
{
    return pdfOf(order.title, [&order](QPagedPaintDevice &device) { return printOrder(device, order); });
}

} // namespace orders
