// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/focustracker.h"

#include "constituents/errorguard.h"
#include "constituents/messagebox.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace kor {

namespace {

bool holds(const QWidget *control, const QWidget *widget)
{
    return widget && (control == widget || control->isAncestorOf(widget));
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
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusChanged(now); });
    if (QWidget *now = QApplication::focusWidget())
        remember(now->window(), now);
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

QWidget *FocusTracker::focusIn(const QWidget *window) const
{
    const auto found =
        std::find_if(m_focus.cbegin(), m_focus.cend(), [window](const auto &entry) { return entry.first == window; });
    return found != m_focus.cend() ? found->second.data() : nullptr;
}

void FocusTracker::remember(QWidget *window, QWidget *box)
{
    std::erase_if(m_focus, [window](const auto &entry) { return !entry.first || entry.first == window; });
    m_focus.emplace_back(window, box);
}

void FocusTracker::focusChanged(QWidget *now)
{
    if (!now)
        return; // another program, or nothing
    QWidget *window = now->window();
    QWidget *before = focusIn(window);
    if (before == now)
        return; // back from another window
    remember(window, now);
    if (m_state != State::PuttingBack)
        schedule({window, before, now});
}

void FocusTracker::schedule(Move move)
{
    const bool waits = m_state != State::Idle || !m_moves.empty() || !clientsAround(move.from).empty();
    if (!waits) {
        // Nobody is left: the field is entered at once, before the key or the click that follows.
        guarded(move.to, [&] { enter(nullptr, move.to); });
        return;
    }
    m_moves.push_back(std::move(move));
    QMetaObject::invokeMethod(
        this, [this] { settle(); }, Qt::QueuedConnection);
}

bool FocusTracker::settle()
{
    if (m_state != State::Idle)
        return true;
    const QPointer<QWidget> before = QApplication::focusWidget();
    while (!m_moves.empty())
        handleNext();
    return before == QApplication::focusWidget();
}

void FocusTracker::handleNext()
{
    const QScopedValueRollback handling(m_state, State::Handling);
    const Move move = m_moves.front();
    m_moves.pop_front();
    guarded(move.from ? move.from.data() : move.to.data(), [&] { handle(move); });
}

void FocusTracker::handle(const Move &move)
{
    const auto left = clientsAround(move.from);
    if (!left.empty()) {
        if (const auto complaint = clientOf(left.front())->boxLeft(move.from)) {
            complain(move, *complaint);
            return;
        }
    }
    // A handler may have moved the focus on, or back to where it was; what counts is where it is now.
    for (const auto &control : left) {
        if (control && move.window && !holds(control, focusIn(move.window)))
            clientOf(control)->controlLeft();
    }
    if (move.to && move.window && focusIn(move.window) == move.to)
        enter(move.from, move.to);
}

void FocusTracker::complain(const Move &move, const Complaint &complaint)
{
    exclaim(move.window, complaint.text, complaint.title);
    if (!move.from)
        return;
    const bool canGoBack = move.from->isEnabled() && move.from->isVisible();
    if (canGoBack) {
        // Where the focus went meanwhile was never entered, so nobody there may complain in turn.
        std::erase_if(m_moves, [&](const Move &other) { return other.window == move.window; });
        putBack(move.from);
    }
    if (move.from && complaint.afterwards)
        complaint.afterwards();
    if (canGoBack)
        return;
    for (const auto &control : clientsAround(move.from)) {
        if (control)
            clientOf(control)->controlLeft();
    }
}

void FocusTracker::putBack(QWidget *box)
{
    const QPointer<QWidget> watched = box;
    {
        const QScopedValueRollback puttingBack(m_state, State::PuttingBack);
        if (!box->window()->isActiveWindow())
            box->activateWindow();
        box->setFocus(Qt::OtherFocusReason);
        remember(box->window(), box);
    }
    const auto clients = clientsAround(watched);
    if (!clients.empty())
        clientOf(clients.front())->boxEntered(watched, FocusEntry::Returned);
}

bool FocusTracker::leaveInPlace(QWidget *box)
{
    const QPointer<QWidget> watched = box;
    if (!settle())
        return false;
    const QScopedValueRollback handling(m_state, State::Handling);
    const auto left = clientsAround(watched);
    if (left.empty())
        return true;
    if (const auto complaint = clientOf(left.front())->boxLeft(watched)) {
        complain({watched ? watched->window() : nullptr, watched, watched}, *complaint);
        return false;
    }
    for (const auto &control : left) {
        if (control)
            clientOf(control)->controlLeft();
    }
    return true;
}

void FocusTracker::enterInPlace(QWidget *box)
{
    const QPointer<QWidget> watched = box;
    if (settle() && watched)
        enter(nullptr, watched);
}

void FocusTracker::enter(QWidget *from, QWidget *to)
{
    const QPointer<QWidget> box = to;
    auto entered = clientsAround(to);
    for (auto control = entered.rbegin(); control != entered.rend(); ++control) {
        if (*control && !holds(*control, from))
            clientOf(*control)->controlEntered();
    }
    if (box && !entered.empty() && entered.front())
        clientOf(entered.front())->boxEntered(box, FocusEntry::Moved);
}

} // namespace kor
