// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "linetext.h"

#include "catalogue.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/Format>

#include <QtCore/QStringList>

#include <cmath>

namespace orders {

QString amountText(std::optional<qint64> grosze)
{
    return grosze ? kor::Format(static_cast<double>(*grosze) / 100, u"#,##0.00") + QStringLiteral(" zł") : QString();
}

QString lineText(const OrderLine &line, const Catalogue &catalogue)
{
    QStringList product;
    if (line.product == OrderLine::noProduct)
        product << QStringLiteral("(towar?)");
    else if (const auto known = line.product ? catalogue.product(*line.product) : std::nullopt)
        product << known->symbol;
    if (!line.name.isEmpty())
        product << line.name;
    QStringList count;
    if (line.quantity)
        count << kor::CStr(*line.quantity);
    if (line.unit)
        count << catalogue.unitName(*line.unit);
    if (line.netPrice)
        count << QStringLiteral("po ") + amountText(line.netPrice);
    QStringList parts{product.join(u' '), count.join(u' ')};
    if (line.delivery)
        parts << QStringLiteral("dostawa ") + kor::Format(*line.delivery, u"Short Date");
    parts.removeAll(QString());
    return QStringLiteral("%1. ").arg(line.number) + parts.join(QStringLiteral(", "));
}

//! A piece is no fraction of one, and half a metre is one.
static QString quantityText(double quantity)
{
    return kor::Format(quantity, std::floor(quantity) == quantity ? u"#,##0" : u"#,##0.00");
}

OrderPaper::Line paperLineOf(const OrderLine &line, const Catalogue &catalogue)
{
    const auto amount = [](std::optional<qint64> grosze) {
        return grosze ? kor::Format(static_cast<double>(*grosze) / 100, u"#,##0.00") : QString();
    };
    const auto product = line.product ? catalogue.product(*line.product) : std::nullopt;
    return {QString::number(line.number),
            product ? product->symbol : QString(),
            line.name,
            line.quantity ? quantityText(*line.quantity) : QString(),
            line.unit ? catalogue.unitName(*line.unit) : QString(),
            amount(line.netPrice),
            line.delivery ? kor::Format(*line.delivery, u"Short Date") : QString(),
            amount(amountOf(line))};
}

QString lineTexts(const QList<OrderLine> &lines, const Catalogue &catalogue)
{
    QStringList texts;
    for (const OrderLine &line : lines)
        texts << lineText(line, catalogue);
    return texts.join(u'\n');
}

} // namespace orders
