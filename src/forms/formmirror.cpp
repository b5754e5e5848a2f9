// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formmirror.h"

#include <QtCore/QEvent>

#include <utility>

namespace kor {

FormMirror::FormMirror(QWidget *frame) : QObject(frame), m_frame(frame)
{
    follow();
    frame->installEventFilter(this);
}

void FormMirror::place(QWidget *widget, const QRect &place)
{
    follow();
    widget->resize(place.size()); // which may leave it another size than the one asked for
    widget->move(m_measure.turned(place.x(), widget->width()), place.y());
    m_widgets.emplace_back(widget);
}

QPoint FormMirror::position(const QWidget &widget) const
{
    if (widget.parentWidget() != m_frame)
        return widget.pos(); // the host has taken it elsewhere
    return {m_measure.turned(widget.x(), widget.width()), widget.y()};
}

bool FormMirror::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange)
        follow();
    return false;
}

void FormMirror::follow()
{
    const Measure now{m_frame->width(), m_frame->isRightToLeft()};
    const Measure before = std::exchange(m_measure, now);
    if (now == before)
        return;
    for (const QPointer<QWidget> &widget : m_widgets) {
        if (widget && widget->parentWidget() == m_frame)
            widget->move(now.turned(before.turned(widget->x(), widget->width()), widget->width()), widget->y());
    }
}

} // namespace kor
