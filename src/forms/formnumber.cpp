// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formnumber.h"

#include <KorDaoUC/currency.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QByteArray>

#include <array>
#include <charconv>
#include <cmath>
#include <type_traits>

namespace kor {

namespace {

enum class Fault { None, NoNumber, TooLarge };

//! The fewest digits that read back as the number, with an exponent only where nobody would write the zeros. The
//! run-time has no infinities, so they are no value at all.
template <typename Number>
QString shortest(Number number, QChar suffix)
{
    if (!std::isfinite(number))
        return QStringLiteral("Empty");
    const Number magnitude = std::abs(number);
    const bool isCommon = magnitude == 0 || (magnitude >= Number(1e-5) && magnitude < Number(1e15));
    std::array<char, 64> digits;
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                       isCommon ? std::chars_format::fixed : std::chars_format::scientific);
    return QString::fromLatin1(digits.data(), written.ptr - digits.data()) + suffix;
}

template <typename Number, typename... Format>
Fault convert(QByteArrayView digits, Number &number, Format... format)
{
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), number, format...);
    if (error == std::errc::result_out_of_range)
        return Fault::TooLarge;
    return error == std::errc() && end == digits.end() ? Fault::None : Fault::NoNumber;
}

NumberResult result(Fault fault, const QVariant &value, QStringView token)
{
    switch (fault) {
    case Fault::None: return {value, {}};
    case Fault::TooLarge: return {{}, QStringLiteral("%1 is out of the range of its type").arg(token)};
    case Fault::NoNumber: break;
    }
    return {{}, QStringLiteral("%1 is no value; texts stand in quotes, fractions end in '#', '!' or '@'").arg(token)};
}

template <typename Number>
NumberResult readAs(QByteArrayView digits, QStringView token)
{
    Number number{};
    Fault fault = convert(digits, number);
    if constexpr (std::is_floating_point_v<Number>) {
        if (!std::isfinite(number))
            fault = Fault::NoNumber;
    }
    return result(fault, QVariant::fromValue(number), token);
}

//! A smaller integer is taken, too, as what it is everywhere else.
NumberResult readLongLong(QByteArrayView digits, QStringView token)
{
    NumberResult read = readAs<qint64>(digits, token);
    if (read.reason.isEmpty())
        read.value = normalized(read.value);
    return read;
}

NumberResult readHexadecimal(QByteArrayView digits, QStringView token)
{
    quint32 number = 0;
    const Fault fault = convert(digits, number, 16);
    return result(fault, QVariant(static_cast<int>(number)), token);
}

NumberResult readCurrency(QByteArrayView digits, QStringView token)
{
    const bool negative = digits.startsWith('-');
    const QByteArrayView amount = negative ? digits.sliced(1) : digits;
    const qsizetype point = amount.indexOf('.');
    QByteArray units = amount.first(point < 0 ? amount.size() : point).toByteArray();
    QByteArray decimals = point < 0 ? QByteArray() : amount.sliced(point + 1).toByteArray();
    if (units.isEmpty() || units.startsWith('-') || decimals.size() > 4 || (point >= 0 && decimals.isEmpty()))
        return result(Fault::NoNumber, {}, token);
    qint64 count = 0;
    const Fault fault = convert((negative ? "-" : "") + units + decimals.leftJustified(4, '0'), count);
    return result(fault, QVariant::fromValue(Currency::fromTenThousandths(count)), token);
}

QString writeCurrency(Currency amount)
{
    const qint64 count = amount.tenThousandths();
    QString text = QString::number(count / 10000);
    if (count < 0 && count > -10000)
        text.prepend(u'-');
    QString decimals = QString::number(std::abs(count % 10000)).rightJustified(4, u'0');
    while (decimals.endsWith(u'0'))
        decimals.chop(1);
    return decimals.isEmpty() ? text : text + u'.' + decimals;
}

//! The system colours, which people know by their hexadecimal numbers.
bool isSystemColor(int number) { return (static_cast<quint32>(number) & 0xffffff00U) == 0x80000000U; }

QString writeLong(int number)
{
    if (isSystemColor(number))
        return QStringLiteral("&H%1&").arg(QString::number(static_cast<quint32>(number), 16).toUpper());
    return QString::number(number);
}

} // namespace

QString writeNumber(const QVariant &number)
{
    switch (variantType(number)) {
    case VariantType::Byte: return QString::number(number.value<uchar>()) + u'b';
    case VariantType::Integer: return QString::number(number.value<short>()) + u'%';
    case VariantType::Long: return writeLong(number.value<int>());
    case VariantType::LongLong: return QString::number(number.value<qint64>()) + u'^';
    case VariantType::Single: return shortest(number.value<float>(), u'!');
    case VariantType::Currency: return writeCurrency(number.value<Currency>()) + u'@';
    default: return shortest(number.value<double>(), u'#');
    }
}

NumberResult readNumber(QStringView token)
{
    const QByteArray written = token.toLatin1();
    QByteArrayView digits(written);
    if (digits.isEmpty())
        return {{}, QStringLiteral("the value is missing")};
    if (digits.startsWith("&H")) {
        if (!digits.endsWith('&') || digits.size() < 4)
            return result(Fault::NoNumber, {}, token);
        return readHexadecimal(digits.sliced(2).chopped(1), token);
    }
    const QByteArrayView number = digits.chopped(1);
    switch (digits.back()) {
    case 'b': return readAs<uchar>(number, token);
    case '%': return readAs<short>(number, token);
    case '^': return readLongLong(number, token);
    case '!': return readAs<float>(number, token);
    case '#': return readAs<double>(number, token);
    case '@': return readCurrency(number, token);
    default: return readAs<int>(digits, token);
    }
}

} // namespace kor
