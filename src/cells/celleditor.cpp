// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/celleditor.h"

#include "constituents/refusal.h"

#include <QtCore/QScopeGuard>

namespace kor {

CellEditor::CellEditor(QWidget *control) : QObject(control), m_control(control) { control->hide(); }

QWidget *CellEditor::box() const
{
    QWidget *box = m_control;
    while (box && box->focusProxy())
        box = box->focusProxy();
    return box;
}

void CellEditor::setName(const QString &name, const QString &place)
{
    box()->setAccessibleName(name);
    box()->setAccessibleDescription(place);
}

// While a database is waited for, the user may go to another cell and edit there, with this editor: that is to be
// heard, so the silence ends with whatever was begun last.
bool CellEditor::silently(const std::function<void()> &act)
{
    const QPointer<CellEditor> self = this;
    const int number = ++m_silences;
    m_isSilent = true;
    const auto end = qScopeGuard([&] {
        if (self)
            m_isSilent = false;
    });
    act();
    return self && m_silences == number;
}

bool CellEditor::setUp(const CellSetup &setup)
{
    return silently([&] { applySetup(setup); });
}

void CellEditor::fill(const CellContents &contents)
{
    setRefusal(box(), QString()); // that of another cell
    (void)silently([&] { applyContents(contents); });
}

void CellEditor::controlChanged()
{
    if (!m_isSilent)
        Q_EMIT Changed();
}

} // namespace kor
