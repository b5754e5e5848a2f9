// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "vatrates.h"

#include <QtCore/QStringList>

namespace orders {

const QList<int> &vatRates()
{
    static const QList<int> rates{0, 5, 8, 23};
    return rates;
}

QString vatRatesToChoose()
{
    QStringList entries;
    for (const int rate : vatRates())
        entries << QStringLiteral("%1;%1 %").arg(rate);
    return QStringLiteral("LIST ") + entries.join(u'|');
}

} // namespace orders
