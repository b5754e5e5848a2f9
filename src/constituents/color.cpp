// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/fieldcolors.h"

#include <KorDaoUC/color.h>

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <array>
#include <initializer_list>

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

namespace {

//! Gives the roles a colour; a system colour keeps what the theme makes of it in each state, its greyed look included.
void setColor(QPalette &palette, std::initializer_list<QPalette::ColorRole> roles, OLE_COLOR color, QPalette theme)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        theme.setCurrentColorGroup(group);
        for (const auto role : roles)
            palette.setColor(group, role, toQColor(color, theme));
    }
}

} // namespace

void FieldColors::applyTo(QWidget *widget, const QPalette &theme) const
{
    // What the theme gives anyway stays unset, so that the field follows it. A drop-down list paints its closed face as
    // a button.
    QPalette palette;
    palette.setResolveMask(0);
    if (back != WindowBackground)
        setColor(palette, {QPalette::Base, QPalette::Button}, back, theme);
    if (fore != WindowText)
        setColor(palette, {QPalette::Text, QPalette::ButtonText}, fore, theme);
    if (isBackTransparent)
        palette.setColor(QPalette::Base, Qt::transparent);
    widget->setPalette(palette);
}

} // namespace kor
