// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace kor {

class PropertyPage;

//! The pages of the library.
[[nodiscard]] PropertyPage *makeNumberPage(QWidget *parent);
[[nodiscard]] PropertyPage *makeComboPage(QWidget *parent);
[[nodiscard]] PropertyPage *makeDatabasePage(QWidget *parent);
[[nodiscard]] PropertyPage *makeColumnPage(QWidget *parent);
[[nodiscard]] PropertyPage *makeAppearancePage(QWidget *parent);

} // namespace kor
