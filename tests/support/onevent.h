// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QEvent>
#include <QtCore/QObject>

#include <functional>
#include <utility>

namespace kor::test {

//! Calls back at each event of a kind that an object gets, before the object has it.
class OnEvent : public QObject
{
public:
    OnEvent(QObject *watched, QEvent::Type type, std::function<void()> call) : m_type(type), m_call(std::move(call))
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type)
            m_call();
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_call;
};

} // namespace kor::test
