// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QAccessibleWidget>

namespace kor {

//! A control as a whole, which screen readers meet around the constituents that speak for it: it has the name of its
//! label, and leaves keyboard and focus to them, so that nothing is heard twice.
class AccessibleControl : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::State state() const override;
};

//! Tells of all controls by it that have nothing of their own to tell. To be called by each that is made.
void makeControlsAccessible();

} // namespace kor
