// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "examples/orderdesk.h"
#include "orders/places.h"

namespace orders::test {

//! An order desk that remembers its windows and settings from one day to the next.
class RememberingDesk : public OrderDesk
{
protected:
    [[nodiscard]] QString placesFile() const { return m_folder->filePath(QStringLiteral("układ/okna.ini")); }
    //! A new day: the window is opened by what the file remembers.
    void begin()
    {
        m_window.reset();
        m_places = std::make_unique<Places>(placesFile());
        m_window = std::make_unique<OrderWindow>(*m_store, m_places.get());
        bringUp(*m_window);
    }
    void end()
    {
        m_window.reset();
        m_places.reset();
        close();
    }

    std::unique_ptr<Places> m_places;
};

} // namespace orders::test
