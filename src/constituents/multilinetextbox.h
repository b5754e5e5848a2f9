// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/heldevents.h"

#include <QtWidgets/QPlainTextEdit>

#include <utility>

namespace kor {

//! The multi-line text box of the controls: the toolkit's plain text editor with the classic order of events.
//!
//! Positions count the characters of `Text()`, in which line breaks stay written as they came in.
class MultiLineTextBox final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit MultiLineTextBox(QWidget *parent);

    [[nodiscard]] QString Text() const;
    //! Sets the text as a program does: the caret goes to 0, nothing is selected, Change is raised if it changed.
    void setProgramText(const QString &text);
    [[nodiscard]] int SelStart() const;
    void setSelStart(int start);
    [[nodiscard]] int SelLength() const;
    void setSelLength(int length);
    //! The most characters the user can type or paste; 0 is no limit. A program's text is never cut.
    [[nodiscard]] int MaxLength() const { return m_maxLength; }
    void setMaxLength(int length);
    //! No frame and no scroll bars around the text, and nothing but these pixels at its sides: for lying over a text
    //! that is shown so. The caret scrolls what is higher than the box.
    void setFrameless(int left, int right);
    //! Types over a part of the editor's text as the user would, for a tool that writes in the user's place.
    void typeOver(int start, int length, const QString &typed);

Q_SIGNALS:
    void Change();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    //! Runs what may change the text and raises Change when it is done.
    template <class Body>
    void editing(Body &&body)
    {
        m_change.during(std::forward<Body>(body));
    }
    void raiseChange();
    void press(QKeyEvent *event);
    void compose(QInputMethodEvent *event);
    //! A key that comes past the input method ends what is being composed: the toolkit would count the unfinished
    //! characters as text, and put the caret behind the end of it.
    void endComposing();
    void actAs(int keyCode, int shift, QKeyEvent *event);
    //! Raises KeyPress for the character and types what the handlers make of it.
    void offerCharacter(int keyAscii, QKeyEvent *event);
    void type(const QString &text);
    //! Types each character of a text that an input method or a tool gives.
    void offerCharacters(const QString &text);
    [[nodiscard]] int room() const;
    //! The beginning of an editor's text that MaxLength allows in place of the selection.
    [[nodiscard]] QString fitting(const QString &text) const;

    QString m_original; //!< the program's text, for its line breaks
    int m_maxLength = 0;
    HeldEvents m_change{this, [this] { raiseChange(); }};
    bool m_isChangePending = false;
    bool m_isComposing = false;
};

} // namespace kor
