// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/accessibletext.h"

#include "constituents/errorguard.h"
#include "constituents/multilinetextbox.h"
#include "constituents/spinbuttons.h"
#include "constituents/textbox.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace kor {

// --- any text

QString AccessibleText::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? shownText() : AccessibleField::text(kind);
}

void AccessibleText::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        type(0, characterCount(), text);
    else
        AccessibleField::setText(kind, text);
}

void *AccessibleText::interface_cast(QAccessible::InterfaceType kind)
{
    if (kind == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (kind == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return AccessibleField::interface_cast(kind);
}

int AccessibleText::selectionCount() const
{
    int start = 0;
    int end = 0;
    selection(0, &start, &end);
    return end > start ? 1 : 0;
}

QString AccessibleText::text(int start, int end) const
{
    const QString all = shownText();
    const auto from = std::clamp<qsizetype>(start, 0, all.size());
    return all.mid(from, std::max<qsizetype>(0, (end < 0 ? all.size() : end) - from));
}

QString AccessibleText::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

// --- one line

AccessibleTextBox::AccessibleTextBox(TextBox *box) : AccessibleText(box, QAccessible::EditableText), m_box(box) {}

SpinButtons *AccessibleTextBox::spin() const
{
    const QWidget *around = m_box->parentWidget();
    return around ? around->findChild<SpinButtons *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

QAccessible::Role AccessibleTextBox::role() const { return spin() ? QAccessible::SpinBox : AccessibleText::role(); }

QAccessible::State AccessibleTextBox::state() const
{
    QAccessible::State state = AccessibleText::state();
    state.readOnly = m_box->Locked();
    state.editable = !m_box->Locked();
    state.selectableText = true;
    return state;
}

void *AccessibleTextBox::interface_cast(QAccessible::InterfaceType kind)
{
    if (kind == QAccessible::ValueInterface && spin())
        return static_cast<QAccessibleValueInterface *>(this);
    return AccessibleText::interface_cast(kind);
}

QString AccessibleTextBox::shownText() const { return m_box->text(); }

void AccessibleTextBox::type(int start, int length, const QString &text) { m_box->typeOver(start, length, text); }

void AccessibleTextBox::select(int start, int end) { m_box->setSelection(start, end - start); }

void AccessibleTextBox::selection(int, int *start, int *end) const
{
    *start = m_box->SelStart();
    *end = *start + m_box->SelLength();
}

int AccessibleTextBox::cursorPosition() const { return m_box->cursorPosition(); }
void AccessibleTextBox::setCursorPosition(int place) { m_box->setSelStart(place); }

QRect AccessibleTextBox::characterRect(int offset) const
{
    // The toolkit tells where the caret is; the rest lies beside it.
    const QString text = m_box->text();
    const QFontMetrics metrics = m_box->fontMetrics();
    const auto reach = [&](int place) { return metrics.horizontalAdvance(text, place); };
    QRect rect = m_box->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    rect.translate(reach(offset) - reach(m_box->cursorPosition()), 0);
    rect.setWidth(reach(offset + 1) - reach(offset));
    return {m_box->mapToGlobal(rect.topLeft()), rect.size()};
}

int AccessibleTextBox::offsetAtPoint(const QPoint &point) const
{
    const QPoint place = m_box->mapFromGlobal(point);
    return m_box->rect().contains(place) ? m_box->cursorPositionAt(place) : -1;
}

QVariant AccessibleTextBox::currentValue() const { return spin()->Value(); }

void AccessibleTextBox::setCurrentValue(const QVariant &value)
{
    const int wanted = value.toInt();
    if (spin()->range().contains(wanted))
        type(0, characterCount(), QString::number(wanted));
}

QVariant AccessibleTextBox::maximumValue() const { return spin()->Max(); }
QVariant AccessibleTextBox::minimumValue() const { return spin()->Min(); }
QVariant AccessibleTextBox::minimumStepSize() const { return spin()->Increment(); }

QStringList AccessibleTextBox::actionNames() const
{
    QStringList names = AccessibleText::actionNames();
    if (spin())
        names << increaseAction() << decreaseAction();
    return names;
}

void AccessibleTextBox::doAction(const QString &name)
{
    SpinButtons *arrows = spin();
    if (!arrows || (name != increaseAction() && name != decreaseAction()))
        AccessibleText::doAction(name);
    else if (arrows->isEnabled())
        guarded(arrows, [&] { arrows->step(name == increaseAction() ? 1 : -1); });
}

// --- several lines

AccessibleMultiLine::AccessibleMultiLine(MultiLineTextBox *box)
    : AccessibleText(box, QAccessible::EditableText), m_box(box)
{
}

QAccessible::State AccessibleMultiLine::state() const
{
    QAccessible::State state = AccessibleText::state();
    state.multiLine = true;
    state.readOnly = m_box->isReadOnly();
    state.editable = !m_box->isReadOnly();
    state.selectableText = true;
    return state;
}

QString AccessibleMultiLine::shownText() const
{
    // Not toPlainText(): it turns hard blanks into soft ones.
    return m_box->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void AccessibleMultiLine::type(int start, int length, const QString &text) { m_box->typeOver(start, length, text); }

void AccessibleMultiLine::select(int start, int end)
{
    const int last = characterCount();
    QTextCursor cursor = m_box->textCursor();
    cursor.setPosition(std::clamp(start, 0, last));
    cursor.setPosition(std::clamp(end, 0, last), QTextCursor::KeepAnchor);
    m_box->setTextCursor(cursor);
}

void AccessibleMultiLine::selection(int, int *start, int *end) const
{
    *start = m_box->textCursor().selectionStart();
    *end = m_box->textCursor().selectionEnd();
}

int AccessibleMultiLine::cursorPosition() const { return m_box->textCursor().position(); }
void AccessibleMultiLine::setCursorPosition(int place) { select(place, place); }

QRect AccessibleMultiLine::characterRect(int offset) const
{
    QTextCursor cursor(m_box->document());
    cursor.setPosition(std::clamp(offset, 0, characterCount()));
    QRect rect = m_box->cursorRect(cursor);
    if (cursor.movePosition(QTextCursor::NextCharacter)) {
        const QRect next = m_box->cursorRect(cursor);
        if (next.top() == rect.top())
            rect.setRight(next.left() - 1);
    }
    return {m_box->viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

int AccessibleMultiLine::offsetAtPoint(const QPoint &point) const
{
    const QPoint place = m_box->viewport()->mapFromGlobal(point);
    return m_box->viewport()->rect().contains(place) ? m_box->cursorForPosition(place).position() : -1;
}

} // namespace kor
