// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

// A benchmark is no event loop, and outside of one the toolkit keeps what asked to be deleted: the editors that a table
// has closed, say, which would make the next ones ever slower.

inline void deleteWhatIsDue() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

//! What the event loop does between two keys of a clerk.
inline void turn()
{
    QCoreApplication::processEvents();
    deleteWhatIsDue();
}
