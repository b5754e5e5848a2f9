// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/popupform.h"

#include "constituents/accessiblefield.h"
#include "constituents/errorguard.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

namespace kor {

PopupForm::PopupForm(QWidget *control) : QFrame(control, Qt::Popup | Qt::FramelessWindowHint)
{
    control->installEventFilter(this);
}

QRect PopupForm::controlPlace() const { return {parentWidget()->mapToGlobal(QPoint(0, 0)), parentWidget()->size()}; }

const QScreen &PopupForm::controlScreen() const
{
    const QScreen *screen = QGuiApplication::screenAt(controlPlace().center());
    return screen ? *screen : *parentWidget()->screen();
}

void PopupForm::dismiss()
{
    const QPointer<PopupForm> self = this;
    m_isClosing = true;
    closeAbove();
    if (!self)
        return;
    hide();
    if (!self)
        return;
    m_isClosing = false;
    Q_EMIT Closed();
}

//! Closes what has popped up from the window in turn, such as its menus, which would stay on the screen without it.
void PopupForm::closeAbove()
{
    const QPointer<PopupForm> self = this;
    QWidget *above = isVisible() ? QApplication::activePopupWidget() : nullptr;
    while (self && above && above != this && above->close())
        above = QApplication::activePopupWidget();
}

void PopupForm::dismissSoon()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            guarded(this, [this] {
                if (isVisible())
                    dismiss();
            });
        },
        Qt::QueuedConnection);
}

// --- what the program does meanwhile

bool PopupForm::eventFilter(QObject *watched, QEvent *event)
{
    if (isVisible() && watched == parent() && event->type() == QEvent::Hide)
        dismissSoon();
    return QFrame::eventFilter(watched, event);
}

void PopupForm::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    // Disabled with its control, it would hold keyboard and mouse and take no key or click that could close it.
    if (event->type() == QEvent::EnabledChange && !isEnabled() && isVisible())
        dismissSoon();
}

// --- what the user does

void PopupForm::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (!rect().contains(event->position().toPoint()))
        guarded(this, [this] { dismiss(); });
}

void PopupForm::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    tellExpanded(parentWidget());
}

void PopupForm::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    tellExpanded(parentWidget());
    if (m_isClosing || event->spontaneous())
        return;
    QMetaObject::invokeMethod(
        this, [this] { guarded(this, [this] { Q_EMIT Closed(); }); }, Qt::QueuedConnection);
}

} // namespace kor
