// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/flexgrid/cellstore.h"

#include <KorDaoUC/enumerations.h>

namespace kor {

//! Where the texts of a column stand that is described with an AlignmentType.
[[nodiscard]] inline CellAlignmentType cellAlignmentOf(short alignment)
{
    switch (static_cast<AlignmentType>(alignment)) {
    case AlignmentType::Right_Justify: return CellAlignmentType::RightCenter;
    case AlignmentType::Center: return CellAlignmentType::CenterCenter;
    case AlignmentType::Left_Justify: break;
    }
    return CellAlignmentType::LeftCenter;
}

} // namespace kor
