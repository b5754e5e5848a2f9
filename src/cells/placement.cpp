// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/placement.h"

#include <KorDaoUC/runtimeerror.h>

#include <limits>

namespace kor {

namespace {

constexpr int inset = 30;    // the cell's lines show around the editor
constexpr int highRow = 315; // from here on a row is higher than one line
constexpr int dateHeightInHighRow = 255;

int lessInset(int size)
{
    if (size < std::numeric_limits<int>::min() + inset)
        throw RunTimeError(ErrorNumber::Overflow);
    return size - inset;
}

} // namespace

EditorBox placeOver(const CellBox &cell, SurfacePlace surface)
{
    return {surface.left + static_cast<float>(cell.left), surface.top + static_cast<float>(cell.top), cell.width,
            std::nullopt};
}

std::optional<EditorBox> placeInside(const CellBox &cell, SurfacePlace surface, InsetHeight height)
{
    const int width = lessInset(cell.width);
    const int inside = lessInset(cell.height);
    if (width <= 0 || inside <= 0)
        return std::nullopt;
    // Kept: in high rows a date stays one line high, while all other editors fill their cell
    const bool isLow = height.isOfDate && height.rowHeightMin > highRow;
    return EditorBox{surface.left + static_cast<float>(cell.left) + inset,
                     surface.top + static_cast<float>(cell.top) + inset, width, isLow ? dateHeightInHighRow : inside};
}

} // namespace kor
