// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace orders {

class OrderWindow;

//! Works through the program like a clerk and leaves a PNG file of every window in the folder: the form, an open list,
//! the message of a number out of its range, the lines, the choice of a product, the search, customers, products and
//! the question about changes. Changes no saved order. False when a file can't be written.
[[nodiscard]] bool takePictures(OrderWindow &window, const QString &folder);

} // namespace orders
