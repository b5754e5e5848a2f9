// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/runtimeerror.h>

#include <functional>

class QObject;

namespace kor {

//! What happens to an error that arose while a control handled a key, a click or a timer, and that no handler of its
//! Error event took. The default shows a message box; an empty function brings the default back.
KORDAOUC_EXPORT void setUnhandledErrorHandler(std::function<void(QObject *source, const RunTimeError &error)> handler);

} // namespace kor
