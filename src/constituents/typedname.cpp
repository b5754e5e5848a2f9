// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/typedname.h"

#include "constituents/entrymodel.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace kor {

bool TypedName::goesOn(const QKeyEvent &key) const
{
    if (m_text.isEmpty())
        return false;
    const auto patience = static_cast<quint64>(QApplication::keyboardInputInterval());
    if (m_pressed != 0 && key.timestamp() >= m_pressed)
        return key.timestamp() - m_pressed < patience;
    // Keys that a program sends, and those of a clock that has begun anew
    return static_cast<quint64>(m_arrived.elapsed()) < patience;
}

void TypedName::add(const QKeyEvent &key)
{
    if (!goesOn(key))
        m_text.clear();
    m_text += key.text();
    m_pressed = key.timestamp();
    m_arrived.start();
}

int TypedName::foundIn(const EntryModel &entries, int current) const
{
    if (entries.count() == 0 || m_text.isEmpty())
        return -1;
    const int from = std::max(0, m_text.size() == 1 ? current + 1 : current) % entries.count();
    const QModelIndexList found =
        entries.match(entries.index(from), Qt::DisplayRole, m_text, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    return found.isEmpty() ? -1 : found.first().row();
}

} // namespace kor
