// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "gridclipboard.h"

#include "messages.h"

#include <KorDaoUC/KorGrid>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <algorithm>

namespace orders {

namespace {

using Reason = kor::RefusedCell::Reason;

constexpr qsizetype mostTold = 10;
const QString title = QStringLiteral("Wklejanie");

QString said(Reason reason)
{
    switch (reason) {
    case Reason::Locked: return QStringLiteral("tej kolumny nie można zmieniać");
    case Reason::NoNumber: return QStringLiteral("to nie jest liczba");
    case Reason::NoDate: return QStringLiteral("to nie jest data");
    case Reason::NotListed: return QStringLiteral("tego nie ma na liście");
    case Reason::TooLong: return QStringLiteral("tekst jest za długi");
    case Reason::LineBreak: return QStringLiteral("tu mieści się tylko jeden wiersz tekstu");
    case Reason::Outside: break;
    }
    return QStringLiteral("dalej nie ma kolumn");
}

QString said(const KorGrid &grid, const kor::RefusedCell &cell)
{
    constexpr int longest = 30;
    QString text = QString(cell.text).replace(u'\n', u' ');
    if (text.size() > longest)
        text = text.left(longest) + u'…';
    const QString column = cell.column < grid.Cols() ? grid.TextMatrix(0, cell.column) : QString::number(cell.column);
    return QStringLiteral("wiersz %1, %2: „%3” – %4").arg(cell.row).arg(column, text, said(cell.reason));
}

QString said(const KorGrid &grid, const QList<kor::RefusedCell> &refused)
{
    QStringList lines{QStringLiteral("Komórek, których nie da się wkleić: %1").arg(refused.size())};
    for (const kor::RefusedCell &cell : refused.first(std::min(refused.size(), mostTold)))
        lines << said(grid, cell);
    if (refused.size() > mostTold)
        lines << QStringLiteral("...");
    return lines.join(u'\n');
}

} // namespace

QString copyCellsOf(const KorGrid &grid)
{
    const QString selected = grid.copiedCells();
    const bool isOne = selected.count(u'\t') == 0 && selected.count(u'\n') == 1;
    QGuiApplication::clipboard()->setText(isOne ? grid.allCells() : selected);
    return isOne ? QStringLiteral("Skopiowano wszystkie pozycje.") : QStringLiteral("Skopiowano zaznaczone komórki.");
}

QString pasteCellsInto(QWidget *parent, KorGrid &grid)
{
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty())
        return QStringLiteral("W schowku nie ma tekstu.");
    const int row = grid.Row();
    const int column = grid.Col();
    const QList<kor::RefusedCell> refused = grid.refusedCells(row, column, text);
    const auto isLocked = [](const kor::RefusedCell &cell) { return cell.reason == Reason::Locked; };
    const bool isAsked = !std::all_of(refused.begin(), refused.end(), isLocked);
    if (isAsked) {
        const QString question = said(grid, refused) + QStringLiteral("\n\nWkleić pozostałe?");
        if (ask(parent, title, question, {QStringLiteral("&Wklej pozostałe"), QStringLiteral("&Anuluj")}) != 0)
            return QStringLiteral("Nic nie wklejono.");
    }
    QList<kor::RefusedCell> missed = grid.pasteCells(row, column, text);
    // What the program computes comes out the same, mostly: then nothing was refused.
    missed.removeIf([&grid](const kor::RefusedCell &cell) {
        return cell.row < grid.Rows() && cell.column < grid.Cols() &&
               grid.TextMatrix(cell.row, cell.column) == cell.text;
    });
    if (!isAsked && !missed.isEmpty())
        warn(parent, title, said(grid, missed));
    return QStringLiteral("Wklejono ze schowka.");
}

} // namespace orders
