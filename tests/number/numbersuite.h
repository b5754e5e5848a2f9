// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/fieldsuite.h"

#include <KorDaoUC/KorNumber>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

namespace kor::test {

//! What the suites of the numeric field begin each test with: a field on a window, in Poland, and an empty clipboard
//! behind each.
class NumberSuite : public FieldSuite<KorNumber>
{
protected:
    void setUp(const Locale &locale = Locale::polish()) { FieldSuite::setUp("txtNumber", 160, 26, locale); }
    void tearDown()
    {
        FieldSuite::tearDown();
        QGuiApplication::clipboard()->clear();
    }

    //! Gives the field the keyboard and types; whether its box has the keyboard then.
    [[nodiscard]] bool enter(const QString &typed = {})
    {
        if (!FieldSuite::enter())
            return false;
        QTest::keyClicks(m_box, typed);
        return QApplication::focusWidget() == m_box;
    }

    //! By Tab, to the button of the window.
    void leave()
    {
        QTest::keyClick(m_box, Qt::Key_Tab);
        settle();
    }

    QPointer<KorNumber> &m_number = m_control;
};

} // namespace kor::test
