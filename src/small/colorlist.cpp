// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/colorlist.h"

namespace kor {

namespace {

struct NamedColor {
    const char16_t *name;
    int color;
};

// clang-format off
constexpr std::array<NamedColor, ColorList::count> entries{{
    {u"(domyślny)",     ColorList::defaultColor},
    {u"Czarny",         0x000000},
    {u"Niebieski",      0x800000},
    {u"Zielony",        0x008000},
    {u"Błękitny",       0x808000},
    {u"Czerwony",       0x000080},
    {u"Fioletowy",      0x800080},
    {u"Brązowy",        0x008080},
    {u"Szary",          0xC0C0C0},
    {u"Ciemnoszary",    0x808080},
    {u"Jasnoniebieski", 0xFF0000},
    {u"Jasnozielony",   0x00FF00},
    {u"Turkusowy",      0xFFFF00},
    {u"Jasnoczerwony",  0x0000FF},
    {u"Różowy",         0xFF00FF},
    {u"Żółty",          0x00FFFF},
    {u"Biały",          0xFFFFFF},
    {u"Inny kolor...",  0x000000},
}};
// clang-format on

} // namespace

QStringList ColorList::names()
{
    QStringList all;
    for (const NamedColor &entry : entries)
        all << QString::fromUtf16(entry.name);
    return all;
}

int ColorList::color(int entry) const
{
    return entry == otherEntry ? m_other : entries.at(static_cast<std::size_t>(entry)).color;
}

std::optional<int> ColorList::entryOf(int color) const
{
    for (int entry = 0; entry < count; ++entry) {
        if (this->color(entry) == color)
            return entry;
    }
    return std::nullopt;
}

} // namespace kor
