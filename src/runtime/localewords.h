// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/locale.h>

namespace kor {

// The words of "True/False", "Yes/No" and "On/Off", which no system tells.

void setPolishWords(Locale &locale);
void setGermanWords(Locale &locale);

} // namespace kor
