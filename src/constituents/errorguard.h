// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/runtimeerror.h>

#include <exception>

class QObject;

namespace kor {

//! Raises the Error event of the nearest control around the source; the unhandled-error handler gets what no handler of
//! that event took.
void reportError(QObject *source, const RunTimeError &error);

//! Runs what the event loop calls. Nothing may be thrown through the event loop, so every event handler, timer and
//! queued call of the library has its body in here.
template <class Body>
void guarded(QObject *source, Body &&body) noexcept
{
    try {
        try {
            body();
        } catch (const RunTimeError &) {
            throw;
        } catch (const std::exception &error) {
            throw RunTimeError(ErrorNumber::InternalError, QString::fromLocal8Bit(error.what()));
        }
    } catch (const RunTimeError &error) {
        reportError(source, error);
    }
}

} // namespace kor
