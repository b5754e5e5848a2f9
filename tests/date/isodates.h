// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/Locale>

namespace kor::test {

//! Poland, with the dates of who writes 2024-03-05.
inline Locale polishIso()
{
    Locale locale = Locale::polish();
    locale.shortDatePattern = QStringLiteral("yyyy-MM-dd");
    locale.dateSeparator = u'-';
    return locale;
}

} // namespace kor::test
