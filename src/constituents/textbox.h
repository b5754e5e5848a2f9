// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/fieldcolors.h"
#include "constituents/heldevents.h"

#include <KorDaoUC/enumerations.h>

#include <QtCore/QPointer>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QLineEdit>

#include <optional>

class QMenu;

namespace kor {

//! The one-line text box of the controls: the toolkit's line edit with the classic order of events.
//!
//! A press raises KeyDown, then KeyPress for a character, and only then acts, with the codes as the handlers left
//! them: 0 swallows, another code acts as that key or character. What was swallowed is not offered to the form.
class TextBox final : public QLineEdit
{
    Q_OBJECT
    // What a pop-up writes its choice to, by name.
    Q_PROPERTY(QString Text READ text WRITE setProgramText DESIGNABLE false STORED false)
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked DESIGNABLE false STORED false)

public:
    //! Who answers copy, cut and paste, by key, context menu, drop or the middle button.
    enum class Clipboard {
        Selection, //!< as usual: on the selection; paste is cut to MaxLength
        WholeText, //!< copy takes the selection; cut takes it and empties the field; paste replaces the whole text
    };

    explicit TextBox(QWidget *parent);

    //! Sets the text as a program does: the caret goes to 0, nothing is selected, Change is raised if it changed.
    void setProgramText(const QString &text);
    //! The same with the caret kept where it is, as far as the new text reaches.
    void setTextKeepingCaret(const QString &text);

    //! The selection, which the box keeps in mind while it is shown without it, because the focus is elsewhere.
    [[nodiscard]] int SelStart() const;
    void setSelStart(int start);
    [[nodiscard]] int SelLength() const { return selection().length; }
    [[nodiscard]] QString SelText() const { return text().mid(selection().start, selection().length); }
    void setSelLength(int length);
    //! Replaces the selection, as a program does: the caret goes behind the new text.
    void setSelText(const QString &text);
    [[nodiscard]] int TextLength() const { return static_cast<int>(text().size()); }

    //! The most characters the user can type; 0 is no limit. A program's text is never cut.
    [[nodiscard]] int MaxLength() const { return m_maxLength; }
    void setMaxLength(int length);
    [[nodiscard]] bool Locked() const { return isReadOnly(); }
    void setLocked(bool locked);
    [[nodiscard]] BorderStyleType BorderStyle() const { return m_border; }
    void setBorderStyle(BorderStyleType style);
    [[nodiscard]] AppearanceType Appearance() const { return m_appearance; }
    void setAppearance(AppearanceType appearance);
    [[nodiscard]] AlignmentType Alignment() const;
    void setAlignment(AlignmentType alignment);
    [[nodiscard]] int WhatsThisHelpID() const { return m_whatsThisHelpID; }
    void setWhatsThisHelpID(int id) { m_whatsThisHelpID = id; }

    void setClipboard(Clipboard clipboard) { m_clipboard = clipboard; }

    //! Types over a part of the text as the user would, for a tool that writes in the user's place: the box takes the
    //! keyboard first, and a locked one keeps its text. An empty text erases.
    void typeOver(int start, int length, const QString &typed);

Q_SIGNALS:
    void Change();
    void KeyDown(int &KeyCode, int &Shift);
    void KeyPress(int &KeyAscii);
    void KeyUp(int &KeyCode, int &Shift);
    void MouseDown(int &Button, int &Shift, float &X, float &Y);
    void MouseMove(int &Button, int &Shift, float &X, float &Y);
    void MouseUp(int &Button, int &Shift, float &X, float &Y);
    void Click();
    void DblClick();
    //! The user has pasted over the whole text.
    void Pasted();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    enum class ClipboardCommand { None, Copy, Cut, Paste };
    enum class Press { None, Single, Double };
    struct Selection {
        int start;
        int length;
    };

    [[nodiscard]] Selection selection() const;

    [[nodiscard]] static ClipboardCommand clipboardCommand(const QKeyEvent &event);
    [[nodiscard]] static ClipboardCommand clipboardCommand(int keyCode, int shift);
    //! A place that the caret may take: not between the two halves of a character.
    [[nodiscard]] int place(int place) const;
    //! The beginning of a text that MaxLength allows in place of the selection.
    [[nodiscard]] QString fitting(const QString &text) const;
    //! Runs what may change the text and raises Change when it is done: a handler may then set the text anew or delete
    //! the control, which the line edit could not bear in the middle of its own work.
    template <class Body>
    void editing(Body &&body)
    {
        m_change.during(std::forward<Body>(body));
    }
    void raiseChange();
    void press(QKeyEvent *event);
    void actAs(int keyCode, int shift);
    //! Raises KeyPress for the character and types what the handlers make of it.
    void offerCharacter(int keyAscii);
    //! The same for each character of a text that one key or an input method gives.
    void offerCharacters(const QString &text);
    //! The same for one of two halves, which are typed together or not at all.
    void offerPair(const QString &pair);
    void compose(QInputMethodEvent event);
    void endComposing();
    void type(int keyAscii);
    void type(const QString &character);
    void run(ClipboardCommand command);
    void paste(const QString &text);
    void replaceSelection(const QString &text);
    void updateFrame();

    Clipboard m_clipboard = Clipboard::Selection;
    BorderStyleType m_border = BorderStyleType::FixedSingle;
    AppearanceType m_appearance = AppearanceType::A3D;
    int m_maxLength = 0;
    int m_whatsThisHelpID = 0;
    Press m_press = Press::None;
    QPointer<QMenu> m_menu;                   //!< the context menu while it is open
    std::optional<Selection> m_leftSelection; //!< what was selected when the focus went
    std::optional<Selection> m_composedOver;  //!< what is selected, not shown while characters are composed
    bool m_isComposing = false;
    HeldEvents m_change{this, [this] { raiseChange(); }};
    bool m_isChangePending = false;
};

} // namespace kor
