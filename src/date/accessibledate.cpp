// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/accessibledate.h"

#include "frame/accessiblecontrol.h"

#include <KorDaoUC/kordate.h>

namespace kor {

namespace {

class AccessibleDate final : public AccessibleControl
{
public:
    explicit AccessibleDate(KorDate *control) : AccessibleControl(control, QAccessible::ComboBox), m_control(control) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return m_control->Text();
        const QString own = AccessibleControl::text(kind);
        return kind == QAccessible::Description && own.isEmpty() ? m_control->ToolTipText() : own;
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleControl::state();
        const auto *month = m_control->findChild<QWidget *>(QStringLiteral("frmMonth"));
        const bool isOpen = month && month->isVisible();
        state.editable = !m_control->Locked();
        state.readOnly = m_control->Locked();
        state.hasPopup = m_control->EnabledClick();
        state.expandable = m_control->EnabledClick();
        state.expanded = isOpen;
        state.collapsed = !isOpen;
        return state;
    }

private:
    KorDate *m_control;
};

QAccessibleInterface *make(const QString &, QObject *object)
{
    auto *control = qobject_cast<KorDate *>(object);
    return control ? new AccessibleDate(control) : nullptr;
}

} // namespace

void makeDatesAccessible() { QAccessible::installFactory(make); }

} // namespace kor
