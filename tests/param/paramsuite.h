// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/cellssuite.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/Variant>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

namespace kor::test {

//! A sheet on a stage.
class ParamSuite : public CellsSuite<KorParam>
{
protected:
    // The rows of report().
    enum Row { Text = 1, Number, Date, Combo, Click, Other };

    ParamSuite() : CellsSuite({"TxtBox", "KorNum", "KorDat", "KorCmb", "KorClk"}) {}

    void setUp(int width = 420, int height = 240) { CellsSuite::setUp(width, height); }

    //! A parameter of each kind, and one of a kind that there is not.
    void report()
    {
        add("TEXT", "Tytuł", QStringLiteral("Zestawienie"));
        sheet->AddParam(QStringLiteral("Kwota od"), QStringLiteral("kwota"), QStringLiteral("NUMBER"), 1234.5,
                        QStringLiteral("Double"), 0, QStringLiteral("z.kwota"), QString(), QString(), 0, 0, QString(),
                        QString(), QStringLiteral("#,##0.00"));
        add("DATE", "Od dnia", QDate(2026, 11, 1));
        sheet->AddParam(QStringLiteral("Klient"), QStringLiteral("klient"), QStringLiteral("COMBO"), 7, QString(), 0,
                        QStringLiteral("z.klient"), QStringLiteral("LIST 5;Abakus|7;Bartek|9;Celina"),
                        QStringLiteral("(wszyscy)"), 0, 0, QString(), QStringLiteral("klienci"));
        sheet->AddParam(QStringLiteral("Magazyn"), QStringLiteral("magazyn"), QStringLiteral("CLICK"), 3, QString(), 0,
                        QString(), QString(), QString(), 0, 0, QStringLiteral("Gdynia"));
        add("INNY", "Uwaga", QStringLiteral("bez edytora"));
        settle();
        (void)log->take();
    }
    void add(const char *kind, const char *name, const QVariant &value = missing())
    {
        sheet->AddParam(QString::fromUtf8(name), QString::fromUtf8(name).left(3).toLower(), QString::fromLatin1(kind),
                        value);
    }

    //! The text of a cell, hidden ones too.
    [[nodiscard]] QString cell(int row, int column) const
    {
        if (row == 0)
            return view()->model()->headerData(column - 1, Qt::Horizontal).toString();
        return view()->model()->index(row - 1, column - 1).data().toString();
    }
    //! The value of a row.
    [[nodiscard]] QPoint inWindow(int row, int column = 2) const { return CellsSuite::inWindow(row, column); }
    void click(int row, int column = 2) { CellsSuite::click(row, column); }
    void enter()
    {
        sheet->setFocus(Qt::TabFocusReason);
        settle();
    }
    void leave()
    {
        stage->button()->setFocus();
        settle();
    }
    //! As a host reads the parameters. Without one that is open, nothing closes by it.
    [[nodiscard]] QString shown(int row) const { return cell(row, 2); }
    [[nodiscard]] QVariant valueOf(int row)
    {
        sheet->setRow(row);
        return sheet->ParValue();
    }
    //! The shown values of all rows.
    [[nodiscard]] QString allShown() const
    {
        QStringList texts;
        for (int row = 1; row < sheet->Rows(); ++row)
            texts << shown(row);
        return texts.join(u'|');
    }

    QPointer<KorParam> &sheet = control;
};

} // namespace kor::test
