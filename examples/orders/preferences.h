// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "paymentterms.h"

#include <optional>

class QSettings;

namespace orders {

//! What a desk wants otherwise than others.
struct Preferences {
    static constexpr int mostDays = 90;

    QString seller;                    //!< name and address for what is printed, line by line
    QString paymentTerms = usualTerms; //!< of a new order
    int deliveryDays = 0;              //!< from a new order to its delivery; 0: not agreed yet
    int vat = 23;                      //!< of a new product
    std::optional<int> unsavedColor;   //!< behind the number of an order with changes; &HBBGGRR
    QString folder;                    //!< in which files are offered; "": that of documents

    bool operator==(const Preferences &) const = default;
};

//! What can't be used of the settings is as it is for a new desk.
[[nodiscard]] Preferences preferencesIn(const QSettings &settings);
void keepPreferences(QSettings &settings, const Preferences &preferences);

} // namespace orders
