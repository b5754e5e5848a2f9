// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Format>

int main()
{
    const QString shown = kor::Format(1234.5, u"#,##0.00", kor::Locale::german());
    return shown == QStringLiteral("1.234,50") ? 0 : 1;
}
