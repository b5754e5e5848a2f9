// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVariant>

namespace orders {

//! What stands behind WHERE, put together of conditions that all hold, with the values of their parameters.
class Condition
{
public:
    void add(const QString &text, const QVariantList &values)
    {
        m_parts << text;
        m_values << values;
    }
    void addOneOf(const QString &column, const QVariantList &values)
    {
        const QStringList places(values.size(), QStringLiteral("?"));
        add(QStringLiteral("%1 IN (%2)").arg(column, places.join(QStringLiteral(", "))), values);
    }
    [[nodiscard]] QString text() const
    {
        return m_parts.isEmpty() ? QStringLiteral("1 = 1") : m_parts.join(QStringLiteral(" AND "));
    }
    [[nodiscard]] const QVariantList &values() const { return m_values; }

private:
    QStringList m_parts;
    QVariantList m_values;
};

} // namespace orders
