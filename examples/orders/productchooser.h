// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue.h"
#include "foundlist.h"

#include <optional>

class QWidget;

namespace orders {

//! The products, by a part of their name or symbol.
[[nodiscard]] SearchSubject productsToSearch(const Catalogue &catalogue);

//! Lets the clerk choose a product, from those first whose name or symbol contains the text.
[[nodiscard]] std::optional<Product> chooseProduct(const Catalogue &catalogue, const QString &text, QWidget *parent);

} // namespace orders
