// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/contextpress.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>

#include <utility>

namespace kor {

namespace {

class ActionBeforeEvent final : public QObject
{
public:
    ActionBeforeEvent(QWidget *surface, std::function<void()> action) : QObject(surface), m_action(std::move(action))
    {
        surface->installEventFilter(this);
        QMetaObject::invokeMethod(
            this, [this] { act(); }, Qt::QueuedConnection);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isInput = event->type() == QEvent::ContextMenu || event->type() == QEvent::KeyPress ||
                             dynamic_cast<QMouseEvent *>(event);
        if (!isInput)
            return false;
        const QPointer<QObject> surface = watched;
        act();
        if (!surface)
            event->accept();
        return !surface;
    }

private:
    void act()
    {
        parent()->removeEventFilter(this);
        deleteLater();
        if (const auto action = std::exchange(m_action, nullptr)) // this may be gone with the surface afterwards
            action();
    }

    std::function<void()> m_action;
};

} // namespace

// A press that a program makes up is given to the widget alone, and no context menu follows.
bool isContextMenuDue(const QMouseEvent &press)
{
    return press.button() == Qt::RightButton && QGuiApplication::mouseButtons().testFlag(Qt::RightButton);
}

void actBeforeNextEvent(QWidget *surface, std::function<void()> action)
{
    new ActionBeforeEvent(surface, std::move(action));
}

} // namespace kor
