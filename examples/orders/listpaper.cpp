// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "listpaper.h"

#include "listrows.h"
#include "paper.h"
#include "reportpaper.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Format>

#include <QtGui/QPagedPaintDevice>

namespace orders {

namespace {

const QString title = QStringLiteral("Lista zamówień");

bool paintList(QPagedPaintDevice &device, const QList<ListedOrder> &orders, const QStringList &limits,
               const QString &sums, const MayGoOn &mayGoOn)
{
    // Laying the rows out and painting them are two halves of the work.
    const qint64 all = 2 * orders.size();
    const MayGoOn mayLayOut = [&](qint64 done, qint64) { return mayGoOn(done, all); };
    Paper paper(device);
    paper.setFont(14, true);
    paper.text(title);
    paper.setFont(8);
    for (const QString &limit : limits)
        paper.paragraph(limit);
    paper.skip();
    const QList<PaperColumn> columns{{0.06, Qt::AlignRight}, {0.20, Qt::AlignLeft},  {0.30, Qt::AlignLeft},
                                     {0.59, Qt::AlignLeft},  {0.72, Qt::AlignRight}, {0.86, Qt::AlignRight},
                                     {1, Qt::AlignRight}};
    paper.beginTable(columns,
                     {QStringLiteral("Lp."), QStringLiteral("Numer"), QStringLiteral("Data"), QStringLiteral("Klient"),
                      QStringLiteral("Netto [zł]"), QStringLiteral("Wartość [zł]"), QStringLiteral("Do zapłaty [zł]")});
    LongWork work(mayLayOut, all);
    qsizetype place = 0;
    for (const ListedOrder &order : orders) {
        QStringList texts{QString::number(++place)};
        for (const ListColumn column : {ListColumn::Number, ListColumn::Date, ListColumn::Customer, ListColumn::Net,
                                        ListColumn::Total, ListColumn::Due})
            texts << textOf(order, column);
        paper.row(texts);
        if (!work.step())
            return false;
    }
    paper.line();
    paper.setFont(8, true);
    paper.paragraph(sums);
    return paper.paint(kor::Format(kor::Clock::today(), u"Short Date"),
                       [&](qint64 page, qint64 pages) { return mayGoOn(all / 2 + all / 2 * page / pages, all); });
}

} // namespace

QString sumText(const QList<ListedOrder> &orders, qint64 all)
{
    if (orders.isEmpty())
        return QStringLiteral("Nie ma takich zamówień.");
    const OrderSums sums = sumsOf(orders);
    return QStringLiteral("Zamówień: %1 z %2, netto: %3 zł, wartość: %4 zł, do zapłaty: %5 zł")
        .arg(countText(orders.size()), countText(all), amountText(sums.net), amountText(sums.total),
             amountText(sums.due));
}

QByteArray listPdf(const QList<ListedOrder> &orders, const QStringList &limits, const QString &sums,
                   const MayGoOn &mayGoOn)
{
    return pdfOf(title, [&](QPagedPaintDevice &device) { return paintList(device, orders, limits, sums, mayGoOn); });
}

} // namespace orders
