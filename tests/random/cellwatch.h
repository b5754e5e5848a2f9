// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/UserControl>

#include <QtCore/QMap>
#include <QtCore/QPointer>
#include <QtCore/QString>

#include <utility>

class KorGrid;
class KorParam;

namespace kor::test {

//! What is known of a step before its end is looked at.
struct StepTaken {
    bool isUsersAlone = false; //!< no handler and no program had a hand in it
    bool isOne = false;        //!< nothing was typed ahead of it, nothing chosen in a list first
    bool mayLeave = false;     //!< it moves about, and types nothing into the field that it leaves
    bool givesBack = false;    //!< Escape: the cell gets its old text back
    bool hasMessage = false;   //!< the user was told something
};

//! A control whose cells are edited in place, seen from outside, by names and children: what the user sees in the
//! cells, and in the editor that lies over one of them.
class CellWatch
{
public:
    explicit CellWatch(UserControl *control) : m_control(control) {}

    //! Whether the control has cells at all.
    [[nodiscard]] static bool isFor(const UserControl *control);
    //! Gives a fresh control something to edit.
    static void furnish(UserControl *control);

    void remember();
    //! What is wrong after a step, compared with what was remembered.
    [[nodiscard]] QString lookAt(const StepTaken &step, bool hasOwnColumns) const;

private:
    using Cell = std::pair<int, int>; //!< row and column
    struct Editor {
        QPointer<const QWidget> widget;
        Cell cell;
        QString text;
    };
    struct Look {
        int rows = 0;
        int columns = 0;
        Cell current;
        Editor editor;
        QMap<Cell, QString> cells;
    };

    static void furnishGrid(KorGrid &columns);
    static void furnishSheet(KorParam &sheet);
    [[nodiscard]] Look look() const;
    [[nodiscard]] QList<const QWidget *> openEditors() const;
    [[nodiscard]] QString textOf(Cell cell) const;
    [[nodiscard]] QString lookAtEditor(const Look &now, const StepTaken &step) const;
    [[nodiscard]] QString lookAtParameter(const Editor &editor) const;
    [[nodiscard]] QString lookAtLeft(const Look &now, const StepTaken &step) const;
    [[nodiscard]] QString lookAtCells(const Look &now, const StepTaken &step, bool hasOwnColumns) const;

    QPointer<UserControl> m_control;
    Look m_before;
};

} // namespace kor::test
