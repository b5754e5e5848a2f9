// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "lists/keytext.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kor {

QString textOfKey(const QVariant &key, const Locale &locale)
{
    const QString text = CStr(key, locale);
    if (variantType(key) != VariantType::Double)
        return text;
    constexpr double exactInDouble = 0x1p53;
    const double number = key.value<double>();
    const bool isExact = std::fabs(number) <= exactInDouble && number == std::trunc(number);
    return isExact && CDbl(text, locale) != number ? QString::number(static_cast<qint64>(number)) : text;
}

QStringView KeyText::of(const QVariant &key)
{
    switch (variantType(key)) {
    case VariantType::Null: return {};
    case VariantType::Long: {
        std::array<char, 12> digits{};
        const char *end = std::to_chars(digits.begin(), digits.end(), key.value<int>()).ptr;
        std::copy(digits.cbegin(), end, m_digits.begin());
        return QStringView(m_digits.data(), end - digits.cbegin());
    }
    default: break;
    }
    const QVariant known = normalized(key);
    m_text = isNull(known) || isMissing(known) ? QString() : textOfKey(known, m_locale);
    return m_text;
}

} // namespace kor
