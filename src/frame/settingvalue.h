// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QVariant>

#include <type_traits>
#include <utility>

namespace kor {

//! Turns a saved value into the type that a setter takes, by the run-time's conversions: error 13 for what is none.
template <class Value>
[[nodiscard]] Value settingAs(const QVariant &saved)
{
    if constexpr (std::is_same_v<Value, QVariant>)
        return saved;
    else if constexpr (std::is_enum_v<Value>)
        return static_cast<Value>(CLng(saved));
    else if constexpr (std::is_same_v<Value, bool>)
        return CBool(saved);
    else if constexpr (std::is_same_v<Value, int>)
        return CLng(saved);
    else if constexpr (std::is_same_v<Value, short>)
        return CInt(saved);
    else if constexpr (std::is_same_v<Value, float>)
        return CSng(saved);
    else if constexpr (std::is_same_v<Value, QString>)
        return CStr(saved);
    else {
        if (!saved.canConvert<Value>())
            throw RunTimeError(ErrorNumber::TypeMismatch);
        return saved.value<Value>();
    }
}

//! Wraps what a getter gives as the saved form holds it: an enumeration is an Integer there.
template <class Value>
[[nodiscard]] QVariant settingOf(const Value &value)
{
    if constexpr (std::is_same_v<Value, QVariant>)
        return value;
    else if constexpr (std::is_enum_v<Value>)
        return QVariant::fromValue(static_cast<short>(value));
    else
        return QVariant::fromValue(value);
}

//! The error of a saved setting, which knows the key of it.
class RefusedSetting final : public RunTimeError
{
public:
    RefusedSetting(const RunTimeError &error, QString key)
        : RunTimeError(static_cast<ErrorNumber>(error.number()), error.description()), m_key(std::move(key))
    {
    }
    [[nodiscard]] const QString &key() const { return m_key; }

private:
    QString m_key;
};

//! Runs what takes the saved setting of this key; an error of it then says so.
template <class Action>
void takeSetting(const QString &key, Action &&action)
{
    try {
        action();
    } catch (const RunTimeError &error) {
        throw RefusedSetting(error, key);
    }
}

} // namespace kor
