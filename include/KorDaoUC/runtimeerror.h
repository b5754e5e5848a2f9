// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QString>

#include <exception>
#include <string>

namespace kor {

//! The run-time error numbers that programs written against the controls test for.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    InternalError = 51,
    TypeMismatch = 13,
    InvalidPattern = 93,
    InvalidUseOfNull = 94,
    InvalidPropertyValue = 380,
    InvalidPropertyArrayIndex = 381,
    SetNotSupportedAtRunTime = 382,
    SetNotPermitted = 387,
    PropertyOrMethodNotFound = 438,
    NoCurrentRecord = 3021,
    FileNotFound = 3024,
    DatabaseFailed = 3146,
    ItemNotFoundInCollection = 3265,
    UnrecognizedDatabaseFormat = 3343,
    ObjectNoLongerSet = 3420,
};

//! Misuse by the program, or a failure below a control that reaches the program.
//!
//! Thrown by direct calls and by calls through the meta-object system alike. what() begins with the number, so that a
//! host that catches std::exception only can still tell the errors apart.
class KORDAOUC_RUNTIME_EXPORT RunTimeError : public std::exception
{
public:
    //! With the classic text of the number.
    explicit RunTimeError(ErrorNumber number);
    //! With a text of its own.
    RunTimeError(ErrorNumber number, const QString &description);
    ~RunTimeError() override;

    //! The number, one of ErrorNumber.
    [[nodiscard]] int number() const noexcept { return m_number; }
    //! What went wrong, without the number.
    [[nodiscard]] const QString &description() const noexcept { return m_description; }
    //! Number and description in UTF-8: "380: Invalid property value".
    [[nodiscard]] const char *what() const noexcept override { return m_what.c_str(); }

private:
    int m_number;
    QString m_description;
    std::string m_what;
};

} // namespace kor
