// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/flexgrid/flexgrid.h"
#include "support/stage.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

namespace kor::test {

//! A grid in an open window: 20 rows and 6 columns of titles and cells "row,column", 12 rows of which are shown whole
//! and one in part.
class GridStage
{
public:
    GridStage()
    {
        grid->setRows(20);
        grid->setCols(6);
        for (int row = 0; row < 20; ++row) {
            for (int column = 0; column < 6; ++column)
                grid->setTextMatrix(row, column, QStringLiteral("%1,%2").arg(row).arg(column));
        }
        grid->setColWidth(0, 315);
        listen();
        stage.resize(600, 360);
    }

    [[nodiscard]] bool open() { return stage.open() && (grid->setFocus(), settle(), grid->hasFocus()); }
    //! What was raised since the last call, in one line.
    [[nodiscard]] QString take() { return std::exchange(m_log, {}).join(QLatin1Char(' ')); }
    //! The current cell, and the selection's other corner where it is another one.
    [[nodiscard]] QString cursor() const
    {
        const QString cell = QStringLiteral("%1,%2").arg(grid->Row()).arg(grid->Col());
        if (grid->Row() == grid->RowSel() && grid->Col() == grid->ColSel())
            return cell;
        return cell + QStringLiteral(" to %1,%2").arg(grid->RowSel()).arg(grid->ColSel());
    }
    [[nodiscard]] QPoint middle(int row, int column) const { return grid->cellRect(row, column).center(); }
    void press(int row, int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(grid->viewport(), Qt::LeftButton, modifiers, middle(row, column));
    }
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, modifiers, middle(row, column));
    }
    //! Moves the mouse with the left button held down, as the toolkit tells it.
    void drag(const QPoint &to)
    {
        QMouseEvent move(QEvent::MouseMove, to, grid->viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(grid->viewport(), &move);
    }

    Stage stage;
    FlexGrid *grid = stage.place(new FlexGrid(&stage), 540, 266);

private:
    void listen()
    {
        const auto log = [this](const QString &event) { m_log << event; };
        const auto cell = [this] { return QStringLiteral("(%1,%2)").arg(grid->Row()).arg(grid->Col()); };
        QObject::connect(grid, &FlexGrid::LeaveCell, grid, [=] { log(QStringLiteral("LeaveCell") + cell()); });
        QObject::connect(grid, &FlexGrid::EnterCell, grid, [=] { log(QStringLiteral("EnterCell") + cell()); });
        QObject::connect(grid, &FlexGrid::RowColChange, grid, [=] { log(QStringLiteral("RowColChange")); });
        QObject::connect(grid, &FlexGrid::SelChange, grid, [=] { log(QStringLiteral("SelChange")); });
        QObject::connect(grid, &FlexGrid::KeyDown, grid,
                         [=](int &code, int &shift) { log(QStringLiteral("KeyDown(%1,%2)").arg(code).arg(shift)); });
        QObject::connect(grid, &FlexGrid::KeyPress, grid,
                         [=](int &ascii) { log(QStringLiteral("KeyPress(%1)").arg(ascii)); });
        QObject::connect(grid, &FlexGrid::KeyUp, grid,
                         [=](int &code, int &shift) { log(QStringLiteral("KeyUp(%1,%2)").arg(code).arg(shift)); });
        const auto mouse = [this, log](const char *name) {
            return [=, this](int &button, int &shift, float &, float &) {
                log(QStringLiteral("%1(%2,%3 at %4,%5)")
                        .arg(QLatin1String(name))
                        .arg(button)
                        .arg(shift)
                        .arg(grid->MouseRow())
                        .arg(grid->MouseCol()));
            };
        };
        QObject::connect(grid, &FlexGrid::MouseDown, grid, mouse("MouseDown"));
        QObject::connect(grid, &FlexGrid::MouseUp, grid, mouse("MouseUp"));
        QObject::connect(grid, &FlexGrid::Click, grid, [=] { log(QStringLiteral("Click")); });
        QObject::connect(grid, &FlexGrid::DblClick, grid, [=] { log(QStringLiteral("DblClick")); });
        QObject::connect(grid, &FlexGrid::Scroll, grid, [=] { log(QStringLiteral("Scroll")); });
        QObject::connect(grid, &FlexGrid::ColumnResized, grid,
                         [=](int column) { log(QStringLiteral("ColumnResized(%1)").arg(column)); });
    }

    QStringList m_log;
    QAbstractItemModelTester m_tester{grid->model()};
};

} // namespace kor::test
