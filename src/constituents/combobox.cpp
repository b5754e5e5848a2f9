// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/combobox.h"

#include "constituents/accessiblefield.h"
#include "constituents/dropliststyle.h"
#include "constituents/entryheight.h"
#include "constituents/entrymodel.h"
#include "constituents/errorguard.h"
#include "constituents/fieldname.h"
#include "constituents/keycodes.h"
#include "constituents/keyoffer.h"
#include "constituents/onelinedelegate.h"
#include "constituents/popupplace.h"

#include <QtCore/QCoreApplication>
#include <QtCore/qmath.h>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyleOptionComboBox>

#include <algorithm>
#include <utility>

namespace kor {

namespace {

constexpr int visibleEntries = 12;
constexpr int usualLetters = 12;    // that the field has room for, where the form leaves it the choice
constexpr int fewestLetters = 3;    // that it can be pressed together to
constexpr int lowestLine = 14;      // that the toolkit makes room for, however small the font
constexpr int mostListLetters = 80; // of a name that the open list makes room for
constexpr int mostNamesMeasured = 50;

//! Gives the entries of the open list the height that they have in the other lists.
class DropListDelegate final : public OneLineDelegate
{
public:
    using OneLineDelegate::OneLineDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem entry = option;
        initStyleOption(&entry, index);
        return {OneLineDelegate::sizeHint(option, index).width(),
                entryHeight(entry, qobject_cast<QWidget *>(parent()))};
    }
};

} // namespace

ComboBox::ComboBox(QWidget *parent) : QComboBox(parent), m_entries(new EntryModel(this))
{
    makeConstituentsAccessible();
    // The toolkit selects the first entry of its own accord, unless it has something to show in place of none.
    setPlaceholderText(QStringLiteral(" "));
    setModel(m_entries);
    setFocusPolicy(Qt::StrongFocus); // a wheel that passes by gives no focus
    setMaxVisibleItems(visibleEntries);
    connect(this, &QComboBox::currentIndexChanged, this, [this] { m_events.raise(); });
    connect(this, &QComboBox::activated, this, [this] { m_isChosen = m_events.areHeld(); });
}

// --- entries and selection

void ComboBox::setListIndex(int index)
{
    if (index < -1 || index >= count())
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    act([&] {
        setCurrentIndex(index);
        if (isDropped()) // what Enter accepts there is what the program has just selected
            m_list->setCurrentIndex(m_entries->index(index));
    });
}

void ComboBox::choose(int index)
{
    guarded(this, [&] {
        if (index < 0 || index >= count() || !FocusTracker::instance().giveKeyboard(this) || index >= count())
            return;
        act([&] {
            setCurrentIndex(index);
            m_isChosen = true;
        });
    });
}

QString ComboBox::List(int index) const { return m_entries->name(index); }
int ComboBox::indexOf(const QString &name) const { return m_entries->indexOf(name); }
void ComboBox::AddItem(const QString &name) { m_entries->append(name); }
void ComboBox::AddItems(QStringList names) { m_entries->append(std::move(names)); }

void ComboBox::Clear()
{
    m_selected = -1; // not news to anybody
    m_entries->clear();
}

void ComboBox::raiseEvents()
{
    const QPointer<ComboBox> self = this;
    const bool isChosen = std::exchange(m_isChosen, false);
    if (currentIndex() != m_selected) {
        m_selected = currentIndex();
        Q_EMIT Click();
    }
    if (self && isChosen)
        Q_EMIT Chosen();
}

// --- keys and mouse on the closed field

void ComboBox::keyPressEvent(QKeyEvent *event)
{
    onInput(this, event, [&] {
        if (isDropped())
            QCoreApplication::sendEvent(m_list, event);
        else
            pressKey(this, event, [this](QKeyEvent *key) { actAs(key); });
    });
}

// A field that is entered anew searches anew: the cells of a grid share one list, and a clerk types faster from cell to
// cell than a name is forgotten.
void ComboBox::focusInEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason)
        m_typed.forget();
    QComboBox::focusInEvent(event);
}

void ComboBox::actAs(QKeyEvent *event)
{
    const int own = keyAscii(*event);
    const int ascii = offerCharacter(own);
    if (own != 0 && ascii == 0)
        return;
    if (ascii == own) {
        select(event);
        return;
    }
    QKeyEvent other(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(static_cast<char16_t>(ascii))));
    other.setTimestamp(event->timestamp());
    select(&other);
}

int ComboBox::offerCharacter(int ascii)
{
    const QPointer<ComboBox> self = this;
    if (ascii != 0)
        Q_EMIT KeyPress(ascii);
    return self ? ascii : 0;
}

void ComboBox::select(QKeyEvent *event)
{
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isArrow && event->modifiers().testFlag(Qt::ControlModifier)) {
        // The toolkit leaves arrows with Ctrl alone; here they move like the plain ones.
        QKeyEvent plain(QEvent::KeyPress, event->key(), event->modifiers() & ~Qt::ControlModifier);
        act([&] { QComboBox::keyPressEvent(&plain); });
        return;
    }
    const bool isCharacter = keyAscii(*event) >= Key::Space;
    if (!event->text().isEmpty() && !isCharacter) {
        event->ignore(); // the form's: Enter, Escape, a menu's letter
        return;
    }
    if (!isCharacter || !typeName(*event))
        act([&] { QComboBox::keyPressEvent(event); });
}

bool ComboBox::typeName(const QKeyEvent &event)
{
    // A blank inside a name is searched for; it opens the list otherwise.
    if (event.key() == Qt::Key_Space && !m_typed.goesOn(event))
        return false;
    m_typed.add(event);
    if (isDropped()) {
        if (const int found = m_typed.foundIn(*m_entries, m_list->currentIndex().row()); found >= 0)
            m_list->setCurrentIndex(m_entries->index(found));
        return true;
    }
    const int found = m_typed.foundIn(*m_entries, currentIndex());
    if (found >= 0 && found != currentIndex()) {
        act([&] {
            setCurrentIndex(found);
            Q_EMIT activated(found);
        });
    }
    return true;
}

void ComboBox::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    guarded(this, [&] { raiseKeyUp(this, *event); });
}

void ComboBox::mousePressEvent(QMouseEvent *event)
{
    onInput(this, event, [&] { act([&] { QComboBox::mousePressEvent(event); }); });
    event->accept();
}

void ComboBox::wheelEvent(QWheelEvent *event)
{
    if (!hasFocus()) {
        event->ignore(); // the form scrolls
        return;
    }
    guarded(this, [&] { act([&] { QComboBox::wheelEvent(event); }); });
}

// --- the open list

QAbstractItemView *ComboBox::list() const { return m_list; }
bool ComboBox::isDropped() const { return m_list && m_list->isVisible(); }

bool ComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::StyleChange)
            followStyle();
        return false;
    }
    const QPointer<ComboBox> self = this;
    if (watched == m_list && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
        tellExpanded(this);
    bool isTaken = false;
    guarded(this, [&] { isTaken = filterList(watched, event); });
    return isTaken || !self; // the list has gone with the box
}

bool ComboBox::filterList(QObject *watched, QEvent *event)
{
    if (!isDropped())
        return false;
    if (watched == m_list && event->type() == QEvent::ShortcutOverride) {
        // Every key is the list's while it is open. The toolkit acts on this event already, so that the press itself
        // would come to the closed field.
        event->accept();
        return true;
    }
    if (watched == m_list && event->type() == QEvent::KeyPress)
        return pressInList(static_cast<QKeyEvent *>(event));
    if (watched == m_list && event->type() == QEvent::KeyRelease)
        raiseKeyUp(this, *static_cast<QKeyEvent *>(event));
    else if (watched == m_list->viewport() && event->type() == QEvent::MouseButtonRelease)
        return offerToToolkit(watched, event);
    return false;
}

bool ComboBox::pressInList(QKeyEvent *event)
{
    const QPointer<ComboBox> self = this;
    event->accept();
    if (raiseKeyDown(this, *event).answer == KeyOffer::Answer::Swallow || !isDropped())
        return true;
    const int own = keyAscii(*event);
    if (own != 0 && offerCharacter(own) == 0)
        return true;
    if (own >= Key::Space && isDropped() && typeName(*event))
        return true;
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    QKeyEvent accepting(QEvent::ShortcutOverride, isTab ? Qt::Key_Return : event->key(), event->modifiers());
    const bool isTaken = offerToToolkit(m_list, &accepting);
    if (self && isTab) // accepts like Enter, and goes on to the next field
        focusNextPrevChild(event->key() == Qt::Key_Tab);
    return isTaken;
}

// The toolkit's own filter of the list accepts entries. It is asked from here, so that Click comes when it is done.
bool ComboBox::offerToToolkit(QObject *watched, QEvent *event)
{
    const QPointer<ComboBox> self = this;
    QObject *toolkitFilter = m_list->parent();
    bool isTaken = false;
    act([&] { isTaken = toolkitFilter->eventFilter(watched, event); });
    return isTaken || !self;
}

void ComboBox::showPopup()
{
    makeList();
    m_list->setAccessibleName(fieldName(this));
    m_list->setMinimumWidth(listWidth());
    QComboBox::showPopup();
    if (isDropped()) { // the toolkit looks at the list's height only
        QWidget *popup = m_list->window();
        popup->setGeometry(ontoScreen(popup->geometry(), screen()->availableGeometry()));
    }
}

// The open list takes many times as long to make as the field, and most of a form's fields are never opened.
void ComboBox::makeList()
{
    if (m_list)
        return;
    followStyle();
    setIconSize({0, 0}); // nothing to make room for
    auto *list = qobject_cast<QListView *>(view());
    list->parentWidget()->setFont(font());
    list->setItemDelegate(new DropListDelegate(list));
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideRight);
    list->installEventFilter(this); // after the toolkit's own filter, so it is asked first
    list->viewport()->installEventFilter(this);
    m_list = list;
    if (QWidget *place = parentWidget())
        place->installEventFilter(this);
    connect(m_entries, &QAbstractItemModel::modelReset, this, &ComboBox::fitListSoon);
    connect(m_entries, &QAbstractItemModel::rowsInserted, this, &ComboBox::fitListSoon);
    Q_EMIT listMade(list);
}

int ComboBox::listWidth() const
{
    // The longest names by their number of letters; measuring all of them would take longer than all the rest.
    const QStringList &names = m_entries->names();
    qsizetype longest = 0;
    for (const QString &name : names)
        longest = std::max(longest, name.size());
    const QFontMetrics metrics(m_list->font());
    int widest = 0;
    int measured = 0;
    for (auto name = names.cbegin(); name != names.cend() && measured < mostNamesMeasured; ++name) {
        if (name->size() * 4 >= longest * 3) {
            widest = std::max(widest, metrics.horizontalAdvance(name->left(mostListLetters * 2)));
            ++measured;
        }
    }
    const QStyle *look = m_list->style();
    const int beside = m_pictureWidth + look->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_list) +
                       2 * (look->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_list) + 1 +
                            look->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, m_list));
    const int around = m_list->parentWidget()->width() - m_list->parentWidget()->contentsRect().width(); // its frame
    const int most =
        std::min(screen()->availableGeometry().width() - around, mostListLetters * metrics.averageCharWidth());
    return std::max(width(), std::min(widest + beside, most));
}

void ComboBox::fitListSoon()
{
    if (!isDropped() || m_fitsSoon)
        return;
    m_fitsSoon = true;
    QMetaObject::invokeMethod(
        this, [this] { guarded(this, [this] { fitList(); }); }, Qt::QueuedConnection);
}

void ComboBox::fitList()
{
    m_fitsSoon = false;
    if (!isDropped())
        return;
    if (count() == 0)
        hidePopup();
    else
        showPopup();
}

// --- look and size

void ComboBox::followStyle() { setStyle(DropListStyle::ofApplication()); }

void ComboBox::childEvent(QChildEvent *event)
{
    // Assistive tools, or a host through the toolkit's own interface, may have the list made before it is opened.
    m_hasList = m_hasList || (event->added() && event->child()->isWidgetType());
    QComboBox::childEvent(event);
}

void ComboBox::changeEvent(QEvent *event)
{
    const bool isHeight = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (isHeight && !m_hasList)
        QWidget::changeEvent(event); // the toolkit's own would make the list, to tell it
    else
        QComboBox::changeEvent(event);
    if (isHeight) {
        updateGeometry();
        Q_EMIT heightChanged();
    }
}

// The toolkit's own ones measure every name, or go through all entries in search of a picture.
QSize ComboBox::sizeForWidth(int textWidth) const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int line = std::max(qCeil(QFontMetricsF(fontMetrics()).height()), lowestLine) + 2;
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, {textWidth, line}, this);
}

// The toolkit measures its names when it is shown first, and asks for a new layout. This one is as wide as it says, and
// where many fields wait for a layout, each of them looks through all that waits.
void ComboBox::showEvent(QShowEvent *event) { QWidget::showEvent(event); }

QSize ComboBox::sizeHint() const { return sizeForWidth(usualLetters * fontMetrics().horizontalAdvance(u'X')); }

QSize ComboBox::minimumSizeHint() const { return sizeForWidth(fewestLetters * fontMetrics().averageCharWidth()); }

} // namespace kor
