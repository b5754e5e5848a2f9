// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formplace.h"

#include "constituents/twips.h"
#include "forms/formmirror.h"
#include "frame/settings.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/usercontrol.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace kor {

namespace {

constexpr double furthestTwips = 1e6; // some 17 metres

//! One of the four numbers of a place.
struct Side {
    QString key;
    int (QRect::*pixels)() const;
    void (QRect::*setPixels)(int);
    int (Resolution::*toPixels)(Twips) const;
    Twips (Resolution::*toTwips)(double) const;
};

const std::array sides{
    Side{QStringLiteral("Left"), &QRect::x, &QRect::moveLeft, &Resolution::toPixelsX, &Resolution::toTwipsX},
    Side{QStringLiteral("Top"), &QRect::y, &QRect::moveTop, &Resolution::toPixelsY, &Resolution::toTwipsY},
    Side{QStringLiteral("Width"), &QRect::width, &QRect::setWidth, &Resolution::toPixelsX, &Resolution::toTwipsX},
    Side{QStringLiteral("Height"), &QRect::height, &QRect::setHeight, &Resolution::toPixelsY, &Resolution::toTwipsY},
};

std::span<const Side> sidesOf(FormPlace::Extent extent)
{
    return extent == FormPlace::Extent::SizeOnly ? std::span<const Side>(sides).last(2) : std::span<const Side>(sides);
}

} // namespace

QStringList FormPlace::keys(Extent extent)
{
    QStringList all;
    for (const Side &side : sidesOf(extent))
        all.append(side.key);
    return all;
}

FormPlace::FormPlace(const PropertyBag &settings, Extent extent) : m_extent(extent)
{
    for (const Side &side : sidesOf(extent)) {
        if (!settings.contains(side.key))
            continue;
        const QVariant value = settings.ReadProperty(side.key);
        takeSetting(side.key, [&] {
            if (!(std::abs(CDbl(value)) <= furthestTwips))
                throw RunTimeError(ErrorNumber::InvalidPropertyValue);
        });
        m_settings.append(side.key, value);
    }
}

QRect FormPlace::inPixels(const Resolution &resolution, QRect place) const
{
    for (const Side &side : sidesOf(m_extent)) {
        if (m_settings.contains(side.key))
            (place.*side.setPixels)((resolution.*side.toPixels)(Twips(CDbl(m_settings.ReadProperty(side.key)))));
    }
    return place;
}

void FormPlace::applyToForm(QWidget &window)
{
    window.resize(inPixels(Resolution(&window), window.geometry()).size());
    m_placed = placeOf(window);
}

void FormPlace::apply(QWidget &widget, FormMirror &mirror, const Resolution &resolution)
{
    const auto sizes = sidesOf(Extent::SizeOnly);
    const bool isSized =
        std::all_of(sizes.begin(), sizes.end(), [this](const Side &side) { return m_settings.contains(side.key); });
    m_mirror = &mirror;
    mirror.place(&widget, inPixels(resolution, QRect(QPoint(0, 0), isSized ? QSize() : widget.sizeHint())));
    m_placed = placeOf(widget);
}

QRect FormPlace::placeOf(const QWidget &widget) const
{
    const auto *control = qobject_cast<const UserControl *>(&widget);
    QSize size = control ? control->givenSize() : widget.size();
    if (widget.isWindow() && (widget.isMaximized() || widget.isFullScreen()))
        size = widget.normalGeometry().size(); // the form itself is as large as it was
    return {m_mirror ? m_mirror->position(widget) : widget.pos(), size};
}

void FormPlace::write(const QWidget &widget, PropertyBag &settings) const
{
    // Inside another widget, a page of tabs say, a form has the size that it is given there.
    const bool isGiven = m_extent == Extent::SizeOnly && !widget.isWindow();
    const QRect now = isGiven ? m_placed : placeOf(widget);
    for (const Side &side : sidesOf(m_extent)) {
        const int pixels = (now.*side.pixels)();
        if (pixels != (m_placed.*side.pixels)())
            settings.append(side.key, (Resolution(&widget).*side.toTwips)(pixels).rounded());
        else if (m_settings.contains(side.key))
            settings.append(side.key, m_settings.ReadProperty(side.key));
    }
}

} // namespace kor
