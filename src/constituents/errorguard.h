// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/runtimeerror.h>

#include <exception>

class QObject;

namespace kor {

//! A control, as the place where errors of the parts inside it end up.
class ErrorSink
{
public:
    virtual ~ErrorSink() = default;
    //! True when the host has dealt with the error.
    virtual bool offerError(const RunTimeError &error) = 0;
};

//! Hands the error to the nearest control around the source, and to the unhandled-error handler if nobody takes it.
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
