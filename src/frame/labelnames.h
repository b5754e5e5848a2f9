// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace kor {

//! Names the controls that stand directly on a widget for screen readers: by the label that leads to them, else by the
//! title of the group box around them. Done once for all controls that are shown in one turn of the event loop, since
//! the toolkit, when it is asked for the label of one control, looks at everything beside it.
void nameByLabelsSoon(QWidget *around);

} // namespace kor
