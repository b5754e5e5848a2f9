// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/twips.h"

#include <QtWidgets/QWidget>

namespace kor {

namespace {

constexpr double twipsPerInch = 1440.0;

Twips toTwips(double pixels, int dots) { return Twips(pixels * twipsPerInch / dots); }
int toPixels(Twips length, int dots) { return qRound(length.count() * dots / twipsPerInch); }

} // namespace

Resolution::Resolution(const QWidget *widget) : m_dotsX(widget->logicalDpiX()), m_dotsY(widget->logicalDpiY()) {}

Twips Resolution::toTwipsX(double pixels) const { return toTwips(pixels, m_dotsX); }
Twips Resolution::toTwipsY(double pixels) const { return toTwips(pixels, m_dotsY); }
int Resolution::toPixelsX(Twips length) const { return toPixels(length, m_dotsX); }
int Resolution::toPixelsY(Twips length) const { return toPixels(length, m_dotsY); }

Twips toTwipsX(const QWidget *widget, double pixels) { return toTwips(pixels, widget->logicalDpiX()); }
Twips toTwipsY(const QWidget *widget, double pixels) { return toTwips(pixels, widget->logicalDpiY()); }
int toPixelsX(const QWidget *widget, Twips length) { return toPixels(length, widget->logicalDpiX()); }
int toPixelsY(const QWidget *widget, Twips length) { return toPixels(length, widget->logicalDpiY()); }

} // namespace kor
