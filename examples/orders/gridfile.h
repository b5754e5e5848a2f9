// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

class KorGrid;
class QWidget;

namespace orders {

//! What a grid is saved as.
struct GridFile {
    QString title;               //!< of the messages, and of the sheet
    QString name;                //!< that is offered, without an ending
    QHash<int, QVariant> totals; //!< a last line, by column
};

//! Whether this program was built with the export of grids.
[[nodiscard]] bool canSaveGrids();

//! Asks where, and saves what the grid shows there. What to say of it in passing, "" for nothing.
[[nodiscard]] QString askAndSaveGrid(QWidget *parent, const KorGrid &grid, const GridFile &file);

//! Saves what the grid shows, as the file's name says. False when that failed, which the clerk has been told by then,
//! or was stopped.
bool saveGrid(QWidget *parent, const KorGrid &grid, const GridFile &file, const QString &fileName);

} // namespace orders
