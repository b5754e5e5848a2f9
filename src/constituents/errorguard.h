// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVarLengthArray>

#include <exception>

namespace kor {

//! The way that an error goes from where it arose: outward through all that lie around it. Noted down before anything
//! happens, because a handler may delete any of them.
class ErrorPath
{
public:
    explicit ErrorPath(QObject *source);

    //! Raises the Error event of each control on the way, innermost first, until a handler takes the error; what
    //! nobody takes goes to the unhandled-error handler. Anything may have been thrown. A handler that is at work on
    //! an error is not called for another one that comes of it, and a handler that raises an error has not taken the
    //! first one: both go on outward. What arises in the last handler is written as a warning.
    void report(const std::exception_ptr &thrown) const noexcept;

private:
    void goOutward(qsizetype from, const RunTimeError &error) const;
    void endWith(const RunTimeError &error) const;

    QVarLengthArray<QPointer<QObject>, 12> m_places;
};

//! Runs what the event loop calls. Nothing may be thrown through the event loop, so every event handler, timer and
//! queued call of the library has its body in here. The source may be gone when the body is done.
template <class Body>
void guarded(QObject *source, Body &&body) noexcept
{
    const ErrorPath path(source);
    try {
        body();
    } catch (...) {
        path.report(std::current_exception());
    }
}

} // namespace kor
