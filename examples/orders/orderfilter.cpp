// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderfilter.h"

namespace orders {

namespace {

const QString fromKey = QStringLiteral("from");
const QString toKey = QStringLiteral("to");
const QString leastKey = QStringLiteral("least");
const QString mostKey = QStringLiteral("most");
const QString textKey = QStringLiteral("text");
const QString groupKey = QStringLiteral("group");
const QString customerKey = QStringLiteral("customer");
const QString termsKey = QStringLiteral("terms");

std::optional<QDate> dateOf(const QString &text)
{
    const QDate date = QDate::fromString(text, Qt::ISODate);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<qint64> numberOf(const QString &text)
{
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<FilterProblem> problemOf(const OrderFilter &filter)
{
    if (filter.from && !filter.from->isValid())
        return FilterProblem{FilterField::From, QStringLiteral("Pierwszy dzień okresu jest błędny.")};
    if (filter.to && !filter.to->isValid())
        return FilterProblem{FilterField::To, QStringLiteral("Ostatni dzień okresu jest błędny.")};
    if (filter.from && filter.to && *filter.from > *filter.to)
        return FilterProblem{FilterField::To, QStringLiteral("Okres kończy się, zanim się zaczyna.")};
    if (filter.least && filter.most && *filter.least > *filter.most)
        return FilterProblem{FilterField::Most, QStringLiteral("Największa wartość jest mniejsza od najmniejszej.")};
    return std::nullopt;
}

QMap<QString, QString> textsOf(const OrderFilter &filter)
{
    QMap<QString, QString> texts;
    const auto keepDate = [&texts](const QString &name, const std::optional<QDate> &date) {
        if (date)
            texts.insert(name, date->toString(Qt::ISODate));
    };
    const auto keepNumber = [&texts](const QString &name, std::optional<qint64> number) {
        if (number)
            texts.insert(name, QString::number(*number));
    };
    const auto keepText = [&texts](const QString &name, const QString &kept) {
        if (!kept.isEmpty())
            texts.insert(name, kept);
    };
    keepDate(fromKey, filter.from);
    keepDate(toKey, filter.to);
    keepNumber(leastKey, filter.least);
    keepNumber(mostKey, filter.most);
    keepText(textKey, filter.text);
    keepNumber(groupKey, filter.group);
    keepNumber(customerKey, filter.customer);
    keepText(termsKey, filter.terms.join(u' '));
    return texts;
}

OrderFilter filterOf(const QMap<QString, QString> &texts)
{
    OrderFilter filter;
    filter.from = dateOf(texts.value(fromKey));
    filter.to = dateOf(texts.value(toKey));
    filter.least = numberOf(texts.value(leastKey));
    filter.most = numberOf(texts.value(mostKey));
    filter.text = texts.value(textKey);
    filter.group = numberOf(texts.value(groupKey));
    filter.customer = numberOf(texts.value(customerKey));
    filter.terms = texts.value(termsKey).split(u' ', Qt::SkipEmptyParts);
    return filter;
}

} // namespace orders
