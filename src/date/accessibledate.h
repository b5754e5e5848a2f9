// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;
class KorDate;

namespace kor {

//! Lets screen readers know date fields: a box with a drop-down, its date as the value, open or closed.
void makeDatesAccessible();

//! Gives the inner box the name of its control, set by the host or taken from a label that has the control as buddy:
//! the box has the focus, so its name is the one that is read out.
void passNameOn(KorDate *control, QWidget *box);

} // namespace kor
