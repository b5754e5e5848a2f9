// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/fieldsuite.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/Variant>

#include <QtCore/QDate>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QTableView>

namespace kor::test {

//! What the suites of the date field begin each test with: a field on a window, in Poland, on a certain day of 2024.
class DateSuite : public FieldSuite<KorDate>
{
protected:
    static inline const QDate today{2024, 3, 5};

    void setUp()
    {
        Clock::setSource([] { return today; });
        FieldSuite::setUp("txtDate");
        m_button = m_date->findChild<QAbstractButton *>(QStringLiteral("cmdDate"));
    }

    //! Gives the field a value, as if it had been loaded, and the keyboard.
    [[nodiscard]] bool enter(const QVariant &value = null())
    {
        m_date->setValue(value);
        m_date->setDataChanged(false);
        return FieldSuite::enter();
    }

    //! By Tab, to the button beside the box.
    void leave()
    {
        QTest::keyClick(m_box, Qt::Key_Tab);
        settle();
    }

    QPointer<KorDate> &m_date = m_control;
    QAbstractButton *m_button = nullptr;
};

//! The same with the field's calendar.
class CalendarSuite : public DateSuite
{
protected:
    [[nodiscard]] QWidget *month() const { return m_date->findChild<QWidget *>(QStringLiteral("frmMonth")); }
    [[nodiscard]] QCalendarWidget *view() const
    {
        return m_date->findChild<QCalendarWidget *>(QStringLiteral("viewMonth"));
    }
    [[nodiscard]] bool isOpen() const { return month() && month()->isVisible(); }
    //! A key where the keyboard is.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyPress(QApplication::focusWidget(), key, modifiers);
    }
    //! The middle of a day's cell, and what it is in.
    [[nodiscard]] QPoint placeOf(QDate day) const
    {
        const auto *table = view()->findChild<QTableView *>();
        // The first row and column are titles; weeks begin with the locale's first day, and never with the first row.
        const QDate first(view()->yearShown(), view()->monthShown(), 1);
        const int offset = (first.dayOfWeek() - view()->firstDayOfWeek() + 7) % 7;
        const int cell = (offset == 0 ? 7 : offset) + day.day() - 1;
        return table->visualRect(table->model()->index(1 + cell / 7, 1 + cell % 7)).center();
    }
    [[nodiscard]] QWidget *days() const { return view()->findChild<QTableView *>()->viewport(); }
};

} // namespace kor::test
