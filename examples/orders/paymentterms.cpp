// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "paymentterms.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace orders {

QString nameOfTerms(const QString &code)
{
    static const QHash<QString, QString> names{{QStringLiteral("G"), QStringLiteral("Gotówka")},
                                               {QStringLiteral("K"), QStringLiteral("Karta płatnicza")},
                                               {QStringLiteral("Z"), QStringLiteral("Za pobraniem")}};
    return names.contains(code) ? names.value(code) : QStringLiteral("Przelew %1 dni").arg(code.mid(1));
}

QString termsToChoose()
{
    QStringList entries;
    for (const char *code : {"G", "K", "Z", "P7", "P14", "P30", "P60"})
        entries << QLatin1String(code) + u';' + nameOfTerms(QLatin1String(code));
    return QStringLiteral("LIST ") + entries.join(u'|');
}

} // namespace orders
