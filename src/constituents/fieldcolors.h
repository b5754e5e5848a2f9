// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/color.h>

class QPalette;
class QWidget;

namespace kor {

//! The two colours of a field, which start as those of the window unless it has its own. System colours are looked up
//! anew at each applyTo(), so call it again when the theme has changed.
struct FieldColors {
    OLE_COLOR back = WindowBackground;
    OLE_COLOR fore = WindowText;
    bool isBackTransparent = false;

    //! The theme is the palette of the control around the field, which hears of a change before what lies between.
    void applyTo(QWidget *widget, const QPalette &theme) const;
};

} // namespace kor
