// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/propertybag.h>

#include <QtCore/QRect>

class QWidget;

namespace kor {

//! The place of a widget on its form: what the file said in twips, and the pixels that became of it. Twips are finer
//! than pixels, so a widget that was not moved is saved with the numbers it came with.
class FormPlace
{
public:
    //! A form has its size in the file; where its window stands is the window system's business.
    enum class Extent { PlaceAndSize, SizeOnly };

    //! Takes the place out of the settings. Error 13 for what is no number, 380 for what is beyond any screen.
    FormPlace(const PropertyBag &settings, Extent extent);

    //! Moves and sizes the widget. What the file does not say is left to the widget.
    void apply(QWidget &widget);
    //! Writes the place of the widget as it is now.
    void write(const QWidget &widget, PropertyBag &settings) const;

private:
    Extent m_extent;
    PropertyBag m_settings;
    QRect m_placed;
};

} // namespace kor
