// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/errorguard.h"

#include <QtCore/QPointer>

#include <functional>
#include <utility>

namespace kor {

//! Holds the events of a box back until the toolkit is done with what causes them: a handler may then set the text
//! anew or delete the control, which the toolkit could not bear in the middle of its own work.
//!
//! A body that throws is done, too: what it has changed so far is told, and what changes later is told as ever.
class HeldEvents
{
public:
    //! `raise` raises what is due, if anything is. It may end the owner, and this with it.
    HeldEvents(QObject *owner, std::function<void()> raise) : m_owner(owner), m_raise(std::move(raise)) {}

    [[nodiscard]] bool areHeld() const { return m_depth > 0; }
    //! Raises what is due, unless a body is at work: then it does at its end.
    void raise() const
    {
        if (areHeld())
            return;
        const auto raising = m_raise; // outlives the owner
        raising();
    }
    //! Runs a body that may make events due, then raises them. A body within a body leaves that to the outer one.
    template <class Body>
    void during(Body &&body)
    {
        const QPointer<QObject> owner = m_owner;
        try {
            hold(std::forward<Body>(body));
        } catch (...) {
            if (owner)
                guarded(owner, [this] { raise(); });
            throw;
        }
        if (owner)
            raise();
    }
    //! The same without raising anything at its end.
    template <class Body>
    void hold(Body &&body)
    {
        struct Depth {
            explicit Depth(HeldEvents *events) : held(events), owner(events->m_owner) { ++held->m_depth; }
            ~Depth()
            {
                if (owner)
                    --held->m_depth;
            }
            HeldEvents *held;
            QPointer<QObject> owner;
        };
        const Depth depth(this);
        body();
    }

private:
    QObject *m_owner;
    std::function<void()> m_raise;
    int m_depth = 0;
};

} // namespace kor
