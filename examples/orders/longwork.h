// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QElapsedTimer>

#include <functional>

namespace orders {

//! Asked every now and then during a long work: so much of so much is done. False ends the work.
using MayGoOn = std::function<bool(qint64 done, qint64 all)>;

//! A long work in small steps, which asks whether to go on as often as a clerk would notice.
class LongWork
{
public:
    LongWork(const MayGoOn &mayGoOn, qint64 all) : m_mayGoOn(mayGoOn), m_all(all) { m_silence.start(); }

    //! One step more is done; false when the work is to be stopped.
    [[nodiscard]] bool step()
    {
        ++m_done;
        if (m_silence.elapsed() < longestSilence)
            return true;
        const bool goesOn = m_mayGoOn(m_done, m_all);
        m_silence.restart();
        return goesOn;
    }

private:
    static constexpr qint64 longestSilence = 50; // milliseconds between two questions

    const MayGoOn &m_mayGoOn;
    qint64 m_all;
    qint64 m_done = 0;
    QElapsedTimer m_silence;
};

} // namespace orders
