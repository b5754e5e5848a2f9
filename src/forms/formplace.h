// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/propertybag.h>

#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QStringList>

class QWidget;

namespace kor {

class FormMirror;
class Resolution;

//! The place of a widget on its form: what the file said in twips, and the pixels that became of it. Twips are finer
//! than pixels, and a control may take another size than it was given, so a widget that nobody moved or sized is saved
//! with the numbers it came with.
class FormPlace
{
public:
    //! A form has its size in the file; where its window stands is the window system's business.
    enum class Extent { PlaceAndSize, SizeOnly };

    //! The keys of a place.
    [[nodiscard]] static QStringList keys(Extent extent);

    //! Takes the place out of the settings. Error 13 for what is no number, 380 for what is beyond any screen.
    FormPlace(const PropertyBag &settings, Extent extent);

    //! Sizes the window of a form. What the file does not say is left to the window.
    void applyToForm(QWidget &window);
    //! Moves and sizes a widget on a form. What the file does not say is left to the widget.
    void apply(QWidget &widget, FormMirror &mirror, const Resolution &resolution);
    //! Writes the place of the widget as it is now.
    void write(const QWidget &widget, PropertyBag &settings) const;

private:
    [[nodiscard]] QRect inPixels(const Resolution &resolution, QRect place) const;
    [[nodiscard]] QRect placeOf(const QWidget &widget) const;

    Extent m_extent;
    PropertyBag m_settings;
    QPointer<FormMirror> m_mirror; //!< of the frame around a widget; a form has none
    QRect m_placed;
};

} // namespace kor
