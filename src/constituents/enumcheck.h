// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/enumerations.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QMetaEnum>

namespace kor {

//! Error 380 for a value that the enumeration does not have: late-bound writes come here with any number.
template <class Enum>
void requireMember(Enum value)
{
    if (!QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)))
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
}

} // namespace kor
