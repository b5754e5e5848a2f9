// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "preferences.h"

#include "vatrates.h"

#include <QtCore/QSettings>

namespace orders {

namespace {

const QString sellerKey = QStringLiteral("settings/seller");
const QString termsKey = QStringLiteral("settings/paymentTerms");
const QString daysKey = QStringLiteral("settings/deliveryDays");
const QString vatKey = QStringLiteral("settings/vat");
const QString colorKey = QStringLiteral("settings/unsavedColor");
const QString folderKey = QStringLiteral("settings/folder");

std::optional<int> numberIn(const QSettings &settings, const QString &key, int least, int most)
{
    bool isNumber = false;
    const int number = settings.value(key).toInt(&isNumber);
    return isNumber && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

} // namespace

Preferences preferencesIn(const QSettings &settings)
{
    // What the tables take, so that no new order is refused for what somebody wrote into the file.
    constexpr int white = 0xffffff;
    Preferences read;
    read.seller = settings.value(sellerKey).toString();
    if (const QString terms = settings.value(termsKey).toString(); paymentTerms().contains(terms))
        read.paymentTerms = terms;
    read.deliveryDays = numberIn(settings, daysKey, 0, Preferences::mostDays).value_or(read.deliveryDays);
    if (const auto rate = numberIn(settings, vatKey, 0, vatRates().last()); rate && vatRates().contains(*rate))
        read.vat = *rate;
    read.unsavedColor = numberIn(settings, colorKey, 0, white);
    read.folder = settings.value(folderKey).toString();
    return read;
}

void keepPreferences(QSettings &settings, const Preferences &preferences)
{
    settings.setValue(sellerKey, preferences.seller);
    settings.setValue(termsKey, preferences.paymentTerms);
    settings.setValue(daysKey, preferences.deliveryDays);
    settings.setValue(vatKey, preferences.vat);
    if (preferences.unsavedColor)
        settings.setValue(colorKey, *preferences.unsavedColor);
    else
        settings.remove(colorKey);
    settings.setValue(folderKey, preferences.folder);
}

} // namespace orders
