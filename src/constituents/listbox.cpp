// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/listbox.h"

#include "constituents/accessibletable.h"
#include "constituents/blend.h"
#include "constituents/contextpress.h"
#include "constituents/entryheight.h"
#include "constituents/entrymodel.h"
#include "constituents/enumcheck.h"
#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/keyoffer.h"
#include "constituents/mouse.h"
#include "constituents/onelinedelegate.h"

#include <QtCore/QPointer>
#include <QtGui/QHelpEvent>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <utility>

namespace kor {

namespace {

constexpr int usualRows = 6; // and letters that the list has room for, where the form leaves it the choice
constexpr int usualLetters = 20;
constexpr int fewestLetters = 3;  // that it can be pressed together to
constexpr int followingStep = 50; // milliseconds

//! Gives every entry the list's one height and no width of its own, so that none is measured.
class EntryDelegate final : public OneLineDelegate
{
public:
    explicit EntryDelegate(ListBox *list) : OneLineDelegate(list), m_list(list) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {1, m_list->rowHeight()};
    }
    //! A name that does not fit is read whole in its tip; over all others stands the list's own.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip || !index.isValid() || !isCutShort(option, index))
            return OneLineDelegate::helpEvent(event, view, option, index);
        const QString name = displayText(index.data(), option.locale).toHtmlEscaped();
        QToolTip::showText(event->globalPos(), QLatin1String("<p>") + name, view->viewport(), option.rect);
        return true;
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // Styles take the window's colour, darkened, for the edge of a check box: little on a light list, and nothing
        // on a dark one.
        QPalette &colors = option->palette;
        const QColor text = colors.color(QPalette::Text);
        const QColor middle = between(colors.color(QPalette::Base), text);
        const bool isDark = colors.color(QPalette::Base).lightness() < text.lightness();
        colors.setColor(QPalette::Window, isDark ? between(middle, text) : middle);
    }

private:
    [[nodiscard]] bool isCutShort(const QStyleOptionViewItem &option, const QModelIndex &index) const
    {
        QStyleOptionViewItem entry = option;
        initStyleOption(&entry, index);
        const QStyle *style = m_list->style();
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &entry, m_list) + 1;
        const int room = style->subElementRect(QStyle::SE_ItemViewItemText, &entry, m_list).width() - 2 * margin;
        return entry.fontMetrics.horizontalAdvance(entry.text) > room;
    }

    ListBox *m_list;
};

} // namespace

ListBox::ListBox(QWidget *parent) : ListBox(new EntryModel, parent) {}

ListBox::ListBox(EntryModel *entries, QWidget *parent)
    : QListView(parent), m_entries(entries), m_toolkitsDelegate(itemDelegate()), m_delegate(new EntryDelegate(this))
{
    makeConstituentsAccessible();
    entries->setParent(this);
    setModel(entries);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setFocusPolicy(Qt::StrongFocus);    // a wheel that passes by gives no focus
    viewport()->setMouseTracking(true); // MouseMove comes without a button too
    setAppearance(AppearanceType::A3D);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { m_click.raise(); });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListBox::followSelection);
}

// To put one delegate in place of the other, with its connections for editors that there are not, takes a fifth of the
// time of making a list.
QAbstractItemDelegate *ListBox::itemDelegateForIndex(const QModelIndex &index) const
{
    QAbstractItemDelegate *delegate = QListView::itemDelegateForIndex(index);
    return delegate == m_toolkitsDelegate ? m_delegate : delegate;
}

// --- entries and selection

void ListBox::setListIndex(int index)
{
    if (index < -1 || index >= ListCount())
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    m_click.during([&] { select(index); });
}

int ListBox::ListCount() const { return m_entries->count(); }
QString ListBox::List(int index) const { return m_entries->name(index); }
int ListBox::indexOf(const QString &name) const { return m_entries->indexOf(name); }
void ListBox::AddItem(const QString &name) { m_entries->append(name); }
void ListBox::AddItems(QStringList names) { m_entries->append(std::move(names)); }

void ListBox::Clear()
{
    m_isClickDue = m_isClickDue || ListIndex() != m_selected;
    m_selected = -1; // not news to anybody
    m_entries->clear();
}

void ListBox::select(int index)
{
    m_click.hold([&] {
        if (index < 0)
            selectionModel()->clear();
        else
            setCurrentIndex(m_entries->index(index));
    });
}

void ListBox::raiseClick()
{
    if (ListIndex() == m_selected)
        return;
    m_selected = ListIndex();
    Q_EMIT Click();
}

void ListBox::endPress()
{
    if (std::exchange(m_isClickDue, false))
        m_selected = -1;
    m_click.raise();
}

// Assistive tools select entries without making them the current one, or the other way round; here the two are one.
void ListBox::followSelection(const QItemSelection &selected)
{
    if (!m_click.areHeld() && !selected.isEmpty())
        setListIndex(selected.first().top());
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex &index, const QEvent *) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

// --- keys

void ListBox::keyPressEvent(QKeyEvent *event)
{
    onInput(this, event, [&] { pressKey(this, event, [this](QKeyEvent *key) { actAs(key); }); });
}

void ListBox::actAs(QKeyEvent *event)
{
    if (move(event->key()))
        return;
    if (keyAscii(*event) < Key::Space) {
        event->ignore(); // the form's: Enter, Escape, a menu's letter
        return;
    }
    if (event->key() != Qt::Key_Space || !pressSpace())
        type(*event);
}

//! Whether the key is one that moves. There is one column, so Left and Right are Up and Down.
bool ListBox::move(int key)
{
    const int last = ListCount() - 1;
    const int page = std::max(1, visibleRows() - 1);
    int target = ListIndex();
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left: --target; break;
    case Qt::Key_Down:
    case Qt::Key_Right: ++target; break;
    case Qt::Key_PageUp: target -= page; break;
    case Qt::Key_PageDown: target += page; break;
    case Qt::Key_Home: target = 0; break;
    case Qt::Key_End: target = last; break;
    default: return false;
    }
    if (last >= 0)
        setListIndex(std::clamp(target, 0, last));
    return true;
}

void ListBox::type(const QKeyEvent &event)
{
    if (event.text() == QLatin1String(" ") && !m_typed.goesOn(event))
        return; // no name begins with it
    m_typed.add(event);
    if (const int found = m_typed.foundIn(*m_entries, ListIndex()); found >= 0)
        m_click.during([&] { setCurrentIndex(m_entries->index(found)); });
}

//! What an input method finishes is searched for like typed letters; in a list it composes nothing.
void ListBox::inputMethodEvent(QInputMethodEvent *event)
{
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, event->commitString());
    onInput(this, event, [&] {
        if (!typed.text().isEmpty())
            type(typed);
    });
}

// --- mouse

void ListBox::mousePressEvent(QMouseEvent *event)
{
    onPress(this, viewport(), event, [this](QMouseEvent *pressed) { press(*pressed); });
}

void ListBox::press(const QMouseEvent &event)
{
    const QPointer<ListBox> self = this;
    m_pressed |= event.button();
    m_isClickDue = false;
    MouseArguments mouse(this, event);
    Q_EMIT MouseDown(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
    if (!self || event.button() != Qt::LeftButton)
        return;
    m_mouse = event.position().toPoint();
    if (const int entry = entryAt(m_mouse.y()); entry >= 0)
        select(entry);
    pressedAt(m_mouse);
}

void ListBox::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<ListBox> self = this;
    guarded(this, [&] {
        MouseArguments mouse(this, *event);
        Q_EMIT MouseMove(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
        if (!self || !m_pressed.testFlag(Qt::LeftButton))
            return;
        if (!event->buttons().testFlag(Qt::LeftButton)) {
            m_pressed = {}; // released where nobody saw it, over a message that a handler showed
            m_following.stop();
            endPress();
            return;
        }
        m_mouse = event->position().toPoint();
        followMouse();
    });
    event->accept();
}

void ListBox::followMouse()
{
    const int last = ListCount() - 1;
    if (last < 0)
        return;
    const int entry = entryAt(m_mouse.y());
    select(entry < 0 ? last : std::min(entry, last));
    const bool isBeyond = m_mouse.y() < 0 || m_mouse.y() >= viewport()->height();
    if (isBeyond && !m_following.isActive())
        m_following.start(followingStep, this);
    else if (!isBeyond)
        m_following.stop();
}

void ListBox::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_following.timerId())
        QListView::timerEvent(event);
    else if (hasFocus())
        guarded(this, [this] { followMouse(); });
    else
        m_following.stop(); // disabled, hidden or behind a message, where no release will be seen
}

void ListBox::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ListBox> self = this;
    guarded(this, [&] {
        if (!m_pressed.testFlag(event->button()))
            return;
        m_pressed.setFlag(event->button(), false);
        const bool isLeft = event->button() == Qt::LeftButton;
        if (isLeft)
            m_following.stop();
        MouseArguments mouse(this, *event);
        Q_EMIT MouseUp(mouse.Button, mouse.Shift, mouse.X, mouse.Y);
        if (self && isLeft)
            releasedAt(event->position().toPoint());
        if (self && isLeft)
            endPress();
    });
    event->accept();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointer<ListBox> self = this;
    guarded(this, [&] {
        const QPoint place = event->position().toPoint();
        const int entry = entryAt(place.y());
        if (event->button() != Qt::LeftButton || entry < 0) {
            press(*event);
            return;
        }
        m_pressed |= event->button();
        m_mouse = place;
        select(entry); // the second press may fall on the entry beside the first one's
        Q_EMIT DblClick();
        if (self)
            pressedAt(place);
    });
    event->accept();
}

int ListBox::entryAt(int y) const
{
    const int top = indexAt({0, 0}).row();
    if (y < 0)
        return top - 1 < 0 ? top : top - 1;
    if (y >= viewport()->height())
        return top < 0 ? -1 : top + visibleRows();
    return indexAt({0, y}).row();
}

// --- focus

// The toolkit's own would make the first entry the current one.
void ListBox::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    tellCurrentCell(this);
}

void ListBox::focusOutEvent(QFocusEvent *event)
{
    const QPointer<ListBox> self = this;
    QListView::focusOutEvent(event);
    guarded(this, [&] {
        if (self && !m_pressed)
            m_click.raise();
    });
}

// --- look and size

// The toolkit starts timers anew for every entry. The first one asks for the layout, and the others wait for it with
// it.
void ListBox::rowsInserted(const QModelIndex &parent, int first, int last)
{
    if (!std::exchange(m_awaitsLayout, true))
        QListView::rowsInserted(parent, first, last);
}

void ListBox::doItemsLayout()
{
    m_awaitsLayout = false;
    QListView::doItemsLayout();
}

AppearanceType ListBox::Appearance() const
{
    return frameShape() == QFrame::StyledPanel ? AppearanceType::A3D : AppearanceType::Flat;
}

void ListBox::setAppearance(AppearanceType appearance)
{
    requireMember(appearance);
    const int style = appearance == AppearanceType::Flat ? int(QFrame::Box) | int(QFrame::Plain)
                                                         : int(QFrame::StyledPanel) | int(QFrame::Sunken);
    if (style == frameStyle())
        return;
    setFrameStyle(style);
    Q_EMIT heightChanged();
}

QStyleOptionViewItem ListBox::entryOption() const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.features |= QStyleOptionViewItem::HasDisplay;
    option.text = QStringLiteral("X");
    return option;
}

int ListBox::rowHeight() const { return entryHeight(entryOption(), this); }

int ListBox::visibleRows() const { return std::max(1, viewport()->height() / rowHeight()); }

int ListBox::heightOfWholeRows(int height) const
{
    const int frame = 2 * frameWidth();
    const int row = rowHeight();
    return std::max(1, (height - frame) / row) * row + frame;
}

QSize ListBox::sizeHint() const
{
    const int width = usualLetters * fontMetrics().averageCharWidth() + verticalScrollBar()->sizeHint().width();
    return {width + 2 * frameWidth(), usualRows * rowHeight() + 2 * frameWidth()};
}

QSize ListBox::minimumSizeHint() const
{
    const int width = fewestLetters * fontMetrics().averageCharWidth() + verticalScrollBar()->sizeHint().width();
    return {width + 2 * frameWidth(), QListView::minimumSizeHint().height()};
}

void ListBox::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Q_EMIT heightChanged();
}

void ListBox::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (!hasFocus() || ListIndex() >= 0)
        return;
    // Without a selected entry nothing else would show that the list has the focus.
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = QRect(0, 0, viewport()->width(), rowHeight());
    focus.backgroundColor = palette().color(QPalette::Base);
    focus.state |= QStyle::State_KeyboardFocusChange;
    QPainter painter(viewport());
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace kor
