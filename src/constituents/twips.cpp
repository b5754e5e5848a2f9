// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/twips.h"

#include <QtWidgets/QWidget>

namespace kor {

namespace {
constexpr double twipsPerInch = 1440.0;
}

double twipsPerPixelX(const QWidget *widget) { return twipsPerInch / widget->logicalDpiX(); }
double twipsPerPixelY(const QWidget *widget) { return twipsPerInch / widget->logicalDpiY(); }
int toPixelsX(const QWidget *widget, double twips) { return qRound(twips / twipsPerPixelX(widget)); }
int toPixelsY(const QWidget *widget, double twips) { return qRound(twips / twipsPerPixelY(widget)); }

} // namespace kor
