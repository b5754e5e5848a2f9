// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/monthview.h"

#include "constituents/accessiblefield.h"
#include "constituents/blend.h"
#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/keyoffer.h"

#include <KorDaoUC/clock.h>
#include <KorDaoUC/format.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QAccessible>
#include <QtGui/QIcon>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <array>
#include <utility>

namespace kor {

namespace {

//! The toolkit's locale that has the names of ours. Names that a host made up are found nowhere; Polish stands in.
[[nodiscard]] QLocale namedLike(const Locale &locale)
{
    const std::array candidates{QLocale::system(), QLocale(QLocale::Polish, QLocale::Poland),
                                QLocale(QLocale::English, QLocale::UnitedStates),
                                QLocale(QLocale::German, QLocale::Germany)};
    for (const QLocale &candidate : candidates) {
        const Locale habits = Locale::fromQLocale(candidate);
        if (candidate.language() != QLocale::C && habits.monthNames == locale.monthNames &&
            habits.dayNames == locale.dayNames)
            return candidate;
    }
    return candidates[1];
}

//! An arrow to the left (-1) or to the right (1), fine enough for any scaling of the screen.
[[nodiscard]] QIcon arrow(int direction, QSize size, const QColor &color)
{
    constexpr int fineness = 4;
    QPixmap picture(size * fineness);
    picture.setDevicePixelRatio(fineness);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const double step = std::min(size.width(), size.height()) / 5.0;
    const QPointF middle(size.width() / 2.0, size.height() / 2.0);
    painter.drawPolygon(QPolygonF{middle + QPointF(direction * step, 0),
                                  middle + QPointF(-direction * step, -1.5 * step),
                                  middle + QPointF(-direction * step, 1.5 * step)});
    painter.end();
    return QIcon(picture);
}

} // namespace

MonthView::MonthView(const Locale &locale, QWidget *parent) : QCalendarWidget(parent), m_locale(locale)
{
    makeConstituentsAccessible();
    setLocale(namedLike(locale));
    setFirstDayOfWeek(locale.firstDayOfWeek);
    setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
    setDateEditEnabled(false); // digits are not dates here
    setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    m_days = findChild<QTableView *>();
    if (QAccessible::isActive()) // told of already, while it was no calendar's yet
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(m_days)));
    m_canvas = m_days->viewport();
    m_year = findChild<QSpinBox *>();
    for (QWidget *part : {static_cast<QWidget *>(m_days), m_canvas, m_year})
        part->installEventFilter(this);
    plainBar();
    colorDays();
    nameParts();
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        const QString day = spoken(selectedDate());
        setAccessibleDescription(day);
        m_days->setAccessibleDescription(day);
        m_isValueChangePending = true;
        m_isSelChangePending = m_origin == Origin::User;
        m_events.raise();
    });
}

void MonthView::raisePending()
{
    const QPointer<MonthView> self = this;
    if (std::exchange(m_isValueChangePending, false))
        Q_EMIT ValueChanged();
    if (self && std::exchange(m_isSelChangePending, false))
        Q_EMIT SelChange();
    if (self && std::exchange(m_isDblClickPending, false))
        Q_EMIT DblClick();
}

void MonthView::setValue(QDate day)
{
    selecting([&] {
        const QScopedValueRollback byProgram(m_origin, Origin::Program);
        setSelectedDate(day);
        setCurrentPage(selectedDate().year(), selectedDate().month());
    });
}

void MonthView::turnYears(int years)
{
    selecting([&] {
        setSelectedDate(selectedDate().addYears(years));
        setCurrentPage(selectedDate().year(), selectedDate().month());
    });
}

QString MonthView::spoken(QDate day) const { return Format(day, QStringLiteral("Long Date"), m_locale); }

QDate MonthView::dayAt(int row, int column) const
{
    constexpr int firstRow = 1;
    constexpr int firstColumn = 1;
    constexpr int daysOfWeek = 7;
    if (row < firstRow || column < firstColumn)
        return {};
    // The days of the month before, which may come first, are never the first of theirs.
    const QAbstractItemModel *days = m_days->model();
    for (int place = 0; place < 2 * daysOfWeek; ++place) {
        const QModelIndex cell = days->index(firstRow + place / daysOfWeek, firstColumn + place % daysOfWeek);
        if (cell.data() == 1)
            return QDate(yearShown(), monthShown(), 1)
                .addDays((row - cell.row()) * daysOfWeek + column - cell.column());
    }
    return {};
}

bool MonthView::eventFilter(QObject *watched, QEvent *event)
{
    if (m_events.areHeld())
        return QCalendarWidget::eventFilter(watched, event); // on its way to the calendar
    switch (event->type()) {
    case QEvent::KeyPress:
        if (watched != m_days)
            break;
        press(static_cast<QKeyEvent *>(event));
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        if (watched != m_canvas)
            break;
        guarded(this, [&] {
            selecting([&] {
                QCoreApplication::sendEvent(watched, event);
                m_isDblClickPending = event->type() == QEvent::MouseButtonDblClick &&
                                      isOnSelectedDay(static_cast<const QMouseEvent &>(*event));
            });
        });
        return true;
    case QEvent::Hide:
        if (watched == m_year)
            takeKeyboardFromYear();
        break;
    default: break;
    }
    return QCalendarWidget::eventFilter(watched, event);
}

//! The toolkit leaves the keyboard with the year that has been typed, where nobody sees it. The key that ended the
//! typing has to be through first: it is not meant for the days.
void MonthView::takeKeyboardFromYear()
{
    QMetaObject::invokeMethod(
        m_days,
        [this] {
            if (m_year->hasFocus() && !m_year->isVisible())
                m_days->setFocus();
        },
        Qt::QueuedConnection);
}

//! Whether a press of the left button hits the day that is selected. Not left to the toolkit, which takes any button,
//! and under some styles a single click, for a double one.
bool MonthView::isOnSelectedDay(const QMouseEvent &event) const
{
    const QModelIndex hit = m_days->indexAt(event.position().toPoint());
    return event.button() == Qt::LeftButton && hit.isValid() && hit == m_days->currentIndex();
}

void MonthView::keyPressEvent(QKeyEvent *event)
{
    if (m_events.areHeld())
        event->accept(); // the days have seen it, and say of no key that they used it
    else if (m_year->hasFocus())
        QCalendarWidget::keyPressEvent(event);
    else
        press(event);
}

void MonthView::press(QKeyEvent *event)
{
    guarded(this, [&] {
        const KeyOffer key = raiseKeyDown(this, *event);
        const bool selectsNothing = key.code == Key::None || key.code == Key::Enter || key.code == Key::Space;
        if (key.answer == KeyOffer::Answer::Swallow || selectsNothing)
            return;
        if (key.shift == ShiftState::Ctrl && (key.code == Key::PageUp || key.code == Key::PageDown))
            turnYears(key.code == Key::PageUp ? -1 : 1);
        else
            selecting([&] { QCoreApplication::sendEvent(m_days, event); });
    });
    event->accept(); // a calendar keeps every key, so that none is taken twice
}

void MonthView::changeEvent(QEvent *event)
{
    QCalendarWidget::changeEvent(event);
    const bool isLook = event->type() == QEvent::PaletteChange || event->type() == QEvent::LayoutDirectionChange;
    if (isLook && m_days)
        colorDays();
}

QSize MonthView::sizeHint() const
{
    constexpr int rows = 7; // the toolkit sets them so close that a finger or a shaky hand takes the wrong day
    return QCalendarWidget::sizeHint() + QSize(0, rows * fontMetrics().height() / 3);
}

//! Takes the sign away that the toolkit lays over the name of the month.
void MonthView::plainBar()
{
    if (auto *month = findChild<QToolButton *>(QStringLiteral("qt_calendar_monthbutton")))
        month->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
}

//! Names what a screen reader meets: the days, where the keyboard is, and what has a picture only.
void MonthView::nameParts()
{
    for (QWidget *calendar : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_days)})
        calendar->setAccessibleName(QStringLiteral("Kalendarz"));
    m_year->setAccessibleName(QStringLiteral("Rok"));
    for (const auto &[part, name] : {std::pair("qt_calendar_prevmonth", u"Poprzedni miesiąc"),
                                     std::pair("qt_calendar_nextmonth", u"Następny miesiąc")}) {
        if (auto *button = findChild<QToolButton *>(QString::fromLatin1(part)))
            button->setAccessibleName(QString::fromUtf16(name));
    }
}

void MonthView::colorDays()
{
    // The toolkit's arrows are pictures of fixed colours.
    const QColor onBar = palette().color(QPalette::HighlightedText);
    for (const auto &[name, sign] : {std::pair("qt_calendar_prevmonth", -1), std::pair("qt_calendar_nextmonth", 1)}) {
        if (auto *button = findChild<QToolButton *>(QString::fromLatin1(name)))
            button->setIcon(arrow(layoutDirection() == Qt::RightToLeft ? -sign : sign, button->iconSize(), onBar));
    }
    // The toolkit's pure red for free days is too dark on a dark theme and too glaring on a light one.
    QTextCharFormat freeDay;
    freeDay.setForeground(between(palette().color(QPalette::Text), QColor(Qt::red)));
    setWeekdayTextFormat(Qt::Saturday, freeDay);
    setWeekdayTextFormat(Qt::Sunday, freeDay);
}

void MonthView::paintCell(QPainter *painter, const QRect &place, QDate day) const
{
    QCalendarWidget::paintCell(painter, place, day);
    if (day != Clock::today())
        return;
    painter->save();
    const QPalette colors = palette();
    painter->setPen(day == selectedDate() ? colors.color(QPalette::HighlightedText)
                                          : seenOn(colors.color(QPalette::Base), colors.color(QPalette::Highlight),
                                                   colors.color(QPalette::Text)));
    painter->drawRect(place.adjusted(1, 1, -2, -2));
    painter->restore();
}

} // namespace kor
