// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class KorGrid;
class QWidget;

namespace orders {

//! Puts the selected cells on the clipboard, as spreadsheets have them; all of them while only one is selected. What
//! to say of it in passing.
QString copyCellsOf(const KorGrid &grid);

//! Pastes what is on the clipboard from the current cell on. What cannot be pasted is told before anything is changed,
//! and the clerk decides whether to paste the others. What to say of it in passing.
QString pasteCellsInto(QWidget *parent, KorGrid &grid);

} // namespace orders
