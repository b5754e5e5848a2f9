// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "cells/cellsession.h"

#include "constituents/focustracker.h"
#include "constituents/multilinetextbox.h"
#include "constituents/twips.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <utility>

namespace kor {

namespace {

//! Where the user is typing in a field, to be kept over a program's text: at the end, or behind so many characters, or
//! over all of it.
class TypingPlace
{
public:
    TypingPlace(QWidget *box, bool isFresh) : m_box(box)
    {
        if (const auto *line = qobject_cast<const QLineEdit *>(box)) {
            m_isOverAll =
                line->hasSelectedText() ? line->selectedText() == line->text() : isFresh && line->text().isEmpty();
            m_isAtEnd = line->cursorPosition() == line->text().size();
            m_place = line->cursorPosition();
        } else if (const auto *lines = qobject_cast<const MultiLineTextBox *>(box)) {
            m_isAtEnd = lines->textCursor().atEnd();
            m_place = lines->SelStart();
        }
    }
    void restore() const
    {
        if (auto *line = qobject_cast<QLineEdit *>(m_box.data())) {
            if (m_isOverAll)
                line->selectAll();
            else
                line->setCursorPosition(m_isAtEnd ? static_cast<int>(line->text().size()) : m_place);
        } else if (auto *lines = qobject_cast<MultiLineTextBox *>(m_box.data())) {
            if (m_isAtEnd)
                lines->moveCursor(QTextCursor::End);
            else
                lines->setSelStart(m_place);
        }
    }

private:
    QPointer<QWidget> m_box;
    int m_place = 0;
    bool m_isAtEnd = false;
    bool m_isOverAll = false;
};

} // namespace

CellSession::CellSession(QAbstractScrollArea *surface) : QObject(surface), m_surface(surface)
{
    room()->installEventFilter(this);
    surface->installEventFilter(this);
}

QWidget *CellSession::room() const { return m_surface->viewport(); }

void CellSession::add(CellEditor *editor)
{
    connect(editor, &CellEditor::Changed, this, [this, editor] {
        if (hears(editor))
            report();
    });
    connect(editor, &CellEditor::KeyDown, this, [this, editor](int &code, int &shift) {
        if (hears(editor))
            Q_EMIT KeyDown(code, shift);
    });
    connect(editor, &CellEditor::Reread, this, [this, editor] {
        if (hears(editor))
            m_seen = look();
    });
    connect(editor, &CellEditor::ChooserAsked, this, [this, editor] {
        if (hears(editor))
            Q_EMIT ChooserAsked();
    });
    connect(editor, &QObject::destroyed, this, [this] {
        if (!m_editor)
            m_state = State::Closed;
    });
    editor->box()->installEventFilter(this);
}

// --- opening

void CellSession::open(CellEditor *editor, CellAddress cell, const EditorBox &box, const CellContents &contents,
                       Keyboard keyboard)
{
    const QPointer<CellSession> self = this;
    m_state = State::Opening;
    m_editor = editor;
    m_cell = cell;
    m_isTouched = false;
    place(box); // first: a number is filled into the width that it has
    editor->fill(contents);
    if (!self || m_state != State::Opening)
        return;
    m_seen = look();
    editor->control()->show();
    editor->control()->raise();
    showCell(editor->control());
    m_state = State::Open;
    setKeyboardBeside(editor->box());
    if (keyboard == Keyboard::Take)
        FocusTracker::instance().moveUnasked(editor->box());
}

QPointer<QWidget> CellSession::keyboardPlace() const { return m_surface->window()->focusWidget(); }

bool CellSession::isStillWanted(Keyboard keyboard, const QWidget *before) const
{
    const QWidget *now = m_surface->window()->focusWidget();
    const bool isGone = now && now != before && !m_surface->parentWidget()->isAncestorOf(now);
    return !isGone || keyboard == Keyboard::Leave;
}

void CellSession::refill(const CellContents &contents)
{
    if (m_state != State::Open)
        return;
    const QPointer<CellSession> self = this;
    const TypingPlace typing(m_editor->box(), !m_isTouched);
    m_editor->fill(contents);
    if (!self || m_state != State::Open)
        return;
    typing.restore();
    m_seen = look();
}

void CellSession::place(const EditorBox &box)
{
    if (!m_editor)
        return;
    QWidget *control = m_editor->control();
    const int top = toPixelsY(m_surface, Twips(box.top));
    const int room = box.height ? toPixelsY(m_surface, Twips(*box.height)) : 0;
    const bool isAsHighAsTheFont = !box.height || m_editor->hasOwnHeight();
    const int height = isAsHighAsTheFont ? control->sizeHint().height() : room;
    const int above = box.height ? (room - height) / 2 : 0;
    const QPoint area = m_surface->viewport()->mapTo(m_surface->parentWidget(), QPoint());
    control->setGeometry(toPixelsX(m_surface, Twips(box.left)) - area.x(), top + above - area.y(),
                         toPixelsX(m_surface, Twips(box.width)), height);
}

//! Repaints around an editor, where the text of its cell is seen only while none lies over it.
void CellSession::showCell(const QWidget *control)
{
    constexpr int around = 4;
    QWidget *area = m_surface->viewport();
    area->update(control->x() - around, 0, control->width() + 2 * around, area->height());
}

void CellSession::setKeyboardBeside(QWidget *taker)
{
    for (QWidget *part : m_surface->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (part != m_surface->viewport())
            part->setFocusProxy(taker);
    }
}

// --- while it is open

void CellSession::report()
{
    if (m_editor->isBeingPrepared())
        return; // left while the list is waited for, which is empty until then
    Seen now = look();
    if (now == m_seen)
        return;
    // What a field refuses when it is left it erases where it cannot keep the user. The cell keeps it, to be found.
    if (now.text.isEmpty() && !canBeCorrected())
        return;
    m_seen = std::move(now);
    m_isTouched = true;
    Q_EMIT Edited();
}

bool CellSession::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    const bool isRelease = event->type() == QEvent::KeyRelease;
    if (watched == room())
        return (isPress || isRelease) && passOn(static_cast<QKeyEvent *>(event));
    if (watched == m_surface) // the release of a key that closed the editor is none of the surface's
        return isRelease && m_keyDown != 0 && std::exchange(m_keyDown, 0) == static_cast<QKeyEvent *>(event)->key();
    if (isPress || isRelease)
        m_keyDown = isPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (event->type() != QEvent::Wheel)
        return false;
    // The wheel scrolls the grid, and never changes a value under it.
    auto *wheel = static_cast<QWheelEvent *>(event);
    QApplication::sendEvent(m_surface->viewport(), wheel);
    return true;
}

//! A key that an open editor has left over is none of the surface's around it, which would move by it or tell of it:
//! it is the form's, as a key of any field is. But for Tab, by which the composite goes on.
bool CellSession::passOn(QKeyEvent *event) const
{
    if (!isOpen() || event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        return false;
    QWidget *form = m_surface->parentWidget()->isWindow() ? nullptr : m_surface->parentWidget()->parentWidget();
    if (form)
        QApplication::sendEvent(form, event);
    event->accept(); // or the toolkit would go on with the surface
    return true;
}

bool CellSession::hasErased() const
{
    return isOpen() && m_isTouched && m_editor->text().isEmpty() && !m_seen.text.isEmpty() && !canBeCorrected();
}

bool CellSession::canBeCorrected() const { return m_editor->box()->isVisible() && m_editor->box()->isEnabled(); }

bool CellSession::hasKeyboard() const
{
    const QWidget *focused = m_surface->window()->focusWidget();
    const QWidget *control = m_editor ? m_editor->control() : nullptr;
    return focused && control && (control == focused || control->isAncestorOf(focused));
}

// --- its end

bool CellSession::leave()
{
    if (m_state == State::Closed)
        return true;
    if (m_state != State::Open)
        return false; // whoever asks is called by what is being done just now
    const QPointer<CellSession> self = this;
    const QPointer<CellEditor> left = m_editor;
    // Without the keyboard, it was taken from an editor by disabling it for a while.
    if (hasKeyboard() || (m_isTouched && canBeCorrected())) {
        m_state = State::Leaving;
        const bool mayGo = FocusTracker::instance().askToLeave(m_editor->box());
        if (!self || m_state != State::Leaving || m_editor != left)
            return false; // the message was up, and meanwhile the host has ended it
        m_state = State::Open;
        if (m_isTouched)
            report(); // as the editor has formatted it
        if (!mayGo || !self || m_state != State::Open)
            return false;
    }
    finish();
    return self && m_state == State::Closed;
}

bool CellSession::leaveToGoOn()
{
    const QPointer<CellSession> self = this;
    return leave() && self && m_surface->isVisible() && m_surface->isEnabled();
}

void CellSession::finish()
{
    if (m_state != State::Open)
        return;
    const QPointer<CellSession> self = this;
    if (m_isTouched)
        report();
    if (!self || m_state != State::Open)
        return;
    m_state = State::Leaving;
    Q_EMIT Closing();
    if (self)
        close();
}

void CellSession::complete()
{
    if (m_state != State::Open || !m_isTouched)
        return;
    const QPointer<CellSession> self = this;
    m_editor->complete();
    if (self && m_state == State::Open)
        report();
}

void CellSession::finishUnasked()
{
    const QPointer<CellSession> self = this;
    complete();
    if (self)
        finish();
}

void CellSession::abandon()
{
    if (m_state != State::Closed)
        close();
}

void CellSession::close()
{
    const QPointer<CellEditor> closed = m_editor;
    const bool goesOn = hasKeyboard();
    m_state = State::Closed;
    m_editor = nullptr;
    setKeyboardBeside(m_surface);
    if (!closed)
        return;
    if (goesOn) // before it is hidden, or the toolkit would send the keyboard to a neighbour
        FocusTracker::instance().moveUnasked(m_surface);
    if (!closed || !closed->control())
        return;
    closed->control()->hide();
    showCell(closed->control());
}

} // namespace kor
