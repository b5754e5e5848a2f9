// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/surfacetyping.h"

#include "cells/cellsession.h"
#include "constituents/errorguard.h"
#include "constituents/keycodes.h"

#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

#include <utility>

namespace kor {

SurfaceTyping::SurfaceTyping(QAbstractScrollArea *surface, CellSession &session, Open open)
    : QObject(surface), m_surface(surface), m_session(session), m_open(std::move(open))
{
    surface->installEventFilter(this);
}

bool SurfaceTyping::openToType()
{
    const QPointer<SurfaceTyping> self = this;
    return m_open() && self && m_session.state() == CellSession::State::Open;
}

bool SurfaceTyping::type(const QString &text)
{
    if (!openToType())
        return false;
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QApplication::sendEvent(m_session.editor()->box(), &typed);
    return true;
}

bool SurfaceTyping::compose(QInputMethodEvent *event)
{
    if (!openToType())
        return false;
    QApplication::sendEvent(m_session.editor()->box(), event);
    return true;
}

bool SurfaceTyping::begin(int keyCode)
{
    if (!openToType())
        return false;
    QWidget *box = m_session.editor()->box();
    if (keyCode == Key::F2) { // goes on with what is there
        if (auto *line = qobject_cast<QLineEdit *>(box))
            line->end(false);
        return true;
    }
    if (auto *lines = qobject_cast<QPlainTextEdit *>(box)) // which is entered with the caret at its end
        lines->selectAll();
    QKeyEvent typed(QEvent::KeyPress, toolkitKey(Key::Delete), Qt::NoModifier);
    QApplication::sendEvent(box, &typed);
    return true;
}

bool SurfaceTyping::eventFilter(QObject *watched, QEvent *event)
{
    const QPointer<SurfaceTyping> self = this;
    bool isDone = false;
    if (watched != m_surface)
        return false;
    if (event->type() == QEvent::InputMethodQuery) {
        answer(*static_cast<QInputMethodQueryEvent *>(event));
        return true;
    }
    if (event->type() == QEvent::InputMethod) {
        guarded(m_surface, [&] { isDone = compose(static_cast<QInputMethodEvent *>(event)); });
    } else if (event->type() == QEvent::KeyPress) {
        const QString typed = static_cast<QKeyEvent *>(event)->text();
        if (!typed.isEmpty() && typed.front().isSurrogate())
            guarded(m_surface, [&] { isDone = type(typed); });
    }
    return isDone || !self; // a handler may have ended the composite, which must hear of nothing more
}

// The toolkit's view would say that its cells are not edited.
void SurfaceTyping::answer(QInputMethodQueryEvent &query) const
{
    for (unsigned bit = 0; bit < 32; ++bit) {
        const auto one = static_cast<Qt::InputMethodQuery>(1U << bit);
        if (query.queries() & one)
            query.setValue(one, one == Qt::ImEnabled ? QVariant(true) : m_surface->inputMethodQuery(one));
    }
}

bool beginsTyping(int keyCode, int shift)
{
    return shift == ShiftState::None && (keyCode == Key::Delete || keyCode == Key::Backspace || keyCode == Key::F2);
}

} // namespace kor
