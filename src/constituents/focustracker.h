// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kor {

//! A fault that the user is to correct before the focus may go on.
struct Complaint {
    QString text;
    QString title;
    std::function<void()> afterwards = {}; //!< what is left to do when the user is back
};

//! How the focus came into a box: by the user's own move, or put back after a message or from the control's pop-up.
enum class FocusEntry { Moved, Returned };

//! A control, as the focus tracker sees it. The innermost client around a focused box hears of the box; every client
//! around it hears when the focus enters or leaves it as a whole.
class FocusClient
{
public:
    virtual ~FocusClient() = default;
    virtual void boxEntered(QWidget *, FocusEntry) {}
    //! The box lost the focus to another widget of its window. A complaint is shown, and then the focus is put back.
    virtual std::optional<Complaint> boxLeft(QWidget *) { return std::nullopt; }
    virtual void controlEntered() {}
    //! Whether entering the control raises events. A handler may end the control then, so that it is entered only after
    //! the toolkit is done with giving it the focus.
    [[nodiscard]] virtual bool raisesOnEntry() const { return false; }
    virtual void controlLeft() {}
    //! The box inside the control that has the keyboard as long as the control has it; null for whichever is given it.
    [[nodiscard]] virtual QWidget *keeper() { return nullptr; }
};

//! Tells the controls of both levels of leaving: the inner box, and the control as a whole.
//!
//! Only a move to another widget of the same window counts: another window, a menu, a pop-up or a message box leaves
//! everything undecided. A move is handled after it has happened, one at a time in each window; no control is left or
//! entered before the box that was left has had its say. A box calls settle() when it is given a key or a click, so
//! that what the user types ahead meets a field that knows it has the focus. An error in one client's handler keeps no
//! other client from being told.
class FocusTracker : public QObject
{
    Q_OBJECT

public:
    static FocusTracker &instance();

    //! From now on the control's focus is told to the client, which must live as long as the control is registered.
    void addClient(QWidget *control, FocusClient *client);
    void removeClient(QWidget *control);

    //! Handles the moves that wait, at once. False when that took the focus elsewhere, as a message does that sends
    //! the user back: the key or click at hand was not meant for the place where the focus is now.
    bool settle();
    //! Whether a box may be left: runs its checks as if it were, message included, and moves nothing. May be called at
    //! any time, also while a move is handled. A move away from the box that waits has its answer by this: it goes on
    //! without a second check, or the focus is put back.
    [[nodiscard]] bool askToLeave(QWidget *box);
    //! Moves the focus inside a control, from a box that was asked already, or that is not to be asked at all. The new
    //! box is entered at once.
    void moveUnasked(QWidget *to);
    //! Gives a box the focus as a click on it would, for a tool that acts in the user's place. False when it cannot
    //! have it, or the box that had it keeps it.
    [[nodiscard]] bool giveKeyboard(QWidget *box);
    //! Gives the focus back to a box whose pop-up has been closed.
    void putBack(QWidget *box);
    //! Asks a box and its controls as if they were left, while the focus stays. False when the box complained.
    bool leaveInPlace(QWidget *box);
    //! Tells a box and its controls that they were entered, while the focus is there already.
    void enterInPlace(QWidget *box);

private:
    struct Move {
        QPointer<QWidget> from;
        QPointer<QWidget> to;
        bool isAsked = false; //!< the box has answered already that it may be left
    };
    //! What is known of one window. A dialog that a handler opens has its own, and its moves don't wait for the one
    //! that the handler was called for.
    struct Window {
        QPointer<QWidget> widget;
        QPointer<QWidget> focus; //!< its last focused widget
        std::deque<Move> moves = {};
        enum class State { Idle, Handling, PuttingBack } state = State::Idle;
    };
    using WindowPointer = std::shared_ptr<Window>; // a handler may close the window

    FocusTracker();
    [[nodiscard]] WindowPointer windowOf(const QWidget *widget);
    [[nodiscard]] std::vector<QPointer<QWidget>> clientsAround(QWidget *widget) const;
    void focusChanged(const QWidget *before, QWidget *now);
    [[nodiscard]] bool isKept(const QWidget *box, QWidget *now) const;
    void schedule(Window &window, const Move &move);
    [[nodiscard]] bool raisesOnEntry(QWidget *box) const;
    void settleSoon();
    void handleNext(const WindowPointer &window);
    [[nodiscard]] std::optional<Complaint> ask(QWidget *box);
    void complain(const WindowPointer &window, const QPointer<QWidget> &box, const Complaint &complaint);
    void leave(const std::vector<QPointer<QWidget>> &controls, const Window &window);
    void enter(QWidget *from, QWidget *to);
    template <class Call>
    void tell(const QPointer<QWidget> &control, Call &&call);

    QHash<QWidget *, FocusClient *> m_clients;
    std::vector<WindowPointer> m_windows;
};

} // namespace kor
