// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/accessiblefield.h"

#include "constituents/fieldname.h"
#include "constituents/refusal.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QLabel>

namespace kor {

QString AccessibleField::text(QAccessible::Text kind) const
{
    const QWidget *box = widget();
    if (kind == QAccessible::Name)
        return fieldName(box);
    if (kind == QAccessible::Accelerator) {
        const QLabel *label = labelOf(box);
        return label ? QKeySequence::mnemonic(label->text()).toString(QKeySequence::NativeText) : QString();
    }
    const QString own = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Description)
        return own;
    const QString why = refusalOf(box);
    return !why.isEmpty() ? why : own.isEmpty() ? controlOf(box)->toolTip() : own;
}

QAccessible::State AccessibleField::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.invalid = !refusalOf(widget()).isEmpty();
    return state;
}

AccessibleField::Relations AccessibleField::relations(QAccessible::Relation match) const
{
    Relations all = QAccessibleWidget::relations(match);
    // The toolkit sees to the labels beside the box; that of its control stands further out.
    const QLabel *label = match.testFlag(QAccessible::Label) ? labelOf(widget()) : nullptr;
    if (label && label->buddy() != widget())
        all.append({QAccessible::queryAccessibleInterface(const_cast<QLabel *>(label)), QAccessible::Label});
    return all;
}

void tellExpanded(QWidget *control)
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace kor
