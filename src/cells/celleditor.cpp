// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/celleditor.h"

#include <utility>

namespace kor {

namespace {

//! Holds a flag while an object lives that a database's event loop, say, may end.
class HeldFlag
{
public:
    HeldFlag(QObject *owner, bool &flag) : m_owner(owner), m_flag(flag), m_before(std::exchange(flag, true)) {}
    ~HeldFlag()
    {
        if (m_owner)
            m_flag = m_before;
    }
    Q_DISABLE_COPY_MOVE(HeldFlag)

private:
    QPointer<QObject> m_owner;
    bool &m_flag;
    bool m_before;
};

} // namespace

CellEditor::CellEditor(QWidget *control) : QObject(control), m_control(control) { control->hide(); }

QWidget *CellEditor::box() const
{
    QWidget *box = m_control;
    while (box && box->focusProxy())
        box = box->focusProxy();
    return box;
}

void CellEditor::setName(const QString &name) { box()->setAccessibleName(name); }

void CellEditor::silently(const std::function<void()> &act)
{
    const HeldFlag silent(this, m_isSilent);
    act();
}

void CellEditor::setUp(const CellSetup &setup)
{
    silently([&] { applySetup(setup); });
}

void CellEditor::fill(const CellContents &contents)
{
    silently([&] { applyContents(contents); });
}

void CellEditor::controlChanged()
{
    if (!m_isSilent)
        Q_EMIT Changed();
}

} // namespace kor
