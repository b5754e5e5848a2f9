// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace orders {

//! Has a window mark the field with the focus from the beginning. The styles wait for the first key, and a window that
//! is shown forgets that one was pressed; who works by keyboard looks for the field before that.
class FocusMark : public QObject
{
public:
    explicit FocusMark(QWidget *window) : QObject(window), m_window(window) { window->installEventFilter(this); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate) {
            m_window->setAttribute(Qt::WA_KeyboardFocusChange);
            if (QWidget *field = m_window->focusWidget())
                field->update();
        }
        return false;
    }

private:
    QWidget *m_window;
};

} // namespace orders
