// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace orders {

//! Where the desk stands among the orders: on one of them, or on a new one behind the last.
class OrderCursor
{
public:
    explicit OrderCursor(QList<qint64> ids) : m_ids(std::move(ids)), m_place(m_ids.size()) {}

    //! The order the desk stands on; nothing for a new one.
    [[nodiscard]] std::optional<qint64> current() const;
    [[nodiscard]] std::optional<qint64> first() const { return at(0); }
    //! The neighbours; before a new order lies the last one. Nothing at the ends.
    [[nodiscard]] std::optional<qint64> previous() const { return at(m_place - 1); }
    [[nodiscard]] std::optional<qint64> next() const { return at(m_place + 1); }
    [[nodiscard]] std::optional<qint64> last() const { return at(m_ids.size() - 1); }

    void goTo(qint64 id);
    void goToNew() { m_place = m_ids.size(); }
    //! A new order was saved: it is the last one and the desk stands on it.
    void append(qint64 id);
    //! The order the desk stands on is gone: its follower takes the place, or else the one before it.
    void removeCurrent();

    //! "12 z 1000", or "nowe (1001)".
    [[nodiscard]] QString text() const;

private:
    [[nodiscard]] std::optional<qint64> at(qsizetype place) const;

    QList<qint64> m_ids;
    qsizetype m_place;
};

} // namespace orders
