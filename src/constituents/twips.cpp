// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/twips.h"

#include <QtWidgets/QWidget>

namespace kor {

namespace {
constexpr double twipsPerInch = 1440.0;
}

Twips toTwipsX(const QWidget *widget, double pixels) { return Twips(pixels * twipsPerInch / widget->logicalDpiX()); }
Twips toTwipsY(const QWidget *widget, double pixels) { return Twips(pixels * twipsPerInch / widget->logicalDpiY()); }

int toPixelsX(const QWidget *widget, Twips length)
{
    return qRound(length.count() * widget->logicalDpiX() / twipsPerInch);
}

int toPixelsY(const QWidget *widget, Twips length)
{
    return qRound(length.count() * widget->logicalDpiY() / twipsPerInch);
}

} // namespace kor
