// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "ordercursor.h"

#include <algorithm>

namespace orders {

std::optional<qint64> OrderCursor::at(qsizetype place) const
{
    return place >= 0 && place < m_ids.size() ? std::optional(m_ids.at(place)) : std::nullopt;
}

std::optional<qint64> OrderCursor::current() const { return at(m_place); }

void OrderCursor::goTo(qint64 id)
{
    if (const qsizetype place = m_ids.indexOf(id); place >= 0)
        m_place = place;
    else
        append(id); // another desk has saved it in the meantime
}

void OrderCursor::append(qint64 id)
{
    m_ids.append(id);
    m_place = m_ids.size() - 1;
}

void OrderCursor::removeCurrent()
{
    if (!current())
        return;
    m_ids.removeAt(m_place);
    if (!m_ids.isEmpty())
        m_place = std::min(m_place, m_ids.size() - 1);
}

QString OrderCursor::text() const
{
    if (!current())
        return QStringLiteral("nowe (%1)").arg(m_ids.size() + 1);
    return QStringLiteral("%1 z %2").arg(m_place + 1).arg(m_ids.size());
}

} // namespace orders
