// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/focustracker.h"

#include "constituents/errorguard.h"
#include "constituents/messagebox.h"
#include "constituents/refusal.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace kor {

namespace {

bool holds(const QWidget *control, const QWidget *widget)
{
    return widget && (control == widget || control->isAncestorOf(widget));
}

bool canBeEntered(const QWidget *box) { return box->isEnabled() && box->isVisible(); }

bool isPopup(const QWidget *widget) { return widget && widget->window()->windowType() == Qt::Popup; }

//! Moves the focus on from a widget of a window, as the toolkit does when one with the focus is hidden.
void moveOn(QWidget *left)
{
    for (QWidget *next = left->nextInFocusChain(); next != left; next = next->nextInFocusChain()) {
        if (canBeEntered(next) && (next->focusPolicy() & Qt::TabFocus) && next->window() == left->window()) {
            next->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    left->clearFocus();
}

} // namespace

FocusTracker &FocusTracker::instance()
{
    // Lives and dies with the application object, of which tests may make several.
    static QPointer<FocusTracker> tracker;
    if (!tracker) {
        tracker = new FocusTracker;
        tracker->setParent(qApp);
    }
    return *tracker;
}

FocusTracker::FocusTracker()
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *before, QWidget *now) { focusChanged(before, now); });
    if (QWidget *now = QApplication::focusWidget())
        windowOf(now)->focus = now;
}

void FocusTracker::addClient(QWidget *control, FocusClient *client) { m_clients.insert(control, client); }
void FocusTracker::removeClient(QWidget *control) { m_clients.remove(control); }

//! The controls around a widget, innermost first.
std::vector<QPointer<QWidget>> FocusTracker::clientsAround(QWidget *widget) const
{
    std::vector<QPointer<QWidget>> clients;
    for (QWidget *place = widget; place; place = place->isWindow() ? nullptr : place->parentWidget()) {
        if (m_clients.contains(place))
            clients.emplace_back(place);
    }
    return clients;
}

FocusTracker::WindowPointer FocusTracker::windowOf(const QWidget *widget)
{
    QWidget *window = widget->window();
    std::erase_if(m_windows, [](const WindowPointer &known) { return !known->widget; });
    const auto found = std::find_if(m_windows.cbegin(), m_windows.cend(),
                                    [window](const WindowPointer &known) { return known->widget == window; });
    return found != m_windows.cend() ? *found
                                     : m_windows.emplace_back(std::make_shared<Window>(Window{window, nullptr}));
}

//! Runs one call to the client of a control, which may be gone by now. What a host's handler throws there is reported,
//! and keeps nobody else from being told.
template <class Call>
void FocusTracker::tell(const QPointer<QWidget> &control, Call &&call)
{
    if (FocusClient *client = control ? m_clients.value(control) : nullptr)
        guarded(control, [&] { call(*client); });
}

// --- moves

void FocusTracker::focusChanged(const QWidget *before, QWidget *now)
{
    if (!now)
        return; // another program, or nothing
    if (isPopup(before) && !canBeEntered(now) && now->window()->isVisible()) {
        // Hidden while what had popped up held the keyboard: the toolkit gives it back without a look. A program that
        // gives it to what is to be shown next means that.
        moveOn(now); // which is a move of its own
        return;
    }
    const WindowPointer window = windowOf(now);
    const QPointer<QWidget> left = window->focus;
    if (left == now)
        return; // back from another window
    if (window->state != Window::State::PuttingBack && isKept(left, now)) {
        const QScopedValueRollback puttingBack(window->state, Window::State::PuttingBack);
        left->setFocus(Qt::OtherFocusReason);
        return;
    }
    window->focus = now;
    if (window->state != Window::State::PuttingBack)
        schedule(*window, {left, now});
}

//! Whether a program, or the letter of a label, has given the keyboard to a control that has it, and keeps it
//! elsewhere: that leaves the user typing. A click means its place.
bool FocusTracker::isKept(const QWidget *box, QWidget *now) const
{
    const auto clients = clientsAround(now);
    if (!box || clients.empty() || QGuiApplication::mouseButtons() != Qt::NoButton)
        return false;
    return m_clients.value(clients.front())->keeper() == box && canBeEntered(box);
}

void FocusTracker::schedule(Window &window, const Move &move)
{
    const bool waits = window.state != Window::State::Idle || !window.moves.empty() ||
                       !clientsAround(move.from).empty() || raisesOnEntry(move.to);
    if (!waits) {
        // Nobody is left: the field is entered at once, before the key or the click that follows.
        enter(nullptr, move.to);
        return;
    }
    window.moves.push_back(move);
    settleSoon();
}

bool FocusTracker::raisesOnEntry(QWidget *box) const
{
    const auto entered = clientsAround(box);
    return std::any_of(entered.cbegin(), entered.cend(),
                       [this](const auto &control) { return m_clients.value(control)->raisesOnEntry(); });
}

void FocusTracker::settleSoon()
{
    QMetaObject::invokeMethod(
        this, [this] { settle(); }, Qt::QueuedConnection);
}

bool FocusTracker::settle()
{
    const auto next = [this] {
        const auto found = std::find_if(m_windows.cbegin(), m_windows.cend(), [](const WindowPointer &window) {
            return window->state == Window::State::Idle && !window->moves.empty();
        });
        return found != m_windows.cend() ? *found : nullptr;
    };
    const QPointer<QWidget> before = QApplication::focusWidget();
    bool isIdle = true;
    while (const WindowPointer window = next()) {
        isIdle = false;
        handleNext(window);
    }
    return isIdle || before == QApplication::focusWidget();
}

void FocusTracker::handleNext(const WindowPointer &window)
{
    const QScopedValueRollback handling(window->state, Window::State::Handling);
    const Move move = window->moves.front();
    window->moves.pop_front();
    const auto left = clientsAround(move.from);
    if (const auto complaint = move.isAsked ? std::nullopt : ask(move.from)) {
        complain(window, move.from, *complaint);
        return;
    }
    leave(left, *window);
    if (move.to && window->widget && window->focus == move.to)
        enter(move.from, move.to);
}

//! Tells the controls that the focus has left. A handler may have moved it on, or back to where it was; what counts is
//! where it is now.
void FocusTracker::leave(const std::vector<QPointer<QWidget>> &controls, const Window &window)
{
    for (const auto &control : controls) {
        if (control && window.widget && !holds(control, window.focus))
            tell(control, [](FocusClient &client) { client.controlLeft(); });
    }
}

void FocusTracker::enter(QWidget *from, QWidget *to)
{
    const QPointer<QWidget> box = to;
    const QPointer<QWidget> before = from;
    const auto entered = clientsAround(to);
    for (auto control = entered.rbegin(); control != entered.rend(); ++control) {
        if (*control && !holds(*control, before))
            tell(*control, [](FocusClient &client) { client.controlEntered(); });
    }
    if (box && !entered.empty())
        tell(entered.front(), [&](FocusClient &client) { client.boxEntered(box, FocusEntry::Moved); });
}

// --- questions

std::optional<Complaint> FocusTracker::ask(QWidget *box)
{
    std::optional<Complaint> complaint;
    const auto clients = clientsAround(box);
    if (clients.empty())
        return complaint;
    const QPointer<QWidget> asked = box;
    tell(clients.front(), [&](FocusClient &client) { complaint = client.boxLeft(box); });
    if (asked)
        setRefusal(asked, complaint ? complaint->text : QString());
    return complaint;
}

bool FocusTracker::askToLeave(QWidget *box)
{
    const QPointer<QWidget> asked = box;
    const WindowPointer window = windowOf(box);
    const auto goOn = qScopeGuard([&] { // with what has come to wait meanwhile
        if (!window->moves.empty())
            settleSoon();
    });
    const QScopedValueRollback handling(window->state, Window::State::Handling);
    if (const auto complaint = ask(box)) {
        complain(window, asked, *complaint);
        return !asked || !canBeEntered(asked); // nobody can correct what has gone away under the message
    }
    for (Move &move : window->moves) {
        if (move.from == asked)
            move.isAsked = true;
    }
    return true;
}

bool FocusTracker::leaveInPlace(QWidget *box)
{
    const QPointer<QWidget> asked = box;
    if (!settle())
        return false;
    const auto left = clientsAround(asked);
    if (asked && !askToLeave(asked))
        return false;
    for (const auto &control : left)
        tell(control, [](FocusClient &client) { client.controlLeft(); });
    return true;
}

void FocusTracker::enterInPlace(QWidget *box)
{
    const QPointer<QWidget> watched = box;
    if (settle() && watched)
        enter(nullptr, watched);
}

void FocusTracker::complain(const WindowPointer &window, const QPointer<QWidget> &box, const Complaint &complaint)
{
    exclaim(window->widget, complaint.text, complaint.title);
    if (!box)
        return;
    const bool canGoBack = canBeEntered(box);
    if (canGoBack) {
        // Where the focus went meanwhile was never entered, so nobody there may complain in turn.
        window->moves.clear();
        putBack(box);
    }
    if (box && complaint.afterwards)
        guarded(box, complaint.afterwards);
    if (canGoBack)
        return;
    for (const auto &control : clientsAround(box))
        tell(control, [](FocusClient &client) { client.controlLeft(); });
}

bool FocusTracker::giveKeyboard(QWidget *box)
{
    if (!canBeEntered(box))
        return false;
    const QPointer<QWidget> watched = box;
    if (!holds(box, box->window()->focusWidget())) // which may be in an editor of its
        box->setFocus(Qt::OtherFocusReason);
    (void)settle();
    return watched && holds(watched, watched->window()->focusWidget());
}

void FocusTracker::putBack(QWidget *box)
{
    const QPointer<QWidget> watched = box;
    const WindowPointer window = windowOf(box);
    {
        const QScopedValueRollback puttingBack(window->state, Window::State::PuttingBack);
        if (!box->window()->isActiveWindow())
            box->activateWindow();
        if (watched)
            watched->setFocus(Qt::OtherFocusReason);
        window->focus = watched;
    }
    if (const auto clients = clientsAround(watched); !clients.empty())
        tell(clients.front(), [&](FocusClient &client) { client.boxEntered(watched, FocusEntry::Returned); });
}

void FocusTracker::moveUnasked(QWidget *to)
{
    if (!canBeEntered(to))
        return; // keys would go where nobody sees them
    const QPointer<QWidget> watched = to;
    const WindowPointer window = windowOf(to);
    const QPointer<QWidget> from = window->focus;
    {
        const QScopedValueRollback puttingBack(window->state, Window::State::PuttingBack);
        to->setFocus(Qt::TabFocusReason);
    }
    if (!watched || watched->window()->focusWidget() != watched)
        return; // it cannot take the focus
    window->focus = watched;
    enter(from, watched);
}

} // namespace kor
