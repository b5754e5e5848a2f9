// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/fieldsuite.h"
#include "support/sqlitefile.h"

#include <KorDaoUC/SqlDatabase>

#include <QtGui/QMouseEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>

namespace kor::test {

//! As the window system tells it: two presses, the second one as the double click, and both releases.
inline void doubleClick(QWidget *surface, const QPoint &place)
{
    QTest::mouseClick(surface, Qt::LeftButton, {}, place);
    for (const QEvent::Type type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent mouse(type, place, surface->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(surface, &mouse);
    }
}

//! What the suites of the lists begin each test with: one list on a window, and a database to fill it from.
template <class List>
class ListSuite : public FieldSuite<List, QListView>
{
protected:
    using Suite = FieldSuite<List, QListView>;
    using Suite::m_box;
    using Suite::m_stage;

    void setUp(const char *boxName)
    {
        Suite::setUp(boxName, 160, 100);
        m_list->setdatabase(&m_database);
    }

    void load(const QString &source, bool canBeNull = false)
    {
        m_list->setSQL(source);
        m_list->setCanBeNull(canBeNull);
        m_list->Refresh();
    }
    //! Loads the list, and gives it the keyboard.
    [[nodiscard]] bool enter(const QString &source)
    {
        load(source);
        return Suite::enter();
    }
    [[nodiscard]] QRect rect(int row) const { return m_box->visualRect(m_box->model()->index(row, 0)); }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(m_box, static_cast<Qt::Key>(key), modifiers);
    }

    SqliteFile m_file;
    SqlDatabase m_database{m_file.connection()};
    QPointer<List> &m_list = Suite::m_control;
};

} // namespace kor::test
