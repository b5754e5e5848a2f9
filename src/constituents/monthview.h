// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/heldevents.h"

#include <KorDaoUC/locale.h>

#include <QtWidgets/QCalendarWidget>

#include <utility>

class QMouseEvent;
class QTableView;

namespace kor {

//! A month calendar: the toolkit's, with today ringed, week numbers, the locale's names and the classic events. They
//! are raised when the calendar has done its own work, so that a handler may delete it.
//!
//! The arrow keys move by days and weeks, Page Up and Page Down by months, with Ctrl by years; Home and End go to the
//! first and the last day of the month.
class MonthView final : public QCalendarWidget
{
    Q_OBJECT
    Q_PROPERTY(QDate Value READ Value WRITE setValue NOTIFY ValueChanged DESIGNABLE false STORED false)

public:
    explicit MonthView(const Locale &locale, QWidget *parent);

    //! The day shown and selected.
    [[nodiscard]] QDate Value() const { return selectedDate(); }
    //! Selects a day and turns to its month, without SelChange.
    void setValue(QDate day);
    [[nodiscard]] QSize sizeHint() const override;
    //! The day of a cell of the table of days; none in the line of week days and the column of weeks.
    [[nodiscard]] QDate dayAt(int row, int column) const;
    [[nodiscard]] QString spoken(QDate day) const;

Q_SIGNALS:
    void ValueChanged();
    //! The user has selected another day.
    void SelChange();
    //! The user has double-clicked a day.
    void DblClick();
    //! A key, before the calendar acts on it; 0 keeps it from the calendar.
    void KeyDown(int &KeyCode, int &Shift);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintCell(QPainter *painter, const QRect &place, QDate day) const override;

private:
    enum class Origin { User, Program };

    //! Runs what may select a day, and raises the events when it is done.
    template <class Body>
    void selecting(Body &&body)
    {
        m_events.during(std::forward<Body>(body));
    }
    void raisePending();
    void press(QKeyEvent *event);
    void turnYears(int years);
    void takeKeyboardFromYear();
    [[nodiscard]] bool isOnSelectedDay(const QMouseEvent &event) const;
    void colorDays();
    void plainBar();
    void nameParts();

    const Locale &m_locale;
    QTableView *m_days = nullptr; //!< the table of the days, which has the keyboard
    QWidget *m_canvas = nullptr;  //!< the part of it that has the mouse
    QWidget *m_year = nullptr;    //!< shown while the year is typed
    Origin m_origin = Origin::User;
    HeldEvents m_events{this, [this] { raisePending(); }};
    bool m_isValueChangePending = false;
    bool m_isSelChangePending = false;
    bool m_isDblClickPending = false;
};

} // namespace kor
