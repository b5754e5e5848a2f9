// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "recordtables.h"

#include "vatrates.h"

#include <QtCore/QRegularExpression>

namespace orders {

namespace {

using Kind = RecordField::Kind;
using Fault = std::function<QString(const QVariant &)>;

bool isAll(const QString &text, const char *pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern))).match(text).hasMatch();
}

//! What is missing when there is nothing.
Fault needed(const QString &said)
{
    return [said](const QVariant &value) { return value.toString().isEmpty() ? said : QString(); };
}

//! People write tax numbers with dashes or blanks, and with the country before them.
QString tidiedNip(const QString &typed)
{
    QString digits = typed.toUpper();
    digits.remove(QRegularExpression(QStringLiteral("^\\s*PL|[\\s-]")));
    return digits;
}

QString faultOfNip(const QVariant &value)
{
    const QString nip = value.toString();
    if (nip.isEmpty()) // not everybody has one
        return {};
    if (!isAll(nip, "[0-9]{10}"))
        return QStringLiteral("NIP musi mieć 10 cyfr albo pozostać pusty.");
    if (checkDigitOf(nip.first(9)) != nip.back().digitValue())
        return QStringLiteral("NIP %1 jest błędny: jego cyfra kontrolna się nie zgadza. Sprawdź, czy nie przestawiono "
                              "lub nie pomylono cyfr.")
            .arg(nip);
    return {};
}

QString tidiedPostalCode(const QString &typed)
{
    const QString code = typed.trimmed();
    return isAll(code, "[0-9]{5}") ? QString(code).insert(2, u'-') : code;
}

QString faultOfPostalCode(const QVariant &value)
{
    return isAll(value.toString(), "[0-9]{2}-[0-9]{3}") ? QString() : QStringLiteral("Kod pocztowy ma postać 00-000.");
}

QString faultOfPrice(const QVariant &value)
{
    constexpr qint64 most = 1'000'000'000'00;
    if (value.isNull())
        return QStringLiteral("Podaj cenę netto.");
    if (value.toLongLong() <= 0)
        return QStringLiteral("Cena netto musi być większa od zera.");
    return value.toLongLong() > most ? QStringLiteral("Cena netto jest za duża.") : QString();
}

} // namespace

std::optional<int> checkDigitOf(const QString &nineDigits)
{
    constexpr int weights[] = {6, 5, 7, 2, 3, 4, 5, 6, 7};
    int sum = 0;
    for (qsizetype at = 0; at < qsizetype(std::size(weights)); ++at)
        sum += weights[at] * nineDigits.at(at).digitValue();
    return sum % 11 < 10 ? std::optional(sum % 11) : std::nullopt;
}

RecordTable customersTable()
{
    RecordTable customers;
    customers.table = QStringLiteral("customers");
    customers.title = QStringLiteral("Klienci");
    customers.one = QStringLiteral("Klient");
    customers.whom = QStringLiteral("Klienta");
    customers.newOne = QStringLiteral("Nowy klient");
    customers.user = QStringLiteral("orders");
    customers.userKey = QStringLiteral("customer_id");
    customers.used = QStringLiteral("Klient ma zamówienia (liczba zamówień: %1), dlatego nie można go usunąć.");
    customers.fields = {
        {.column = QStringLiteral("name"),
         .label = QStringLiteral("&Nazwa:"),
         .length = 120,
         .fault = needed(QStringLiteral("Podaj nazwę klienta."))},
        {.column = QStringLiteral("group_id"),
         .label = QStringLiteral("&Grupa:"),
         .kind = Kind::Choice,
         .choices = QStringLiteral("SELECT id, name FROM customer_groups ORDER BY name"),
         .fault = needed(QStringLiteral("Wybierz grupę klienta."))},
        {.column = QStringLiteral("nip"),
         .label = QStringLiteral("N&IP:"),
         .length = 16,
         .isOnce = true,
         .canBeNull = true,
         .tidied = tidiedNip,
         .fault = faultOfNip},
        {.column = QStringLiteral("street"), .label = QStringLiteral("U&lica i numer:"), .length = 80},
        {.column = QStringLiteral("postal_code"),
         .label = QStringLiteral("&Kod pocztowy:"),
         .length = 8,
         .tidied = tidiedPostalCode,
         .fault = faultOfPostalCode},
        {.column = QStringLiteral("city"),
         .label = QStringLiteral("&Miejscowość:"),
         .length = 60,
         .fault = needed(QStringLiteral("Podaj miejscowość."))},
    };
    return customers;
}

RecordTable productsTable(int vat)
{
    RecordTable products;
    products.table = QStringLiteral("products");
    products.title = QStringLiteral("Towary");
    products.one = QStringLiteral("Towar");
    products.whom = QStringLiteral("Towar");
    products.newOne = QStringLiteral("Nowy towar");
    products.user = QStringLiteral("order_lines");
    products.userKey = QStringLiteral("product_id");
    products.used = QStringLiteral("Towar jest na zamówieniach (liczba pozycji: %1), dlatego nie można go usunąć.");
    products.fields = {
        {.column = QStringLiteral("name"),
         .label = QStringLiteral("&Nazwa:"),
         .length = 160,
         .isOnce = true,
         .fault = needed(QStringLiteral("Podaj nazwę towaru."))},
        {.column = QStringLiteral("symbol"),
         .label = QStringLiteral("S&ymbol:"),
         .length = 20,
         .isOnce = true,
         .fault = needed(QStringLiteral("Podaj symbol towaru."))},
        {.column = QStringLiteral("category_id"),
         .label = QStringLiteral("&Kategoria:"),
         .kind = Kind::Choice,
         .choices = QStringLiteral("SELECT id, name FROM product_categories ORDER BY name"),
         .fault = needed(QStringLiteral("Wybierz kategorię towaru."))},
        {.column = QStringLiteral("unit_id"),
         .label = QStringLiteral("&Jednostka miary:"),
         .kind = Kind::Choice,
         .choices = QStringLiteral("SELECT id, name FROM units ORDER BY id"),
         .fault = needed(QStringLiteral("Wybierz jednostkę miary."))},
        {.column = QStringLiteral("net_price"),
         .label = QStringLiteral("&Cena netto [zł]:"),
         .kind = Kind::Amount,
         .length = 12,
         .fault = faultOfPrice},
        {.column = QStringLiteral("vat"),
         .label = QStringLiteral("&VAT:"),
         .kind = Kind::Choice,
         .choices = vatRatesToChoose(),
         .initial = qint64(vat),
         .fault = needed(QStringLiteral("Wybierz stawkę VAT."))},
    };
    return products;
}

} // namespace orders
