// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/RunTimeError>

//! The number of the run-time error that a call raises, 0 when it raises none.
template <typename Call>
int errorOf(Call call)
{
    try {
        (void)call();
    } catch (const kor::RunTimeError &error) {
        return error.number();
    }
    return 0;
}
