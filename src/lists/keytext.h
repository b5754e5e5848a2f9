// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <array>

namespace kor {

//! The text by which a key is found again: that of CStr, but with all digits where its fifteen would be another key's,
//! since whole numbers from there to 2^53 come from databases as Doubles. Not for Null.
[[nodiscard]] QString textOfKey(const QVariant &key, const Locale &locale);

//! Gives keys as they stand in a set: as textOfKey() gives them, and Null as an empty text.
class KeyText
{
public:
    explicit KeyText(const Locale &locale) : m_locale(locale) {}

    //! Good until the next call.
    [[nodiscard]] QStringView of(const QVariant &key);

private:
    Locale m_locale;
    QString m_text;
    std::array<char16_t, 12> m_digits{}; //!< most keys are whole numbers, which need no text of their own
};

} // namespace kor
