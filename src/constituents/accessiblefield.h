// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QAccessibleWidget>

namespace kor {

//! What a screen reader is told of a constituent that takes the keyboard. It speaks for its control: it has the name of
//! that, its label and its tip, and says why its value was refused.
class AccessibleField : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;
    using Relations = QList<QPair<QAccessibleInterface *, QAccessible::Relation>>;

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] Relations relations(QAccessible::Relation match) const override;
};

//! Lets screen readers meet the constituents as they are meant to be used, and change them as a user does. To be called
//! by each that is made; the toolkit forgets it with the application object.
void makeConstituentsAccessible();
//! Tells screen readers that what pops up from a control was opened or closed.
void tellExpanded(QWidget *control);

} // namespace kor
