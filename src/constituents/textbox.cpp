// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/textbox.h"

#include "constituents/accessiblefield.h"
#include "constituents/characters.h"
#include "constituents/contextpress.h"
#include "constituents/enumcheck.h"
#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/keyoffer.h"
#include "constituents/mouse.h"
#include "constituents/refusal.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <limits>
#include <memory>

namespace kor {

TextBox::TextBox(QWidget *parent) : QLineEdit(parent)
{
    makeConstituentsAccessible();
    setMouseTracking(true);                                   // MouseMove comes without a button too
    QLineEdit::setMaxLength(std::numeric_limits<int>::max()); // the toolkit would cut a program's text otherwise
    connect(this, &QLineEdit::textChanged, this, [this] {
        m_isChangePending = true;
        m_change.raise();
    });
    connect(this, &QLineEdit::textChanged, this, [this] {
        m_leftSelection.reset();
        m_composedOver.reset();
    });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { m_leftSelection.reset(); });
}

void TextBox::raiseChange()
{
    if (!std::exchange(m_isChangePending, false))
        return;
    setRefusal(this, QString());
    Q_EMIT Change();
}

void TextBox::setProgramText(const QString &text)
{
    editing([&] {
        setText(text);
        setCursorPosition(0);
    });
}

void TextBox::setTextKeepingCaret(const QString &text)
{
    editing([&] {
        const int caret = cursorPosition();
        setText(text);
        setSelStart(caret);
    });
}

void TextBox::setSelText(const QString &text)
{
    const Selection replaced = selection(); // which may be kept in mind only
    setSelection(replaced.start, replaced.length);
    replaceSelection(text);
}

//! The toolkit tells of a new text when nothing is put in place of nothing, too.
void TextBox::replaceSelection(const QString &text)
{
    if (!text.isEmpty() || hasSelectedText())
        editing([&] { insert(text); });
}

TextBox::Selection TextBox::selection() const
{
    if (hasSelectedText())
        return {selectionStart(), selectionLength()};
    return m_leftSelection.value_or(Selection{cursorPosition(), 0});
}

int TextBox::SelStart() const { return selection().start; }

void TextBox::setSelStart(int start)
{
    m_leftSelection.reset();
    setCursorPosition(place(std::clamp(start, 0, TextLength())));
}

void TextBox::setSelLength(int length)
{
    const int start = SelStart();
    const int end = place(start + std::clamp(length, 0, TextLength() - start));
    setSelection(start, end - start);
}

int TextBox::place(int place) const { return static_cast<int>(placeOfCharacter(text(), place)); }

void TextBox::setMaxLength(int length)
{
    if (length < 0)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    m_maxLength = length;
}

void TextBox::setLocked(bool locked)
{
    if (locked && !isReadOnly()) {
        // What is being composed can't be finished any more; left standing, it would come into the text all the same.
        if (hasFocus())
            QGuiApplication::inputMethod()->reset();
        compose({QString(), {}});
    }
    setReadOnly(locked);
}

void TextBox::setBorderStyle(BorderStyleType style)
{
    requireMember(style);
    m_border = style;
    updateFrame();
}

void TextBox::setAppearance(AppearanceType appearance)
{
    requireMember(appearance);
    m_appearance = appearance;
    updateFrame();
}

void TextBox::updateFrame()
{
    setFrame(m_border == BorderStyleType::FixedSingle && m_appearance == AppearanceType::A3D);
    update();
}

AlignmentType TextBox::Alignment() const
{
    if (alignment().testFlag(Qt::AlignRight))
        return AlignmentType::Right_Justify;
    return alignment().testFlag(Qt::AlignHCenter) ? AlignmentType::Center : AlignmentType::Left_Justify;
}

void TextBox::setAlignment(AlignmentType alignment)
{
    requireMember(alignment);
    switch (alignment) {
    case AlignmentType::Left_Justify: QLineEdit::setAlignment(Qt::AlignLeft | Qt::AlignVCenter); break;
    case AlignmentType::Right_Justify: QLineEdit::setAlignment(Qt::AlignRight | Qt::AlignVCenter); break;
    case AlignmentType::Center: QLineEdit::setAlignment(Qt::AlignHCenter | Qt::AlignVCenter); break;
    }
}

bool TextBox::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (clipboardCommand(*key) != ClipboardCommand::None) {
            event->accept();
            return true;
        }
    }
    // The menu offers what the field allowed when it was opened, and nobody would see what it does to a hidden one.
    const QEvent::Type type = event->type();
    if (m_menu && (type == QEvent::Hide || type == QEvent::EnabledChange || type == QEvent::ReadOnlyChange))
        m_menu->close();
    return QLineEdit::event(event);
}

void TextBox::focusInEvent(QFocusEvent *event)
{
    const auto left = std::exchange(m_leftSelection, std::nullopt);
    QLineEdit::focusInEvent(event);
    if (left && event->reason() == Qt::OtherFocusReason)
        setSelection(left->start, left->length);
}

void TextBox::focusOutEvent(QFocusEvent *event)
{
    m_composedOver.reset();
    const Selection before = selection();
    QLineEdit::focusOutEvent(event);
    if (before.length > 0 && !hasSelectedText())
        m_leftSelection = before;
}

TextBox::ClipboardCommand TextBox::clipboardCommand(const QKeyEvent &event)
{
    if (const auto command = clipboardCommand(keyCode(event), shiftState(event)); command != ClipboardCommand::None)
        return command;
    // Systems and keyboards have more keys for the same, which must not get past the rules of the control.
    if (event.matches(QKeySequence::Copy))
        return ClipboardCommand::Copy;
    if (event.matches(QKeySequence::Cut))
        return ClipboardCommand::Cut;
    return event.matches(QKeySequence::Paste) ? ClipboardCommand::Paste : ClipboardCommand::None;
}

TextBox::ClipboardCommand TextBox::clipboardCommand(int code, int shift)
{
    if (shift == ShiftState::Ctrl) {
        switch (code) {
        case Key::C:
        case Key::Insert: return ClipboardCommand::Copy;
        case Key::X: return ClipboardCommand::Cut;
        case Key::V: return ClipboardCommand::Paste;
        default: break;
        }
    } else if (shift == ShiftState::Shift) {
        if (code == Key::Delete)
            return ClipboardCommand::Cut;
        if (code == Key::Insert)
            return ClipboardCommand::Paste;
    }
    return ClipboardCommand::None;
}

void TextBox::keyPressEvent(QKeyEvent *event)
{
    onInput(this, event, [&] { press(event); });
}

void TextBox::press(QKeyEvent *event)
{
    const QPointer<TextBox> self = this;
    if (!isKeyOfInputMethods(*event))
        endComposing();
    if (!self)
        return;
    const auto command = clipboardCommand(*event);
    const bool isDone = command != ClipboardCommand::None;
    if (isDone)
        run(command);
    if (!self)
        return;

    // A clipboard key has done its work by now, and is told all the same.
    const KeyOffer key = isDone ? raiseKeyDown(this, *event) : offerKey(this, *event);
    if (isDone || key.answer == KeyOffer::Answer::Swallow)
        return;
    if (key.isOtherKey) {
        actAs(key.code, key.shift);
        return;
    }
    if (const int ascii = keyAscii(*event)) {
        if (ascii == Key::Enter || ascii == Key::Escape) {
            int offered = ascii;
            Q_EMIT KeyPress(offered);
            if (self && offered == ascii)
                editing([&] { QLineEdit::keyPressEvent(event); });
            else if (self && offered != 0)
                type(offered);
        } else if (ascii == Key::Backspace) {
            offerCharacter(ascii);
        } else {
            offerCharacters(event->text());
        }
        return;
    }
    QKeyEvent plain = withoutText(*event);
    editing([&] { QLineEdit::keyPressEvent(&plain); });
    // A locked field has no use for Delete, and keeps it as it keeps letters and Backspace: the form may mean its
    // record.
    event->setAccepted(plain.isAccepted() || key.code == Key::Delete);
}

void TextBox::actAs(int code, int shift)
{
    if (const auto command = clipboardCommand(code, shift); command != ClipboardCommand::None) {
        run(command);
    } else if (code == Key::Backspace) {
        offerCharacter(Key::Backspace);
    } else if (const char16_t character = plainCharacter(code, shift); character && !(shift & ~ShiftState::Shift)) {
        offerCharacter(character);
    } else {
        QKeyEvent other(QEvent::KeyPress, toolkitKey(code), modifiersOf(shift));
        editing([&] { QLineEdit::keyPressEvent(&other); });
    }
}

void TextBox::offerCharacter(int ascii)
{
    const QPointer<TextBox> self = this;
    Q_EMIT KeyPress(ascii);
    if (self && ascii != 0)
        type(ascii);
}

void TextBox::offerCharacters(const QString &text)
{
    const QPointer<TextBox> self = this;
    for (qsizetype at = 0; self && at < text.size();) {
        const QString character = characterAt(text, at);
        at += character.size();
        if (character.size() == 1)
            offerCharacter(character.front().unicode());
        else
            offerPair(character);
    }
}

void TextBox::offerPair(const QString &pair)
{
    const QPointer<TextBox> self = this;
    int high = pair.at(0).unicode();
    int low = pair.at(1).unicode();
    Q_EMIT KeyPress(high);
    if (self)
        Q_EMIT KeyPress(low);
    if (!self)
        return;
    if (high == pair.at(0).unicode() && low == pair.at(1).unicode()) {
        type(pair);
        return;
    }
    for (const int other : {high, low}) { // of the halves themselves, one without the other is no character
        if (self && other != 0 && !QChar::isSurrogate(static_cast<char32_t>(other)))
            type(other);
    }
}

void TextBox::type(int ascii)
{
    if (isReadOnly())
        return;
    if (ascii == Key::Backspace) {
        editing([this] { backspace(); });
        return;
    }
    const QChar character(static_cast<char16_t>(ascii));
    if (isTyped(character) && !character.isSurrogate())
        type(QString(character));
}

void TextBox::type(const QString &character)
{
    if (!isReadOnly() && fitting(character) == character)
        replaceSelection(character);
}

void TextBox::typeOver(int start, int length, const QString &typed)
{
    const QPointer<TextBox> self = this;
    const QString before = text();
    const bool isWhole = start <= 0 && length >= TextLength();
    guarded(this, [&] {
        // Entered, a number shows its text for editing, in which the places of a part are others.
        if (!FocusTracker::instance().giveKeyboard(this) || isReadOnly() || (!isWhole && text() != before))
            return;
        endComposing();
        if (!self)
            return;
        setSelection(isWhole ? 0 : start, isWhole ? TextLength() : length);
        if (!typed.isEmpty())
            offerCharacters(typed);
        else if (hasSelectedText())
            offerCharacter(Key::Backspace);
    });
}

void TextBox::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    if (isReadOnly()) {
        event->ignore(); // not the toolkit's to act on either: it would take the text
        return;
    }
    // Dead keys and input methods deliver finished characters; each goes through KeyPress like a typed one.
    const QPointer<TextBox> self = this;
    guarded(this, [&] {
        if (!committed.isEmpty()) {
            if (!FocusTracker::instance().settle() || !self)
                return;
            compose({QString(), {}});
            if (event->replacementLength() > 0)
                setSelection(cursorPosition() + event->replacementStart(), event->replacementLength());
            offerCharacters(committed);
        }
        if (self && (committed.isEmpty() || !event->preeditString().isEmpty()))
            compose({event->preeditString(), event->attributes()});
    });
    event->accept();
}

//! A key, a click or a drop that comes past the input method ends what is being composed: the toolkit would count the
//! unfinished characters as text, and put the caret behind the end of it.
void TextBox::endComposing()
{
    const QPointer<TextBox> self = this;
    if (!m_isComposing)
        return;
    QGuiApplication::inputMethod()->commit();
    if (self && m_isComposing)
        compose({QString(), {}});
}

//! Shows what is being composed. The selection stays in the text until the characters are finished: the control may
//! refuse them, and a dead key struck by mistake must not empty the field.
void TextBox::compose(QInputMethodEvent event)
{
    const bool isComposing = !event.preeditString().isEmpty();
    m_isComposing = isComposing;
    if (isComposing && hasSelectedText()) {
        const Selection selected = selection();
        setCursorPosition(selected.start + selected.length);
        m_composedOver = selected;
    }
    editing([&] { QLineEdit::inputMethodEvent(&event); });
    if (const auto over = isComposing ? std::nullopt : std::exchange(m_composedOver, std::nullopt))
        setSelection(over->start, over->length);
}

void TextBox::keyReleaseEvent(QKeyEvent *event)
{
    guarded(this, [&] { raiseKeyUp(this, *event); });
}

QString TextBox::fitting(const QString &text) const
{
    return m_maxLength == 0 ? text : wholeCharacters(text, m_maxLength - TextLength() + SelLength());
}

void TextBox::run(ClipboardCommand command)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (command == ClipboardCommand::Paste) {
        paste(clipboard->text());
        return;
    }
    if (hasSelectedText() || m_clipboard == Clipboard::WholeText)
        clipboard->setText(selectedText());
    if (command != ClipboardCommand::Cut || isReadOnly())
        return;
    if (m_clipboard == Clipboard::WholeText)
        setProgramText(QString());
    else if (hasSelectedText())
        editing([this] { del(); });
}

void TextBox::paste(const QString &text)
{
    if (isReadOnly())
        return;
    if (m_clipboard == Clipboard::Selection) {
        // Without a text to paste, a picture say, or room for it, what is selected stays.
        if (const QString pasted = fitting(text); !pasted.isEmpty())
            replaceSelection(pasted);
        return;
    }
    const QPointer<TextBox> self = this;
    setProgramText(text);
    if (self)
        Q_EMIT Pasted();
}

void TextBox::mousePressEvent(QMouseEvent *event)
{
    onPress(this, this, event, [this](QMouseEvent *press) {
        const QPointer<TextBox> self = this;
        endComposing();
        if (!self)
            return;
        m_press = Press::Single;
        MouseArguments mouse(this, *press);
        Q_EMIT MouseDown(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
        if (self)
            QLineEdit::mousePressEvent(press);
    });
}

void TextBox::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<TextBox> self = this;
    guarded(this, [&] {
        MouseArguments mouse(this, *event);
        Q_EMIT MouseMove(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
        if (self)
            QLineEdit::mouseMoveEvent(event);
    });
}

void TextBox::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<TextBox> self = this;
    guarded(this, [&] {
        const Press press = std::exchange(m_press, Press::None);
        if (event->button() == Qt::MiddleButton) {
            if (press != Press::None && QGuiApplication::clipboard()->supportsSelection()) {
                setCursorPosition(cursorPositionAt(event->pos()));
                paste(QGuiApplication::clipboard()->text(QClipboard::Selection));
            }
        } else {
            editing([&] { QLineEdit::mouseReleaseEvent(event); });
        }
        if (!self || press == Press::None)
            return;
        MouseArguments mouse(this, *event);
        Q_EMIT MouseUp(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
        if (self && press == Press::Single && event->button() == Qt::LeftButton && rect().contains(event->pos()))
            Q_EMIT Click();
    });
    event->accept();
}

void TextBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointer<TextBox> self = this;
    guarded(this, [&] {
        endComposing();
        if (!self)
            return;
        m_press = Press::Double;
        Q_EMIT DblClick();
        if (self)
            QLineEdit::mouseDoubleClickEvent(event);
    });
    event->accept();
}

void TextBox::contextMenuEvent(QContextMenuEvent *event)
{
    // Not the toolkit's own menu: that one acts on the text past the rules of the control. Owned by the window, because
    // a handler of Change may delete the control while the menu is still at work.
    auto *menu = new QMenu(window());
    m_menu = menu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(this, &QObject::destroyed, menu, &QMenu::close);
    const auto add = [&](const QString &text, QKeySequence::StandardKey key, bool isOffered, auto &&action) {
        const QString keys = QKeySequence(key).toString(QKeySequence::NativeText);
        QAction *entry = menu->addAction(keys.isEmpty() ? text : text + u'\t' + keys);
        entry->setEnabled(isOffered);
        connect(entry, &QAction::triggered, this, [this, action] { guarded(this, action); });
    };
    const bool isFree = !isReadOnly();
    const bool canPaste = isFree && !QGuiApplication::clipboard()->text().isEmpty();
    add(QLineEdit::tr("&Undo"), QKeySequence::Undo, isFree && isUndoAvailable(),
        [this] { editing([this] { undo(); }); });
    add(QLineEdit::tr("&Redo"), QKeySequence::Redo, isFree && isRedoAvailable(),
        [this] { editing([this] { redo(); }); });
    menu->addSeparator();
    add(QLineEdit::tr("Cu&t"), QKeySequence::Cut, isFree && hasSelectedText(), [this] { run(ClipboardCommand::Cut); });
    add(QLineEdit::tr("&Copy"), QKeySequence::Copy, hasSelectedText(), [this] { run(ClipboardCommand::Copy); });
    add(QLineEdit::tr("&Paste"), QKeySequence::Paste, canPaste, [this] { run(ClipboardCommand::Paste); });
    add(QLineEdit::tr("Delete"), QKeySequence::UnknownKey, isFree && hasSelectedText(),
        [this] { editing([this] { del(); }); });
    menu->addSeparator();
    add(QLineEdit::tr("Select All"), QKeySequence::SelectAll, !text().isEmpty(), [this] { selectAll(); });
    menu->popup(event->globalPos());
    event->accept();
}

void TextBox::dropEvent(QDropEvent *event)
{
    const QPointer<TextBox> self = this;
    if (m_clipboard == Clipboard::Selection && m_maxLength == 0) {
        guarded(this, [&] {
            endComposing();
            if (self)
                editing([&] { QLineEdit::dropEvent(event); });
        });
        return;
    }
    guarded(this, [&] {
        endComposing();
        if (!self)
            return;
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        paste(event->mimeData()->text());
    });
    event->setDropAction(Qt::CopyAction); // what did not fit must not be lost where it came from
    event->accept();
}

void TextBox::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (m_border == BorderStyleType::FixedSingle && m_appearance == AppearanceType::Flat) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace kor
