// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/numbertext.h"

#include <QtCore/QVarLengthArray>

#include <array>
#include <charconv>

namespace kor {

namespace {

using Buffer = QVarLengthArray<char16_t, 48>;

void writeFixed(const Decimal &number, char16_t separator, Buffer &out)
{
    for (int power = qMax(number.exponent - 1, 0); power >= 0; --power)
        out.append(static_cast<char16_t>(number.digitAt(power)));
    const int last = number.exponent - number.count;
    if (last < 0)
        out.append(separator);
    for (int power = -1; power >= last; --power)
        out.append(static_cast<char16_t>(number.digitAt(power)));
}

void writeScientific(const Decimal &number, char16_t separator, Buffer &out)
{
    for (int i = 0; i < number.count; ++i) {
        if (i == 1)
            out.append(separator);
        out.append(static_cast<char16_t>(number.digits[static_cast<std::size_t>(i)]));
    }
    const int power = number.exponent - 1;
    out.append(u'E');
    out.append(power < 0 ? u'-' : u'+');
    if (qAbs(power) < 10)
        out.append(u'0');
    std::array<char, 8> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), qAbs(power)).ptr;
    for (const char *at = text.data(); at != end; ++at)
        out.append(static_cast<char16_t>(*at));
}

} // namespace

QString numberText(const Decimal &number, int precision, QChar decimalSeparator)
{
    if (number.isZero())
        return QStringLiteral("0");
    Buffer out;
    if (number.negative)
        out.append(u'-');
    const int decimals = number.count - number.exponent;
    // Kept: 0.0000001 as a Single (1E-15 as a Double) goes scientific although its digits would just fit.
    const bool fixed = number.exponent <= precision && decimals <= precision && number.exponent > 1 - precision;
    if (fixed)
        writeFixed(number, decimalSeparator.unicode(), out);
    else
        writeScientific(number, decimalSeparator.unicode(), out);
    return QString(reinterpret_cast<const QChar *>(out.constData()), out.size());
}

} // namespace kor
