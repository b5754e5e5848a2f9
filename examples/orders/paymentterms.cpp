// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "paymentterms.h"

#include <QtCore/QHash>

namespace orders {

const QStringList &paymentTerms()
{
    static const QStringList codes{QStringLiteral("G"),  QStringLiteral("K"),   QStringLiteral("Z"),
                                   QStringLiteral("P7"), QStringLiteral("P14"), QStringLiteral("P30"),
                                   QStringLiteral("P60")};
    return codes;
}

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
    for (const QString &code : paymentTerms())
        entries << code + u';' + nameOfTerms(code);
    return QStringLiteral("LIST ") + entries.join(u'|');
}

} // namespace orders
