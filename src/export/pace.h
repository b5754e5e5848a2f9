// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/gridexport.h>

#include <QtCore/QElapsedTimer>

namespace kor {

//! Asks whether to go on, often enough for a user and seldom enough for the work.
class Pace
{
public:
    Pace(const ExportProgress &mayGoOn, qint64 all) : m_mayGoOn(mayGoOn), m_all(all) { m_silence.start(); }

    //! False when the work is to be stopped, from then on.
    [[nodiscard]] bool goesOn(qint64 done)
    {
        if (m_goesOn && m_silence.elapsed() >= longestSilence) {
            m_goesOn = !m_mayGoOn || m_mayGoOn(done, m_all);
            m_silence.restart();
        }
        return m_goesOn;
    }

    static constexpr int longestSilence = 50; // milliseconds

private:
    const ExportProgress &m_mayGoOn;
    qint64 m_all;
    QElapsedTimer m_silence;
    bool m_goesOn = true;
};

//! What the parts of an export take, in rows: to read and to write one, and to pack a workbook in the end.
inline constexpr qint64 readingARow = 2;
inline constexpr qint64 writingARow = 2;
[[nodiscard]] inline qint64 wholeWork(qint64 rows) { return rows * (readingARow + writingARow) + rows / 2 + 1; }

} // namespace kor
