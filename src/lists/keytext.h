// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <array>

namespace kor {

//! Gives keys as they stand in a set: as CStr gives them, and Null as an empty text.
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
