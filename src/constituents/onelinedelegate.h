// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace kor {

//! Shows every entry of a list on one line: the toolkit makes a line of its own of each that a name holds.
class OneLineDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return QStyledItemDelegate::displayText(value, locale).replace(QChar::LineSeparator, QLatin1Char(' '));
    }
};

} // namespace kor
