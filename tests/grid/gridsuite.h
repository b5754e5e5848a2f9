// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/cellssuite.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

namespace kor::test {

//! A grid on a stage.
class GridSuite : public CellsSuite<KorGrid>
{
protected:
    // The columns of orderColumns().
    enum Column { Product = 1, Price, Unit, Delivery, Store, Exact, Remark, Number };

    GridSuite() : CellsSuite({"TxtBox", "TxtMBox", "KorNum", "KorDate", "KorCmb", "KorClick"}) {}

    void setUp(int width = 640, int height = 220)
    {
        CellsSuite::setUp(width, height);
        log->ignore({QStringLiteral("MouseMove")});
    }

    //! The lines of an order: product, price with its value column, unit, delivery, store, the hidden exact price, a
    //! remark that wraps, and a locked running number.
    void orderColumns(int rows = 6)
    {
        const QString units = QStringLiteral("LIST S;sztuka|K;karton|P;paleta");
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
        grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1200, 1, false, QStringLiteral("#,##0.00"), 0,
                        0, QString(), QString(), Exact);
        grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 1000, 0, false, QString(), 0, 0, units,
                        QStringLiteral("jednostki"));
        grid->AddColumn(QStringLiteral("DATE"), QStringLiteral("Dostawa"), 1300, 2);
        grid->AddColumn(QStringLiteral("CLICK"), QStringLiteral("Magazyn"), 1300, 0);
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Cena dokładna"), 0, 0);
        grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Uwagi"), 1300, 0, false, QString(), 0, 0, QString(),
                        QString(), 0, true);
        grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Lp."), 600, 1, true);
        grid->setRows(rows);
        settle();
        (void)log->take();
    }

    //! The texts of a row's data cells, "|" between them.
    [[nodiscard]] QString row(int row) const
    {
        QStringList texts;
        for (int column = 1; column < grid->Cols(); ++column)
            texts << grid->TextMatrix(row, column);
        return texts.join(u'|');
    }
    //! The texts of a column's data cells.
    [[nodiscard]] QString column(int column) const
    {
        QStringList texts;
        for (int row = 1; row < grid->Rows(); ++row)
            texts << grid->TextMatrix(row, column);
        return texts.join(u'|');
    }
    [[nodiscard]] QString place() const { return QStringLiteral("%1,%2").arg(grid->Row()).arg(grid->Col()); }

    QPointer<KorGrid> &grid = control;
};

} // namespace kor::test
