// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/pagefield.h"

#include <functional>
#include <memory>

class QWidget;

namespace kor {

//! Fields that show a colour or a font on a button, and let the user choose another one in a dialog.
[[nodiscard]] std::unique_ptr<PageField> makeColorField(QWidget *page, std::function<void()> edited);
[[nodiscard]] std::unique_ptr<PageField> makeFontField(QWidget *page, std::function<void()> edited);

} // namespace kor
