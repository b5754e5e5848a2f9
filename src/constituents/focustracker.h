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
#include <optional>
#include <utility>
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
    virtual void controlLeft() {}
};

//! Tells the controls of both levels of leaving: the inner box, and the control as a whole.
//!
//! Only a move to another widget of the same window counts: another window, a menu, a pop-up or a message box leaves
//! everything undecided. A move is handled after it has happened, one at a time; no control is left or entered before
//! the box that was left has had its say. A box calls settle() when it is given a key or a click, so that what the
//! user types ahead meets a field that knows it has the focus.
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
    //! Gives the focus back to a box whose pop-up has been closed.
    void putBack(QWidget *box);
    //! Asks a box and its controls as if they were left, while the focus stays. False when the box complained.
    bool leaveInPlace(QWidget *box);
    //! Tells a box and its controls that they were entered, while the focus is there already.
    void enterInPlace(QWidget *box);

private:
    struct Move {
        QPointer<QWidget> window;
        QPointer<QWidget> from;
        QPointer<QWidget> to;
    };

    FocusTracker();
    [[nodiscard]] FocusClient *clientOf(QWidget *control) const { return m_clients.value(control); }
    [[nodiscard]] std::vector<QPointer<QWidget>> clientsAround(QWidget *widget) const;
    void focusChanged(QWidget *now);
    void schedule(Move move);
    void handleNext();
    void handle(const Move &move);
    void complain(const Move &move, const Complaint &complaint);
    void enter(QWidget *from, QWidget *to);
    [[nodiscard]] QWidget *focusIn(const QWidget *window) const;
    void remember(QWidget *window, QWidget *box);

    QHash<QWidget *, FocusClient *> m_clients;
    std::vector<std::pair<QPointer<QWidget>, QPointer<QWidget>>> m_focus; // window, its last focused widget
    std::deque<Move> m_moves;
    enum class State { Idle, Handling, PuttingBack } m_state = State::Idle;
};

} // namespace kor
