// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/multilinetextbox.h"

#include "constituents/accessiblefield.h"
#include "constituents/characters.h"
#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/keyoffer.h"
#include "constituents/linebreaks.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <limits>
#include <utility>

namespace kor {

namespace {

QString plainTextOf(const QTextDocument &document)
{
    // Not toPlainText(): it turns hard blanks into soft ones.
    return document.toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

} // namespace

MultiLineTextBox::MultiLineTextBox(QWidget *parent) : QPlainTextEdit(parent)
{
    makeConstituentsAccessible();
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        m_isChangePending = true;
        m_change.raise();
    });
}

void MultiLineTextBox::raiseChange()
{
    if (std::exchange(m_isChangePending, false))
        Q_EMIT Change();
}

void MultiLineTextBox::setFrameless(int left, int right)
{
    setFrameShape(NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // it would break the lines earlier
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    constexpr int keptFree = 1; // by the toolkit below the last line, which would be scrolled out for it
    setViewportMargins(left, 0, right, -keptFree);
    setBackgroundRole(QPalette::Base); // of the sides
    setAutoFillBackground(true);
}

QString MultiLineTextBox::Text() const { return fromEditorText(plainTextOf(*document()), m_original); }

void MultiLineTextBox::setProgramText(const QString &text)
{
    const bool isNew = text != Text();
    editing([&] {
        m_original = text;
        setPlainText(toEditorText(text));
        m_isChangePending = isNew;
    });
}

int MultiLineTextBox::SelStart() const { return fromEditorPosition(Text(), textCursor().selectionStart()); }

void MultiLineTextBox::setSelStart(int start)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(toEditorPosition(Text(), start));
    setTextCursor(cursor);
}

int MultiLineTextBox::SelLength() const { return fromEditorPosition(Text(), textCursor().selectionEnd()) - SelStart(); }

void MultiLineTextBox::setSelLength(int length)
{
    const QString text = Text();
    const int start = SelStart();
    QTextCursor cursor = textCursor();
    cursor.setPosition(toEditorPosition(text, start));
    cursor.setPosition(toEditorPosition(text, start + std::max(0, length)), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void MultiLineTextBox::setMaxLength(int length)
{
    if (length < 0)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    m_maxLength = length;
}

int MultiLineTextBox::room() const
{
    return m_maxLength == 0 ? std::numeric_limits<int>::max()
                            : std::max(0, m_maxLength - static_cast<int>(Text().size()) + SelLength());
}

QString MultiLineTextBox::fitting(const QString &text) const
{
    return fittingText(text, lineBreakOf(m_original), room());
}

// --- keyboard

void MultiLineTextBox::keyPressEvent(QKeyEvent *event)
{
    onInput(this, event, [&] {
        const QPointer<MultiLineTextBox> self = this;
        endComposing();
        if (self)
            press(event);
    });
}

void MultiLineTextBox::press(QKeyEvent *event)
{
    const KeyOffer key = raiseKeyDown(this, *event); // Enter and Escape are the editor's own, not the form's
    if (key.answer == KeyOffer::Answer::Swallow)
        return;
    if (key.answer == KeyOffer::Answer::ActAs) {
        actAs(key.code, key.shift, event);
    } else if (const int ascii = keyAscii(*event)) {
        offerCharacter(ascii, event);
    } else {
        QKeyEvent plain = withoutText(*event);
        editing([&] { QPlainTextEdit::keyPressEvent(&plain); });
        event->setAccepted(plain.isAccepted());
    }
}

void MultiLineTextBox::actAs(int code, int shift, QKeyEvent *event)
{
    if (const char16_t character = plainCharacter(code, shift); character && !(shift & ~ShiftState::Shift)) {
        offerCharacter(character, event);
    } else if (code == Key::Enter && shift == ShiftState::None) {
        offerCharacter(Key::Enter, event);
    } else {
        QKeyEvent other(QEvent::KeyPress, toolkitKey(code), modifiersOf(shift));
        editing([&] { QPlainTextEdit::keyPressEvent(&other); });
    }
}

void MultiLineTextBox::offerCharacter(int ascii, QKeyEvent *event)
{
    const QPointer<MultiLineTextBox> self = this;
    const int own = keyAscii(*event);
    Q_EMIT KeyPress(ascii);
    if (!self || ascii == 0 || isReadOnly())
        return;
    if (ascii == Key::Enter)
        type(QStringLiteral("\n"));
    else if (ascii == own && ascii >= Key::Space)
        type(event->text());
    else if (ascii >= Key::Space && !QChar::isSurrogate(static_cast<char32_t>(ascii)))
        type(QString(QChar(static_cast<char16_t>(ascii))));
    else if (ascii == own)
        editing([&] { QPlainTextEdit::keyPressEvent(event); });
}

void MultiLineTextBox::type(const QString &text)
{
    if (fitting(text).size() < text.size())
        return;
    editing([&] {
        insertPlainText(text);
        ensureCursorVisible();
    });
}

void MultiLineTextBox::offerCharacters(const QString &text)
{
    const QPointer<MultiLineTextBox> self = this;
    for (qsizetype at = 0; self && at < text.size();) {
        const QString character = characterAt(text, at);
        at += character.size();
        QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, character);
        const bool isBreak = character == QLatin1String("\n");
        offerCharacter(isBreak ? int(Key::Enter) : int(character.front().unicode()), &typed);
    }
}

void MultiLineTextBox::typeOver(int start, int length, const QString &typed)
{
    const QPointer<MultiLineTextBox> self = this;
    guarded(this, [&] {
        if (!FocusTracker::instance().giveKeyboard(this) || isReadOnly())
            return;
        endComposing();
        if (!self)
            return;
        const int last = static_cast<int>(toPlainText().size());
        QTextCursor part = textCursor();
        part.setPosition(std::clamp(start, 0, last));
        part.setPosition(std::clamp(start + length, 0, last), QTextCursor::KeepAnchor);
        setTextCursor(part);
        if (typed.isEmpty())
            editing([&] { textCursor().removeSelectedText(); });
        else
            offerCharacters(fitting(toEditorText(typed)));
    });
}

void MultiLineTextBox::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    if (isReadOnly()) {
        // The toolkit would take the text, and leave standing what was being composed when the lock came.
        QInputMethodEvent nothing;
        compose(&nothing);
        event->ignore();
        return;
    }
    if (committed.isEmpty()) {
        compose(event);
        return;
    }
    // Dead keys and input methods deliver finished characters; each goes through KeyPress like a typed one.
    const QPointer<MultiLineTextBox> self = this;
    guarded(this, [&] {
        if (!FocusTracker::instance().settle() || !self)
            return;
        QInputMethodEvent composed{QString(), {}};
        composed.setCommitString(QString(), event->replacementStart(), event->replacementLength());
        compose(&composed);
        offerCharacters(fitting(committed));
        if (self && !event->preeditString().isEmpty()) {
            QInputMethodEvent composing(event->preeditString(), event->attributes());
            compose(&composing);
        }
    });
    event->accept();
}

void MultiLineTextBox::compose(QInputMethodEvent *event)
{
    m_isComposing = !event->preeditString().isEmpty();
    editing([&] { QPlainTextEdit::inputMethodEvent(event); });
}

void MultiLineTextBox::endComposing()
{
    const QPointer<MultiLineTextBox> self = this;
    if (!m_isComposing)
        return;
    QGuiApplication::inputMethod()->commit();
    QInputMethodEvent nothing;
    if (self && m_isComposing)
        compose(&nothing);
}

void MultiLineTextBox::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    guarded(this, [&] { raiseKeyUp(this, *event); });
}

void MultiLineTextBox::insertFromMimeData(const QMimeData *source)
{
    guarded(this, [&] {
        editing([&] {
            insertPlainText(fitting(toEditorText(source->text())));
            ensureCursorVisible();
        });
    });
}

} // namespace kor
