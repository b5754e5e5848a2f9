// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

class QColor;
class QPalette;

namespace kor {

//! A colour of 32 bits: &H00BBGGRR, or, with the top bit set, the number of a system colour, which follows the
//! palette and so the light or dark theme. A Long, as saved forms hold it.
using OLE_COLOR = int;

//! The system colours that the controls use by default.
enum SystemColor : OLE_COLOR {
    WindowBackground = -0x7FFFFFFB, //!< &H80000005, the background of fields
    WindowText = -0x7FFFFFF8,       //!< &H80000008
    ButtonFace = -0x7FFFFFF1,       //!< &H8000000F
    ButtonText = -0x7FFFFFEE,       //!< &H80000012
};

//! Whether it names a system colour.
[[nodiscard]] inline constexpr bool isSystemColor(OLE_COLOR color) { return color < 0; }

//! The colour to paint with. A system colour is looked up in the palette.
[[nodiscard]] KORDAOUC_EXPORT QColor toQColor(OLE_COLOR color, const QPalette &palette);
//! The &H00BBGGRR value of a colour; its transparency is lost.
[[nodiscard]] KORDAOUC_EXPORT OLE_COLOR fromQColor(const QColor &color);

} // namespace kor
