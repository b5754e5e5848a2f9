// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/runtimeerror.h>

namespace kor {

namespace {

QString classicText(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidProcedureCall: return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow: return QStringLiteral("Overflow");
    case ErrorNumber::OutOfMemory: return QStringLiteral("Out of memory");
    case ErrorNumber::SubscriptOutOfRange: return QStringLiteral("Subscript out of range");
    case ErrorNumber::TypeMismatch: return QStringLiteral("Type mismatch");
    case ErrorNumber::InternalError: return QStringLiteral("Internal error");
    case ErrorNumber::InvalidPattern: return QStringLiteral("Invalid pattern string");
    case ErrorNumber::InvalidUseOfNull: return QStringLiteral("Invalid use of Null");
    case ErrorNumber::InvalidPropertyValue: return QStringLiteral("Invalid property value");
    case ErrorNumber::InvalidPropertyArrayIndex: return QStringLiteral("Invalid property array index");
    case ErrorNumber::SetNotSupportedAtRunTime: return QStringLiteral("Set not supported at run time");
    case ErrorNumber::SetNotPermitted: return QStringLiteral("Set not permitted");
    case ErrorNumber::PropertyOrMethodNotFound: return QStringLiteral("Object doesn't support this property or method");
    case ErrorNumber::NoCurrentRecord: return QStringLiteral("No current record");
    case ErrorNumber::FileNotFound: return QStringLiteral("Couldn't find file");
    case ErrorNumber::DatabaseFailed: return QStringLiteral("Database call failed");
    case ErrorNumber::ItemNotFoundInCollection: return QStringLiteral("Item not found in this collection");
    case ErrorNumber::UnrecognizedDatabaseFormat: return QStringLiteral("Unrecognized database format");
    case ErrorNumber::ObjectNoLongerSet: return QStringLiteral("Object invalid or no longer set");
    }
    return QStringLiteral("Application-defined or object-defined error");
}

} // namespace

RunTimeError::RunTimeError(ErrorNumber number) : RunTimeError(number, classicText(number)) {}

RunTimeError::RunTimeError(ErrorNumber number, const QString &description)
    : m_number(static_cast<int>(number)),
      m_description(description),
      m_what(std::to_string(m_number) + ": " + description.toStdString())
{
}

RunTimeError::~RunTimeError() = default;

} // namespace kor
