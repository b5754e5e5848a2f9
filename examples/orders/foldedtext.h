// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace orders {

//! Lower case without accents, as the `sort_name` of the tables is without its tildes.
[[nodiscard]] inline QString folded(const QString &text)
{
    const QString lower = text.toLower();
    QString result;
    for (const QChar character : lower.normalized(QString::NormalizationForm_D)) {
        if (character == u'ł')
            result += u'l';
        else if (character.category() != QChar::Mark_NonSpacing && character != u'~')
            result += character;
    }
    return result;
}

} // namespace orders
