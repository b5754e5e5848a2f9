// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/accessiblecombobox.h"

#include "constituents/combobox.h"
#include "constituents/errorguard.h"
#include "constituents/focustracker.h"

#include <QtWidgets/QAbstractItemView>

#include <algorithm>

namespace kor {

AccessibleComboBox::AccessibleComboBox(ComboBox *box) : AccessibleField(box, QAccessible::ComboBox), m_box(box) {}

QString AccessibleComboBox::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_box->List(m_box->ListIndex()) : AccessibleField::text(kind);
}

void AccessibleComboBox::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        m_box->choose(m_box->indexOf(text));
    else
        AccessibleField::setText(kind, text);
}

QAccessible::State AccessibleComboBox::state() const
{
    QAccessible::State state = AccessibleField::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = m_box->isDropped();
    state.collapsed = !m_box->isDropped();
    return state;
}

void *AccessibleComboBox::interface_cast(QAccessible::InterfaceType kind)
{
    return kind == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                              : AccessibleField::interface_cast(kind);
}

// --- the list

int AccessibleComboBox::childCount() const { return m_box->list() ? 1 : 0; }

QAccessibleInterface *AccessibleComboBox::child(int index) const
{
    return index == 0 && m_box->list() ? QAccessible::queryAccessibleInterface(m_box->list()) : nullptr;
}

int AccessibleComboBox::indexOfChild(const QAccessibleInterface *child) const
{
    return m_box->list() && child && child->object() == m_box->list() ? 0 : -1;
}

QStringList AccessibleComboBox::actionNames() const { return {showMenuAction(), pressAction(), setFocusAction()}; }

void AccessibleComboBox::doAction(const QString &name)
{
    if (name != showMenuAction() && name != pressAction()) {
        AccessibleField::doAction(name);
        return;
    }
    guarded(m_box, [box = m_box] {
        if (box->isDropped())
            box->hidePopup();
        else if (FocusTracker::instance().giveKeyboard(box))
            box->showPopup();
    });
}

// --- the entry as a text

QString AccessibleComboBox::text(int start, int end) const
{
    const QString all = text(QAccessible::Value);
    const auto from = std::clamp<qsizetype>(start, 0, all.size());
    return all.mid(from, std::max<qsizetype>(0, (end < 0 ? all.size() : end) - from));
}

int AccessibleComboBox::characterCount() const { return static_cast<int>(text(QAccessible::Value).size()); }

QString AccessibleComboBox::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace kor
