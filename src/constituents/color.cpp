// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/fieldcolors.h"

#include <KorDaoUC/color.h>

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <array>

namespace kor {

namespace {

// In the order of the classic system colour numbers.
constexpr std::array systemRoles{
    QPalette::Mid,             // 0 scroll bar
    QPalette::Dark,            // 1 desktop
    QPalette::Highlight,       // 2 active caption
    QPalette::Mid,             // 3 inactive caption
    QPalette::Button,          // 4 menu
    QPalette::Base,            // 5 window background
    QPalette::Shadow,          // 6 window frame
    QPalette::ButtonText,      // 7 menu text
    QPalette::Text,            // 8 window text
    QPalette::HighlightedText, // 9 caption text
    QPalette::Button,          // 10 active border
    QPalette::Button,          // 11 inactive border
    QPalette::Mid,             // 12 application workspace
    QPalette::Highlight,       // 13 highlight
    QPalette::HighlightedText, // 14 highlighted text
    QPalette::Button,          // 15 button face
    QPalette::Dark,            // 16 button shadow
    QPalette::PlaceholderText, // 17 disabled text
    QPalette::ButtonText,      // 18 button text
    QPalette::WindowText,      // 19 inactive caption text
    QPalette::Light,           // 20 button highlight
    QPalette::Shadow,          // 21 3-D dark shadow
    QPalette::Midlight,        // 22 3-D light
    QPalette::ToolTipText,     // 23 tool tip text
    QPalette::ToolTipBase,     // 24 tool tip background
};

} // namespace

QColor toQColor(OLE_COLOR color, const QPalette &palette)
{
    if (isSystemColor(color)) {
        const auto number = static_cast<std::size_t>(color & 0xFF);
        return palette.color(number < systemRoles.size() ? systemRoles[number] : QPalette::Button);
    }
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

OLE_COLOR fromQColor(const QColor &color) { return color.red() | (color.green() << 8) | (color.blue() << 16); }

void FieldColors::applyTo(QWidget *widget, const QPalette &theme) const
{
    // What the theme gives anyway stays unset, so that the field follows it, its greyed look included.
    QPalette palette;
    palette.setResolveMask(0);
    if (back != WindowBackground)
        palette.setColor(QPalette::Base, toQColor(back, theme));
    if (fore != WindowText)
        palette.setColor(QPalette::Text, toQColor(fore, theme));
    // A drop-down list paints its closed face as a button.
    if (back != WindowBackground)
        palette.setColor(QPalette::Button, toQColor(back, theme));
    if (fore != WindowText)
        palette.setColor(QPalette::ButtonText, toQColor(fore, theme));
    if (isBackTransparent)
        palette.setColor(QPalette::Base, Qt::transparent);
    widget->setPalette(palette);
}

} // namespace kor
