// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/refusal.h"

#include <QtCore/QVariant>
#include <QtGui/QAccessible>
#include <QtWidgets/QWidget>

namespace kor {

namespace {
constexpr char refusal[] = "_kor_refusal";
}

QString refusalOf(const QWidget *box) { return box->property(refusal).value<QString>(); }

void setRefusal(QWidget *box, const QString &why)
{
    if (refusalOf(box) == why)
        return;
    box->setProperty(refusal, why.isEmpty() ? QVariant() : QVariant(why));
    QAccessible::State changed;
    changed.invalid = true;
    QAccessibleStateChangeEvent state(box, changed);
    QAccessible::updateAccessibility(&state);
    QAccessibleEvent description(box, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&description);
}

} // namespace kor
