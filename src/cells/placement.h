// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace kor {

//! A cell of a data grid by its row and column; data starts at 1.
struct CellAddress {
    int row = 0;
    int column = 0;

    bool operator==(const CellAddress &) const = default;
};

//! Where a cell is drawn, in twips from the edges of the grid surface.
struct CellBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

//! Where an editor lies, in twips from the edges of the composite. Without a height the editor has its own.
struct EditorBox {
    float left = 0;
    float top = 0;
    int width = 0;
    std::optional<int> height;

    bool operator==(const EditorBox &) const = default;
};

//! The place of the grid surface in its composite, in twips.
struct SurfacePlace {
    float left = 0;
    float top = 0;
};

//! Exactly over the cell; the editor keeps its own height.
[[nodiscard]] EditorBox placeOver(const CellBox &cell, SurfacePlace surface);

//! How high an editor that lies inside a cell is.
struct InsetHeight {
    bool isOfDate = false;
    int rowHeightMin = 0; //!< twips
};

//! Inside the cell's lines, which stay in sight around it: nothing for a cell too small to hold an editor. Error 6
//! where the sizes leave the range of a Long.
[[nodiscard]] std::optional<EditorBox> placeInside(const CellBox &cell, SurfacePlace surface, InsetHeight height);

} // namespace kor
