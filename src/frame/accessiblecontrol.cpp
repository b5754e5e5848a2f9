// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "frame/accessiblecontrol.h"

#include "constituents/fieldname.h"

#include <KorDaoUC/usercontrol.h>

namespace kor {

QString AccessibleControl::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? fieldName(widget()) : QAccessibleWidget::text(kind);
}

QAccessible::State AccessibleControl::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = false;
    state.focused = false;
    return state;
}

namespace {

QAccessibleInterface *make(const QString &, QObject *object)
{
    auto *control = qobject_cast<UserControl *>(object);
    return control ? new AccessibleControl(control) : nullptr;
}

} // namespace

void makeControlsAccessible() { QAccessible::installFactory(make); }

} // namespace kor
